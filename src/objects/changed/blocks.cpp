// Changed pictures and block references, and block definitions, which are made anew of their objects.

#include "objects/targets/blocks.h"
#include "host/db/OdDbClasses.h"
#include "objects/blockContents.h"
#include "objects/changeKinds.h"
#include "objects/changed/changeLists.h"
#include "objects/losses.h"
#include "objects/properties.h"

using namespace kinds;
using inkmacro::Target;

const ChangeGroups modifiedPicture{
    {integer, "Brightness", "Brightness"},
    {integer, "Contrast", "Contrast"},
    {integer, "Fade", "Fade"},
    {length, "Height", "Height"},
    {angle, "Rotation", "Rotation"},
    {factor, "Scale", "ScaleImage"},
    {length, "Width", "Width"},
    {anyYes, "Show clipped", "ShowClipped"},
    {anyYes, "Show image", "ShowImage"},
    {otherTransparency, "Transparency", "Transparency"},
    {point, "Position", "Position"},
};

static const ChangeGroups modifiedBlockInstance{
    {point, "Position", "Position"},
    {scale, "Scale", "Scales"},
    {angle, "Rotation", "Rotation"},
};

/// An attribute of the block is a record in a group of its own, with the attribute's tag.
void ConvertModifiedBlockInstance(Conversion& conversion, const RecordedObject& object, PropertyList& list,
                                  Statement& text)
{
    ConvertRows(conversion, modifiedBlockInstance, object, list, text);
    if (conversion.asked)
        conversion.asked->push_back({"*", forms::text, {}, false, false, "BlockAttributes"});
    PropertyList rest;
    for (CFxPropertyChangedPtr& record : list) {
        // Each record on its own: attributes may be many, and what is taken out of a list moves all that stand behind.
        PropertyList one{record};
        PropertyList taken;
        CFxVariant tag;
        const CFxVariant value = FindProperty(conversion, conversion.tags.blockAttributes(), one, &taken, &tag);
        if (taken.empty()) {
            rest.push_back(std::move(record));
            continue;
        }
        const bool isAttribute = taken.front()->GetGroup().equalNoCase(conversion.tags.blockAttributes());
        if (isAttribute && !value.IsNull())
            text +=
                EmitBlockAttributeValue(conversion.writer, object.name, "Value", tag.GetString(), value.GetString());
    }
    list = std::move(rest);
}

static const inkmacro::Fault kForgotten{
    "EmitCreateBlockDefinition",
    {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
    "a block that is made anew loses its description"};

void ConvertModifiedBlockDefinition(Conversion& conversion, const RecordedObject& object, PropertyList& list,
                                    Statement& text)
{
    const CFxVariant objects = TakeProperty(conversion, object, "Objects", forms::handlesInValues, list);
    const CFxVariant description = TakeProperty(conversion, object, "Description", forms::text, list);
    if (!description.IsNull())
        conversion.blockDescriptions.insert_or_assign(object.handle, description.GetString());
    if (objects.GetType() != CFxVariant::kCollection) {
        if (!description.IsNull())
            LoseProperty(object, "Description", "a block is made anew only when its objects are recorded");
        return;
    }
    const auto recorded = conversion.blockDescriptions.find(object.handle);
    const bool isRecorded = recorded != conversion.blockDescriptions.end();
    CFxString known = isRecorded ? recorded->second : CFxString();
    BlockContents contents;
    contents.variable = object.name;
    contents.renewed = conversion.names().FindEntry(object.handle) != nullptr;
    contents.description = description.GetString();
    if (const auto record = odrxCast<OdDbBlockTableRecord>(IdOf(object.handle).openObject().get())) {
        contents.name = record->getName();
        contents.origin = record->origin();
        if (!isRecorded)
            known = record->comments();
    }
    const bool isForgotten = known != contents.description;
    if (conversion.writer.repairs)
        contents.description = known;
    contents.ids = ObjectsOf(objects, HandlesIn::Values);
    Statement definition = CreateBlockDefinition(conversion, contents);
    text += isForgotten ? conversion.writer.faulty(std::move(definition), kForgotten) : definition;
}
