#pragma once

#include "host/db/OdDbEntity.h"

#define INKHOST_DIMENSION_DATA(READ, HOLD, FIELD) READ(OdString, dimensionText, "text in place of the measured value")

class INKHOST_EXPORT OdDbDimension : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbDimension, INKHOST_DIMENSION_DATA)
};

#define INKHOST_ALIGNED_DIMENSION_DATA(READ, HOLD, FIELD)                                                              \
    READ(OdGePoint3d, xLine1Point, "a point on the first extension line")                                              \
    READ(OdGePoint3d, xLine2Point, "a point on the second extension line")                                             \
    READ(OdGePoint3d, dimLinePoint, "a point on the dimension line")

class INKHOST_EXPORT OdDbAlignedDimension : public OdDbDimension
{
public:
    using OdDbDimension::OdDbDimension;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbAlignedDimension, INKHOST_ALIGNED_DIMENSION_DATA)
};

#define INKHOST_ROTATED_DIMENSION_DATA(READ, HOLD, FIELD)                                                              \
    READ(OdGePoint3d, xLine1Point, "a point on the first extension line")                                              \
    READ(OdGePoint3d, xLine2Point, "a point on the second extension line")                                             \
    READ(OdGePoint3d, dimLinePoint, "a point on the dimension line")                                                   \
    READ(double, rotation, "angle of the dimension line, in radians")

class INKHOST_EXPORT OdDbRotatedDimension : public OdDbDimension
{
public:
    using OdDbDimension::OdDbDimension;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbRotatedDimension, INKHOST_ROTATED_DIMENSION_DATA)
};

#define INKHOST_2_LINE_ANGULAR_DIMENSION_DATA(READ, HOLD, FIELD)                                                       \
    READ(OdGePoint3d, xLine1Start, "start of the first extension line")                                                \
    READ(OdGePoint3d, xLine1End, "end of the first extension line")                                                    \
    READ(OdGePoint3d, xLine2Start, "start of the second extension line")                                               \
    READ(OdGePoint3d, xLine2End, "end of the second extension line")                                                   \
    READ(OdGePoint3d, arcPoint, "a point on the dimension arc")

class INKHOST_EXPORT OdDb2LineAngularDimension : public OdDbDimension
{
public:
    using OdDbDimension::OdDbDimension;
    static OdRxClass* desc();
    INKHOST_DATA(OdDb2LineAngularDimension, INKHOST_2_LINE_ANGULAR_DIMENSION_DATA)
};

#define INKHOST_3_POINT_ANGULAR_DIMENSION_DATA(READ, HOLD, FIELD)                                                      \
    READ(OdGePoint3d, centerPoint, "the angle's vertex")                                                               \
    READ(OdGePoint3d, xLine1Point, "a point on the first extension line")                                              \
    READ(OdGePoint3d, xLine2Point, "a point on the second extension line")                                             \
    READ(OdGePoint3d, arcPoint, "a point on the dimension arc")

class INKHOST_EXPORT OdDb3PointAngularDimension : public OdDbDimension
{
public:
    using OdDbDimension::OdDbDimension;
    static OdRxClass* desc();
    INKHOST_DATA(OdDb3PointAngularDimension, INKHOST_3_POINT_ANGULAR_DIMENSION_DATA)
};

#define INKHOST_ARC_DIMENSION_DATA(READ, HOLD, FIELD)                                                                  \
    READ(OdGePoint3d, xLine1Point, "a point on the first extension line")                                              \
    READ(OdGePoint3d, xLine2Point, "a point on the second extension line")                                             \
    READ(OdGePoint3d, centerPoint, "the center of the arc")                                                            \
    READ(OdGePoint3d, arcPoint, "a point on the dimension arc")                                                        \
    READ(double, arcStartParam, "where the arc begins, in radians")                                                    \
    READ(double, arcEndParam, "where the arc ends, in radians")                                                        \
    READ(bool, isPartial, "only a part of the arc is measured")

class INKHOST_EXPORT OdDbArcDimension : public OdDbDimension
{
public:
    using OdDbDimension::OdDbDimension;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbArcDimension, INKHOST_ARC_DIMENSION_DATA)
};

#define INKHOST_ORDINATE_DIMENSION_DATA(READ, HOLD, FIELD)                                                             \
    READ(OdGePoint3d, definingPoint, "the measured point")                                                             \
    READ(OdGePoint3d, leaderEndPoint, "end of the leader")                                                             \
    READ(bool, isUsingXAxis, "the X coordinate is shown, else Y")                                                      \
    READ(OdGePoint3d, origin, "where the coordinates are counted from")

class INKHOST_EXPORT OdDbOrdinateDimension : public OdDbDimension
{
public:
    using OdDbDimension::OdDbDimension;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbOrdinateDimension, INKHOST_ORDINATE_DIMENSION_DATA)
};

#define INKHOST_DIAMETRIC_DIMENSION_DATA(READ, HOLD, FIELD)                                                            \
    READ(OdGePoint3d, chordPoint, "where the diameter meets the curve, on the side of the text")                       \
    READ(OdGePoint3d, farChordPoint, "where it meets the curve on the other side")

class INKHOST_EXPORT OdDbDiametricDimension : public OdDbDimension
{
public:
    using OdDbDimension::OdDbDimension;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbDiametricDimension, INKHOST_DIAMETRIC_DIMENSION_DATA)
};

#define INKHOST_RADIAL_DIMENSION_DATA(READ, HOLD, FIELD)                                                               \
    READ(OdGePoint3d, center, "center of the curve")                                                                   \
    READ(OdGePoint3d, chordPoint, "where the dimension line meets the curve")

class INKHOST_EXPORT OdDbRadialDimension : public OdDbDimension
{
public:
    using OdDbDimension::OdDbDimension;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbRadialDimension, INKHOST_RADIAL_DIMENSION_DATA)
};

#define INKHOST_RADIAL_DIMENSION_LARGE_DATA(READ, HOLD, FIELD)                                                         \
    READ(OdGePoint3d, center, "center of the curve")                                                                   \
    READ(OdGePoint3d, chordPoint, "where the dimension line meets the curve")

/// A jogged dimension.
class INKHOST_EXPORT OdDbRadialDimensionLarge : public OdDbDimension
{
public:
    using OdDbDimension::OdDbDimension;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbRadialDimensionLarge, INKHOST_RADIAL_DIMENSION_LARGE_DATA)
};
