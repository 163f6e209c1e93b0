// Changes of table records: layers, block definitions, sheets and view tiles. What their tags become in each target is
// shown by the scenarios.

#include "TestChanges.h"
#include "TestDrawing.h"
#include "objects/entries.h"

#include <gtest/gtest.h>

using inkmacro::Target;

namespace {

CFxVariant text(const char* words)
{
    return CFxString(words);
}

class RecordChanges : public testing::Test
{
protected:
    RecordChanges() { drawing.add(0x11, "AcDbLinetypeTableRecord", {{"name", OdString("DASHED")}}); }

    TestDrawing drawing;
};

TEST_F(RecordChanges, OfALayerReadPlainWordsWithCase)
{
    const auto of = [](const char* tag, const CFxVariant& value) {
        return changed("AcDbLayerTableRecord", {record(tag, value)});
    };
    EXPECT_EQ(of("Hidden", text("Yes")), " it1.Hidden = true;\n");
    EXPECT_EQ(of("Hidden", text("yes")), " it1.Hidden = false;\n");
    EXPECT_EQ(of("Show", text("No")), " it1.Shown = true;\n");
    EXPECT_EQ(of("Show", text("Yes")), " it1.Shown = false;\n");
    EXPECT_EQ(of("ActivateLayer", text("Yes")), " it1.Activate();\n");
    EXPECT_EQ(of("ActivateLayer", text("YES")), "");
    EXPECT_EQ(of("FrozenInViewport", text("yes")), " it1.SetFrozenInViewport( false, iwSheet.GetActiveViewport() );\n");
}

TEST_F(RecordChanges, OfALayerNameStylesByRecordOrWord)
{
    const auto of = [](const char* tag, const CFxVariant& value) {
        return changed("AcDbLayerTableRecord", {record(tag, value)});
    };
    EXPECT_EQ(of("LineStyle", drawing.id(0x11)), " it1.LineStyle = \"DASHED\";\n");
    const std::string override = " it1.SetLineStyleInViewport( \"DASHED\", iwSheet.GetActiveViewport() );\n";
    for (const CFxVariant& style : {CFxVariant(drawing.id(0x11)), text("DASHED"), CFxVariant(item(2, "DASHED"))})
        EXPECT_EQ(of("LinetypeInViewport", style), override);
    EXPECT_EQ(of("LinetypeInViewport", drawing.id(0x99)), "");
}

TEST_F(RecordChanges, OfAViewTileReadAnItemsWordWithCase)
{
    const auto icon = [](const char* word) {
        return changed("AcDbViewportTableRecord", {record("CS icon on", item(1, word))});
    };
    EXPECT_EQ(icon("Yes"), " it1.CSIconIsOn = true;\n");
    EXPECT_EQ(icon("yes"), " it1.CSIconIsOn = false;\n");
}

TEST_F(RecordChanges, OfASheetNeedAllThreeRecords)
{
    const auto list = [](const char* ofModel) {
        return PropertyList{record("PrintStyleTable", text("mono.ctb")), record("Model_PrintStyleTable", text(ofModel)),
                            record("SheetName_PrintStyleTable", text("Plan"))};
    };
    EXPECT_EQ(changed("AcDbLayout", list("yes")),
              " iwSheet = iwDoc.GetSheet(\"Plan\");\n if (null != iwSheet)\n {\n      iwSheet.Activate();\n"
              "      iwSketchManager = iwSheet.GetSketchManager();\n }\n iwSheet.PrintStyleTable = \"mono.ctb\";\n");
    EXPECT_EQ(changed("AcDbLayout", list("Yes")), " iwModel.PrintStyleTable = \"mono.ctb\";\n");
    for (std::size_t without = 0; without < 3; ++without) {
        PropertyList two = list("Yes");
        two.erase(two.begin() + static_cast<std::ptrdiff_t>(without));
        EXPECT_EQ(changed("AcDbLayout", two), "");
    }
}

TEST_F(RecordChanges, OfABlockDefinitionMakeItAnewOfWhatIsThere)
{
    drawing.add(1, "AcDbBlockTableRecord", {{"name", OdString("Chair")}, {"origin", OdGePoint3d{1, 2, 0}}});
    drawing.add(0x2F, "AcDbLine");
    const auto handle = [](const char* element) { return CFxVariantCollectionElement(0, CFxString(element)); };
    PropertyList list{record("Description", text("Swivel")),
                      record("Objects", CFxVariantCollection({handle("2f"), handle("99")}))};
    TestTarget made(Target::CSharp, 1);
    made.conversion.names().RegisterObject(OdDbHandle(0x2F), oddbClassByName("AcDbLine"));
    made.conversion.names().RegisterObject(OdDbHandle(1), oddbClassByName("AcDbBlockTableRecord"));
    Statement statements;
    ConvertObjectChanges(made.conversion, oddbClassByName("AcDbBlockTableRecord"), OdDbHandle(1), list, false,
                         statements);
    EXPECT_EQ(textOf(statements).remove(".00000000000000").toStdString(),
              "    {\n\n        DispatchWrapper[] objects_1 = new DispatchWrapper[1];\n"
              "        objects_1[0] = new DispatchWrapper(line1);\n\n"
              "        int[] objecttypes_1 = new int[1];\n"
              "        objecttypes_1[0] = (int)iwObjectType_e.iwLineType;\n\n"
              "        string blkName_1 = blockdefinition2.GetName();\n\n"
              "         blockdefinition2 = iwDoc.CreateBlockDefinition(\n         blkName_1, \n"
              "         \"Swivel\", \n         1, \n         2, \n         0, \n"
              "         objecttypes_1,  \n         objects_1, \n         iwBlockDefinitionEntities_e."
              "iwBlockDefinitionEntities_RemoveFromDrawing );\n    }\n");
    EXPECT_EQ(changed("AcDbBlockTableRecord", {record("Objects", text("2F")), record("Description", text("S"))}), "");
}

} // namespace
