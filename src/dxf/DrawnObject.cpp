#include "dxf/DrawnObject.h"

#include <string_view>

namespace inkmacro::dxf {

namespace {

template<class Item, class ValueOf>
CFxVariant listOf(const std::vector<Item>& items, ValueOf valueOf)
{
    std::vector<CFxVariantCollectionElement> elements;
    elements.reserve(items.size());
    for (const Item& item : items)
        elements.emplace_back(static_cast<std::int32_t>(elements.size()), valueOf(item));
    return CFxVariantCollection(std::move(elements));
}

} // namespace

void DrawnObject::moveTo(const OdGePoint3d& position)
{
    for (Property& property : properties) {
        const std::string_view tag = property.tag;
        if (tag == "Position X")
            property.value = position.x;
        else if (tag == "Position Y")
            property.value = position.y;
        else if (tag == "Position Z")
            property.value = position.z;
    }
}

CFxVariant pointList(const std::vector<OdGePoint3d>& points)
{
    return listOf(points, [](const OdGePoint3d& point) { return CFxVariant(point); });
}

CFxVariant handleList(const std::vector<OdDbHandle>& handles)
{
    return listOf(handles, [](const OdDbHandle& handle) { return CFxVariant(CFxString(handle.ascii())); });
}

CFxVariant choice(int number, const CFxString& word)
{
    return CFxVariantCollectionElement(CFxVariant(number), CFxVariant(word));
}

} // namespace inkmacro::dxf
