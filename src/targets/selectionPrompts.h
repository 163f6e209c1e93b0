#pragma once

#include "statements/Writer.h"
#include "targets/EntityList.h"

QString EmitPromptSelection(Writer& writer, const EntityList& entities);
