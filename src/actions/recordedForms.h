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
    if constexpr (std::is_integral_v<T>) {
        return std::visit(
            [](const auto& held) {
                if constexpr (!std::is_integral_v<std::decay_t<decltype(held)>>)
                    return false;
                else
                    return std::is_same_v<T, bool> || static_cast<std::int64_t>(static_cast<T>(held)) == held;
            },
            value.value());
    } else {
        return std::holds_alternative<T>(value.value());
    }
}

} // namespace inkmacro
