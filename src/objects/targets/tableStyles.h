#pragma once

#include "host/db/OdCmColor.h"
#include "statements/Writer.h"

// What the cells of one type look like. `cellType` is the drawing's number. C++ has none of these statements, and a
// page has no text styles.

/// `shownText` is the alignment as the property sheet shows it.
Statement EmitSetTableStyleAlignment(Writer& writer, const CFxString& style, std::int32_t cellType,
                                     const CFxString& shownText);
Statement EmitSetTableStyleTextStyle(Writer& writer, const CFxString& style, std::int32_t cellType,
                                     const CFxString& name);
/// `operation` is "SetBackgroundColor" or "SetTextColor".
Statement EmitSetTableStyleColor(Writer& writer, const CFxString& style, const CFxString& operation,
                                 std::int32_t cellType, const OdCmColor& color);
/// `operation` is "SetTextHeight", "SetHorizontalMargin" or "SetVerticalMargin".
Statement EmitSetTableStyleLength(Writer& writer, const CFxString& style, const CFxString& operation,
                                  std::int32_t cellType, double length);
