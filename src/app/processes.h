#pragma once

#include "app/jobs.h"

namespace inkmacro {

/// Does each job in a process of its own, as many at a time as there are processors. One that fails does not stop the
/// others. What they print is passed on in the order of the jobs. Gives an exit status.
int convertInProcesses(const std::vector<Job>& jobs, const HostSettings& host, const Telling& telling);

} // namespace inkmacro
