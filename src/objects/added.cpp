// Added objects: the frame around the readers.

#include "host/db/OdDbClasses.h"
#include "module/CFxConverterIWAPIImpl.h"
#include "objects/AddedObject.h"
#include "objects/classTable.h"

#include <algorithm>

namespace {

/// Removes of each record its first twin in the list. A record without a twin is passed over.
void strike(const PropertyList& consumed, PropertyList& list)
{
    for (const CFxPropertyChangedPtr& record : consumed) {
        const CFxString& name = record->GetName();
        const CFxString& group = record->GetGroup();
        const auto twin = std::find_if(list.begin(), list.end(), [&](const CFxPropertyChangedPtr& other) {
            return isSame(other->GetName(), name) && isSame(other->GetGroup(), group);
        });
        if (twin != list.end())
            list.erase(twin);
    }
}

} // namespace

std::int32_t CFxConverterIWAPIObject::ConvertAddedObject(const OdRxClass* cls, OdDbHandle handle, PropertyList& read,
                                                         PropertyList& rest, QString& text)
{
    if (!cls)
        return kFxFailure;
    const ActionEntry* const entry = driver.FindEntry(handle);
    if (!entry) {
        LoseNoteWithoutLeader(cls, handle);
        return kFxSuccess;
    }

    changedClass = cls;
    changedHandle = handle;
    const OdDbObjectId id = IdOf(handle);
    const CFxString name = ObjectVariableName(cls, id, entry->ordinal);
    addedVariableById[id.getHandle()] = {cls, entry->ordinal};

    // Of two lists with the same records the same ones stay.
    const bool same = read == rest;
    PropertyList consumed;
    AddedObject added(*this, writer, driver.GetContext(), id, name, read, same ? nullptr : &consumed);
    if (const ClassRow* const row = FindClass(cls); row && row->reader)
        text = row->reader(added);
    if (same)
        rest = std::move(read);
    else
        strike(consumed, rest);
    // Settings make no hatch.
    if (writer.repairs && cls == OdDbHatch::desc() && !IsMadeByAction(cls, handle))
        text.clear();
    if (text.isEmpty() && !IsMadeByAction(cls, handle))
        driver.unmade.insert(handle);
    // The hatch stands there already, and its general properties have to wait for no other statement.
    const bool isThere = writer.repairs && cls == OdDbHatch::desc() && IsHatchInserted(name);
    if ((text.isEmpty() || cls == OdDbHatch::desc()) && !isThere)
        LoseUnmade(rest, !text.isEmpty());
    if (text.isEmpty() && !isThere)
        return kFxSuccess;

    QString general;
    if (ConvertObjectChanges(cls, handle, rest, true, general) != kFxSuccess)
        return kFxFailure;
    // Made at its full length: one that grows is allocated and copied once more.
    text = text + general;
    return kFxSuccess;
}
