#pragma once

#include "host/db/OdCmColor.h"
#include "host/db/OdGe.h"
#include "statements/Writer.h"

#include <array>

class OdDbTable;

/// Kinds of cells by the names of the cell styles of the first three rows: 1 title, 2 header, 3 data, 0 for any other.
std::array<int, 3> tableCellTypes(const OdDbTable& table);

/// `recordedTypes` as tableCellTypes gives them.
Statement EmitInsertTable(Writer& writer, const OdGePoint3d& position, int rows, int columns, double rowHeight,
                          double columnWidth, const std::array<int, 3>& recordedTypes, const CFxString& name);

/// Multiplies the size of each row or column of the table. `operation` is "SetRowHeight" or "SetColumnWidth".
Statement EmitScaleTableRows(Writer& writer, const CFxString& table, const CFxString& operation, double coefficient);

Statement EmitSetTableStyle(Writer& writer, const CFxString& table, const CFxString& styleName,
                            const CFxString& property);

/// `object` is "TableStyle" for where the header of a style stands, "Table" for which way a table runs. `down`: from
/// the top, with the header there.
Statement EmitTableStyleOrientation(Writer& writer, const CFxString& target, const CFxString& object, bool down);
/// The numbers are the drawing's for cell types and borders. `weight` is in hundredths of a millimetre, -1 by layer, -2
/// by block.
Statement EmitTableBordersLineWeight(Writer& writer, const CFxString& style, int cellType, int border, int weight);
Statement EmitTableBordersColor(Writer& writer, const CFxString& style, int cellType, int border,
                                const OdCmColor& color);
