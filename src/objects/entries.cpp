// The three kinds of object action that the driver hands over, and the frame around the readers of added objects.

#include "objects/entries.h"

#include "host/db/OdDbClasses.h"
#include "objects/AddedObject.h"
#include "objects/classTable.h"
#include "objects/losses.h"
#include "statements/blocks.h"
#include "statements/losses.h"

#include <QSet>

#include <algorithm>
#include <iterator>
#include <utility>

/// Whether objects of the action's class have statements; notes the loss when they have none.
template<class Action>
static bool hasStatements(const Action& action)
{
    if (IsSupportedClass(action.GetObjectClass()))
        return true;
    NoteLoss(ActionTitle(&action), "objects of its class have no statements");
    return false;
}

std::int32_t ConvertObjectAdded(Conversion& conversion, const CFxObjectAdded& action, Statement& text)
{
    const OdRxClass* const cls = action.GetObjectClass();
    if (!cls)
        return kFxFailure;
    PropertyList read = action.GetProperties();
    PropertyList rest = action.GetExtraProperties();
    if (const auto written = conversion.writtenAttributes.find(action.GetHandle());
        written != conversion.writtenAttributes.end()) {
        std::erase_if(rest, [&](const CFxPropertyChangedPtr& record) {
            return record->GetName() == CFxString("Value") &&
                   record->GetValue(conversion.context).GetString().toQString() == written->second;
        });
        LoseRest(conversion, {cls, action.GetHandle(), {}}, rest, true);
        return kFxSuccess;
    }
    if (!hasStatements(action))
        return kFxSuccess;
    Statement statements;
    ConvertAddedObject(conversion, cls, action.GetHandle(), read, rest, statements);
    text += std::move(statements);
    return kFxSuccess;
}

std::int32_t ConvertObjectModified(Conversion& conversion, const CFxObjectModified& action, Statement& text)
{
    const OdRxClass* const cls = action.GetObjectClass();
    if (!cls)
        return kFxFailure;
    PropertyList list = action.GetProperties();
    if (!hasStatements(action) || list.empty())
        return kFxSuccess;
    const Statement comment = EmitObjectModifiedComment(conversion.writer, cls->name());
    Statement statements;
    ConvertObjectChanges(conversion, cls, action.GetHandle(), list, false, statements);
    if (!statements.isEmpty())
        text += comment + statements;
    return kFxSuccess;
}

/// A property that stands alone is a list of one record, which brings its class and handle along.
std::int32_t ConvertPropertyChanged(Conversion& conversion, CFxPropertyChangedPtr action, Statement& text)
{
    const OdRxClass* const cls = action->GetObjectClass();
    if (!cls)
        return kFxFailure;
    const OdDbHandle handle = action->GetHandle();
    PropertyList list{std::move(action)};
    ConvertObjectChanges(conversion, cls, handle, list, false, text);
    return kFxSuccess;
}

using inkmacro::Target;

namespace {

/// The records of whose tags the other list has none.
PropertyList onlyIn(const PropertyList& list, const PropertyList& other)
{
    QSet<QString> tags;
    for (const CFxPropertyChangedPtr& record : other)
        tags.insert(record->GetName());
    PropertyList found;
    std::ranges::copy_if(list, std::back_inserter(found),
                         [&](const CFxPropertyChangedPtr& record) { return !tags.contains(record->GetName()); });
    return found;
}

PropertyList joined(PropertyList list, const PropertyList& more)
{
    list.insert(list.end(), more.begin(), more.end());
    return list;
}

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

static const inkmacro::Fault kAheadOfHatch{
    "ConvertObjectAdded",
    {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
    "settings of a hatch stand ahead of its insertion"};

/// Of a hatch that an action behind inserts; it takes them in a repaired macro.
static Statement SettingsAhead(Conversion& conversion, const QString& hatch, Statement settings)
{
    if (!conversion.writer.repairs)
        return conversion.writer.faulty(std::move(settings), kAheadOfHatch);
    conversion.waitingSettings[hatch] = std::move(settings);
    return {};
}

void ConvertAddedObject(Conversion& conversion, const OdRxClass* cls, const OdDbHandle& handle, PropertyList& read,
                        PropertyList& rest, Statement& text)
{
    RecordedObject object{cls, handle, {}};
    const ActionEntry* const entry = conversion.names().FindEntry(handle);
    if (!entry) {
        LoseNoteWithoutLeader(conversion, object);
        return;
    }
    const OdDbObjectId id = IdOf(handle);
    object.name = conversion.names().NameAdded(*entry, cls, id);

    // Of two lists with the same records the same ones stay.
    const bool same = read == rest;
    if (same)
        LoseLoneTags(conversion, object, rest, true);
    else
        LoseLoneTags(conversion, object, joined(rest, onlyIn(read, rest)), true);
    PropertyList consumed;
    AddedObject added(conversion, object, id, read, same ? nullptr : &consumed);
    if (const ClassRow* const row = FindClass(cls); row && row->reader)
        text = row->reader(added);
    // General properties are set by the second list alone.
    const PropertyList unheard = same ? PropertyList() : onlyIn(read, rest);
    if (same)
        rest = std::move(read);
    else
        strike(consumed, rest);
    const bool isHatch = cls == OdDbHatch::desc();
    const bool isMade = IsMadeByAction(conversion, object);
    // Settings make no hatch.
    if (isHatch && !isMade && conversion.writer.repairs)
        text.clear();
    if (text.isEmpty() && !isMade)
        conversion.names().SetUnmade(handle);
    // Of a hatch that is inserted general properties are written in any case.
    const bool isInserted = isHatch && isMade && conversion.writer.repairs;
    if (isMade || !text.isEmpty())
        LoseRest(conversion, object, unheard, true);
    if ((text.isEmpty() || isHatch) && !isInserted)
        LoseUnmade(conversion, object, rest, !text.isEmpty());
    if (text.isEmpty() && !isInserted)
        return;

    Statement general;
    ConvertObjectChanges(conversion, cls, handle, rest, true, general);
    // Made at its full length: one that grows is allocated and copied once more.
    text = text + general;
    if (isHatch && isMade && !conversion.insertedHatches.contains(object.name))
        text = SettingsAhead(conversion, object.name, std::move(text));
}
