#pragma once

#include "host/kernel/CFxCustomActionData.h"

#include <cstdint>
#include <initializer_list>
#include <span>

namespace inkmacro {

/// What one datum of a custom action means.
struct DatumWords
{
    CFxCustomActionData::_Type type;
    const char* meaning;         ///< a phrase
    const char* value = nullptr; ///< that it must have in this form
    bool makes = false;          ///< it names what the action makes
};

/// One way in which the data of a kind come.
struct DataWords
{
    std::int32_t kind; ///< the first number of its kind
    std::initializer_list<DatumWords> data;
    std::int32_t repeated = 0; ///< so many of the last data may come again and again
};

/// By their kinds, in the order of the forms that handlers.h has for them.
std::span<const DataWords> AllDataWords();

} // namespace inkmacro
