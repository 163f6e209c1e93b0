#pragma once

#include "host/db/OdGe.h"

namespace inkmacro::dxf {

/// The side from which a plane entity is seen: the normal of the plane in which its coordinates are.
class Direction
{
public:
    Direction() = default;
    explicit Direction(const OdGeVector3d& normal);

    bool isDown() const { return isDown_; }
    /// Neither from above nor from below.
    bool isTilted() const { return isTilted_; }
    /// From the coordinates of the plane, whose third one is the distance from the origin.
    OdGePoint3d toWorld(const OdGePoint3d& point) const;

private:
    bool isDown_ = false;
    bool isTilted_ = false;
    OdGeVector3d xAxis_{1, 0, 0};
    OdGeVector3d yAxis_{0, 1, 0};
    OdGeVector3d zAxis_{0, 0, 1};
};

} // namespace inkmacro::dxf
