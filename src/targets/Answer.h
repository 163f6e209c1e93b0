#pragma once

#include "statements/Answerable.h"

#include <QString>

#include <array>
#include <cstdint>

namespace inkmacro {

/// What a prompt asks for. It decides which values of statements may be its answer.
enum class Asked : std::uint8_t
{
    Point,
    Angle,
    Distance,
    Orientation,
    Corner,
    Scale,
    Text,
    Keyword,
    Color,
    Integer,
    Number
};

/// A prompt of a command. The answer is the user's own: none when the prompt was answered by something of another type,
/// in whose place a default stands.
struct Prompt
{
    Asked asked;
    std::uint32_t child;   ///< which action of the command it is
    QString title;         ///< what notes call the action
    QString text;          ///< as the host showed it, markup included
    const char* otherwise; ///< what a macro shows when nothing is left of that
    bool isAnswered = false;
    std::array<double, 3> numbers{}; ///< a point, else the first one is the answer
    QString answer{};                ///< of a prompt for a text
};

} // namespace inkmacro
