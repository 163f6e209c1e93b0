// What objects and custom actions of a recording may hold, as a page in Markdown.

#include "app/classesPage.h"

#include "app/LoadedModule.h"
#include "app/valueText.h"
#include "host/db/OdDbClassMap.h"
#include "recordfile/valueForms.h"

#include <algorithm>

namespace inkmacro {

namespace {

const char* const introduction = R"(# Classes

What a recording may say of the objects of each class, so that a macro says it too. `inkmacro classes CLASS` prints the
part of one class; [recording-format.md](recording-format.md) tells how a recording is written.

A property has a tag, in the host's display language, which is English here, and a value. Numbers that are
coordinates and lengths are drawing units, angles radians. A value is one of

| Value | Written as |
|---|---|
| number, whole number | `1.5`, `{"int":3}`; either is taken for the other |
| text | `"abc"` |
| point | `{"point":[1,2,0]}` |
| color | `{"color":{"index":1}}`, `{"color":"bylayer"}` |
| object | `{"id":"2F"}`, its handle |
| transparency | `{"transparency":{"method":2,"alpha":127}}` |
| item | `{"element":{"tag":0,"value":"Yes"}}`: what was chosen, with its number and its word |
| list | `{"collection":{"chosen":0,"elements":[{"tag":0,"value":"Yes"},{"tag":1,"value":"No"}]}}`: all that can be chosen |
| list of points | `{"collection":{"elements":[{"tag":0,"value":{"point":[1,2,0]}}]}}` |
| list of handles | `{"collection":{"elements":[{"tag":0,"value":"2F"}]}}` |
| list of handles as tags | `{"collection":{"elements":[{"tag":"2F","value":0}]}}` |

Where words stand the value is one of them, where they have numbers the value is the number. A value in another form
counts as 0, empty text or no choice, and is reported as assumed. A tag that ends in `*` stands for all that begin so;
*with index* is one whose record needs its number within a repeated property, as `"index":0`. What changed is set, and
what is missing among changes stays as it is. What a class lacks here is reported as lost. What an added object does not
take, as the texts of a table's cells, may be among what a change takes: a `modified` line behind it sets that.

The drawing is what the `object` lines hold, and nothing else: what the recording itself adds is in it when such a line
says it too. What is named by its handle, as a layer, a style or the boundary of a hatch, is looked up there, and so is
what stands below as data of the drawing, as the point by which a block is inserted.
)";

/// "text, item or list"
QString typesOf(const CFxKnownTag& tag)
{
    struct TypeName
    {
        CFxVariant::Type type;
        const char* name;
    };
    constexpr TypeName names[] = {
        {CFxVariant::kDouble, "number"},
        {CFxVariant::kString, "text"},
        {CFxVariant::kPoint3d, "point"},
        {CFxVariant::kColor, "color"},
        {CFxVariant::kId, "object"},
        {CFxVariant::kTransparency, "transparency"},
        {CFxVariant::kCollectionElement, "item"},
        {CFxVariant::kCollection, "list"},
    };
    QStringList found;
    for (const TypeName& name : names)
        if (tag.takes(name.type))
            found.append(name.name);
    return joined(found, "or");
}

QString wordsOf(const CFxKnownTag& tag)
{
    QStringList words;
    for (std::size_t i = 0; i < tag.words.size(); ++i) {
        const auto place = static_cast<std::int32_t>(i);
        const std::int32_t number = tag.bits ? 1 << place : tag.firstWord + place;
        const QString& word = tag.words[i];
        if (tag.content == CFxKnownTag::kWord)
            words.append('`' + word + '`');
        else
            words.append(word == QString::number(number) ? word : QString("%1 %2").arg(number).arg(word));
    }
    return joined(words, "or");
}

QString valueOf(const CFxKnownTag& tag)
{
    switch (tag.content) {
    case CFxKnownTag::kValue:
        return typesOf(tag);
    case CFxKnownTag::kWholeNumber:
        return "whole " + typesOf(tag);
    case CFxKnownTag::kPoints:
        return "list of points";
    case CFxKnownTag::kHandlesInValues:
        return "list of handles";
    case CFxKnownTag::kHandlesInTags:
        return "list of handles as tags";
    case CFxKnownTag::kWord:
    case CFxKnownTag::kNumberOfWord:
        break;
    }
    return wordsOf(tag) + ", as " + typesOf(tag);
}

QString rowOf(const CFxKnownTag& tag, bool ofAdded)
{
    QString name = QString("`%1`").arg(tag.tag);
    if (!tag.group.isEmpty())
        name = QString("any in group `%1`").arg(tag.group);
    if (tag.numbered)
        name += " with index";
    QString row = QString("| %1 | %2 | %3 |").arg(name, valueOf(tag), tag.unit);
    if (ofAdded)
        row += QString(" %1 |").arg(tag.whenMissing.isEmpty() ? QString("not set") : tag.whenMissing.toQString());
    return row + '\n';
}

QString tableOf(const std::vector<CFxKnownTag>& tags, bool ofAdded)
{
    QString table = ofAdded ? "| Tag | Value | Unit | When missing |\n|---|---|---|---|\n"
                            : "| Tag | Value | Unit |\n|---|---|---|\n";
    for (const CFxKnownTag& tag : tags)
        table += rowOf(tag, ofAdded);
    return table;
}

using Tags = std::vector<CFxKnownTag>;

/// Of one kind of records, those that are the class's own.
Tags ownTags(const Tags& all)
{
    Tags own;
    std::ranges::copy_if(all, std::back_inserter(own), [](const CFxKnownTag& tag) { return !tag.ofAllEntities; });
    return own;
}

Tags generalTags(const Tags& all)
{
    Tags general;
    std::ranges::copy_if(all, std::back_inserter(general), &CFxKnownTag::ofAllEntities);
    return general;
}

bool hasRow(const Tags& tags, const CFxKnownTag& tag, bool ofAdded)
{
    return std::ranges::any_of(tags,
                               [&](const CFxKnownTag& other) { return rowOf(other, ofAdded) == rowOf(tag, ofAdded); });
}

/// Tables that repeat that of a class in front refer to it.
class Tables
{
public:
    Tables(const Tags CFxKnownClass::*tags, bool ofAdded) : tags_(tags), ofAdded_(ofAdded) {}

