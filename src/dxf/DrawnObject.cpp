#include "dxf/DrawnObject.h"

#include <algorithm>
#include <cmath>
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

/// Beyond, what macros reckon with it would be no number any more, and nothing is that large.
constexpr double kMost = 1e100;

bool isNumber(double number)
{
    return std::abs(number) <= kMost;
}

bool isNumber(const OdGePoint2d& point)
{
    return isNumber(point.x) && isNumber(point.y);
}

bool isNumber(const OdGePoint3d& point)
{
    return isNumber(point.x) && isNumber(point.y) && isNumber(point.z);
}

template<class Item>
bool isNumber(const OdArray<Item>& items)
{
    return std::all_of(items.begin(), items.end(), [](const Item& item) { return isNumber(item); });
}

bool isFinite(const CFxVariant& value)
{
    switch (value.GetType()) {
    case CFxVariant::kDouble:
        return isNumber(value.GetDouble());
    case CFxVariant::kPoint3d:
        return isNumber(value.GetPoint3d());
    case CFxVariant::kCollection: {
        const auto& elements = value.GetCollection().GetCollectionDataForRead();
        return std::all_of(elements.begin(), elements.end(),
                           [](const CFxVariantCollectionElement& element) { return isFinite(*element.GetValue()); });
    }
    default:
        return true;
    }
}

bool areFinite(const std::vector<Property>& properties)
{
    return std::all_of(properties.begin(), properties.end(),
                       [](const Property& property) { return isFinite(property.value); });
}

} // namespace

bool DrawnObject::isFinite() const
{
    return areFinite(properties) && areFinite(changes) &&
           std::all_of(repeats.begin(), repeats.end(), [](const OdGePoint3d& place) { return isNumber(place); }) &&
           std::all_of(custom.begin(), custom.end(), [](const CFxCustomActionData& data) {
               return isNumber(data.GetDouble()) && isNumber(data.GetPointArray()) && isNumber(data.GetDoubleArray()) &&
                      isNumber(data.Get2dPointArray());
           });
}

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
