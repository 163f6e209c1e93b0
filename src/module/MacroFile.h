#pragma once

#include "module/WriteBehind.h"
#include "statements/Statement.h"
#include "targets/CommandFunctions.h"

#include <QString>

#include <vector>

class QTextStream;

/// Writes the macro file: makes lines of statements, gives their faults the lines that they stand on, and in a repaired
/// macro tells locals apart that have one name. A host that wants to know of which action they are is told so. Uses a
/// second thread, which the stream belongs to until finish() has returned or this is destroyed.
class MacroFile
{
public:
    /// `path` is the file's. The notes of faults hold its name. With `functions` statements are held until their
    /// command ends, outside of commands until the next one begins.
    MacroFile(QTextStream& stream, const QString& path, inkmacro::Target target, bool repairs, bool notesFaults,
              inkmacro::CommandFunctions* functions = nullptr);
    MacroFile(const MacroFile&) = delete;
    MacroFile& operator=(const MacroFile&) = delete;

    /// What is written until endAction() is of that action of the recording's top level.
    void beginAction(std::uint32_t number) { action_ = number; }
    /// What is written next is that part of the action, or of that child of the command that it is.
    void begin(CFxMacroPart part, std::uint32_t child = inkmacro::Origin::kNone, const OdDbHandle& made = {})
    {
        if (notesLines_ || functions_)
            next_ = {part, action_, child, made};
    }
    /// Whether commands become functions.
    bool makesFunctions() const { return functions_ != nullptr; }
    /// What is written until endCommand() is the function of that command. Only where commands become functions.
    void beginCommand(inkmacro::RecordedCommand command);
    void endCommand();
    /// No action comes any more, but the foot may.
    void endActions();
    /// Writes statements with all that is made late.
    void write(const Statement& statements);
    /// Writes the declarations of objects, each on lines of its own. Their names are numbered through the macro, so
    /// that none is declared twice.
    void writeDeclarations(const Statement& declarations);
    /// Writes the head, or behind all statements the foot.
    void writeFrame(const Statement& frame);
    /// What has been written since the last call makes sense by itself.
    void endAction();
    /// Writes what is left.
    void finish();

private:
    using Kind = inkmacro::MacroText::Kind;

    void write(const Statement& statements, Kind kind);
    void hold(const Statement& statements);
    void writeFunction();
    void put(Kind kind, QStringView text);
    void put(const inkmacro::Fault& fault) { behind_.noteFault(fault); }
    void put(const inkmacro::LateText& text);
    void note(const inkmacro::MacroText::Found& found);
    void noteLines(const inkmacro::OriginRun& run);
    void endLines();

    const QString name_;
    inkmacro::CommandFunctions* const functions_;
    /// The present command, or the actions since the last one.
    inkmacro::RecordedCommand held_{.name = {}, .isCommand = false};
    std::vector<inkmacro::Origin> heldOrigins_; ///< one an action
    const bool notesLines_;
    QTextStream& stream_;
    const bool divides_;
    inkmacro::MacroText text_;
    inkmacro::WriteBehind behind_;
    std::uint32_t action_ = 0;
    inkmacro::Origin next_;    ///< of what is written next
    inkmacro::Origin written_; ///< of what has been written last
    /// The last ones that are known, to which more may belong.
    CFxMacroLines lines_{CFxMacroPart::kFrame, 1, 0, {}, {}};
    inkmacro::Origin linesOrigin_;
};
