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

/// Type name and object type enumerator of a class, rewritten for C++ when the recording language is 0. kFxFailure for
/// a class outside the table; the outputs then stay untouched.
std::int32_t GetApiTypeName(const OdRxClass* cls, CFxString& typeName, CFxString& secondName);

/// Whether GetApiTypeName knows the class.
bool HasInterface(const OdRxClass* cls);

/// The declared name of the class's variable with that ordinal: the type name in small letters, without what C++ type
/// names end in. Only the ordinal for a class outside the table.
QString NumberedVariable(const OdRxClass* cls, std::uint32_t ordinal);
/// Removes what C++ type names end in, wherever it stands.
void StripPointerSuffixes(CFxString& typeName);

/// The class of an object in a list, from the list of classes beside it. Raises OdError_InvalidIndex.
const OdRxClass* ClassAt(const std::vector<const OdRxClass*>& classes, std::size_t index);
