#pragma once

#include "frame/variables.h"
#include "targets/Writer.h"

QString EmitVariableDeclaration(Writer& writer, const ActionEntry& entry);
QString EmitGetLayer(Writer& writer, const CFxString& variable);
