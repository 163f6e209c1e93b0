#pragma once

#include "host/db/OdGe.h"
#include "statements/Writer.h"

/// The name that stands for a block which has none of its own.
inline constexpr QLatin1String anonymousBlockName("*U", 2);

/// Where a block, a picture or a shape stands.
struct Placement
{
    OdGePoint3d position;
    OdGeScale3d scales;
    double rotation = 0.0; ///< radians
};

/// An anonymous block is told by the text variable that the statements which define it have filled: see
/// EmitCreateBlockDefinition.
Statement EmitInsertBlock(Writer& writer, const CFxString& block, const Placement& placement, const CFxString& name);
/// The host's call takes the scales along X and Y alone.
Statement EmitInsertExternalReference(Writer& writer, const CFxString& path, const OdGePoint3d& position,
                                      const OdGeScale3d& scales, const CFxString& name);
/// `rotation` is in radians, as the next one's is.
Statement EmitInsertPicture(Writer& writer, const CFxString& path, const OdGePoint3d& position, double scale,
                            double rotation, const CFxString& name);
Statement EmitInsertShape(Writer& writer, const CFxString& shape, const OdGePoint3d& position, double size,
                          double rotation, const CFxString& name);

/// Sets a property of the block reference's attribute of that tag.
Statement EmitBlockAttributeValue(Writer& writer, const CFxString& variable, const CFxString& property,
                                  const CFxString& tag, const CFxString& value);
