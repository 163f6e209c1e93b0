// Mirror, stretch, copy, move, rotate, scale and selections: the whole text of each in the targets.

#include "TestActions.h"
#include "TestTarget.h"

#include "actions/entries.h"
#include "module/walk.h"
#include "targets/entityLists.h"
#include "targets/selections.h"

#include <gtest/gtest.h>

using inkmacro::Target;

namespace {

using Handles = std::vector<OdDbHandle>;
using Classes = std::vector<const OdRxClass*>;
using Points = OdArray<OdGePoint3d>;

/// A line that the macro knows under handle 1A, a circle under 2B that it does not know.
struct Lists : TestTarget
{
    explicit Lists(Target target) : TestTarget(target)
    {
        conversion.names().RegisterObject(OdDbHandle(0x1a), oddbClassByName("AcDbLine"));
        writer.UniqueCounter = 4;
    }
    std::string convert(std::int32_t kind, TestData values)
    {
        TestData data{Handles{OdDbHandle(0x1a), OdDbHandle(0x2b)},
                      Classes{oddbClassByName("AcDbLine"), oddbClassByName("AcDbCircle")}};
        data.insert(data.end(), values.begin(), values.end());
        return run(kind, data);
    }
    std::string run(std::int32_t kind, const TestData& data)
    {
        Statement text;
        EXPECT_EQ(ConvertCustomAction(conversion, *odrxNew<TestCustom>(kind, data), text), kFxSuccess);
        EXPECT_EQ(writer.UniqueCounter, 4U);
        EXPECT_EQ(writer.IndentLevel, 0U);
        return text.toStdString();
    }
};

std::string convert(Target target, std::int32_t kind, TestData values)
{
    return Lists(target).convert(kind, std::move(values));
}

TEST(EntityLists, MoveInAllTargets)
{
    const auto move = [](Target target) { return convert(target, 3, {OdGeVector3d{1.5, -2.0, 1234567.0}}); };
    EXPECT_EQ(move(Target::Cpp), " iwObjectPtrArray iwEntities4;\n"
                                 " iwEntities4.add(iwline1);\n"
                                 " iwEntities4.add();\n"
                                 "\n"
                                 " iwSketchManager->MoveEntities(1.5, -2, 1.23457e+06, iwEntities4);\n");
    EXPECT_EQ(move(Target::CppCom), " VARIANT objects4;\n"
                                    " objects4.vt = ( VT_ARRAY | VT_DISPATCH  );\n"
                                    " objects4.parray = SafeArrayCreateVector( VT_DISPATCH , 0, 2 );\n"
                                    " long rgIndices4;\n"
                                    " rgIndices4 = 0;\n"
                                    " IDispatch* val4;\n"
                                    " val4 = line1;\n"
                                    " SafeArrayPutElement( objects4.parray, &rgIndices4, (IDispatch*)(val4) );\n"
                                    " rgIndices4++;\n"
                                    " val4 = ;\n"
                                    " SafeArrayPutElement( objects4.parray, &rgIndices4, (IDispatch*)(val4) );\n"
                                    " rgIndices4++;\n"
                                    "\n"
                                    " iwSketchManager->MoveEntities(1.5, -2, 1.23457e+06, objects4);\n");
    EXPECT_EQ(move(Target::CSharp),
              " DispatchWrapper[] iwEntities4;\n"
              " iwEntities4 = new DispatchWrapper[2];\n"
              "\n"
              " iwEntities4[0] = new DispatchWrapper(line1);\n"
              " iwEntities4[1] = new DispatchWrapper();\n"
              "\n"
              " iwApp.GetActiveDocument().GetModel().GetSketchManager().MoveEntities(1.5, -2, 1.23457e+06, "
              "iwEntities4);\n");
    EXPECT_EQ(move(Target::JavaScript), " var iwEntities4;\n"
                                        " iwEntities4 = new Array(2);\n"
                                        "\n"
                                        " iwEntities4[0] = line1;\n"
                                        " iwEntities4[1] = ;\n"
                                        "\n"
                                        " mSkMgr.MoveEntities(1.5, -2, 1.23457e+06, iwEntities4);\n");
    EXPECT_EQ(move(Target::VbNet), " Dim iwEntities4 As DispatchWrapper()\n"
                                   " iwEntities4 = New DispatchWrapper( 1 ) {}\n"
                                   "\n"
                                   " iwEntities4( 0 ) = New DispatchWrapper( line1 )\n"
                                   " iwEntities4( 1 ) = New DispatchWrapper(  )\n"
                                   "\n"
                                   " iwSketchManager.MoveEntities( 1.5, -2, 1.23457e+06, iwEntities4 )\n");
    EXPECT_EQ(move(Target::Vba), " Dim iwEntities4( 1 ) As Object\n"
                                 "\n"
                                 " Set iwEntities4( 0 ) = line1\n"
                                 " Set iwEntities4( 1 ) = \n"
                                 "\n"
                                 " iwSketchManager.MoveEntities 1.5, -2, 1.23457e+06, iwEntities4\n");
}

/// Three vectors: one set of arrays, three calls.
std::string copy(Target target)
{
    return convert(target, 2, {OdGeVector3d{1.0, 0.0, 0.0}, OdGeVector3d{2.0, 0.0, 0.0}, OdGeVector3d{3.0, 0.0, 0.5}});
}

TEST(EntityLists, CopyUnknownObjectsByTheirHandleInTheCurlyTargets)
{
    EXPECT_EQ(copy(Target::Cpp), " iwObjectPtrArray iwEntities4;\n"
                                 " iwLongArray types4;\n"
                                 " types4.add(iwLineType);\n"
                                 " iwEntities4.add(iwline1);\n"
                                 " iwObjectType_e iwTypeForCopy4;\n"
                                 " iwObject_ptr iwObjForCopy4;\n"
                                 " iwDoc->GetObjectByHandle(L\"2B\", &iwTypeForCopy4, &iwObjForCopy4);\n"
                                 " types4.add(iwTypeForCopy4);\n"
                                 " iwEntities4.add(iwObjForCopy4);\n"
                                 "\n"
                                 " iwSketchManager->CopyEntities(1, 0, 0, types4, iwEntities4);\n"
                                 " iwSketchManager->CopyEntities(2, 0, 0, types4, iwEntities4);\n"
                                 " iwSketchManager->CopyEntities(3, 0, 0.5, types4, iwEntities4);\n");
    EXPECT_EQ(copy(Target::CppCom), " VARIANT objects4;\n"
                                    " objects4.vt = ( VT_ARRAY | VT_DISPATCH  );\n"
                                    " objects4.parray = SafeArrayCreateVector( VT_DISPATCH , 0, 2 );\n"
                                    " VARIANT types4;\n"
                                    " types4.vt = ( VT_ARRAY | VT_I4  );\n"
                                    " types4.parray = SafeArrayCreateVector( VT_I4 , 0, 2 );\n"
                                    " iwObjectType_e iwTypeForCopy4;\n"
                                    " IDispatchPtr iwObjForCopy4 = pConnection->m_IwApp->GetActiveDocument()->"
                                    "GetObjectByHandle(L\"2B\", &iwTypeForCopy4);\n"
                                    " long rgIndices4;\n"
                                    " rgIndices4 = 0;\n"
                                    " IDispatch* val4;\n"
                                    " val4 = line1;\n"
                                    " SafeArrayPutElement( objects4.parray, &rgIndices4, (IDispatch*)(val4) );\n"
                                    " rgIndices4++;\n"
                                    " val4 = iwObjForCopy4;\n"
                                    " SafeArrayPutElement( objects4.parray, &rgIndices4, (IDispatch*)(val4) );\n"
                                    " rgIndices4++;\n"
                                    " {\n"
                                    "    long rgIndices4;\n"
                                    "    rgIndices4 = 0;\n"
                                    "    int val4;\n"
                                    "    val4 = iwLineType;\n"
                                    "    SafeArrayPutElement( types4.parray, &rgIndices4, (int*)&(val4) );\n"
                                    "    rgIndices4++;\n"
                                    "    val4 = iwTypeForCopy4;\n"
                                    "    SafeArrayPutElement( types4.parray, &rgIndices4, (int*)&(val4) );\n"
                                    "    rgIndices4++;\n"
                                    " }\n"
                                    "\n"
                                    " iwSketchManager->CopyEntities(1, 0, 0, types4, objects4);\n"
                                    " iwSketchManager->CopyEntities(2, 0, 0, types4, objects4);\n"
                                    " iwSketchManager->CopyEntities(3, 0, 0.5, types4, objects4);\n");
    const std::string call = " iwApp.GetActiveDocument().GetModel().GetSketchManager().CopyEntities(";
    EXPECT_EQ(copy(Target::CSharp),
              " DispatchWrapper[] iwEntities4;\n"
              " int[] types4 = new int[2];\n"
              " iwEntities4 = new DispatchWrapper[2];\n"
              "\n"
              " types4[0] = (int)iwObjectType_e.iwLineType;\n"
              " iwEntities4[0] = new DispatchWrapper(line1);\n"
              " iwObjectType_e iwTypeForCopy4;\n"
              " Object iwObjForCopy4 = iwApp.GetActiveDocument().GetObjectByHandle(\"2B\", out iwTypeForCopy4);\n"
              " types4[1] = (int)iwTypeForCopy4;\n"
              " iwEntities4[1] = new DispatchWrapper(iwObjForCopy4);\n"
              "\n" +
                  call + "1, 0, 0, types4, iwEntities4);\n" + call + "2, 0, 0, types4, iwEntities4);\n" + call +
                  "3, 0, 0.5, types4, iwEntities4);\n");
}

TEST(EntityLists, CopyUnknownObjectsByTheirHandleInTheScriptTargets)
{
    EXPECT_EQ(copy(Target::JavaScript), " var iwEntities4;\n"
                                        " var types4 = new Array(2);\n"
                                        " iwEntities4 = new Array(2);\n"
                                        "\n"
                                        " types4[0] = 21;\n"
                                        " iwEntities4[0] = line1;\n"
                                        " var iwTypeForCopy4;\n"
                                        " var iwObjForCopy4 = mDoc.GetObjectByHandle(\"2B\").DispObj;\n"
                                        " iwTypeForCopy4 = mApp.GetObjectType(iwObjForCopy4);\n"
                                        " types4[1] = iwTypeForCopy4;\n"
                                        " iwEntities4[1] = iwObjForCopy4;\n"
                                        "\n"
                                        " mSkMgr.CopyEntities(1, 0, 0, types4, iwEntities4);\n"
                                        " mSkMgr.CopyEntities(2, 0, 0, types4, iwEntities4);\n"
                                        " mSkMgr.CopyEntities(3, 0, 0.5, types4, iwEntities4);\n");
    EXPECT_EQ(copy(Target::VbNet),
              " Dim iwEntities4 As DispatchWrapper()\n"
              " Dim types4 As Integer() = New Integer( 1 ) {}\n"
              " iwEntities4 = New DispatchWrapper( 1 ) {}\n"
              "\n"
              " types4( 0 ) = CInt( Inkwright.iwObjectType_e.iwLineType )\n"
              " iwEntities4( 0 ) = New DispatchWrapper( line1 )\n"
              " Dim iwTypeForCopy4 As Inkwright.iwObjectType_e\n"
              " Dim iwObjForCopy4 As Object = iwApp.GetActiveDocument().GetObjectByHandle(\"2B\", iwTypeForCopy4)\n"
              " types4( 1 ) = CInt( iwTypeForCopy4 )\n"
              " iwEntities4( 1 ) = New DispatchWrapper( iwObjForCopy4 )\n"
              "\n"
              " iwSketchManager.CopyEntities( 1, 0, 0, types4, iwEntities4 )\n"
              " iwSketchManager.CopyEntities( 2, 0, 0, types4, iwEntities4 )\n"
              " iwSketchManager.CopyEntities( 3, 0, 0.5, types4, iwEntities4 )\n");
    EXPECT_EQ(copy(Target::Vba),
              " Dim iwEntities4( 1 ) As Object\n"
              " Dim types4( 1 ) As iwObjectType_e\n"
              "\n"
              " types4( 0 ) = Inkwright.iwObjectType_e.iwLineType\n"
              " Set iwEntities4( 0 ) = line1\n"
              " Dim iwTypeForCopy4 As Inkwright.iwObjectType_e\n"
              " Dim iwObjForCopy4 As Object\n"
              " Set iwObjForCopy4 = iwApp.GetActiveDocument().GetObjectByHandle(\"2B\", iwTypeForCopy4)\n"
              " types4( 1 ) = iwTypeForCopy4\n"
              " Set iwEntities4( 1 ) = iwObjForCopy4\n"
              "\n"
              " iwSketchManager.CopyEntities 1, 0, 0, types4, iwEntities4\n"
              " iwSketchManager.CopyEntities 2, 0, 0, types4, iwEntities4\n"
              " iwSketchManager.CopyEntities 3, 0, 0.5, types4, iwEntities4\n");
}

TEST(EntityLists, MirrorRotateAndScaleWithTheirTypes)
{
    const std::string arrays = " DispatchWrapper[] iwEntities4;\n"
                               " int[] types4 = new int[2];\n"
                               " iwEntities4 = new DispatchWrapper[2];\n"
                               "\n"
                               " types4[0] = (int)iwObjectType_e.iwLineType;\n"
                               " iwEntities4[0] = new DispatchWrapper(line1);\n"
                               " types4[1] = (int)iwObjectType_e.;\n"
                               " iwEntities4[1] = new DispatchWrapper();\n"
                               "\n"
                               " iwApp.GetActiveDocument().GetModel().GetSketchManager().";
    const std::string vbArrays = " Dim iwEntities4 As DispatchWrapper()\n"
                                 " Dim types4 As Integer() = New Integer( 1 ) {}\n"
                                 " iwEntities4 = New DispatchWrapper( 1 ) {}\n"
                                 "\n"
                                 " types4( 0 ) = CInt( Inkwright.iwObjectType_e.iwLineType )\n"
                                 " iwEntities4( 0 ) = New DispatchWrapper( line1 )\n"
                                 " types4( 1 ) = CInt( Inkwright.iwObjectType_e. )\n"
                                 " iwEntities4( 1 ) = New DispatchWrapper(  )\n"
                                 "\n"
                                 " iwSketchManager.";
    const OdGePoint3d first{1.0, 2.0, 3.0};
    const OdGePoint3d second{4.0, 5.0, 6.5};
    const TestData mirror{first, second, true};
    EXPECT_EQ(convert(Target::CSharp, 0, mirror),
              arrays + "MirrorEntities(1, 2, 3, 4, 5, 6.5, true, types4, iwEntities4);\n");
    EXPECT_EQ(convert(Target::VbNet, 0, mirror),
              vbArrays + "MirrorEntities( 1, 2, 3, 4, 5, 6.5, true, types4, iwEntities4 )\n");
    EXPECT_NE(convert(Target::Vba, 0, mirror).find(".MirrorEntities 1, 2, 3, 4, 5, 6.5, True, types4, iwEntities4\n"),
              std::string::npos);
    EXPECT_EQ(convert(Target::CSharp, 4, {first, 0.25}), arrays + "RotateEntities(1, 2, 0.25, types4, iwEntities4);\n");
    EXPECT_EQ(convert(Target::VbNet, 4, {first, 0.25}),
              vbArrays + "RotateEntities( 1, 2, 0.25, types4, iwEntities4 )\n");
    EXPECT_EQ(convert(Target::CSharp, 5, {first, 0.25}),
              arrays + "ScaleEntities(1, 2, 0.25, 3, types4, iwEntities4);\n");
    EXPECT_EQ(convert(Target::VbNet, 5, {first, 0.25}),
              vbArrays + "ScaleEntities( 1, 2, 0.25, 3, types4, iwEntities4 )\n");
}

TEST(EntityLists, NameTypesByNumberInAScript)
{
    TestTarget script(Target::JavaScript);
    const QString text =
        textOf(EmitScaleEntities(script.writer, {{"line1", "iwLineType", "1A"}, {"", "", "2B"}}, {}, 2.0));
    EXPECT_TRUE(text.contains(" types0[0] = 21;\n iwEntities0[0] = line1;\n types0[1] = 0;\n")) << text.toStdString();
    EXPECT_TRUE(text.endsWith(" mSkMgr.ScaleEntities(0, 0, 2, 0, types0, iwEntities0);\n")) << text.toStdString();
}

TEST(EntityLists, StretchACrossingBox)
{
    const TestData box{OdGePoint3d{1.0, 2.0, 0.0}, OdGePoint3d{3.0, 4.0, 0.0}, OdGeVector3d{0.0, 7.0, 8.0}};
    EXPECT_EQ(convert(Target::CSharp, 1, box),
              " DispatchWrapper[] iwEntities4;\n"
              " double[] crossingBoxStartCorner4;\n"
              " double[] crossingBoxEndCorner4;\n"
              "\n"
              " iwEntities4 = new DispatchWrapper[2];\n"
              " iwEntities4[0] = new DispatchWrapper(line1);\n"
              " iwEntities4[1] = new DispatchWrapper();\n"
              "\n"
              " crossingBoxStartCorner4 = new double[] { 1, 2, 0};\n"
              " crossingBoxEndCorner4 = new double[] { 3, 4, 0};\n"
              "\n"
              " iwApp.GetActiveDocument().GetModel().GetSketchManager().StretchEntities(0, 7, 8, iwEntities4, "
              "crossingBoxStartCorner4, crossingBoxEndCorner4);\n");
    EXPECT_EQ(convert(Target::Vba, 1, box),
              " Dim iwEntities4( 1 ) As Object\n"
              " Dim crossingBoxStartCorner4(2) As Double\n"
              " Dim crossingBoxEndCorner4(2) As Double\n"
              "\n"
              " Set iwEntities4( 0 ) = line1\n"
              " Set iwEntities4( 1 ) = \n"
              "\n"
              " crossingBoxStartCorner4(0) = 1\n"
              " crossingBoxStartCorner4(1) = 2\n"
              " crossingBoxStartCorner4(2) = 0\n"
              " crossingBoxEndCorner4(0) = 3\n"
              " crossingBoxEndCorner4(1) = 4\n"
              " crossingBoxEndCorner4(2) = 0\n"
              "\n"
              " iwSketchManager.StretchEntities 0, 7, 8, iwEntities4, crossingBoxStartCorner4, "
              "crossingBoxEndCorner4\n");
}

/// Selections are numbered over the whole process: the text with the number of its first statement as N.
struct Selecting : Lists
{
    using Lists::Lists;
    std::string select(std::int32_t mode, const Points& points, std::int32_t kind = 10, TestData more = {})
    {
        more.insert(more.end(), {CFxCustomActionData::Value(mode), CFxCustomActionData::Value(points)});
        QString text = QString::fromStdString(run(kind, more));
        const QString number = text.section("iwSelectionMgr", 1, 1).section(' ', 0, 0);
        const QStringList words{"iwSelectionMgr", "iwMathUtility", "doubleArray", "iCount", "selectionFilter"};
        for (const QString& word : words)
            text.replace(word + number, word + 'N');
        return text.replace("Point_" + number + '_', "Point_N_").toStdString();
    }
};

const std::string head = " SelectionManager iwSelectionMgrN = iwDoc.GetSelectionManager();\n"
                         " MathUtility iwMathUtilityN = iwApp.GetMathUtility();\n";
const std::string tail = " int iCountN = iwSelectionMgrN.GetSelectedObjectCount("
                         "iwSelectionSetType_e.iwSelectionSetType_Previous);\n";

std::string corners(const std::string& low, const std::string& high)
{
    return " MathPoint Point_N_1;\n Point_N_1 = iwMathUtilityN.CreatePoint(" + low +
           ");\n MathPoint Point_N_2;\n Point_N_2 = iwMathUtilityN.CreatePoint(" + high + ");\n";
}

TEST(Selections, TakeTheFormOfTheirMode)
{
    Selecting lists(Target::CSharp);
    const Points four{{5.0, 1.0, 0.0}, {-2.0, 7.5, 0.0}, {0.0, 0.0, 3.0}, {1.0, 1.0, 1.0}};
    const std::string box = corners("-2, 0, 0", "5, 7.5, 3");
    EXPECT_EQ(lists.select(1, four), head +
                                         " MathPoint Point_N_1;\n"
                                         " Point_N_1 = iwMathUtilityN.CreatePoint(5, 1, 0);\n"
                                         " iwSelectionMgrN.SelectByPoint(Point_N_1);\n" +
                                         tail);
    EXPECT_EQ(lists.select(2, four),
              head + box + " iwSelectionMgrN.SelectByWindow(Point_N_1, Point_N_2, false);\n" + tail);
    for (const std::int32_t mode : {0, 3})
        EXPECT_EQ(lists.select(mode, four),
                  head + box + " iwSelectionMgrN.SelectByWindow(Point_N_1, Point_N_2, true);\n" + tail);
    EXPECT_EQ(lists.select(2, {}), head + corners("1e+20, 1e+20, 1e+20", "-1e+20, -1e+20, -1e+20") +
                                       " iwSelectionMgrN.SelectByWindow(Point_N_1, Point_N_2, false);\n" + tail);
    EXPECT_EQ(lists.select(4, {{1.0, 2.0, 3.0}, {4.0, 5.0, 6.0}}),
              head +
                  " double[] doubleArrayN = new double[6];\n"
                  " doubleArrayN[0] = 1;\n doubleArrayN[1] = 2;\n doubleArrayN[2] = 3;\n"
                  " doubleArrayN[0] = 4;\n doubleArrayN[1] = 5;\n doubleArrayN[2] = 6;\n"
                  " iwSelectionMgrN.SelectByCrossline(doubleArrayN);\n" +
                  tail);
    const Points five{{}, {}, {}, {}, {}};
    for (const std::int32_t mode : {0, 3}) {
        const std::string text = lists.select(mode, five);
        EXPECT_NE(text.find("new double[15];\n"), std::string::npos);
        EXPECT_NE(text.find(" iwSelectionMgrN.SelectByPolygon(doubleArrayN, true);\n" + tail), std::string::npos);
    }
    for (const std::int32_t mode : {5, -1})
        EXPECT_EQ(lists.select(mode, four), head + tail);
    Statement text;
    EXPECT_THROW(EmitSelectEntities(lists.writer, 1, {}, false), OdError);
    EXPECT_EQ(ConvertAction(lists.conversion, odrxNew<TestCustom>(10, TestData{1, Points()}), text), kFxFailure);
}

TEST(Selections, PassThroughAFilter)
{
    Selecting lists(Target::CSharp);
    EXPECT_EQ(lists.select(9, {}, 11, {CFxString("LINE"), CFxString("circlearc"), CFxString("AcDbRay")}),
              " SelectionManager iwSelectionMgrN = iwDoc.GetSelectionManager();\n"
              " SelectionFilter selectionFilterN = iwSelectionMgrN.GetSelectionFilter();\n"
              " selectionFilterN.Clear();\n"
              " selectionFilterN.AddEntityType(iwObjectType_e.iwLineType);\n"
              " selectionFilterN.AddEntityType(iwObjectType_e.iwCircleArcType);\n"
              "\n"
              " selectionFilterN.Active = true;\n"
              " MathUtility iwMathUtilityN = iwApp.GetMathUtility();\n" +
                  tail + " selectionFilterN.Active = false;\n");
}

TEST(Selections, ByPointsAreEmptyInThreeTargets)
{
    for (const Target target : allTargets) {
        const bool empty = target == Target::CppCom || target == Target::JavaScript || target == Target::VbNet;
        Lists lists(target);
        EXPECT_EQ(lists.run(10, {2, Points()}).empty(), empty);
        EXPECT_EQ(lists.run(11, {2, Points()}).empty(), empty);
        // Not even a point is asked for there.
        if (empty) {
            EXPECT_EQ(lists.run(10, {1, Points()}), "");
        }
    }
}

TEST(Selections, AtAPromptLookUpWhatTheMacroDoesNotKnow)
{
    Lists lists(Target::CSharp);
    Statement selected("before");
    const auto select = [&](Handles handles, Classes classes) {
        return ConvertSelection(lists.conversion, *odrxNew<TestSelection>(std::move(handles), std::move(classes)),
                                selected);
    };
    EXPECT_EQ(select({}, {}), kFxSuccess);
    EXPECT_EQ(selected, "before");
    const Classes classes{oddbClassByName("AcDbLine"), oddbClassByName("AcDbCircle")};
    EXPECT_EQ(select({OdDbHandle(0x1a), OdDbHandle(0x2b)}, classes), kFxSuccess);
    const QString text = textOf(selected);
    const QString lookup = "iwApp.GetActiveDocument().GetObjectByHandle(\"2B\", out type5)";
    EXPECT_TRUE(text.startsWith(" iwObjectType_e type5;\n"
                                " iwObjectType_e[] types5 =\n"
                                " {\n"
                                " iwObjectType_e.iwLineType,\n"
                                " iwApp.GetObjectType(" +
                                lookup +
                                "),\n"
                                " };\n"
                                " object[] entities5 =\n"
                                " {\n"
                                " line1,\n"
                                " " +
                                lookup +
                                ",\n"
                                " };\n"
                                " iwApp.GetCommandMessage().PromptForSelection(false, \"Select Objects: \", \"\");\n"
                                " {\n"
                                "    int count = "))
        << text.toStdString();
    EXPECT_TRUE(text.endsWith("out types5[i]);\n     }\n }\n")) << text.toStdString();
    EXPECT_THROW(select({OdDbHandle(0x1a)}, {}), OdError);
}

TEST(Selections, AtAPromptReachByHandleInAllTargets)
{
    for (const Target target : allTargets) {
        Lists lists(target);
        Statement selected;
        const auto circle = odrxNew<TestSelection>(Handles{OdDbHandle(0x2b)}, Classes{oddbClassByName("AcDbCircle")});
        ASSERT_EQ(ConvertSelection(lists.conversion, *circle, selected), kFxSuccess);
        const QString text = textOf(selected);
        EXPECT_EQ(text.count("GetObjectByHandle("), 2) << text.toStdString();
        EXPECT_EQ(text.count("\"2B\""), 2) << text.toStdString();
        EXPECT_FALSE(text.contains('%')) << text.toStdString();
        EXPECT_EQ(lists.writer.IndentLevel, 0U);
    }
}

} // namespace
