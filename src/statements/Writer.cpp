#include "statements/Writer.h"

#include "statements/RecordingState.h"
#include "statements/quoting.h"

#include <utility>

using namespace inkmacro;

Writer::Writer(Target target)
    : target(target), repairs(!isRecorders(target) || RepairsMacros()), notesFaults(!repairs && NotesFaults())
{
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

Statement Writer::quoted(const QString& text) const
{
    if (!repairs)
        return breaksQuotes(text, text, target) ? faulty(text, brokenQuotes) : text;
    QString escaped;
    appendQuoted(escaped, text, target);
    return escaped;
}

Statement Writer::faulty(Statement statement, const Fault& fault) const
{
    if (notesFaults && !statement.isEmpty())
        statement.addFault(fault);
    return statement;
}

Statement Writer::mended(Statement statement, const Fault& fault, Statement repaired) const
{
    return repairs ? std::move(repaired) : faulty(std::move(statement), fault);
}
