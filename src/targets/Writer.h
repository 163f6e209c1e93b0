#pragma once

#include "host/kernel/CFxString.h"
#include "targets/Phrase.h"

#include <cstdint>
#include <functional>
#include <vector>

class QTextStream;

/// What a statement is written with: the target, the depth that it stands at, and the number that keeps its local names
/// apart. One for each conversion; the driver owns it, and every Emit operation takes it first.
class Writer
{
public:
    explicit Writer(inkmacro::Target target) : target(target) {}
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;

    /// The target's words for the phrase with indentation and line end filled in; the values follow.
    inkmacro::Fill fill(const inkmacro::Phrase& phrase) const;
    /// The same for literals in which `%2` is a value already: only the indentation is filled in.
    inkmacro::Fill fillIndented(const inkmacro::Phrase& phrase) const;
    /// The blanks in front of a statement.
    QString indentation() const;

    /// Gives the parts of a text one by one, from 0; an empty one behind the last.
    using Parts = std::function<QString(std::size_t part)>;
    /// Stands in a statement for a text that is too long to be held: its parts are made when the statement is written.
    QString later(Parts parts);
    /// Writes statements, with all that they have kept for later.
    void write(QTextStream& stream, const QString& statements) const;
    /// Forgets what has been kept, once no statement stands for it any more.
    void forgetLater() { later_.clear(); }

    const inkmacro::Target target;
    /// Depth of the statement being written, four blanks a level.
    std::uint32_t IndentLevel = 0;
    /// Suffix that keeps the local names of one statement apart: raised before use by each statement that has one.
    std::uint32_t UniqueCounter = 0;

private:
    std::vector<Parts> later_;
};
