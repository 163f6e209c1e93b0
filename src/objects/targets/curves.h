#pragma once

#include "host/db/OdGe.h"
#include "statements/Writer.h"

Statement EmitInsertLine(Writer& writer, const OdGePoint3d& start, const OdGePoint3d& end, const CFxString& name);
Statement EmitInsertCircle(Writer& writer, const OdGePoint3d& center, double radius, const CFxString& name);
Statement EmitInsertPoint(Writer& writer, const OdGePoint3d& position, const CFxString& name);
Statement EmitInsertRay(Writer& writer, const OdGePoint3d& base, const OdGePoint3d& second, const CFxString& name);
Statement EmitInsertArc(Writer& writer, const OdGePoint3d& center, double radius, double startAngle, double endAngle,
                        const CFxString& name);
Statement EmitInsertInfiniteLine(Writer& writer, const OdGePoint3d& base, const OdGePoint3d& second,
                                 const CFxString& name);
/// The Z of both axis ends is dropped: the host's calls take none.
Statement EmitInsertEllipseArc(Writer& writer, const OdGePoint3d& axisStart, const OdGePoint3d& axisEnd,
                               double otherAxisDistance, double startAngle, double endAngle, const CFxString& name);
Statement EmitInsertEllipse(Writer& writer, const OdGePoint3d& axisStart, const OdGePoint3d& axisEnd,
                            double otherAxisDistance, const CFxString& name);
