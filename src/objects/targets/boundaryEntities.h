#pragma once

#include "host/db/OdDbObject.h"
#include "statements/Writer.h"

#include <vector>

/// An object that a hatch's boundary follows, erased or not, and the variable that the macro has for it, if any.
struct BoundaryObject
{
    OdDbObjectId id;
    QString variable;
};

/// What a boundary becomes. Objects with a variable are only named; the others are made anew, as temporary entities.
struct BoundaryEntities
{
    std::vector<QString> names; ///< variables, in the order of the boundary
    Statement insertion;        ///< makes the temporary entities
    Statement erasure;          ///< takes them away again
};

/// Objects of kinds that no hatch is made from are left out, whether they have a variable or not. One that the drawing
/// does not have raises an OdError at its turn: the entities ahead of it have used up their numbers.
BoundaryEntities EmitBoundaryEntities(Writer& writer, const std::vector<BoundaryObject>& boundary);
/// Makes the curves around a region and the region from them. Curves of other kinds than circle, ellipse, arc and line
/// are left out. The curves stay in the drawing.
Statement EmitRegionBoundaryCurves(Writer& writer, const CFxString& variable, const OdArray<OdDbObjectPtr>& pieces);
