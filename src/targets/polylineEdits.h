#pragma once

#include "host/db/OdGe.h"
#include "statements/Writer.h"

// Edits of a polyline that has a variable. Vertices and segments are told by their index. Those that `spatial` is given
// to differ for polylines of space and of a plane.

QString EmitPolylineFit(Writer& writer, const CFxString& polyline);
QString EmitPolylineDecurve(Writer& writer, const CFxString& polyline);
QString EmitPolylineSpline(Writer& writer, const CFxString& polyline);
QString EmitJoinPolyline(Writer& writer, const CFxString& polyline, const CFxString& other);
QString EmitJoinLine(Writer& writer, const CFxString& polyline, const CFxString& line);
QString EmitJoinCircleArc(Writer& writer, const CFxString& polyline, const CFxString& arc);
QString EmitPolylineSplit(Writer& writer, const CFxString& polyline, int vertex, bool spatial);
QString EmitAddVertexAfter(Writer& writer, const CFxString& polyline, int vertex, const OdGePoint3d& point,
                           bool spatial);
QString EmitSetVertexCoordinate(Writer& writer, const CFxString& polyline, int vertex, const OdGePoint3d& point,
                                bool spatial);
QString EmitPolylineStraighten(Writer& writer, const CFxString& polyline, int first, int last);
QString EmitPolylineWidth(Writer& writer, const CFxString& polyline, int segment, double start, double end);
QString EmitDeleteVertex(Writer& writer, const CFxString& polyline, int vertex);
