#pragma once

#include "host/db/OdGe.h"
#include "statements/Writer.h"
#include "statements/typeNames.h"

#include <array>
#include <vector>

/// An object that a trim made. What its six numbers are depends on its class: where it begins and ends, or such as
/// center, radius and angles.
struct TrimPiece
{
    ActionEntry entry;
    OdGePoint3d place; ///< a point on it, by which it can be picked
    std::array<double, 6> numbers;
};

/// Statements that find the pieces in the drawing once the macro has trimmed, and assign them to their variables: they
/// pick around each piece's place and compare what they find with its numbers.
Statement trimSearch(Writer& writer, const std::vector<TrimPiece>& pieces);
