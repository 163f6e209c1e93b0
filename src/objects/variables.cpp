// The variables that changes reach their objects by.

#include "frame/CFxConverterIWAPIImpl.h"
#include "frame/RecordingState.h"
#include "host/db/OdDbClasses.h"
#include "host/kernel/CFxServices.h"
#include "objects/CFxConverterIWAPIObject.h"
#include "objects/targets/references.h"

OdDbObjectId CFxConverterIWAPIObject::IdOf(const OdDbHandle& handle)
{
    return ACTIVE_DOCUMENT ? ACTIVE_DOCUMENT->GetDatabase()->getOdDbObjectId(handle) : OdDbObjectId();
}

CFxString CFxConverterIWAPIObject::ObjectVariableName(const OdRxClass* cls, const OdDbObjectId& id,
                                                      std::uint32_t ordinal) const
{
    CFxString type;
    CFxString second;
    GetApiTypeName(cls, type, second);
    const auto view = odrxQuery<OdDbViewTableRecord>(id.openObject().get());
    if (view && view->isPaperspaceView())
        type = "SheetNamedView";
    if (RecordingLanguage() == 0)
        StripPointerSuffixes(type);
    type.makeLower();
    return CFxString(type.toQString() + QString::number(ordinal));
}

QString CFxConverterIWAPIObject::ObjectVariable(const OdDbHandle& handle, const OdRxClass* cls, CFxString& name)
{
    CFxString type;
    CFxString second;
    if (GetApiTypeName(cls, type, second) != kFxSuccess)
        return {};
    const ActionEntry* const entry = driver.FindEntry(handle);
    name = ObjectVariableName(cls, IdOf(handle), entry ? entry->ordinal : ++driver.objectCounter);
    return entry ? QString() : EmitGetObjectByHandle(writer, type, name, handle);
}
