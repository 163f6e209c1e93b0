#pragma once

#include "host/db/OdGe.h"
#include "statements/Writer.h"

#include <vector>

Statement EmitPromptPoint(Writer& writer, const CFxString& prompt, const OdGePoint3d& value);
Statement EmitPromptCorner(Writer& writer, const CFxString& prompt, const OdGePoint3d& value);
Statement EmitPromptAngle(Writer& writer, const CFxString& prompt, double value);
Statement EmitPromptDistance(Writer& writer, const CFxString& prompt, double value);
Statement EmitPromptOrient(Writer& writer, const CFxString& prompt, double value);
Statement EmitPromptScale(Writer& writer, const CFxString& prompt, double value);
Statement EmitPromptDouble(Writer& writer, const CFxString& prompt, double value);
Statement EmitPromptColor(Writer& writer, const CFxString& prompt, std::int32_t value);
Statement EmitPromptInteger(Writer& writer, const CFxString& prompt, std::int32_t value);
Statement EmitPromptString(Writer& writer, const CFxString& prompt, const CFxString& value);
/// `global` has at least as many elements as `local`.
Statement EmitPromptKeyword(Writer& writer, const CFxString& prompt, const std::vector<CFxString>& local,
                            const std::vector<CFxString>& global);

/// Whether prompts stand where they were recorded. In Python the answers are parameters of the command's function,
/// which asks for them at its head.
bool AsksWhereRecorded(const Writer& writer);
