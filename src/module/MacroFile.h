#pragma once

#include "module/WriteBehind.h"
#include "statements/Statement.h"

#include <QString>

class QTextStream;

/// Writes the macro file: makes lines of statements, gives their faults the lines that they stand on, and in a repaired
/// macro tells locals apart that have one name. Uses a second thread, which the stream belongs to until finish() has
/// returned or this is destroyed.
class MacroFile
{
public:
    /// `path` is the file's. The notes of faults hold its name.
    MacroFile(QTextStream& stream, const QString& path, inkmacro::Target target, bool repairs, bool notesFaults);
    MacroFile(const MacroFile&) = delete;
    MacroFile& operator=(const MacroFile&) = delete;

    /// Writes statements with all that is made late.
    void write(const Statement& statements);
    /// Writes the declarations of objects, each on lines of its own. Their names are numbered through the macro, so
    /// that none is declared twice.
    void writeDeclarations(const Statement& declarations);
    /// Writes the head, or behind all statements the foot.
    void writeFrame(const Statement& frame) { write(frame, Kind::Frame); }
    /// What has been written since the last call makes sense by itself.
    void endAction();
    /// Writes what is left.
    void finish();

private:
    using Kind = inkmacro::MacroText::Kind;

    void write(const Statement& statements, Kind kind);
    void put(Kind kind, QStringView text);
    void put(const inkmacro::Fault& fault) { behind_.noteFault(fault); }
    void put(const inkmacro::LateText& text);
    void note(const std::vector<inkmacro::MacroText::FoundFault>& faults) const;

    const QString name_;
    QTextStream& stream_;
    const bool divides_;
    inkmacro::MacroText text_;
    inkmacro::WriteBehind behind_;
};
