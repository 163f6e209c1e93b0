#pragma once

#include "host/db/OdDbEntity.h"

/// A grid of points.
class INKHOST_EXPORT OdDbPolygonMesh : public OdDbVertexEntity
{
public:
    using OdDbVertexEntity::OdDbVertexEntity;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    /// How many rows of vertices there are.
    int mSize() const { return mSize_; }
    /// How many vertices a row has.
    int nSize() const { return nSize_; }
    bool isMClosed() const { return mClosed_; }
    bool isNClosed() const { return nClosed_; }

private:
    int mSize_ = 0;
    int nSize_ = 0;
    bool mClosed_ = false;
    bool nClosed_ = false;
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

class INKHOST_EXPORT OdDbPolyFaceMesh : public OdDbVertexEntity
{
public:
    using OdDbVertexEntity::OdDbVertexEntity;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    const OdArray<OdDbFaceRecord>& faces() const { return faces_; }

private:
    OdArray<OdDbFaceRecord> faces_;
};

/// A filled area between four points. No class of drawing objects of its own.
class INKHOST_EXPORT OdDbFilledArea : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    static std::span<const OdDbField> fields();

    /// Raises OdError_InvalidIndex.
    const OdGePoint3d& getPointAt(std::size_t index) const;
    double thickness() const { return thickness_; }

private:
    std::array<OdGePoint3d, 4> points_{};
    double thickness_ = 0.0;
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

class INKHOST_EXPORT OdDbFace : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    /// Raises OdError_InvalidIndex, as the next one does.
    const OdGePoint3d& getVertexAt(std::size_t index) const;
    bool isEdgeVisibleAt(std::size_t index) const;

private:
    std::array<OdGePoint3d, 4> vertices_{};
    std::array<bool, 4> edgesVisible_{};
};

/// A flat area within curves.
class INKHOST_EXPORT OdDbRegion : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    /// The curves around the area, in their order. Those that the drawing does not hold are left out.
    OdArray<OdDbObjectPtr> explode() const;

private:
    OdArray<OdDbObjectId> pieces_;
};

/// One of the boundaries of a hatch.
struct OdDbHatchLoop
{
    int type = 0;                      ///< bits of OdDbHatch::LoopType
    OdArray<OdGePoint2d> vertices;     ///< of a polyline loop
    OdArray<OdDbObjectId> assocObjIds; ///< the objects that the boundary follows
    bool operator==(const OdDbHatchLoop&) const = default;
};

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
    static std::span<const OdDbField> fields();

    const OdString& patternName() const { return patternName_; }
    double patternScale() const { return patternScale_; }
    /// In radians.
    double patternAngle() const { return patternAngle_; }

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

    OdString patternName_;
    double patternScale_ = 1.0;
    double patternAngle_ = 0.0;
    OdArray<OdGePoint2d> seedPoints_;
    OdArray<OdDbHatchLoop> loops_;
};
