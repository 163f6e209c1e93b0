// What a snapshot adds for an object, by class.

#include "TestDrawing.h"

#include "host/kernel/CFxUtils.h"
#include "objects/snapshot.h"
#include "statements/RecordingState.h"
#include "statements/enumerations.h"

#include <QCoreApplication>
#include <QStringList>
#include <QTranslator>

#include <set>

namespace {

QString shown(const CFxVariant& value)
{
    switch (value.GetType()) {
    case CFxVariant::kInt32:
        return QString("int %1").arg(value.GetInt32());
    case CFxVariant::kDouble:
        return QString::number(value.GetDouble());
    case CFxVariant::kString:
        return '"' + value.GetString().toQString() + '"';
    case CFxVariant::kPoint3d: {
        const OdGePoint3d point = value.GetPoint3d();
        return QString("(%1 %2 %3)").arg(point.x).arg(point.y).arg(point.z);
    }
    case CFxVariant::kColor:
        return QString("color %1").arg(value.GetColor().colorIndex());
    case CFxVariant::kCollection: {
        QStringList elements;
        for (const CFxVariantCollectionElement& element : value.GetCollection().GetCollectionDataForRead())
            elements.append(shown(*element.GetTag()) + ": " + shown(*element.GetValue()));
        return '[' + elements.join(", ") + ']';
    }
    default:
        return "unexpected";
    }
}

/// The records behind "Erased", a line each.
QStringList recordsOf(const OdDbObjectPtr& object)
{
    std::vector<CFxVariantCollectionElement> records;
    TakeSnapshot(object.get(), records);
    QStringList lines;
    for (const CFxVariantCollectionElement& record : records)
        lines.append(record.GetTag()->GetString().toQString() + " = " + shown(*record.GetValue()));
    EXPECT_EQ(lines.value(0), object->isErased() ? "Erased = \"YES\"" : "Erased = \"NO\"");
    lines.removeFirst();
    return lines;
}

class Snapshot : public testing::Test
{
protected:
    Snapshot()
    {
        RecordingSheetName = CFxString();
        RecordingInModel = true;
    }
    ~Snapshot() override
    {
        RecordingSheetName = CFxString();
        RecordingInModel = true;
    }

    QStringList recordsOf(const char* cls, const TestFields& fields)
    {
        return ::recordsOf(drawing.add(0x100, cls, fields));
    }

