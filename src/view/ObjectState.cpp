#include "view/ObjectState.h"

#include "view/Objects.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace inkmacro::view {

namespace {

/// Capitals count, as in `rotation` and `Rotation`, but for the axis of a coordinate. Asked of each property that a tag
/// passes: from the end, where the tags of coordinates differ.
bool isSame(const QString& one, const QString& other)
{
    if (one.size() != other.size())
        return false;
    const QChar* const left = one.constData();
    const QChar* const right = other.constData();
    if (left == right)
        return true;
    constexpr unsigned kCase = 0x20;
    const int last = one.size() - 1;
    for (int i = last; i >= 0; --i) {
        const unsigned difference = left[i].unicode() ^ right[i].unicode();
        const bool isAxis = i == last && i > 0 && left[i - 1] == ' ';
        if (difference != 0 && !(isAxis && difference == kCase))
            return false;
    }
    return true;
}

int indexOf(const CFxVariant& index)
{
    switch (index.GetType()) {
    case CFxVariant::kInt32:
    case CFxVariant::kDouble:
        return index.GetInt32();
    default:
        return -1;
    }
}

/// 0 to 2 for a tag of a coordinate, else -1.
int axisOf(const QString& tag)
{
    if (tag.size() < 2 || tag[tag.size() - 2] != ' ')
        return -1;
    return QString("xyz").indexOf(tag.back(), 0, Qt::CaseInsensitive);
}

/// What says how it looks and not where it is.
bool isGeneral(const QString& tag)
{
    static const char* const tags[] = {"LineColor",  "Layer",      "LineStyle",    "LineScale",
                                       "LineWeight", "PrintStyle", "Transparency", "Thickness"};
    return std::any_of(std::begin(tags), std::end(tags),
                       [&tag](const char* one) { return tag.compare(QLatin1String(one), Qt::CaseInsensitive) == 0; });
}

const char kAttributeGroup[] = "BlockAttributes";

/// Attributes of a block are told apart from its own properties.
QString tagOf(const CFxPropertyChanged& property)
{
    const QString& group = property.GetGroup();
    const bool isAttribute =
        !group.isEmpty() && group.compare(QLatin1String(kAttributeGroup), Qt::CaseInsensitive) == 0;
    return isAttribute ? kAttributeGroup + ("." + property.GetName().toQString()) : property.GetName().toQString();
}

} // namespace

ObjectState::ObjectState(Objects& objects, std::uint32_t number, const OdDbHandle& handle, const OdRxClass& cls,
                         OdDbObjectPtr drawn)
    : objects_(objects), class_(&cls), drawn_(std::move(drawn)), handle_(handle), number_(number)
{
}

bool ObjectState::isEntity() const
{
    // Of a class that is known by its name alone nobody can tell.
    return class_->isDerivedFrom(OdDbEntity::desc()) || !class_->isDerivedFrom(OdDbObject::desc());
}

void ObjectState::load() const
{
    if (isLoaded_ || !added_)
        return;
    isLoaded_ = true;
    properties_ = std::move(objects_.spare());
    properties_.clear();
    const CFxValueContext context = objects_.context();
    for (const CFxPropertyChangedPtr& property : added_->GetProperties())
        properties_.push_back({tagOf(*property), indexOf(property->GetIndex(context)), property->GetValue(context)});
    objects_.noteLoaded(*this);
}

void ObjectState::release()
{
    if (!isLoaded_ || isChanged_)
        return;
    isLoaded_ = false;
    properties_.clear();
    objects_.spare() = std::move(properties_);
    properties_ = Properties();
}

const CFxVariant* ObjectState::find(const QString& tag, int index) const
{
    load();
    for (const Property& property : properties_)
        if ((index < 0 || property.index == index) && isSame(property.tag, tag))
            return &property.value;
    return nullptr;
}

int ObjectState::count(const QString& tag) const
{
    load();
    return static_cast<int>(std::count_if(properties_.begin(), properties_.end(),
                                          [&tag](const Property& property) { return isSame(property.tag, tag); }));
}

void ObjectState::visit(const QString& tag, const Visit& visit) const
{
    load();
    for (const Property& property : properties_)
        if (isSame(property.tag, tag))
            visit(property.index, property.value);
}

