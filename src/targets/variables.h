#pragma once

#include "statements/Writer.h"
#include "statements/typeNames.h"

QString EmitVariableDeclaration(Writer& writer, const ActionEntry& entry);
/// Fetches the layer "0", but in a repaired macro the one that is told.
QString EmitGetLayer(Writer& writer, const CFxString& variable, const CFxString& layer);
