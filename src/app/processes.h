#pragma once

#include "app/ReportPart.h"
#include "app/jobs.h"

#include <memory>

namespace inkmacro {

/// The outcome holds for a part that is missing or not whole.
using TakeResult = std::function<void(const Job&, std::unique_ptr<ReportPart>, const Outcome&)>;

/// Does each job in a process of its own, as many at a time as there are processors. One that fails does not stop the
/// others. What they print is passed on in the order of the jobs, and `take` gets what came of each, with its part of
/// the report, when one is asked for. Gives an exit status.
int convertInProcesses(const std::vector<Job>& jobs, const HostSettings& host, const Telling& telling,
                       const TakeResult& take);

} // namespace inkmacro
