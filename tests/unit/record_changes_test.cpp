// Changes of table records: layers, block definitions, groups, sheets and view tiles, each tag once in all targets.

#include "TestChanges.h"
#include "TestDrawing.h"
#include "TestTags.h"

#include "objects/entries.h"

#include <QRegularExpression>

using inkmacro::Target;

namespace {

const TestTexts rename{
    "", "@v->Rename(\"@a\");", "@v.Rename(\"@a\");", "@v.Rename(\"@a\");", "@v.Rename(\"@a\")", "@v.Rename( \"@a\" ) "};
const TestTexts activate{"bool bRes@n;\n@v->Activate( &bRes@n );",
                         "@v->Activate();",
                         "@v.Activate();",
                         "@v.Activate();",
                         "@v.Activate()",
                         "@v.Activate"};

#define VIEWPORT                                                                                                       \
    "iwViewport_ptr viewportViewPortOverride@n;\niwSheet->GetActiveViewport( &viewportViewPortOverride@n );\n"
const TestTexts overrideValue{
    VIEWPORT "@v->@p( @a, viewportViewPortOverride@n );", "@v->@p( @a, iwSheet->GetActiveViewport() );",
    "@v.@p( @a, iwSheet.GetActiveViewport() );",          "@v.@p( @a, mSheet.GetActiveViewport() );",
    "@v.@p( @a, iwSheet.GetActiveViewport() )",           "@v.@p @a, iwSheet.GetActiveViewport()"};
const TestTexts overrideText{VIEWPORT "@v->@p( L\"@a\", viewportViewPortOverride@n );",
                             "@v->@p( L\"@a\", iwSheet->GetActiveViewport() );",
                             "@v.@p( \"@a\", iwSheet.GetActiveViewport() );",
                             "@v.@p( \"@a\", mSheet.GetActiveViewport() );",
                             "@v.@p( \"@a\", iwSheet.GetActiveViewport() )",
                             "@v.@p \"@a\", iwSheet.GetActiveViewport()"};
const TestTexts overrideWeight{overrideValue.cpp,       overrideValue.cppCom, overrideValue.csharp,
                               overrideText.javascript, overrideValue.vbNet,  overrideValue.vba};

/// The value is the color's numbers.
#define OVERRIDE_COLOR(FUNCTION)                                                                                       \
    {                                                                                                                  \
        VIEWPORT "iwColor_ptr iwColorViewPortOverride@n;\nm_pIwApp->" FUNCTION "( @a, &iwColorViewPortOverride@n );\n" \
                 "@v->@p( iwColorViewPortOverride@n, viewportViewPortOverride@n );",                                   \
            "@v->@p( pConnection->m_IwApp->" FUNCTION "( @a ), iwSheet->GetActiveViewport() );",                       \
            "@v.@p( iwApp." FUNCTION "( @a ), iwSheet.GetActiveViewport() );",                                         \
            "@v.@p( mApp." FUNCTION "( @a ), mSheet.GetActiveViewport() );",                                           \
            "@v.@p( iwApp." FUNCTION "( @a ), iwSheet.GetActiveViewport() )",                                          \
            "@v.@p iwApp." FUNCTION "( @a ), iwSheet.GetActiveViewport()"                                              \
    }
const TestTexts overrideIndexedColor OVERRIDE_COLOR("GetColorByIndex");
const TestTexts overrideRgbColor OVERRIDE_COLOR("GetRGBColor");
#undef OVERRIDE_COLOR
#undef VIEWPORT

CFxVariant text(const char* words)
{
    return CFxString(words);
}

const CFxVariant yes = text("Yes");
const CFxVariant no = text("No");

class RecordChanges : public testing::Test
{
protected:
    RecordChanges() { drawing.add(0x11, "AcDbLinetypeTableRecord", {{"name", OdString("DASHED")}}); }

    /// Hands all tags over, the last one first.
    static void expectTags(const char* cls, const std::vector<Tag>& tags)
    {
        static const QRegularExpression indentation("^ ", QRegularExpression::MultilineOption);
        PropertyList list;
        for (const Tag& tag : tags)
            list.insert(list.begin(), record(tag.tag, tag.value));
        for (const Target target : allTargets) {
            const bool within = QString(cls) == "AcDbLayerTableRecord" && target == Target::JavaScript;
            Expected expected(target, within ? "it1.Layer" : "it1");
            expected.add({{}, tags});
            TestTarget made(target);
            EXPECT_EQ(changedIn(made, cls, list).remove(indentation), expected.lines()) << static_cast<int>(target);
        }
    }

