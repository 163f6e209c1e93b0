#include "dxf/Recorder.h"

#include "recordfile/recordedActions.h"

#include <cmath>

namespace inkmacro::dxf {

using namespace recordfile;

namespace {

/// Of the plain values; others count as unequal.
bool isEqual(const CFxVariant& left, const CFxVariant& right)
{
    if (left.GetType() != right.GetType())
        return false;
    switch (left.GetType()) {
    case CFxVariant::kDouble:
        return left.GetDouble() == right.GetDouble() &&
               std::signbit(left.GetDouble()) == std::signbit(right.GetDouble());
    case CFxVariant::kString:
        return left.GetString() == right.GetString();
    case CFxVariant::kColor:
        return left.GetColor() == right.GetColor();
    case CFxVariant::kId:
        return left.GetId() == right.GetId();
    default:
        return false;
    }
}

} // namespace

void Recorder::draw(const DrawnObject& object)
{
    switch (object.making) {
    case DrawnObject::Making::Added:
        add(object.cls, object.handle, object.properties);
        break;
    case DrawnObject::Making::Custom:
        act(object.customKind, object.custom);
        break;
    case DrawnObject::Making::CustomInCommand: {
        CFxActionArray actions;
        actions.append(odrxNew<RecordedCustomAction>(object.customKind, object.custom));
        actions.append(added(object.cls, object.handle, object.properties));
        ready_.push_back(odrxNew<RecordedCommand>(CFxString(object.command), std::move(actions)));
        break;
    }
    }
    change(object.cls, object.handle, object.changes);
}

void Recorder::add(OdRxClass* cls, OdDbHandle handle, const std::vector<Property>& properties)
{
    ready_.push_back(added(cls, handle, properties));
}

void Recorder::change(OdRxClass* cls, OdDbHandle handle, const std::vector<Property>& properties)
{
    if (!properties.empty())
        ready_.push_back(odrxNew<RecordedModified>(cls, handle, listOf(properties)));
}

void Recorder::act(std::int32_t kind, std::vector<CFxCustomActionData> data)
{
    ready_.push_back(odrxNew<RecordedCustomAction>(kind, std::move(data)));
}

OdRxObjectPtr Recorder::take()
{
    OdRxObjectPtr first = std::move(ready_.front());
    ready_.pop_front();
    return first;
}

OdRxObjectPtr Recorder::added(OdRxClass* cls, OdDbHandle handle, const std::vector<Property>& properties)
{
    return odrxNew<RecordedAdded>(cls, handle, listOf(properties));
}

PropertyList Recorder::listOf(const std::vector<Property>& properties)
{
    ++lists_;
    PropertyList list;
    list.reserve(properties.size());
    for (const Property& property : properties)
        list.push_back(recordOf(property));
    return list;
}

CFxPropertyChangedPtr Recorder::recordOf(const Property& property)
{
    CFxVariant value = property.value;
    if (!property.index.IsNull() || !property.old.IsNull()) {
        PropertyDetails details{property.index, property.old, nullptr, {}};
        return odrxNew<RecordedPropertyWithDetails>(labelOf(property), std::move(value), std::move(details));
    }
    if (*property.group)
        return odrxNew<RecordedProperty>(labelOf(property), std::move(value));
    Recent& recent = recent_[property.tag];
    if (recent.record && recent.list != lists_ && isEqual(recent.record->GetValue({}), value)) {
        recent.list = lists_;
        return recent.record;
    }
    recent.record = odrxNew<RecordedProperty>(labelOf(property), std::move(value));
    recent.list = lists_;
    return recent.record;
}

const PropertyLabel& Recorder::labelOf(const Property& property)
{
    if (*property.group)
        return texts_.label(pooled(property.name()), texts_.text(property.group));
    // Nearly all tags are literals: no text is made of them again.
    const PropertyLabel*& label = recent_[property.tag].label;
    if (!label)
        label = &texts_.label(texts_.text(property.tag), texts_.text(""));
    return *label;
}

const CFxString* Recorder::pooled(const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    return texts_.text({utf8.constData(), static_cast<std::size_t>(utf8.size())});
}

} // namespace inkmacro::dxf