    /// `title` stands in front of a table.
    QString of(const CFxKnownClass& cls, const QString& title)
    {
        Tags own = ownTags(cls.*tags_);
        if (own.empty())
            return {};
        const auto same = std::ranges::find_if(shown_, [&](const CFxKnownClass* shown) {
            return std::ranges::all_of(ownTags(shown->*tags_),
                                       [&](const CFxKnownTag& tag) { return hasRow(own, tag, ofAdded_); });
        });
        if (same == shown_.end()) {
            if (own.size() >= worthReferring)
                shown_.push_back(&cls);
            return '\n' + title + ":\n\n" + tableOf(own, ofAdded_);
        }
        const Tags known = ownTags((*same)->*tags_);
        std::erase_if(own, [&](const CFxKnownTag& tag) { return hasRow(known, tag, ofAdded_); });
        const QString text = QString("\n%1: as of %2").arg(title, (*same)->name);
        return own.empty() ? text + ".\n" : text + ", and\n\n" + tableOf(own, ofAdded_);
    }

private:
    static constexpr std::size_t worthReferring = 20;

    const Tags CFxKnownClass::*tags_;
    bool ofAdded_;
    std::vector<const CFxKnownClass*> shown_;
};

QString nameOf(const std::vector<CFxActionKindName>& kinds, std::int32_t number)
{
    const auto kind = std::ranges::find(kinds, number, &CFxActionKindName::number);
    return QString("%1 (%2)").arg(number).arg(kind == kinds.end() ? QString() : kind->name.toQString());
}

QString repeatedOf(const std::vector<CFxString>& tags)
{
    QStringList words;
    for (const CFxString& tag : tags)
        words.append('`' + tag.toQString() + '`');
    return words.isEmpty()
               ? QString()
               : QString("\nNo loss when nothing takes them, since others say the same: %1.\n").arg(words.join(", "));
}

/// Those that all classes have.
std::vector<CFxString> commonRepeated(const std::vector<CFxKnownClass>& classes)
{
    std::vector<CFxString> common = classes.front().repeatedInAdded;
    for (const CFxKnownClass& cls : classes)
        std::erase_if(common, [&](const CFxString& tag) {
            return std::ranges::find(cls.repeatedInAdded, tag) == cls.repeatedInAdded.end();
        });
    return common;
}

QString sentencesOf(const CFxKnownClass& cls, const std::vector<CFxString>& common,
                    const std::vector<CFxActionKindName>& kinds)
{
    QString text;
    if (cls.madeBy >= 0)
        text += QString("\nA custom action of kind %1 in the same command makes it; without one it is lost.\n")
                    .arg(nameOf(kinds, cls.madeBy));
    else if (!cls.isMade)
        text += "\nNo statement makes an added object.\n";
    if (cls.completedBy >= 0)
        text +=
            QString("\nA custom action of kind %1 in the same command draws it with all that it has; without one it "
                    "has its vertices alone, joined by lines.\n")
                .arg(nameOf(kinds, cls.completedBy));
    if (!cls.emptyLoss.isEmpty())
        text += QString("\nAn added object of which neither records nor the drawing tell enough is lost: %1.\n")
                    .arg(cls.emptyLoss);
    std::vector<CFxString> repeated = cls.repeatedInAdded;
    std::erase_if(repeated, [&](const CFxString& tag) { return std::ranges::find(common, tag) != common.end(); });
    return text + repeatedOf(repeated);
}

/// The drawing's data that the class has beyond those of all entities.
QString drawingDataOf(const CFxString& cls)
{
    const OdDbClassRow* const row = oddbFindClassRow(cls);
    if (!row)
        return {};
    const std::vector<const OdDbField*> common = oddbAllFields(*oddbFindClassRow(OdString("AcDbEntity")));
    QString text;
    for (const OdDbField* const field : oddbAllFields(*row))
        if (std::ranges::find(common, field) == common.end())
            text += QString("| `%1` | %2 |\n").arg(field->key, field->meaning);
    return text.isEmpty()
               ? text
               : "\nData of the drawing that a conversion or a snapshot reads:\n\n| Key | Meaning |\n|---|---|\n" +
                     text;
}

QString formOf(const CFxActionForm& form)
{
    QString text;
    for (std::size_t i = 0; i < form.data.size(); ++i) {
        const CFxActionDatum& datum = form.data[i];
        const bool repeats = i + static_cast<std::size_t>(form.repeated) >= form.data.size();
        const std::string_view key = recordfile::dataType(datum.type);
        const QString type = QString::fromLatin1(key.data(), static_cast<int>(key.size()));
        const QString value =
            datum.type == CFxCustomActionData::kString ? QString("\"%1\"").arg(datum.value) : datum.value.toQString();
        text += QString("%1. `%2`: %3%4\n")
                    .arg(i + 1)
                    .arg(datum.value.isEmpty() ? type : QString("{\"%1\":%2}").arg(type, value), datum.meaning,
                         repeats ? QString("; again and again") : QString());
    }
    return text;
}

QString sectionOf(const CFxActionKindName& kind)
{
    QString text = QString("\n### %1: %2\n").arg(kind.number).arg(kind.name);
    for (const CFxActionForm& form : kind.forms)
        text += '\n' + formOf(form) + (&form == &kind.forms.back() ? "" : "\nor\n");
    return text;
}

const char* const actionsIntroduction = R"(
## Custom actions

The data of each kind, in their order; [recording-format.md](recording-format.md#actions) tells how they are written.
A kind that comes in several forms is told by their number, their types and the values that stand here. Kinds that are
alike stand together.
)";

QString actionsPart(const std::vector<CFxActionKindName>& kinds)
{
    QString text = actionsIntroduction;
    QString last;
    for (const CFxActionKindName& kind : kinds) {
        if (kind.name.toQString() == last)
            continue;
        last = kind.name;
        text += sectionOf(kind);
    }
    return text;
}

/// The page and its parts.
class Parts
{
public:
    Parts(std::vector<CFxKnownClass> classes, std::vector<CFxActionKindName> kinds)
        : classes_(std::move(classes)), kinds_(std::move(kinds)), common_(commonRepeated(classes_))
    {
    }

