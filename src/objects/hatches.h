#pragma once

#include "host/kernel/CFxVariant.h"
#include "statements/Writer.h"

#include <functional>

/// Takes the value of a tag out of the records of an object; null for a tag that is not there.
using TakeTag = std::function<CFxVariant(const char* tag)>;

/// What no insertion call has an argument for: inner regions and the pattern's origin. Empty when the records have none
/// of it. `pattern` is the variable of the hatch's pattern object.
QString ConvertHatchCommonProperties(Writer& writer, const CFxString& pattern, const TakeTag& take);
