// The variables that the generated code names its objects by.

#include "conversion/Names.h"

#include "host/db/OdDbClassMap.h"
#include "host/db/OdDbClasses.h"
#include "host/kernel/CFxServices.h"
#include "objects/targets/references.h"
#include "statements/RecordingState.h"
#include "statements/arrays.h"
#include "statements/losses.h"
#include "targets/variables.h"

#include <utility>

using inkmacro::Fault;
using inkmacro::Target;

namespace {

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

} // namespace

OdDbObjectId IdOf(const OdDbHandle& handle)
{
    return ACTIVE_DOCUMENT ? ACTIVE_DOCUMENT->GetDatabase()->getOdDbObjectId(handle) : OdDbObjectId();
}

OdDbObjectId GetNoteLeader(const OdDbHandle& handle)
{
    const OdDbObjectPtr object = IdOf(handle).openObject();
    if (!object)
        return {};
    for (const OdDbObjectId& id : odrxCast<OdDbMText>(object.get())->getPersistentReactors())
        if (odrxQuery<OdDbLeader>(id.openObject().get()))
            return id;
    return {};
}

const OdRxClass* ClassAt(const std::vector<const OdRxClass*>& classes, std::size_t index)
{
    if (index >= classes.size())
        throw OdError_InvalidIndex();
    return classes[index];
}

ActionEntry Names::RegisterObject(const OdDbHandle& handle, const OdRxClass* cls)
{
    unmade_.erase(handle);
    outOfReach_.erase(handle);
    const ActionEntry entry{cls, ++objectCounter_};
    entries_.insert_or_assign(entries_.end(), handle, entry);
    return entry;
}

const ActionEntry* Names::FindEntry(const OdDbHandle& handle) const
{
    // Most asked for is the newest object, which stands last.
    const bool isLast = !entries_.empty() && entries_.rbegin()->first == handle;
    const auto found = isLast ? std::prev(entries_.end()) : entries_.find(handle);
    if (found == entries_.end())
        return nullptr;
    const bool isUnmade = IsUnmade(handle);
    if (isUnmade)
        faults_.noteUnmade();
    if (RecordsOtherTypes(writer_.target))
        faults_.note(otherLanguage);
    if (outOfReach_.contains(handle))
        faults_.note(kOutOfReach);
    return isUnmade && !NamesUnmade() ? nullptr : &found->second;
}

bool Names::IsOtherClass(const ActionEntry& entry, const OdRxClass* told) const
{
    if (told == entry.cls || NumberedVariable(told, 0) == NumberedVariable(entry.cls, 0))
        return false;
    faults_.note(kOtherClass);
    return true;
}

const ActionEntry* Names::FindAs(const OdDbHandle& handle, const OdRxClass* cls) const
{
    const ActionEntry* const entry = FindEntry(handle);
    return entry && IsOtherClass(*entry, cls) && SpelledClass(*entry, cls) != cls ? nullptr : entry;
}

CFxString Names::DeclaredName(const ActionEntry& entry) const
{
    return HasInterface(entry.cls) ? Owned(NumberedVariable(entry.cls, entry.ordinal)) : CFxString();
}

CFxString Names::Owned(const QString& variable) const
{
    return writer_.target == Target::Python ? "drawing." + variable : variable;
}

CFxString Names::VariableOf(const OdRxClass* cls, const OdDbObjectId& id, std::uint32_t ordinal) const
{
    const auto view = odrxQuery<OdDbViewTableRecord>(id.openObject().get());
    return Owned(view && view->isPaperspaceView() ? QStringLiteral("sheetnamedview") + QString::number(ordinal)
                                                  : NumberedVariable(cls, ordinal));
}

EntityList Names::ResolveNames(const CFxCustomActionData& handleArray, const CFxCustomActionData& classArray)
{
    std::vector<CFxString> names = ResolveVariables(handleArray, classArray);
    const std::vector<OdDbHandle>& objects = handleArray.GetHandleArray();
    const std::vector<const OdRxClass*>& classes = classArray.GetClassArray();
    EntityList entities;
    for (std::size_t i = 0; i < objects.size(); ++i) {
        ListedEntity entity{names[i], {}, objects[i].ascii()};
        if (!names[i].isEmpty()) {
            const ActionEntry* const entry = FindEntry(objects[i]);
            CFxString type;
            GetApiTypeName(entry ? SpelledClass(*entry, classes[i]) : classes[i], type, entity.type);
        }
        if (!names[i].isEmpty() || ListsUnnamed())
            entities.push_back(std::move(entity));
    }
    return entities;
}

