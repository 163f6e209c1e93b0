#pragma once

#include "statements/Writer.h"
#include "targets/EntityList.h"

Statement EmitPromptSelection(Writer& writer, const EntityList& entities);
