#pragma once

#include "host/db/OdGe.h"
#include "statements/Writer.h"

// Dimensions between points and between lines. `text` stands in place of the measured value, its backslashes doubled.

Statement EmitInsertAlignedDimension(Writer& writer, const OdGePoint3d& first, const OdGePoint3d& second,
                                     const OdGePoint3d& dimensionLine, const inkmacro::EscapedText& text,
                                     const CFxString& name);
Statement EmitInsertAngularDimension3Point(Writer& writer, const OdGePoint3d& center, const OdGePoint3d& first,
                                           const OdGePoint3d& second, const OdGePoint3d& arcPoint,
                                           const inkmacro::EscapedText& text, const CFxString& name);
/// Shows the X coordinate of the point, or else Y.
Statement EmitInsertOrdinateDimension(Writer& writer, const OdGePoint3d& point, const OdGePoint3d& leaderEnd,
                                      bool usesXAxis, const inkmacro::EscapedText& text, const CFxString& name);
/// `rotation` of the dimension line is in radians.
Statement EmitInsertRotatedDimension(Writer& writer, const OdGePoint3d& first, const OdGePoint3d& second,
                                     const OdGePoint3d& dimensionLine, double rotation,
                                     const inkmacro::EscapedText& text, const CFxString& name);

/// A line that an angle is measured from: a variable of the macro, or else a line that is drawn for the insertion
/// alone and erased behind it.
struct DimensionLine
{
    QString variable;
    OdGePoint3d start;
    OdGePoint3d end;
};

/// Whether the target measures from lines of the drawing. The others draw both lines anew and leave them there.
bool MeasuresFromVariables(const Writer& writer);
Statement EmitInsertAngularDimension2Line(Writer& writer, const DimensionLine& first, const DimensionLine& second,
                                          const OdGePoint3d& arcPoint, const inkmacro::EscapedText& text,
                                          const CFxString& name);