std::vector<CFxString> Names::ResolveVariables(const CFxCustomActionData& handleArray,
                                               const CFxCustomActionData& classArray)
{
    const std::vector<OdDbHandle>& objects = handleArray.GetHandleArray();
    const std::vector<const OdRxClass*>& classes = classArray.GetClassArray();
    std::vector<CFxString> names(objects.size());
    for (std::size_t i = 0; i < objects.size(); ++i) {
        if (const ActionEntry* const entry = FindEntry(objects[i])) {
            const OdRxClass* const told = ClassAt(classes, i);
            names[i] = DeclaredName({IsOtherClass(*entry, told) ? SpelledClass(*entry, told) : told, entry->ordinal});
        } else if (FetchesUnknown() && i < classes.size()) {
            names[i] = FetchedUnknown(objects[i], classes[i]);
        }
    }
    return names;
}

void Names::ResolveVariable(const OdDbHandle& handle, const OdRxClass* cls, CFxString& name) const
{
    if (const ActionEntry* const entry = FindAs(handle, cls); entry && HasInterface(cls))
        name = SpelledName(cls, entry->ordinal);
}

CFxString Names::Fetched(const OdDbHandle& handle, const OdRxClass* cls)
{
    CFxString& name = fetched_[handle];
    if (name.isEmpty())
        AddFetch(EmitObjectVariable(handle, cls, name));
    return name;
}

CFxString Names::FetchedUnknown(const OdDbHandle& handle, const OdRxClass* cls)
{
    return FetchesUnknown() && HasInterface(cls) ? Fetched(handle, cls) : CFxString();
}

CFxString Names::VariableOfMade(const CFxString& handedOver, const char* className)
{
    if (RecordsOtherTypes(writer_.target))
        faults_.note(otherLanguage);
    if (!handedOver.isEmpty())
        return handedOver;
    faults_.note(kUnnamed);
    return DeclareMade(oddbClassByName(className));
}

CFxString Names::VariableWithoutFetch(const OdDbHandle& handle, const OdRxClass* cls)
{
    if (!FindAs(handle, cls) && HasInterface(cls)) {
        faults_.noteUnmade();
        if (FetchesUnknown())
            return Fetched(handle, cls);
    }
    return NameObject(handle, cls);
}

Statement Names::TakeFetches()
{
    return std::exchange(fetches_, {});
}

void Names::ForgetFetched()
{
    fetched_.clear();
    fetches_.clear();
}

bool Names::NameVariable(const OdDbHandle& handle, const OdRxClass* cls, CFxString& name)
{
    if (!HasInterface(cls))
        return false;
    const ActionEntry* const entry = FindAs(handle, cls);
    name = VariableOf(cls, IdOf(handle), entry ? entry->ordinal : ++objectCounter_);
    return !entry;
}

CFxString Names::NameObject(const OdDbHandle& handle, const OdRxClass* cls)
{
    CFxString name;
    // The fetch that is not written takes its number all the same, where it would have one.
    if (NameVariable(handle, cls, name) && writer_.target != Target::JavaScript)
        ++writer_.UniqueCounter;
    return name;
}

Statement Names::EmitObjectVariable(const OdDbHandle& handle, const OdRxClass* cls, CFxString& name)
{
    if (!NamesUnmade() && cls == OdDbMText::desc() && odrxQuery<OdDbMText>(IdOf(handle).openObject().get()))
        if (const OdDbObjectId leader = GetNoteLeader(handle); !leader.isNull())
            return EmitNoteOfLeader(handle, leader.getHandle(), name);
    if (!NamesUnmade() && IsUnmade(handle)) {
        // By its handle another object would come, if any.
        NoteLoss(ObjectTitle(cls, handle), "no statement inserts the object, so the macro has no variable for it");
        name = CFxString();
        return {};
    }
    if (!NameVariable(handle, cls, name))
        return {};
    if (RecordsOtherTypes(writer_.target))
        faults_.note(otherLanguage);
    return EmitGetObjectByHandle(writer_, FindTypeNames(cls)->type, name, handle);
}

Statement Names::EmitNoteOfLeader(const OdDbHandle& note, const OdDbHandle& leader, CFxString& name)
{
    CFxString leaderName;
    const Statement fetch = EmitObjectVariable(leader, OdDbLeader::desc(), leaderName);
    name = leaderName.isEmpty() ? CFxString() : NameObject(note, OdDbMText::desc());
    return leaderName.isEmpty() ? Statement() : fetch + EmitGetNoteAnnotation(writer_, name, leaderName);
}

CFxString Names::NameAdded(const ActionEntry& entry, const OdRxClass* cls, const OdDbObjectId& id)
{
    added_[id.getHandle()] = {cls, entry.ordinal};
    return VariableOf(cls, id, entry.ordinal);
}

QString Names::AddedVariable(const OdDbObjectId& id) const
{
    const auto found = added_.find(id.getHandle());
    return id.isNull() || found == added_.end() || !FindEntry(id.getHandle())
               ? QString()
               : VariableOf(found->second.cls, id, found->second.ordinal).toQString();
}

