#pragma once

#include "conversion/Conversion.h"

class MacroFile;

/// Writes the children as one block with its declarations in front. A child that fails ends the command early and
/// nothing more; the result is always kFxSuccess.
std::int32_t ConvertCommand(Conversion& conversion, MacroFile& macro, const CFxString& commandName,
                            const CFxActionArray& children);
/// `text` is input for a custom action (the variable of the object that its command made) and output for all. Gives
/// kFxSuccess or kFxFailure.
std::int32_t ConvertAction(Conversion& conversion, const OdRxObjectPtr& action, Statement& text);
/// The same, with a note of an action that fails, and of the faults that its names have.
std::int32_t ConvertOrLose(Conversion& conversion, const OdRxObjectPtr& action, Statement& text);
/// Notes an action that something thrown below has ended; gives its status. Of what is thrown the user hears at once
/// only that a text outgrew every bound.
std::int32_t FailedAction(const OdRxObjectPtr& action, const OdError& error);
/// Whether it is by rule that nothing is written for the action.
bool IsPassedOver(const Conversion& conversion, const OdRxObject* action);