    QString all() const
    {
        const auto line = std::ranges::find(classes_, CFxString("AcDbLine"), &CFxKnownClass::name);
        QString page = QString(introduction) + "\n## All entities\n" + repeatedOf(common_) + "\nAn added object:\n\n" +
                       tableOf(generalTags(line->added), true) + "\nA changed object:\n\n" +
                       tableOf(generalTags(line->changed), false);
        Tables added(&CFxKnownClass::added, true);
        Tables changed(&CFxKnownClass::changed, false);
        for (const CFxKnownClass& cls : classes_)
            page += '\n' + partOf(cls, added, changed);
        return page + actionsPart(kinds_);
    }

    /// Of one class, with the data of the custom action that goes with it.
    QString of(const QString& name) const
    {
        const CFxKnownClass& cls = *std::ranges::find(classes_, CFxString(name), &CFxKnownClass::name);
        Tables added(&CFxKnownClass::added, true);
        Tables changed(&CFxKnownClass::changed, false);
        QString part = partOf(cls, added, changed);
        QStringList general;
        for (const CFxKnownTag& tag : generalTags(cls.changed))
            general.append(QString("`%1`").arg(tag.tag));
        if (!general.isEmpty())
            part += QString("\nThe tags of all entities stand on the whole page: %1.\n").arg(general.join(", "));
        for (const CFxActionKindName& kind : kinds_)
            if (kind.number == cls.madeBy || kind.number == cls.completedBy)
                part += sectionOf(kind);
        return part;
    }

private:
    QString partOf(const CFxKnownClass& cls, Tables& added, Tables& changed) const
    {
        return QString("## %1\n").arg(cls.name) + sentencesOf(cls, common_, kinds_) + added.of(cls, "An added object") +
               changed.of(cls, "A changed object") + drawingDataOf(cls.name);
    }

