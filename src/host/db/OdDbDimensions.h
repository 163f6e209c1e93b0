#pragma once

#include "host/db/OdDbEntity.h"

class INKHOST_EXPORT OdDbDimension : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    /// The text that stands in place of the measured value; empty for the value itself.
    const OdString& dimensionText() const { return dimensionText_; }

private:
    OdString dimensionText_;
};

class INKHOST_EXPORT OdDbAlignedDimension : public OdDbDimension
{
public:
    using OdDbDimension::OdDbDimension;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    const OdGePoint3d& xLine1Point() const { return xLine1Point_; }
    const OdGePoint3d& xLine2Point() const { return xLine2Point_; }
    const OdGePoint3d& dimLinePoint() const { return dimLinePoint_; }

private:
    OdGePoint3d xLine1Point_;
    OdGePoint3d xLine2Point_;
    OdGePoint3d dimLinePoint_;
};

class INKHOST_EXPORT OdDbRotatedDimension : public OdDbDimension
{
public:
    using OdDbDimension::OdDbDimension;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    const OdGePoint3d& xLine1Point() const { return xLine1Point_; }
    const OdGePoint3d& xLine2Point() const { return xLine2Point_; }
    const OdGePoint3d& dimLinePoint() const { return dimLinePoint_; }
    /// Of the dimension line, in radians.
    double rotation() const { return rotation_; }

private:
    OdGePoint3d xLine1Point_;
    OdGePoint3d xLine2Point_;
    OdGePoint3d dimLinePoint_;
    double rotation_ = 0.0;
};

class INKHOST_EXPORT OdDb2LineAngularDimension : public OdDbDimension
{
public:
    using OdDbDimension::OdDbDimension;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    const OdGePoint3d& xLine1Start() const { return xLine1Start_; }
    const OdGePoint3d& xLine1End() const { return xLine1End_; }
    const OdGePoint3d& xLine2Start() const { return xLine2Start_; }
    const OdGePoint3d& xLine2End() const { return xLine2End_; }
    const OdGePoint3d& arcPoint() const { return arcPoint_; }

private:
    OdGePoint3d xLine1Start_;
    OdGePoint3d xLine1End_;
    OdGePoint3d xLine2Start_;
    OdGePoint3d xLine2End_;
    OdGePoint3d arcPoint_;
};

class INKHOST_EXPORT OdDb3PointAngularDimension : public OdDbDimension
{
public:
    using OdDbDimension::OdDbDimension;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    const OdGePoint3d& centerPoint() const { return centerPoint_; }
    const OdGePoint3d& xLine1Point() const { return xLine1Point_; }
    const OdGePoint3d& xLine2Point() const { return xLine2Point_; }
    const OdGePoint3d& arcPoint() const { return arcPoint_; }

private:
    OdGePoint3d centerPoint_;
    OdGePoint3d xLine1Point_;
    OdGePoint3d xLine2Point_;
    OdGePoint3d arcPoint_;
};

class INKHOST_EXPORT OdDbArcDimension : public OdDbDimension
{
public:
    using OdDbDimension::OdDbDimension;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    const OdGePoint3d& xLine1Point() const { return xLine1Point_; }
    const OdGePoint3d& xLine2Point() const { return xLine2Point_; }
    const OdGePoint3d& centerPoint() const { return centerPoint_; }
    const OdGePoint3d& arcPoint() const { return arcPoint_; }
    /// Where the arc starts and ends, in radians.
    double arcStartParam() const { return arcStartParam_; }
    double arcEndParam() const { return arcEndParam_; }
    /// Whether only a part of the arc is measured.
    bool isPartial() const { return partial_; }

private:
    OdGePoint3d xLine1Point_;
    OdGePoint3d xLine2Point_;
    OdGePoint3d centerPoint_;
    OdGePoint3d arcPoint_;
    double arcStartParam_ = 0.0;
    double arcEndParam_ = 0.0;
    bool partial_ = false;
};

class INKHOST_EXPORT OdDbOrdinateDimension : public OdDbDimension
{
public:
    using OdDbDimension::OdDbDimension;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    const OdGePoint3d& definingPoint() const { return definingPoint_; }
    const OdGePoint3d& leaderEndPoint() const { return leaderEndPoint_; }
    /// Whether the X coordinate is shown, else Y.
    bool isUsingXAxis() const { return usingXAxis_; }
    /// Where the coordinates are counted from.
    const OdGePoint3d& origin() const { return origin_; }

private:
    OdGePoint3d definingPoint_;
    OdGePoint3d leaderEndPoint_;
    bool usingXAxis_ = false;
    OdGePoint3d origin_;
};

class INKHOST_EXPORT OdDbDiametricDimension : public OdDbDimension
{
public:
    using OdDbDimension::OdDbDimension;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    /// Where the diameter meets the curve, as the next one is.
    const OdGePoint3d& chordPoint() const { return chordPoint_; }
    const OdGePoint3d& farChordPoint() const { return farChordPoint_; }

private:
    OdGePoint3d chordPoint_;
    OdGePoint3d farChordPoint_;
};

class INKHOST_EXPORT OdDbRadialDimension : public OdDbDimension
{
public:
    using OdDbDimension::OdDbDimension;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    const OdGePoint3d& center() const { return center_; }
    const OdGePoint3d& chordPoint() const { return chordPoint_; }

private:
    OdGePoint3d center_;
    OdGePoint3d chordPoint_;
};

/// A jogged dimension.
class INKHOST_EXPORT OdDbRadialDimensionLarge : public OdDbDimension
{
public:
    using OdDbDimension::OdDbDimension;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    const OdGePoint3d& center() const { return center_; }
    const OdGePoint3d& chordPoint() const { return chordPoint_; }

private:
    OdGePoint3d center_;
    OdGePoint3d chordPoint_;
};
