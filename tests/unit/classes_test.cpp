#include "TestActions.h"
#include "TestDrawing.h"
#include "TestHandlers.h"
#include "TestTarget.h"

#include "actions/dataWords.h"
#include "actions/handlers.h"
#include "objects/classTable.h"
#include "objects/entries.h"
#include "objects/knownTags.h"
#include "objects/losses.h"
#include "recordfile/RecordingReader.h"
#include "statements/counters.h"

#include <QDirIterator>
#include <QScopedValueRollback>

namespace {

constexpr std::uint64_t kObject = 0x100;

/// An open drawing that has an object of the class and what values name, two of each kind.
struct Surroundings
{
    explicit Surroundings(const char* objectClass)
    {
        const QString cls(objectClass);
        if (const OdDbClassRow* const row = oddbFindClassRow(cls); row && row->create)
            drawing.add(kObject, objectClass,
                        cls == "AcDbViewport" ? TestFields{{"isNonRectClipOn", true}} : TestFields());
        for (const char* cls : {"AcDbLayerTableRecord", "AcDbLinetypeTableRecord", "AcDbTextStyleTableRecord"})
            for (const char* name : {"one", "two"})
                drawing.add(next++, cls, {{"name", OdString(name)}});
    }

    /// Of the class that the tag's name tells.
    OdDbObjectId id(const QString& tag, int which)
    {
        const int place = tag == "Layer" ? 0 : tag == "Style" || tag == "TextStyle" ? 2 : 1;
        return drawing.id(static_cast<std::uint64_t>(1 + 2 * place + which));
    }

