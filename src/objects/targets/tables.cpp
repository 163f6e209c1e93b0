// Tables and what is set on tables and table styles.

#include "objects/targets/tables.h"

#include "host/db/OdDbClasses.h"
#include "statements/LineEnd.h"
#include "statements/enumerations.h"
#include "statements/wording.h"
#include "targets/colors.h"

using namespace inkmacro;

std::array<int, 3> tableCellTypes(const OdDbTable& table)
{
    std::array<int, 3> types{};
    for (std::size_t row = 0; row < types.size(); ++row) {
        const OdString style = table.cellStyle(static_cast<unsigned>(row), -1);
        int type = 0;
        for (const char* const name : {"_TITLE", "_HEADER", "_DATA"}) {
            ++type;
            if (style.compare(QLatin1String(name), Qt::CaseInsensitive) == 0)
                types[row] = type;
        }
    }
    return types;
}

static const Phrase insertTable{
    "EmitInsertTable",
    {
        .cpp = "%1iwSketchManager->InsertTable(%2%1 %3, %4, %5, %6, %7, %8, (iwTableCellType_e)%9, "
               "(iwTableCellType_e)%10, (iwTableCellType_e)%11, &%12 );%2",
        .cppCom = "%1%12 = iwSketchManager->InsertTable(%2%1 %3, %4, %5, %6, %7, %8, (iwTableCellType_e)%9, "
                  "(iwTableCellType_e)%10, (iwTableCellType_e)%11 );%2",
        .csharp = "%1%12 = iwSketchManager.InsertTable(%2%1 %3, %4, %5, %6, %7, %8, (iwTableCellType_e)%9, "
                  "(iwTableCellType_e)%10, (iwTableCellType_e)%11 );%2",
        .javascript = "%1var %13 = mSkMgr.InsertTable(%2%1 %3, %4, %5, %6, %7, %8, TableStyle_1_%10, "
                      "TableStyle_2_%10, TableStyle_3_%10);%2",
        .vbNet = "%1%12 = iwSketchManager.InsertTable( %3, %4, %5, %6, %7, %8, %9, %10, %11 )%2",
        .vba = "%1Set %12 = iwSketchManager.InsertTable( %3, %4, %5, %6, %7, %8, %9, %10, %11 )%2",
        .python = "%1%11 = drawing.sketch.InsertTable(%3, %4, %5, %6, %7, %8, %9, %10)%2",
    }};

/// A page tells cell types by their words, in variables ahead of the call.
static Statement cellTypeVariables(Writer& writer, const std::array<int, 3>& cellTypes)
{
    static const Template words("\n%1var TableStyle_1_%2 = \"%3\";\n%1var TableStyle_2_%2 = \"%4\";\n"
                                "%1var TableStyle_3_%2 = \"%5\";\n");
    Fill variables(&words);
    variables.indent(writer.IndentLevel).number(writer.UniqueCounter);
    for (const int type : cellTypes)
        variables.word(type == 0 ? QString() : EnumeratorByValue(writer.target, enums::tableCellType, type));
    return variables;
}

static const Fault kNoCellType{"EmitInsertTable", {Target::JavaScript}, "no word stands for a cell type of its own"};

/// Those of a new table where the recorded ones are none of the interface's.
static std::array<int, 3> withoutOwnTypes(std::array<int, 3> cellTypes)
{
    for (std::size_t row = 0; row < cellTypes.size(); ++row)
        if (cellTypes[row] == 0)
            cellTypes[row] = static_cast<int>(row) + 1;
    return cellTypes;
}

Statement EmitInsertTable(Writer& writer, const OdGePoint3d& position, int rows, int columns, double rowHeight,
                          double columnWidth, const std::array<int, 3>& recordedTypes, const CFxString& name)
{
    const std::array<int, 3> known = withoutOwnTypes(recordedTypes);
    const std::array<int, 3>& cellTypes = writer.repairs ? known : recordedTypes;
    Fill call = writer.fill(insertTable);
    call.planePoint(position).number(rows, Meaning::Count).number(columns, Meaning::Count);
    call.real(rowHeight, Meaning::Length).real(columnWidth, Meaning::Length);
    if (writer.target == Target::JavaScript) {
        call.number(++writer.UniqueCounter);
        Statement text = cellTypeVariables(writer, cellTypes) + call.word(name).str();
        return known == cellTypes ? text : writer.faulty(std::move(text), kNoCellType);
    }
    for (const int type : cellTypes)
        call.number(type);
    return call.word(name);
}

