#pragma once

#include "host/db/OdGe.h"
#include "statements/Writer.h"

// Edits of a polyline that has a variable. Vertices and segments are told by their index. Those that `spatial` is given
// to differ for polylines of space and of a plane.

Statement EmitPolylineFit(Writer& writer, const CFxString& polyline);
Statement EmitPolylineDecurve(Writer& writer, const CFxString& polyline);
Statement EmitPolylineSpline(Writer& writer, const CFxString& polyline);
Statement EmitJoinPolyline(Writer& writer, const CFxString& polyline, const CFxString& other);
Statement EmitJoinLine(Writer& writer, const CFxString& polyline, const CFxString& line);
Statement EmitJoinCircleArc(Writer& writer, const CFxString& polyline, const CFxString& arc);
Statement EmitPolylineSplit(Writer& writer, const CFxString& polyline, int vertex, bool spatial);
Statement EmitAddVertexAfter(Writer& writer, const CFxString& polyline, int vertex, const OdGePoint3d& point,
                             bool spatial);
Statement EmitSetVertexCoordinate(Writer& writer, const CFxString& polyline, int vertex, const OdGePoint3d& point,
                                  bool spatial);
Statement EmitPolylineStraighten(Writer& writer, const CFxString& polyline, int first, int last);
Statement EmitPolylineWidth(Writer& writer, const CFxString& polyline, int segment, double start, double end);
Statement EmitDeleteVertex(Writer& writer, const CFxString& polyline, int vertex);