    std::uint64_t next = 1;
    TestDrawing drawing;
};

CFxVariantCollectionElement item(std::int32_t number, const CFxString& word)
{
    return {number, word};
}

/// One of two values of the type that the form takes; they mean different things.
CFxVariant sample(Surroundings& around, const AskedTag& asked, CFxVariant::Type type, int which)
{
    const ValueForm& form = asked.form;
    std::int32_t number = which == 0 ? 13 : 25; // line weights are among these
    if (form.byValue)
        number = form.byValue->bits ? 1 << which : form.byValue->firstValue + which;
    CFxString word(which == 0 ? "abc" : "xyz");
    if (const std::vector<QString> words = WordsOf(form); !words.empty())
        word = words[static_cast<std::size_t>(which)];
    switch (type) {
    case CFxVariant::kInt32:
        return number;
    case CFxVariant::kDouble:
        return static_cast<double>(number);
    case CFxVariant::kString:
        return word;
    case CFxVariant::kPoint3d:
        return OdGePoint3d{1.0 + which, 2.0, 3.0};
    case CFxVariant::kColor:
        return OdCmColor::byIndex(static_cast<std::uint16_t>(1 + which));
    case CFxVariant::kId:
        return around.id(asked.tag, which);
    case CFxVariant::kTransparency:
        return OdCmTransparency{OdCmTransparency::ByAlpha, static_cast<std::uint8_t>(50 * which)};
    case CFxVariant::kCollectionElement:
        return item(number, word);
    default:
        break;
    }
    std::vector<CFxVariantCollectionElement> elements;
    if (form.content == ValueForm::kPoints) {
        for (int i = 0; i < 4; ++i)
            elements.emplace_back(i, OdGePoint3d{1.0 * i, 1.0 + which, 0.0});
    } else if (form.content == ValueForm::kHandlesInValues || form.content == ValueForm::kHandlesInTags) {
        const CFxString handle("101");
        if (which == 1)
            elements.emplace_back(form.content == ValueForm::kHandlesInTags ? handle : CFxString(),
                                  form.content == ValueForm::kHandlesInTags ? CFxString() : handle);
    } else {
        // Where words are known, their places are too.
        std::vector<QString> words = WordsOf(form);
        const std::int32_t chosen = words.empty() ? number : which;
        words.resize(std::max(words.size(), static_cast<std::size_t>(chosen) + 1), word);
        for (const QString& each : words)
            elements.push_back(item(static_cast<std::int32_t>(elements.size()), each));
        return CFxVariantCollection(std::move(elements), chosen);
    }
    return CFxVariantCollection(std::move(elements));
}

CFxPropertyChangedPtr recordOf(const AskedTag& asked, const CFxVariant& value)
{
    QString tag = asked.tag;
    if (!asked.group.isEmpty())
        tag = "MARK";
    else if (tag.endsWith('*'))
        tag = tag.chopped(1) + "0_0";
    return odrxNew<TestProperty>(tag, value, asked.group, asked.numbered ? CFxVariant(0) : CFxVariant());
}

/// What becomes of the records of the object, which the macro knows; `rest` receives those that nothing took.
std::string convertedRecords(const char* name, bool added, const PropertyList& records, PropertyList& rest)
{
    const QScopedValueRollback<ProcessCounters> numbers(processCounters, ProcessCounters());
    TestTarget csharp(inkmacro::Target::CSharp);
    const OdRxClass* const cls = oddbClassByName(name);
    csharp.conversion.names().RegisterObject(OdDbHandle(kObject), cls);
    csharp.conversion.names().RegisterObject(OdDbHandle(0x101), oddbClassByName("AcDbLine"));
    PropertyList read = records;
    rest = records;
    Statement text;
    if (added)
        ConvertAddedObject(csharp.conversion, cls, OdDbHandle(kObject), read, rest, text);
    else
        ConvertObjectChanges(csharp.conversion, cls, OdDbHandle(kObject), rest, false, text);
    return textOf(text).toStdString();
}

std::vector<CFxVariant::Type> typesOf(const ValueForm& form)
{
    std::vector<CFxVariant::Type> types;
    for (int type = CFxVariant::kInt32; type <= CFxVariant::kTransparency; ++type)
        if ((form.types & 1U << type) != 0)
            types.push_back(static_cast<CFxVariant::Type>(type));
    return types;
}

/// What has no statement of its own: a coordinate beyond the plane that the insertion takes, and the sizes of a table
/// as a whole, which its other changes are compared with.
bool isSilent(const QString& cls, const QString& tag, bool added)
{
    static const std::map<QString, QStringList> silent{
        {"AcDbEllipse added", {"Center Z", "Major axis vector Z"}},
        {"AcDbTable added", {"Position Z", "Table height", "Table width"}},
        {"AcDbTable changed", {"Table height", "Table width", "Rows", "Columns"}},
    };
    const auto found = silent.find(cls + (added ? " added" : " changed"));
    return found != silent.end() && found->second.contains(tag);
}

CFxPropertyChangedPtr textRecord(const char* tag, const char* text)
{
    return odrxNew<TestProperty>(CFxString(tag), CFxString(text));
}

/// The records without which that one is not asked for, or says nothing.
PropertyList companions(const QString& cls, const QString& tag, bool added)
{
    PropertyList records;
    if (cls == "AcDbAttributeDefinition" && added && tag.startsWith("Position"))
        records = {textRecord("Justify", "Left")};
    else if (cls == "AcDbHatch" && added)
        records = {odrxNew<TestProperty>(CFxString("Origin X"), 1.0)};
    else if (cls == "AcDbArcDimension" && added)
        records = {odrxNew<TestProperty>(CFxString("isPartial"), std::int32_t{1})};
    else if (cls == "AcDbBlockTableRecord" && !added)
        records = {odrxNew<TestProperty>(
            CFxString("Objects"), CFxVariantCollection({CFxVariantCollectionElement(CFxVariant(), CFxString("101"))}))};
    else if (cls == "AcDbLayout")
        records = {textRecord("PrintStyleTable", "a.ctb"), textRecord("Model_PrintStyleTable", "No"),
                   textRecord("SheetName_PrintStyleTable", "A1")};
    std::erase_if(records, [&](const CFxPropertyChangedPtr& record) { return record->GetName().toQString() == tag; });
    return records;
}

} // namespace

TEST(Classes, EachTagSaysWhatItsFormSays)
{
    for (const ClassRow& row : ClassTable()) {
        if (!IsSupportedClass(oddbClassByName(row.name)))
            continue;
        Surroundings around(row.name);
        const KnownTags tags = TagsOf(row);
        for (const bool added : {true, false})
            for (const AskedTag& asked : added ? tags.added : tags.changed) {
                if (isSilent(row.name, asked.tag, added))
                    continue;
                for (const CFxVariant::Type type : typesOf(asked.form)) {
                    PropertyList rest;
                    const auto made = [&](int which) {
                        PropertyList records = companions(row.name, asked.tag, added);
                        records.push_back(recordOf(asked, sample(around, asked, type, which)));
                        return convertedRecords(row.name, added, records, rest);
                    };
                    EXPECT_NE(made(0), made(1)) << row.name << (added ? " added: " : " changed: ")
                                                << asked.tag.toStdString() << " of type " << type;
                }
            }
    }
}

TEST(Classes, WhatIsTakenWhenATagIsMissingIsAsIfItStoodThere)
{
    for (const ClassRow& row : ClassTable()) {
        const Surroundings around(row.name);
        for (const AskedTag& asked : TagsOf(row).added) {
            bool isNumber = false;
            const double number = asked.whenMissing.toDouble(&isNumber);
            if (!isNumber || (asked.form.types & 1U << CFxVariant::kDouble) == 0)
                continue;
            PropertyList rest;
            EXPECT_EQ(convertedRecords(row.name, true, {recordOf(asked, number)}, rest),
                      convertedRecords(row.name, true, {}, rest))
                << row.name << ' ' << asked.tag.toStdString();
        }
    }
}

