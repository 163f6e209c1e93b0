#pragma once

#include "statements/arrays.h"

#include <span>

/// Puts the points of one insertion into its literal: as coordinates, but in C++ COM as the number of an array and the
/// lines that fill it.
inline void fillDimensionPoints(Writer& writer, inkmacro::Fill& insertion, std::span<const OdGePoint3d> points)
{
    for (const OdGePoint3d& point : points) {
        if (writer.target != inkmacro::Target::CppCom) {
            insertion.point(point);
            continue;
        }
        const std::uint32_t number = ++writer.UniqueCounter;
        const ArrayPlace place(writer, "variant" + QString::number(number), number);
        insertion.number(number).word(comPointLines(place, point, NumberForm::Long, false));
    }
}
