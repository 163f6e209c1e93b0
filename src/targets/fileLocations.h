#pragma once

#include "statements/Writer.h"

#include <vector>

/// Fetches the host object into a fresh variable, whose name comes back.
QString EmitInterfaceFilesObject(Writer& writer, CFxString& variable);
QString EmitSystemFilesObject(Writer& writer, CFxString& variable);
QString EmitDrawingSupportFilesObject(Writer& writer, CFxString& variable);
QString EmitFileLocationArray(Writer& writer, const CFxString& variable, const CFxString& property,
                              const std::vector<CFxString>& values);
