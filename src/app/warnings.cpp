// What reads well in a recording and is probably not what was meant.

#include "app/warnings.h"

#include "app/LoadedModule.h"
#include "app/StagingFolder.h"
#include "app/conversion.h"
#include "app/notePlaces.h"
#include "host/db/OdDbClassMap.h"
#include "host/kernel/CFxServices.h"
#include "recordfile/nearestName.h"
#include "statements/hostSettings.h"

#include <QRegularExpression>

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <tuple>
#include <utility>

namespace inkmacro {

namespace {

using Warnings = std::vector<Warning>;
using Notes = std::vector<CFxActionNote>;

/// What conversions note of the recording.
struct Told
{
    Notes losses;
    Notes assumptions;
    std::optional<CFxActionPlace> failure; ///< the action by which one came to no macro
};

void addNew(Notes& to, const Notes& notes)
{
    using Key = std::tuple<CFxActionPlace, CFxString, CFxString>;
    std::set<Key> known;
    for (const CFxActionNote& note : to)
        known.emplace(note.where, note.what, note.reason);
    for (const CFxActionNote& note : notes)
        if (known.emplace(note.where, note.what, note.reason).second)
            to.push_back(note);
}

/// VBA has the most statements, and a macro of it is a single file. A repaired macro leaves more out.
Told toldByConversions(const Recording& recording)
{
    Told told;
    const TargetRow& target = *std::ranges::find(targetTable, Target::Vba, &TargetRow::target);
    const std::string name = "check.bas";
    const StagingFolder folder(std::filesystem::temp_directory_path(), {name});
    CFxConversionNotes& notes = GetFxSystemServices()->Notes();
    notes.KeepAll(true);
    GetFxSystemServices()->SetInt16(kIgnoreFaults, 1);
    for (const bool repair : {false, true}) {
        HostSettings host;
        host.repair = repair;
        const std::int32_t status =
            runModule(target, QString::fromStdString(folder.file(name).string()), recording, host);
        if (status != kFxSuccess && !notes.GetLosses().empty())
            told.failure = notes.GetLosses().back().where;
        addNew(told.losses, notes.GetLosses());
        addNew(told.assumptions, notes.GetAssumptions());
    }
    return told;
}

/// Calls `visit` with each action and its place, those within commands too.
template<class Visit>
void forActions(const CFxActionArray& actions, const CFxActionPlace& around, Visit visit)
{
    for (unsigned i = 0; i < actions.length(); ++i) {
        CFxActionPlace place = around;
        place.push_back(i);
        visit(actions[i].get(), place);
        if (const auto command = odrxQuery<CFxUserCommand>(actions[i].get()))
            forActions(command->GetActions(), place, visit);
    }
}

/// The object that an action is of.
struct ObjectAction
{
    bool isAdded = false;
    const OdRxClass* cls = nullptr; ///< null when the action is of none
    OdDbHandle handle;

    explicit ObjectAction(const OdRxObject* action)
    {
        const auto take = [this](const auto& of) {
            cls = of->GetObjectClass();
            handle = of->GetHandle();
        };
        if (const auto added = odrxQuery<CFxObjectAdded>(action)) {
            isAdded = true;
            take(added);
        } else if (const auto modified = odrxQuery<CFxObjectModified>(action)) {
            take(modified);
        } else if (const auto property = odrxQuery<CFxPropertyChanged>(action)) {
            take(property);
        }
    }
};

/// What an action says of its object, of an added one in both lists.
std::vector<PropertyList> recordsOf(const OdRxObject* action)
{
    if (const auto added = odrxQuery<CFxObjectAdded>(action))
        return {added->GetProperties(), added->GetExtraProperties()};
    if (const auto modified = odrxQuery<CFxObjectModified>(action))
        return {modified->GetProperties()};
    if (auto property = odrxQuery<CFxPropertyChanged>(action))
        return {PropertyList{std::move(property)}};
    return {};
}

/// What was meant by names of classes and tags that no statement is known for.
class MeantNames
{
public:
    /// By a note of that action; empty when there is no such name. What the object has under its own tag is not what
    /// was meant by another one.
    QString meant(const CFxActionNote& note, const OdRxObject* action)
    {
        const ObjectAction object(action);
        if (!object.cls)
            return {};
        const auto [known, isNew] = known_.try_emplace({object.cls, object.isAdded, note.property});
        QString& name = known->second;
        if (isNew)
            name = find(note.property, object);
        return name.isEmpty() || isRecorded(name, action) ? QString() : name;
    }

private:
    static bool isRecorded(const QString& tag, const OdRxObject* action)
    {
        return std::ranges::any_of(recordsOf(action), [&](const PropertyList& list) {
            return std::ranges::any_of(
                list, [&](const CFxPropertyChangedPtr& record) { return record->GetName().toQString() == tag; });
        });
    }

