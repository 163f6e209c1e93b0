#pragma once

#include "conversion/Conversion.h"
#include "host/kernel/CFxStatus.h"
#include "targets/Answer.h"

#include <optional>

// The actions that are no objects. Each gives kFxSuccess or kFxFailure.

std::int32_t ConvertInteraction(Conversion& conversion, const CFxUserInteraction& interaction, Statement& text);
/// What was asked and answered; nothing of a prompt that was cancelled or is of no known kind. The caller says which
/// action it is.
std::optional<inkmacro::Prompt> ReadPrompt(const CFxUserInteraction& interaction);
std::int32_t ConvertSysVar(Conversion& conversion, const CFxSysVarChanged& variable, Statement& text);
std::int32_t ConvertSelection(Conversion& conversion, const CFxUserSelection& selection, Statement& text);
/// The one place where an action is refused for its number or the form of its data. `text` is the variable of the
/// object that its command made, and becomes the statements.
std::int32_t ConvertCustomAction(Conversion& conversion, const CFxCustomAction& action, Statement& text);

/// Enumerator and kind (an OptionKind's number) of the document's option for a system variable. kFxFailure for a
/// variable that has none; then the name is empty and the kind -1.
std::int32_t FindCommandOption(const CFxString& variable, CFxString& enumerator, std::int32_t& kind);
/// The same of the application's option.
std::int32_t FindApplicationOption(const CFxString& variable, CFxString& enumerator, std::int32_t& kind);
