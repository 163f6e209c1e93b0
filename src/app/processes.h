#pragma once

#include "app/report.h"

namespace inkmacro {

/// Does each job in a process of its own, as many at a time as there are processors. One that fails does not stop the
/// others. What they print is passed on in the order of the jobs, and their parts are added to the report, when one is
/// asked for. Gives an exit status.
int convertInProcesses(const std::vector<Job>& jobs, const HostSettings& host, const Telling& telling,
                       ReportDocument& report);

} // namespace inkmacro
