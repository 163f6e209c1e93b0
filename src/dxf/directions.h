#pragma once

#include "host/db/OdGe.h"

namespace inkmacro::dxf {

/// The angles between which an arc runs against the clock: radians.
struct Arc
{
    double start;
    double end;
};

/// How a block lies in its plane: radians and factors.
struct Placement
{
    double rotation;
    OdGeScale3d scale;
};

/// The coordinate system in which an entity's points lie, of which its drawing has the normal alone.
class Direction
{
public:
    /// That of the world.
    Direction() = default;

    /// Of a normal of any length; one that is none is +Z.
    explicit Direction(const OdGeVector3d& normal);

    /// Seen from behind: all that lies in a plane can be told in the world's directions, by the operations below.
    bool isDown() const { return kind_ == Kind::Down; }

    /// Nothing but points can be told in the world's directions.
    bool isTilted() const { return kind_ == Kind::Tilted; }

    OdGePoint3d toWorld(const OdGePoint3d& point) const;

    /// Angles of an arc, in [0, 2 pi); where it is whole it stays so.
    Arc arcToWorld(const Arc& arc) const;

    /// Of what is inserted or written at an angle.
    Placement placementToWorld(const Placement& placement) const;

    double bulgeToWorld(double bulge) const { return isDown() ? -bulge : bulge; }

private:
    enum class Kind
    {
        Up,
        Down,
        Tilted
    };

    Kind kind_ = Kind::Up;
    OdGeVector3d x_{1, 0, 0};
    OdGeVector3d y_{0, 1, 0};
    OdGeVector3d z_{0, 0, 1};
};

/// An angle in [0, 2 pi).
double inTurn(double angle);

} // namespace inkmacro::dxf
