#pragma once

#include "conversion/Conversion.h"

/// Which part of a collection's elements holds the handles.
enum class HandlesIn
{
    Tags,
    Values
};

/// The objects of a collection that has their handles as texts; none of a value that is no collection.
OdArray<OdDbObjectId> ObjectsOf(const CFxVariant& collection, HandlesIn place);

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

/// Statements that make a block definition of entities which have a variable. The others are left out, but for the few
/// kinds that are drawn for it.
Statement CreateBlockDefinition(Conversion& conversion, const BlockContents& contents);
