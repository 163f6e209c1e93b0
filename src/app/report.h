#pragma once

#include "app/CommandLine.h"
#include "app/ReportPart.h"
#include "app/StagedResult.h"
#include "app/jobs.h"

#include <QFile>

#include <memory>
#include <optional>
#include <vector>

namespace inkmacro {

class CommonNotes;

/// The report of a call, to which the parts of its jobs are added in their order. It goes to standard output, or to a
/// file that is there when it is whole.
class ReportDocument
{
public:
    /// The file stays in `home`, when there is one. Raises PlacingError when it cannot be made.
    explicit ReportDocument(const Telling& telling, const StagingFolder* home = nullptr);

    /// `otherwise` holds for a part that is missing or not whole.
    void add(const Job& job, std::unique_ptr<ReportPart> part, const Outcome& otherwise);

    /// Behind the last part. Gives the exit status, raised to kFailed with a message when the file cannot be written.
    int finish(int status);

private:
    struct Conversion
    {
        const Job* job;
        std::unique_ptr<ReportPart> part; ///< null when there is none, or it is not whole
        Outcome outcome;
    };

    void print(const QByteArray& bytes);
    void print(const QString& text) { print(text.toLocal8Bit()); }
    void printJson(const Conversion& conversion);
    void printRecording();
    void printText(const Conversion& conversion, const CommonNotes& common);

    const ReportForm form_;
    const QString path_; ///< empty for standard output
    std::optional<StagedResult> result_;
    QFile file_;
    bool first_ = true;
    std::vector<Conversion> waiting_; ///< of one recording: what they have in common is told once
};

} // namespace inkmacro
