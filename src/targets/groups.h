#pragma once

#include "statements/Writer.h"

#include <vector>

Statement EmitGroupAddEntities(Writer& writer, const std::vector<CFxString>& names, const CFxString& group);
Statement EmitGroupRemoveEntities(Writer& writer, const std::vector<CFxString>& names, const CFxString& group);
