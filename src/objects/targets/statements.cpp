// What all object statements share.

#include "objects/targets/statements.h"

using namespace inkmacro;

static const Phrase objectModified{"EmitObjectModifiedComment",
                                   {
                                       .cpp = "%1// %3 object modified%2",
                                       .cppCom = "%1// %3 object modified%2",
                                       .csharp = "%1// %3 object modified%2",
                                       .vbNet = "%1' %3 object modified%2",
                                       .vba = "%1' %3 object modified%2",
                                   }};

Statement EmitObjectModifiedComment(Writer& writer, const CFxString& className)
{
    return writer.fill(objectModified).text(className);
}
