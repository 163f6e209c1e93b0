#pragma once

#include "statements/Writer.h"

#include <vector>

/// Fetches the host object into a fresh variable, whose name comes back.
Statement EmitInterfaceFilesObject(Writer& writer, CFxString& variable);
Statement EmitSystemFilesObject(Writer& writer, CFxString& variable);
Statement EmitDrawingSupportFilesObject(Writer& writer, CFxString& variable);
Statement EmitFileLocationArray(Writer& writer, const CFxString& variable, const CFxString& property,
                                const std::vector<CFxString>& values);
