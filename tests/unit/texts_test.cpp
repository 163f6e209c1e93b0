// Text styles, attribute definitions, notes, tolerances, leaders and curved texts: what a reader makes of its records
// and of the drawing, and the statements of the six targets.

#include "TestDrawing.h"
#include "TestRecords.h"
#include "TestTarget.h"

#include "objects/entries.h"
#include "objects/targets/leaders.h"
#include "objects/targets/points.h"
#include "objects/targets/texts.h"

#include <gtest/gtest.h>

#include <array>

using namespace inkmacro;

namespace {

PropertyList point(const char* stem, double x, double y, double z)
{
    const QByteArray tag = QByteArray(stem) + ' ';
    return {record(tag + "X", x), record(tag + "Y", y), record(tag + "Z", z)};
}

PropertyList operator+(PropertyList list, const PropertyList& more)
{
    list.insert(list.end(), more.begin(), more.end());
    return list;
}

/// Whole numbers without their decimals, for expectations that fit a line.
QString brief(QString text)
{
    return text.remove(".00000000000000");
}

class AddedTexts : public testing::Test
{
protected:
    QString add(const char* cls, std::uint64_t handle, const PropertyList& records)
    {
        csharp.conversion.names().RegisterObject(OdDbHandle(handle), oddbClassByName(cls));
        PropertyList read = records;
        left = records;
        Statement text;
        ConvertAddedObject(csharp.conversion, oddbClassByName(cls), OdDbHandle(handle), read, left, text);
        return textOf(text);
    }

    TestDrawing drawing;
    TestTarget csharp{Target::CSharp};
    PropertyList left;
};

TEST_F(AddedTexts, AttributeDefinitionsStandWhereTheirJustificationSays)
{
    drawing.add(0x11, "AcDbTextStyleTableRecord", {{"name", OdString("Titles")}});
    const PropertyList records = PropertyList{record("Value", "1"),
                                              record("Tag", "NO"),
                                              record("Prompt", "Number?"),
                                              record("Preset", "no"),
                                              record("Constant", "YES"),
                                              record("Invisible", choice({"Yes", "No"}, 0)),
                                              record("Verify", ""),
                                              record("Lock position", "Yes"),
                                              record("TextStyle", drawing.id(0x11))} +
                                 point("Position", 1, 2, 3) + point("Text alignment", 4, 5, 6);

    EXPECT_EQ(add("AcDbAttributeDefinition", 1, records + PropertyList{record("Justify", "left")}),
              " attributedefinition1 = iwSketchManager.InsertAttributeDefinition(  \"1\", \"NO\", \"Number?\", "
              "1.00000000000000, 2.00000000000000, 3.00000000000000, \"Titles\", "
              "iwTextJustification_e.iwTextJustification_Left, 0.20000000000000, 0.00000000000000, true, true, false, "
              "false, true, false );\n");
    EXPECT_EQ(left.size(), 3) << "the other point has no statement";
    EXPECT_EQ(
        brief(add("AcDbAttributeDefinition", 2,
                  records + PropertyList{record("Justify", choice({"Left", "Center"}, 1)), record("Height", 3.0),
                                         record("Rotation", 1.0)})),
        " attributedefinition2 = iwSketchManager.InsertAttributeDefinition(  \"1\", \"NO\", \"Number?\", 4, 5, 6, "
        "\"Titles\", iwTextJustification_e.iwTextJustification_Center, 3, 1, true, true, false, false, true, "
        "false );\n");
    EXPECT_EQ(brief(add("AcDbAttributeDefinition", 3, {})),
              " attributedefinition3 = iwSketchManager.InsertAttributeDefinition(  \"\", \"\", \"\", 0, 0, 0, \"\", "
              "iwTextJustification_e.iwTextJustification_Left, 0.20000000000000, 0, false, false, false, false, false, "
              "false );\n");
}

TEST_F(AddedTexts, SimpleNotesAreMovedBackBehindTheirJustification)
{
    const PropertyList records =
        point("Position", 1, 2, 3) + point("Text alignment", 4, 5, 6) + PropertyList{record("Contents", "a\\P\"b\"")};
    const QString back = " simplenote%1.SetAlignmentPoint( 4, 5, 6 );\n simplenote%1.SetPosition( 1, 2, 3 );\n";
    EXPECT_EQ(brief(add("AcDbText", 1, records)),
              " simplenote1 = iwSketchManager.InsertSimpleNote( 1, 2, 3, 2.50000000000000, 0, \"a\\P\"b\"\" );\n" +
                  back.arg(1));
    EXPECT_EQ(brief(add("AcDbText", 2,
                        records + PropertyList{record("Justify", choice({"Left", "Center", "Top Right"}, 2)),
                                               record("Height", 7.0), record("Rotation", -0.5)})),
              " simplenote2 = iwSketchManager.InsertSimpleNote( 1, 2, 3, 7, -0.50000000000000, \"a\\P\"b\"\" );\n"
              " simplenote2.Justify = iwTextJustification_e.iwTextJustification_TopRight;\n" +
                  back.arg(2));
    EXPECT_EQ(left.size(), 0U);
}

TEST_F(AddedTexts, NotesAreInsertedByTheBoxAroundTheirAttachment)
{
    const std::array corners{"10, 20, 3, 14, 18, 3", "8, 20, 3, 12, 18, 3", "6, 20, 3, 10, 18, 3",
                             "10, 21, 3, 14, 19, 3", "8, 21, 3, 12, 19, 3", "6, 21, 3, 10, 19, 3",
                             "10, 22, 3, 14, 20, 3", "8, 22, 3, 12, 20, 3", "6, 22, 3, 10, 20, 3",
                             "10, 20, 3, 10, 20, 3"};
    const PropertyList box =
        point("Position", 10, 20, 3) + PropertyList{record("Width", 4.0), record("TextBoxHeight", 2.0)};
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const QString text =
            brief(add("AcDbMText", 1, box + PropertyList{record("Justify", choice({}, static_cast<int>(i)))}));
        const int from = text.indexOf("InsertNote( ") + 12;
        EXPECT_EQ(text.mid(from, text.indexOf(", strArray") - from), corners[i]) << i + 1;
    }
}

