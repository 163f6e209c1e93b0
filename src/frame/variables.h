#pragma once

#include "host/kernel/CFxString.h"
#include "host/rx/OdRxClass.h"

#include <cstdint>
#include <vector>

/// Class and ordinal of an object that the generated code has a variable for.
struct ActionEntry
{
    const OdRxClass* cls = nullptr;
    std::uint32_t ordinal = 0;
};

/// What the interface calls a class, rewritten for C++ when the recording language is 0.
struct TypeNames
{
    CFxString type;
    CFxString second; ///< object type enumerator
    CFxString lower;  ///< the type in small letters
    CFxString stem;   ///< of its variables: in small letters, without what C++ type names end in
};
/// Null for a class outside the table. Lasts as long as the process.
const TypeNames* FindTypeNames(const OdRxClass* cls);

/// The first two of these names. kFxFailure for a class outside the table; the outputs then stay untouched.
std::int32_t GetApiTypeName(const OdRxClass* cls, CFxString& typeName, CFxString& secondName);

/// Whether GetApiTypeName knows the class.
bool HasInterface(const OdRxClass* cls);

/// The declared name of the class's variable with that ordinal: its stem and the ordinal. Only the ordinal for a class
/// outside the table.
QString NumberedVariable(const OdRxClass* cls, std::uint32_t ordinal);

/// The class of an object in a list, from the list of classes beside it. Raises OdError_InvalidIndex.
const OdRxClass* ClassAt(const std::vector<const OdRxClass*>& classes, std::size_t index);