QString Names::AddedOrFetched(const OdDbObjectId& id, Statement& fetch)
{
    if (QString added = AddedVariable(id); !added.isEmpty())
        return added;
    faults_.note(inkmacro::emptyPlace);
    const OdDbObjectPtr object = id.openObject();
    CFxString name;
    if (FetchesUnknown() && object && !IsUnmade(id.getHandle()))
        fetch = EmitObjectVariable(id.getHandle(), object->isA(), name);
    // Nothing fetches what the command inserts further down.
    return fetch.isEmpty() ? QString() : name.toQString();
}

QString Names::KnownVariable(const OdDbHandle& handle) const
{
    const ActionEntry* const entry = FindEntry(handle);
    return entry ? VariableOf(entry->cls, IdOf(handle), entry->ordinal).toQString() : QString();
}

const OdRxClass* Names::KnownClass(const OdDbHandle& handle) const
{
    const ActionEntry* const entry = FindEntry(handle);
    return entry ? entry->cls : nullptr;
}

const OdRxClass* Names::DeclaredClass(const OdDbHandle& handle) const
{
    const auto found = entries_.find(handle);
    return found == entries_.end() ? nullptr : found->second.cls;
}

CFxString Names::LendVariable(const OdDbHandle& handle, const OdRxClass* cls)
{
    lent_.insert(handle);
    return VariableOf(cls, IdOf(handle), RegisterObject(handle, cls).ordinal);
}

void Names::TakeBack(const OdDbHandle& handle)
{
    if (lent_.erase(handle) > 0)
        entries_.erase(handle);
}

void Names::EndCommand(bool hides)
{
    for (const OdDbHandle& handle : lent_)
        entries_.erase(handle);
    lent_.clear();
    if (hides)
        outOfReach_.merge(fetchedLayers_);
    fetchedLayers_.clear();
}

namespace {

class RecordedNames final : public Names
{
public:
    using Names::Names;

    bool IsDeclared(const OdDbHandle&) const override { return true; }
    bool NamesUnmade() const override { return true; }
    bool ListsUnnamed() const override { return true; }
    void DropUnnamed(std::vector<CFxString>&) const override {}
    bool KeepNamed(std::vector<CFxString>&, OdArray<OdGePoint3d>&) const override { return true; }
    Statement EmitVariableOfChanged(const OdDbHandle& handle, const OdRxClass* cls, CFxString& name) override
    {
        name = NameObject(handle, cls);
        return {};
    }
    bool FetchesUnknown() const override { return false; }

private:
    const OdRxClass* SpelledClass(const ActionEntry&, const OdRxClass* told) const override { return told; }
    /// Takes the suffixes off after the number was put on, and only the one of smart pointers: in C++ a region or a
    /// view tile gets a name like "iwregion_c*3" here, which no compiler takes.
    CFxString SpelledName(const OdRxClass* told, std::uint32_t ordinal) const override
    {
        CFxString name(FindTypeNames(told)->lower.toQString() + QString::number(ordinal));
        name.replace("_ptr", "");
        if (name.toQString().contains('*'))
            faults_.note(kStarInName);
        return name;
    }
    CFxString DeclareMade(const OdRxClass*) override { return {}; }
};

class RepairedNames final : public Names
{
public:
    using Names::Names;

    bool IsDeclared(const OdDbHandle& handle) const override { return !IsUnmade(handle); }
    bool NamesUnmade() const override { return false; }
    bool ListsUnnamed() const override { return false; }
    void DropUnnamed(std::vector<CFxString>& names) const override
    {
        std::erase_if(names, [](const CFxString& name) { return name.isEmpty(); });
    }
    bool KeepNamed(std::vector<CFxString>& names, OdArray<OdGePoint3d>& points) const override
    {
        if (names.empty())
            return true;
        OdArray<OdGePoint3d> kept;
        for (std::size_t i = 0; i < names.size() && i < points.length(); ++i)
            if (!names[i].isEmpty())
                kept.append(points[static_cast<unsigned>(i)]);
        points = kept;
        DropUnnamed(names);
        return !names.empty();
    }
    Statement EmitVariableOfChanged(const OdDbHandle& handle, const OdRxClass* cls, CFxString& name) override
    {
        return EmitObjectVariable(handle, cls, name);
    }
    bool FetchesUnknown() const override { return true; }

private:
    const OdRxClass* SpelledClass(const ActionEntry& entry, const OdRxClass*) const override { return entry.cls; }
    CFxString SpelledName(const OdRxClass* told, std::uint32_t ordinal) const override
    {
        return DeclaredName({told, ordinal});
    }
    CFxString DeclareMade(const OdRxClass* cls) override
    {
        const ActionEntry entry = NewEntry(cls);
        AddFetch(EmitVariableDeclaration(writer_, entry));
        return DeclaredName(entry);
    }
};

} // namespace

std::unique_ptr<Names> CreateNames(Writer& writer, ActionFaults& faults)
{
    if (writer.repairs)
        return std::make_unique<RepairedNames>(writer, faults);
    return std::make_unique<RecordedNames>(writer, faults);
}
