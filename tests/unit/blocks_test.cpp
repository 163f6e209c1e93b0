// Block definitions: which entities come into them, and how those are reached. And the objects whose added record is
// more than a list of tags: references, groups, layers and clipped viewports.

#include "TestActions.h"
#include "TestDrawing.h"
#include "TestRecords.h"
#include "TestTarget.h"

#include "module/walk.h"
#include "objects/blockContents.h"
#include "objects/entries.h"
#include "statements/counters.h"

#include <gtest/gtest.h>

using inkmacro::Target;

namespace {

using Ids = OdArray<OdDbObjectId>;

constexpr std::uint64_t kBlock = 0x50;
constexpr std::uint64_t kReference = 0x51;

/// The numbers of drawn entities begin anew.
class Blocks : public testing::Test
{
protected:
    Blocks() { processCounters = {}; }

    void know(std::uint64_t handle, const char* cls)
    {
        made.conversion.names().RegisterObject(OdDbHandle(handle), oddbClassByName(cls));
    }
    void drawKnown(std::uint64_t handle, const char* cls, const TestFields& fields = {})
    {
        drawing.add(handle, cls, fields);
        know(handle, cls);
    }
    Ids ids(std::initializer_list<std::uint64_t> handles)
    {
        Ids found;
        for (const std::uint64_t handle : handles)
            found.append(drawing.id(handle));
        return found;
    }
    QString block(const Ids& entities)
    {
        return textOf(CreateBlockDefinition(made.conversion, {"b", "B", false, "", {}, entities}));
    }
    QString add(const char* cls, std::uint64_t handle, PropertyList records = {})
    {
        know(handle, cls);
        PropertyList rest;
        Statement text;
        ConvertAddedObject(made.conversion, oddbClassByName(cls), OdDbHandle(handle), records, rest, text);
        return textOf(text);
    }

    TestDrawing drawing;
    TestTarget made{Target::CSharp};
};

/// The arrays of a block, in the order of its entities.
QString arrays(const std::vector<std::pair<const char*, const char*>>& entities)
{
    QString objects;
    QString types;
    for (std::size_t i = 0; i < entities.size(); ++i) {
        objects += QString(" objects_1[%1] = new DispatchWrapper(%2);\n").arg(i).arg(entities[i].first);
        types += QString(" objecttypes_1[%1] = (int)iwObjectType_e.%2;\n").arg(i).arg(entities[i].second);
    }
    return QString("\n DispatchWrapper[] objects_1 = new DispatchWrapper[%1];\n").arg(entities.size()) + objects +
           QString("\n int[] objecttypes_1 = new int[%1];\n").arg(entities.size()) + types + '\n';
}

} // namespace

TEST_F(Blocks, TakeEntitiesThatTheMacroKnowsByTheFirstKindThatFits)
{
    const std::vector<std::pair<const char*, const char*>> kinds{
        {"AcDbCircle", "iwCircleType"},
        {"AcDbArc", "iwCircleArcType"},
        {"AcDbXline", "iwInfiniteLineType"},
        {"AcDbAttributeDefinition", "iwSimpleNoteType"},
        {"AcDbMText", "iwNoteType"},
        {"AcDbTable", "iwTableType"},
        {"AcDbBlockReference", "iwBlockInstanceType"},
        {"AcDb3dPolyline", "iwPolyLineType"},
        {"AcDb3PointAngularDimension", "iwAngularDimensionType_3Point"},
        {"AcDbRadialDimensionLarge", "iwJoggedDimensionType"},
        {"AcDbRasterImage", "iwReferenceImageType"},
    };
    for (const auto& [cls, type] : kinds) {
        TestTarget target(Target::Cpp);
        drawing.add(0x10, cls);
        target.conversion.names().RegisterObject(OdDbHandle(0x10), oddbClassByName(cls));
        const QString text = textOf(CreateBlockDefinition(target.conversion, {"b", "B", false, "", {}, ids({0x10})}));
        EXPECT_TRUE(text.contains(QString(" objecttypes_1.add(%1);\n").arg(type))) << cls << '\n' << text.toStdString();
    }
}

TEST_F(Blocks, LoseWhatHasNoVariableAndKeepWhatWasErasedOrIsNotInTheDrawing)
{
    drawing.add(0x10, "AcDbLine");
    drawKnown(0x11, "AcDbCircle", {{"isErased", true}});
    know(0x12, "AcDbLine");
    drawKnown(0x13, "AcDbViewport");
    know(0x14, "AcDbHatch");
    const QString text = block(ids({0x10, 0x12, 0x11, 0x13, 0x99, 0x14, 0}));
    EXPECT_TRUE(
        text.startsWith(arrays({{"line2", "iwLineType"}, {"circle1", "iwCircleType"}, {"hatch4", "iwHatchType"}})))
        << text.toStdString();
}

TEST_F(Blocks, MayHoldThemselves)
{
    drawing.add(kBlock, "AcDbBlockTableRecord", {{"entities", ids({kReference})}, {"xData", OdDbXData{}}});
    drawKnown(kReference, "AcDbBlockReference", {{"blockTableRecord", drawing.id(kBlock)}});
    EXPECT_TRUE(block(ids({kReference})).startsWith(arrays({{"blockinstance1", "iwBlockInstanceType"}})));
}

