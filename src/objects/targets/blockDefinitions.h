#pragma once

#include "host/db/OdGe.h"
#include "statements/Writer.h"

#include <vector>

/// A block definition as the host's call takes it.
struct BlockDefinition
{
    CFxString variable;    ///< for an anonymous block that of the reference, from whose name the definition's is made
    CFxString name;        ///< anonymousBlockName for one without a name
    bool renewed = false;  ///< the definition stands in the variable already, and keeps the name that it has there
    CFxString description; ///< as it stands within quotes
    OdGePoint3d origin;
    std::vector<QString> entities; ///< variables
    std::vector<QString> types;    ///< an enumerator of iwObjectType_e for each
};

/// What comes ahead of the statements that make the block's entities: an anonymous block's definition needs a variable.
Statement EmitOpenBlockDefinition(Writer& writer, const BlockDefinition& definition);
/// Moves the entities from the drawing into the block. The name that the host gives an anonymous one is fetched into
/// the text variable that EmitInsertBlock names.
Statement EmitCreateBlockDefinition(Writer& writer, const BlockDefinition& definition);
