// Added layers.

#include "host/db/OdDbClasses.h"
#include "objects/AddedObject.h"
#include "objects/added/readers.h"
#include "objects/targets/styles.h"

Statement ReadLayer(AddedObject& added)
{
    const CFxVariant name = added.take("Name");
    CFxString layer = name.GetString();
    if (name.IsNull())
        if (const auto record = added.open<OdDbLayerTableRecord>())
            layer = record->getName();
    Statement text = EmitCreateLayer(added.writer, layer, added.name);
    if (added.takeText("ActivateLayer") == ShownWord("Yes"))
        text += EmitActivateLayer(added.writer, LayerOf(added.name));
    return text;
}
