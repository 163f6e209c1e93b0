// The variables that changes reach their objects by.

#include "host/db/OdDbClasses.h"
#include "host/kernel/CFxServices.h"
#include "module/CFxConverterIWAPIImpl.h"
#include "objects/CFxConverterIWAPIObject.h"
#include "objects/targets/references.h"
#include "statements/arrays.h"

OdDbObjectId CFxConverterIWAPIObject::IdOf(const OdDbHandle& handle)
{
    return ACTIVE_DOCUMENT ? ACTIVE_DOCUMENT->GetDatabase()->getOdDbObjectId(handle) : OdDbObjectId();
}

CFxString CFxConverterIWAPIObject::ObjectVariableName(const OdRxClass* cls, const OdDbObjectId& id,
                                                      std::uint32_t ordinal) const
{
    const auto view = odrxQuery<OdDbViewTableRecord>(id.openObject().get());
    return view && view->isPaperspaceView() ? QStringLiteral("sheetnamedview") + QString::number(ordinal)
                                            : NumberedVariable(cls, ordinal);
}

bool CFxConverterIWAPIObject::NameVariable(const OdDbHandle& handle, const OdRxClass* cls, CFxString& name)
{
    if (!HasInterface(cls))
        return false;
    const ActionEntry* const entry = driver.FindAs(handle, cls);
    name = ObjectVariableName(cls, IdOf(handle), entry ? entry->ordinal : ++driver.objectCounter);
    return !entry;
}

CFxString CFxConverterIWAPIObject::NameObject(const OdDbHandle& handle, const OdRxClass* cls)
{
    CFxString name;
    // The fetch that is not written takes its number all the same, where it would have one.
    if (NameVariable(handle, cls, name) && writer.target != inkmacro::Target::JavaScript)
        ++writer.UniqueCounter;
    return name;
}

QString CFxConverterIWAPIObject::EmitObjectVariable(const OdDbHandle& handle, const OdRxClass* cls, CFxString& name)
{
    if (!NameVariable(handle, cls, name))
        return {};
    CFxString type;
    CFxString second;
    GetApiTypeName(cls, type, second);
    return EmitGetObjectByHandle(writer, type, name, handle);
}

QString CFxConverterIWAPIObject::AddedVariable(const OdDbObjectId& id) const
{
    const auto found = addedVariableById.find(id.getHandle());
    return id.isNull() || found == addedVariableById.end() || !driver.FindEntry(id.getHandle())
               ? QString()
               : ObjectVariableName(found->second.cls, id, found->second.ordinal).toQString();
}

QString CFxConverterIWAPIObject::AddedOrFetched(const OdDbObjectId& id, QString& fetch)
{
    if (QString added = AddedVariable(id); !added.isEmpty())
        return added;
    driver.NoteFault(inkmacro::emptyPlace);
    const OdDbObjectPtr object = id.openObject();
    CFxString name;
    if (writer.repairs && object && !driver.unmade.contains(id.getHandle()))
        fetch = EmitObjectVariable(id.getHandle(), object->isA(), name);
    // Nothing fetches what the command inserts further down.
    return fetch.isEmpty() ? QString() : name.toQString();
}

QString CFxConverterIWAPIObject::KnownVariable(const OdDbHandle& handle) const
{
    const ActionEntry* const entry = driver.FindEntry(handle);
    return entry ? ObjectVariableName(entry->cls, IdOf(handle), entry->ordinal).toQString() : QString();
}

const OdRxClass* CFxConverterIWAPIObject::KnownClass(const OdDbHandle& handle) const
{
    const ActionEntry* const entry = driver.FindEntry(handle);
    return entry ? entry->cls : nullptr;
}

OdDbObjectId CFxConverterIWAPIObject::LeaderOfNote(const OdDbHandle& handle) const
{
    OdDbObjectId leader;
    driver.GetNoteLeader(leader, handle);
    return leader;
}

bool CFxConverterIWAPIObject::IsHatchInserted(const QString& variable) const
{
    return driver.insertedHatches.count(variable) != 0;
}

OdArray<OdDbObjectId> CFxConverterIWAPIObject::ObjectsOf(const CFxVariant& collection, HandlesIn place)
{
    OdArray<OdDbObjectId> ids;
    for (const CFxVariantCollectionElement& element : collection.GetCollection().GetCollectionDataForRead()) {
        const CFxVariant* const handle = place == HandlesIn::Tags ? element.GetTag() : element.GetValue();
        ids.append(IdOf(OdDbHandle(handle->GetString().toQString().toULongLong(nullptr, 16))));
    }
    return ids;
}
