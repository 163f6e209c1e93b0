#include "view/Values.h"

#include <algorithm>

namespace inkmacro::view {

namespace {

/// The value of an item, or of what is chosen in a list; others stand for themselves.
const CFxVariant& chosen(const CFxVariant& value)
{
    if (value.GetType() == CFxVariant::kCollectionElement)
        return *value.GetCollectionElement().GetValue();
    if (value.GetType() == CFxVariant::kCollection) {
        const CFxVariantCollection& list = value.GetCollection();
        const auto& elements = list.GetCollectionDataForRead();
        const auto place = static_cast<std::size_t>(std::max(list.GetChosen(), 0));
        return place < elements.size() ? *elements[place].GetValue() : CFxVariant::kNull;
    }
    return value;
}

std::optional<double> numberIn(const CFxVariant& value)
{
    switch (value.GetType()) {
    case CFxVariant::kInt32:
    case CFxVariant::kDouble:
        return value.GetDouble();
    case CFxVariant::kString: {
        bool isNumber = false;
        const double number = value.GetString().toQString().toDouble(&isNumber);
        return isNumber ? std::optional(number) : std::nullopt;
    }
    default:
        return std::nullopt;
    }
}

constexpr char kAxes[] = "xyz";

double& coordinate(OdGePoint3d& point, int axis)
{
    return axis == 0 ? point.x : axis == 1 ? point.y : point.z;
}

} // namespace

std::optional<double> Values::number(const QString& tag, int index) const
{
    const CFxVariant* const value = find(tag, index);
    return value ? numberIn(chosen(*value)) : std::nullopt;
}

std::optional<QString> Values::text(const QString& tag, int index) const
{
    const CFxVariant* const value = find(tag, index);
    if (!value)
        return std::nullopt;
    const CFxVariant& word = chosen(*value);
    return word.GetType() == CFxVariant::kString ? std::optional(word.GetString().toQString()) : std::nullopt;
}

std::optional<int> Values::choice(const QString& tag) const
{
    const CFxVariant* const value = find(tag);
    if (!value)
        return std::nullopt;
    switch (value->GetType()) {
    case CFxVariant::kInt32:
    case CFxVariant::kDouble:
        return value->GetInt32();
    case CFxVariant::kCollectionElement:
        return value->GetCollectionElement().GetTag()->GetInt32();
    case CFxVariant::kCollection: {
        const CFxVariantCollection& list = value->GetCollection();
        const auto& elements = list.GetCollectionDataForRead();
        const auto place = static_cast<std::size_t>(std::max(list.GetChosen(), 0));
        return place < elements.size() ? elements[place].GetTag()->GetInt32() : list.GetChosen();
    }
    default:
        return std::nullopt;
    }
}

std::optional<OdGePoint3d> Values::point(const QString& tag, int index) const
{
    if (const CFxVariant* const value = find(tag, index); value && value->GetType() == CFxVariant::kPoint3d)
        return value->GetPoint3d();
    QString of = tag + " x";
    OdGePoint3d point;
    bool isSaid = false;
    for (int axis = 0; axis < 3; ++axis) {
        of.back() = QLatin1Char(kAxes[axis]);
        if (const std::optional<double> value = number(of, index)) {
            coordinate(point, axis) = *value;
            isSaid = true;
        }
    }
    return isSaid ? std::optional(point) : std::nullopt;
}

std::vector<OdGePoint3d> Values::points(const QString& tag) const
{
    std::vector<OdGePoint3d> points;
    const auto place = [&points](int index) {
        if (index == static_cast<int>(points.size()))
            points.emplace_back();
        return index >= 0 && index < static_cast<int>(points.size());
    };
    visit(tag, [&](int index, const CFxVariant& value) {
        if (value.GetType() == CFxVariant::kPoint3d && place(index))
            points[static_cast<std::size_t>(index)] = value.GetPoint3d();
        else if (value.GetType() == CFxVariant::kCollection && index < 0)
            for (const CFxVariantCollectionElement& element : value.GetCollection().GetCollectionDataForRead())
                points.push_back(element.GetValue()->GetPoint3d());
    });
    QString of = tag + " x";
    for (int axis = 0; axis < 3; ++axis) {
        of.back() = QLatin1Char(kAxes[axis]);
        visit(of, [&](int index, const CFxVariant& value) {
            if (const std::optional<double> number = numberIn(value); number && place(index))
                coordinate(points[static_cast<std::size_t>(index)], axis) = *number;
        });
    }
    return points;
}

OdDbHandle Values::handle(const QString& tag) const
{
    const CFxVariant* const value = find(tag);
    if (!value)
        return {};
    const CFxVariant& held = chosen(*value);
    if (held.GetType() == CFxVariant::kString)
        return OdDbHandle(held.GetString().toQString().toULongLong(nullptr, 16));
    const OdDbObjectId id = held.GetId();
    return id.isNull() ? OdDbHandle() : id.getHandle();
}

bool Values::isYes(const QString& tag) const
{
    const QString word = text(tag).value_or(QString());
    return word.compare(QLatin1String("yes"), Qt::CaseInsensitive) == 0;
}

} // namespace inkmacro::view
