// Changed pictures and block references.

#include "module/CFxConverterIWAPIImpl.h"
#include "objects/CFxConverterIWAPIObject.h"
#include "objects/changeKinds.h"
#include "objects/changed/changeLists.h"
#include "objects/targets/blockAttributes.h"

using namespace kinds;

const ChangeGroups modifiedPicture{
    {integer, "Brightness", "Brightness"},
    {integer, "Contrast", "Contrast"},
    {integer, "Fade", "Fade"},
    {real, "Height", "Height"},
    {real, "Rotation", "Rotation"},
    {real, "Scale", "ScaleImage"},
    {real, "Width", "Width"},
    {anyYes, "Show clipped", "ShowClipped"},
    {anyYes, "Show image", "ShowImage"},
    {anyYes, "Transparency", "Transparency"},
    {point, "Position", "Position"},
};

static const ChangeGroups modifiedBlockInstance{
    {point, "Position", "Position"},
    {scale, "Scale", "Scales"},
    {real, "Rotation", "Rotation"},
};

/// An attribute of the block is a record in a group of its own, with the attribute's tag.
void CFxConverterIWAPIObject::ConvertModifiedBlockInstance(PropertyList& list, const CFxString& name, QString& text)
{
    ConvertRows(modifiedBlockInstance, list, name, text);
    PropertyList rest;
    for (CFxPropertyChangedPtr& record : list) {
        // Each record on its own: attributes may be many, and what is taken out of a list moves all that stand behind.
        PropertyList one{record};
        PropertyList taken;
        CFxVariant tag;
        const CFxVariant value = FindProperty(BlockAttributes(), one, driver.GetContext(), &taken, &tag);
        if (taken.empty()) {
            rest.push_back(std::move(record));
            continue;
        }
        const bool isAttribute = taken.front()->GetGroup().equalNoCase(BlockAttributes());
        if (isAttribute && !value.IsNull())
            text += EmitBlockAttributeValue(writer, name, "Value", tag.GetString(), value.GetString());
    }
    list = std::move(rest);
}
