#pragma once

#include "objects/targets/CoordinateArray.h"

#include <deque>
#include <span>

/// The points of one insertion as values of its literal: their coordinates, but in COM the number of an array and the
/// statements that fill it. The statement keeps views of these, so this must live as long as the statement.
class DimensionPoints
{
public:
    explicit DimensionPoints(Writer& writer) : writer_(writer) {}

    void fill(inkmacro::Fill& statement, std::span<const OdGePoint3d> points)
    {
        for (const OdGePoint3d& point : points) {
            if (writer_.target != inkmacro::Target::CppCom) {
                statement.point(point);
                continue;
            }
            const std::uint32_t number = ++writer_.UniqueCounter;
            statement.number(number).text(arrays_.emplace_back(comPoint(writer_, number, point)));
        }
    }

private:
    Writer& writer_;
    std::deque<QString> arrays_;
};