// Of the pieces of a scaling the last values are "Row" or "Column", "Height" or "Width", "height" or "width", behind
// those of the usual statements.

static const Phrase scaleCoefficient{"EmitScaleTableRows: coefficient",
                                     {
                                         .cpp = "%1double coef%4 = %2;%3",
                                         .cppCom = "%1double coef%4 = %2;%3",
                                         .csharp = "%1double coef%4 = %2;%3",
                                         .javascript = "%1var coef%4 = %2;%3",
                                         .vbNet = "%1Dim coef%4 As Double = %2%3",
                                         .vba = "%1Dim coef%4 As Double%3%1coef%4 = %2%3",
                                     }};

static const Phrase countLines{"EmitScaleTableRows: count",
                               {
                                   .cpp = "%1long l%5Count%4 = 0;%3%1%2->Total%5Count( &l%5Count%4 );%3",
                                   .cppCom = "%1long l%5Count%4 = 0;%3%1l%5Count%4 = %2->Total%5Count();%3",
                                   .csharp = "%1int i%5Count%4 = %2.Total%5Count();%3",
                                   .javascript = "%1var i%5Count%4 = %2.Total%5Count();%3",
                                   .vbNet = "%1Dim i%5Count%4 As Integer = %2.Total%5Count()%3",
                                   .vba = "%1Dim i%5Count%4 As Integer%3%1i%5Count%4 = %2.Total%5Count()%3",
                               }};

/// VBA knows no variables of a loop: those of two statements would be one and the same.
static const Phrase eachLine{"EmitScaleTableRows: loop",
                             {
                                 .cpp = "%1for (long i = 0; i < l%4Count%3; ++i)%2%1{%2",
                                 .cppCom = "%1for (long i = 0; i < l%4Count%3; ++i)%2%1{%2",
                                 .csharp = "%1for (int i = 0; i < i%4Count%3; ++i)%2%1{%2",
                                 .javascript = "%1for (var i = 0; i < i%4Count%3; ++i)%2%1{%2",
                                 .vbNet = "%1For i As Integer = 0 To i%4Count%3 - 1%2",
                                 .vba = "%1Dim i%3 As Integer%2%1For i%3 = 0 To i%4Count%3 - 1%2",
                             }};

static const Phrase scaledSize{"EmitScaleTableRows: size",
                               {
                                   .cpp = "%1double %7 = 0.0;%3%1%2->Get%5%6(i, &%7);%3%1%7 *= coef%4;%3",
                                   .cppCom = "%1double %7 = 0.0;%3%1%7 = %2->Get%5%6(i);%3%1%7 *= coef%4;%3",
                                   .csharp = "%1double %7 = %2.Get%5%6(i)*coef%4;%3",
                                   .javascript = "%1var %7 = %2.Get%5%6(i)*coef%4;%3",
                                   .vbNet = "%1Dim %7 As Double = %2.Get%5%6(i)*coef%4%3",
                                   .vba = "%1Dim %7 As Double%3%1%7 = %2.Get%5%6(i%4)*coef%4%3",
                               }};

/// Ends the loop too: its indentation is a value.
static const Phrase setScaledSize{"EmitScaleTableRows: set",
                                  {
                                      .cpp = "%1%2->Set%6%7At(i, %8);%3%4}%3",
                                      .cppCom = "%1%2->Set%6%7At(i, %8);%3%4}%3",
                                      .csharp = "%1%2.Set%6%7At(i, %8);%3%4}%3",
                                      .javascript = "%1%2.Set%6%7At(i, %8);%3%4}%3",
                                      .vbNet = "%1%2.Set%6%7At(i, %8)%3%4Next%3",
                                      .vba = "%1%2.Set%6%7At i%5, %8%3%4Next%3",
                                  }};

/// In one loop where an expression needs no locals.
static const Phrase scaleLines{
    "EmitScaleTableRows",
    {
        .python = "%1for %6 in range(%3.Total%4Count()):%2%1    %3.Set%4%5At(%6, %3.Get%4%5(%6) * %7)%2",
    }};

