#pragma once

#include "host/db/OdDbDimensions.h"

/// The curve that a dimension measures: what it hangs on, whatever the class, or else a curve made after its points,
/// which no drawing holds. Null for a kind of dimension that needs none and hangs on none.
OdDbObjectPtr GetDimensionGeometry(const OdDbDimension& dimension);

/// The objects that an angle between two lines hangs on; null where there are none.
void GetDimensionAssociatedLines(const OdDbDimension& dimension, OdDbObjectPtr& first, OdDbObjectPtr& second);
