#pragma once

#include "targets/EntityList.h"
#include "targets/Writer.h"

QString EmitPromptSelection(Writer& writer, const EntityList& entities);
