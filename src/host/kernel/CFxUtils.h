#pragma once

#include "host/kernel/CFxString.h"

/// Texts that the host shows.
class INKHOST_EXPORT CFxUtils
{
public:
    /// The shown name of a drawing's insert units, 0 (unitless) to 20 (parsecs). Any other number counts as unitless.
    static CFxString GetStringForUnitScalingFactor(int units);
};
