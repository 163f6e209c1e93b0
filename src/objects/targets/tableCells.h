#pragma once

#include "statements/Writer.h"

// Rows and columns are counted from 0, heights and widths are drawing units.

Statement EmitSetCellText(Writer& writer, const CFxString& table, std::int32_t row, std::int32_t column,
                          const inkmacro::EscapedText& text);
Statement EmitInsertRow(Writer& writer, const CFxString& table, std::int32_t row, double height);
Statement EmitDeleteRow(Writer& writer, const CFxString& table, std::int32_t row);
/// From the last one that goes to the first.
Statement EmitDeleteRows(Writer& writer, const CFxString& table, std::int32_t last, std::int32_t first);
Statement EmitSetRowHeightAt(Writer& writer, const CFxString& table, std::int32_t row, double height);
Statement EmitInsertColumn(Writer& writer, const CFxString& table, std::int32_t column, double width);
Statement EmitDeleteColumn(Writer& writer, const CFxString& table, std::int32_t column);
Statement EmitDeleteColumns(Writer& writer, const CFxString& table, std::int32_t last, std::int32_t first);
Statement EmitSetColumnWidthAt(Writer& writer, const CFxString& table, std::int32_t column, double width);
