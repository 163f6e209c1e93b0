// The variables that the generated code names its objects by.

#include "targets/variables.h"
#include "host/db/OdDbClassMap.h"
#include "host/db/OdDbClasses.h"
#include "host/kernel/CFxServices.h"
#include "module/CFxConverterIWAPIImpl.h"
#include "objects/CFxConverterIWAPIObject.h"
#include "objects/classTable.h"
#include "statements/RecordingState.h"

#include <QHash>
#include <QStringBuilder>

#include <algorithm>
#include <array>
#include <charconv>

namespace {

using inkmacro::Fault;
using inkmacro::Target;

const Fault kUnmade{"EmitObjectVariable",
                    {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
                    "an object that no statement inserts has a variable without a value"};

const Fault kUnnamed{"EmitObjectVariable",
                     {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
                     "what a custom action makes has no variable when its command has no such object"};

const Fault kOtherClass{"EmitObjectVariable",
                        {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
                        "an object that is declared as one class is named as another one"};

const Fault kStarInName{"EmitObjectVariable", {Target::Cpp}, "the star of its type stands in a variable's name"};

const Fault kOutOfReach{"EmitGetLayer",
                        {Target::Cpp, Target::CSharp, Target::VbNet, Target::CppCom},
                        "a layer is declared in the block of a former command"};

CFxString numbered(CFxString type, std::uint32_t ordinal)
{
    type.makeLower();
    return CFxString(type.toQString() + QString::number(ordinal));
}

} // namespace

const OdRxClass* ClassAt(const std::vector<const OdRxClass*>& classes, std::size_t index)
{
    if (index >= classes.size())
        throw OdError_InvalidIndex();
    return classes[index];
}

void CFxConverterIWAPIImpl::GetNoteLeader(OdDbObjectId& leader, const OdDbHandle& handle) const
{
    leader = OdDbObjectId();
    if (!ACTIVE_DOCUMENT)
        return;
    const OdDbObjectPtr object = ACTIVE_DOCUMENT->GetDatabase()->getOdDbObjectId(handle).openObject();
    if (!object)
        return;
    for (const OdDbObjectId& id : odrxCast<OdDbMText>(object.get())->getPersistentReactors())
        if (odrxQuery<OdDbLeader>(id.openObject().get())) {
            leader = id;
            return;
        }
}

const ActionEntry* CFxConverterIWAPIImpl::FindEntry(const OdDbHandle& handle) const
{
    // Most asked for is the newest object, which stands last.
    const bool isLast = !ObjectVariableMap.empty() && ObjectVariableMap.rbegin()->first == handle;
    const auto found = isLast ? std::prev(ObjectVariableMap.end()) : ObjectVariableMap.find(handle);
    if (found == ObjectVariableMap.end())
        return nullptr;
    const bool isUnmade = unmade.count(handle) != 0;
    if (isUnmade)
        NoteUnmade();
    if (outOfReach.count(handle) != 0)
        NoteFault(kOutOfReach);
    return isUnmade && writer.repairs ? nullptr : &found->second;
}

void CFxConverterIWAPIImpl::NoteFault(const Fault& fault) const
{
    if (std::find(statementFaults.begin(), statementFaults.end(), &fault) == statementFaults.end())
        statementFaults.push_back(&fault);
}

void CFxConverterIWAPIImpl::NoteUnmade() const
{
    NoteFault(kUnmade);
}

bool CFxConverterIWAPIImpl::IsOtherClass(const ActionEntry& entry, const OdRxClass* told) const
{
    if (told == entry.cls || NumberedVariable(told, 0) == NumberedVariable(entry.cls, 0))
        return false;
    NoteFault(kOtherClass);
    return true;
}

const ActionEntry* CFxConverterIWAPIImpl::FindAs(const OdDbHandle& handle, const OdRxClass* cls) const
{
    const ActionEntry* const entry = FindEntry(handle);
    return entry && IsOtherClass(*entry, cls) && writer.repairs ? nullptr : entry;
}

ActionEntry CFxConverterIWAPIImpl::RegisterObject(const OdDbHandle& handle, const OdRxClass* cls)
{
    unmade.erase(handle);
    outOfReach.erase(handle);
    const ActionEntry entry{cls, ++objectCounter};
    ObjectVariableMap.insert_or_assign(ObjectVariableMap.end(), handle, entry);
    return entry;
}

CFxString CFxConverterIWAPIImpl::DeclaredName(const ActionEntry& entry) const
{
    return HasInterface(entry.cls) ? CFxString(NumberedVariable(entry.cls, entry.ordinal)) : CFxString();
}

EntityList CFxConverterIWAPIImpl::ResolveNames(const CFxCustomActionData& handleArray,
                                               const CFxCustomActionData& classArray)
{
    std::vector<CFxString> names;
    ResolveVariables(names, handleArray, classArray);
    const std::vector<OdDbHandle>& objects = handleArray.GetHandleArray();
    const std::vector<const OdRxClass*>& classes = classArray.GetClassArray();
    EntityList entities(objects.size());
    for (std::size_t i = 0; i < objects.size(); ++i) {
        CFxString type;
        entities[i].name = names[i];
        if (!names[i].isEmpty()) {
            const ActionEntry* const declared = writer.repairs ? FindEntry(objects[i]) : nullptr;
            GetApiTypeName(declared ? declared->cls : classes[i], type, entities[i].type);
        }
        entities[i].handle = objects[i].ascii();
    }
    if (writer.repairs)
        std::erase_if(entities, [](const ListedEntity& entity) { return entity.name.isEmpty(); });
    return entities;
}

CFxString CFxConverterIWAPIImpl::Fetched(const OdDbHandle& handle, const OdRxClass* cls)
{
    CFxString& name = fetched[handle];
    if (name.isEmpty())
        fetches += Objects().EmitObjectVariable(handle, cls, name);
    return name;
}

CFxString CFxConverterIWAPIImpl::FetchedUnknown(const OdDbHandle& handle, const OdRxClass* cls)
{
    return writer.repairs && unmade.count(handle) == 0 && HasInterface(cls) ? Fetched(handle, cls) : CFxString();
}

CFxString CFxConverterIWAPIImpl::VariableOfMade(const CFxString& handedOver, const char* className)
{
    if (!handedOver.isEmpty())
        return handedOver;
    NoteFault(kUnnamed);
    if (!writer.repairs)
        return {};
    const ActionEntry entry{oddbClassByName(className), ++objectCounter};
    fetches += EmitVariableDeclaration(writer, entry);
    return DeclaredName(entry);
}

CFxString CFxConverterIWAPIImpl::VariableWithoutFetch(const OdDbHandle& handle, const OdRxClass* cls)
{
    if (!FindAs(handle, cls) && HasInterface(cls)) {
        NoteUnmade();
        if (writer.repairs)
            return Fetched(handle, cls);
    }
    return Objects().NameObject(handle, cls);
}

void CFxConverterIWAPIImpl::ResolveVariables(std::vector<CFxString>& names, const CFxCustomActionData& handleArray,
                                             const CFxCustomActionData& classArray)
{
    const std::vector<OdDbHandle>& objects = handleArray.GetHandleArray();
    const std::vector<const OdRxClass*>& classes = classArray.GetClassArray();
    names.assign(objects.size(), {});
    for (std::size_t i = 0; i < objects.size(); ++i) {
        if (const ActionEntry* const entry = FindEntry(objects[i])) {
            const OdRxClass* const told = ClassAt(classes, i);
            const bool asDeclared = IsOtherClass(*entry, told) && writer.repairs;
            names[i] = DeclaredName({asDeclared ? entry->cls : told, entry->ordinal});
        } else if (writer.repairs) {
            names[i] = FetchedUnknown(objects[i], ClassAt(classes, i));
        }
    }
}

/// Takes the suffixes off after the number was put on, and only the one of smart pointers: in C++ a region or a view
/// tile gets a name like "iwregion_c*3" here, which no compiler takes.
void CFxConverterIWAPIImpl::ResolveVariable(const OdDbHandle& handle, const OdRxClass* cls, CFxString& name) const
{
    const ActionEntry* const entry = FindAs(handle, cls);
    CFxString type;
    CFxString second;
    if (!entry || GetApiTypeName(cls, type, second) != kFxSuccess)
        return;
    name = numbered(type, entry->ordinal);
    name.replace("_ptr", "");
    if (name.toQString().contains('*'))
        NoteFault(kStarInName);
    if (writer.repairs)
        name = DeclaredName({cls, entry->ordinal});
}
