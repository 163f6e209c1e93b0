#pragma once

#include "app/CommandLine.h"
#include "app/jobs.h"
#include "recordfile/Recording.h"

#include <optional>

class CFxConversionNotes;

namespace inkmacro {

/// What the module has noted of a conversion, and the recording that it is about.
struct Noted
{
    const CFxConversionNotes* notes;
    const Recording* recording;
};

/// The place of an action within its line, as the recording file's errors name it; empty for the whole line.
QString pathOf(const std::vector<std::uint32_t>& place);
/// From 1; 0 for no place.
qint64 lineOf(const std::vector<std::uint32_t>& place, const Recording& recording);

/// The report of a call while it is printed: one part a job, in the order of the jobs, and all of them one document.
class ReportDocument
{
public:
    explicit ReportDocument(ReportForm form);
    ~ReportDocument();
    ReportDocument(const ReportDocument&) = delete;
    ReportDocument& operator=(const ReportDocument&) = delete;

    /// Comes before each part.
    void beginPart();

private:
    const ReportForm form_;
    bool first_ = true;
};

/// Prints the part of one job: without `noted` nothing is lost and there are no faults. `status` is an ExitStatus.
void printPart(const Job& job, int status, ReportForm form, const std::optional<Noted>& noted = {});

/// "3 steps lost, 1 value assumed, 2 faults", without what there is none of; empty when there is nothing.
QString countText(const CFxConversionNotes& notes);

/// The JSON Schema of a report in the form Json.
QByteArray reportSchema();

} // namespace inkmacro
