#pragma once

#include "app/jobs.h"

namespace inkmacro {

/// Does one job in this process, which can do no more than one: the module keeps state for the whole process.
/// `recordingLanguage` overrides what the recording says. Gives an exit status.
int convertOne(const Job& job, std::optional<int> recordingLanguage);

} // namespace inkmacro
