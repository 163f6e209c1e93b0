#include "recordfile/LineReader.h"

#include <QIODevice>

#include <simdjson.h>

#include <algorithm>
#include <cstring>
#include <utility>

namespace inkmacro::recordfile {

namespace {

constexpr std::size_t kChunk = 1024 * 1024;
constexpr std::size_t kPadding = simdjson::SIMDJSON_PADDING;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

} // namespace

LineReader::LineReader(QIODevice& device, qint64 longestLine)
    : device_(device), longestLine_(static_cast<std::size_t>(longestLine))
{
}

LineReader::Outcome LineReader::next(std::string_view& line)
{
    std::size_t searched = 0;
    for (;;) {
        const std::size_t length = end_ - begin_;
        const char* const start = buffer_.get() + begin_;
        const void* const feed = length > searched ? std::memchr(start + searched, '\n', length - searched) : nullptr;
        if (feed) {
            const auto found = static_cast<std::size_t>(static_cast<const char*>(feed) - start);
            return give(found, found + 1, line);
        }
        if (length > longestLine_)
            return Outcome::TooLong;
        searched = length;
        if (!fill()) {
            if (failed_)
                return Outcome::Failed;
            return length == 0 ? Outcome::End : give(length, length, line);
        }
    }
}

LineReader::Outcome LineReader::give(std::size_t length, std::size_t withEnd, std::string_view& line)
{
    if (length > longestLine_)
        return Outcome::TooLong;
    line = std::string_view(buffer_.get() + begin_, length);
    begin_ += withEnd;
    if (atStart_ && line.starts_with(kByteOrderMark))
        line.remove_prefix(kByteOrderMark.size());
    atStart_ = false;
    return Outcome::Line;
}

/// Reads another chunk behind what is there; false at the end and after a failure.
bool LineReader::fill()
{
    if (atEnd_)
        return false;
    makeRoom();
    const qint64 count = device_.read(buffer_.get() + end_, static_cast<qint64>(std::min(kChunk, capacity_ - end_)));
    if (count <= 0) {
        atEnd_ = true;
        failed_ = count < 0;
        return false;
    }
    end_ += static_cast<std::size_t>(count);
    std::memset(buffer_.get() + end_, 0, kPadding);
    total_ += count;
    return true;
}

/// The buffer for a begun line of that length. What a line outgrows stays with the process, so a line that outgrows the
/// first buffer gets room for all that may come: only the part that is read into takes memory.
std::size_t LineReader::roomFor(std::size_t length) const
{
    const qint64 rest = device_.isSequential() ? -1 : device_.size() - total_;
    if (length == 0 || rest <= 0)
        return 2 * (length + kChunk);
    return std::min(length + static_cast<std::size_t>(rest), longestLine_) + kChunk;
}

/// Brings the begun line to the front, and takes a larger buffer when a chunk does not fit behind it.
void LineReader::makeRoom()
{
    const std::size_t length = end_ - begin_;
    if (length + kChunk <= capacity_) {
        if (begin_ > 0)
            std::memmove(buffer_.get(), buffer_.get() + begin_, length);
    } else {
        capacity_ = roomFor(length);
        const std::unique_ptr<char[]> old =
            std::exchange(buffer_, std::make_unique_for_overwrite<char[]>(capacity_ + kPadding));
        if (length > 0)
            std::memcpy(buffer_.get(), old.get() + begin_, length);
    }
    begin_ = 0;
    end_ = length;
}

} // namespace inkmacro::recordfile
