#pragma once

#include <cmath>

/// Points and vectors. Coordinates are drawing units; no operation changes them on the way into a statement.
struct OdGePoint2d
{
    double x = 0.0;
    double y = 0.0;
    bool operator==(const OdGePoint2d&) const = default;
};

struct OdGeVector3d
{
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    bool operator==(const OdGeVector3d&) const = default;
};

/// Factors by which something is stretched along the axes.
struct OdGeScale3d
{
    double sx = 1.0;
    double sy = 1.0;
    double sz = 1.0;
    bool operator==(const OdGeScale3d&) const = default;
};

struct OdGePoint3d
{
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    bool operator==(const OdGePoint3d&) const = default;

    double distanceTo(const OdGePoint3d& other) const
    {
        const double dx = x - other.x;
        const double dy = y - other.y;
        const double dz = z - other.z;
        return std::sqrt(dx * dx + dy * dy + dz * dz);
    }
    OdGePoint3d operator+(const OdGeVector3d& v) const { return {x + v.x, y + v.y, z + v.z}; }
    OdGePoint3d operator-(const OdGeVector3d& v) const { return {x - v.x, y - v.y, z - v.z}; }
};
