// Statement groups and comments.

#include "statements/blocks.h"

using namespace inkmacro;

static const Phrase blockBegin{"EmitBlockBegin",
                               {
                                   .cpp = "%1{%2",
                                   .cppCom = "%1{%2",
                                   .csharp = "%1{%2",
                                   .vbNet = "%1If 1 Then%2",
                                   .vba = "%1If 1 Then%2",
                               }};

Statement EmitBlockBegin(Writer& writer)
{
    Statement text = blockBeginAt(writer, writer.IndentLevel);
    enterBlock(writer);
    return text;
}

Statement blockBeginAt(const Writer& writer, std::uint32_t level)
{
    return writer.fillPlain(blockBegin).indent(level).lineEnd();
}

bool hasBlocks(const Writer& writer)
{
    return blockBegin.has(writer.target);
}

void enterBlock(Writer& writer)
{
    if (hasBlocks(writer))
        ++writer.IndentLevel;
}

static const Phrase blockEnd{"EmitBlockEnd",
                             {
                                 .cpp = "%1}%2",
                                 .cppCom = "%1}%2",
                                 .csharp = "%1}%2",
                                 .vbNet = "%1End If%2%2",
                                 .vba = "%1End If%2%2",
                             }};

Statement EmitBlockEnd(Writer& writer)
{
    if (hasBlocks(writer))
        writer.lowerLevel();
    return writer.fill(blockEnd);
}

static const Phrase objectModified{"EmitObjectModifiedComment",
                                   {
                                       .cpp = "%1// %3 object modified%2",
                                       .cppCom = "%1// %3 object modified%2",
                                       .csharp = "%1// %3 object modified%2",
                                       .vbNet = "%1' %3 object modified%2",
                                       .vba = "%1' %3 object modified%2",
                                       .python = "%1# %3 object modified%2",
                                   }};

Statement EmitObjectModifiedComment(Writer& writer, const CFxString& className)
{
    return writer.fill(objectModified).comment(className);
}
