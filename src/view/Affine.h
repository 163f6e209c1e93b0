#pragma once

#include "view/Pen.h"

#include <cmath>

namespace inkmacro::view {

/// x' = a x + c y + e, y' = b x + d y + f.
struct Affine
{
    double a = 1.0;
    double b = 0.0;
    double c = 0.0;
    double d = 1.0;
    double e = 0.0;
    double f = 0.0;
    bool operator==(const Affine&) const = default;

    static Affine moved(double x, double y) { return {1.0, 0.0, 0.0, 1.0, x, y}; }
    static Affine scaled(double x, double y) { return {x, 0.0, 0.0, y, 0.0, 0.0}; }
    static Affine rotated(double angle)
    {
        return {std::cos(angle), std::sin(angle), -std::sin(angle), std::cos(angle), 0.0, 0.0};
    }
    /// At the line through both points; null transformation where they are one.
    static Affine mirrored(Point from, Point to)
    {
        const double x = to.x - from.x;
        const double y = to.y - from.y;
        const double square = x * x + y * y;
        if (square == 0.0)
            return {};
        const double cosine = (x * x - y * y) / square;
        const double sine = 2.0 * x * y / square;
        return Affine{cosine, sine, sine, -cosine, 0.0, 0.0}.about(from);
    }

    /// The same with that point in the place of the origin.
    Affine about(Point center) const { return moved(center.x, center.y) * *this * moved(-center.x, -center.y); }

    /// The other one first.
    Affine operator*(const Affine& o) const
    {
        return {a * o.a + c * o.b, b * o.a + d * o.b,     a * o.c + c * o.d,
                b * o.c + d * o.d, a * o.e + c * o.f + e, b * o.e + d * o.f + f};
    }
    Point operator*(Point point) const { return {a * point.x + c * point.y + e, b * point.x + d * point.y + f}; }
    /// Of a direction.
    Point turn(Point vector) const { return {a * vector.x + c * vector.y, b * vector.x + d * vector.y}; }
    double determinant() const { return a * d - b * c; }
    Affine inverse() const
    {
        const double by = 1.0 / determinant();
        return {d * by, -b * by, -c * by, a * by, (c * f - d * e) * by, (b * e - a * f) * by};
    }
    /// Of one that keeps shapes: by how much lengths grow, and the angle that it turns the X axis by.
    double factor() const { return std::hypot(a, b); }
    double angle() const { return std::atan2(b, a); }
    bool mirrors() const { return determinant() < 0.0; }
    bool isIdentity() const { return *this == Affine(); }
};

} // namespace inkmacro::view
