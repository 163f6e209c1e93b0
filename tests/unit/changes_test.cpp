// What changed properties become: where the statements go, the general properties, erasure, and the setters.

#include "TestActions.h"
#include "TestDrawing.h"
#include "TestTarget.h"

#include "host/db/OdDbClassMap.h"
#include "objects/entries.h"
#include "objects/targets/references.h"
#include "objects/targets/setters.h"

#include <QRegularExpression>

using inkmacro::Target;

namespace {

CFxPropertyChangedPtr record(const CFxString& tag, const CFxVariant& value)
{
    return odrxNew<TestProperty>(tag, value);
}

class Changes : public testing::Test
{
protected:
    Changes()
    {
        drawing.add(0x10, "AcDbLayerTableRecord", {{"name", OdString("Walls")}});
        drawing.add(0x11, "AcDbLinetypeTableRecord", {{"name", OdString("DASHED")}});
    }

    /// The text of a change to an object that the macro has a variable for.
    QString change(TestTarget& made, const char* cls, PropertyList list)
    {
        made.conversion.names().RegisterObject(OdDbHandle(1), oddbClassByName(cls));
        return changeAsItIs(made, cls, 1, std::move(list));
    }
    static QString changeAsItIs(TestTarget& made, const char* cls, std::uint64_t handle, PropertyList list)
    {
        Statement text("left from before");
        ConvertObjectChanges(made.conversion, oddbClassByName(cls), OdDbHandle(handle), list, false, text);
        return textOf(text);
    }
    CFxPropertyChangedPtr layer() { return record("Layer", drawing.id(0x10)); }
    static CFxPropertyChangedPtr color(const OdCmColor& color) { return record("LineColor", color); }

