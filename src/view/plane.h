#pragma once

#include "view/Pen.h"

#include <cmath>

namespace inkmacro::view {

// Points of the plane as vectors.

inline Point operator+(Point a, Point b)
{
    return {a.x + b.x, a.y + b.y};
}

inline Point operator-(Point a, Point b)
{
    return {a.x - b.x, a.y - b.y};
}

inline Point operator*(Point vector, double factor)
{
    return {vector.x * factor, vector.y * factor};
}

inline double dot(Point a, Point b)
{
    return a.x * b.x + a.y * b.y;
}

/// Above 0 where b lies against the clock from a.
inline double cross(Point a, Point b)
{
    return a.x * b.y - a.y * b.x;
}

inline double lengthOf(Point vector)
{
    return std::hypot(vector.x, vector.y);
}

inline double distanceOf(Point a, Point b)
{
    return lengthOf(b - a);
}

inline double angleOf(Point vector)
{
    return std::atan2(vector.y, vector.x);
}

/// A vector of length 1.
inline Point directionOf(double angle)
{
    return {std::cos(angle), std::sin(angle)};
}

/// The direction of a vector; the zero vector for one that has none.
inline Point unitOf(Point vector)
{
    const double length = lengthOf(vector);
    return length > 0.0 && std::isfinite(length) ? Point{vector.x / length, vector.y / length} : Point{};
}

/// Turned by a quarter against the clock.
inline Point leftOf(Point vector)
{
    return {-vector.y, vector.x};
}

inline Point middleOf(Point a, Point b)
{
    return a + (b - a) * 0.5;
}

inline Point onCircle(Point center, double radius, double angle)
{
    return center + directionOf(angle) * radius;
}

/// From 0 up to a whole turn, without it.
inline double withinTurn(double angle)
{
    const double rest = std::fmod(angle, kTurn);
    const double positive = rest < 0.0 ? rest + kTurn : rest;
    return positive < kTurn ? positive : 0.0;
}

} // namespace inkmacro::view
