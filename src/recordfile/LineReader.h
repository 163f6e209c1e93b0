#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

#include <QtGlobal>

class QIODevice;

namespace inkmacro::recordfile {

/// Gives a device's lines one by one. Memory is the longest line, and a chunk.
class LineReader
{
public:
    enum class Outcome
    {
        Line,
        End,
        TooLong,
        Failed
    };

    LineReader(QIODevice& device, qint64 longestLine);

    /// The next line without its line feed, and without the file's byte-order mark. It lasts until the next call and
    /// has readable bytes behind it, as many as the JSON parser wants.
    Outcome next(std::string_view& line);
    /// Of the device, so far.
    qint64 bytesRead() const { return total_; }

private:
    bool fill();
    void makeRoom();
    std::size_t roomFor(std::size_t length) const;
    Outcome give(std::size_t length, std::size_t withEnd, std::string_view& line);

    QIODevice& device_;
    const std::size_t longestLine_;
    std::unique_ptr<char[]> buffer_;
    std::size_t capacity_ = 0; // without the padding behind it
    std::size_t begin_ = 0;    // of the line to come
    std::size_t end_ = 0;      // of what has been read
    qint64 total_ = 0;
    bool atEnd_ = false;
    bool failed_ = false;
    bool atStart_ = true;
};

} // namespace inkmacro::recordfile
