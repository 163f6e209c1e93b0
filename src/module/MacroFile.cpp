#include "module/MacroFile.h"

#include "host/kernel/CFxServices.h"
#include "statements/Fault.h"
#include "targets/projectFiles.h"

#include <QFileInfo>

#include <utility>
#include <variant>

using namespace inkmacro;

MacroFile::MacroFile(QTextStream& stream, const QString& path, Target target, bool repairs, bool notesFaults,
                     CommandFunctions* functions)
    : name_(QFileInfo(path).fileName()),
      functions_(functions),
      notesLines_(GetFxSystemServices()->Notes().WantsLines()),
      stream_(stream),
      divides_(MacroText::divides(target, repairs)),
      text_(target, repairs, notesFaults, notesLines_, QFileInfo(path).path()),
      behind_(text_, stream)
{
}

void MacroFile::beginCommand(RecordedCommand command)
{
    writeFunction();
    held_ = std::move(command);
}

void MacroFile::endCommand()
{
    writeFunction();
}

void MacroFile::endActions()
{
    if (functions_)
        writeFunction();
}

void MacroFile::hold(const Statement& statements)
{
    if (QStringView(statements.text()).trimmed().isEmpty())
        return;
    // Outside of commands each action has a number of its own.
    const std::uint32_t child = held_.isCommand ? next_.child : static_cast<std::uint32_t>(held_.actions.size());
    held_.actions.push_back({child, HeldStatement(statements)});
    heldOrigins_.push_back(next_);
}

void MacroFile::writeFunction()
{
    const RecordedCommand command = std::exchange(held_, {.name = {}, .isCommand = false});
    const std::vector<Origin> origins = std::exchange(heldOrigins_, {});
    if (command.actions.empty() && command.prompts.empty())
        return;
    const std::uint32_t action = origins.empty() ? action_ : origins.front().action;
    functions_->write(command, [&](int number, const QString& lines) {
        // What holds actions together that are in no command is none of theirs.
        const bool isFrame = number == CommandFunctions::kBesideFunction || !command.isCommand;
        next_ = number >= 0
                    ? origins[static_cast<std::size_t>(number)]
                    : Origin{isFrame ? CFxMacroPart::kFrame : CFxMacroPart::kBlock, isFrame ? Origin::kNone : action};
        put(Kind::Statements, lines);
    });
}

void MacroFile::write(const Statement& statements)
{
    if (functions_)
        hold(statements);
    else
        write(statements, Kind::Statements);
}

void MacroFile::writeFrame(const Statement& frame)
{
    next_ = {};
    write(frame, Kind::Frame);
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
        else if (const auto* const late = std::get_if<LateText>(&note.what))
            put(*late);
    }
    put(kind, text.mid(from));
}

void MacroFile::put(Kind kind, QStringView text)
{
    if (text.isEmpty())
        return;
    if (!(next_ == written_))
        behind_.begin(written_ = next_);
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
    text_.finish(stream_, notesLines_ ? [this](const OriginRun& run) { noteLines(run); } : OriginSink());
    note(text_.take());
    endLines();
}

void MacroFile::note(const MacroText::Found& found)
{
    for (const auto& [fault, line] : found.faults)
        noteFault(*fault, name_, line);
    for (const OriginRun& run : found.lines)
        noteLines(run);
}

void MacroFile::noteLines(const OriginRun& run)
{
    const auto& [origin, count] = run;
    if (!(origin == linesOrigin_)) {
        endLines();
        linesOrigin_ = origin;
        lines_.part = origin.part;
        lines_.first = lines_.last + 1;
        lines_.made = origin.made;
        lines_.where.clear();
        for (const std::uint32_t number : {origin.action, origin.child})
            if (number != Origin::kNone)
                lines_.where.push_back(number);
    }
    lines_.last += count;
}

void MacroFile::endLines()
{
    if (lines_.last >= lines_.first)
        GetFxSystemServices()->Notes().NoteLines(lines_);
}
