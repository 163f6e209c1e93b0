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
                                    .python = "%1%6.SetText(%3, %4, %5)%2",
                                }};

Statement EmitSetCellText(Writer& writer, const CFxString& table, std::int32_t row, std::int32_t column,
                          const EscapedText& text)
{
    return writer.fill(setCellText).number(row).number(column).text(text, Meaning::Text).word(table);
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
                                   .python = "%1%3.Insert%4(%5, %6)%2",
                               }};

static const Phrase deleteLine{"EmitDeleteRow",
                               {
                                   .cpp = "%1bool bRetVal;%2%1%3->Delete%4( %5, &bRetVal );%2",
                                   .cppCom = "%1%3->Delete%4( %5 );%2",
                                   .csharp = "%1%3.Delete%4( %5 );%2",
                                   .javascript = "%1%3.Delete%4( %5 );%2",
                                   .vbNet = "%1%3.Delete%4( %5 )%2",
                                   .vba = "%1%3.Delete%4 %5%2",
                                   .python = "%1%3.Delete%4(%5)%2",
                               }};

/// For repaired macros: several that went, from behind.
static const Phrase deleteLines{
    "EmitDeleteRows",
    {
        .cpp = "%1for (long i = %5; i >= %6; --i)%2%1{%2%1    bool bRetVal;%2%1    %3->Delete%4( i, &bRetVal );%2%1}%2",
        .cppCom = "%1for (long i = %5; i >= %6; --i)%2%1{%2%1    %3->Delete%4( i );%2%1}%2",
        .csharp = "%1for (int i = %5; i >= %6; --i)%2%1{%2%1    %3.Delete%4( i );%2%1}%2",
        .javascript = "%1for (var i = %5; i >= %6; --i)%2%1{%2%1    %3.Delete%4( i );%2%1}%2",
        .vbNet = "%1For i As Integer = %5 To %6 Step -1%2%1    %3.Delete%4( i )%2%1Next%2",
        .vba = "%1Dim i%7 As Long%2%1For i%7 = %5 To %6 Step -1%2%1    %3.Delete%4 i%7%2%1Next%2",
        .python = "%1for index in reversed(range(%6, %5 + 1)):%2%1    %3.Delete%4(index)%2",
    }};

static const Phrase setLineSize{"EmitSetRowHeightAt",
                                {
                                    .cpp = "%1%3->Set%4At( %5, %6 );%2",
                                    .cppCom = "%1%3->Set%4At( %5, %6 );%2",
                                    .csharp = "%1%3.Set%4At( %5, %6 );%2",
                                    .javascript = "%1%3.Set%4At( %5, %6 );%2",
                                    .vbNet = "%1%3.Set%4At( %5, %6 )%2",
                                    .vba = "%1%3.Set%4At %5, %6%2",
                                    .python = "%1%3.Set%4At(%5, %6)%2",
                                }};

static Fill callOf(Writer& writer, const Phrase& phrase, const CFxString& table, const char* word, std::int32_t index)
{
    Fill call = writer.fill(phrase);
    call.word(table).word(QLatin1String(word)).number(index);
    return call;
}

Statement EmitInsertRow(Writer& writer, const CFxString& table, std::int32_t row, double height)
{
    return callOf(writer, insertLine, table, "Row", row).real(height, Meaning::Length);
}

Statement EmitDeleteRow(Writer& writer, const CFxString& table, std::int32_t row)
{
    return callOf(writer, deleteLine, table, "Row", row);
}

static Statement deletion(Writer& writer, const CFxString& table, const char* word, std::int32_t last,
                          std::int32_t first)
{
    Fill loop = callOf(writer, deleteLines, table, word, last);
    loop.number(first);
    if (writer.target == Target::Vba)
        loop.number(++writer.UniqueCounter);
    return loop;
}

Statement EmitDeleteRows(Writer& writer, const CFxString& table, std::int32_t last, std::int32_t first)
{
    return deletion(writer, table, "Row", last, first);
}

Statement EmitSetRowHeightAt(Writer& writer, const CFxString& table, std::int32_t row, double height)
{
    return callOf(writer, setLineSize, table, "RowHeight", row).real(height, Meaning::Length);
}

Statement EmitInsertColumn(Writer& writer, const CFxString& table, std::int32_t column, double width)
{
    return callOf(writer, insertLine, table, "Column", column).real(width, Meaning::Length);
}

Statement EmitDeleteColumn(Writer& writer, const CFxString& table, std::int32_t column)
{
    return callOf(writer, deleteLine, table, "Column", column);
}

Statement EmitDeleteColumns(Writer& writer, const CFxString& table, std::int32_t last, std::int32_t first)
{
    return deletion(writer, table, "Column", last, first);
}

Statement EmitSetColumnWidthAt(Writer& writer, const CFxString& table, std::int32_t column, double width)
{
    return callOf(writer, setLineSize, table, "ColumnWidth", column).real(width, Meaning::Length);
}