    /// With the group around it, of an object that the macro has a variable for.
    static QString whole(TestTarget& made, const char* cls, PropertyList list)
    {
        made.conversion.names().RegisterObject(OdDbHandle(1), oddbClassByName(cls));
        Statement text;
        ConvertObjectChanges(made.conversion, oddbClassByName(cls), OdDbHandle(1), list, false, text);
        return textOf(text);
    }

    TestDrawing drawing;
};

TEST_F(RecordChanges, OfALayer)
{
    expectTags("AcDbLayerTableRecord",
               {
                   {"Description", text("Load\\bearing"), setText, "Description", "Load\\bearing"},
                   {"Color", OdCmColor::byIndex(3), setColor, "Color", "3"},
                   {"LineStyle", drawing.id(0x11), setText, "LineStyle", "DASHED"},
                   {"LineWeight", 35, setWeight, "LineWeight", "iwLnWt_035"},
                   {"Frozen", no, set, "Frozen", "false"},
                   {"Locked", yes, set, "Locked", "true"},
                   {"Printable", yes, set, "Printable", "true"},
                   {"Hidden", text("yes"), set, "Hidden", "false"},
                   {"Show", no, set, "Shown", "true"},
                   {"Name", text("Walls"), rename, "", "Walls"},
                   {"ActivateLayer", yes, activate, "", ""},
                   {"PrintStyle", text("Bold"), setText, "PrintStyle", "Bold"},
                   {"Transparency", 40, set, "Transparency", "40"},
                   {"FrozenInNewViewport", yes, set, "FrozenInNewViewport", "true"},
                   {"FrozenInViewport", no, overrideValue, "SetFrozenInViewport", "false"},
                   {"ColorInViewport", OdCmColor::byIndex(5), overrideIndexedColor, "SetColorInViewport", "5"},
                   {"LinetypeInViewport", drawing.id(0x11), overrideText, "SetLineStyleInViewport", "DASHED"},
                   {"LineweightInViewport", 7, overrideWeight, "SetLineWeigthInViewport", "iwLnWt_ByLwDefault"},
                   {"TransparencyInViewport", 60, overrideValue, "SetTranparencyInViewport", "60"},
                   {"PrintStyleInViewport", text("Grey"), overrideText, "SetPrintStyleInViewport", "Grey"},
               });
    expectTags("AcDbLayerTableRecord", {{"Show", yes, set, "Shown", "false"},
                                        {"ColorInViewport", OdCmColor::byRgb(200, 100, 50), overrideRgbColor,
                                         "SetColorInViewport", "200, 100, 50"}});
    expectTags("AcDbLayerTableRecord",
               {{"LinetypeInViewport", text("DOTTED"), overrideText, "SetLineStyleInViewport", "DOTTED"},
                {"PrintStyleInViewport", item(2, "Grey"), overrideText, "SetPrintStyleInViewport", "Grey"}});
    EXPECT_EQ(changed("AcDbLayerTableRecord",
                      {record("ActivateLayer", text("YES")), record("LinetypeInViewport", drawing.id(0x99))}),
              "");
}

TEST_F(RecordChanges, OfAGroup)
{
    expectTags("AcDbGroup", {
                                {"Name", text("Seats"), rename, "", "Seats"},
                                {"Description", text("All seats"), setText, "Description", "All seats"},
                                {"SelectableEntities", yes, set, "Selectable", "true"},
                            });
}

TEST_F(RecordChanges, OfAViewTile)
{
    expectTags("AcDbViewportTableRecord", {
                                              {"CCS per View Tile", item(0, "Yes"), set, "CCSPerViewTile", "true"},
                                              {"CS icon at origin", item(1, "yes"), set, "CSIconAtOrigin", "false"},
                                              {"CS icon on", item(1, "No"), set, "CSIconIsOn", "false"},
                                          });
}

TEST_F(RecordChanges, OfASheet)
{
    const auto table = [](const CFxVariant& ofModel, TestTarget& made) {
        return changedIn(made, "AcDbLayout",
                         {record("PrintStyleTable", text("mono.ctb")), record("Model_PrintStyleTable", ofModel),
                          record("SheetName_PrintStyleTable", text("Plan"))});
    };
    expectInAllTargets(
        {
            .cpp = "    iwDoc->GetSheet(L\"Plan\", &iwSheet);\n    if (NULL != iwSheet)\n    {\n"
                   "         iwSheet->Activate();\n         iwSheet->GetSketchManager( &iwSketchManager );\n    }\n"
                   "    iwSheet->put_PrintStyleTable( \"mono.ctb\" );\n",
            .cppCom = "    iwSheet = iwDoc->GetSheet(L\"Plan\");\n    if (NULL != iwSheet)\n    {\n"
                      "         iwSheet->Activate();\n         iwSketchManager = iwSheet->GetSketchManager();\n    }\n"
                      "    iwSheet->put_PrintStyleTable( \"mono.ctb\" );\n",
            .csharp = "    iwSheet = iwDoc.GetSheet(\"Plan\");\n    if (null != iwSheet)\n    {\n"
                      "         iwSheet.Activate();\n         iwSketchManager = iwSheet.GetSketchManager();\n    }\n"
                      "    iwSheet.PrintStyleTable = \"mono.ctb\";\n",
            .javascript = "    mSheet = mDoc.GetSheet(\"Plan\");\n    if (null != mSheet)\n    {\n"
                          "         mSheet.Activate();\n         mSkMgr = mSheet.GetSketchManager();\n    }\n"
                          "    mSheet.put_PrintStyleTable( \"mono.ctb\" );\n",
            .vbNet = "    iwSheet = iwDoc.GetSheet(\"Plan\")\n    If iwSheet IsNot Nothing Then\n"
                     "         iwSheet.Activate()\n         iwSketchManager = iwSheet.GetSketchManager()\n    End If\n"
                     "    iwSheet.PrintStyleTable = \"mono.ctb\"\n",
            .vba = "    Set iwSheet = iwDoc.GetSheet(\"Plan\")\n    If Not iwSheet Is Nothing Then\n"
                   "         iwSheet.Activate\n         Set iwSketchManager = iwSheet.GetSketchManager()\n    End If\n"
                   "    iwSheet.PrintStyleTable = \"mono.ctb\"\n",
        },
        [&](TestTarget& made) { return table(text("yes"), made); });
    expectInAllTargets(
        {
            .cpp = "    iwModel->put_PrintStyleTable( L\"mono.ctb\" );\n",
            .cppCom = "    iwModel->put_PrintStyleTable( L\"mono.ctb\" );\n",
            .csharp = "    iwModel.PrintStyleTable = \"mono.ctb\";\n",
            .javascript = "%mModel.put_\n( \"PrintStyleTable\" );    ",
            .vbNet = "    iwModel.PrintStyleTable = \"mono.ctb\"\n",
            .vba = "    iwModel.PrintStyleTable = \"mono.ctb\"\n",
        },
        [&](TestTarget& made) { return table(yes, made); });

    const CFxPropertyChangedPtr records[] = {record("PrintStyleTable", text("mono.ctb")),
                                             record("Model_PrintStyleTable", yes),
                                             record("SheetName_PrintStyleTable", text("Plan"))};
    for (std::size_t without = 0; without < std::size(records); ++without) {
        PropertyList two(std::begin(records), std::end(records));
        two.erase(two.begin() + static_cast<std::ptrdiff_t>(without));
        EXPECT_EQ(changed("AcDbLayout", two), "");
    }
}

TEST_F(RecordChanges, OfABlockDefinition)
{
    drawing.add(1, "AcDbBlockTableRecord", {{"name", OdString("Chair")}, {"origin", OdGePoint3d{1, 2, 0}}});
    drawing.add(0x2F, "AcDbLine");
    const auto handle = [](const char* element) { return CFxVariantCollectionElement(0, CFxString(element)); };
    const PropertyList list{record("Description", text("Swivel")),
                            record("Objects", CFxVariantCollection({handle("2f"), handle("99")}))};
    const auto renewed = [&](TestTarget& made) {
        made.conversion.names().RegisterObject(OdDbHandle(0x2F), oddbClassByName("AcDbLine"));
        return whole(made, "AcDbBlockTableRecord", list).remove(".00000000000000");
    };
    expectInAllTargets(
        {
            .cpp = "    {\n\n        iwObjectPtrArray objects_1;\n        objects_1.add(iwline1);\n\n"
                   "        iwLongArray objecttypes_1;\n        objecttypes_1.add(iwLineType);\n\n"
                   "        iwString blkName_1;\n        iwblockdefinition2->GetName( &blkName_1);\n\n"
                   "         iwDoc->CreateBlockDefinition(\n         blkName_1, \n         L\"Swivel\", \n"
                   "         1, \n         2, \n         0, \n         objecttypes_1,  \n         objects_1, \n"
                   "         iwBlockDefinitionEntities_RemoveFromDrawing ,&iwblockdefinition2 );\n    }\n",
            .cppCom = "    {\n\n        VARIANT objects_1;\n        objects_1.vt = ( VT_ARRAY | VT_DISPATCH );\n"
                      "        objects_1.parray = SafeArrayCreateVector( VT_DISPATCH, 0, 1 );\n"
                      "        long rgIndices1;\n        rgIndices1 = 0;\n        IDispatch* val1;\n"
                      "        val1 = line1;\n"
                      "        SafeArrayPutElement( objects_1.parray, &rgIndices1, (IDispatch*)(val1) );\n"
                      "        rgIndices1++;\n\n"
                      "        VARIANT objecttypes_1;\n        objecttypes_1.vt = ( VT_ARRAY | VT_I4 );\n"
                      "        objecttypes_1.parray = SafeArrayCreateVector( VT_I4, 0, 1 );\n        {\n"
                      "            long rgIndices1;\n            rgIndices1 = 0;\n            int val1;\n"
                      "            val1 = iwLineType;\n"
                      "            SafeArrayPutElement( objecttypes_1.parray, &rgIndices1, (int*)&(val1) );\n"
                      "            rgIndices1++;\n        }\n\n"
                      "        BSTR blkName_1;\n        blkName_1 = blockdefinition2->GetName();\n\n"
                      "         blockdefinition2 = iwDoc->CreateBlockDefinition(\n         blkName_1, \n"
                      "         L\"Swivel\", \n         1, \n         2, \n         0, \n"
                      "         objecttypes_1,  \n         objects_1, \n"
                      "         iwBlockDefinitionEntities_RemoveFromDrawing );\n    }\n",
            .csharp = "    {\n\n        DispatchWrapper[] objects_1 = new DispatchWrapper[1];\n"
                      "        objects_1[0] = new DispatchWrapper(line1);\n\n"
                      "        int[] objecttypes_1 = new int[1];\n"
                      "        objecttypes_1[0] = (int)iwObjectType_e.iwLineType;\n\n"
                      "        string blkName_1 = blockdefinition2.GetName();\n\n"
                      "         blockdefinition2 = iwDoc.CreateBlockDefinition(\n         blkName_1, \n"
                      "         \"Swivel\", \n         1, \n         2, \n         0, \n"
                      "         objecttypes_1,  \n         objects_1, \n         iwBlockDefinitionEntities_e."
                      "iwBlockDefinitionEntities_RemoveFromDrawing );\n    }\n",
            .javascript = "\n    var objects_1 = new Array(1);\n    objects_1[0] = line1;\n\n"
                          "    var objecttypes_1 = new Array(1);\n    objecttypes_1[0] = 21;\n\n"
                          "    var blkName_1 = blockdefinition2.GetName();\n\n"
                          "     var blockdefinition2 = mDoc.CreateBlockDefinition(\n     blkName_1, \n"
                          "     \"Swivel\", \n     1, \n     2, \n     0, \n     objecttypes_1,  \n     objects_1, \n"
                          "     \"iwBlockDefinitionEntities_RemoveFromDrawing\");\n",
            .vbNet = "    If 1 Then\n\n        Dim objects_1 As DispatchWrapper()\n"
                     "        objects_1 = New DispatchWrapper( 0 ) {}\n"
                     "        objects_1( 0 ) = New DispatchWrapper( line1 )\n\n"
                     "        Dim objecttypes_1 As Integer() = New Integer( 0 ) {}\n"
                     "        objecttypes_1( 0 ) = CInt( Inkwright.iwObjectType_e.iwLineType )\n\n"
                     "        Dim blkName_1 As String = blockdefinition2.GetName()\n\n"
                     "         blockdefinition2 = iwDoc.CreateBlockDefinition( blkName_1, \"Swivel\", 1, 2, 0, "
                     "objecttypes_1, objects_1, Inkwright.iwBlockDefinitionEntities_e."
                     "iwBlockDefinitionEntities_RemoveFromDrawing )\n    End If\n\n",
            .vba = "    If 1 Then\n\n        Dim objects_1( 0 ) As Object\n        Set objects_1( 0 ) = line1\n\n"
                   "        Dim objecttypes_1( 0 ) As iwObjectType_e\n"
                   "        objecttypes_1( 0 ) = Inkwright.iwObjectType_e.iwLineType\n\n"
                   "        Dim blkName_1 As String\n        blkName_1 = blockdefinition2.GetName()\n\n"
                   "         Set blockdefinition2 = iwDoc.CreateBlockDefinition( blkName_1, \"Swivel\", 1, 2, 0, "
                   "objecttypes_1, objects_1, Inkwright.iwBlockDefinitionEntities_e."
                   "iwBlockDefinitionEntities_RemoveFromDrawing )\n    End If\n\n",
        },
        renewed);
    EXPECT_EQ(changed("AcDbBlockTableRecord", {record("Objects", text("2F")), record("Description", text("S"))}), "");
}

} // namespace
