#pragma once

#include <QString>

#include <array>

namespace inkmacro {

/// What a value of a statement is to the user, who may have given it as the answer at a prompt of its kind. General
/// properties, such as colors and weights, are none of these.
enum class Meaning : unsigned char
{
    None,
    Point,  ///< its coordinates together
    Length, ///< of the drawing: a radius, height, width, size, offset or spacing
    Angle,
    Factor, ///< a scale or a ratio
    Count,  ///< or an index
    Text
};

/// A place of a statement where a recorded value stands that an answer may take the place of. Only the targets whose
/// commands are functions have any use for it.
struct Answerable
{
    Meaning meaning;
    int length;                      ///< letters of the statement that the value takes
    std::array<double, 3> numbers{}; ///< the coordinates of a point, else the first one is the value
    int axes = 1;                    ///< of a point, 2 or 3
    int axis = -1;                   ///< the only coordinate of a point that stands there; all of them when negative
    bool starred = false;            ///< a point stands there as `*(1.0, 2.0, 3.0)`
    QString text{};
};

} // namespace inkmacro