namespace {

bool isListed(const std::vector<AskedTag>& tags, const CFxPropertyChanged& record)
{
    return std::ranges::any_of(tags, [&](const AskedTag& known) {
        if (!known.group.isEmpty())
            return record.GetGroup().equalNoCase(known.group);
        return known.tag.endsWith('*') ? record.GetName().toQString().startsWith(known.tag.chopped(1))
                                       : record.GetName().toQString() == known.tag;
    });
}

/// Expects that nothing takes the records which are not listed.
void expectListed(const OdRxClass* cls, bool added, const PropertyList& records)
{
    const ClassRow* const row = FindClass(cls);
    if (!row)
        return;
    static std::map<QString, KnownTags> known;
    const auto [tags, isNew] = known.try_emplace(row->name);
    if (isNew)
        tags->second = TagsOf(*row);
    for (const CFxPropertyChangedPtr& record : records) {
        if (isListed(added ? tags->second.added : tags->second.changed, *record))
            continue;
        PropertyList rest;
        convertedRecords(row->name, added, {record}, rest);
        EXPECT_EQ(rest.size(), 1U) << row->name << (added ? " added: " : " changed: ")
                                   << record->GetName().toQString().toStdString();
    }
}

int expectAllListed(const CFxActionArray& actions)
{
    int objects = 0;
    for (const OdRxObjectPtr& action : actions) {
        if (const auto command = odrxQuery<CFxUserCommand>(action.get()))
            objects += expectAllListed(command->GetActions());
        if (const auto added = odrxQuery<CFxObjectAdded>(action.get())) {
            expectListed(added->GetObjectClass(), true, added->GetProperties());
            ++objects;
        }
        if (const auto modified = odrxQuery<CFxObjectModified>(action.get())) {
            expectListed(modified->GetObjectClass(), false, modified->GetProperties());
            ++objects;
        }
    }
    return objects;
}

} // namespace

TEST(Classes, EachTagThatAScenarioTakesIsListed)
{
    int objects = 0;
    for (const char* folder : {"/tests/scenarios", "/examples"}) {
        QDirIterator files(QString(INKMACRO_SOURCE_DIR) + folder, {"*.jsonl"}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            inkmacro::Recording recording;
            ASSERT_FALSE(inkmacro::ReadRecording(files.next(), recording)) << files.filePath().toStdString();
            CFxDocument document(recording.database.get());
            GetFxSystemServices()->SetActiveDocument(&document);
            objects += expectAllListed(recording.actions);
            GetFxSystemServices()->SetActiveDocument(nullptr);
        }
    }
    EXPECT_GT(objects, 300);
}

TEST(Classes, ListingLeavesNumbersOfNamesAndNotesAsTheyAre)
{
    CFxConversionNotes& notes = GetFxSystemServices()->Notes();
    notes.Forget();
    notes.NoteLoss("a line", "for a reason");
    const QScopedValueRollback<std::uint32_t> number(processCounters.layerManagers, 7);
    for (const ClassRow& row : ClassTable())
        TagsOf(row);
    EXPECT_EQ(processCounters.layerManagers, 7U);
    EXPECT_EQ(notes.GetLossCount(), 1U);
    notes.Forget();
}

namespace {

/// Keeps the numbers of the data that are asked for.
class WatchedCustom final : public CFxCustomAction
{
public:
    WatchedCustom(std::int32_t kind, TestData values) : kind_(kind), data_(values.begin(), values.end()) {}
    std::int32_t GetKind() const override { return kind_; }
    std::int32_t GetDataCount() const override { return static_cast<std::int32_t>(data_.size()); }
    const CFxCustomActionData& GetData(std::int32_t index) const override
    {
        if (index < 0 || index >= GetDataCount())
            throw OdError_InvalidIndex();
        read.insert(index);
        return data_[static_cast<std::size_t>(index)];
    }