Statement EmitScaleTableRows(Writer& writer, const CFxString& table, const CFxString& operation, double coefficient)
{
    const bool rows = operation == CFxString("SetRowHeight");
    const QLatin1String line(rows ? "Row" : "Column");
    const QLatin1String measure(rows ? "Height" : "Width");
    if (scaleLines.has(writer.target))
        return writer.fill(scaleLines)
            .word(table)
            .word(line)
            .word(measure)
            .word(QLatin1String(rows ? "row" : "column"))
            .real(coefficient, Meaning::Factor);
    const std::uint32_t number = ++writer.UniqueCounter;
    QString local(rows ? "height" : "width");
    if (writer.target == Target::Vba)
        local += QString::number(number);
    const QString loopIndentation = writer.indentation();

    Statement text = writer.fillIndented(scaleCoefficient).real(coefficient).word(LineEnd).number(number);
    text += writer.fillIndented(countLines).word(table).word(LineEnd).number(number).word(line).str();
    text += writer.fill(eachLine).number(number).word(line).str();
    ++writer.IndentLevel;
    text += writer.fillIndented(scaledSize)
                .word(table)
                .word(LineEnd)
                .number(number)
                .word(line)
                .word(measure)
                .word(local)
                .str();
    Fill set = writer.fillIndented(setScaledSize);
    --writer.IndentLevel;
    set.word(table).word(LineEnd).word(loopIndentation);
    if (writer.target == Target::Vba)
        set.number(number);
    return text + set.word(line).word(measure).word(local).str();
}

static const Phrase tableStyleManager{
    "EmitSetTableStyle: manager",
    {
        .cpp = "%1iwTableStyleManager_ptr iwTableStyleManager%3;%2"
               "%1iwDoc->GetTableStyleManager( &iwTableStyleManager%3 );%2%2",
        .cppCom = "%1ITableStyleManagerPtr iwTableStyleManager%3;%2"
                  "%1iwTableStyleManager%3 = iwDoc->GetTableStyleManager();%2%2",
        .csharp = "%1TableStyleManager tablestylemgr%3 = iwDoc.GetTableStyleManager();%2",
        .javascript = "%1var tablestylemgr%3 = mDoc.GetTableStyleManager();%2",
        .vbNet = "%1Dim tablestylemgr%3 As Inkwright.TableStyleManager = iwDoc.GetTableStyleManager()%2",
        .vba = "%1Dim tablestylemgr%3 As Inkwright.TableStyleManager%2"
               "%1Set tablestylemgr%3 = iwDoc.GetTableStyleManager()%2",
        .python = "%1styles = drawing.doc.GetTableStyleManager()%2",
    }};

/// The others look the style up where they set it.
static const Phrase tableStyleVariable{
    "EmitSetTableStyle: style",
    {
        .cpp = "%1iwTableStyle_ptr tableStyle%4;%2%1iwTableStyleManager%4->GetTableStyle( L\"%3\", &tableStyle%4 );"
               "%2%2",
        .cppCom = "%1ITableStylePtr tableStyle%4;%2"
                  "%1tableStyle%4 = iwTableStyleManager%4->GetTableStyle( L\"%3\" );%2%2",
    }};

static const Phrase setTableStyle{"EmitSetTableStyle: set",
                                  {
                                      .cpp = "%1%3->put_%4( tableStyle%5 );%2",
                                      .cppCom = "%1%3->put_%4( tableStyle%5 );%2",
                                      .csharp = "%1%5.TableStyle = tablestylemgr%4.GetTableStyle(\"%2\");%3",
                                      .javascript = "%1%5.put_TableStyle(tablestylemgr%4.GetTableStyle(\"%2\"));%3",
                                      .vbNet = "%1%5.TableStyle = tablestylemgr%4.GetTableStyle(\"%2\")%3",
                                      .vba = "%1%5.TableStyle = tablestylemgr%4.GetTableStyle(\"%2\")%3",
                                      .python = "%1%5.TableStyle = styles.GetTableStyle(%2)%3",
                                  }};

Statement EmitSetTableStyle(Writer& writer, const CFxString& table, const CFxString& styleName,
                            const CFxString& property)
{
    const std::uint32_t number = ++writer.UniqueCounter;
    Statement text = writer.fill(tableStyleManager).number(number);
    if (!tableStyleVariable.has(writer.target))
        return text + writer.fillIndented(setTableStyle).text(styleName).word(LineEnd).number(number).word(table).str();
    text += writer.fill(tableStyleVariable).text(styleName).number(number).str();
    return text + writer.fill(setTableStyle).word(table).word(property).number(number).str();
}

