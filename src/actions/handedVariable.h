#pragma once

#include "conversion/Conversion.h"

namespace inkmacro {

/// What becomes of the variable that a custom action is handed: that of an object which the same command made. It comes
/// in the text that the statements go out by.
enum class HandedVariable
{
    Replaced,   ///< the statements stand in its place
    AppendedTo, ///< the statements stand behind it: the bare name lands in the macro, wrong as it is there
    Kept,       ///< there are no statements, and the bare name lands in the macro alone
};

inline const Fault kBareVariable{
    "EmitObjectVariable",
    {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
    "the bare name of a variable stands in front of the statements"};

/// The variable; empty for an action that is handed none. Handlers begin with it: from there on the text holds what
/// goes into the macro and nothing else.
inline CFxString takeVariable(const Writer& writer, Statement& text, HandedVariable fate)
{
    CFxString variable(text.text());
    text = fate == HandedVariable::Replaced ? Statement() : writer.mended(std::move(text), kBareVariable);
    return variable;
}

} // namespace inkmacro

/// Registers and names the object that the data 3 and 4 of an action tell, unless a name was handed over. False, and no
/// name, for an object whose class is not converted.
bool NameInsertedObject(Conversion& conversion, const CFxCustomAction& action, CFxString& name);
