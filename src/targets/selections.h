#pragma once

#include "host/db/OdGe.h"
#include "host/rx/OdArray.h"
#include "statements/Writer.h"

#include <vector>

/// `hasManager`: the selection manager's variable stands already. Raises OdError_InvalidIndex when a selection by
/// point has none.
Statement EmitSelectEntities(Writer& writer, std::int32_t mode, const OdArray<OdGePoint3d>& points, bool hasManager);
Statement EmitSelectionFilter(Writer& writer, const OdArray<OdGePoint3d>& points, std::int32_t mode,
                              const std::vector<CFxString>& typeNames);
