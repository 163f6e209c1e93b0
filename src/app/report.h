#pragma once

#include "app/CommandLine.h"
#include "app/jobs.h"
#include "recordfile/Recording.h"

#include <QJsonArray>
#include <QJsonObject>

class CFxConversionNotes;

namespace inkmacro {

/// What is told of one job in a report: nothing lost, no faults. `status` is an ExitStatus.
QJsonObject reportOf(const Job& job, int status);

/// Puts what the module has noted into the report of its job.
void addNotes(QJsonObject& report, const CFxConversionNotes& notes, const Recording& recording);

/// "3 steps lost, 2 faults", without what there is none of; empty when there is neither.
QString countText(std::size_t losses, std::size_t faults);

/// Prints the reports of all jobs as one.
void printReport(const QJsonArray& reports, ReportForm form);

/// Of what another process of this program has printed in the form Json about one job; empty when that is no report.
QJsonObject reportFrom(const QByteArray& printed);

/// The JSON Schema of a report in the form Json.
QByteArray reportSchema();

} // namespace inkmacro
