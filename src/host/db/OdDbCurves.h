#pragma once

#include "host/db/OdDbEntity.h"

class INKHOST_EXPORT OdDbLine : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    const OdGePoint3d& startPoint() const { return startPoint_; }
    const OdGePoint3d& endPoint() const { return endPoint_; }
    double thickness() const { return thickness_; }

private:
    OdGePoint3d startPoint_;
    OdGePoint3d endPoint_;
    double thickness_ = 0.0;
};

class INKHOST_EXPORT OdDbCircle : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    OdDbCircle(const OdGePoint3d& center, double radius) : OdDbEntity(desc()), center_(center), radius_(radius) {}
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    const OdGePoint3d& center() const { return center_; }
    double radius() const { return radius_; }

private:
    OdGePoint3d center_;
    double radius_ = 0.0;
};

class INKHOST_EXPORT OdDbArc : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    OdDbArc(const OdGePoint3d& center, double radius, double startAngle, double endAngle)
        : OdDbEntity(desc()), center_(center), radius_(radius), startAngle_(startAngle), endAngle_(endAngle)
    {
    }
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    const OdGePoint3d& center() const { return center_; }
    double radius() const { return radius_; }
    /// In radians, as the next one is.
    double startAngle() const { return startAngle_; }
    double endAngle() const { return endAngle_; }

private:
    OdGePoint3d center_;
    double radius_ = 0.0;
    double startAngle_ = 0.0;
    double endAngle_ = 0.0;
};

/// An ellipse, whole or in part.
class INKHOST_EXPORT OdDbEllipse : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    const OdGePoint3d& center() const { return center_; }
    /// From the center to the curve, as the next one does.
    const OdGeVector3d& majorAxis() const { return majorAxis_; }
    const OdGeVector3d& minorAxis() const { return minorAxis_; }
    /// In radians, as the next one is.
    double startAngle() const { return startAngle_; }
    double endAngle() const { return endAngle_; }

private:
    OdGePoint3d center_;
    OdGeVector3d majorAxis_;
    OdGeVector3d minorAxis_;
    double startAngle_ = 0.0;
    double endAngle_ = 0.0;
};

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
    static std::span<const OdDbField> fields();

    unsigned numVerts() const { return points_.length(); }
    /// Raises OdError_InvalidIndex, as the next two do.
    const OdGePoint2d& getPointAt(unsigned index) const { return points_[index]; }
    /// Tangent of a quarter of the angle of the arc that begins at the vertex, 0 for a line.
    double getBulgeAt(unsigned index) const;
    SegType segType(unsigned index) const { return getBulgeAt(index) == 0.0 ? kLine : kArc; }
    bool isClosed() const { return closed_; }

private:
    OdArray<OdGePoint2d> points_;
    OdArray<double> bulges_; ///< one a point, up to the last that is given
    bool closed_ = false;
};

struct OdDb3dPolylineVertex
{
    OdGePoint3d position;
};

class INKHOST_EXPORT OdDb3dPolyline : public OdDbVertexEntity
{
public:
    using OdDbVertexEntity::OdDbVertexEntity;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    bool isClosed() const { return closed_; }
    void appendVertex(const OdDb3dPolylineVertex& vertex) { vertices_.append(vertex.position); }
    void makeClosed() { closed_ = true; }

private:
    bool closed_ = false;
};

/// A rich line.
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
    static std::span<const OdDbField> fields();

    /// Any number, as it stands in the drawing.
    int justification() const { return justification_; }
    double scale() const { return scale_; }
    const OdString& plotStyleName() const { return plotStyleName_; }
    bool closedMline() const { return closed_; }

private:
    int justification_ = kTop;
    double scale_ = 1.0;
    OdString plotStyleName_;
    bool closed_ = false;
};

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
    static std::span<const OdDbField> fields();

    AnnoType annoType() const { return static_cast<AnnoType>(annoType_); }
    const OdDbObjectId& annotationObjectId() const { return annotationObjectId_; }
    double annoWidth() const { return annoWidth_; }

private:
    int annoType_ = kNoAnno;
    OdDbObjectId annotationObjectId_;
    double annoWidth_ = 0.0;
};
