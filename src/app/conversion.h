#pragma once

#include "app/jobs.h"

namespace inkmacro {

class ReportDocument;
class ReportPart;
struct Recording;

/// Has the module write a macro of the recording, as the host would, and what is noted of it. Gives a status of the
/// module.
std::int32_t runModule(const TargetRow& target, const QString& macro, const Recording& recording,
                       const HostSettings& host);

/// Does one job in this process, which can do no more than one: the module keeps state for the whole process. Gives an
/// exit status, and to the part, when a report is asked for, what the report tells of the job.
int convertOne(const Job& job, const HostSettings& host, const Telling& telling, ReportPart* part);

/// The same with a job that is the only one of a report.
int convertAlone(const Job& job, const HostSettings& host, const Telling& telling, ReportDocument& report);

} // namespace inkmacro
