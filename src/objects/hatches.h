#pragma once

#include "conversion/Names.h"
#include "conversion/ValueForm.h"
#include "objects/targets/boundaryEntities.h"

#include <functional>

/// Takes the value of a tag out of the records of an object; null for a tag that is not there.
using TakeTag = std::function<CFxVariant(const char* tag, const ValueForm& form)>;

/// What no insertion call has an argument for: inner regions and the pattern's origin. Empty when the records have none
/// of it. `pattern` is the variable of the hatch's pattern object.
Statement ConvertHatchCommonProperties(Writer& writer, const CFxString& pattern, const TakeTag& take);

/// The objects that a hatch's boundary follows, each of them once, with the variables of those that were added before.
std::vector<BoundaryObject> BoundaryObjects(const Names& names, const OdArray<OdDbObjectId>& ids);