    TestDrawing drawing;
};

constexpr OdGePoint3d p1{1, 2, 3};
constexpr OdGePoint3d p2{4, 5, 6};
constexpr OdGePoint3d p3{7, 8, 9};
constexpr OdGePoint3d p4{0.5, 0, 0};
constexpr OdGePoint3d p5{0, 0.5, 0};

TEST_F(Snapshot, TellsTheDataOfAClassInItsOrder)
{
    const struct
    {
        const char* cls;
        TestFields fields;
        QStringList records;
    } cases[] = {
        {"AcDbLine", {}, {}},
        {"AcDbGroup", {}, {}},
        {"AcDbAlignedDimension",
         {{"xLine1Point", p1}, {"xLine2Point", p2}, {"dimLinePoint", p3}},
         {"xLine1Point = (1 2 3)", "xLine2Point = (4 5 6)", "dimLinePoint = (7 8 9)"}},
        {"AcDb2LineAngularDimension",
         {{"xLine1Start", p1}, {"xLine1End", p2}, {"xLine2Start", p3}, {"xLine2End", p4}, {"arcPoint", p5}},
         {"xLine1Start = (1 2 3)", "xLine1End = (4 5 6)", "xLine2Start = (7 8 9)", "xLine2End = (0.5 0 0)",
          "arcPoint = (0 0.5 0)"}},
        {"AcDb3PointAngularDimension",
         {{"centerPoint", p1}, {"xLine1Point", p2}, {"xLine2Point", p3}, {"arcPoint", p4}},
         {"centerPoint = (1 2 3)", "xLine1Point = (4 5 6)", "xLine2Point = (7 8 9)", "arcPoint = (0.5 0 0)"}},
        {"AcDbArcDimension",
         {{"xLine1Point", p1}, {"xLine2Point", p2}, {"centerPoint", p3}, {"isPartial", true}, {"arcPoint", p4}},
         {"xLine1Point = (1 2 3)", "xLine2Point = (4 5 6)", "centerPoint = (7 8 9)", "isPartial = int 1",
          "arcPoint = (0.5 0 0)"}},
        {"AcDbOrdinateDimension",
         {{"definingPoint", p1}, {"leaderEndPoint", p2}, {"isUsingXAxis", false}, {"origin", p3}},
         {"definingPoint = (1 2 3)", "leaderEndPoint = (4 5 6)", "isUsingXAxis = int 0", "setZero = (7 8 9)"}},
        {"AcDbRotatedDimension",
         {{"xLine1Point", p1}, {"xLine2Point", p2}, {"dimLinePoint", p3}, {"rotation", 0.25}},
         {"xLine1Point = (1 2 3)", "xLine2Point = (4 5 6)", "dimLinePoint = (7 8 9)", "rotation = 0.25"}},
        {"AcDbDiametricDimension", {{"chordPoint", p1}}, {"chordPoint = (1 2 3)"}},
        {"AcDbRadialDimension", {{"chordPoint", p1}}, {"chordPoint = (1 2 3)"}},
        {"AcDbRadialDimensionLarge", {}, {}},
        {"AcDbMline",
         {{"vertices", OdArray<OdGePoint3d>{p1, p2}}, {"closedMline", true}},
         {"vertices = [int 0: (1 2 3), int 1: (4 5 6)]", "closedMline = int 1"}},
        {"AcDbMline", {}, {"vertices = []", "closedMline = int 0"}},
        {"AcDbFcf", {{"text", "{\\Fgdt;j}%%v0.1"}}, {"Content = \"{\\Fgdt;j}%%v0.1\""}},
        {"AcDbTable",
         {{"rowHeights", OdArray<double>{10.0, 20.0}},
          {"columnWidths", OdArray<double>{30.0, 40.0}},
          {"textStrings", OdArray<OdArray<OdString>>{{"Part", "Count"}, {"Bolt"}}}},
         {"Contents_0_0 = \"Part\"", "ColumnWidth_0 = 30", "Contents_0_1 = \"Count\"", "ColumnWidth_1 = 40",
          "RowHeight_0 = 10", "Contents_1_0 = \"Bolt\"", "Contents_1_1 = \"\"", "RowHeight_1 = 20"}},
        {"AcDbTable", {{"columnWidths", OdArray<double>{30.0}}}, {}},
        {"AcDbMText",
         {{"useBackgroundColorOn", true},
          {"backgroundFillColor", std::optional(OdCmColor::byIndex(3))},
          {"backgroundScaleFactor", 1.25},
          {"actualHeight", 12.0}},
         {"UseDrawingBackgroundColor = \"YES\"", "BackgroundFillColor = color 3", "BackgroundBorderOffsetFactor = 1.25",
          "TextBoxHeight = 12"}},
        {"AcDbMText",
         {{"actualHeight", 2.5}},
         {"UseDrawingBackgroundColor = \"NO\"", "BackgroundBorderOffsetFactor = 1.5", "TextBoxHeight = 2.5"}},
        {"AcDbLayout",
         {{"layoutName", "A3"}, {"currentStyleSheet", "mono.ctb"}, {"modelType", false}},
         {"PrintStyleTable = \"mono.ctb\"", "Model_PrintStyleTable = \"No\"", "SheetName_PrintStyleTable = \"A3\""}},
        {"AcDbLayout", {{"layoutName", "A3"}}, {}},
    };
    for (const auto& [cls, fields, records] : cases)
        EXPECT_EQ(recordsOf(cls, fields).join('\n'), records.join('\n')) << cls;
}

TEST_F(Snapshot, TellsWhetherTheObjectIsErased)
{
    const TestFields fields{{"isErased", true}, {"text", "a"}};
    EXPECT_EQ(recordsOf("AcDbFcf", fields), QStringList{"Content = \"a\""});
}

TEST_F(Snapshot, ReadsALeadersAnnotationOnlyWhenItIsText)
{
    drawing.add(0x20, "AcDbMText", {{"contents", "see\\Pplan"}});
    drawing.add(0x21, "AcDbFcf", {{"text", "frame"}});
    const auto leader = [&](int type, std::uint64_t annotation) {
        return recordsOf("AcDbLeader",
                         {{"annoType", type}, {"annotationObjectId", drawing.id(annotation)}, {"annoWidth", 7.5}});
    };
    EXPECT_EQ(leader(0, 0x20), (QStringList{"content = \"see\\Pplan\"", "width = 7.5"}));
    EXPECT_EQ(leader(0, 0x99), (QStringList{"content = \"\"", "width = 7.5"}));
    EXPECT_EQ(leader(1, 0x21), (QStringList{"content = \"\"", "width = 7.5"}));
    EXPECT_EQ(leader(3, 0), (QStringList{"content = \"\"", "width = 7.5"}));
    EXPECT_THROW(leader(0, 0x21), OdError_NotThatKindOfClass);
}

TEST_F(Snapshot, ListsABlocksEntitiesThatAreNotErased)
{
    drawing.add(0x2e, "AcDbLine", {{"isErased", true}});
    drawing.add(0x2f, "AcDbLine");
    drawing.add(0x30, "AcDbCircle", {{"isErased", true}});
    const OdArray<OdDbObjectId> entities{drawing.id(0x2e), drawing.id(0x2f), drawing.id(0x30), drawing.id(0x1a)};

    const auto block = [&](const TestFields& fields) { return recordsOf("AcDbBlockTableRecord", fields).join('\n'); };

    const TestFields door{{"name", "Door"},    {"entities", entities}, {"comments", "one\ntwo"},
                          {"blockScaling", 1}, {"explodable", false},  {"blockInsertUnits", 4}};
    EXPECT_EQ(block(door), "Objects = [int 0: \"2F\", int 1: \"1A\"]\nDescription = \"one\\ntwo\"\n"
                           "ApplyUniformScale = \"Yes\"\nExplodable = \"No\"\nBlockUnit = \"Millimeters\"");

    const QString bare = "ApplyUniformScale = \"No\"\nExplodable = \"Yes\"\nBlockUnit = \"Unitless\"";
    EXPECT_EQ(block({}), bare);
    const TestFields erased{{"entities", OdArray<OdDbObjectId>{drawing.id(0x2e), drawing.id(0x30)}}};
    EXPECT_EQ(block(erased), bare);
    const TestFields sheet{{"isLayout", true}, {"entities", entities}};
    EXPECT_EQ(block(sheet), "");
    const TestFields reference{{"isFromExternalReference", true}, {"comments", "a"}};
    EXPECT_EQ(block(reference), "");
}

TEST_F(Snapshot, NamesACurvedTextsFontByItsStyle)
{
    drawing.add(0x11, "AcDbTextStyleTableRecord", {{"name", "Plain"}, {"fileName", "arial.ttf"}});
    drawing.add(0x12, "AcDbTextStyleTableRecord",
                {{"name", "Shapes"}, {"fileName", "simplex.shx"}, {"isShapeFile", true}});
    const auto text = [&](std::uint64_t style) {
        return recordsOf("AcDbArcAlignedText", {{"isUnderlined", true},
                                                {"alignment", 4},
                                                {"textPosition", 2},
                                                {"textStyle", drawing.id(style)},
                                                {"typeface", "Arial"},
                                                {"isItalic", true}});
    };
    const QStringList head{"CurvedSettings Underlined = \"YES\"", "CurvedSettings Flip = \"NO\"",
                           "CurvedSettings Alignment = int 4", "CurvedSettings TextSide = int 2",
                           "CurvedSettings TextDirection = int 1"};
    const QStringList tail{"CurvedSettings bold = \"NO\"", "CurvedSettings italic = \"YES\""};

    const auto records = [&](const QStringList& styleAndFont) { return head + styleAndFont + tail; };
    EXPECT_EQ(text(0x11), records({"CurvedSettings TextStyle = \"Plain\"", "CurvedSettings Font = \"Arial\""}));
    EXPECT_EQ(text(0x12), records({"CurvedSettings TextStyle = \"Shapes\"", "CurvedSettings Font = \"simplex.shx\""}));
    EXPECT_EQ(text(0), records({"CurvedSettings Font = \"Arial\""}));
}

TEST_F(Snapshot, ShowsWordsInTheHostsLanguage)
{
    class German final : public QTranslator
    {
        bool isEmpty() const override { return false; }
        QString translate(const char* context, const char* source, const char*, int) const override
        {
            const QByteArray key = QByteArray(context) + '/' + source;
            return key == "property_values/Yes" ? "Ja" : key == "CFxUtils/Feet" ? "Fuss" : QString();
        }
    } german;
    int argc = 1;
    char name[] = "test";
    char* argv[] = {name, nullptr};
    const QCoreApplication application(argc, argv);
    QCoreApplication::installTranslator(&german);
    const QStringList records = recordsOf("AcDbBlockTableRecord", {{"blockInsertUnits", 2}});
    QCoreApplication::removeTranslator(&german);
    EXPECT_EQ(records, (QStringList{"ApplyUniformScale = \"No\"", "Explodable = \"Ja\"", "BlockUnit = \"Fuss\""}));
}

TEST_F(Snapshot, FixesTheSheetOfARecordingOnce)
{
    const OdDbObjectPtr line = drawing.add(0x2f, "AcDbLine");
    drawing.add(0x22, "AcDbLayout", {{"layoutName", "A3"}});
    drawing.add(0x23, "AcDbLayout", {{"layoutName", "Model"}, {"modelType", true}});
    ::recordsOf(line);
    EXPECT_TRUE(RecordingSheetName.isEmpty());

    drawing.database.setCurrentLayoutId(drawing.id(0x22));
    ::recordsOf(line);
    EXPECT_EQ(RecordingSheetName, CFxString("A3"));
    EXPECT_FALSE(RecordingInModel);

    drawing.database.setCurrentLayoutId(drawing.id(0x23));
    ::recordsOf(line);
    EXPECT_EQ(RecordingSheetName, CFxString("A3"));
    EXPECT_FALSE(RecordingInModel);

    RecordingSheetName = CFxString();
    drawing.database.setCurrentLayoutId(drawing.id(0x2f));
    EXPECT_THROW(::recordsOf(line), OdError_NotThatKindOfClass);
}

TEST(Drawing, HoldsEachFieldOfEachClass)
{
    for (const OdDbClassRow& row : oddbClassRows()) {
        std::set<OdString> keys;
        const OdDbObjectPtr object = row.create ? row.create(oddbClassByName(row.name)) : nullptr;
        for (const OdDbField* field : oddbAllFields(row)) {
            EXPECT_TRUE(keys.insert(field->key).second) << row.name << ' ' << field->key;
            // An object of too small a type for its class is written past its end here.
            if (object)
                std::visit([&]<class T>(T OdDbObject::*member) { (*object).*member = T(); }, field->member);
        }
    }
}

TEST(Drawing, FindsADictionarysObjectsByName)
{
    TestDrawing drawing;
    const auto groups = odrxCast<OdDbDictionary>(
        drawing.add(0xd, "AcDbDictionary", {{"items", OdDbNamedIds{{"Walls", drawing.id(0x40)}}}}).get());
    EXPECT_EQ(groups->getAt("walls").getHandle(), OdDbHandle(0x40));
    EXPECT_TRUE(groups->getAt("Doors").isNull());
}

TEST(InsertUnits, HaveAnEnumeratorEach)
{
    const auto enumerator = [](int units) {
        const CFxString text = CFxUtils::GetStringForUnitScalingFactor(units);
        return inkmacro::EnumeratorByText(inkmacro::Target::Vba, inkmacro::enums::blockInsertUnits, text);
    };
    std::set<QString> met;
    for (int units = 0; units <= 20; ++units)
        met.insert(enumerator(units));
    EXPECT_EQ(met.size(), 21U);
    EXPECT_TRUE(enumerator(0).endsWith("_Unitless")) << enumerator(0).toStdString();
    EXPECT_TRUE(enumerator(6).endsWith("_Meters")) << enumerator(6).toStdString();
    EXPECT_TRUE(enumerator(19).endsWith("_LightYears")) << enumerator(19).toStdString();
    EXPECT_EQ(enumerator(21), enumerator(0));
    EXPECT_EQ(enumerator(-1), enumerator(0));
}

} // namespace
