#include "recordfile/AddedEntities.h"

#include "host/db/OdDbClassMap.h"
#include "recordfile/JsonOut.h"
#include "recordfile/drawingForms.h"

namespace inkmacro {

namespace {

bool erases(const CFxObjectModified& change, CFxValueContext context)
{
    for (const CFxPropertyChangedPtr& property : change.GetProperties())
        if (property->GetName() == CFxString("Erased") && property->GetValue(context).GetString().equalNoCase("YES"))
            return true;
    return false;
}

/// Without one in the drawing macros leave out what they would take from it; a stand-in has nothing to give.
bool isAskedForData(const OdRxClass* cls)
{
    return cls->isDerivedFrom(OdDbDimension::desc()) || cls == OdDbArcAlignedText::desc() || cls == OdDbTrace::desc();
}

OdDbObjectPtr makeEntity(OdRxClass* cls)
{
    const bool can = cls->isDerivedFrom(OdDbEntity::desc()) && !isAskedForData(cls);
    const OdDbClassRow* const row = can ? oddbFindClassRow(cls->name()) : nullptr;
    return row && row->create ? row->create(cls) : OdDbObjectPtr();
}

} // namespace

AddedEntities::AddedEntities(Recording& recording) : recording_(recording)
{
    std::map<OdDbHandle, OdRxClass*> classes;
    collect(recording.actions, classes);
    for (const auto& [handle, cls] : classes) {
        if (recording.database->getOdDbObjectId(handle).openObject(true))
            continue;
        if (const OdDbObjectPtr entity = makeEntity(cls)) {
            recording.database->addObject(handle, entity);
            asTheyCame_[handle] = written(*entity);
        }
    }
}

bool AddedEntities::isUntouched(const OdDbObject& object) const
{
    const auto found = asTheyCame_.find(object.getDbHandle());
    return found != asTheyCame_.end() && found->second == written(object);
}

void AddedEntities::collect(const CFxActionArray& actions, std::map<OdDbHandle, OdRxClass*>& classes) const
{
    const auto context = static_cast<CFxValueContext>(recording_.header.context);
    for (const OdRxObjectPtr& action : actions) {
        if (const auto command = odrxQuery<CFxUserCommand>(action.get()))
            collect(command->GetActions(), classes);
        else if (const auto added = odrxQuery<CFxObjectAdded>(action.get()))
            classes.emplace(added->GetHandle(), added->GetObjectClass());
        else if (const auto changed = odrxQuery<CFxObjectModified>(action.get()); changed && erases(*changed, context))
            classes.erase(changed->GetHandle());
    }
}

QByteArray AddedEntities::written(const OdDbObject& object) const
{
    recordfile::JsonOut out(static_cast<CFxValueContext>(recording_.header.context));
    recordfile::DrawingObjectForm::write(out, object);
    return out.bytes();
}

} // namespace inkmacro
