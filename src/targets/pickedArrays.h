#pragma once

#include "host/db/OdGe.h"
#include "host/rx/OdArray.h"
#include "statements/Writer.h"

#include <span>
#include <variant>
#include <vector>

/// An array that an operation on picked objects takes: their variables, or the points where the user picked them.
struct PickedArray
{
    const char* name; ///< without its number
    std::variant<std::vector<CFxString>, OdArray<OdGePoint3d>> elements;
};

/// Declares the arrays and fills them in their order. All their names end in the number. Nothing where they stand in
/// the call.
Statement pickedArrays(Writer& writer, std::uint32_t number, std::span<const PickedArray> arrays);
/// The operation of the sketch manager, with these arrays in its order.
Statement callWithPicked(Writer& writer, const char* operation, std::uint32_t number,
                         std::initializer_list<const PickedArray*> arrays);
