// Statement groups and comments.

#include "targets/LineEnd.h"
#include "targets/PhrasedConverter.h"

using namespace inkmacro;

Fill PhrasedConverter::fill(const Phrase& phrase) const
{
    return Fill(phrase.in(target_), IndentLevel, LineEnd);
}

Fill PhrasedConverter::fillIndented(const Phrase& phrase) const
{
    return Fill(phrase.in(target_), IndentLevel);
}

static const Phrase blockBegin{"EmitBlockBegin",
                               {
                                   .cpp = "%1{%2",
                                   .cppCom = "%1{%2",
                                   .csharp = "%1{%2",
                                   .vbNet = "%1If 1 Then%2",
                                   .vba = "%1If 1 Then%2",
                               }};

/// A target without groups keeps its level too.
QString PhrasedConverter::EmitBlockBegin()
{
    const QString text = fill(blockBegin);
    if (blockBegin.has(target_))
        ++IndentLevel;
    return text;
}

static const Phrase blockEnd{"EmitBlockEnd",
                             {
                                 .cpp = "%1}%2",
                                 .cppCom = "%1}%2",
                                 .csharp = "%1}%2",
                                 .vbNet = "%1End If%2%2",
                                 .vba = "%1End If%2%2",
                             }};

QString PhrasedConverter::EmitBlockEnd()
{
    if (blockEnd.has(target_))
        --IndentLevel;
    return fill(blockEnd);
}

static const Phrase comment{"EmitComment",
                            {
                                .csharp = "%1//%3%2",
                                .vbNet = "%1'%3%2",
                                .vba = "%1'%3%2",
                            }};

QString PhrasedConverter::EmitComment(const CFxString& text)
{
    return fill(comment).text(text);
}
