#pragma once

#include "host/db/OdGe.h"

namespace inkmacro::dxf {

inline OdGeVector3d operator-(const OdGePoint3d& a, const OdGePoint3d& b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
inline OdGeVector3d operator+(const OdGeVector3d& a, const OdGeVector3d& b)
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
inline OdGeVector3d operator-(const OdGeVector3d& a, const OdGeVector3d& b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
inline OdGeVector3d operator*(double factor, const OdGeVector3d& v)
{
    return {factor * v.x, factor * v.y, factor * v.z};
}
inline double dot(const OdGeVector3d& a, const OdGeVector3d& b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline OdGeVector3d cross(const OdGeVector3d& a, const OdGeVector3d& b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
/// Of a vector that has a length.
inline OdGeVector3d unit(const OdGeVector3d& v)
{
    return 1 / std::sqrt(dot(v, v)) * v;
}

} // namespace inkmacro::dxf