const Values* ObjectState::other(const OdDbHandle& handle) const
{
    const ObjectState* const other = objects_.find(handle);
    if (other)
        objects_.noteUse(number_, other->number());
    return other;
}

const Values* ObjectState::named(const QString& className, const QString& name) const
{
    const ObjectState* const record = objects_.named(className, name);
    if (record)
        objects_.noteUse(number_, record->number());
    return record;
}

std::optional<std::uint16_t> ObjectState::spaceOf(const QString& block) const
{
    return objects_.spaces().block(block);
}

std::optional<std::uint16_t> ObjectState::spaceOf(const OdDbHandle& block) const
{
    return objects_.spaces().block(block);
}

void ObjectState::add(const CFxObjectAdded& action)
{
    added_ = &action;
    class_ = action.GetObjectClass();
}

void ObjectState::takeFrom(const ObjectState& original)
{
    original.load();
    properties_ = original.properties_;
    moved_ = original.moved_;
    drawn_ = original.drawn_;
    isChanged_ = true;
    isLoaded_ = true;
    layer = original.layer;
    space = original.space;
    color = original.color;
}

Property* ObjectState::findOwn(const QString& tag, int index)
{
    load();
    for (Property& property : properties_)
        if (property.index == index && isSame(property.tag, tag))
            return &property;
    return nullptr;
}

/// The value that the property would have had before the object was moved by more than its properties tell.
CFxVariant ObjectState::beforeMove(const QString& tag, const CFxVariant& value) const
{
    const Affine back = moved_.inverse();
    const auto pointBefore = [&back](const OdGePoint3d& point) {
        const Point before = back * fromAbove(point);
        return OdGePoint3d{before.x, before.y, point.z};
    };
    if (value.GetType() == CFxVariant::kPoint3d)
        return pointBefore(value.GetPoint3d());
    if (value.GetType() == CFxVariant::kCollection) {
        std::vector<CFxVariantCollectionElement> elements;
        for (const CFxVariantCollectionElement& element : value.GetCollection().GetCollectionDataForRead())
            elements.emplace_back(*element.GetTag(), element.GetValue()->GetType() == CFxVariant::kPoint3d
                                                         ? pointBefore(element.GetValue()->GetPoint3d())
                                                         : *element.GetValue());
        return CFxVariantCollection(std::move(elements), value.GetCollection().GetChosen());
    }
    if (value.GetType() != CFxVariant::kDouble)
        return value;
    if (isSame(tag, "Rotation") || isSame(tag, "Start Angle") || isSame(tag, "End Angle"))
        return moved_.mirrors() ? moved_.angle() - value.GetDouble() : value.GetDouble() - moved_.angle();
    if (isSame(tag, "Radius") || isSame(tag, "Height") || isSame(tag, "Width"))
        return value.GetDouble() / moved_.factor();
    return value;
}

/// The point that the tag tells, before the object was moved.
Point ObjectState::placeOf(const QString& tag, int index) const
{
    if (index < 0)
        return fromAbove(point(tag).value_or(OdGePoint3d()));
    const std::vector<OdGePoint3d> all = points(tag);
    return static_cast<std::size_t>(index) < all.size() ? fromAbove(all[static_cast<std::size_t>(index)]) : Point();
}

void ObjectState::say(const QString& tag, int index, const CFxVariant& value)
{
    load();
    isChanged_ = true;
    isLoaded_ = true;
    const int axis = axisOf(tag);
    if (moved_.isIdentity() || axis == 2) {
        set(tag, index, value);
    } else if (axis < 0) {
        set(tag, index, beforeMove(tag, value));
    } else {
        // One coordinate is told, and both are others before the move.
        const QString of = tag.chopped(2);
        Point now = moved_ * placeOf(of, index);
        (axis == 0 ? now.x : now.y) = value.GetDouble();
        const Point before = moved_.inverse() * now;
        set(of + " x", index, before.x);
        set(of + " y", index, before.y);
    }
}

void ObjectState::set(const QString& tag, int index, const CFxVariant& value)
{
    if (Property* const property = findOwn(tag, index))
        property->value = value;
    else
        properties_.push_back({tag, index, value});
}

