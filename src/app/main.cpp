// inkmacro: plays the host around the macro writer.

#include "app/CommandLine.h"
#include "app/ExitStatus.h"
#include "app/MacroMap.h"
#include "app/checking.h"
#include "app/classesPage.h"
#include "app/commandTable.h"
#include "app/completion.h"
#include "app/console.h"
#include "app/conversion.h"
#include "app/earlyEnd.h"
#include "app/fileNames.h"
#include "app/formatting.h"
#include "app/helpPages.h"
#include "app/importing.h"
#include "app/inspection.h"
#include "app/optionNames.h"
#include "app/pages.h"
#include "app/processes.h"
#include "app/report.h"
#include "app/reportSchema.h"
#include "app/runCommand.h"
#include "app/snapshot.h"
#include "app/verification.h"
#include "app/verificationSchema.h"
#include "app/viewing.h"

#include <QCoreApplication>

#include <algorithm>

using namespace inkmacro;

namespace {

/// The projects of the other targets do not look for the application's libraries.
bool usesInstallDir(const TargetRow* row)
{
    return row->target == Target::Cpp || row->target == Target::CppCom;
}

int convert(const CommandLine& line)
{
    const std::vector<Job> jobs = planJobs(line);
    if (line.host.installDir && std::none_of(line.targets.begin(), line.targets.end(), usesInstallDir))
        complain("--install-dir has no effect here: only the targets cpp and cppcom use it");
    if (line.host.optionNames && !readOptionNamesOrComplain(*line.host.optionNames))
        return kUnreadable;
    try {
        ReportDocument report(line.telling);
        const auto add = [&report](const Job& job, std::unique_ptr<ReportPart> part, const Outcome& outcome) {
            report.add(job, std::move(part), outcome);
        };
        const int status = jobs.size() == 1 ? convertAlone(jobs.front(), line.host, line.telling, report)
                                            : convertInProcesses(jobs, line.host, line.telling, add);
        return report.finish(status);
    } catch (const PlacingError& error) {
        complain("the report: " + error.message());
        return kFailed;
    }
}

int run(const CommandLine& line)
{
    switch (line.command) {
    case CommandLine::Command::Convert:
        return convert(line);
    case CommandLine::Command::Inspect:
        return inspectRecording(line.files.front(), {{line.hostCommand, line.handle}, line.depth}, line.json);
    case CommandLine::Command::Run:
        return runCommand(line.files.front(), *line.hostCommand, line.output.value_or(line.files.front()));
    case CommandLine::Command::Check:
        return checkRecordings(line.files, {line.strict, line.json});
    case CommandLine::Command::Format:
        return formatRecording(line.files.front(), line.output.value_or(QString()));
    case CommandLine::Command::Verify:
        return verifyRecording(line.files.front(), line.macro, line.json);
    case CommandLine::Command::View:
        return viewRecording(line);
    case CommandLine::Command::Import:
        return importDrawing(line);
    case CommandLine::Command::Snapshot:
        return showSnapshot(line.files.front(), line.handle, line.json);
    case CommandLine::Command::RecordingSchema:
        printOut(RecordingSchema(schemaNames()));
        break;
    case CommandLine::Command::ReportSchema:
        printOut(reportSchema());
        break;
    case CommandLine::Command::MapSchema:
        printOut(mapSchema());
        break;
    case CommandLine::Command::VerificationSchema:
        printOut(verificationSchema());
        break;
    case CommandLine::Command::Classes:
        printOut(classesPage(line.className));
        break;
    case CommandLine::Command::SystemVariables:
        printOut(systemVariablesPage());
        break;
    case CommandLine::Command::Faults:
        printOut(knownFaultsPage());
        break;
    case CommandLine::Command::Completion:
        printOut(completionFor(line.shell));
        break;
    case CommandLine::Command::Version:
        printOut(QByteArray("inkmacro " INKMACRO_VERSION "\n"));
        break;
    case CommandLine::Command::Help:
        printOut(helpPage(line.row));
        break;
    }
    return kDone;
}

int parseAndRun(int argc, const char* const* argv)
{
    CommandLine line;
    try {
        parseCommandLine(argc, argv, line);
        return run(line);
    } catch (const WrongUse& wrong) {
        complain(wrong.message());
        printLine(QString("Try 'inkmacro %1--help'.").arg(line.row ? QString(line.row->name) + ' ' : QString()));
        return kWrongUse;
    }
}

} // namespace

int main(int argc, char** argv)
{
    prepareStreams();
    prepareEarlyEnd();
    useByteExactNames();
    const std::vector<const char*> arguments(argv, argv + argc);
    const QCoreApplication application(argc, argv);
    return finishOutput(orComplain([&] { return parseAndRun(static_cast<int>(arguments.size()), arguments.data()); }));
}
