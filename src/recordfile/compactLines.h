#pragma once

#include <QByteArray>

#include <optional>

namespace inkmacro {

/// A text of JSON as lines of a recording, each value on one of its own and without blanks: values that stand behind
/// one another on as many lines as they are written, or the items of one list. Numbers and texts stay as they are
/// written.
struct CompactLines
{
    QByteArray lines;
    /// The line of the text where what is wrong begins, from 1; nothing when all of it is JSON.
    std::optional<qint64> wrongLine;
    QString reason;
};
CompactLines compactLines(const QByteArray& json);

} // namespace inkmacro
