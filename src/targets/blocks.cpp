// Statement groups and comments.

#include "targets/blocks.h"

#include "targets/LineEnd.h"

using namespace inkmacro;

static const Phrase blockBegin{"EmitBlockBegin",
                               {
                                   .cpp = "%1{%2",
                                   .cppCom = "%1{%2",
                                   .csharp = "%1{%2",
                                   .vbNet = "%1If 1 Then%2",
                                   .vba = "%1If 1 Then%2",
                               }};

/// A target without groups keeps its level too.
QString EmitBlockBegin(Writer& writer)
{
    const QString text = writer.fill(blockBegin);
    if (blockBegin.has(writer.target))
        ++writer.IndentLevel;
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

QString EmitBlockEnd(Writer& writer)
{
    if (blockEnd.has(writer.target))
        --writer.IndentLevel;
    return writer.fill(blockEnd);
}
