#pragma once

#include "statements/Writer.h"
#include "statements/typeNames.h"

Statement EmitVariableDeclaration(Writer& writer, const ActionEntry& entry);
/// Fetches the layer "0", but in a repaired macro the one that is told.
Statement EmitGetLayer(Writer& writer, const CFxString& variable, const CFxString& layer);
