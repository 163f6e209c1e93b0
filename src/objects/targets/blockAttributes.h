#pragma once

#include "statements/Writer.h"

/// Sets a property of the block reference's attribute of that tag.
Statement EmitBlockAttributeValue(Writer& writer, const CFxString& variable, const CFxString& property,
                                const CFxString& tag, const CFxString& value);
