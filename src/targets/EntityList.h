#pragma once

#include "host/kernel/CFxString.h"

#include <vector>

/// An object that a statement works on.
struct ListedEntity
{
    CFxString name;   ///< variable; empty for an object that the generated code does not know
    CFxString type;   ///< enumerator of iwObjectType_e; empty where the name is
    CFxString handle; ///< hexadecimal
};

using EntityList = std::vector<ListedEntity>;