TEST_F(AddedTexts, NotesSetOnlyWhatWasRecorded)
{
    EXPECT_EQ(brief(add("AcDbMText", 1, {})), " string[] strArray1 = new string[1];\n strArray1[0] = \"\";\n"
                                              " note1 = iwSketchManager.InsertNote( 0, 0, 0, 0, 0, 0, strArray1 );\n");

    const std::vector<const char*> places{"Top Left", "Top Center", "Top Right", "Middle Left"};
    const PropertyList records{record("Rotation", 1.0),
                               record("Rotation", 9.0),
                               record("Line space distance", 2.0),
                               record("Text Height", 3.0),
                               record("Contents", "a\\Pb"),
                               record("Justify", choice(places, 3)),
                               record("Direction", choice({"By style", "Vertical"}, 1)),
                               record("Style", choice({"Standard", "Titles"}, 1))};
    EXPECT_EQ(brief(add("AcDbMText", 2, records)),
              " string[] strArray2 = new string[1];\n strArray2[0] = \"a\\Pb\";\n"
              " note2 = iwSketchManager.InsertNote( 0, 0, 0, 0, 0, 0, strArray2 );\n"
              " note2.Rotation = 1;\n note2.TextHeight = 3;\n note2.LineSpaceDistance = 2;\n"
              " note2.TextStyle = \"Titles\";\n"
              " note2.Justify = iwNoteJustification_e.iwNoteJustification_MiddleLeft;\n"
              " note2.Direction = iwNoteDirection_e.iwNoteDirection_Vertical;\n");
    EXPECT_EQ(left.size(), 0U);

    drawing.add(0x11, "AcDbTextStyleTableRecord", {{"name", OdString("Titles")}});
    const CFxVariantCollectionElement byName(0, CFxString("Titles"));
    for (const auto& [ordinal, style] : {std::pair(3, CFxVariant(drawing.id(0x11))), {4, CFxVariant(byName)}})
        EXPECT_TRUE(
            add("AcDbMText", 3, {record("Style", style), record("Width", 8.0)})
                .endsWith(
                    QString("\n note%1.Width = 8.00000000000000;\n note%1.TextStyle = \"Titles\";\n").arg(ordinal)));
    for (const CFxVariant& none : {CFxVariant(drawing.id(0x404)), CFxVariant(CFxString())})
        EXPECT_TRUE(add("AcDbMText", 4, {record("Style", none)}).endsWith(".TextStyle = \"\";\n"));
}