TEST_F(Blocks, FillTheCellsOfTheirTables)
{
    using Cells = OdArray<OdArray<OdString>>;
    drawKnown(0x10, "AcDbTable",
              {{"rowHeights", OdArray<double>{1, 1}},
               {"columnWidths", OdArray<double>{1, 1}},
               {"textStrings", Cells{{"a\\P", ""}, {"", "d"}}}});
    const QString text = block(ids({0x10}));
    EXPECT_TRUE(text.startsWith(" table1.SetText( 0, 0, \"a\\\\P\" );\n table1.SetText( 1, 1, \"d\" );\n\n" +
                                arrays({{"table1", "iwTableType"}})))
        << text.toStdString();
    drawing.add(
        0x11, "AcDbTable",
        {{"rowHeights", OdArray<double>{1}}, {"columnWidths", OdArray<double>{1}}, {"textStrings", Cells{{"lost"}}}});
    EXPECT_FALSE(block(ids({0x11})).contains("SetText"));
}

TEST_F(Blocks, TellFromTheLoopsHowAHatchWasMade)
{
    using Loops = OdArray<OdDbHatchLoop>;
    const OdArray<OdGePoint2d> corner{{0, 0}, {1, 0}, {1, 1}};
    drawing.add(0x20, "AcDbCircle");
    const auto hatched = [&](const Loops& loops) {
        drawing.add(
            0x10, "AcDbHatch",
            {{"patternName", OdString("P")}, {"loops", loops}, {"seedPoints", OdArray<OdGePoint2d>{{0.5, 0.25}}}});
        made.writer.UniqueCounter = 0;
        const QString text = block(ids({0x10}));
        return text.left(text.indexOf("DispatchWrapper[] objects_")).remove(".00000000000000").trimmed().toStdString();
    };
    know(0x10, "AcDbHatch");
    EXPECT_EQ(hatched({{4, {}, {}}, {6, corner, {}}}),
              "hatch1 = iwSketchManager.InsertHatchByInternalPoints(\n  new double[]{0.50000000000000,0.25000000000000}"
              ", \n  \"P\", \n  1, \n  0 );");
    EXPECT_EQ(hatched({{1, {}, ids({0x20})}, {4, {}, ids({0x20})}}),
              "Circle hatchCircle_0 = iwSketchManager.InsertCircle( 0, 0, 0, 0 );\n"
              " DispatchWrapper[] iwEntities = new DispatchWrapper[1];\n"
              " iwEntities[0] = new DispatchWrapper(hatchCircle_0);\n\n"
              " hatch1 = iwSketchManager.InsertHatchByEntities(\n  iwEntities, \n  \"P\", \n  1, \n  0 );\n"
              " hatchCircle_0.Erased = true;");
    EXPECT_EQ(hatched({{2, corner, {}}, {4, {}, {}}}),
              "hatch1 = iwSketchManager.InsertHatchByBoundary(\n  new int[]{3}, \n  new double[]{0,0,1,0,1,1,0,0}, \n"
              "  \"P\", \n  1, \n  0 );");
    EXPECT_EQ(hatched({{1, {}, {}}, {4, {}, {}}}), "");

    made.conversion.insertedHatches.insert("hatch1");
    EXPECT_EQ(hatched({{2, corner, {}}}), "") << "a custom action has inserted it";
}

TEST_F(Blocks, KeepTheirNamesWhenTheyAreRenewed)
{
    const auto renewed = [&](TestTarget& target) {
        return textOf(CreateBlockDefinition(target.conversion, {"b", "B", true, "d", {1, 2, 3}, {}}));
    };
    const auto tail = [](QString text) {
        text.remove(".00000000000000");
        return text.mid(text.lastIndexOf("\n\n", text.indexOf("CreateBlockDefinition") - 60)).trimmed().toStdString();
    };
    TestTarget cpp(Target::Cpp, 1);
    EXPECT_EQ(tail(renewed(cpp)),
              "iwString blkName_1;\n    b->GetName( &blkName_1);\n\n     iwDoc->CreateBlockDefinition(\n"
              "     blkName_1, \n     L\"d\", \n     1, \n     2, \n     3, \n     objecttypes_1,  \n     objects_1, \n"
              "     iwBlockDefinitionEntities_RemoveFromDrawing ,&b );");
    TestTarget vba(Target::Vba, 1);
    EXPECT_TRUE(renewed(vba).endsWith(
        "\n    Dim blkName_1 As String\n    blkName_1 = b.GetName()\n\n"
        "     Set b = iwDoc.CreateBlockDefinition( blkName_1, \"d\", 1.00000000000000, 2.00000000000000, "
        "3.00000000000000, objecttypes_1, objects_1, "
        "Inkwright.iwBlockDefinitionEntities_e.iwBlockDefinitionEntities_RemoveFromDrawing )\n"));
}

