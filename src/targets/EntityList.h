#pragma once

#include "host/kernel/CFxString.h"

#include <vector>

/// The objects that a statement works on, element by element.
struct EntityList
{
    std::vector<CFxString> names;   ///< variable; empty for an object that the generated code does not know
    std::vector<CFxString> types;   ///< enumerator of iwObjectType_e; empty where the name is
    std::vector<CFxString> handles; ///< hexadecimal
};