TEST_F(AddedTexts, TolerancesKeepLinesAndBackslashes)
{
    TestTarget basic(Target::VbNet);
    basic.conversion.names().RegisterObject(OdDbHandle(1), oddbClassByName("AcDbFcf"));
    Statement text;
    ConvertObjectAdded(basic.conversion, *odrxNew<TestAdded>("AcDbFcf", 1, PropertyList{record("Content", "a\\b\nc")}),
                       text);
    EXPECT_EQ(brief(textOf(text)),
              " tolerance1 = iwSketchManager.InsertTolerance( New Double(){0,0,0}, \"a\\b\" & vbLf & \"c\" )\n");

    EXPECT_EQ(brief(add("AcDbFcf", 1, point("Position", 1, 2, 3) + PropertyList{record("Content", "{\\Fgdt;j}\n0.1")})),
              " tolerance1 = iwSketchManager.InsertTolerance(\n  new double[]{1,2,3}, \n  \"{\\\\Fgdt;j}\\n0.1\" );\n");
}

TEST_F(AddedTexts, LeadersTakeTheirAnnotationFromTheDrawing)
{
    const CFxVariantCollection vertices({{0, OdGePoint3d{1, 2, 3}}, {1, OdGePoint3d{4, 5, 6}}});
    const PropertyList records{record("Vertex", vertices), record("content", "a\\b\nc"), record("width", 7.0)};
    const QString insertion = " leader%1 = iwSketchManager.InsertLeader(\n  new double[]{1,2,3,4,5,6},\n  7,\n"
                              "  \"a\\\\b\\nc\" );\n";
    drawing.add(2, "AcDbFcf", {{"text", OdString("A\nB\\")}});
    drawing.add(3, "AcDbBlockTableRecord", {{"name", OdString("BALLOON")}});
    drawing.add(4, "AcDbBlockReference", {{"blockTableRecord", drawing.id(3)}});
    const auto addedWith = [&](const OdDbObjectId& annotation) {
        drawing.add(1, "AcDbLeader", {{"annotationObjectId", annotation}});
        return brief(add("AcDbLeader", 1, records));
    };
    EXPECT_EQ(addedWith({}), insertion.arg(1));
    EXPECT_EQ(addedWith(drawing.id(2)), insertion.arg(2) + " leader2.SetToleranceAnnotation( \"A\\nB\\\\\" );\n");
    EXPECT_EQ(addedWith(drawing.id(4)), insertion.arg(3) + " leader3.SetBlockAnnotation( \"BALLOON\" );\n");
}

TEST_F(AddedTexts, LeadersSetTheirNoteAsItIsInTheDrawing)
{
    drawing.add(0x11, "AcDbTextStyleTableRecord", {{"name", OdString("Titles")}});
    drawing.add(5, "AcDbMText",
                {{"textHeight", 3.0},
                 {"lineSpacingFactor", 2.0},
                 {"width", 40.0},
                 {"rotation", 1.0},
                 {"attachment", 6},
                 {"textStyle", drawing.id(0x11)},
                 {"backgroundFillOn", true},
                 {"backgroundFillColor", std::optional(OdCmColor::byIndex(3))},
                 {"backgroundScaleFactor", 1.5}});
    drawing.add(1, "AcDbLeader", {{"annotationObjectId", drawing.id(5)}});
    // The note has no variable of its own: it takes the next number.
    EXPECT_EQ(brief(add("AcDbLeader", 1, {})),
              " leader1 = iwSketchManager.InsertLeader(\n  new double[]{},\n  0,\n  \"\" );\n"
              " Note note2 = leader1.GetNoteAnnotation();\n"
              " note2.BackgroundMask = true;\n note2.UseDrawingBackgroundColor = false;\n"
              " note2.BackgroundFillColor = iwApp.GetColorByIndex( 3 );\n"
              " note2.BackgroundBorderOffsetFactor = 1.50000000000000;\n"
              " note2.LineSpaceDistance = 10;\n note2.LineSpaceFactor = 2;\n note2.Rotation = 1;\n"
              " note2.TextHeight = 3;\n note2.Width = 40;\n"
              " note2.Justify = iwNoteJustification_e.iwNoteJustification_MiddleRight;\n"
              " note2.TextStyle = \"Titles\";\n");
}

