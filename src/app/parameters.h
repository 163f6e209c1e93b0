#pragma once

#include "host/kernel/CFxConversionNotes.h"
#include "host/rx/OdRxObject.h"

#include <map>

namespace inkmacro {

struct Recording;

/// The answers that a Python macro has as parameters, by their prompts.
using PromptParameters = std::map<const OdRxObject*, CFxParameterNote>;

/// Has the module write that macro, into a folder that is removed, where the recording has prompts. Raises
/// std::system_error when there is no folder for it.
PromptParameters parametersOf(const Recording& recording);

} // namespace inkmacro