static const Phrase setHeaderOrientation{"EmitTableStyleOrientation",
                                         {
                                             .cpp = "%1%3->put_HeaderOrientation( %4 );%2",
                                             .cppCom = "%1%3->put_HeaderOrientation( %4 );%2",
                                             .csharp = "%1 %2.HeaderOrientation = %3;%4",
                                             .javascript = "%1 %2.put_HeaderOrientation(\"%3\");%4",
                                             .vbNet = "%1 %2.HeaderOrientation = %3%4",
                                             .vba = "%1 %2.HeaderOrientation = %3%4",
                                             .python = "%1%2.HeaderOrientation = %3%4",
                                         }};

static const Phrase setDirection{"EmitTableStyleOrientation",
                                 {
                                     .cpp = "%1%3->put_Direction( %4 );%2",
                                     .cppCom = "%1%3->put_Direction( %4 );%2",
                                     .csharp = "%1 %2.Direction= %3;%4",
                                     .javascript = "%1 %2.put_Direction(\"%3\");%4",
                                     .vbNet = "%1 %2.Direction= %3%4",
                                     .vba = "%1 %2.Direction= %3%4",
                                     .python = "%1%2.Direction = %3%4",
                                 }};

Statement EmitTableStyleOrientation(Writer& writer, const CFxString& target, const CFxString& object, bool down)
{
    const bool header = object == CFxString("TableStyle");
    const Phrase& phrase = header ? setHeaderOrientation : setDirection;
    const char* const type = header ? "iwTableHeaderOrientation" : "iwTableDirection";
    const char* const suffix = header ? (down ? "_Down" : "_Up") : (down ? "_TopToBottom" : "_BottomToTop");
    const QString enumerator = enumeratorText(writer.target, QString(type) + "_e", QString(type) + suffix);
    if (writer.target == Target::Cpp || writer.target == Target::CppCom)
        return writer.fill(phrase).word(target).word(enumerator);
    return writer.fillIndented(phrase).word(target).word(enumerator).word(LineEnd);
}

static const Phrase setBordersLineWeight{"EmitTableBordersLineWeight",
                                         {
                                             .cpp = "%1 %2->SetBordersLineWeight(%3,%4,%5);%6",
                                             .cppCom = "%1 %2->SetBordersLineWeight(%3,%4,%5);%6",
                                             .csharp = "%1 %2.SetBordersLineWeight(  %3,%4,%5);%6",
                                             .javascript = "%1 %2.SetBordersLineWeight(  \"%3\",\"%4\",\"%5\");%6",
                                             .vbNet = "%1 %2.SetBordersLineWeight(  %3,%4,%5)%6",
                                             .vba = "%1 %2.SetBordersLineWeight %3,%4,%5%6",
                                             .python = "%1%2.SetBordersLineWeight(%3, %4, %5)%6",
                                         }};

static const Phrase setBordersColor{"EmitTableBordersColor",
                                    {
                                        .cppCom = "%1 %2->SetBordersColor(%3,%4,%5);%6",
                                        .csharp = "%1 %2.SetBordersColor(  %3,%4,%5);%6",
                                        .javascript = "%1 %2.SetBordersColor(  \"%3\",\"%4\",%5);%6",
                                        .vbNet = "%1 %2.SetBordersColor(  %3,%4,%5)%6",
                                        .vba = "%1 %2.SetBordersColor %3,%4,%5%6",
                                        .python = "%1%2.SetBordersColor(%3, %4, %5)%6",
                                    }};

static Statement setBorders(Writer& writer, const Phrase& phrase, const CFxString& style, int cellType, int border,
                            const QString& value)
{
    return writer.fillIndented(phrase)
        .word(style)
        .word(EnumeratorByValue(writer.target, enums::tableCellType, cellType))
        .word(EnumeratorByValue(writer.target, enums::tableBordersLineType, border))
        .word(value)
        .word(LineEnd);
}

Statement EmitTableBordersLineWeight(Writer& writer, const CFxString& style, int cellType, int border, int weight)
{
    return setBorders(writer, setBordersLineWeight, style, cellType, border,
                      LineWeightEnumerator(writer.target, weight));
}

Statement EmitTableBordersColor(Writer& writer, const CFxString& style, int cellType, int border,
                                const OdCmColor& color)
{
    return setBorders(writer, setBordersColor, style, cellType, border, colorExpression(writer.target, color));
}