TEST_F(AddedTexts, CurvedTextsNameTheArcThatTheyFollow)
{
    drawing.add(2, "AcDbArcAlignedText", {{"textString", OdString("Exit")}, {"arcId", drawing.id(1)}});
    EXPECT_EQ(add("AcDbArcAlignedText", 2, {}), " arcalignedtext1 = iwSketchManager.InsertCurvedText( \"Exit\",  );\n");
    add("AcDbArc", 1, {});
    EXPECT_EQ(add("AcDbArcAlignedText", 2, {}),
              " arcalignedtext3 = iwSketchManager.InsertCurvedText( \"Exit\", circlearc2 );\n");
    EXPECT_EQ(add("AcDbArcAlignedText", 3, {}), "") << "not in the drawing";
    drawing.add(4, "AcDbArc");
    EXPECT_THROW(add("AcDbArcAlignedText", 4, {}), OdError_NotThatKindOfClass);
}

TEST_F(AddedTexts, StylesAreFontsOrFilesOfShapes)
{
    drawing.add(1, "AcDbTextStyleTableRecord");
    const PropertyList records{record("Name", "Titles"), record("Font", "C:\\fonts\\a.ttf")};
    const QString created = " iwCreateObjectResult_e result1;\n string textStyleName1 = \"Titles\";\n"
                            " textstyle%1 = iwApp.GetActiveDocument().GetTextStyleManager().GetTextStyle( "
                            "textStyleName1 );\n if (null == textstyle%1)\n {\n"
                            "     iwApp.GetActiveDocument().GetTextStyleManager().CreateTextStyle( textStyleName1, "
                            "out textstyle%1, out result1 );\n }\n";
    EXPECT_EQ(add("AcDbTextStyleTableRecord", 1, records),
              created.arg(1) + " textstyle1.Font = \"C:\\\\fonts\\\\a.ttf\";\n");
    csharp.writer.UniqueCounter = 0;
    EXPECT_EQ(add("AcDbTextStyleTableRecord", 1, {records[0]}), created.arg(2));

    csharp.writer.IndentLevel = 2;
    const auto drawShapes = [&](const char* file) {
        drawing.add(1, "AcDbTextStyleTableRecord", {{"isShapeFile", true}, {"fileName", OdString(file)}});
    };
    drawShapes("ltypeshp.SHX");
    EXPECT_EQ(add("AcDbTextStyleTableRecord", 1, records), "");
    drawShapes("C:\\shapes\\bolts.shx");
    EXPECT_EQ(add("AcDbTextStyleTableRecord", 1, records),
              "    ShapeManager iwShapeManager = iwDoc.GetShapeManager();\n"
              "    iwShapeManager.Load( \"C:\\\\shapes\\\\bolts.shx\" );\n");
    EXPECT_EQ(csharp.writer.IndentLevel, 2U);
}

/// One operation with its statements in the order of the language codes.
struct Row
{
    const char* name;
    Statement (*write)(Writer& writer);
    std::array<const char*, targetCount> expected;
};

