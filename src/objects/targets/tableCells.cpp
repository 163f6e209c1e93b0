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

static Statement callWithSize(Writer& writer, const Phrase& phrase, const CFxString& table, std::int32_t index,
                            double size)
{
    return writer.fill(phrase).number(index).real(size).text(table);
}

// The local of C++ has no number, so that two of these in one scope declare it twice. It has to stay so.

static const Phrase insertRow{"EmitInsertRow",
                              {
                                  .cpp = "%1bool bRetVal;%2%1%5->InsertRow( %3, %4, &bRetVal );%2",
                                  .cppCom = "%1%5->InsertRow( %3, %4 );%2",
                                  .csharp = "%1%5.InsertRow( %3, %4 );%2",
                                  .javascript = "%1%5.InsertRow( %3, %4 );%2",
                                  .vbNet = "%1%5.InsertRow( %3, %4 )%2",
                                  .vba = "%1%5.InsertRow %3, %4%2",
                              }};

Statement EmitInsertRow(Writer& writer, const CFxString& table, std::int32_t row, double height)
{
    return callWithSize(writer, insertRow, table, row, height);
}

static const Phrase deleteRow{"EmitDeleteRow",
                              {
                                  .cpp = "%1bool bRetVal;%2%1%4->DeleteRow( %3, &bRetVal );%2",
                                  .cppCom = "%1%4->DeleteRow( %3 );%2",
                                  .csharp = "%1%4.DeleteRow( %3 );%2",
                                  .javascript = "%1%4.DeleteRow( %3 );%2",
                                  .vbNet = "%1%4.DeleteRow( %3 )%2",
                                  .vba = "%1%4.DeleteRow %3%2",
                              }};

Statement EmitDeleteRow(Writer& writer, const CFxString& table, std::int32_t row)
{
    return writer.fill(deleteRow).number(row).text(table);
}

static const Phrase setRowHeightAt{"EmitSetRowHeightAt",
                                   {
                                       .cpp = "%1%5->SetRowHeightAt( %3, %4 );%2",
                                       .cppCom = "%1%5->SetRowHeightAt( %3, %4 );%2",
                                       .csharp = "%1%5.SetRowHeightAt( %3, %4 );%2",
                                       .javascript = "%1%5.SetRowHeightAt( %3, %4 );%2",
                                       .vbNet = "%1%5.SetRowHeightAt( %3, %4 )%2",
                                       .vba = "%1%5.SetRowHeightAt %3, %4%2",
                                   }};

Statement EmitSetRowHeightAt(Writer& writer, const CFxString& table, std::int32_t row, double height)
{
    return callWithSize(writer, setRowHeightAt, table, row, height);
}

static const Phrase insertColumn{"EmitInsertColumn",
                                 {
                                     .cpp = "%1bool bRetVal;%2%1%5->InsertColumn( %3, %4, &bRetVal );%2",
                                     .cppCom = "%1%5->InsertColumn( %3, %4 );%2",
                                     .csharp = "%1%5.InsertColumn( %3, %4 );%2",
                                     .javascript = "%1%5.InsertColumn( %3, %4 );%2",
                                     .vbNet = "%1%5.InsertColumn( %3, %4 )%2",
                                     .vba = "%1%5.InsertColumn %3, %4%2",
                                 }};

Statement EmitInsertColumn(Writer& writer, const CFxString& table, std::int32_t column, double width)
{
    return callWithSize(writer, insertColumn, table, column, width);
}

static const Phrase deleteColumn{"EmitDeleteColumn",
                                 {
                                     .cpp = "%1bool bRetVal;%2%1%4->DeleteColumn( %3, &bRetVal );%2",
                                     .cppCom = "%1%4->DeleteColumn( %3 );%2",
                                     .csharp = "%1%4.DeleteColumn( %3 );%2",
                                     .javascript = "%1%4.DeleteColumn( %3 );%2",
                                     .vbNet = "%1%4.DeleteColumn( %3 )%2",
                                     .vba = "%1%4.DeleteColumn %3%2",
                                 }};

Statement EmitDeleteColumn(Writer& writer, const CFxString& table, std::int32_t column)
{
    return writer.fill(deleteColumn).number(column).text(table);
}

static const Phrase setColumnWidthAt{"EmitSetColumnWidthAt",
                                     {
                                         .cpp = "%1%5->SetColumnWidthAt( %3, %4 );%2",
                                         .cppCom = "%1%5->SetColumnWidthAt( %3, %4 );%2",
                                         .csharp = "%1%5.SetColumnWidthAt( %3, %4 );%2",
                                         .javascript = "%1%5.SetColumnWidthAt( %3, %4 );%2",
                                         .vbNet = "%1%5.SetColumnWidthAt( %3, %4 )%2",
                                         .vba = "%1%5.SetColumnWidthAt %3, %4%2",
                                     }};

Statement EmitSetColumnWidthAt(Writer& writer, const CFxString& table, std::int32_t column, double width)
{
    return callWithSize(writer, setColumnWidthAt, table, column, width);
}