    TestDrawing drawing;
};

TEST_F(Changes, StandInAGroup)
{
    expectInAllTargets(
        {
            .cpp = "    {\n        iwline1->put_Layer( L\"Walls\" );\n    }\n",
            .cppCom = "    {\n        line1->put_Layer( L\"Walls\" );\n    }\n",
            .csharp = "    {\n        line1.Layer = \"Walls\";\n    }\n",
            .javascript = "    line1.put_Layer (\"Walls\");\n",
            .vbNet = "    If 1 Then\n        line1.Layer = \"Walls\"\n    End If\n\n",
            .vba = "    If 1 Then\n        line1.Layer = \"Walls\"\n    End If\n\n",
        },
        [&](TestTarget& made) { return change(made, "AcDbLine", {layer()}); });
}

TEST_F(Changes, StandBareWhenTheyDeclareSomething)
{
    expectInAllTargets(
        {
            .cpp = "    iwColor_ptr iwColor1;\n    m_pIwApp->GetColorByIndex( 1, &iwColor1 );\n"
                   "    iwline1->put_Color( iwColor1 );\n",
            .cppCom = "    line1->put_Color( pConnection->m_IwApp->GetColorByIndex( 1 ) );\n",
            .csharp = "    line1.Color = iwApp.GetColorByIndex( 1 );\n",
            .javascript = "    line1.put_Color( mApp.GetColorByIndex( 1 ) );\n",
            .vbNet = "    line1.Color = iwApp.GetColorByIndex( 1 )\n",
            .vba = "    line1.Color = iwApp.GetColorByIndex( 1 )\n",
        },
        [&](TestTarget& made) { return change(made, "AcDbLine", {color(OdCmColor::byIndex(1))}); });
    // Two such properties give the group's level back once.
    expectInAllTargets(
        {
            .cpp = "    iwline1->put_LineStyle( L\"DASHED\" );\n    iwline1->put_LineWeight( iwLnWt_025 );\n",
            .cppCom = "    line1->put_LineStyle( L\"DASHED\" );\n    line1->put_LineWeight( iwLnWt_025 );\n",
            .csharp = "    line1.LineStyle = \"DASHED\";\n    line1.LineWeight = iwLineWeight_e.iwLnWt_025;\n",
            .javascript = "    line1.put_LineStyle (\"DASHED\");\n    line1.put_LineWeight( \"iwLnWt_025\" );\n",
            .vbNet = "    line1.LineStyle = \"DASHED\"\n"
                     "    line1.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_025\n",
            .vba = "    line1.LineStyle = \"DASHED\"\n    line1.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_025\n",
        },
        [&](TestTarget& made) {
            return change(made, "AcDbLine",
                          {record("LineWeight", std::int32_t{25}), record("LineStyle", drawing.id(0x11))});
        });
}

TEST_F(Changes, OfGeneralPropertiesComeInAFixedOrder)
{
    TestTarget made(Target::CSharp, 1);
    // The level of the layer's statement was taken when the color had left the group.
    EXPECT_EQ(change(made, "AcDbCircle",
                     {record("PrintStyle", CFxString("Fine")), record("Thickness", 2.5), record("LineScale", 0.5),
                      layer(), color(OdCmColor::byRgb(1, 2, 3))}),
              "    circle1.Color = iwApp.GetRGBColor( 1, 2, 3 );\n    circle1.Layer = \"Walls\";\n"
              "    circle1.LineScale = 0.50000000000000;\n    circle1.Thickness = 2.50000000000000;\n"
              "    circle1.PrintStyle = \"Fine\";\n");
    // A style is no entity.
    EXPECT_EQ(change(made, "AcDbTextStyleTableRecord", {layer(), color(OdCmColor::byLayer())}), "");
    EXPECT_EQ(made.writer.IndentLevel, 1U);
}

TEST_F(Changes, ThatSayNothingLeaveNothingBehind)
{
    const std::vector<PropertyList> silent{
        {},
        {record("Linear scale", 2.0)},
        {record("Erased", CFxString("NO"))},
        {record("Transparency", CFxString("50"))},
        // Records of the drawing that are not there.
        {record("Layer", drawing.id(0x99))},
        {record("LineStyle", drawing.id(0x99))},
    };
    for (const PropertyList& list : silent)
        expectInAllTargets({"", "", "", "", "", ""}, [&](TestTarget& made) { return change(made, "AcDbLine", list); });
}

TEST_F(Changes, OfUnknownObjectsAreDropped)
{
    TestTarget made(Target::CSharp, 1);
    const auto unknown = [&](const char* cls, PropertyList list) {
        return changeAsItIs(made, cls, 5, std::move(list));
    };
    EXPECT_EQ(unknown("AcDbLine", {layer()}), "");
    EXPECT_EQ(unknown("AcDbBlockTableRecord", {record("Description", CFxString("Door"))}), "");
    EXPECT_TRUE(unknown("AcDbBlockTableRecord", {record("Objects", CFxVariantCollection())})
                    .startsWith("    BlockDefinition blockdefinition1;\n    {\n"));
    // A sheet has no variable and is not dropped for that.
    EXPECT_EQ(unknown("AcDbLayout", {record("PrintStyleTable", CFxString("acad.ctb"))}), "");
    EXPECT_EQ(unknown("AcDbLayout", {record("Erased", CFxString("YES"))}), "    {\n        .Erased = true;\n    }\n");
    Statement text;
    PropertyList list{layer()};
    ConvertObjectChanges(made.conversion, nullptr, OdDbHandle(5), list, false, text);
    EXPECT_EQ(text, "");
    EXPECT_EQ(made.writer.IndentLevel, 1U);
}

TEST_F(Changes, OfALeadersNoteFetchTheNoteFirst)
{
    drawing.add(0x21, "AcDbLeader");
    drawing.add(0x20, "AcDbMText", {{"reactors", OdArray<OdDbObjectId>{drawing.id(0x21)}}});

    TestTarget made(Target::CSharp, 1);
    made.conversion.names().RegisterObject(OdDbHandle(0x21), OdDbLeader::desc());
    EXPECT_EQ(changeAsItIs(made, "AcDbMText", 0x20, {layer()}),
              "    Note note2 = leader1.GetNoteAnnotation();\n    {\n        note2.Layer = \"Walls\";\n    }\n");
    EXPECT_EQ(changeAsItIs(made, "AcDbMText", 0x20, {record("Linear scale", 2.0)}), "");
    // The variable is not remembered.
    EXPECT_EQ(changeAsItIs(made, "AcDbMText", 0x20, {color(OdCmColor::byBlock())}),
              "    Note note4 = leader1.GetNoteAnnotation();\n    note4.Color = iwApp.GetColorByIndex( 0 );\n");
    EXPECT_EQ(made.writer.IndentLevel, 1U);
}

TEST_F(Changes, OfDimensionsGoToTheGeneralDimension)
{
    const char* const dimension = "AcDbAlignedDimension";
    expectInAllTargets(
        {
            .cpp = "    {\n        iwGeneralDimension_ptr generalDimension1;\n"
                   "        iwaligneddimension1->GetGeneralDimension( &generalDimension1 );\n"
                   "        generalDimension1->put_Layer( L\"Walls\" );\n    }\n",
            .cppCom = "    {\n        IGeneralDimensionPtr generalDimension1 = "
                      "aligneddimension1->GetGeneralDimension();\n"
                      "        generalDimension1->put_Layer( L\"Walls\" );\n    }\n",
            .csharp = "    {\n        GeneralDimension generalDimension1 = aligneddimension1.GetGeneralDimension();\n"
                      "        generalDimension1.Layer = \"Walls\";\n    }\n",
            .javascript = "    var generalDimension1 = aligneddimension1.GetGeneralDimension();\n"
                          "    generalDimension1.put_Layer (\"Walls\");\n",
            .vbNet = "    If 1 Then\n        Dim generalDimension1 As Inkwright.GeneralDimension = "
                     "aligneddimension1.GetGeneralDimension()\n"
                     "        generalDimension1.Layer = \"Walls\"\n    End If\n\n",
            .vba = "    If 1 Then\n        Dim generalDimension1 As Inkwright.GeneralDimension\n"
                   "        Set generalDimension1 = aligneddimension1.GetGeneralDimension()\n"
                   "        generalDimension1.Layer = \"Walls\"\n    End If\n\n",
        },
        [&](TestTarget& made) { return change(made, dimension, {layer()}); });

    TestTarget made(Target::CSharp, 1);
    // The dimension was fetched while the group was still to come.
    EXPECT_EQ(change(made, dimension, {color(OdCmColor::byIndex(3))}),
              "        GeneralDimension generalDimension1 = aligneddimension1.GetGeneralDimension();\n"
              "    generalDimension1.Color = iwApp.GetColorByIndex( 3 );\n");
    EXPECT_EQ(change(made, dimension, {record("Linear scale", 2.0)}), "");
    EXPECT_EQ(change(made, dimension, {record("Erased", CFxString("YES"))}),
              "    {\n        GeneralDimension generalDimension4 = aligneddimension3.GetGeneralDimension();\n"
              "        generalDimension4.Erased = true;\n    }\n");
    EXPECT_EQ(change(made, dimension, {record("Erased", CFxString("NO"))}),
              "    {\n        GeneralDimension generalDimension6 = aligneddimension4.GetGeneralDimension();\n    }\n");
    EXPECT_EQ(made.writer.IndentLevel, 1U);
}

TEST_F(Changes, OfACurvedTextsColorGoThroughItsSettings)
{
    const auto change = [&](TestTarget& made) {
        return this->change(made, "AcDbArcAlignedText", {color(OdCmColor::byIndex(7))});
    };
    expectInAllTargets(
        {
            .cpp = "    iwCurvedSettings_ptr curvedSettings1;\n"
                   "    iwarcalignedtext1->GetCurvedSettings( &curvedSettings1 );\n"
                   "    iwColor_ptr iwColor2;\n    m_pIwApp->GetColorByIndex( 7, &iwColor2 );\n"
                   "    curvedSettings1->put_Color( iwColor2 );\n"
                   "    iwarcalignedtext1->SetCurvedSettings( curvedSettings1 );\n",
            .cppCom = "    ICurvedSettingsPtr curvedSettings1 = arcalignedtext1->GetCurvedSettings();\n"
                      "    curvedSettings1->put_Color( pConnection->m_IwApp->GetColorByIndex( 7 ) );\n"
                      "    arcalignedtext1->SetCurvedSettings( curvedSettings1 );\n",
            .csharp = "    CurvedSettings curvedSettings1 = arcalignedtext1.GetCurvedSettings();\n"
                      "    curvedSettings1.Color = iwApp.GetColorByIndex( 7 );\n"
                      "    arcalignedtext1.SetCurvedSettings( curvedSettings1 );\n",
            .javascript = "    var curvedSettings1 = arcalignedtext1.GetCurvedSettings();\n"
                          "    curvedSettings1.put_Color( mApp.GetColorByIndex( 7 ) );\n"
                          "    arcalignedtext1.SetCurvedSettings( curvedSettings1 );\n",
            .vbNet = "    Dim curvedSettings1 As Inkwright.CurvedSettings = arcalignedtext1.GetCurvedSettings()\n"
                     "    curvedSettings1.Color = iwApp.GetColorByIndex( 7 )\n"
                     "    arcalignedtext1.SetCurvedSettings( curvedSettings1 )\n",
            .vba = "    Dim curvedSettings1 As Inkwright.CurvedSettings\n"
                   "    Set curvedSettings1 = arcalignedtext1.GetCurvedSettings()\n"
                   "    curvedSettings1.Color = iwApp.GetColorByIndex( 7 )\n"
                   "    arcalignedtext1.SetCurvedSettings curvedSettings1\n",
        },
        change);
}

TEST_F(Changes, ThatEraseFollowTheClass)
{
    const PropertyList erased{record("Erased", CFxString("yes"))};
    expectInAllTargets(
        {
            .cpp = "    {\n        iwline1->put_Erased( true );\n    }\n",
            .cppCom = "    {\n        line1->put_Erased( true );\n    }\n",
            .csharp = "    {\n        line1.Erased = true;\n    }\n",
            .javascript = "    line1.put_Erased(true);\n",
            .vbNet = "    If 1 Then\n        line1.Erased = True\n    End If\n\n",
            .vba = "    If 1 Then\n        line1.Erased = True\n    End If\n\n",
        },
        [&](TestTarget& made) { return change(made, "AcDbLine", erased); });
    expectInAllTargets(
        {
            .cpp = "    {\n        iwLayerManager_ptr iwLayerManager1;\n"
                   "        iwDoc->GetLayerManager( &iwLayerManager1 );\n        iwString layerName1;\n"
                   "        iwlayer1->get_Name( &layerName1 );\n        bool bResult1 = false;\n"
                   "        iwLayerManager1->RemoveLayer( layerName1, &bResult1 );\n    }\n",
            .cppCom = "    {\n        ILayerManagerPtr iwLayerManager1 = iwDoc->GetLayerManager();\n"
                      "        BSTR layerName1;\n        layer1->get_Name( &layerName1 );\n"
                      "        iwLayerManager1->RemoveLayer( layerName1 );\n    }\n",
            .csharp = "    {\n        LayerManager iwLayerManager1 = iwDoc.GetLayerManager();\n"
                      "        string layerName1 = layer1.Name;\n"
                      "        iwLayerManager1.RemoveLayer( layerName1 );\n    }\n",
            .javascript = "    var iwLayerManager1 = mDoc.GetLayerManager();\n"
                          "    var layerName1 = layer1.get_Name();\n"
                          "    iwLayerManager1.RemoveLayer( layerName1 );\n",
            .vbNet = "    If 1 Then\n        Dim iwLayerManager1 As Inkwright.LayerManager = iwDoc.GetLayerManager()\n"
                     "        Dim layerName1 As String = layer1.Name\n"
                     "        iwLayerManager1.RemoveLayer( layerName1 )\n    End If\n\n",
            .vba = "    If 1 Then\n        Dim iwLayerManager1 As Inkwright.LayerManager\n"
                   "        Set iwLayerManager1 = iwDoc.GetLayerManager()\n        Dim layerName1 As String\n"
                   "        layerName1 = layer1.Name\n        iwLayerManager1.RemoveLayer layerName1\n"
                   "    End If\n\n",
        },
        [&](TestTarget& made) { return change(made, "AcDbLayerTableRecord", erased); });
}

TEST_F(Changes, ThatEraseANamedViewAskByItsName)
{
    drawing.add(1, "AcDbViewTableRecord", {{"name", OdString("North")}, {"isErased", true}});
    const auto erase = [&](TestTarget& made) {
        return change(made, "AcDbViewTableRecord", {record("Erased", CFxString("YES"))});
    };
    expectInAllTargets(
        {
            .cpp = "    {\n        iwViewManager->RemoveModelNamedView( L\"North\" );\n    }\n",
            .cppCom = "    {\n        iwViewManager->RemoveModelNamedView( L\"North\" );\n    }\n",
            .csharp = "    {\n        iwViewManager.RemoveModelNamedView( \"North\" );\n    }\n",
            .javascript = "    mViewManager.RemoveModelNamedView( \"North\" );\n",
            .vbNet = "    If 1 Then\n        iwViewManager.RemoveModelNamedView( \"North\" )\n    End If\n\n",
            .vba = "    If 1 Then\n        iwViewManager.RemoveModelNamedView \"North\"\n    End If\n\n",
        },
        erase);
    drawing.add(1, "AcDbViewTableRecord",
                {{"name", OdString("North")}, {"isErased", true}, {"isPaperspaceView", true}});
    TestTarget made(Target::Vba, 1);
    EXPECT_EQ(erase(made), "    If 1 Then\n        iwViewManager.RemoveSheetNamedView \"North\"\n    End If\n\n");
}

TEST_F(Changes, OfAddedObjectsAreTheGeneralOnesAlone)
{
    TestTarget made(Target::CSharp, 1);
    made.conversion.names().RegisterObject(OdDbHandle(1), oddbDwgClassMapDesc(27));
    const PropertyList list{record("Erased", CFxString("YES")), record("Transparency", OdCmTransparency{}), layer()};
    Statement text;
    ASSERT_EQ(ConvertObjectAdded(made.conversion, *odrxNew<TestAdded>("AcDbPoint", 1, list, list), text), kFxSuccess);
    EXPECT_EQ(text,
              "    point1 = iwSketchManager.InsertPoint( 0.00000000000000, 0.00000000000000, 0.00000000000000 );\n"
              "    {\n        point1.Layer = \"Walls\";\n    }\n");
}

TEST_F(Changes, OfTransparencyCountOnOverConversions)
{
    const auto set = [](Target target, OdCmTransparency transparency, QString& number) {
        TestTarget made(target, 1);
        const QString text = textOf(EmitSetTransparency(made.writer, "line1", transparency));
        number = QRegularExpression("iwTransparency(\\d+)").match(text).captured(1);
        return QString(text).replace("iwTransparency" + number, "t");
    };
    using Method = OdCmTransparency::Method;
    QString number;
    EXPECT_EQ(set(Target::Cpp, {Method::ByLayer}, number),
              "    iwTransparency_ptr t;\n    line1->get_Transparency( &t );\n    t->SetByLayer();\n"
              "    line1->put_Transparency( t );\n");
    const int first = number.toInt();
    // Half of 255 is not half: the interface gets the whole percent below 50.2.
    EXPECT_EQ(set(Target::Cpp, {Method::ByAlpha, 127}, number),
              "    iwTransparency_ptr t;\n    line1->get_Transparency( &t );\n    t->SetByAlpha( 50 );\n"
              "    line1->put_Transparency( t );\n");
    EXPECT_EQ(number.toInt(), first + 1);
    EXPECT_EQ(set(Target::CppCom, {Method::ByBlock}, number),
              "    ITransparencyPtr t;\n    line1->get_Transparency( &t );\n    t->SetByBlock();\n"
              "    line1->put_Transparency( t );\n");
    EXPECT_EQ(set(Target::CSharp, {Method::ByAlpha, 255}, number),
              "    Transparency t = line1.Transparency;\n    t.SetByAlpha( 0 );\n    line1.Transparency = t;\n");
    EXPECT_EQ(set(Target::JavaScript, {Method::ByAlpha, 0}, number),
              "    var t = line1.get_Transparency();\n    t.SetByAlpha( 100 );\n    line1.put_Transparency( t );\n");
    EXPECT_EQ(set(Target::VbNet, {Method::ByLayer}, number),
              "    Dim t As Inkwright.Transparency\n    t = line1.Transparency\n    t.SetByLayer()\n"
              "    line1.Transparency = t\n");
    const QString vba = "    Dim t As Inkwright.Transparency\n    Set t = line1.Transparency\n    %1\n"
                        "    line1.Transparency = t\n";
    EXPECT_EQ(set(Target::Vba, {Method::ByLayer}, number), vba.arg("t.SetByLayer"));
    EXPECT_EQ(set(Target::Vba, {Method::ByBlock}, number), vba.arg("t.SetByBlock"));
    EXPECT_EQ(set(Target::Vba, {Method::ByAlpha, 51}, number), vba.arg("t.SetByAlpha( 80 )"));
    EXPECT_EQ(set(Target::Vba, {3}, number), vba.arg(""));
}

TEST(Setters, WriteAPropertyInTheFormOfTheirTarget)
{
    expectInAllTargets({"    a->put_P( L\"x\" );\n", "    a->put_P( L\"x\" );\n", "    a.P = \"x\";\n",
                        "    a.put_P (\"x\");\n", "    a.P = \"x\"\n", "    a.P = \"x\"\n"},
                       [](TestTarget& made) { return EmitSetProperty(made.writer, "a", "P", "x", true); });
    expectInAllTargets({"    a->put_P( x );\n", "    a->put_P( x );\n", "    a.P = x;\n", "    a.put_P(x);\n",
                        "    a.P = x\n", "    a.P = x\n"},
                       [](TestTarget& made) { return EmitSetProperty(made.writer, "a", "P", "x", false); });
    expectInAllTargets({"    a->put_P( 1.50000000000000 );\n", "    a->put_P( 1.50000000000000 );\n",
                        "    a.P = 1.50000000000000;\n", "    a.put_P(1.50000000000000);\n",
                        "    a.P = 1.50000000000000\n", "    a.P = 1.50000000000000\n"},
                       [](TestTarget& made) { return EmitSetDoubleProperty(made.writer, "a", "P", 1.5); });
    expectInAllTargets({"    a->put_P( false );\n", "    a->put_P( false );\n", "    a.P = false;\n",
                        "    a.put_P(false);\n", "    a.P = False\n", "    a.P = False\n"},
                       [](TestTarget& made) { return EmitSetBoolProperty(made.writer, "a", "P", false); });
    expectInAllTargets(
        {"    iwColor_ptr iwColor1;\n    m_pIwApp->GetRGBColor( 1, 2, 255, &iwColor1 );\n"
         "    a->put_P( iwColor1 );\n",
         "    a->put_P( pConnection->m_IwApp->GetRGBColor( 1, 2, 255 ) );\n",
         "    a.P = iwApp.GetRGBColor( 1, 2, 255 );\n", "    a.put_P( mApp.GetRGBColor( 1, 2, 255 ) );\n",
         "    a.P = iwApp.GetRGBColor( 1, 2, 255 )\n", "    a.P = iwApp.GetRGBColor( 1, 2, 255 )\n"},
        [](TestTarget& made) { return EmitSetColor(made.writer, "a", "P", OdCmColor::byRgb(1, 2, 255)); });
}

TEST(References, DeclareAVariableInTheFormOfTheirTarget)
{
    expectInAllTargets({"    iwNote_ptr n;\n    l->GetNoteAnnotation( &n );\n",
                        "    INotePtr n = l->GetNoteAnnotation();\n", "    Note n = l.GetNoteAnnotation();\n",
                        "    var n = l.GetNoteAnnotation();\n", "    Dim n As Inkwright.Note = l.GetNoteAnnotation()\n",
                        "    Dim n As Inkwright.Note\n    Set n = l.GetNoteAnnotation()\n"},
                       [](TestTarget& made) { return EmitGetNoteAnnotation(made.writer, "n", "l"); });
    expectInAllTargets({"    iwBlockDefinition_ptr b;\n", "    IBlockDefinitionPtr b;\n", "    BlockDefinition b;\n",
                        "    var b;\n", "    Dim b As Inkwright.BlockDefinition\n",
                        "    Dim b As Inkwright.BlockDefinition\n"},
                       [](TestTarget& made) { return EmitDeclareObject(made.writer, "BlockDefinition", "b"); });
}

TEST(References, FetchAnObjectThatTheMacroDidNotMake)
{
    CFxString name;
    const auto fetch = [&](TestTarget& made) {
        for (const std::uint64_t other : {0xA1, 0xA2, 0xA3, 0xA4})
            made.conversion.names().RegisterObject(OdDbHandle(other), OdDbLine::desc());
        return made.conversion.names().EmitObjectVariable(OdDbHandle(0x1AF), oddbDwgClassMapDesc(17), name);
    };
    expectInAllTargets(
        {
            .cpp = "    iwObjectType_e type1;\n    iwCircleArc_ptr iwcirclearc5;\n"
                   "    iwDoc->GetObjectByHandle(L\"1AF\", &type1, &iwcirclearc5);\n",
            .cppCom = "    iwObjectType_e type1;\n    ICircleArcPtr circlearc5 = "
                      "pConnection->m_IwApp->GetActiveDocument()->GetObjectByHandle(L\"1AF\", &type1);\n",
            .csharp = "    iwObjectType_e type1;\n    CircleArc circlearc5 = "
                      "iwApp.GetActiveDocument().GetObjectByHandle(\"1AF\", out type1) as CircleArc;\n",
            .javascript = "    var circlearc5 = mDoc.GetObjectByHandle(\"1AF\").DispObj;\n",
            .vbNet = "    Dim type1 As Inkwright.iwObjectType_e\n    Dim circlearc5 As Inkwright.CircleArc = "
                     "iwApp.GetActiveDocument().GetObjectByHandle(\"1AF\", type1)\n",
            .vba = "    Dim circlearc5 As Inkwright.CircleArc\n    Dim type1 As Inkwright.iwObjectType_e\n"
                   "    Set circlearc5 = iwApp.GetActiveDocument().GetObjectByHandle (\"1AF\", type1 )\n",
        },
        fetch);
    EXPECT_EQ(name, CFxString("circlearc5"));

    TestTarget made(Target::CSharp, 1);
    made.conversion.names().RegisterObject(OdDbHandle(0x1AF), oddbDwgClassMapDesc(17));
    EXPECT_EQ(fetch(made), "");
    EXPECT_EQ(name, CFxString("circlearc1"));
    EXPECT_EQ(made.objectCount(), 5U);
    EXPECT_EQ(made.conversion.names().EmitObjectVariable(OdDbHandle(2), oddbClassByName("HostWeldSymbol"), name), "");
    EXPECT_EQ(name, CFxString("circlearc1"));
}

} // namespace
