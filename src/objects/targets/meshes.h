#pragma once

#include "host/db/OdGe.h"
#include "host/rx/OdArray.h"
#include "statements/Writer.h"

#include <array>

struct OdDbFaceRecord;

/// The edge that begins at each corner is visible or not.
Statement EmitInsertFace(Writer& writer, const OdArray<OdGePoint3d>& corners, const std::array<bool, 4>& edgesVisible,
                         const CFxString& name);
Statement EmitInsertSolid(Writer& writer, const OdArray<OdGePoint3d>& corners, const CFxString& name);
Statement EmitInsertTrace(Writer& writer, const OdArray<OdGePoint3d>& corners, const CFxString& name);
/// `rows` of vertices, each of `columns`.
Statement EmitInsertPolygonMesh(Writer& writer, int rows, int columns, const OdArray<OdGePoint3d>& vertices,
                                const CFxString& name);
Statement EmitInsertPolyFaceMesh(Writer& writer, int vertexCount, const OdArray<OdGePoint3d>& vertices,
                                 const OdArray<OdDbFaceRecord>& faces, const CFxString& name);
