#include "module/MacroFile.h"

#include "statements/Fault.h"
#include "targets/projectFiles.h"

#include <QFileInfo>

#include <variant>

using namespace inkmacro;

MacroFile::MacroFile(QTextStream& stream, const QString& path, Target target, bool repairs, bool notesFaults)
    : name_(QFileInfo(path).fileName()),
      stream_(stream),
      divides_(MacroText::divides(target, repairs)),
      text_(target, repairs, notesFaults, QFileInfo(path).path()),
      behind_(text_, stream)
{
}

void MacroFile::write(const Statement& statements)
{
    write(statements, Kind::Statements);
}

void MacroFile::writeDeclarations(const Statement& declarations)
{
    write(declarations, declarations.hasNotes() ? Kind::Statements : Kind::Declarations);
}

void MacroFile::write(const Statement& statements, Kind kind)
{
    const QStringView text(statements.text());
    qsizetype from = 0;
    for (const StatementNote& note : statements.notes()) {
        put(kind, text.mid(from, note.offset - from));
        from = note.offset;
        if (const auto* const fault = std::get_if<const Fault*>(&note.what))
            put(**fault);
        else
            put(std::get<LateText>(note.what));
    }
    put(kind, text.mid(from));
}

void MacroFile::put(Kind kind, QStringView text)
{
    if (!text.isEmpty())
        note(behind_.write(kind, text));
}

void MacroFile::put(const LateText& text)
{
    QString part = text(0);
    for (std::size_t number = 1; !part.isEmpty(); ++number) {
        put(Kind::Statements, part);
        part = text(number);
    }
}

void MacroFile::endAction()
{
    if (divides_)
        behind_.endAction();
}

void MacroFile::finish()
{
    note(behind_.finish());
    text_.finish(stream_);
}

void MacroFile::note(const std::vector<MacroText::FoundFault>& faults) const
{
    for (const auto& [fault, line] : faults)
        noteFault(*fault, name_, line);
}
