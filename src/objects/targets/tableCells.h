#pragma once

#include "statements/Writer.h"

// Rows and columns are counted from 0, heights and widths are drawing units.

QString EmitSetCellText(Writer& writer, const CFxString& table, std::int32_t row, std::int32_t column,
                        const CFxString& text);
QString EmitInsertRow(Writer& writer, const CFxString& table, std::int32_t row, double height);
QString EmitDeleteRow(Writer& writer, const CFxString& table, std::int32_t row);
QString EmitSetRowHeightAt(Writer& writer, const CFxString& table, std::int32_t row, double height);
QString EmitInsertColumn(Writer& writer, const CFxString& table, std::int32_t column, double width);
QString EmitDeleteColumn(Writer& writer, const CFxString& table, std::int32_t column);
QString EmitSetColumnWidthAt(Writer& writer, const CFxString& table, std::int32_t column, double width);
