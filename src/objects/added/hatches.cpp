// Added hatches. A custom action of the same command inserts them; here they get what its call has no argument for.

#include "objects/hatches.h"

#include "objects/AddedObject.h"
#include "objects/added/readers.h"
#include "objects/targets/hatchPatterns.h"

QString ReadHatch(AddedObject& added)
{
    CFxString pattern;
    const QString fetch = EmitGetHatchPattern(added.writer, added.name, pattern);
    const QString settings =
        ConvertHatchCommonProperties(added.writer, pattern, [&](const char* tag) { return added.take(tag); });
    return settings.isEmpty() ? QString() : fetch + settings;
}
