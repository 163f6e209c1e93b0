// Added hatches. A custom action of the same command inserts them; here they get what its call has no argument for.

#include "objects/hatches.h"

#include "objects/AddedObject.h"
#include "objects/added/readers.h"
#include "objects/targets/hatchPatterns.h"

Statement ReadHatch(AddedObject& added)
{
    CFxString pattern;
    const Statement fetch = EmitGetHatchPattern(added.writer, added.name, pattern);
    const Statement settings =
        ConvertHatchCommonProperties(added.writer, pattern, [&](const char* tag) { return added.take(tag); });
    return settings.isEmpty() ? Statement() : fetch + settings;
}
