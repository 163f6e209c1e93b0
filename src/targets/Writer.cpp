#include "targets/Writer.h"

#include "targets/LineEnd.h"

using namespace inkmacro;

Fill Writer::fill(const Phrase& phrase) const
{
    return Fill(phrase.in(target), IndentLevel, LineEnd);
}

Fill Writer::fillIndented(const Phrase& phrase) const
{
    return Fill(phrase.in(target), IndentLevel);
}

QString Writer::indentation() const
{
    return QString(Fill::indentationWidth(IndentLevel), ' ');
}
