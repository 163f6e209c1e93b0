// Changed block definitions, which are made anew of their objects.

#include "host/db/OdDbClasses.h"
#include "objects/blockContents.h"
#include "objects/losses.h"
#include "objects/properties.h"

void ConvertModifiedBlockDefinition(Conversion& conversion, const RecordedObject& object, PropertyList& list,
                                    Statement& text)
{
    const CFxVariant objects = FindProperty(conversion, "Objects", list);
    const CFxVariant description = FindProperty(conversion, "Description", list);
    if (objects.GetType() != CFxVariant::kCollection) {
        if (!description.IsNull())
            LoseProperty(object, "Description", "a block is made anew only when its objects are recorded");
        return;
    }
    BlockContents contents;
    contents.variable = object.name;
    contents.renewed = conversion.names().FindEntry(object.handle) != nullptr;
    contents.description = description.GetString();
    if (const auto record = odrxCast<OdDbBlockTableRecord>(IdOf(object.handle).openObject().get())) {
        contents.name = record->getName();
        contents.origin = record->origin();
    }
    contents.ids = ObjectsOf(objects, HandlesIn::Values);
    text += CreateBlockDefinition(conversion, contents);
}
