#include "recordfile/LineParser.h"

#include "recordfile/foreignForm.h"
#include "recordfile/jsonFaults.h"

#include <QIODevice>

#include <new>

namespace inkmacro::recordfile {

namespace {

constexpr std::size_t kLongLine = 1024 * 1024;
constexpr std::size_t kOrdinaryLine = 64 * 1024;

bool isBlank(std::string_view line)
{
    return line.find_first_not_of(" \t\r") == std::string_view::npos;
}

/// Of a line that begins an object and goes on in the next one.
QString formatHint(std::string_view line)
{
    const std::size_t first = line.find_first_not_of(" \t\r");
    const std::size_t last = line.find_last_not_of(" \t\r");
    const auto isOneOf = [&](std::size_t at, std::string_view letters) {
        return at != std::string_view::npos && letters.find(line[at]) != std::string_view::npos;
    };
    const bool goesOn = isOneOf(first, "{[") && isOneOf(last, "{[,:");
    return goesOn ? "; a recording has an object a line, and inkmacro format writes it so" : QString();
}

} // namespace

void LineBatch::dropLongLines()
{
    for (ParsedLine& line : lines)
        if (line.document.capacity() > kOrdinaryLine)
            line.document = simdjson::dom::document();
    isLarge = false;
}

LineParser::LineParser(QIODevice& device, qint64 longestLine, std::size_t batchBytes)
    : device_(device), lines_(device, longestLine), batchBytes_(batchBytes)
{
}

void LineParser::fill(LineBatch& batch)
{
    batch.count = 0;
    batch.dropLongLines();
    for (std::size_t bytes = 0; bytes < batchBytes_;) {
        std::string_view line;
        const LineReader::Outcome outcome = lines_.next(line);
        ++number_;
        if (outcome != LineReader::Outcome::Line) {
            const bool failed = outcome == LineReader::Outcome::Failed;
            batch.ending = {outcome, number_, failed ? device_.errorString() : QString()};
            break;
        }
        const QString foreign = number_ == 1 ? foreignForm(line) : QString();
        if (!foreign.isEmpty()) {
            batch.ending = {LineReader::Outcome::Failed, number_, foreign};
            break;
        }
        bytes += line.size();
        if (!isBlank(line))
            parse(line, batch);
    }
    batch.bytesRead = lines_.bytesRead();
}

void LineParser::parse(std::string_view text, LineBatch& batch)
{
    if (batch.count == batch.lines.size())
        batch.lines.emplace_back();
    ParsedLine& line = batch.lines[batch.count++];
    line.number = number_;
    line.fault = QString();
    if (const auto code = parser_.parse_into_document(line.document, text.data(), text.size(), false).error())
        line.fault = explainFault(code, text) + formatHint(text);
    if (text.size() <= kLongLine)
        return;
    batch.isLarge = true;
    // What the parser has noted beside the document takes as much memory as what is made of it now.
    if (parser_.allocate(kLongLine) != simdjson::SUCCESS)
        throw std::bad_alloc();
}

} // namespace inkmacro::recordfile
