#pragma once

#include "host/kernel/CFxString.h"

#include <utility>

namespace inkmacro {

/// What becomes of the variable that a custom action is handed: that of an object which the same command made. It comes
/// in the text that the statements go out by.
enum class HandedVariable
{
    Replaced,   ///< the statements stand in its place
    AppendedTo, ///< the statements stand behind it: the bare name lands in the macro, wrong as it is there
    Kept,       ///< there are no statements, and the bare name lands in the macro alone
};

/// The variable; empty for an action that is handed none. Handlers begin with it: from there on the text holds what
/// goes into the macro and nothing else.
inline CFxString takeVariable(QString& text, HandedVariable fate)
{
    return fate == HandedVariable::Replaced ? CFxString(std::exchange(text, QString())) : CFxString(text);
}

} // namespace inkmacro
