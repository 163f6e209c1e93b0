#pragma once

#include "host/kernel/CFxString.h"
#include "targets/Phrase.h"

#include <cstdint>

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

    const inkmacro::Target target;
    /// Depth of the statement being written, four blanks a level.
    std::uint32_t IndentLevel = 0;
    /// Suffix that keeps the local names of one statement apart: raised before use by each statement that has one.
    std::uint32_t UniqueCounter = 0;
};
