#pragma once

#include "host/db/OdGe.h"
#include "statements/Writer.h"

QString EmitInsertLine(Writer& writer, const OdGePoint3d& start, const OdGePoint3d& end, const CFxString& name);
QString EmitInsertCircle(Writer& writer, const OdGePoint3d& center, double radius, const CFxString& name);
QString EmitInsertPoint(Writer& writer, const OdGePoint3d& position, const CFxString& name);
QString EmitInsertRay(Writer& writer, const OdGePoint3d& base, const OdGePoint3d& second, const CFxString& name);
QString EmitInsertArc(Writer& writer, const OdGePoint3d& center, double radius, double startAngle, double endAngle,
                      const CFxString& name);
QString EmitInsertInfiniteLine(Writer& writer, const OdGePoint3d& base, const OdGePoint3d& second,
                               const CFxString& name);
/// The Z of both axis ends is dropped: the host's calls take none.
QString EmitInsertEllipseArc(Writer& writer, const OdGePoint3d& axisStart, const OdGePoint3d& axisEnd,
                             double otherAxisDistance, double startAngle, double endAngle, const CFxString& name);
QString EmitInsertEllipse(Writer& writer, const OdGePoint3d& axisStart, const OdGePoint3d& axisEnd,
                          double otherAxisDistance, const CFxString& name);
