// Changes of texts, pictures, block references, tables and their styles: the forms in which values come, and the rules
// of tables. What the tags become in each target is shown by the scenarios.

#include "TestChanges.h"

#include <gtest/gtest.h>

using namespace inkmacro;

namespace {

CFxVariant choice(std::int32_t chosen)
{
    return CFxVariantCollection({item(0, "Yes"), item(1, "Right")}, chosen);
}

TEST(TextChanges, TakeAnswersInEveryForm)
{
    const auto backwards = [](const CFxVariant& value) {
        return changed("AcDbTextStyleTableRecord", {record("Backwards", value)});
    };
    for (const CFxVariant& yes : {CFxVariant(CFxString("YES")), CFxVariant(item(7, "yes")), choice(0)})
        EXPECT_EQ(backwards(yes), " it1.Backwards = true;\n");
    for (const CFxVariant& no :
         {CFxVariant(CFxString("NO")), CFxVariant(item(0, "No")), choice(1), choice(2), CFxVariant(1)})
        EXPECT_EQ(backwards(no), " it1.Backwards = false;\n");

    EXPECT_EQ(changed("AcDbMText", {record("Background mask", choice(0))}), " it1.BackgroundMask = true;\n");
    EXPECT_EQ(changed("AcDbMText", {record("Background mask", CFxString("Yes"))}), "");
}

TEST(TextChanges, TakeTextsInEveryForm)
{
    const auto style = [](const CFxVariant& value) { return changed("AcDbText", {record("TextStyle", value)}); };
    EXPECT_EQ(style(CFxString("ISO")), " it1.TextStyle = \"ISO\";\n");
    EXPECT_EQ(style(item(0, "ISO")), " it1.TextStyle = \"ISO\";\n");
    EXPECT_EQ(style(choice(1)), " it1.TextStyle = \"Right\";\n");
    EXPECT_EQ(style(2.5), "");
    EXPECT_EQ(changed("AcDbText", {record("Contents", CFxString("a\\b"))}), " it1.Contents = \"a\\b\";\n");
    EXPECT_EQ(changed("AcDbMText", {record("Contents", CFxString("a\\Pb"))}), " it1.Text = \"a\\\\Pb\";\n");

    const auto justify = [](const CFxVariant& value) { return changed("AcDbText", {record("Justify", value)}); };
    const std::string right = " it1.Justify = iwTextJustification_e.iwTextJustification_Right;\n";
    for (const CFxVariant& word : {CFxVariant(CFxString("right")), CFxVariant(item(0, "Right")), choice(1)})
        EXPECT_EQ(justify(word), right);
    EXPECT_EQ(justify(item(0, "bottom left")),
              " it1.Justify = iwTextJustification_e.iwTextJustification_BottomLeft;\n");
    EXPECT_EQ(justify(2.5), "");
}

TEST(TextChanges, RenameStylesButTextStylesOfTags)
{
    const auto rename = [](const char* cls, const char* tag, const char* name) {
        return changed(cls, {record(tag, CFxString(name))});
    };
    for (const char* own : {"<tag>", "<TAG> of a frame"})
        EXPECT_EQ(rename("AcDbTextStyleTableRecord", "Name", own), "");
    EXPECT_EQ(rename("AcDbTextStyleTableRecord", "Name", "<tag"),
              " iwCreateObjectResult_e result1;\n string styleName1 = \"<tag\";\n"
              " result1 = it1.Rename( styleName1 );\n");
    EXPECT_EQ(rename("AcDbTableStyle", "TableStyleName", "<tag>"),
              " iwCreateObjectResult_e result1;\n string styleName1 = \"<tag>\";\n"
              " result1 = it1.Rename( styleName1 );\n");
}

TEST(TextChanges, OfANoteKnowTheirWords)
{
    const auto direction = [](const char* word) { return changed("AcDbMText", {record("Direction", item(0, word))}); };
    EXPECT_EQ(direction("ByStyle"), " it1.Direction = iwNoteDirection_e.iwNoteDirection_ByStyle;\n");
    EXPECT_EQ(direction("Horizontal"), " it1.Direction = iwNoteDirection_e.iwNoteDirection_Horizontal;\n");
    EXPECT_EQ(direction("vertical"), " it1.Direction = iwNoteDirection_e.iwNoteDirection_Vertical;\n");
    EXPECT_EQ(direction("Backwards"), "");
    const auto spacing = [](const CFxVariant& style) {
        return changed("AcDbMText", {record("Line space style", style)});
    };
    EXPECT_EQ(spacing(choice(0)), " it1.LineSpacingStyle = iwNoteLineSpacingStyle_e.iwNoteLineSpacingStyle_AtLeast;\n");
    EXPECT_EQ(spacing(item(1, "?")),
              " it1.LineSpacingStyle = iwNoteLineSpacingStyle_e.iwNoteLineSpacingStyle_Exactly;\n");
}

/// No scenario has them.
TEST(TextChanges, OfAPicture)
{
    const PropertyList list{record("Transparency", item(0, "yes")),
                            record("Show image", item(1, "no")),
                            record("Show clipped", item(0, "yes")),
                            record("Width", 2.5),
                            record("Scale", 3.5),
                            record("Rotation", 4.5),
                            record("Height", 5.5),
                            record("Fade", 60),
                            record("Contrast", 70),
                            record("Brightness", 80)};
    EXPECT_EQ(QString::fromStdString(changed("AcDbRasterImage", list)).remove("0000000000000"),
              QString(" it1.Brightness = 80.0;\n it1.Contrast = 70.0;\n it1.Fade = 60.0;\n it1.Height = 5.5;\n"
                      " it1.Rotation = 4.5;\n it1.ScaleImage = 3.5;\n it1.Width = 2.5;\n it1.ShowClipped = true;\n"
                      " it1.ShowImage = false;\n it1.Transparency = true;\n"));
}

TEST(TextChanges, OfABlockInstanceSetAttributesByTheirGroup)
{
    const PropertyList attributes{odrxNew<TestProperty>("NO", CFxString("12"), "BlockAttributes"),
                                  odrxNew<TestProperty>("EMPTY", CFxVariant(), "blockattributes"),
                                  record("Scale X", 2.5), record("BlockAttributes", CFxString("no attribute")),
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

TEST(TextChanges, OfATableStyleHaveTwoDirections)
{
    const auto direction = [](const char* word) {
        return changed("AcDbTableStyle", {record("Direction", item(0, word))});
    };
    const QString statement = "  it1.HeaderOrientation = iwTableHeaderOrientation_e.iwTableHeaderOrientation_%1;\n";
    EXPECT_EQ(direction("up"), statement.arg("Up").toStdString());
    EXPECT_EQ(direction("Down"), statement.arg("Down").toStdString());
    EXPECT_EQ(direction("Sideways"), "");
}

/// The record's number is the cell type, and for a grid line beside it the line.
TEST(TextChanges, OfATableStyleAreOfACellType)
{
    const auto height = [](const CFxVariant& cells) {
        return changed("AcDbTableStyle", {record("textHeight", 2.5, cells)});
    };
    const QString statement = "  it1.SetTextHeight(iwTableCellType_e.iwTableCellType_%1,2.50000000000000);\n";
    EXPECT_EQ(height(CFxVariant()), statement.arg("Title").toStdString());
    EXPECT_EQ(height(2), statement.arg("Header").toStdString());
    EXPECT_EQ(height(3), statement.arg("Data").toStdString());
    EXPECT_EQ(height(CFxVariantCollectionElement(2, 4)), statement.arg("Header").toStdString());

    const auto weight = [](const CFxVariant& cells) {
        return changed("AcDbTableStyle", {record("gridLineWeight", 25, cells)});
    };
    const QString line = "  it1.SetBordersLineWeight(  iwTableCellType_e.iwTableCellType_%1,"
                         "iwTableBordersLineType_e.iwTableBordersLineType_Horizontal%2,iwLineWeight_e.iwLnWt_025);\n";
    EXPECT_EQ(weight(3), line.arg("Data", "Top").toStdString());
    EXPECT_EQ(weight(CFxVariantCollectionElement(2, 4)), line.arg("Header", "Bottom").toStdString());
}

/// A table that has been changed to two rows and three columns, which are 10 high and 30 wide together.
class TableChanges : public testing::Test
{
protected:
    TableChanges()
    {
        change({record("Rows", 2), record("Columns", 3), record("Table height", 10.0), record("Table width", 30.0)});
    }
    QString change(const PropertyList& list) { return changedIn(csharp, "AcDbTable", list).remove(".00000000000000"); }

    TestTarget csharp{Target::CSharp};
};

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
    EXPECT_EQ(change({record("Contents_1", CFxString("a\\b")), record("Contents_-1_2", CFxString("b")),
                      record("Contents", item(0, "c")), record("Contents_7_99999999999", 2.5),
                      record("RowHeight_x", 4.0), record("ColumnWidth", 5.0)}),
              QString(" it1.SetText( 1, 0, \"a\\\\b\" );\n it1.SetText( -1, 2, \"b\" );\n"
                      " it1.SetText( 0, 0, \"c\" );\n it1.SetText( 7, 0, \"\" );\n"
                      " it1.SetRowHeightAt( 0, 4 );\n it1.SetColumnWidthAt( 0, 5 );\n"));
}

} // namespace
