#pragma once

#include "host/db/OdDbObject.h"
#include "host/kernel/CFxString.h"

/// What a block definition is to be made of.
struct BlockContents
{
    CFxString variable;    ///< of the definition; for an anonymous block that of the reference
    CFxString name;        ///< anonymousBlockName for one without a name
    bool renewed = false;  ///< the variable holds the definition already, which then keeps the name that it has there
    CFxString description; ///< its line feeds as backslash and n
    OdGePoint3d origin;
    OdArray<OdDbObjectId> ids;
};
