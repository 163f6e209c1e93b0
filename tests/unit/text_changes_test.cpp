// Changes of texts, pictures, block references, tables and their styles: each tag once in all targets, and the rules
// of tables.

#include "TestChanges.h"

#include <gtest/gtest.h>

using namespace inkmacro;

namespace {

/// A tag and what is written for it; '#' is the number of the statement.
struct Row
{
    CFxString tag;
    CFxVariant value;
    QString texts[targetCount];
    bool raises = false; ///< in every target, whether or not the number shows
    CFxVariant index = {};
};

/// `$P` stands for the property and `$V` for the value.
Row row(const CFxString& tag, const CFxVariant& value, const TestTexts& texts, const QString& property = {},
        const QString& word = {})
{
    Row made{tag, value, {}};
    for (const Target target : allTargets)
        made.texts[static_cast<int>(target)] = QString(texts.in(target)).replace("$P", property).replace("$V", word);
    return made;
}

constexpr TestTexts kPlain{" it1->put_$P( $V );\n", " it1->put_$P( $V );\n", " it1.$P = $V;\n",
                           " it1.put_$P($V);\n",    " it1.$P = $V\n",        " it1.$P = $V\n"};
constexpr TestTexts kQuoted{" it1->put_$P( L\"$V\" );\n", " it1->put_$P( L\"$V\" );\n", " it1.$P = \"$V\";\n",
                            " it1.put_$P (\"$V\");\n",    " it1.$P = \"$V\"\n",         " it1.$P = \"$V\"\n"};

Row number(const char* tag, const char* property)
{
    return row(tag, 2.5, kPlain, property, "2.50000000000000");
}

Row text(const char* tag, const char* property, const CFxVariant& value, const char* written)
{
    return row(tag, value, kQuoted, property, written);
}

Row yes(const char* tag, const char* property, const CFxVariant& value = item(0, "yes"), bool is = true)
{
    Row made = row(tag, value, kPlain, property, is ? "true" : "false");
    for (const Target basic : {Target::VbNet, Target::Vba})
        made.texts[static_cast<int>(basic)].replace(is ? "true" : "false", is ? "True" : "False");
    return made;
}

Row enumerator(const char* tag, const char* property, const CFxVariant& value, const QString& type,
               const QString& suffix)
{
    Row made = row(tag, value, kPlain, property, type + '_' + suffix);
    made.texts[static_cast<int>(Target::JavaScript)].replace("(", "(\"").replace(")", "\")");
    made.texts[static_cast<int>(Target::CSharp)].replace(" = ", " = " + type + "_e.");
    for (const Target basic : {Target::VbNet, Target::Vba})
        made.texts[static_cast<int>(basic)].replace(" = ", " = Inkwright." + type + "_e.");
    return made;
}

constexpr TestTexts kPoint{" double X#;\n double Y#;\n double Z#;\n it1->Get$P( &X#, &Y#, &Z# );\n"
                           " $V# = 2.50000000000000;\n it1->Set$P( X#, Y#, Z# );\n",
                           " double X#;\n double Y#;\n double Z#;\n it1->Get$P( &X#, &Y#, &Z# );\n"
                           " $V# = 2.50000000000000;\n it1->Set$P( X#, Y#, Z# );\n \n",
                           " double X#;\n double Y#;\n double Z#;\n it1.Get$P(out X#, out Y#, out Z#);\n"
                           " $V# = 2.50000000000000;\n it1.Set$P(X#, Y#, Z#);\n",
                           " var points;\n points = it1.Get$P();\n points.$V = 2.50000000000000;\n"
                           " it1.Set$P(points.X, points.Y, points.Z);\n",
                           " Dim X# As Double\n Dim Y# As Double\n Dim Z# As Double\n it1.Get$P( X#, Y#, Z# )\n"
                           " $V# = 2.50000000000000\n it1.Set$P( X#, Y#, Z# )\n",
                           " Dim X# As Double\n Dim Y# As Double\n Dim Z# As Double\n it1.Get$P X#, Y#, Z# \n"
                           " $V# = 2.50000000000000\n it1.Set$P X#, Y#, Z# \n"};

Row coordinate(const char* tag, const char* axis, const char* property, const TestTexts& texts = kPoint)
{
    Row made = row(QString(tag) + ' ' + axis, 2.5, texts, property, axis);
    made.raises = true;
    return made;
}

/// What a setting of a curved text stands in.
Row setting(Row inner)
{
    const TestTexts around{
        " iwCurvedSettings_ptr curvedSettings#;\n it1->GetCurvedSettings( &curvedSettings# );\n"
        "$V it1->SetCurvedSettings( curvedSettings# );\n",
        " ICurvedSettingsPtr curvedSettings# = it1->GetCurvedSettings();\n"
        "$V it1->SetCurvedSettings( curvedSettings# );\n",
        " CurvedSettings curvedSettings# = it1.GetCurvedSettings();\n$V it1.SetCurvedSettings( curvedSettings# );\n",
        " var curvedSettings# = it1.GetCurvedSettings();\n$V it1.SetCurvedSettings( curvedSettings# );\n",
        " Dim curvedSettings# As Inkwright.CurvedSettings = it1.GetCurvedSettings()\n"
        "$V it1.SetCurvedSettings( curvedSettings# )\n",
        " Dim curvedSettings# As Inkwright.CurvedSettings\n Set curvedSettings# = it1.GetCurvedSettings()\n"
        "$V it1.SetCurvedSettings curvedSettings#\n"};
    for (const Target target : allTargets) {
        QString& text = inner.texts[static_cast<int>(target)];
        text = QString(around.in(target)).replace("$V", text.replace("it1", "curvedSettings#"));
    }
    inner.raises = true;
    return inner;
}

/// The parameters of a font, read, changed and written back.
constexpr TestTexts kFont{
    " iwString Typeface;\n bool Bold = false;\n bool Italic = false;\n long Charset = 0;\n long PitchAndFamily = 0;\n"
    " it1->GetFontParameters( &Typeface, &Bold, &Italic, &Charset, &PitchAndFamily);\n $P = true;\n"
    " it1->SetFontParameters( Typeface, Bold, Italic, Charset, PitchAndFamily);\n",
    " BSTR Typeface;\n VARIANT_BOOL Bold = false;\n VARIANT_BOOL Italic = false;\n long Charset = 0;\n"
    " long PitchAndFamily = 0;\n it1->GetFontParameters( &Typeface, &Bold, &Italic, &Charset, &PitchAndFamily);\n"
    " $P = true;\n it1->SetFontParameters( Typeface, Bold, Italic, Charset, PitchAndFamily);\n",
    " string Typeface;\n bool Bold = false;\n bool Italic = false;\n long Charset = 0;\n long PitchAndFamily = 0;\n"
    " it1.GetFontParameters( out Typeface, out Bold, out Italic, out Charset, out PitchAndFamily);\n $P = true;\n"
    " it1.SetFontParameters( Typeface, Bold, Italic, Charset, PitchAndFamily);\n",
    " var results = it1.GetFontParameters( );\n results[$V] = true;\n"
    " it1.SetFontParameters( results[0], results[1], results[2], results[3], results[4]);\n",
    " Dim Typeface As String\n Dim Bold As Boolean = False\n Dim Italic As Boolean = False\n"
    " Dim Charset As Integer = 0\n Dim PitchAndFamily As Integer = 0\n"
    " it1.GetFontParameters( Typeface, Bold, Italic, Charset, PitchAndFamily)\n $P = True\n"
    " it1.SetFontParameters( Typeface, Bold, Italic, Charset, PitchAndFamily)\n",
    " Dim Typeface As String\n Dim Bold As Boolean\n Bold = False\n Dim Italic As Boolean\n Italic = False\n"
    " Dim Charset As Integer\n Charset = 0\n Dim PitchAndFamily As Integer\n PitchAndFamily = 0\n"
    " it1.GetFontParameters Typeface, Bold, Italic, Charset, PitchAndFamily\n $P = True\n"
    " it1.SetFontParameters Typeface, Bold, Italic, Charset, PitchAndFamily\n"};

/// A call of a table style. `$P` is the operation.
Row ofCells(const char* tag, const CFxVariant& value, const TestTexts& texts, const char* operation = "",
            const CFxVariant& cellType = 3)
{
    Row made = row(tag, value, texts, operation);
    made.index = cellType;
    return made;
}

CFxVariant choice(std::int32_t chosen)
{
    return CFxVariantCollection({item(0, "Yes"), item(1, "Right")}, chosen);
}

/// Hands all records over, the last one first: the statements stand in the order of the rows.
void expectChanges(const char* cls, const std::vector<Row>& rows)
{
    for (const Target target : allTargets) {
        PropertyList list;
        QString expected;
        int count = 0;
        for (const Row& one : rows) {
            list.insert(list.begin(), record(one.tag, one.value, one.index));
            QString text = one.texts[static_cast<int>(target)];
            if (one.raises || text.contains('#'))
                text.replace("#", QString::number(++count));
            expected += text;
        }
        TestTarget made(target);
        EXPECT_EQ(changedIn(made, cls, list), expected) << cls << " in target " << static_cast<int>(target);
    }
}

const OdCmColor red = OdCmColor::byIndex(1);

TEST(TextChanges, OfATextStyle)
{
    expectChanges("AcDbTextStyleTableRecord",
                  {row("Name", CFxString("Notes"),
                       {" iwCreateObjectResult_e result#;\n iwString styleName# = L\"Notes\";\n"
                        " it1->Rename( styleName#, &result# );\n",
                        " iwCreateObjectResult_e result#;\n BSTR styleName# = L\"Notes\";\n"
                        " result# = it1->Rename( styleName# );\n",
                        " iwCreateObjectResult_e result#;\n string styleName# = \"Notes\";\n"
                        " result# = it1.Rename( styleName# );\n",
                        " var result#;\n var styleName# = \"Notes\";\n result# = it1.Rename( styleName# );\n",
                        " Dim result# As Inkwright.iwCreateObjectResult_e\n Dim styleName# As String = \"Notes\"\n"
                        " result# = it1.Rename( styleName# )\n",
                        " Dim result# As Inkwright.iwCreateObjectResult_e\n Dim styleName# As String\n"
                        " styleName# = \"Notes\"\n result# = it1.Rename( styleName# )\n"}),
                   text("Font", "Font", CFxString("C:\\Fonts\\a.ttf"), "C:\\\\Fonts\\\\a.ttf"),
                   number("Angle", "Angle"), number("Height", "Height"), number("Spacing", "Spacing"),
                   yes("Backwards", "Backwards", CFxString("YES")), yes("Upside down", "UpsideDown", choice(0)),
                   yes("Vertical", "Vertical", 1, false), text("BigFont", "BigFont", CFxString("b\\c"), "b\\c")});
    for (const char* own : {"<tag>", "<TAG> of a frame"})
        EXPECT_EQ(changed("AcDbTextStyleTableRecord", {record("Name", CFxString(own))}), "");
    EXPECT_NE(changed("AcDbTextStyleTableRecord", {record("Name", CFxString("<tag"))}), "");
}

TEST(TextChanges, OfAnAttributeDefinition)
{
    expectChanges("AcDbAttributeDefinition",
                  {number("Angle", "Angle"),
                   number("Height", "Height"),
                   enumerator("Justify", "Justification", item(0, "bottom left"), "iwTextJustification", "BottomLeft"),
                   text("Prompt", "Caption", CFxString("Part\\No?"), "Part\\No?"),
                   number("Rotation", "Rotation"),
                   number("Spacing", "Spacing"),
                   text("Style", "TextStyle", item(0, "ISO"), "ISO"),
                   text("Tag", "Name", CFxString("NO"), "NO"),
                   text("Value", "Value", CFxString("7"), "7"),
                   coordinate("Position", "X", "Position"),
                   coordinate("Position", "Y", "Position"),
                   coordinate("Position", "Z", "Position"),
                   coordinate("Text alignment", "X", "AlignmentPoint"),
                   coordinate("Text alignment", "Y", "AlignmentPoint"),
                   coordinate("Text alignment", "Z", "AlignmentPoint"),
                   yes("Backward", "Backwards"),
                   yes("Constant", "Constant"),
                   yes("Invisible", "Hidden", choice(1), false),
                   yes("Lock position", "LockPosition"),
                   yes("Preset", "Preset", choice(2), false),
                   yes("UpsideDown", "UpsideDown"),
                   yes("Verify", "Verify", item(1, "No"), false)});
}

TEST(TextChanges, OfASimpleNote)
{
    expectChanges(
        "AcDbText",
        {number("Angle", "Angle"), text("Contents", "Contents", CFxString("a\\b"), "a\\b"), number("Height", "Height"),
         number("Rotation", "Rotation"), number("Spacing", "Spacing"),
         text("TextStyle", "TextStyle", choice(1), "Right"), coordinate("Position", "X", "Position"),
         coordinate("Position", "Y", "Position"), coordinate("Position", "Z", "Position"), yes("Backward", "Backwards"),
         yes("UpsideDown", "UpsideDown"), enumerator("Justify", "Justify", choice(1), "iwTextJustification", "Right"),
         coordinate("Text alignment", "X", "AlignmentPoint"), coordinate("Text alignment", "Y", "AlignmentPoint"),
         coordinate("Text alignment", "Z", "AlignmentPoint")});
    EXPECT_EQ(changed("AcDbText", {record("TextStyle", CFxString("ISO"))}), " it1.TextStyle = \"ISO\";\n");
    EXPECT_EQ(changed("AcDbText", {record("TextStyle", 2.5), record("Justify", 2.5)}), "");
}

TEST(TextChanges, OfANote)
{
    constexpr TestTexts position{
        " double getX#;\n double getY#;\n double getZ#;\n it1->GetPosition( &getX#, &getY#, &getZ# );\n"
        " get$V# = 2.50000000000000;\n it1->SetPosition( getX#, getY#, getZ# );\n",
        " double getX#;\n double getY#;\n double getZ#;\n it1->GetPosition( &getX#, &getY#, &getZ# );\n"
        " get$V# = 2.50000000000000;\n it1->SetPosition( getX#, getY#, getZ# );\n",
        " double getX#;\n double getY#;\n double getZ#;\n it1.GetPosition(out getX#, out getY#, out getZ#);\n"
        " get$V# = 2.50000000000000;\n it1.SetPosition(getX#, getY#, getZ#);\n",
        " var get = it1.GetPosition();\n get.$V = 2.50000000000000;\n it1.SetPosition(get.X, get.Y, get.Z);\n",
        " Dim getX# As Double\n Dim getY# As Double\n Dim getZ# As Double\n"
        " it1.GetPosition( getX#, getY#, getZ# )\n get$V# = 2.50000000000000\n"
        " it1.SetPosition( getX#, getY#, getZ# )\n",
        " Dim getX# As Double\n Dim getY# As Double\n Dim getZ# As Double\n it1.GetPosition getX#, getY#, getZ#\n"
        " get$V# = 2.50000000000000\n it1.SetPosition getX#, getY#, getZ#\n"};
    constexpr TestTexts spacing{" it1->put_LineSpacingStyle( iwNoteLineSpacingStyle_Exactly );\n",
                                " it1->put_LineSpacingStyle( iwNoteLineSpacingStyle_Exactly );\n",
                                " it1.LineSpacingStyle = iwNoteLineSpacingStyle_e.iwNoteLineSpacingStyle_Exactly;\n",
                                " it1.put_LineSpacingStyle(iwNoteLineSpacingStyle_e.iwNoteLineSpacingStyle_Exactly);\n",
                                " it1.LineSpacingStyle = "
                                "Inkwright.iwNoteLineSpacingStyle_e.iwNoteLineSpacingStyle_Exactly\n",
                                " it1.LineSpacingStyle = "
                                "Inkwright.iwNoteLineSpacingStyle_e.iwNoteLineSpacingStyle_Exactly\n"};
    expectChanges("AcDbMText",
                  {yes("Background mask", "BackgroundMask", choice(0)),
                   row("BackgroundFillColor", red,
                       {" iwColor_ptr iwColor#;\n m_pIwApp->GetColorByIndex( 1, &iwColor# );\n"
                        " it1->put_BackgroundFillColor( iwColor# );\n",
                        " it1->put_BackgroundFillColor( pConnection->m_IwApp->GetColorByIndex( 1 ) );\n",
                        " it1.BackgroundFillColor = iwApp.GetColorByIndex( 1 );\n",
                        " it1.put_BackgroundFillColor( mApp.GetColorByIndex( 1 ) );\n",
                        " it1.BackgroundFillColor = iwApp.GetColorByIndex( 1 )\n",
                        " it1.BackgroundFillColor = iwApp.GetColorByIndex( 1 )\n"}),
                   yes("UseDrawingBackgroundColor", "UseDrawingBackgroundColor", CFxString("YES")),
                   number("BackgroundBorderOffsetFactor", "BackgroundBorderOffsetFactor"),
                   text("Contents", "Text", CFxString("a\\Pb"), "a\\\\Pb"),
                   enumerator("Direction", "Direction", CFxString("Vertical"), "iwNoteDirection", "Vertical"),
                   enumerator("Justify", "Justify", CFxString("Middle Right"), "iwNoteJustification", "MiddleRight"),
                   number("Line space distance", "LineSpaceDistance"), number("Line space factor", "LineSpaceFactor"),
                   row("Line space style", item(1, "?"), spacing), number("Rotation", "Rotation"),
                   text("Style", "TextStyle", choice(1), "Right"), number("Text Height", "TextHeight"),
                   number("Width", "Width"), coordinate("Position", "X", "", position),
                   coordinate("Position", "Y", "", position), coordinate("Position", "Z", "", position)});

    EXPECT_EQ(changed("AcDbMText", {record("Background mask", CFxString("Yes"))}), "");
    const auto direction = [](const char* word) { return changed("AcDbMText", {record("Direction", item(0, word))}); };
    EXPECT_EQ(direction("ByStyle"), " it1.Direction = iwNoteDirection_e.iwNoteDirection_ByStyle;\n");
    EXPECT_EQ(direction("Horizontal"), " it1.Direction = iwNoteDirection_e.iwNoteDirection_Horizontal;\n");
    EXPECT_EQ(direction("Backwards"), "");
    EXPECT_EQ(changed("AcDbMText", {record("Line space style", choice(0))}),
              " it1.LineSpacingStyle = iwNoteLineSpacingStyle_e.iwNoteLineSpacingStyle_AtLeast;\n");
}

TEST(TextChanges, OfACurvedText)
{
    expectChanges("AcDbArcAlignedText",
                  {text("Contents", "Contents", CFxString("a\\b"), "a\\b"),
                   number("Height", "Height"),
                   number("Width Factor", "WidthFactor"),
                   number("Char Spacing", "CharSpacing"),
                   coordinate("Center", "X", "Center"),
                   coordinate("Center", "Y", "Center"),
                   coordinate("Center", "Z", "Center"),
                   number("Start Angle", "StartAngle"),
                   number("End Angle", "EndAngle"),
                   number("Arc Offset", "ArcOffset"),
                   number("Left Offset", "LeftOffset"),
                   number("Right Offset", "RightOffset"),
                   setting(yes("CurvedSettings Underlined", "Underlined", CFxString("YES"))),
                   setting(yes("CurvedSettings Flip", "Flip", CFxString("NO"), false)),
                   setting(enumerator("CurvedSettings Alignment", "Alignment", 3, "iwArcTextAlignment", "Right")),
                   setting(enumerator("CurvedSettings TextSide", "TextSide", 2, "iwArcTextPosition", "OnConcaveSide")),
                   setting(enumerator("CurvedSettings TextDirection", "TextDirection", 1, "iwArcTextDirection",
                                      "OutwardFromCenter")),
                   setting(text("CurvedSettings TextStyle", "TextStyle", CFxString("ISO"), "ISO")),
                   setting(text("CurvedSettings Font", "Font", CFxString("a\\b"), "a\\b")),
                   setting(row("CurvedSettings bold", CFxString("YES"), kFont, "Bold", "1")),
                   setting(row("CurvedSettings italic", CFxString("YES"), kFont, "Italic", "2"))});
}

TEST(TextChanges, OfAPicture)
{
    const auto integer = [](const char* tag) { return row(tag, 40, kPlain, tag, "40.00000000000000"); };
    expectChanges("AcDbRasterImage",
                  {integer("Brightness"), integer("Contrast"), integer("Fade"), number("Height", "Height"),
                   number("Rotation", "Rotation"), number("Scale", "ScaleImage"), number("Width", "Width"),
                   yes("Show clipped", "ShowClipped"), yes("Show image", "ShowImage"),
                   yes("Transparency", "Transparency"), coordinate("Position", "X", "Position"),
                   coordinate("Position", "Y", "Position"), coordinate("Position", "Z", "Position")});
}

/// What a page has for the scales of a block takes no number.
TEST(TextChanges, OfABlockInstance)
{
    TestTexts scales = kPoint;
    scales.javascript = " var points;\n points = it1.Get$P();\n points.Scale$V = 2.50000000000000;\n"
                        " it1.Set$P(points.ScaleX, points.ScaleY, points.ScaleZ);\n";
    std::vector<Row> rows{coordinate("Position", "X", "Position"), coordinate("Position", "Y", "Position"),
                          coordinate("Position", "Z", "Position")};
    for (const char* axis : {"X", "Y", "Z"})
        rows.push_back(row(QString("Scale ") + axis, 2.5, scales, "Scales", axis));
    rows.push_back(number("Rotation", "Rotation"));
    expectChanges("AcDbBlockReference", rows);

    const PropertyList attributes{odrxNew<TestProperty>("NO", CFxString("12"), "BlockAttributes"),
                                  odrxNew<TestProperty>("EMPTY", CFxVariant(), "blockattributes"),
                                  record("Scale X", 2.5),
                                  odrxNew<TestProperty>("NAME", CFxString("Bolt"), "BlockAttributes")};
    const std::string values = changed("AcDbBlockReference", attributes, Target::JavaScript);
    EXPECT_EQ(values,
              " var points;\n points = it1.GetScales();\n points.ScaleX = 2.50000000000000;\n"
              " it1.SetScales(points.ScaleX, points.ScaleY, points.ScaleZ);\n"
              " var iwAttributes1 = it1.GetAttributeInstances();\n"
              " for (var i = 0; i < iwAttributes1.length; ++i)\n {\n"
              "     if (iwAttributes1[i].get_Name() == \"NO\")\n         iwAttributes1[i].put_Value(\"12\");\n }\n"
              " var iwAttributes2 = it1.GetAttributeInstances();\n"
              " for (var i = 0; i < iwAttributes2.length; ++i)\n {\n"
              "     if (iwAttributes2[i].get_Name() == \"NAME\")\n"
              "         iwAttributes2[i].put_Value(\"Bolt\");\n }\n");

    // The host's language decides, not the target.
    TestTarget csharp(Target::CSharp);
    GetFxSystemServices()->SetInt16("RecordingLanguage", 2);
    EXPECT_EQ(changedIn(csharp, "AcDbBlockReference", {record("Scale X", 2.5)}), QString());
    GetFxSystemServices()->SetInt16("RecordingLanguage", 0);
    EXPECT_EQ(changedIn(csharp, "AcDbMText", {record("Line space style", item(0, "?"))}),
              QString(" it1.LineSpacingStyle = iwNoteLineSpacingStyle_AtLeast;\n"));
    EXPECT_EQ(changedIn(csharp, "AcDbTableStyle", {record("Align", CFxString("Top Left"), 3)}),
              QString("  it1.SetAlignment(iwTableCellType_e.iwTableCellType_Data,iwTableCellAlignment_TopLeft);\n"));
}

TEST(TextChanges, OfATableStyle)
{
    constexpr TestTexts length{"",
                               "  it1->$P(iwTableCellType_Data,2.50000000000000);\n",
                               "  it1.$P(iwTableCellType_e.iwTableCellType_Data,2.50000000000000);\n",
                               "  it1.$P(\"iwTableCellType_Data\",2.50000000000000);\n",
                               "  it1.$P(Inkwright.iwTableCellType_e.iwTableCellType_Data,2.50000000000000)\n",
                               "  it1.$P Inkwright.iwTableCellType_e.iwTableCellType_Data,2.50000000000000\n"};
    expectChanges(
        "AcDbTableStyle",
        {ofCells("Align", item(0, "Middle Center"),
                 {"", "  it1->SetAlignment(iwTableCellType_Data,iwTableCellAlignment_MiddleCenter);\n",
                  "  it1.SetAlignment(iwTableCellType_e.iwTableCellType_Data,"
                  "iwTableCellAlignment_e.iwTableCellAlignment_MiddleCenter);\n",
                  "  it1.SetAlignment(\"iwTableCellType_Data\",\"iwTableCellAlignment_MiddleCenter\");\n",
                  "  it1.SetAlignment(Inkwright.iwTableCellType_e.iwTableCellType_Data,"
                  "Inkwright.iwTableCellAlignment_e.iwTableCellAlignment_MiddleCenter)\n",
                  "  it1.SetAlignment Inkwright.iwTableCellType_e.iwTableCellType_Data,"
                  "Inkwright.iwTableCellAlignment_e.iwTableCellAlignment_MiddleCenter\n"}),
         ofCells("backgroundColor", OdCmColor::byRgb(1, 2, 3),
                 {"",
                  "  it1->SetBackgroundColor(iwTableCellType_Header,pConnection->m_IwApp->GetRGBColor( 1 ,2 ,3 ));\n",
                  "  it1.SetBackgroundColor(iwTableCellType_e.iwTableCellType_Header,iwApp.GetRGBColor( 1 ,2 ,3 ));\n",
                  "  it1.SetBackgroundColor(\"iwTableCellType_Header\",mApp.GetRGBColor(1 ,2 ,3));\n",
                  "  it1.SetBackgroundColor(Inkwright.iwTableCellType_e.iwTableCellType_Header,"
                  "iwApp.GetRGBColor( 1 ,2 ,3 ))\n",
                  "  it1.SetBackgroundColor Inkwright.iwTableCellType_e.iwTableCellType_Header,"
                  "iwApp.GetRGBColor( 1 ,2 ,3 )\n"},
                 "", 2),
         ofCells("Color", red,
                 {"", "  it1->SetTextColor(iwTableCellType_Title,pConnection->m_IwApp->GetColorByIndex( 1 ));\n",
                  "  it1.SetTextColor(iwTableCellType_e.iwTableCellType_Title,iwApp.GetColorByIndex( 1 ));\n",
                  "  it1.SetTextColor(\"iwTableCellType_Title\",mApp.GetColorByIndex(1));\n",
                  "  it1.SetTextColor(Inkwright.iwTableCellType_e.iwTableCellType_Title,iwApp.GetColorByIndex( 1 ))\n",
                  "  it1.SetTextColor Inkwright.iwTableCellType_e.iwTableCellType_Title,iwApp.GetColorByIndex( 1 )\n"},
                 "", CFxVariant()),
         ofCells("textHeight", 2.5, length, "SetTextHeight"),
         ofCells("textStyle", CFxString("ISO"),
                 {"", "  it1->SetTextStyle(iwTableCellType_Data,L\"ISO\");\n",
                  "  it1.SetTextStyle(iwTableCellType_e.iwTableCellType_Data,\"ISO\");\n", "",
                  "  it1.SetTextStyle(Inkwright.iwTableCellType_e.iwTableCellType_Data,\"ISO\")\n",
                  "  it1.SetTextStyle Inkwright.iwTableCellType_e.iwTableCellType_Data,\"ISO\"\n"}),
         ofCells("horzCellMargin", 2.5, length, "SetHorizontalMargin"),
         ofCells("vertCellMargin", 2.5, length, "SetVerticalMargin"),
         row("Direction", item(0, "up"),
             {" it1->put_HeaderOrientation( iwTableHeaderOrientation_Up );\n",
              " it1->put_HeaderOrientation( iwTableHeaderOrientation_Up );\n",
              "  it1.HeaderOrientation = iwTableHeaderOrientation_e.iwTableHeaderOrientation_Up;\n",
              "  it1.put_HeaderOrientation(\"iwTableHeaderOrientation_Up\");\n",
              "  it1.HeaderOrientation = Inkwright.iwTableHeaderOrientation_e.iwTableHeaderOrientation_Up\n",
              "  it1.HeaderOrientation = Inkwright.iwTableHeaderOrientation_e.iwTableHeaderOrientation_Up\n"}),
         ofCells("gridColor", red,
                 {"",
                  "  it1->SetBordersColor(iwTableCellType_Header,iwTableBordersLineType_HorizontalBottom,"
                  "pConnection->m_IwApp->GetColorByIndex( 1 ));\n",
                  "  it1.SetBordersColor(  iwTableCellType_e.iwTableCellType_Header,"
                  "iwTableBordersLineType_e.iwTableBordersLineType_HorizontalBottom,iwApp.GetColorByIndex( 1 ));\n",
                  "  it1.SetBordersColor(  \"iwTableCellType_Header\",\"iwTableBordersLineType_HorizontalBottom\","
                  "mApp.GetColorByIndex(1));\n",
                  "  it1.SetBordersColor(  Inkwright.iwTableCellType_e.iwTableCellType_Header,"
                  "Inkwright.iwTableBordersLineType_e.iwTableBordersLineType_HorizontalBottom,"
                  "iwApp.GetColorByIndex( 1 ))\n",
                  "  it1.SetBordersColor Inkwright.iwTableCellType_e.iwTableCellType_Header,"
                  "Inkwright.iwTableBordersLineType_e.iwTableBordersLineType_HorizontalBottom,"
                  "iwApp.GetColorByIndex( 1 )\n"},
                 "", CFxVariantCollectionElement(2, 4)),
         ofCells(
             "gridLineWeight", 25,
             {"  it1->SetBordersLineWeight(iwTableCellType_Data,iwTableBordersLineType_HorizontalTop,iwLnWt_025);\n",
              "  it1->SetBordersLineWeight(iwTableCellType_Data,iwTableBordersLineType_HorizontalTop,iwLnWt_025);\n",
              "  it1.SetBordersLineWeight(  iwTableCellType_e.iwTableCellType_Data,"
              "iwTableBordersLineType_e.iwTableBordersLineType_HorizontalTop,iwLineWeight_e.iwLnWt_025);\n",
              "  it1.SetBordersLineWeight(  \"iwTableCellType_Data\",\"iwTableBordersLineType_HorizontalTop\","
              "\"iwLnWt_025\");\n",
              "  it1.SetBordersLineWeight(  Inkwright.iwTableCellType_e.iwTableCellType_Data,"
              "Inkwright.iwTableBordersLineType_e.iwTableBordersLineType_HorizontalTop,"
              "Inkwright.iwLineWeight_e.iwLnWt_025)\n",
              "  it1.SetBordersLineWeight Inkwright.iwTableCellType_e.iwTableCellType_Data,"
              "Inkwright.iwTableBordersLineType_e.iwTableBordersLineType_HorizontalTop,"
              "Inkwright.iwLineWeight_e.iwLnWt_025\n"})});
    EXPECT_EQ(changed("AcDbTableStyle", {record("TableStyleName", CFxString("<tag>"))}),
              " iwCreateObjectResult_e result1;\n string styleName1 = \"<tag>\";\n"
              " result1 = it1.Rename( styleName1 );\n");
}

/// A table that has been changed to two rows and three columns, which are 10 high and 30 wide together.
class TableChanges : public testing::Test
{
protected:
    TableChanges()
    {
        change({record("Rows", 2), record("Columns", 3), record("Table height", 10.0), record("Table width", 30.0)});
    }
    QString change(const PropertyList& list) { return change(csharp, list); }
    static QString change(TestTarget& target, const PropertyList& list)
    {
        return changedIn(target, "AcDbTable", list).remove(".00000000000000");
    }

