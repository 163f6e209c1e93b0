#pragma once

#include "host/db/OdGe.h"
#include "statements/Writer.h"

#include <vector>

QString EmitPromptPoint(Writer& writer, const CFxString& prompt, const OdGePoint3d& value);
QString EmitPromptCorner(Writer& writer, const CFxString& prompt, const OdGePoint3d& value);
QString EmitPromptAngle(Writer& writer, const CFxString& prompt, double value);
QString EmitPromptDistance(Writer& writer, const CFxString& prompt, double value);
QString EmitPromptOrient(Writer& writer, const CFxString& prompt, double value);
QString EmitPromptScale(Writer& writer, const CFxString& prompt, double value);
QString EmitPromptDouble(Writer& writer, const CFxString& prompt, double value);
QString EmitPromptColor(Writer& writer, const CFxString& prompt, std::int32_t value);
QString EmitPromptInteger(Writer& writer, const CFxString& prompt, std::int32_t value);
QString EmitPromptString(Writer& writer, const CFxString& prompt, const CFxString& value);
/// `global` has at least as many elements as `local`.
QString EmitPromptKeyword(Writer& writer, const CFxString& prompt, const std::vector<CFxString>& local,
                          const std::vector<CFxString>& global);
