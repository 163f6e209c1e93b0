// Added objects: the frame around the readers.

#include "frame/CFxConverterIWAPIImpl.h"
#include "frame/RecordingState.h"
#include "host/db/OdDbClassMap.h"
#include "host/kernel/CFxServices.h"
#include "objects/AddedProperties.h"

#include <algorithm>

namespace {

/// Removes of each record its first twin in the list. A record without a twin is passed over.
void strike(const PropertyList& consumed, PropertyList& list)
{
    for (const CFxPropertyChangedPtr& record : consumed) {
        const auto twin = std::find_if(list.begin(), list.end(), [&](const CFxPropertyChangedPtr& other) {
            return other->GetName() == record->GetName() && other->GetGroup() == record->GetGroup();
        });
        if (twin != list.end())
            list.erase(twin);
    }
}

} // namespace

CFxConverterIWAPIObject::Reader CFxConverterIWAPIObject::ReaderOf(const OdRxClass* cls)
{
    using Self = CFxConverterIWAPIObject;
    static const QHash<const OdRxClass*, Reader> readers{
        {oddbDwgClassMapDesc(19), &Self::ReadLine},
        {oddbDwgClassMapDesc(18), &Self::ReadCircle},
        {oddbDwgClassMapDesc(27), &Self::ReadPoint},
        {oddbDwgClassMapDesc(40), &Self::ReadRay},
        {oddbDwgClassMapDesc(17), &Self::ReadArc},
        {oddbDwgClassMapDesc(41), &Self::ReadInfiniteLine},
        {oddbDwgClassMapDesc(35), &Self::ReadEllipse},
        {oddbDwgClassMapDesc(53), &Self::ReadTextStyle},
        {oddbDwgClassMapDesc(3), &Self::ReadAttributeDefinition},
        {oddbDwgClassMapDesc(1), &Self::ReadSimpleNote},
        {oddbDwgClassMapDesc(44), &Self::ReadNote},
        {oddbDwgClassMapDesc(45), &Self::ReadLeader},
        {oddbDwgClassMapDesc(46), &Self::ReadTolerance},
        {OdDbArcAlignedText::desc(), &Self::ReadCurvedText},
        {oddbDwgClassMapDesc(22), &Self::ReadAlignedDimension},
        {oddbDwgClassMapDesc(24), &Self::Read2LineAngularDimension},
        {oddbDwgClassMapDesc(23), &Self::Read3PointAngularDimension},
        {OdDbArcDimension::desc(), &Self::ReadArcLengthDimension},
        {oddbDwgClassMapDesc(20), &Self::ReadOrdinateDimension},
        {oddbDwgClassMapDesc(26), &Self::ReadDiameterDimension},
        {oddbDwgClassMapDesc(25), &Self::ReadRadialDimension},
        {OdDbRadialDimensionLarge::desc(), &Self::ReadJoggedDimension},
        {oddbDwgClassMapDesc(21), &Self::ReadRotatedDimension},
    };
    return readers.value(cls, nullptr);
}

OdDbObjectPtr CFxConverterIWAPIObject::AddedObject(const CFxString& name) const
{
    const auto found = addedIdByVariable.find(name);
    return found == addedIdByVariable.end() ? OdDbObjectPtr() : found->second.openObject();
}

QString CFxConverterIWAPIObject::AddedVariable(const OdDbObjectId& id) const
{
    const auto found = id.isNull() ? addedVariableById.end() : addedVariableById.find(id);
    return found == addedVariableById.end() ? QString() : found->second;
}

std::int32_t CFxConverterIWAPIObject::ConvertAddedObject(OdRxClass* cls, OdDbHandle handle, PropertyList& read,
                                                         PropertyList& rest, QString& text)
{
    if (!cls)
        return kFxFailure;
    const ActionEntry* const entry = driver.FindEntry(handle);
    if (!entry)
        return kFxSuccess;

    const OdDbObjectId id = IdOf(handle);
    const CFxString name = ObjectVariableName(cls, id, entry->ordinal);
    addedVariableById[id] = name;
    addedIdByVariable[name] = id;

    AddedProperties properties(*this, read, driver.GetContext());
    if (const Reader reader = ReaderOf(cls))
        text = (this->*reader)(properties, name);
    strike(properties.consumed(), rest);
    if (text.isEmpty())
        return kFxSuccess;

    QString general;
    if (ConvertObjectChanges(cls, handle, rest, true, general) != kFxSuccess)
        return kFxFailure;
    text += general;
    return kFxSuccess;
}