    TestTarget csharp{Target::CSharp};
};

TEST_F(TableChanges, WriteRowsAndColumnsInAllTargets)
{
    const auto expectLines = [](const PropertyList& list, const TestTexts& expected) {
        for (const Target target : allTargets) {
            TestTarget made(target);
            change(made, {record("Rows", 2), record("Columns", 2)});
            EXPECT_EQ(change(made, list), QString(expected.in(target))) << "target " << static_cast<int>(target);
        }
    };
    expectLines({record("Rows", 3), record("RowHeight_2", 5.0)},
                {" bool bRetVal;\n it1->InsertRow( 2, 5, &bRetVal );\n it1->SetRowHeightAt( 2, 5 );\n",
                 " it1->InsertRow( 2, 5 );\n it1->SetRowHeightAt( 2, 5 );\n",
                 " it1.InsertRow( 2, 5 );\n it1.SetRowHeightAt( 2, 5 );\n",
                 " it1.InsertRow( 2, 5 );\n it1.SetRowHeightAt( 2, 5 );\n",
                 " it1.InsertRow( 2, 5 )\n it1.SetRowHeightAt( 2, 5 )\n",
                 " it1.InsertRow 2, 5\n it1.SetRowHeightAt 2, 5\n"});
    expectLines({record("Columns", 3), record("ColumnWidth_2", 5.0)},
                {" bool bRetVal;\n it1->InsertColumn( 2, 5, &bRetVal );\n it1->SetColumnWidthAt( 2, 5 );\n",
                 " it1->InsertColumn( 2, 5 );\n it1->SetColumnWidthAt( 2, 5 );\n",
                 " it1.InsertColumn( 2, 5 );\n it1.SetColumnWidthAt( 2, 5 );\n",
                 " it1.InsertColumn( 2, 5 );\n it1.SetColumnWidthAt( 2, 5 );\n",
                 " it1.InsertColumn( 2, 5 )\n it1.SetColumnWidthAt( 2, 5 )\n",
                 " it1.InsertColumn 2, 5\n it1.SetColumnWidthAt 2, 5\n"});
    expectLines({record("Rows", 1), record("Columns", CFxVariant(0)), record("Contents_0_1", CFxString("a\\b"))},
                {" bool bRetVal;\n it1->DeleteRow( 1, &bRetVal );\n bool bRetVal;\n"
                 " it1->DeleteColumn( 1, &bRetVal );\n it1->SetText( 0, 1, L\"a\\\\b\" );\n",
                 " it1->DeleteRow( 1 );\n it1->DeleteColumn( 1 );\n it1->SetText( 0, 1, L\"a\\\\b\" );\n",
                 " it1.DeleteRow( 1 );\n it1.DeleteColumn( 1 );\n it1.SetText( 0, 1, \"a\\\\b\" );\n",
                 " it1.DeleteRow( 1 );\n it1.DeleteColumn( 1 );\n it1.SetText( 0, 1, \"a\\\\b\" );\n",
                 " it1.DeleteRow( 1 )\n it1.DeleteColumn( 1 )\n it1.SetText( 0, 1, \"a\\\\b\" )\n",
                 " it1.DeleteRow 1\n it1.DeleteColumn 1\n it1.SetText 0, 1, \"a\\\\b\"\n"});
}

TEST_F(TableChanges, FollowTheOrderOfTheirSteps)
{
    const QString position = " double X1;\n double Y1;\n double Z1;\n it1.GetPosition(out X1, out Y1, out Z1);\n"
                             " Y1 = 7;\n it1.SetPosition(X1, Y1, Z1);\n";
    EXPECT_EQ(change({record("Direction", CFxString("Down")), record("TableStyle", item(0, "Parts")),
                      record("Table width", 60.0), record("ColumnWidth_1", 30.0), record("Table height", 12.0),
                      record("RowHeight_0", 7.0), record("Contents_1_2", CFxString()), record("Columns", 2),
                      record("Rows", 1), record("Position Y", 7.0)}),
              position + " it1.DeleteRow( 1 );\n it1.DeleteColumn( 2 );\n it1.SetText( 1, 2, \"\" );\n"
                         " it1.SetRowHeightAt( 0, 7 );\n it1.SetColumnWidthAt( 1, 30 );\n"
                         " TableStyleManager tablestylemgr2 = iwDoc.GetTableStyleManager();\n"
                         " it1.TableStyle = tablestylemgr2.GetTableStyle(\"Parts\");\n"
                         "  it1.Direction= iwTableDirection_e.iwTableDirection_TopToBottom;\n");
}

TEST_F(TableChanges, TakeTheLastOldLineAwayOnce)
{
    EXPECT_EQ(change({record("Rows", CFxVariant(0))}), QString(" it1.DeleteRow( 1 );\n"));
    EXPECT_EQ(change({record("Rows", CFxVariant(0))}), QString());
    EXPECT_EQ(change({record("Columns", 1)}), QString(" it1.DeleteColumn( 2 );\n"));
    // What is no count leaves the old one.
    EXPECT_EQ(change({record("Columns", CFxString("4"))}), QString());
    EXPECT_EQ(change({record("Columns", 0.0)}), QString(" it1.DeleteColumn( 0 );\n"));
}

TEST_F(TableChanges, FindNewLinesInUnbrokenOrder)
{
    EXPECT_EQ(change({record("Rows", 5), record("RowHeight_2", 3.0), record("RowHeight_4", 5.0),
                      record("Contents_2_0", CFxString("new")), record("Contents_2_1", CFxString()),
                      record("Contents_4_0", CFxString("far"))}),
              QString(" it1.InsertRow( 2, 3 );\n it1.SetText( 2, 0, \"new\" );\n"
                      " it1.SetText( 2, 0, \"new\" );\n it1.SetText( 2, 1, \"\" );\n"
                      " it1.SetText( 4, 0, \"far\" );\n it1.SetRowHeightAt( 2, 3 );\n"
                      " it1.SetRowHeightAt( 4, 5 );\n"));
    EXPECT_EQ(change({record("Rows", 4)}), QString(" it1.DeleteRow( 4 );\n"));
    // The record of the second comes ahead of the first one's, and a size may be missing.
    EXPECT_EQ(change({record("Columns", 6), record("ColumnWidth_4", 1.0), record("ColumnWidth_3", CFxVariant()),
                      record("ColumnWidth_3", 2.0), record("Contents_0_3", CFxString("c"))}),
              QString(" it1.InsertColumn( 3, 2 );\n it1.SetText( 0, 3, \"c\" );\n"
                      " it1.SetText( 0, 3, \"c\" );\n it1.SetColumnWidthAt( 4, 1 );\n"
                      " it1.SetColumnWidthAt( 3, 2 );\n"));
}

TEST_F(TableChanges, TakeManyRowsAtOnce)
{
    PropertyList list{record("Rows", 1002)};
    for (int row = 2; row < 1002; ++row)
        list.push_back(record(QString("RowHeight_%1").arg(row), 5.0));
    const QString text = change(list);
    EXPECT_EQ(text.count("InsertRow( "), 1000);
    EXPECT_EQ(text.count("SetRowHeightAt( "), 1000);
    EXPECT_TRUE(text.contains(" it1.InsertRow( 1001, 5 );\n"));
}

TEST_F(TableChanges, AreScalingsWhereNothingElseTellsOfTheSize)
{
    const auto coefficient = [&](const PropertyList& list) {
        const QString text = change(list);
        const int place = text.indexOf("coef");
        return place < 0 ? QString() : text.mid(place, text.indexOf('\n', place) - place);
    };
    EXPECT_EQ(coefficient({record("Table height", 20.0)}), QString("coef1 = 2;"));
    EXPECT_EQ(coefficient({record("Table height", 40.0), record("RowHeight_1", 30.0)}), QString());
    EXPECT_EQ(coefficient({record("Table height", 60.0)}), QString("coef2 = 1.50000000000000;"));
    EXPECT_EQ(coefficient({record("Table height", 30.0), record("Rows", 2)}), QString());
    EXPECT_EQ(coefficient({record("Table height", 15.0), record("Contents_9_9", CFxVariant())}), QString());
    EXPECT_EQ(coefficient({record("Table width", 15.0), record("Contents_9_9", CFxVariant())}), QString());
    EXPECT_EQ(coefficient({record("Table width", 45.0), record("RowHeight_0", 1.0)}), QString("coef3 = 3;"));
    EXPECT_EQ(coefficient({record("Table width", 0.0), record("ColumnWidth_0", CFxVariant())}), QString());
    EXPECT_EQ(coefficient({record("Table width", 45.0)}), QString("coef4 = inf;"));
    EXPECT_TRUE(change({record("Table width", 90.0)}).contains("it1.SetColumnWidthAt(i, width);"));
}

TEST_F(TableChanges, ReadWhatTheyCanOfATag)
{
    EXPECT_EQ(change({record("Contents_1", CFxString("a")), record("Contents_-1_2", CFxString("b")),
                      record("Contents", item(0, "c")), record("Contents_7_99999999999", 2.5),
                      record("RowHeight_x", 4.0), record("ColumnWidth", 5.0)}),
              QString(" it1.SetText( 1, 0, \"a\" );\n it1.SetText( -1, 2, \"b\" );\n"
                      " it1.SetText( 0, 0, \"c\" );\n it1.SetText( 7, 0, \"\" );\n"
                      " it1.SetRowHeightAt( 0, 4 );\n it1.SetColumnWidthAt( 0, 5 );\n"));
}

} // namespace
