#pragma once

#include "host/db/OdResBuf.h"

#include <cstdint>
#include <type_traits>
#include <variant>

namespace inkmacro {

/// Whether the getter for T gives the value as it is recorded, and no neutral one in its place.
template<class T>
bool HoldsForm(const OdResBuf& value)
{
    return std::visit(
        [](const auto& held) {
            using Held = std::decay_t<decltype(held)>;
            if constexpr (std::is_integral_v<T> && std::is_integral_v<Held>)
                return std::is_same_v<T, bool> || static_cast<std::int64_t>(static_cast<T>(held)) == held;
            else
                return std::is_same_v<T, Held>;
        },
        value.value());
}

} // namespace inkmacro
