// Changed block definitions, which are made anew of their objects.

#include "host/db/OdDbClasses.h"
#include "module/CFxConverterIWAPIImpl.h"
#include "objects/CFxConverterIWAPIObject.h"
#include "objects/blockContents.h"

void CFxConverterIWAPIObject::ConvertModifiedBlockDefinition(PropertyList& list, const CFxString& name, QString& text)
{
    const CFxValueContext context = driver.GetContext();
    const CFxVariant objects = FindProperty("Objects", list, context);
    const CFxVariant description = FindProperty("Description", list, context);
    if (objects.GetType() != CFxVariant::kCollection) {
        if (!description.IsNull())
            LoseProperty("Description", "a block is made anew only when its objects are recorded");
        return;
    }
    BlockContents contents;
    contents.variable = name;
    contents.renewed = driver.FindEntry(changedHandle) != nullptr;
    contents.description = description.GetString();
    if (const auto record = odrxCast<OdDbBlockTableRecord>(IdOf(changedHandle).openObject().get())) {
        contents.name = record->getName();
        contents.origin = record->origin();
    }
    contents.ids = ObjectsOf(objects, HandlesIn::Values);
    text += CreateBlockDefinition(contents);
}