    const std::vector<CFxKnownClass> classes_;
    const std::vector<CFxActionKindName> kinds_;
    const std::vector<CFxString> common_;
};

} // namespace

QStringList classNames()
{
    QStringList names;
    for (const CFxKnownClass& cls : LoadedModule()->ListClasses())
        names.append(cls.name);
    std::sort(names.begin(), names.end());
    return names;
}

SchemaNames schemaNames()
{
    const LoadedModule module;
    SchemaNames names;
    for (const CFxKnownClass& cls : module->ListClasses()) {
        names.classes.append(cls.name);
        for (const Tags& tags : {cls.added, cls.changed})
            for (const CFxKnownTag& tag : tags)
                if (!tag.tag.toQString().endsWith('*'))
                    names.tags.append(tag.tag);
    }
    for (QStringList* const list : {&names.classes, &names.tags}) {
        list->sort();
        list->removeDuplicates();
    }
    for (const CFxActionKindName& kind : module->ListActionKinds())
        names.kinds.emplace(kind.number, kind.name);
    return names;
}

QString classesPage(const QString& only)
{
    const LoadedModule module;
    std::vector<CFxKnownClass> classes = module->ListClasses();
    std::ranges::sort(classes, {}, [](const CFxKnownClass& cls) { return cls.name.toQString(); });
    const Parts parts(std::move(classes), module->ListActionKinds());
    return only.isEmpty() ? parts.all() : parts.of(only);
}

} // namespace inkmacro
