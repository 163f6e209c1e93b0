#pragma once

#include "host/db/OdDbEntity.h"

#define INKHOST_LINE_DATA(READ, HOLD, FIELD)                                                                           \
    READ(OdGePoint3d, startPoint, "where it begins")                                                                   \
    READ(OdGePoint3d, endPoint, "where it ends")                                                                       \
    READ(double, thickness, "height of the extrusion")

class INKHOST_EXPORT OdDbLine : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbLine, INKHOST_LINE_DATA)
};

#define INKHOST_CIRCLE_DATA(READ, HOLD, FIELD)                                                                         \
    READ(OdGePoint3d, center, "the center")                                                                            \
    READ(double, radius, "the radius")

class INKHOST_EXPORT OdDbCircle : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    OdDbCircle(const OdGePoint3d& center, double radius) : OdDbEntity(desc()), center_(center), radius_(radius) {}
    static OdRxClass* desc();
    INKHOST_DATA(OdDbCircle, INKHOST_CIRCLE_DATA)
};

#define INKHOST_ARC_DATA(READ, HOLD, FIELD)                                                                            \
    READ(OdGePoint3d, center, "the center")                                                                            \
    READ(double, radius, "the radius")                                                                                 \
    READ(double, startAngle, "where it begins, in radians")                                                            \
    READ(double, endAngle, "where it ends, in radians")

class INKHOST_EXPORT OdDbArc : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    OdDbArc(const OdGePoint3d& center, double radius, double startAngle, double endAngle)
        : OdDbEntity(desc()), center_(center), radius_(radius), startAngle_(startAngle), endAngle_(endAngle)
    {
    }
    static OdRxClass* desc();
    INKHOST_DATA(OdDbArc, INKHOST_ARC_DATA)
};

#define INKHOST_ELLIPSE_DATA(READ, HOLD, FIELD)                                                                        \
    READ(OdGePoint3d, center, "the center")                                                                            \
    READ(OdGeVector3d, majorAxis, "from the center along the longer axis")                                             \
    READ(OdGeVector3d, minorAxis, "from the center along the shorter axis")                                            \
    READ(double, startAngle, "where it begins, in radians; 0 for a whole one")                                         \
    READ(double, endAngle, "where it ends, in radians; 0 for a whole one")

/// An ellipse, whole or in part.
class INKHOST_EXPORT OdDbEllipse : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbEllipse, INKHOST_ELLIPSE_DATA)
};

#define INKHOST_POLYLINE_DATA(READ, HOLD, FIELD)                                                                       \
    HOLD(OdArray<OdGePoint2d>, points, "the vertices")                                                                 \
    HOLD(OdArray<double>, bulges,                                                                                      \
         "one a vertex, for the segment that begins there: the tangent of a quarter of the angle of an arc, "          \
         "0 for a line; a missing one is 0")                                                                           \
    READ(bool, isClosed, "the last vertex is joined with the first")

/// A polyline in a plane, of lines and arcs.
class INKHOST_EXPORT OdDbPolyline : public OdDbEntity
{
public:
    enum SegType : int
    {
        kLine = 0,
        kArc = 1,
    };

    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbPolyline, INKHOST_POLYLINE_DATA)

    unsigned numVerts() const { return points_.length(); }
    /// Raises OdError_InvalidIndex, as the next two do.
    const OdGePoint2d& getPointAt(unsigned index) const { return points_[index]; }
    /// Tangent of a quarter of the angle of the arc that begins at the vertex, 0 for a line.
    double getBulgeAt(unsigned index) const;
    SegType segType(unsigned index) const { return getBulgeAt(index) == 0.0 ? kLine : kArc; }
};

struct OdDb3dPolylineVertex
{
    OdGePoint3d position;
};

#define INKHOST_3D_POLYLINE_DATA(READ, HOLD, FIELD)                                                                    \
    FIELD(vertices, "the vertices")                                                                                    \
    READ(bool, isClosed, "the last vertex is joined with the first")

class INKHOST_EXPORT OdDb3dPolyline : public OdDbVertexEntity
{
public:
    using OdDbVertexEntity::OdDbVertexEntity;
    static OdRxClass* desc();
    INKHOST_DATA(OdDb3dPolyline, INKHOST_3D_POLYLINE_DATA)

    void appendVertex(const OdDb3dPolylineVertex& vertex) { vertices_.append(vertex.position); }
    void makeClosed() { isClosed_ = true; }
};

#define INKHOST_MLINE_DATA(READ, HOLD, FIELD)                                                                          \
    FIELD(vertices, "the vertices")                                                                                    \
    READ(int, justification, "which line runs through the vertices: 0 top, 1 zero, 2 bottom", kTop)                    \
    READ(double, scale, "factor of the distances between the lines", 1.0)                                              \
    READ(OdString, plotStyleName, "the print style")                                                                   \
    READ(bool, closedMline, "the last vertex is joined with the first")

/// A rich line. Its justification may be any number: it is as it stands in the drawing.
class INKHOST_EXPORT OdDbMline : public OdDbVertexEntity
{
public:
    enum Justification : int
    {
        kTop = 0,
        kZero = 1,
        kBottom = 2,
    };

    using OdDbVertexEntity::OdDbVertexEntity;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbMline, INKHOST_MLINE_DATA)
};

#define INKHOST_LEADER_DATA(READ, HOLD, FIELD)                                                                         \
    FIELD(vertices, "the vertices, the arrow first")                                                                   \
    HOLD(int, annoType, "kind of the annotation: 0 note, 1 tolerance, 2 block reference, 3 none", kNoAnno)             \
    READ(OdDbObjectId, annotationObjectId, "handle of the annotation")                                                 \
    READ(double, annoWidth, "width of the annotation")

class INKHOST_EXPORT OdDbLeader : public OdDbVertexEntity
{
public:
    enum AnnoType : int
    {
        kMText = 0,
        kFcf = 1,
        kBlockRef = 2,
        kNoAnno = 3,
    };

    using OdDbVertexEntity::OdDbVertexEntity;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbLeader, INKHOST_LEADER_DATA)

    AnnoType annoType() const { return static_cast<AnnoType>(annoType_); }
};
