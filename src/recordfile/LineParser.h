#pragma once

#include "recordfile/LineReader.h"

#include <QString>

#include <simdjson.h>

#include <optional>
#include <vector>

namespace inkmacro::recordfile {

/// A line that is not blank, as the JSON parser sees it.
struct ParsedLine
{
    qint64 number = 0; ///< in the file, from 1
    simdjson::dom::document document;
    QString fault; ///< why it is no JSON; null: it is
};

/// Lines in the order of the file. Its documents are filled again and again.
struct LineBatch
{
    /// What stands behind the last line: more lines, the end of the file, or a line that cannot be read.
    struct Ending
    {
        LineReader::Outcome outcome;
        qint64 number;  ///< of the line that is not there
        QString reason; ///< why it could not be read, when that is so
    };

    std::vector<ParsedLine> lines; ///< the first `count` of them
    std::size_t count = 0;
    qint64 bytesRead = 0; ///< of the file, so far
    std::optional<Ending> ending;
    /// Some line takes so much memory that no other should be parsed as long as it is there.
    bool isLarge = false;

    /// Gives back what no ordinary line needs.
    void dropLongLines();
};

/// Reads a device's lines and parses them. Belongs to one thread at a time.
class LineParser
{
public:
    /// A batch gets lines until they have so many bytes.
    LineParser(QIODevice& device, qint64 longestLine, std::size_t batchBytes);

    void fill(LineBatch& batch);

private:
    void parse(std::string_view text, LineBatch& batch);

    QIODevice& device_;
    LineReader lines_;
    const std::size_t batchBytes_;
    simdjson::dom::parser parser_;
    qint64 number_ = 0; ///< of the last line
};

} // namespace inkmacro::recordfile
