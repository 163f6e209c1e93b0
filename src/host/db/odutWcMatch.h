#pragma once

#include "host/rx/Export.h"
#include "host/rx/OdString.h"

/// Whether the whole text fits the pattern: `*` stands for any text, `?` for one character, `[...]` for one of those in
/// it. Upper and lower case are the same.
INKHOST_EXPORT bool odutWcMatchNoCase(const OdString& text, const OdString& pattern);
