// Added tables and styles, and the statements that are set on them.

#include "TestDrawing.h"
#include "TestRecords.h"
#include "TestTarget.h"

#include "objects/entries.h"
#include "objects/targets/styles.h"
#include "objects/targets/tables.h"

#include <QDir>

using namespace inkmacro;

namespace {

class AddedTables : public testing::Test
{
protected:
    QString add(const char* cls, std::uint64_t handle, PropertyList records)
    {
        made.conversion.names().RegisterObject(OdDbHandle(handle), oddbClassByName(cls));
        PropertyList rest;
        Statement text;
        ConvertAddedObject(made.conversion, oddbClassByName(cls), OdDbHandle(handle), records, rest, text);
        return textOf(text).remove(".00000000000000");
    }

    TestDrawing drawing;
    TestTarget made{Target::JavaScript};
};

TEST_F(AddedTables, HaveNoWordForCellsOfAnotherStyle)
{
    drawing.add(0x30, "AcDbTable", {{"cellStyles", OdArray<OdString>{"Mine", "_header", "_DATA "}}});
    EXPECT_EQ(
        add("AcDbTable", 0x30, {record("Rows", 3), record("Columns", 1), record("RowHeight_1", 4.0)}),
        "\n var TableStyle_1_1 = \"\";\n var TableStyle_2_1 = \"iwTableCellType_Header\";\n"
        " var TableStyle_3_1 = \"\";\n"
        " var table1 = mSkMgr.InsertTable(\n  0, 0, 3, 1, 0, 0, TableStyle_1_1, TableStyle_2_1, TableStyle_3_1);\n"
        " table1.SetRowHeightAt( 1, 4 );\n");
}

TEST_F(AddedTables, AreWrittenFromTheirRecordsAloneWhenTheDrawingLacksThem)
{
    const QString text = add("AcDbTable", 0x31, {record("Position X", 2.0), record("RowHeight_2", 5.0)});
    EXPECT_TRUE(text.contains("  2, 0, 0, 0, 5, 0, TableStyle_1_1,")) << text.toStdString();
    EXPECT_FALSE(text.contains("SetRowHeightAt"));
    drawing.add(0x32, "AcDbLine");
    PropertyList records;
    EXPECT_THROW(add("AcDbTable", 0x32, records), OdError_NotThatKindOfClass);
}

TEST_F(AddedTables, StylesAreActivatedWhenTheyAreCurrent)
{
    drawing.add(0x20, "AcDbTableStyle");
    drawing.add(0x21, "AcDbMlineStyle");
    EXPECT_FALSE(add("AcDbTableStyle", 0x20, {}).contains("Activate"));
    EXPECT_FALSE(add("AcDbMlineStyle", 0x21, {}).contains("Activate"));
    drawing.database.setTablestyle(drawing.id(0x20));
    drawing.database.setCurrentRichLineStyleId(drawing.id(0x21));
    EXPECT_TRUE(add("AcDbTableStyle", 0x20, {}).contains("Activate();\n"));
    EXPECT_TRUE(add("AcDbMlineStyle", 0x21, {}).contains("Activate();\n"));
    EXPECT_FALSE(add("AcDbTableStyle", 0x22, {}).contains("Activate"));
}

TEST_F(AddedTables, LineStylesComeFromTheFirstFileThatHoldsThem)
{
    QTemporaryDir folder;
    const auto write = [&](const QString& name, const QByteArray& text) {
        QDir(folder.path()).mkpath(QFileInfo(name).path());
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    };
    write("a/b.txt", "*FENCE1,in no file of line styles\n");
    write("a/old.LIN", ";;*FENCE1\n*FENCE10,Longer\nA,1,-1\n*B\xFCrger , Latin\r\nA,1\n");
    write("b/new.lin", "*Fence1\nA,1,-1\n");
    write("b/zzz.lin", "*FENCE1,too late\n");
    drawing.database.setLineStyleFolders({folder.filePath("nowhere"), folder.filePath("a"), folder.filePath("b")});

    const auto load = [&](const char* name) {
        return add("AcDbLinetypeTableRecord", 0x24, {record("Name", CFxString(QString::fromUtf8(name)))});
    };
    EXPECT_EQ(load("FENCE1"), " var linestyle1 = mDoc.GetLineStyleManager().LoadLineStyle(\"FENCE1\",\"" +
                                  folder.filePath("b/new.lin") + "\").LineStyle;\n");
    EXPECT_TRUE(load("fence10").contains(folder.filePath("a/old.LIN")));
    EXPECT_TRUE(load("Bürger").contains(folder.filePath("a/old.LIN")));
    const std::size_t problems = GetFxSystemServices()->GetProblems().size();
    EXPECT_TRUE(load("FENCE").contains("(\"FENCE\",\"\")"));
    ASSERT_EQ(GetFxSystemServices()->GetProblems().size(), problems + 1);
    EXPECT_TRUE(GetFxSystemServices()->GetProblems().back().toQString().contains("\"FENCE\""));
    EXPECT_EQ(add("AcDbLinetypeTableRecord", 0x25, {}), "");
}

TEST(TableStatements, ScaleEachRowOrColumn)
{
    const TestTexts rows{
        .cpp = "    double coef1 = 1.50000000000000;\n"
               "    long lRowCount1 = 0;\n    t->TotalRowCount( &lRowCount1 );\n"
               "    for (long i = 0; i < lRowCount1; ++i)\n    {\n"
               "        double height = 0.0;\n        t->GetRowHeight(i, &height);\n        height *= coef1;\n"
               "        t->SetRowHeightAt(i, height);\n    }\n",
        .cppCom = "    double coef1 = 1.50000000000000;\n"
                  "    long lRowCount1 = 0;\n    lRowCount1 = t->TotalRowCount();\n"
                  "    for (long i = 0; i < lRowCount1; ++i)\n    {\n"
                  "        double height = 0.0;\n        height = t->GetRowHeight(i);\n        height *= coef1;\n"
                  "        t->SetRowHeightAt(i, height);\n    }\n",
        .csharp = "    double coef1 = 1.50000000000000;\n    int iRowCount1 = t.TotalRowCount();\n"
                  "    for (int i = 0; i < iRowCount1; ++i)\n    {\n"
                  "        double height = t.GetRowHeight(i)*coef1;\n        t.SetRowHeightAt(i, height);\n    }\n",
        .javascript = "    var coef1 = 1.50000000000000;\n    var iRowCount1 = t.TotalRowCount();\n"
                      "    for (var i = 0; i < iRowCount1; ++i)\n    {\n"
                      "        var height = t.GetRowHeight(i)*coef1;\n        t.SetRowHeightAt(i, height);\n    }\n",
        .vbNet = "    Dim coef1 As Double = 1.50000000000000\n    Dim iRowCount1 As Integer = t.TotalRowCount()\n"
                 "    For i As Integer = 0 To iRowCount1 - 1\n"
                 "        Dim height As Double = t.GetRowHeight(i)*coef1\n        t.SetRowHeightAt(i, height)\n"
                 "    Next\n",
        .vba = "    Dim coef1 As Double\n    coef1 = 1.50000000000000\n"
               "    Dim iRowCount1 As Integer\n    iRowCount1 = t.TotalRowCount()\n"
               "    Dim i1 As Integer\n    For i1 = 0 To iRowCount1 - 1\n"
               "        Dim height1 As Double\n        height1 = t.GetRowHeight(i1)*coef1\n"
               "        t.SetRowHeightAt i1, height1\n    Next\n",
    };
    expectInAllTargets(rows,
                       [](TestTarget& made) { return EmitScaleTableRows(made.writer, "t", "SetRowHeight", 1.5); });

    TestTarget cpp(Target::Cpp);
    QString columns = textOf(EmitScaleTableRows(cpp.writer, "t", "SetColumnWidth", 1.5));
    for (const char* const words : {"lColumnCount1", "TotalColumnCount( ", "GetColumnWidth(i, &width)",
                                    "width *= coef1", "SetColumnWidthAt(i, width)"})
        EXPECT_TRUE(columns.contains(words)) << words;
    EXPECT_FALSE(columns.contains("Row") || columns.contains("eight"));
}

TEST(TableStatements, SetAStyleAndItsDirections)
{
    const TestTexts expected{
        .cpp = "    iwTableStyleManager_ptr iwTableStyleManager1;\n"
               "    iwDoc->GetTableStyleManager( &iwTableStyleManager1 );\n\n"
               "    iwTableStyle_ptr tableStyle1;\n"
               "    iwTableStyleManager1->GetTableStyle( L\"Parts\", &tableStyle1 );\n\n"
               "    t->put_TableStyle( tableStyle1 );\n"
               "    s->put_HeaderOrientation( iwTableHeaderOrientation_Down );\n"
               "    t->put_Direction( iwTableDirection_BottomToTop );\n",
        .cppCom = "    ITableStyleManagerPtr iwTableStyleManager1;\n"
                  "    iwTableStyleManager1 = iwDoc->GetTableStyleManager();\n\n"
                  "    ITableStylePtr tableStyle1;\n"
                  "    tableStyle1 = iwTableStyleManager1->GetTableStyle( L\"Parts\" );\n\n"
                  "    t->put_TableStyle( tableStyle1 );\n"
                  "    s->put_HeaderOrientation( iwTableHeaderOrientation_Down );\n"
                  "    t->put_Direction( iwTableDirection_BottomToTop );\n",
        .csharp = "    TableStyleManager tablestylemgr1 = iwDoc.GetTableStyleManager();\n"
                  "    t.TableStyle = tablestylemgr1.GetTableStyle(\"Parts\");\n"
                  "     s.HeaderOrientation = iwTableHeaderOrientation_e.iwTableHeaderOrientation_Down;\n"
                  "     t.Direction= iwTableDirection_e.iwTableDirection_BottomToTop;\n",
        .javascript = "    var tablestylemgr1 = mDoc.GetTableStyleManager();\n"
                      "    t.put_TableStyle(tablestylemgr1.GetTableStyle(\"Parts\"));\n"
                      "     s.put_HeaderOrientation(\"iwTableHeaderOrientation_Down\");\n"
                      "     t.put_Direction(\"iwTableDirection_BottomToTop\");\n",
        .vbNet = "    Dim tablestylemgr1 As Inkwright.TableStyleManager = iwDoc.GetTableStyleManager()\n"
                 "    t.TableStyle = tablestylemgr1.GetTableStyle(\"Parts\")\n"
                 "     s.HeaderOrientation = Inkwright.iwTableHeaderOrientation_e.iwTableHeaderOrientation_Down\n"
                 "     t.Direction= Inkwright.iwTableDirection_e.iwTableDirection_BottomToTop\n",
        .vba = "    Dim tablestylemgr1 As Inkwright.TableStyleManager\n"
               "    Set tablestylemgr1 = iwDoc.GetTableStyleManager()\n"
               "    t.TableStyle = tablestylemgr1.GetTableStyle(\"Parts\")\n"
               "     s.HeaderOrientation = Inkwright.iwTableHeaderOrientation_e.iwTableHeaderOrientation_Down\n"
               "     t.Direction= Inkwright.iwTableDirection_e.iwTableDirection_BottomToTop\n",
    };
    expectInAllTargets(expected, [](TestTarget& made) {
        return EmitSetTableStyle(made.writer, "t", "Parts", "TableStyle") +
               EmitTableStyleOrientation(made.writer, "s", "TableStyle", true) +
               EmitTableStyleOrientation(made.writer, "t", "Table", false);
    });
}

TEST(TableStatements, SetBordersOfCells)
{
    const TestTexts expected{
        .cpp = "     s->SetBordersLineWeight(iwTableCellType_Header,iwTableBordersLineType_VerticalLeft,iwLnWt_025);\n",
        .cppCom =
            "     s->SetBordersLineWeight(iwTableCellType_Header,iwTableBordersLineType_VerticalLeft,iwLnWt_025);\n"
            "     s->SetBordersColor(iwTableCellType_Data,iwTableBordersLineType_HorizontalTop,"
            "pConnection->m_IwApp->GetRGBColor( 1 ,2 ,3 ));\n",
        .csharp = "     s.SetBordersLineWeight(  iwTableCellType_e.iwTableCellType_Header,"
                  "iwTableBordersLineType_e.iwTableBordersLineType_VerticalLeft,iwLineWeight_e.iwLnWt_025);\n"
                  "     s.SetBordersColor(  iwTableCellType_e.iwTableCellType_Data,"
                  "iwTableBordersLineType_e.iwTableBordersLineType_HorizontalTop,iwApp.GetRGBColor( 1 ,2 ,3 ));\n",
        .javascript =
            "     s.SetBordersLineWeight(  \"iwTableCellType_Header\",\"iwTableBordersLineType_VerticalLeft\","
            "\"iwLnWt_025\");\n"
            "     s.SetBordersColor(  \"iwTableCellType_Data\",\"iwTableBordersLineType_HorizontalTop\","
            "mApp.GetRGBColor(1 ,2 ,3));\n",
        .vbNet = "     s.SetBordersLineWeight(  Inkwright.iwTableCellType_e.iwTableCellType_Header,"
                 "Inkwright.iwTableBordersLineType_e.iwTableBordersLineType_VerticalLeft,"
                 "Inkwright.iwLineWeight_e.iwLnWt_025)\n"
                 "     s.SetBordersColor(  Inkwright.iwTableCellType_e.iwTableCellType_Data,"
                 "Inkwright.iwTableBordersLineType_e.iwTableBordersLineType_HorizontalTop,"
                 "iwApp.GetRGBColor( 1 ,2 ,3 ))\n",
        .vba = "     s.SetBordersLineWeight Inkwright.iwTableCellType_e.iwTableCellType_Header,"
               "Inkwright.iwTableBordersLineType_e.iwTableBordersLineType_VerticalLeft,"
               "Inkwright.iwLineWeight_e.iwLnWt_025\n"
               "     s.SetBordersColor Inkwright.iwTableCellType_e.iwTableCellType_Data,"
               "Inkwright.iwTableBordersLineType_e.iwTableBordersLineType_HorizontalTop,"
               "iwApp.GetRGBColor( 1 ,2 ,3 )\n",
    };
    expectInAllTargets(expected, [](TestTarget& made) {
        return EmitTableBordersLineWeight(made.writer, "s", 2, 8, 25) +
               EmitTableBordersColor(made.writer, "s", 3, 0, OdCmColor::byRgb(1, 2, 3));
    });
    TestTarget page(Target::JavaScript);
    EXPECT_TRUE(textOf(EmitTableBordersColor(page.writer, "s", 1, 1, OdCmColor::byLayer()))
                    .endsWith("GetColorByIndex(256));\n"));
}

TEST(StyleStatements, RenameAndActivate)
{
    const TestTexts expected{
        .cpp = "    iwCreateObjectResult_e result1;\n    iwString styleName1 = L\"Shop\";\n"
               "    s->Rename( styleName1, &result1 );\n    s->Activate();\n",
        .cppCom = "    iwCreateObjectResult_e result1;\n    BSTR styleName1 = L\"Shop\";\n"
                  "    result1 = s->Rename( styleName1 );\n    s->Activate();\n    s->Rename(\"Road\");\n",
        .csharp = "    iwCreateObjectResult_e result1;\n    string styleName1 = \"Shop\";\n"
                  "    result1 = s.Rename( styleName1 );\n    s.Activate();\n    s.Rename(\"Road\");\n",
        .javascript = "    var result1;\n    var styleName1 = \"Shop\";\n"
                      "    result1 = s.Rename( styleName1 );\n    s.Activate();\n    s.Rename(\"Road\");\n",
        .vbNet = "    Dim result1 As Inkwright.iwCreateObjectResult_e\n    Dim styleName1 As String = \"Shop\"\n"
                 "    result1 = s.Rename( styleName1 )\n    s.Activate()\n    s.Rename(\"Road\")\n",
        .vba = "    Dim result1 As Inkwright.iwCreateObjectResult_e\n    Dim styleName1 As String\n"
               "    styleName1 = \"Shop\"\n    result1 = s.Rename( styleName1 )\n    s.Activate\n"
               "    s.Rename( \"Road\" ) \n",
    };
    expectInAllTargets(expected, [](TestTarget& made) {
        return EmitRenameStyle(made.writer, "s", "Shop", true) + EmitRenameRichLineStyle(made.writer, "s", "Road");
    });
}

} // namespace
