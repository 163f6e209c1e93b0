// Added block references and definitions, pictures and shapes.

#include "objects/targets/blocks.h"

#include "host/db/OdDbClasses.h"
#include "objects/AddedObject.h"
#include "objects/added/readers.h"
#include "objects/blockContents.h"
#include "objects/targets/customData.h"

namespace {

OdArray<OdDbObjectId> entitiesOf(const OdDbBlockTableRecord& record)
{
    OdArray<OdDbObjectId> ids;
    for (const OdDbObjectIteratorPtr entity = record.newIterator(); !entity->done(); entity->step())
        ids.append(entity->objectId());
    return ids;
}

CFxString descriptionOf(const Writer& writer, const OdDbBlockTableRecord& record)
{
    CFxString description = record.comments();
    if (!writer.repairs)
        description.replace("\n", "\\n");
    return description;
}

/// A revision cloud is a block without a name, which no drawing has before the macro runs.
Statement defineCloud(const AddedObject& added, const OdDbBlockTableRecord& record)
{
    return CreateBlockDefinition(added.conversion,
                                 {added.name, CFxString(anonymousBlockName), false, descriptionOf(added.writer, record),
                                  record.origin(), entitiesOf(record)});
}

/// An external reference is inserted with two factors, and never rotated.
void loseRestOfPlacement(const AddedObject& added, const Placement& placement)
{
    if (placement.scales.sz != 1)
        LoseProperty(added.object, "Scale Z", "the insertion of an external reference does not take it");
    if (placement.rotation != 0)
        LoseProperty(added.object, "Rotation", "the insertion of an external reference does not take it");
}

Statement setAttributes(const AddedObject& added, const OdDbBlockReference& reference)
{
    Statement text;
    for (const OdDbObjectIteratorPtr at = reference.attributeIterator(); !at->done(); at->step()) {
        const auto attribute = odrxCast<OdDbAttribute>(at->objectId().openObject().get());
        if (!attribute || attribute->tag().isEmpty())
            continue;
        text += EmitBlockAttributeValue(added.writer, added.name, "Value", attribute->tag(), attribute->textString());
        added.conversion.writtenAttributes.insert_or_assign(at->objectId().getHandle(), attribute->textString());
    }
    return text;
}

} // namespace

Statement ReadBlockReference(AddedObject& added)
{
    CFxString block = added.takeText("Name");
    Placement placement;
    placement.position = added.takePoint("Position X", "Position Y", "Position Z");
    placement.scales.sx = added.takeReal("Scale X", 1.0);
    placement.scales.sy = added.takeReal("Scale Y", 1.0);
    placement.scales.sz = added.takeReal("Scale Z", 1.0);
    placement.rotation = added.takeReal("Rotation", 0.0);

    const auto reference = added.open<OdDbBlockReference>();
    const OdDbObjectPtr definition = reference ? reference->blockTableRecord().openObject() : OdDbObjectPtr();
    const auto record = odrxCast<OdDbBlockTableRecord>(definition.get());
    const OdResBufPtr cloud = record ? record->xData(cloudApplication) : OdResBufPtr();
    Statement text;
    if (cloud) {
        block = CFxString(anonymousBlockName);
        text = defineCloud(added, *record);
    }
    if (record && record->isFromExternalReference()) {
        loseRestOfPlacement(added, placement);
        text += EmitInsertExternalReference(added.writer, record->pathName(), placement.position, placement.scales,
                                            added.name);
    } else {
        text += EmitInsertBlock(added.writer, block, placement, added.name);
    }
    if (cloud)
        text += EmitCustomData(added.writer, added.name, cloud);
    return reference ? text + setAttributes(added, *reference) : text;
}

/// Without a record of the entities they are those of the drawing; but sheets and external references are not defined
/// by their entities.
Statement ReadBlockDefinition(AddedObject& added)
{
    const CFxVariant name = added.take("Name", forms::text, "the drawing's");
    const CFxVariant objects = added.take("Objects", forms::handlesInValues, "the drawing's");
    const CFxVariant description = added.take("Description", forms::text, "the drawing's");
    const auto record = added.open<OdDbBlockTableRecord>();
    if (!description.IsNull())
        added.conversion.blockDescriptions.insert_or_assign(added.object.handle, description.GetString());

    BlockContents contents;
    contents.variable = added.name;
    contents.name = name.GetString();
    contents.description = description.GetString();
    if (record) {
        contents.origin = record->origin();
        if (name.IsNull())
            contents.name = record->getName();
        if (description.IsNull())
            contents.description = descriptionOf(added.writer, *record);
    } else if (!objects.IsNull()) {
        AssumeProperty(added.object, "origin", "the drawing does not have the block, which gives 0,0,0");
    }
    if (objects.GetType() == CFxVariant::kCollection)
        contents.ids = ObjectsOf(objects, HandlesIn::Values);
    else if (record && !record->isLayout() && !record->isFromExternalReference())
        contents.ids = entitiesOf(*record);
    else
        return record ? QString() : added.lost("neither a record nor the drawing tells what it is made of");
    return CreateBlockDefinition(added.conversion, contents);
}

Statement ReadPicture(AddedObject& added)
{
    const CFxString path = added.takeText("Path");
    const OdGePoint3d position = added.takePoint("Position X", "Position Y", "Position Z");
    const double scale = added.takeReal("Scale", 1.0);
    const double rotation = added.takeReal("Rotation", 0.0);
    return EmitInsertPicture(added.writer, path, position, scale, rotation, added.name);
}

Statement ReadShape(AddedObject& added)
{
    const OdGePoint3d position = added.takePoint("Position X", "Position Y", "Position Z");
    const CFxString shape = added.takeText("Name");
    const double size = added.takeReal("Size", 0.0);
    const double rotation = added.takeReal("Rotation", 0.0);
    return EmitInsertShape(added.writer, shape, position, size, rotation, added.name);
}
