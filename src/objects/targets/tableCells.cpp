// Cells, rows and columns of tables.

#include "objects/targets/tableCells.h"

using namespace inkmacro;

static const Phrase setCellText{"EmitSetCellText",
                                {
                                    .cpp = "%1%6->SetText( %3, %4, L\"%5\" );%2",
                                    .cppCom = "%1%6->SetText( %3, %4, L\"%5\" );%2",
                                    .csharp = "%1%6.SetText( %3, %4, \"%5\" );%2",
                                    .javascript = "%1%6.SetText( %3, %4, \"%5\" );%2",
                                    .vbNet = "%1%6.SetText( %3, %4, \"%5\" )%2",
                                    .vba = "%1%6.SetText %3, %4, \"%5\"%2",
                                }};

Statement EmitSetCellText(Writer& writer, const CFxString& table, std::int32_t row, std::int32_t column,
                          const CFxString& text)
{
    return writer.fill(setCellText).number(row).number(column).text(text).text(table);
}

// Rows and columns: the calls end with one word or the other. The local of C++ has no number, so that two of these in
// one scope declare it twice. It has to stay so.

static const Phrase insertLine{"EmitInsertRow",
                               {
                                   .cpp = "%1bool bRetVal;%2%1%3->Insert%4( %5, %6, &bRetVal );%2",
                                   .cppCom = "%1%3->Insert%4( %5, %6 );%2",
                                   .csharp = "%1%3.Insert%4( %5, %6 );%2",
                                   .javascript = "%1%3.Insert%4( %5, %6 );%2",
                                   .vbNet = "%1%3.Insert%4( %5, %6 )%2",
                                   .vba = "%1%3.Insert%4 %5, %6%2",
                               }};

static const Phrase deleteLine{"EmitDeleteRow",
                               {
                                   .cpp = "%1bool bRetVal;%2%1%3->Delete%4( %5, &bRetVal );%2",
                                   .cppCom = "%1%3->Delete%4( %5 );%2",
                                   .csharp = "%1%3.Delete%4( %5 );%2",
                                   .javascript = "%1%3.Delete%4( %5 );%2",
                                   .vbNet = "%1%3.Delete%4( %5 )%2",
                                   .vba = "%1%3.Delete%4 %5%2",
                               }};

static const Phrase setLineSize{"EmitSetRowHeightAt",
                                {
                                    .cpp = "%1%3->Set%4At( %5, %6 );%2",
                                    .cppCom = "%1%3->Set%4At( %5, %6 );%2",
                                    .csharp = "%1%3.Set%4At( %5, %6 );%2",
                                    .javascript = "%1%3.Set%4At( %5, %6 );%2",
                                    .vbNet = "%1%3.Set%4At( %5, %6 )%2",
                                    .vba = "%1%3.Set%4At %5, %6%2",
                                }};

static Fill callOf(Writer& writer, const Phrase& phrase, const CFxString& table, const char* word, std::int32_t index)
{
    Fill call = writer.fill(phrase);
    call.text(table).text(QLatin1String(word)).number(index);
    return call;
}

Statement EmitInsertRow(Writer& writer, const CFxString& table, std::int32_t row, double height)
{
    return callOf(writer, insertLine, table, "Row", row).real(height);
}

Statement EmitDeleteRow(Writer& writer, const CFxString& table, std::int32_t row)
{
    return callOf(writer, deleteLine, table, "Row", row);
}

Statement EmitSetRowHeightAt(Writer& writer, const CFxString& table, std::int32_t row, double height)
{
    return callOf(writer, setLineSize, table, "RowHeight", row).real(height);
}

Statement EmitInsertColumn(Writer& writer, const CFxString& table, std::int32_t column, double width)
{
    return callOf(writer, insertLine, table, "Column", column).real(width);
}

Statement EmitDeleteColumn(Writer& writer, const CFxString& table, std::int32_t column)
{
    return callOf(writer, deleteLine, table, "Column", column);
}

Statement EmitSetColumnWidthAt(Writer& writer, const CFxString& table, std::int32_t column, double width)
{
    return callOf(writer, setLineSize, table, "ColumnWidth", column).real(width);
}