TEST_F(Blocks, AreDefinedByTheDrawingWhereTheRecordsSayNothing)
{
    drawing.add(0x10, "AcDbLine");
    know(0x10, "AcDbLine");
    drawing.add(kBlock, "AcDbBlockTableRecord",
                {{"name", OdString("Bolt")}, {"comments", OdString("M8\nsteel")}, {"entities", ids({0x10})}});
    const QString text = add("AcDbBlockTableRecord", kBlock);
    EXPECT_TRUE(text.startsWith(arrays({{"line1", "iwLineType"}}))) << text.toStdString();
    EXPECT_TRUE(text.contains("CreateBlockDefinition(\n  \"Bolt\", \n  \"M8\\nsteel\", \n")) << text.toStdString();

    drawing.add(kBlock, "AcDbBlockTableRecord", {{"isLayout", true}, {"entities", ids({0x10})}});
    EXPECT_EQ(add("AcDbBlockTableRecord", kBlock), "");
    drawing.add(kBlock, "AcDbBlockTableRecord", {{"isFromExternalReference", true}});
    EXPECT_EQ(add("AcDbBlockTableRecord", kBlock), "");
}

TEST_F(Blocks, AreRevisionCloudsOnlyByTheDataOfTheirApplication)
{
    const auto reference = [&](const OdDbXData& data) {
        drawing.add(kBlock, "AcDbBlockTableRecord", {{"xData", data}});
        drawing.add(kReference, "AcDbBlockReference", {{"blockTableRecord", drawing.id(kBlock)}});
        return add("AcDbBlockReference", kReference, {record("Name", CFxString("Bolt"))});
    };
    EXPECT_FALSE(reference({}).contains("CreateBlockDefinition"));
    const OdResBufPtr other = odrxNew<OdResBuf>(1070, OdResBuf::Value(std::int16_t{1}));
    EXPECT_FALSE(reference({{"OTHER", other}}).contains("CreateBlockDefinition"));
    const QString cloud = reference({{"PE_CLOUD", other}});
    EXPECT_TRUE(cloud.contains("InsertBlock2( blockinstance3Name, ")) << cloud.toStdString();
    EXPECT_TRUE(cloud.endsWith("int count;\n  blockinstance3.SetCustomData(\"PE_CLOUD\", iwCustomData);\n"))
        << cloud.toStdString();
}

TEST_F(Blocks, AreReferencedByTheRecordsAloneWhenTheDrawingLacksThem)
{
    EXPECT_EQ(add("AcDbBlockReference", kReference, {record("Scale Y", 2.0)}).remove(".00000000000000"),
              " blockinstance1 = iwApp.GetActiveDocument().GetModel().GetSketchManager().InsertBlock2( \"\", 0, 0, 0, "
              "1, 2, 1, 0 );\n");
    drawing.add(kReference, "AcDbLine");
    Statement text;
    EXPECT_EQ(ConvertAction(made.conversion, odrxNew<TestAdded>("AcDbBlockReference", kReference), text), kFxFailure);
}

TEST_F(Blocks, LeaveUnknownObjectsOutOfGroups)
{
    know(0x10, "AcDbLine");
    const auto handle = [](const char* text) { return CFxVariantCollectionElement(CFxString(text), CFxVariant()); };
    const CFxVariant all = CFxVariantCollection({handle("99"), handle("10"), handle("not a handle")});
    const PropertyList records{record("Name", CFxString("G")), record("AllEntities", all),
                               record("SelectableEntities", CFxString("yes"))};
    EXPECT_EQ(add("AcDbGroup", 0x30, records),
              " DispatchWrapper[] entities1 = new DispatchWrapper[1];\n entities1[0] = new DispatchWrapper(line1);\n"
              " group2 = iwDoc.CreateGroup( \"G\", true, \"\", entities1 );\n");
}

TEST_F(Blocks, LetNewLayersBeCurrentOnlyWhenTheyAreActivated)
{
    drawing.add(0x10, "AcDbLayerTableRecord", {{"name", OdString("Walls")}});
    EXPECT_TRUE(add("AcDbLayerTableRecord", 0x10, {record("ActivateLayer", CFxString("No"))})
                    .endsWith(" iwLayerManager1.CreateLayer( \"Walls\", out layer1, out iwCreateObjectResult1 );\n"));
}

TEST_F(Blocks, ClipViewportsByNothingWhereTheEntityIsOfAnotherKind)
{
    EXPECT_EQ(add("AcDbViewport", 0x40), "") << "not in the drawing";
    drawing.add(0x40, "AcDbViewport");
    EXPECT_EQ(add("AcDbViewport", 0x40), "") << "straight edges";
    drawing.add(0x41, "AcDbLine");
    drawing.add(0x40, "AcDbViewport", {{"isNonRectClipOn", true}, {"nonRectClipEntityId", drawing.id(0x41)}});
    EXPECT_EQ(add("AcDbViewport", 0x40),
              " viewport3 = null;\n Sheet sheetsArray1 = iwDoc.GetSheet(\"\");\n if ( null != sheetsArray1 )\n {\n"
              "      \n      viewport3 = sheetsArray1.InsertViewportByEntity();\n }\n");
}