void ObjectState::sayPoints(const QString& tag, const std::vector<OdGePoint3d>& points)
{
    for (const char* const axis : {" x", " y", " z"})
        unsay(tag + axis);
    std::vector<CFxVariantCollectionElement> elements;
    for (const OdGePoint3d& point : points)
        elements.emplace_back(CFxVariant(static_cast<std::int32_t>(elements.size())), CFxVariant(point));
    say(tag, -1, CFxVariantCollection(std::move(elements)));
}

void ObjectState::sayNumbers(const QString& tag, const std::vector<double>& numbers)
{
    unsay(tag);
    for (std::size_t i = 0; i < numbers.size(); ++i)
        properties_.push_back({tag, static_cast<int>(i), CFxVariant(numbers[i])});
}

void ObjectState::unsay(const QString& tag)
{
    load();
    isChanged_ = true;
    isLoaded_ = true;
    properties_.erase(std::remove_if(properties_.begin(), properties_.end(),
                                     [&tag](const Property& property) { return isSame(property.tag, tag); }),
                      properties_.end());
}

void ObjectState::change(const PropertyList& properties)
{
    const CFxValueContext context = objects_.context();
    // From the last on, so that the first of several counts.
    for (auto at = properties.rbegin(); at != properties.rend(); ++at) {
        const QString tag = tagOf(**at);
        const CFxVariant value = (*at)->GetValue(context);
        say(tag, indexOf((*at)->GetIndex(context)), value);
        sayMeasured(tag, value.GetDouble());
    }
}

/// Some properties repeat what others tell; when one is changed, so is what it is reckoned from.
void ObjectState::sayMeasured(const QString& tag, double value)
{
    const QString& cls = className();
    if (cls == "AcDbCircle") {
        if (isSame(tag, QStringLiteral("Diameter")))
            say("Radius", -1, value / 2.0);
        else if (isSame(tag, QStringLiteral("Circumference")))
            say("Radius", -1, value / kTurn);
        else if (isSame(tag, QStringLiteral("Area")))
            say("Radius", -1, std::sqrt(std::max(value, 0.0) / std::numbers::pi));
    } else if (cls == "AcDbEllipse" && isSame(tag, QStringLiteral("Radius ratio"))) {
        const double major =
            number("Major radius")
                .value_or(point("Major axis vector").value_or(OdGePoint3d()).distanceTo(OdGePoint3d()));
        say("Minor radius", -1, value * major);
    }
}

bool ObjectState::takeFormer(const PropertyList& changes)
{
    const CFxValueContext context = objects_.context();
    bool isTold = false;
    for (const CFxPropertyChangedPtr& change : changes) {
        const CFxVariant former = change->GetOldValue(context);
        const QString tag = tagOf(*change);
        const int index = indexOf(change->GetIndex(context));
        if (!former.IsNull() && !findOwn(tag, index)) {
            say(tag, index, former);
            isTold = true;
        }
    }
    return isTold;
}

ObjectState::Shape ObjectState::forgetShape()
{
    load();
    Shape shape{properties_, moved_};
    isChanged_ = true;
    isLoaded_ = true;
    moved_ = {};
    properties_.erase(std::remove_if(properties_.begin(), properties_.end(),
                                     [](const Property& property) { return !isGeneral(property.tag); }),
                      properties_.end());
    return shape;
}

void ObjectState::restore(const Shape& shape)
{
    properties_ = shape.properties;
    moved_ = shape.moved;
}

bool ObjectState::hasPlace() const
{
    load();
    return std::any_of(properties_.begin(), properties_.end(), [](const Property& property) {
        const CFxVariant::Type type = property.value.GetType();
        const bool isPoints = type == CFxVariant::kCollection &&
                              std::any_of(property.value.GetCollection().GetCollectionDataForRead().begin(),
                                          property.value.GetCollection().GetCollectionDataForRead().end(),
                                          [](const CFxVariantCollectionElement& element) {
                                              return element.GetValue()->GetType() == CFxVariant::kPoint3d;
                                          });
        return type == CFxVariant::kPoint3d || isPoints ||
               (axisOf(property.tag) == 0 && !property.tag.startsWith("Origin", Qt::CaseInsensitive));
    });
}

} // namespace inkmacro::view
