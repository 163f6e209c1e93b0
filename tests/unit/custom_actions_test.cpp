// Custom actions: which are refused, and what the handlers of a single statement write.

#include "TestHandlers.h"

#include "objects/targets/blocks.h"
#include "objects/targets/regions.h"
#include "targets/customActions.h"
#include "targets/entityLists.h"
#include "targets/groups.h"
#include "targets/selections.h"
#include "targets/sheets.h"

#include <QFileInfo>
#include <QRegExp>

#include <limits>

using inkmacro::Target;

namespace {

using Handles = std::vector<OdDbHandle>;
using Classes = std::vector<const OdRxClass*>;
using Points = OdArray<OdGePoint3d>;

const OdRxClass* cls(const char* name)
{
    return oddbClassByName(name);
}

/// A line that the macro knows under handle 1A.
class CustomActions : public Handlers
{
protected:
    CustomActions() { conversion.names().RegisterObject(OdDbHandle(0x1a), oddbClassByName("AcDbLine")); }
};

TEST_F(CustomActions, WithoutAHandlerAreRefused)
{
    for (const std::int32_t kind : {std::numeric_limits<std::int32_t>::min(), -1, 24, 25, 51, 52, 53, 54, 56,
                                    std::numeric_limits<std::int32_t>::max()}) {
        EXPECT_EQ(convert(kind, {}), kFxFailure) << kind;
        EXPECT_EQ(text, "x");
    }
    EXPECT_EQ(recording.run({addedLine(1), odrxNew<TestCustom>(56)}), kFxFailure);
    EXPECT_FALSE(QFileInfo::exists(recording.path()));
    EXPECT_EQ(recording.run({command({addedLine(1), odrxNew<TestCustom>(-1), addedLine(2)})}), kFxSuccess);
    EXPECT_TRUE(recording.body().contains("line1 = "));
    EXPECT_FALSE(recording.body().contains("line2 = "));
}

TEST_F(CustomActions, FailWhenTheirElementsDoNotFit)
{
    // The second object is known, and its class is missing.
    const Handles two{OdDbHandle(0x2b), OdDbHandle(0x1a)};
    const Classes one{cls("AcDbLine")};
    const CFxString word("a");
    const std::vector<std::pair<std::int32_t, TestData>> failing{
        {0, {Handles(), Classes(), OdGePoint3d(), OdGePoint3d()}},
        {1, {Handles(), Classes(), OdGePoint3d(), OdGePoint3d()}},
        {2, {two, one, OdGeVector3d()}},
        {3, {two, one, OdGeVector3d()}},
        {3, {Handles(), Classes()}},
        {4, {Handles(), Classes(), OdGePoint3d()}},
        {5, {Handles()}},
        {15, {2}},
        {15, {2, word, 3}},
        {15, {word, 2}},
        {15, {std::int16_t{2}, word}},
        {15, {2, CFxString()}},
        {17, {Handles()}},
        {17, {two, one}},
        {19, {3}},
        {33, {CFxString("CHAMMODE")}},
        {33, {CFxString("FILLETRAD"), 1.0}},
        {33, {CFxString("SAVETIME"), 1}},
        {37, {Handles(), Classes()}},
        {38, {two, one, word}},
        {39, {OdDbHandle(0x1a)}},
        {44, {two, one}},
        {45, {Handles(), Classes()}},
        {46, {Points(), Points(), true}},
        {47, {word, true}},
        {47, {word, 1, word}},
        {47, {1, true, word}},
        {50, {OdDbHandle(0x1a), cls("AcDbLine")}},
        {55, {two, one}},
    };
    for (const auto& [kind, data] : failing)
        EXPECT_EQ(convert(kind, data), kFxFailure) << kind << " with " << data.size();

    // The class of an object that the macro does not know is never asked for, a value of no option is not read.
    const Handles unknownLast{OdDbHandle(0x1a), OdDbHandle(0x2b)};
    EXPECT_EQ(convert(2, {unknownLast, one, OdGeVector3d()}), kFxSuccess);
    EXPECT_EQ(convert(44, {unknownLast, one}), kFxSuccess);
    EXPECT_EQ(convert(33, {CFxString("NOSUCHVARIABLE")}), kFxSuccess);
    EXPECT_EQ(convert(46, {Points(), Points(), true, OdDbHandle(0x3c), cls("AcDbProxyEntity")}, ""), kFxSuccess);
}

TEST_F(CustomActions, MayHaveNothingToSay)
{
    EXPECT_EQ(converted(2, {Handles(), Classes()}), "");
    EXPECT_EQ(converted(10, {}), "x");
    EXPECT_EQ(converted(10, {2}), "x");
    EXPECT_EQ(converted(17, {Handles(), Classes()}), "x");
    EXPECT_EQ(converted(17, {Handles{OdDbHandle(7)}, Classes{cls("HostWeldSymbol")}}), "x");
    EXPECT_EQ(converted(55, {Handles(), Classes()}), "");
    EXPECT_EQ(converted(55, {Handles{OdDbHandle(7)}, Classes{cls("HostWeldSymbol")}}), "");
    EXPECT_EQ(converted(33, {CFxString("chammode"), std::int16_t{1}}), "");
    EXPECT_EQ(converted(37, {Handles(), Classes(), CFxString("Chairs")}), "x");
    EXPECT_EQ(converted(39, {OdDbHandle(0x99), cls("AcDbBlockReference"), CFxString("A"), CFxString("B")}), "x");
    EXPECT_EQ(converted(39, {OdDbHandle(0x1a), cls("HostWeldSymbol"), CFxString("A"), CFxString("B")}), "x");
    // A value of another type is that type's neutral value.
    EXPECT_EQ(converted(46, {Points(), Points(), true, OdDbHandle(9), 1, CFxString("A3")}, {}), "");
    EXPECT_EQ(csharp.objectCount(), 1U);
    EXPECT_NE(converted(3, {1, 1, OdGePoint3d{1.0, 1.0, 1.0}}).find("[0];\n\n\n iwApp"), std::string::npos);
    EXPECT_TRUE(text.endsWith("MoveEntities(0, 0, 0, iwEntities0);\n"));
}

TEST_F(CustomActions, InsertEmbeddedObjectsIntoTheirCommandsVariable)
{
    ASSERT_EQ(recording.run({command({odrxNew<TestAdded>("AcDbOle2Frame", 1),
                                      odrxNew<TestCustom>(15, TestData{2, CFxString("C:\\data\\sum.xls")})})}),
              kFxSuccess);
    EXPECT_EQ(recording.body(), "            EmbeddedObject embeddedobject1;\n"
                                "            {\n"
                                "                embeddedobject1 = iwSketchManager.InsertEmbeddedObjectFromFile(\n"
                                "                 \"C:\\\\data\\\\sum.xls\", \n"
                                "                 false, \n"
                                "                 true);\n"
                                "            }\n");
    EXPECT_EQ(EmitInsertEmbeddedObject(TestTarget(Target::Vba).writer, "o", "p", true, false),
              " Set o = iwSketchManager.InsertEmbeddedObjectFromFile( \"p\", True, False )\n");
    EXPECT_EQ(EmitInsertEmbeddedObject(TestTarget(Target::VbNet).writer, "o", "p", true, false),
              " o = iwSketchManager.InsertEmbeddedObjectFromFile( \"p\", true, false )\n");
}

TEST_F(CustomActions, EraseALeadersNoteThroughItsLeader)
{
    drawing.add(0x30, "AcDbLeader");
    drawing.add(0x2f, "AcDbMText", {{"reactors", OdArray<OdDbObjectId>{drawing.id(0x30)}}});
    conversion.names().RegisterObject(OdDbHandle(0x30), oddbClassByName("AcDbLeader"));
    const TestData data{Handles{OdDbHandle(0x1a), OdDbHandle(0x77), OdDbHandle(0x2f)},
                        Classes{cls("AcDbLine"), cls("HostWeldSymbol"), cls("AcDbMText")}};
    EXPECT_EQ(converted(17, data, {}), " Note note3 = leader2.GetNoteAnnotation();\n"
                                       " line1.Erased = true;\n"
                                       " note3.Erased = true;\n");
    // What the macro does not know is fetched first.
    EXPECT_EQ(convert(17, {Handles{OdDbHandle(0x5c)}, Classes{cls("AcDbCircle")}}, {}), kFxSuccess);
    EXPECT_TRUE(text.contains("GetObjectByHandle(\"5C\", "));
    EXPECT_TRUE(text.endsWith(";\n circle4.Erased = true;\n"));
    drawing.add(0x2f, "AcDbLeader");
    EXPECT_EQ(convert(17, data), kFxFailure) << "not a note";
}

TEST_F(CustomActions, SetElementColorsInVariablesThatAreDeclaredOnce)
{
    const QString first = textOf(EmitSetElementColor(conversion.writer, 7, OdCmColor::byIndex(30)));
    const QString second = textOf(EmitSetElementColor(conversion.writer, 7, OdCmColor::byIndex(30)));
    EXPECT_EQ(second, " ElementOption = (iwElementColor_e)7;\n"
                      " iwColor1 = iwApp.GetColorByIndex( 30 );\n"
                      " appOption.SetElementColor(ElementOption, iwColor1);\n");
    const QString declarations = " ApplicationOptions appOption;\n"
                                 " appOption = iwApp.GetApplicationOptions();\n"
                                 " Color iwColor1;\n"
                                 " iwElementColor_e ElementOption;\n"
                                 " \n";
    // Other tests of the same process may have been there before.
    EXPECT_TRUE(first == declarations + second || first == second) << first.toStdString();

    const TestData data{7, OdCmColor::byRgb(1, 2, 255)};
    const std::string byKind = converted(19, data);
    for (const std::int32_t kind : {23, 26, 32})
        EXPECT_EQ(converted(kind, data), byKind);
    EXPECT_TRUE(text.contains("\n iwColor1 = iwApp.GetRGBColor( 1, 2, 255 );\n"));
    EXPECT_EQ(EmitSetElementColor(TestTarget(Target::Cpp).writer, 7, OdCmColor::byLayer()),
              " ElementOption = (iwElementColor_e)7;\n m_pIwApp->GetRGBColor( 0, 0, 0, &iwColor1 );\n"
              " appOption->SetElementColor(ElementOption, iwColor1);\n");
    EXPECT_EQ(EmitSetElementColor(TestTarget(Target::Vba).writer, 7, OdCmColor::byIndex(1)),
              " Set ElementOption = 7\n Set iwColor1 = iwApp.GetColorByIndex( 1 )\n"
              " Set appOption.SetElementColor(ElementOption, iwColor1)\n");
}

TEST_F(CustomActions, SetOptionsOfDocumentAndApplication)
{
    EXPECT_EQ(convert(33, {CFxString("CHAMMODE"), std::int16_t{1}}), kFxSuccess);
    EXPECT_TRUE(text.startsWith(" {\n")) << text.toStdString();
    EXPECT_TRUE(text.contains("(iwCommandOptionInt16_e.iwCommandOptionInt16_EnblChmfAng, 1, out result"));
    EXPECT_GT(text.indexOf("SetApplicationOptionInt16("), text.indexOf("SetCommandOptionInt16("));
    EXPECT_EQ(convert(33, {CFxString("EDGEMODE"), std::int16_t{2}}), kFxSuccess);
    EXPECT_TRUE(text.startsWith("x\n "));
    EXPECT_TRUE(text.contains("iwApplicationOptionInt16_EnblEdgeExtd, 2);"));
    EXPECT_EQ(convert(33, {CFxString("INSBASE"), OdGePoint3d{1.5, 2.0, 3.0}}), kFxSuccess);
    EXPECT_TRUE(text.contains(", 1.5, 2, 3, out result"));
    EXPECT_EQ(convert(33, {CFxString("CLAYER"), CFxString("Walls")}), kFxSuccess);
    EXPECT_TRUE(text.contains(", \"Walls\", out result"));
    EXPECT_EQ(convert(33, {CFxString("BIGFONTALT"), CFxString("big")}), kFxSuccess);
    EXPECT_TRUE(text.contains("iwApplicationOptionString_SetAltBgFnt, \"big\");"));
}

TEST_F(CustomActions, ChangeOnlyGroupsThatTheMacroKnows)
{
    drawing.add(0x40, "AcDbGroup");
    drawing.add(0x50, "AcDbDictionary", {{"items", OdDbNamedIds{{"Chairs", drawing.id(0x40)}}}});
    drawing.database.setGroupDictionaryId(drawing.id(0x50));
    const TestData data{Handles{OdDbHandle(0x1a)}, Classes{cls("AcDbLine")}, CFxString("Chairs")};
    for (const std::int32_t kind : {37, 38})
        EXPECT_EQ(converted(kind, data), "x");
    conversion.names().RegisterObject(OdDbHandle(0x40), oddbClassByName("AcDbGroup"));
    EXPECT_EQ(converted(37, data), "x\n"
                                   " if ( !group2.HasEntity(line1) )\n"
                                   " {\n"
                                   "     DispatchWrapper[] entities1 = new DispatchWrapper[1];\n"
                                   "     entities1[0] = new DispatchWrapper(line1);\n"
                                   "     group2.AddEntities(entities1);\n"
                                   " }\n"
                                   "\n");
    EXPECT_EQ(converted(38, data), "x\n"
                                   " DispatchWrapper[] removeObject2;\n"
                                   " removeObject2 = new DispatchWrapper[1];\n"
                                   " removeObject2[0] = new DispatchWrapper(line1);\n"
                                   "\n"
                                   " group2.RemoveEntities(removeObject2);\n");
    EXPECT_EQ(EmitGroupAddEntities(TestTarget(Target::Cpp).writer, {"a", "b"}, "g"),
              "\n iwObjectPtrArray entities1;\n bool hasEntity1 = false;\n"
              " g->HasEntity(a, &hasEntity1);\n if ( !hasEntity1 )\n {\n     entities1.add(a);\n }\n"
              " g->HasEntity(b, &hasEntity1);\n if ( !hasEntity1 )\n {\n     entities1.add(b);\n }\n"
              "\n g->AddEntities(entities1);\n");
    EXPECT_EQ(EmitGroupRemoveEntities(TestTarget(Target::VbNet).writer, {"a"}, "g"),
              "\n Dim removeObject1 As DispatchWrapper()\n removeObject1 = New DispatchWrapper( 0 ) {}\n"
              " removeObject1( 0 ) = New DispatchWrapper( a )\n\n g.RemoveEntities(removeObject1)\n");
}

TEST_F(CustomActions, ActivateJoinAndExplodeByVariable)
{
    const OdDbHandle known(0x1a);
    EXPECT_EQ(converted(45, {Handles{known, OdDbHandle(2)}, Classes{cls("AcDbLine"), cls("AcDbArc")}}),
              "x line1.Activate();\n");
    conversion.names().RegisterObject(OdDbHandle(0x2b), oddbClassByName("AcDbPolyline"));
    EXPECT_EQ(converted(50, {known, cls("AcDbLine"), OdDbHandle(0x2b), cls("AcDbPolyline")}),
              " line1.Join( polyline2 );\n");
    EXPECT_EQ(converted(55, {Handles{known, OdDbHandle(9), OdDbHandle(0x2b)},
                             Classes{cls("AcDbLine"), cls("HostWeldSymbol"), cls("AcDbPolyline")}}),
              " line1.Explode();\n polyline2.Explode();\n");
    EXPECT_EQ(convert(50, {known, cls("AcDbLine"), OdDbHandle(0x3c), cls("AcDbArc")}), kFxSuccess);
    EXPECT_TRUE(text.contains("GetObjectByHandle(\"3C\", "));
    EXPECT_TRUE(text.endsWith(";\n line1.Join( circlearc3 );\n"));
    TestTarget vba(Target::Vba);
    EXPECT_EQ(EmitActivate(vba.writer, "a") + EmitJoin(vba.writer, "a", "b") + EmitExplode(vba.writer, "a"),
              " a.Activate\n a.Join b\n a.Explode\n");
}

TEST_F(CustomActions, InsertViewportsWithoutABlock)
{
    const TestData data{
        Points{{0.0, 0.0, 0.0}, {5.5, 0.0, 1e6}}, Points(), true, OdDbHandle(9), cls("AcDbViewport"), CFxString("A3")};
    ASSERT_EQ(recording.run({command({odrxNew<TestCustom>(46, data)})}), kFxSuccess);
    EXPECT_EQ(recording.body(),
              "            Viewport viewport1 = null;\n"
              "            Sheet sheetsArray1 = iwDoc.GetSheet(\"A3\");\n"
              "            if ( null != sheetsArray1 )\n"
              "            {\n"
              "                 viewport1 = sheetsArray1.InsertViewport( new double[]{0,0,0,5.5,0,1e+06} );\n"
              "            }\n");
    EXPECT_EQ(EmitInsertViewport(TestTarget(Target::Vba).writer, "v", "A3", {{1.0, 2.0, 3.0}}),
              " Dim v As Inkwright.Viewport\n Dim sheetsArray1 As Inkwright.Sheet\n"
              " Set sheetsArray1 = iwDoc.GetSheet(\"A3\")\n If Not sheetsArray1 Is Nothing Then\n"
              "     Dim Coordinates1(2) As Double\n     Coordinates1( 0 )=1\n     Coordinates1( 1 )=2\n"
              "     Coordinates1( 2 )=3\n     Set v = sheetsArray1.InsertViewport( Coordinates1 )\n End If\n");
    // A known variable is used and no object registered.
    EXPECT_TRUE(QString::fromStdString(converted(46, data, "viewport7")).startsWith(" Viewport viewport7 = null;\n"));
    EXPECT_EQ(csharp.objectCount(), 1U);
}

TEST_F(CustomActions, SetPrintStylesOfModelAndSheets)
{
    EXPECT_EQ(converted(47, {CFxString("a.ctb"), true, CFxString("Model")}), " iwModel.PrintStyle = \"a.ctb\";\n");
    EXPECT_EQ(converted(47, {CFxString("a.ctb"), false, CFxString("A3")}),
              " iwSheet = iwDoc.GetSheet(\"A3\");\n if (null != iwSheet)\n {\n      iwSheet.Activate();\n"
              "      iwSketchManager = iwSheet.GetSketchManager();\n }\n iwSheet.PrintStyle = \"a.ctb\";\n");
    TestTarget page(Target::JavaScript);
    EXPECT_EQ(EmitSetModelProperty(page.writer, "PrintStyle", "a.ctb", true, {}), "%mModel.put_\n( \"PrintStyle\" ); ");
    EXPECT_TRUE(textOf(EmitSetModelProperty(page.writer, "PrintStyle", "a.ctb", false, "A3"))
                    .endsWith("\n mSheet.put_PrintStyle( \"a.ctb\" );\n"));
}

TEST_F(CustomActions, MakeRegionsOfCurves)
{
    const auto region = [](Target target) {
        return EmitInsertRegion(TestTarget(target).writer, "region2", {"line1"}, 5).toStdString();
    };
    EXPECT_EQ(region(Target::Cpp), "\n iwObjectPtrArray entitiesArray5;\n entitiesArray5.add(line1);\n"
                                   " iwObjectPtrArray regionArray5;\n"
                                   " iwSketchManager->InsertRegion(entitiesArray5, &regionArray5);\n"
                                   " region2 = (iwRegion_c*)regionArray5[0];\n\n");
    EXPECT_EQ(region(Target::CSharp), "\n DispatchWrapper[] iwEntities_5 = new DispatchWrapper[1];\n"
                                      " iwEntities_5[0] = new DispatchWrapper(line1); object regionArray5;\n"
                                      " iwSketchManager.InsertRegion(iwEntities_5, out regionArray5);\n"
                                      " object[] iwRegions5 = (object[])regionArray5;\n"
                                      " region2 = iwRegions5[0] as Region;\n");
    EXPECT_EQ(region(Target::JavaScript), "\n\n% var iwEntities_5 = new Array();\n"
                                          " iwEntities_5[0] = line1; var regionArray_5 = new Array();\n"
                                          " var regionArray_5 = mSkMgr.InsertRegion(iwEntities_5);\n"
                                          " var region2 = regionArray_5.RegionArray[0];\n");
    EXPECT_EQ(region(Target::VbNet), "\n Dim iwEntities_5 As DispatchWrapper() = New DispatchWrapper(0) {}\n"
                                     " iwEntities_5(0) = New DispatchWrapper(line1)\n"
                                     " Dim regionArray5 As Object\n"
                                     " iwSketchManager.InsertRegion( iwEntities_5, regionArray5 )\n\n"
                                     " Dim iwRegionObjs As Object() = DirectCast(regionArray5, Object())\n"
                                     " region2 = TryCast(iwRegionObjs(0), Inkwright.Region)\n");
    EXPECT_EQ(region(Target::Vba), "\n Dim iwRegionEntities_5(0) As Object\n"
                                   " Set iwRegionEntities_5(0) = line1\n Dim regionArray5 As Variant\n"
                                   " iwSketchManager.InsertRegion iwRegionEntities_5, regionArray5 \n"
                                   " Set region2 = regionArray5(0)\n\n");
}

TEST_F(CustomActions, LeaveNoMarkerUnfilled)
{
    const EntityList lists{{"a", "iwLineType", "1A"}, {"", "", "2B"}};
    const std::vector<CFxString> names{"a", ""};
    const Points polygon{{}, {}};
    for (const Target target : allTargets) {
        TestTarget made(target);
        Writer& writer = made.writer;
        const Statement written =
            EmitMirrorEntities(writer, lists, {}, {}, true) + EmitStretchEntities(writer, lists, {}, {}, {}) +
            EmitRotateEntities(writer, lists, {}, 1.0) + EmitScaleEntities(writer, lists, {}, 1.0) +
            EmitInsertEmbeddedObject(writer, "a", "b", true, true) + EmitEraseEntities(writer, names) +
            EmitGroupAddEntities(writer, names, "g") + EmitGroupRemoveEntities(writer, names, "g") +
            EmitInsertViewport(writer, "v", "A3", polygon) + EmitSelectEntities(writer, 0, polygon, false) +
            EmitSelectEntities(writer, 4, polygon, false) +
            EmitSelectionFilter(writer, polygon, 2, {"iwLineType", ""}) +
            EmitSetElementColor(writer, 1, OdCmColor::byRgb(1, 2, 3)) +
            EmitBlockAttributeValue(writer, "a", "Value", "ROOM", "12") +
            EmitSetModelProperty(writer, "PrintStyle", "a", false, "A3") +
            (target == Target::JavaScript ? Statement() : EmitInsertRegion(writer, "r", {"a", "b"}, 1));
        EXPECT_FALSE(textOf(written).contains('%')) << written.toStdString();
        EXPECT_EQ(writer.IndentLevel, 0U);
    }
}

/// Regions, layers, selections and the declaration of element colors are numbered over the whole process.
TEST_F(CustomActions, GoOnCountingOverConversions)
{
    const TestData line{Handles{OdDbHandle(0x1a)}, Classes{cls("AcDbLine")}};
    const OdRxObjectPtr block = odrxNew<TestAdded>("AcDbBlockReference", 2);
    const OdRxObjectPtr value =
        odrxNew<TestCustom>(39, TestData{OdDbHandle(2), cls("AcDbBlockReference"), CFxString("ROOM"), CFxString("12")});
    const auto run = [&](const OdRxObjectPtr& last) {
        EXPECT_EQ(recording.run({block, odrxNew<TestCustom>(44, line), odrxNew<TestCustom>(10, TestData{2, Points()}),
                                 odrxNew<TestCustom>(20, TestData{1, OdCmColor::byIndex(1)}), last}),
                  kFxSuccess);
        return recording.body();
    };
    const OdRxObjectPtr layer = odrxNew<TestModified>(
        "AcDbLayerTableRecord", 3, PropertyList{odrxNew<TestProperty>(CFxString("None"), CFxString("none"))});
    const auto number = [](const QString& body, const char* word) {
        return body.section(word, 1, 1).section(QRegExp("\\D"), 0, 0).toInt();
    };
    const QString first = run(layer);
    // The attribute's handler throws a layer statement away.
    const QString second = run(value);
    EXPECT_FALSE(second.contains("iwLayerManager_"));
    EXPECT_TRUE(second.contains("ROOM")) << second.toStdString();
    const QString third = run(layer);
    for (const char* word : {"iwEntities_", "iwSelectionMgr"}) {
        EXPECT_EQ(number(second, word), number(first, word) + 1) << word;
        EXPECT_EQ(number(third, word), number(first, word) + 2) << word;
    }
    EXPECT_EQ(number(third, "iwLayerManager_"), number(first, "iwLayerManager_") + 2);
    EXPECT_FALSE(second.contains("ApplicationOptions appOption;"));
    EXPECT_TRUE(second.contains("appOption.SetElementColor("));
}

} // namespace
