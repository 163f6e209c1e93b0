#include "statements/Writer.h"

#include "host/kernel/CFxServices.h"
#include "statements/Marks.h"
#include "statements/RecordingState.h"
#include "statements/quoting.h"

#include <QTextStream>

#include <algorithm>
#include <utility>

using namespace inkmacro;

Writer::Writer(Target target) : target(target), repairs(RepairsMacros()), text_(target, repairs)
{
}

FillMode Writer::mode() const
{
    return {target, repairs, notesFaults_ ? &marked_ : nullptr};
}

Fill Writer::fillPlain(const Phrase& phrase) const
{
    const Mend* const mend = phrase.mend(target);
    if (!mend)
        return Fill(phrase.in(target), mode());
    return repairs ? Fill(mend->words(), mode()) : Fill(phrase.in(target), mode(), mend);
}

Fill Writer::fill(const Phrase& phrase) const
{
    Fill statement = fillPlain(phrase);
    statement.indent(IndentLevel).lineEnd();
    return statement;
}

Fill Writer::fillIndented(const Phrase& phrase) const
{
    Fill statement = fillPlain(phrase);
    statement.indent(IndentLevel);
    return statement;
}

QString Writer::indentation() const
{
    return QString(Fill::indentationWidth(IndentLevel), ' ');
}

QString Writer::quoted(const QString& text) const
{
    if (!repairs)
        return breaksQuotes(text, target) ? faulty(text, brokenQuotes) : text;
    QString escaped;
    appendQuoted(escaped, text, target);
    return escaped;
}

QString Writer::faulty(QString statement, const Fault& fault) const
{
    if (notesFaults_ && !repairs && !statement.isEmpty()) {
        insertMark(statement, {Mark::Kind::Fault, fault.number()});
        marked_ = true;
    }
    return statement;
}

QString Writer::later(Parts parts)
{
    later_.push_back(std::move(parts));
    marked_ = true;
    return Mark{Mark::Kind::Later, later_.size() - 1}.text();
}

void Writer::noteFaults()
{
    notesFaults_ = true;
    text_.noteFaults();
}

void Writer::put(QTextStream& stream, MacroText::Kind kind, QStringView text)
{
    if (text.isEmpty())
        return;
    if (behind_)
        return note(behind_->write(kind, text));
    text_.write(stream, kind, text);
    note(text_.takeFaults());
}

void Writer::put(const Fault& fault)
{
    if (behind_)
        behind_->noteFault(fault);
    else
        text_.noteFault(fault);
}

void Writer::writeDeclarations(QTextStream& stream, const QString& declarations)
{
    if (repairs || (marked_ && Mark::find(declarations, 0)))
        return write(stream, declarations);
    put(stream, MacroText::Kind::Declarations, declarations);
}

void Writer::finish(QTextStream& stream)
{
    if (behind_)
        note(behind_->finish());
    text_.finish(stream);
}

void Writer::write(QTextStream& stream, const QString& statements)
{
    const QStringView text(statements);
    qsizetype from = 0;
    auto found = marked_ ? Mark::find(text, 0) : std::nullopt;
    for (; found; found = Mark::find(text, from)) {
        put(stream, MacroText::Kind::Statements, text.mid(from, found->at - from));
        from = found->at + Mark::length;
        if (found->mark.kind == Mark::Kind::Fault) {
            put(*Fault::all().at(found->mark.number));
            continue;
        }
        const Parts& parts = later_.at(found->mark.number);
        QString part = parts(0);
        for (std::size_t number = 1; !part.isEmpty(); ++number) {
            put(stream, MacroText::Kind::Statements, part);
            part = parts(number);
        }
    }
    put(stream, MacroText::Kind::Statements, text.mid(from));
}

void Writer::note(const std::vector<MacroText::FoundFault>& faults) const
{
    for (const auto& [fault, line] : faults)
        GetFxSystemServices()->Notes().NoteFault([&, fault = fault, line = line] {
            return CFxFaultNote{fault->operation(), fault->reason(), file, static_cast<std::uint32_t>(line),
                                fault->mended()};
        });
}
