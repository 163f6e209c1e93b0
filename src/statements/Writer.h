#pragma once

#include "host/db/OdDbHandle.h"
#include "host/kernel/CFxString.h"
#include "statements/Fault.h"
#include "statements/Statement.h"

#include <algorithm>
#include <cstdint>
#include <map>

/// What a statement is filled with: the target, the depth that it stands at, and the number that keeps its local names
/// apart. One for each conversion; every Emit operation takes it first.
class Writer
{
public:
    explicit Writer(inkmacro::Target target);
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;

    /// The target's words for the phrase with indentation and line end filled in; the values follow.
    inkmacro::Fill fill(const inkmacro::Phrase& phrase) const;
    /// The same for literals in which `%2` is a value already: only the indentation is filled in.
    inkmacro::Fill fillIndented(const inkmacro::Phrase& phrase) const;
    /// The words of a frame, which bring their own indentation.
    inkmacro::Fill fill(const inkmacro::Template& words) const { return inkmacro::Fill(&words, mode()); }
    /// The target's words for the phrase, with nothing filled in.
    inkmacro::Fill fillPlain(const inkmacro::Phrase& phrase) const;
    /// The blanks in front of a statement.
    QString indentation() const;

    /// A text for a place that its literal has no quotes around, but the values next to it: in a repaired macro
    /// escaped, in any other with a note when it breaks them.
    Statement quoted(const QString& text) const;
    /// The statement with a note that it has the fault, which a repaired macro has not: there it stays as it is.
    Statement faulty(Statement statement, const inkmacro::Fault& fault) const;
    /// The same, and in a repaired macro what stands in its place there: another statement, or none.
    Statement mended(Statement statement, const inkmacro::Fault& fault, Statement repaired = {}) const;

    const inkmacro::Target target;
    /// Whether the macro is written without the faults that its target is known to reject.
    const bool repairs;
    /// Whether anybody hears of the faults that statements have.
    const bool notesFaults;
    /// Depth of the statement being written, four blanks a level.
    std::uint32_t IndentLevel = 0;
    /// Not below 0: statements may give back more levels than there are.
    void lowerLevel(std::uint32_t by = 1) { IndentLevel -= std::min(by, IndentLevel); }
    /// Whether a sheet is active where the statement being written runs, and not the model.
    bool onSheet = false;
    /// Suffix that keeps the local names of one statement apart: raised before use by each statement that has one.
    std::uint32_t UniqueCounter = 0;
    /// What a repaired macro has renamed so far, which statements behind that have to find under its new name.
    std::map<OdDbHandle, CFxString> newNames;
    /// Whether places are noted that the user's answers may stand at.
    bool notesAnswerable = false;

private:
    inkmacro::FillMode mode() const { return {target, repairs, notesFaults, notesAnswerable}; }
};
