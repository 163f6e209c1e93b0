#pragma once

#include "app/jobs.h"

namespace inkmacro {

/// Does one job in this process, which can do no more than one: the module keeps state for the whole process. Of a
/// report it prints the part of the job. Gives an exit status.
int convertOne(const Job& job, const HostSettings& host, const Telling& telling);

} // namespace inkmacro
