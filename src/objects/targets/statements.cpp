// What all object statements share.

#include "frame/CFxConverterIWAPIImpl.h"
#include "objects/targets/PhrasedObjectConverter.h"
#include "targets/LineEnd.h"
#include "targets/texts.h"

using namespace inkmacro;

Fill PhrasedObjectConverter::fill(const Phrase& phrase) const
{
    return Fill(phrase.in(target_), Driver().IndentLevel, LineEnd);
}

Fill PhrasedObjectConverter::fillIndented(const Phrase& phrase) const
{
    return Fill(phrase.in(target_), Driver().IndentLevel);
}

CFxString PhrasedObjectConverter::EscapeText(const CFxString& text) const
{
    return escapeText(target_, text);
}

/// No path writes this one: an added object gets no comment.
static const Phrase objectAdded{"EmitObjectAddedComment",
                                {
                                    .cpp = "%1// %3 object added%2",
                                    .cppCom = "%1// %3 object added%2",
                                    .csharp = "%1// %3 object added%2",
                                    .vbNet = "%1' %3 object added%2",
                                    .vba = "%1' %3 object added%2",
                                }};

QString PhrasedObjectConverter::EmitObjectAddedComment(const CFxString& className)
{
    return fill(objectAdded).text(className);
}

static const Phrase objectModified{"EmitObjectModifiedComment",
                                   {
                                       .cpp = "%1// %3 object modified%2",
                                       .cppCom = "%1// %3 object modified%2",
                                       .csharp = "%1// %3 object modified%2",
                                       .vbNet = "%1' %3 object modified%2",
                                       .vba = "%1' %3 object modified%2",
                                   }};

QString PhrasedObjectConverter::EmitObjectModifiedComment(const CFxString& className)
{
    return fill(objectModified).text(className);
}
