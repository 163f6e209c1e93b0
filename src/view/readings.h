#pragma once

#include "view/Values.h"

#include <initializer_list>

namespace inkmacro::view {

/// A point seen from above.
inline std::optional<Point> placeOf(const Values& values, const QString& tag)
{
    const std::optional<OdGePoint3d> point = values.point(tag);
    return point ? std::optional(fromAbove(*point)) : std::nullopt;
}

/// The first of them that is a size; else the usual one.
double sizeOf(std::initializer_list<std::optional<double>> told, double usual);

/// None where nothing has said it.
std::optional<bool> yesOrNo(const Values& values, const QString& tag);

std::optional<OdCmColor> colorIn(const Values& values, const QString& tag);

/// The letters of a text style; none when it leaves their height open.
std::optional<double> heightOfTextStyle(const Values& values, const QString& tag);

} // namespace inkmacro::view