    mutable std::set<std::int32_t> read;

private:
    std::int32_t kind_;
    std::vector<CFxCustomActionData> data_;
};

const char* classOfKind(std::int32_t kind)
{
    switch (kind) {
    case inkmacro::kPolyline:
    case 40:
    case 42:
        return "AcDbPolyline";
    case inkmacro::kNamedView:
    case inkmacro::kViewBackground:
        return "AcDbViewTableRecord";
    case inkmacro::kViewport:
        return "AcDbViewport";
    case inkmacro::kViewTiles:
        return "AcDbViewportTableRecord";
    case 39:
        return "AcDbBlockReference";
    case 48:
        return "AcDbRasterImage";
    default:
        return "AcDbLine";
    }
}

CFxCustomActionData::Value datum(std::int32_t kind, const inkmacro::DatumWords& words)
{
    const OdDbHandle handle(0x101);
    const OdRxClass* const cls = oddbClassByName(classOfKind(kind));
    const QString value(words.value);
    OdArray<OdGePoint3d> points;
    OdArray<OdGePoint2d> planePoints;
    OdArray<double> numbers;
    for (int i = 0; i < 6; ++i) {
        points.append({1.0 * i, 2.0, 0.0});
        planePoints.append({1.0 * i, 2.0});
        numbers.append(0.5);
    }
    OdArray<int> counts;
    counts.append(6);
    switch (words.type) {
    case CFxCustomActionData::kString:
        return CFxString(!value.isEmpty() ? value : kind == 33 ? QString("CMDECHO") : QString("abc"));
    case CFxCustomActionData::kBool:
        return value == "true" || kind == inkmacro::kPolyline;
    case CFxCustomActionData::kInt:
        return 0;
    case CFxCustomActionData::kInt16:
        return std::int16_t{1};
    case CFxCustomActionData::kDouble:
        return 1.5;
    case CFxCustomActionData::kHandle:
        return handle;
    case CFxCustomActionData::kClass:
        return cls;
    case CFxCustomActionData::kHandleArray:
        return std::vector<OdDbHandle>{handle};
    case CFxCustomActionData::kClassArray:
        return std::vector<const OdRxClass*>{cls};
    case CFxCustomActionData::kPoint:
        return OdGePoint3d{1.0, 2.0, 3.0};
    case CFxCustomActionData::kVector:
        return OdGeVector3d{1.0, 2.0, 3.0};
    case CFxCustomActionData::kPointArray:
        return points;
    case CFxCustomActionData::k2dPointArray:
        return planePoints;
    case CFxCustomActionData::kDoubleArray:
        return numbers;
    case CFxCustomActionData::kIntArray:
        return counts;
    case CFxCustomActionData::kObjectIdArray:
        return OdArray<OdDbObjectId>();
    case CFxCustomActionData::kColor:
        return OdCmColor::byIndex(1);
    case CFxCustomActionData::kStringArray:
        break;
    }
    return std::vector<CFxString>();
}

} // namespace

TEST(Classes, TheDataOfEachFormOfCustomActionsAreTold)
{
    TestDrawing drawing;
    std::set<const inkmacro::ActionForm*> told;
    for (const inkmacro::DataWords& words : inkmacro::AllDataWords()) {
        TestData data;
        for (const inkmacro::DatumWords& known : words.data)
            data.push_back(datum(words.kind, known));
        const auto action = odrxNew<WatchedCustom>(words.kind, data);
        const inkmacro::ActionForm* const form = inkmacro::FormOf(*action);
        ASSERT_TRUE(form) << words.kind << ' ' << words.data.begin()->meaning;
        told.insert(form);
        if (form->handler == &ConvertActionCornersOfPolyline)
            continue;
        TestTarget csharp(inkmacro::Target::CSharp);
        csharp.conversion.names().RegisterObject(OdDbHandle(0x101), oddbClassByName(classOfKind(words.kind)));
        action->read.clear();
        Statement text;
        if (form->handler)
            form->handler(csharp.conversion, *action, text);
        else
            form->statements(csharp.writer, *action);
        std::int32_t index = 0;
        for (const inkmacro::DatumWords& known : words.data) {
            const bool unused = known.value || QLatin1String(known.meaning) == QLatin1String("not used");
            EXPECT_TRUE(unused || action->read.contains(index)) << words.kind << ' ' << known.meaning;
            EXPECT_FALSE(!known.value && unused && action->read.contains(index)) << words.kind << ' ' << index;
            ++index;
        }
    }
    for (const inkmacro::KindHandlers& kind : inkmacro::actionHandlers)
        for (const inkmacro::ActionForm& form : kind.forms())
            EXPECT_TRUE(told.contains(&form)) << kind.numbers.first << " form " << &form - kind.forms().data();
}

TEST(Classes, TellWhatIsLostWhenNothingIsKnownOfAnObject)
{
    const auto lossOf = [](const char* cls) { return TagsOf(*FindClass(QString(cls))).emptyLoss.toQString(); };
    EXPECT_EQ(lossOf("AcDbRadialDimension"), "neither records nor the drawing tell what it measures");
    EXPECT_EQ(lossOf("AcDbLinetypeTableRecord"), "its name is not recorded");
    EXPECT_EQ(lossOf("AcDbAlignedDimension"), "");
    EXPECT_EQ(lossOf("AcDbRegion"), "");
}
