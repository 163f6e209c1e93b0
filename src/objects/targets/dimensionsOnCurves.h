#pragma once

#include "host/db/OdDbObject.h"
#include "statements/Writer.h"

// Dimensions that the interface puts on a curve. `text` stands in place of the measured value, its backslashes doubled.

/// The curve that a dimension measures. Where the macro has no variable of it, or the target asks for none, a curve
/// like the object is made for the insertion and erased behind it.
struct MeasuredCurve
{
    OdDbObjectPtr object; ///< never null
    QString variable;
};

// On arcs. Each raises OdError_NotThatKindOfClass when it has to make a curve like an object that is no arc.

Statement EmitInsertAngularDimensionArc(Writer& writer, const MeasuredCurve& arc, const OdGePoint3d& arcPoint,
                                        const inkmacro::EscapedText& text, const CFxString& name);
/// A partial one measures from the first point to the second.
Statement EmitInsertArcLengthDimension(Writer& writer, const MeasuredCurve& arc, const OdGePoint3d& first,
                                       const OdGePoint3d& second, bool partial, const OdGePoint3d& arcPoint,
                                       const inkmacro::EscapedText& text, const CFxString& name);

// On circles and arcs; empty on anything else.

Statement EmitInsertDiameterDimension(Writer& writer, const MeasuredCurve& curve, const OdGePoint3d& chordPoint,
                                      const inkmacro::EscapedText& text, const CFxString& name);
Statement EmitInsertRadialDimension(Writer& writer, const MeasuredCurve& curve, const OdGePoint3d& chordPoint,
                                    const inkmacro::EscapedText& text, const CFxString& name);
Statement EmitInsertJoggedDimension(Writer& writer, const MeasuredCurve& curve, const OdGePoint3d& centerOverride,
                                    const OdGePoint3d& jog, const OdGePoint3d& position,
                                    const inkmacro::EscapedText& text, const CFxString& name);