    QString find(const QString& tag, const ObjectAction& object)
    {
        if (classes_.empty())
            classes_ = LoadedModule()->ListClasses();
        const auto cls = std::ranges::find(classes_, CFxString(object.cls->name()), &CFxKnownClass::name);
        if (cls == classes_.end())
            return meantClass(object.cls->name());
        return tag.isEmpty() ? tag : meantTag(tag, *cls, object.isAdded);
    }

    /// That the drawing's classes begin alike is no likeness.
    QString meantClass(const QString& written) const
    {
        const QLatin1String prefix("AcDb");
        if (oddbFindClassRow(OdString(written)))
            return {};
        QStringList names;
        QStringList ends;
        for (const CFxKnownClass& cls : classes_) {
            names.append(cls.name);
            ends.append(cls.name.toQString().mid(prefix.size()));
        }
        const bool begins = written.startsWith(prefix, Qt::CaseInsensitive);
        const QString end = begins ? written.mid(prefix.size()) : written;
        if (!begins && !ends.contains(end, Qt::CaseInsensitive))
            return nearestName(written, names);
        const QString nearest = nearestName(end, ends);
        return nearest.isEmpty() ? nearest : prefix + nearest;
    }

    static QStringList tagsOf(const std::vector<CFxKnownTag>& rows)
    {
        QStringList tags;
        for (const CFxKnownTag& row : rows)
            if (row.group.isEmpty())
                tags.append(row.tag);
        return tags;
    }

    static bool isOneOf(const QString& tag, const QStringList& known)
    {
        return std::ranges::any_of(known, [&](const QString& name) {
            return name.endsWith('*') ? tag.startsWith(name.left(name.size() - 1)) : tag == name;
        });
    }

    static QString meantTag(const QString& written, const CFxKnownClass& cls, bool isAdded)
    {
        const QStringList taken = tagsOf(isAdded ? cls.added : cls.changed);
        QStringList names;
        for (QString tag : taken) {
            if (const int number = written.indexOf(QRegularExpression("[0-9]")); tag.endsWith('*') && number >= 0)
                tag = tag.left(tag.size() - 1) + written.mid(number);
            names.append(tag);
        }
        const QString nearest = nearestName(written, names);
        const std::vector<CFxString>& repeated = isAdded ? cls.repeatedInAdded : cls.repeatedInChanged;
        const bool isKnown = isOneOf(written, taken) || isOneOf(written, {repeated.begin(), repeated.end()});
        const bool isOfOthers = isOneOf(written, tagsOf(isAdded ? cls.changed : cls.added)) &&
                                nearest.compare(written, Qt::CaseInsensitive) != 0;
        return isKnown || isOfOthers ? QString() : nearest;
    }

    std::map<std::tuple<const OdRxClass*, bool, CFxString>, QString> known_;
    std::vector<CFxKnownClass> classes_;
};

/// What becomes of the handles of a recording: it may add one twice, or speak of one that nothing has.
class Handles
{
public:
    Handles(const Recording& recording, const Told& told, Warnings& warnings)
        : recording_(recording), warnings_(warnings)
    {
        for (const Notes* const notes : {&told.losses, &told.assumptions})
            for (const CFxActionNote& note : *notes)
                notes_[note.where].push_back(&note);
        for (const CFxActionKindName& kind : LoadedModule()->ListActionKinds())
            for (const CFxActionForm& form : kind.forms)
                for (std::size_t i = 0; i < form.data.size(); ++i)
                    if (form.data[i].makes)
                        making_.insert({kind.number, static_cast<std::int32_t>(i), form.data[i].type});
    }

    void addDoubled()
    {
        std::map<OdDbHandle, qint64> lines;
        forActions(recording_.actions, {}, [&](const OdRxObject* action, const CFxActionPlace& place) {
            const auto added = odrxQuery<CFxObjectAdded>(action);
            if (!added)
                return;
            const qint64 line = lineOf(place, recording_);
            const auto [first, isNew] = lines.try_emplace(added->GetHandle(), line);
            if (!isNew)
                add(place, QString("handle %1 has been added in line %2 already")
                               .arg(added->GetHandle().ascii())
                               .arg(first->second));
        });
    }

    void addLoose()
    {
        forActions(recording_.actions, {}, [&](const OdRxObject* action, const CFxActionPlace& place) {
            if (const auto added = odrxQuery<CFxObjectAdded>(action))
                beginnings_.try_emplace(added->GetHandle(), place.front());
            else if (const auto custom = odrxQuery<CFxCustomAction>(action))
                forHandles(*custom, [&](const OdDbHandle& handle, bool isMade) {
                    if (isMade)
                        beginnings_.try_emplace(handle, place.front());
                });
        });
        forActions(recording_.actions, {},
                   [&](const OdRxObject* action, const CFxActionPlace& place) { look(action, place); });
    }

private:
    struct Datum
    {
        std::int32_t kind;
        std::int32_t index;
        CFxCustomActionData::_Type type;
        auto operator<=>(const Datum&) const = default;
    };

