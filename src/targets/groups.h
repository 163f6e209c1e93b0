#pragma once

#include "statements/Writer.h"

#include <vector>

QString EmitGroupAddEntities(Writer& writer, const std::vector<CFxString>& names, const CFxString& group);
QString EmitGroupRemoveEntities(Writer& writer, const std::vector<CFxString>& names, const CFxString& group);