const Row rows[] = {
    {"simple note",
     [](Writer& writer) {
         return EmitInsertSimpleNote(writer, {1, 2, 3}, 4, 5, "a", "v");
     },
     {" iwSketchManager->InsertSimpleNote( 1, 2, 3, 4, 5, L\"a\", &v );\n",
      " v = iwSketchManager.InsertSimpleNote( 1, 2, 3, 4, 5, \"a\" );\n",
      " var v = mSkMgr.InsertSimpleNote(1, 2, 3, 4, 5, \"a\");\n",
      " v = iwSketchManager.InsertSimpleNote( 1, 2, 3, 4, 5, \"a\" )\n",
      "  v=iwSketchManager->InsertSimpleNote( 1, 2, 3, 4, 5, L\"a\");\n",
      " Set v = iwSketchManager.InsertSimpleNote( 1, 2, 3, 4, 5, \"a\" )\n"}},
    {"note",
     [](Writer& writer) {
         return EmitInsertNote(writer, {1, 2, 3}, {4, 5, 6}, "a", "v");
     },
     {" iwStringArray strArray8;\n strArray8.add(L\"a\");\n"
      " iwSketchManager->InsertNote( 1, 2, 3, 4, 5, 6, strArray8, &v );\n",
      " string[] strArray8 = new string[1];\n strArray8[0] = \"a\";\n"
      " v = iwSketchManager.InsertNote( 1, 2, 3, 4, 5, 6, strArray8 );\n",
      " var strArray8 = new Array();\n strArray8[0] = \"a\";\n"
      " var v = mSkMgr.InsertNote(1, 2, 3, 4, 5, 6, strArray8);\n",
      " Dim strArray8(0) As String\n strArray8(0) = \"a\"\n"
      " v = iwSketchManager.InsertNote( 1, 2, 3, 4, 5, 6, strArray8 )\n",
      " VARIANT strArray8;\n strArray8.vt = ( VT_ARRAY | VT_BSTR );\n"
      " strArray8.parray = SafeArrayCreateVector( VT_BSTR, 0, 1 );\n"
      " long rgIndices8;\n rgIndices8 = 0;\n BSTR str8;\n str8 = SysAllocString(L\"a\");\n"
      " SafeArrayPutElement( strArray8.parray, &rgIndices8, str8 );\n"
      " v = iwSketchManager->InsertNote( 1, 2, 3, 4, 5, 6, strArray8 );\n",
      " Dim strArray8(0) As String\n strArray8(0) = \"a\"\n"
      " Set v = iwSketchManager.InsertNote( 1, 2, 3, 4, 5, 6, strArray8 )\n"}},
    {"attribute definition",
     [](Writer& writer) {
         return EmitInsertAttributeDefinition(
             writer, {"a", "b", "c", {1, 2, 3}, "d", "Fit", 4, 5, true, false, true, false, true}, "v");
     },
     {" iwSketchManager->InsertAttributeDefinition(  L\"a\", L\"b\", L\"c\", 1, 2, 3, L\"d\", iwTextJustification_Fit, "
      "4, 5, true, false, true, false, true, false, &v );\n",
      " v = iwSketchManager.InsertAttributeDefinition(  \"a\", \"b\", \"c\", 1, 2, 3, \"d\", "
      "iwTextJustification_e.iwTextJustification_Fit, 4, 5, true, false, true, false, true, false );\n",
      " var v = mSkMgr.InsertAttributeDefinition(\"a\", \"b\", \"c\", 1, 2, 3, \"d\", \"iwTextJustification_Fit\", 4, 5, "
      "true, false, true, false, true, false);\n",
      " v = iwSketchManager.InsertAttributeDefinition(  \"a\", \"b\", \"c\", 1, 2, 3, \"d\", "
      "Inkwright.iwTextJustification_e.iwTextJustification_Fit, 4, 5, True, False, True, False, True, False )\n",
      " v = iwSketchManager->InsertAttributeDefinition(  L\"a\", L\"b\", L\"c\", 1, 2, 3, L\"d\", "
      "iwTextJustification_Fit, 4, 5, true, false, true, false, true, false );\n",
      " Set v = iwSketchManager.InsertAttributeDefinition(  \"a\", \"b\", \"c\", 1, 2, 3, \"d\", "
      "Inkwright.iwTextJustification_e.iwTextJustification_Fit, 4, 5, True, False, True, False, True, False )\n"}},
    {"tolerance",
     [](Writer& writer) {
         return EmitInsertTolerance(writer, {1, 2, 3}, "a", "v");
     },
     {" iwDoubleArray Coordinates8;\n Coordinates8.clear();\n\n"
      " Coordinates8.add(1);Coordinates8.add(2);Coordinates8.add(3);\n\n"
      " iwSketchManager->InsertTolerance( Coordinates8, L\"a\", &v );\n",
      " v = iwSketchManager.InsertTolerance(\n  new double[]{1,2,3}, \n  \"a\" );\n",
      " var v = mSkMgr.InsertTolerance(new Array(1,2,3), \"a\");\n",
      " v = iwSketchManager.InsertTolerance( New Double(){1,2,3}, \"a\" )\n",
      " {\n     double x, y, z;\n     VARIANT variant8;\n     variant8.vt = ( VT_ARRAY | VT_R8 );\n"
      "     variant8.parray = SafeArrayCreateVector( VT_R8, 0, 3 );\n long rgIndices8;\n rgIndices8 = 0;\n"
      " x=1; y=2; z=3;\n SafeArrayPutElement( variant8.parray, &rgIndices8, (double*)&(x) );\n rgIndices8=1;\n"
      " SafeArrayPutElement( variant8.parray, &rgIndices8, (double*)&(y) );\n rgIndices8=2;\n"
      " SafeArrayPutElement( variant8.parray, &rgIndices8, (double*)&(z) );\n\n"
      "     v = iwSketchManager->InsertTolerance( variant8, L\"a\" );\n }\n",
      " Dim Coordinates8(2) As Double\n Coordinates8(0) = 1\n Coordinates8(1) = 2\n Coordinates8(2) = 3\n"
      " Set v = iwSketchManager.InsertTolerance( Coordinates8, \"a\" )\n"}},
    {"leader",
     [](Writer& writer) {
         return EmitInsertLeader(writer, {{1, 2, 3}, {4, 5, 6}}, 9, "a", "v");
     },
     {" iwDoubleArray Coordinates8;\n Coordinates8.clear();\n\n"
      " Coordinates8.add(1);Coordinates8.add(2);Coordinates8.add(3);\n"
      " Coordinates8.add(4);Coordinates8.add(5);Coordinates8.add(6);\n\n"
      " iwSketchManager->InsertLeader( Coordinates8, 9, L\"a\", &v );\n",
      " v = iwSketchManager.InsertLeader(\n  new double[]{1,2,3,4,5,6},\n  9,\n  \"a\" );\n",
      " var leaderPoints8 = new Array(1,2,3,4,5,6);\n var v = mSkMgr.InsertLeader(leaderPoints8, 9, \"a\");\n",
      " Dim Coordinates8(5) As Double\n Coordinates8( 0 )=1\n Coordinates8( 1 )=2\n Coordinates8( 2 )=3\n"
      " Coordinates8( 3 )=4\n Coordinates8( 4 )=5\n Coordinates8( 5 )=6\n\n"
      " v = iwSketchManager.InsertLeader( Coordinates8, 9, \"a\" )\n",
      " VARIANT variant8;\n variant8.vt = ( VT_ARRAY | VT_R8 );\n"
      " variant8.parray = SafeArrayCreateVector( VT_R8, 0, 6 );\n"
      " long rgIndices8;\n rgIndices8 = -1;\n double x_8, y_8, z_8;\n x_8=1; y_8=2; z_8=3;\n"
      " rgIndices8=0;\n SafeArrayPutElement( variant8.parray, &rgIndices8, (double*)&(x_8) );\n"
      " rgIndices8=1;\n SafeArrayPutElement( variant8.parray, &rgIndices8, (double*)&(y_8) );\n"
      " rgIndices8=2;\n SafeArrayPutElement( variant8.parray, &rgIndices8, (double*)&(z_8) );\n x_8=4; y_8=5; z_8=6;\n"
      " rgIndices8=3;\n SafeArrayPutElement( variant8.parray, &rgIndices8, (double*)&(x_8) );\n"
      " rgIndices8=4;\n SafeArrayPutElement( variant8.parray, &rgIndices8, (double*)&(y_8) );\n"
      " rgIndices8=5;\n SafeArrayPutElement( variant8.parray, &rgIndices8, (double*)&(z_8) );\n\n"
      " v = iwSketchManager->InsertLeader( variant8, 9, L\"a\" );\n",
      " Dim Coordinates8(5) As Double\n Coordinates8( 0 )=1\n Coordinates8( 1 )=2\n Coordinates8( 2 )=3\n"
      " Coordinates8( 3 )=4\n Coordinates8( 4 )=5\n Coordinates8( 5 )=6\n\n"
      " Set v = iwSketchManager.InsertLeader( Coordinates8, 9, \"a\" )\n"}},
    {"leader without vertices",
     [](Writer& writer) -> Statement { return textOf(EmitInsertLeader(writer, {}, 9, "a", "v")).section("\n", 0, 1); },
     {" iwDoubleArray Coordinates8;\n Coordinates8.clear();", " v = iwSketchManager.InsertLeader(\n  new double[]{},",
      " var leaderPoints8 = new Array();\n var v = mSkMgr.InsertLeader(leaderPoints8, 9, \"a\");",
      " Dim Coordinates8(-1) As Double\n", " VARIANT variant8;\n variant8.vt = ( VT_ARRAY | VT_R8 );",
      " Dim Coordinates8(-1) As Double\n"}},
    {"curved text",
     [](Writer& writer) { return EmitInsertCurvedText(writer, "a", "b", "v"); },
     {" iwSketchManager->InsertCurvedText( L\"a\", b, &v );\n", " v = iwSketchManager.InsertCurvedText( \"a\", b );\n",
      " var v = mSkMgr.InsertCurvedText(\"a\", b);\n", " v = iwSketchManager.InsertCurvedText( \"a\", b )\n",
      " v = iwSketchManager->InsertCurvedText( L\"a\", b );\n",
      " Set v = iwSketchManager.InsertCurvedText( \"a\", b )\n"}},
    {"annotations and calls",
     [](Writer& writer) {
         return EmitSetAnnotation(writer, "v", LeaderAnnotation::Tolerance, "a") +
                EmitSetAnnotation(writer, "v", LeaderAnnotation::Block, "b") +
                EmitCallWithPoint(writer, "v", "SetPosition", {1, 2, 3});
     },
     {" v->SetToleranceAnnotation( L\"a\" );\n v->SetBlockAnnotation( L\"b\" );\n v->SetPosition( 1, 2, 3 );\n",
      " v.SetToleranceAnnotation( \"a\" );\n v.SetBlockAnnotation( \"b\" );\n v.SetPosition( 1, 2, 3 );\n",
      " v.SetToleranceAnnotation(\"a\");\n v.SetBlockAnnotation(\"b\");\n v.SetPosition(1, 2, 3);\n",
      " v.SetToleranceAnnotation( \"a\" )\n v.SetBlockAnnotation( \"b\" )\n v.SetPosition( 1, 2, 3 )\n",
      " v->SetToleranceAnnotation( L\"a\" );\n v->SetBlockAnnotation( L\"b\" );\n v->SetPosition( 1, 2, 3 );\n",
      " v.SetToleranceAnnotation \"a\"\n v.SetBlockAnnotation \"b\"\n v.SetPosition 1, 2, 3\n"}},
    {"text style",
     [](Writer& writer) { return EmitCreateTextStyle(writer, "v", "a"); },
     {" iwCreateObjectResult_e result8;\n iwString textStyleName8 = L\"a\";\n"
      " iwTextStyleManager_ptr TextStyleManager8;\n iwDoc->GetTextStyleManager(&TextStyleManager8);\n"
      " TextStyleManager8->GetTextStyle( textStyleName8, &v );\n if ( !v )\n {\n"
      "     TextStyleManager8->CreateTextStyle( textStyleName8, &v, &result8 );\n }\n",
      " iwCreateObjectResult_e result8;\n string textStyleName8 = \"a\";\n"
      " v = iwApp.GetActiveDocument().GetTextStyleManager().GetTextStyle( textStyleName8 );\n if (null == v)\n {\n"
      "     iwApp.GetActiveDocument().GetTextStyleManager().CreateTextStyle( textStyleName8, out v, out result8 );\n"
      " }\n",
      " var TextStyleManager8 = mDoc.GetTextStyleManager();\n var textStyleName8 = \"a\";\n"
      " var v = TextStyleManager8.GetTextStyle(textStyleName8);\n if (null == v)\n {\n"
      "     v = TextStyleManager8.CreateTextStyle(textStyleName8).TextStyle;\n }\n",
      " Dim result8 As Inkwright.iwCreateObjectResult_e\n Dim textStyleName8 As String = \"a\"\n"
      " v = iwApp.GetActiveDocument().GetTextStyleManager().GetTextStyle( textStyleName8 )\n If v Is Nothing Then\n"
      "     iwApp.GetActiveDocument().GetTextStyleManager().CreateTextStyle( textStyleName8, v, result8 )\n End If\n",
      " iwCreateObjectResult_e result8;\n BSTR textStyleName8 = L\"a\";\n"
      " v = pConnection->m_IwApp->GetActiveDocument()->GetTextStyleManager()->GetTextStyle( textStyleName8 );\n"
      " if (NULL == v)\n {\n     pConnection->m_IwApp->GetActiveDocument()->GetTextStyleManager()->CreateTextStyle( "
      "textStyleName8, &v, &result8 );\n }\n",
      " Dim result8 As Inkwright.iwCreateObjectResult_e\n Dim textStyleName8 As String\n textStyleName8 = \"a\"\n"
      " Set v = iwApp.GetActiveDocument().GetTextStyleManager().GetTextStyle( textStyleName8 )\n If v Is Nothing Then\n"
      "     iwApp.GetActiveDocument().GetTextStyleManager().CreateTextStyle textStyleName8, v, result8\n End If\n"}},
    {"shape file",
     [](Writer& writer) { return EmitLoadShapeFile(writer, "a"); },
     {" iwShapeManager_ptr iwShapeManager;\n iwDoc->GetShapeManager( &iwShapeManager );\n"
      " iwShapeManager->Load( L\"a\" );\n",
      " ShapeManager iwShapeManager = iwDoc.GetShapeManager();\n iwShapeManager.Load( \"a\" );\n",
      " var iwShapeManager = mDoc.GetShapeManager();\n iwShapeManager.Load(\"a\");\n",
      " Dim iwShapeManager As Inkwright.ShapeManager = iwDoc.GetShapeManager()\n iwShapeManager.Load( \"a\" )\n",
      " IShapeManagerPtr iwShapeManager = iwDoc->GetShapeManager();\n iwShapeManager->Load( L\"a\" );\n",
      " Dim iwShapeManager As Inkwright.ShapeManager\n Set iwShapeManager = iwDoc.GetShapeManager()\n"
      " iwShapeManager.Load \"a\"\n"}},
};

TEST(TextStatements, TakeTheFormOfTheirTarget)
{
    for (const Row& row : rows)
        for (std::size_t code = 0; code < std::size(allTargets); ++code) {
            TestTarget made(static_cast<Target>(code));
            made.writer.UniqueCounter = 7;
            EXPECT_EQ(brief(textOf(row.write(made.writer))).toStdString(), row.expected[code])
                << row.name << ", code " << code;
        }
}

/// A number that a literal has no place for is not used up.
TEST(TextStatements, CountOnlyTheArraysThatTheyName)
{
    for (const auto& [target, used] :
         {std::pair{Target::CSharp, 0U}, std::pair{Target::JavaScript, 1U}, std::pair{Target::VbNet, 1U},
          std::pair{Target::Vba, 2U}, std::pair{Target::Cpp, 2U}, std::pair{Target::CppCom, 2U}}) {
        TestTarget made(target);
        EmitInsertLeader(made.writer, {{1, 2, 3}}, 1, "", "v");
        EmitInsertTolerance(made.writer, {1, 2, 3}, "", "w");
        EXPECT_EQ(made.writer.UniqueCounter, used) << static_cast<int>(target);
    }
}

} // namespace
