#pragma once

#include "host/db/OdDbEntity.h"

#define INKHOST_POLYGON_MESH_DATA(READ, HOLD, FIELD)                                                                   \
    FIELD(vertices, "the vertices, row by row")                                                                        \
    READ(int, mSize, "number of rows of vertices")                                                                     \
    READ(int, nSize, "number of vertices in a row")                                                                    \
    READ(bool, isMClosed, "the last row is joined with the first")                                                     \
    READ(bool, isNClosed, "the last vertex of each row is joined with the first")

/// A grid of points.
class INKHOST_EXPORT OdDbPolygonMesh : public OdDbVertexEntity
{
public:
    using OdDbVertexEntity::OdDbVertexEntity;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbPolygonMesh, INKHOST_POLYGON_MESH_DATA)
};

/// One face of a polyface mesh.
struct INKHOST_EXPORT OdDbFaceRecord
{
    /// Numbers of vertices, the first of which is 1. A negative one begins a hidden edge; the fourth of a triangle is
    /// 0.
    std::array<int, 4> vertices{};

    /// Raises OdError_InvalidIndex.
    int getVertexAt(std::size_t corner) const;
    bool operator==(const OdDbFaceRecord&) const = default;
};

#define INKHOST_POLY_FACE_MESH_DATA(READ, HOLD, FIELD)                                                                 \
    FIELD(vertices, "the vertices")                                                                                    \
    READ(OdArray<OdDbFaceRecord>, faces,                                                                               \
         "three or four numbers of vertices each, from 1; a negative number begins a hidden edge, a fourth number "    \
         "0 is as none")

class INKHOST_EXPORT OdDbPolyFaceMesh : public OdDbVertexEntity
{
public:
    using OdDbVertexEntity::OdDbVertexEntity;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbPolyFaceMesh, INKHOST_POLY_FACE_MESH_DATA)
};

#define INKHOST_FILLED_AREA_DATA(READ, HOLD, FIELD)                                                                    \
    HOLD(OdDbFour<OdGePoint3d>, points, "the four corners")                                                            \
    READ(double, thickness, "height of the extrusion")

/// A filled area between four points. No class of drawing objects of its own.
class INKHOST_EXPORT OdDbFilledArea : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    INKHOST_DATA(OdDbFilledArea, INKHOST_FILLED_AREA_DATA)

    /// Raises OdError_InvalidIndex.
    const OdGePoint3d& getPointAt(std::size_t index) const;
};

class INKHOST_EXPORT OdDbSolid : public OdDbFilledArea
{
public:
    using OdDbFilledArea::OdDbFilledArea;
    static OdRxClass* desc();
};

class INKHOST_EXPORT OdDbTrace : public OdDbFilledArea
{
public:
    using OdDbFilledArea::OdDbFilledArea;
    static OdRxClass* desc();
};

#define INKHOST_FACE_DATA(READ, HOLD, FIELD)                                                                           \
    HOLD(OdDbFour<OdGePoint3d>, vertices, "the four corners")                                                          \
    HOLD(OdDbFour<bool>, edgesVisible, "whether the edge that begins at each corner is visible")

class INKHOST_EXPORT OdDbFace : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbFace, INKHOST_FACE_DATA)

    /// Raises OdError_InvalidIndex, as the next one does.
    const OdGePoint3d& getVertexAt(std::size_t index) const;
    bool isEdgeVisibleAt(std::size_t index) const;
};

#define INKHOST_REGION_DATA(READ, HOLD, FIELD)                                                                         \
    HOLD(OdArray<OdDbObjectId>, pieces, "handles of the curves around it, in order")

/// A flat area within curves.
class INKHOST_EXPORT OdDbRegion : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbRegion, INKHOST_REGION_DATA)

    /// The curves around the area, in their order. Those that the drawing does not hold are left out.
    OdArray<OdDbObjectPtr> explode() const;
};

/// One of the boundaries of a hatch.
struct OdDbHatchLoop
{
    int type = 0;                      ///< bits of OdDbHatch::LoopType
    OdArray<OdGePoint2d> vertices;     ///< of a polyline loop
    OdArray<OdDbObjectId> assocObjIds; ///< the objects that the boundary follows
    bool operator==(const OdDbHatchLoop&) const = default;
};

#define INKHOST_HATCH_DATA(READ, HOLD, FIELD)                                                                          \
    READ(OdString, patternName, "name of the pattern")                                                                 \
    READ(double, patternScale, "scale of the pattern", 1.0)                                                            \
    READ(double, patternAngle, "angle of the pattern, in radians")                                                     \
    HOLD(OdArray<OdGePoint2d>, seedPoints, "the points within the areas, by which they were found")                    \
    HOLD(OdArray<OdDbHatchLoop>, loops, "the boundaries")

class INKHOST_EXPORT OdDbHatch : public OdDbEntity
{
public:
    enum LoopType : int
    {
        kPolyline = 2,
        kDerived = 4,
    };

    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbHatch, INKHOST_HATCH_DATA)

    int numLoops() const { return static_cast<int>(loops_.length()); }
    /// Bits of LoopType and others. Raises OdError_InvalidIndex, as the next two do.
    int loopTypeAt(int index) const { return loopAt(index).type; }
    const OdArray<OdGePoint2d>& getLoopAt(int index) const { return loopAt(index).vertices; }
    const OdArray<OdDbObjectId>& getAssocObjIdsAt(int index) const { return loopAt(index).assocObjIds; }
    /// Those of all loops, loop by loop.
    OdArray<OdDbObjectId> getAssocObjIds() const;

    unsigned numSeedPoints() const { return seedPoints_.length(); }
    /// Raises OdError_InvalidIndex.
    const OdGePoint2d& getSeedPointAt(unsigned index) const { return seedPoints_[index]; }

private:
    const OdDbHatchLoop& loopAt(int index) const { return loops_[static_cast<std::size_t>(index)]; }
};
