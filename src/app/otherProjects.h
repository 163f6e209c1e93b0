#pragma once

#include "app/jobs.h"

namespace inkmacro {

/// Why these jobs may not write where they would: files of their projects are shared names, and a project of another
/// recording has them there. Empty when none is in the way, and of jobs that are told to replace it.
QString otherProjectsIn(const std::vector<Job>& jobs);

} // namespace inkmacro