    /// Calls `visit` with each handle in the data, and whether it is that of what the action makes.
    template<class Visit>
    void forHandles(const CFxCustomAction& action, Visit visit) const
    {
        for (std::int32_t i = 0; i < action.GetDataCount(); ++i) {
            const CFxCustomActionData& datum = action.GetData(i);
            const bool isMade = making_.contains({action.GetKind(), i, datum.GetType()});
            visit(datum.GetHandle(), isMade);
            for (const OdDbHandle& handle : datum.GetHandleArray())
                visit(handle, isMade);
            for (const OdDbObjectId& id : datum.GetObjectIdArray())
                visit(id.getHandle(), isMade);
        }
    }

    void look(const OdRxObject* action, const CFxActionPlace& place)
    {
        if (const auto custom = odrxQuery<CFxCustomAction>(action))
            return forHandles(*custom, [&](const OdDbHandle& handle, bool) { lookFor(handle, place); });
        if (const auto selection = odrxQuery<CFxUserSelection>(action)) {
            for (const OdDbHandle& handle : selection->GetHandles())
                lookFor(handle, place);
            return;
        }
        const ObjectAction object(action);
        // A macro finds a sheet by the name in its records.
        if (object.cls && !object.isAdded && object.cls != OdDbLayout::desc())
            lookFor(object.handle, place);
        for (const PropertyList& list : recordsOf(action))
            for (const CFxPropertyChangedPtr& record : list)
                lookAt(*record, place);
    }

    /// A conversion tells of a property itself.
    void lookAt(const CFxPropertyChanged& record, const CFxActionPlace& place)
    {
        const CFxVariant value = record.GetValue(static_cast<CFxValueContext>(recording_.header.context));
        if (value.GetType() != CFxVariant::kId)
            return;
        const OdDbHandle handle = value.GetId().getHandle();
        if (isNoted(place, [&](const CFxActionNote& note) { return note.property == record.GetName(); }))
            told_.insert(handle);
        else
            lookFor(handle, place);
    }

    /// Tells of a handle once, where it is spoken of first, unless the conversion has told of it there.
    void lookFor(const OdDbHandle& handle, const CFxActionPlace& place)
    {
        if (handle.isNull() || told_.contains(handle) || recording_.database->findOdDbObjectId(handle).openObject(true))
            return;
        const auto beginning = beginnings_.find(handle);
        const bool isThere = beginning != beginnings_.end();
        // The children of a command may refer to later ones.
        if (isThere && beginning->second <= place.front())
            return;
        const QString text = handle.ascii();
        if (isNoted(place, [&](const CFxActionNote& note) {
                return note.what.toQString().split(' ').contains(text) ||
                       note.reason.toQString().split(' ').contains(text);
            }))
            return;
        told_.insert(handle);
        add(place,
            isThere
                ? QString("handle %1 is added in line %2 only").arg(text).arg(lineOf({beginning->second}, recording_))
                : QString("handle %1 refers to nothing: neither the drawing nor the recording has it").arg(text));
    }

    template<class Predicate>
    bool isNoted(const CFxActionPlace& place, Predicate predicate) const
    {
        const auto notes = notes_.find(place);
        return notes != notes_.end() &&
               std::ranges::any_of(notes->second, [&](const CFxActionNote* note) { return predicate(*note); });
    }

    void add(const CFxActionPlace& place, const QString& message)
    {
        warnings_.push_back({lineOf(place, recording_), pathOf(place), "handle", message});
    }

    const Recording& recording_;
    Warnings& warnings_;
    std::map<CFxActionPlace, std::vector<const CFxActionNote*>> notes_;
    std::set<Datum> making_;
    /// The top-level action from which on there is an object of that handle.
    std::map<OdDbHandle, std::uint32_t> beginnings_;
    std::set<OdDbHandle> told_;
};

} // namespace

std::vector<Warning> warningsOf(const Recording& recording)
{
    const Told told = toldByConversions(recording);
    Warnings warnings;
    if (told.failure)
        warnings.push_back({lineOf(*told.failure, recording), pathOf(*told.failure), "failed",
                            "a conversion ends here without a macro, because of what is lost"});
    Handles handles(recording, told, warnings);
    handles.addDoubled();
    handles.addLoose();
    MeantNames names;
    // What is missing under these tags has been told with the ones that are wrong: losses come first.
    std::set<std::pair<CFxActionPlace, CFxString>> meantTags;
    const auto add = [&](const Notes& notes, const QString& kind) {
        for (const CFxActionNote& note : notes) {
            if (meantTags.contains({note.where, note.property}))
                continue;
            const QString meant = names.meant(note, actionAt(note.where, recording).get());
            if (!meant.isEmpty())
                meantTags.emplace(note.where, meant);
            warnings.push_back(
                {lineOf(note.where, recording), pathOf(note.where), kind,
                 QString("%1: %2: %3%4")
                     .arg(kind, note.what.toQString(), note.reason.toQString(), didYouMean(meant, {meant}))});
        }
    };
    add(told.losses, "lost");
    add(told.assumptions, "assumed");
    std::ranges::stable_sort(warnings, {}, &Warning::line);
    return warnings;
}

} // namespace inkmacro
