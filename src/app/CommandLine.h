#pragma once

#include "dxf/ImportOptions.h"
#include "host/db/OdDbHandle.h"
#include "statements/TargetTable.h"

#include <QStringList>

#include <limits>
#include <optional>
#include <stdexcept>
#include <vector>

namespace inkmacro {

struct CommandRow;

/// The caller asked for something that cannot be begun. Nothing has been written when this is thrown.
class WrongUse : public std::runtime_error
{
public:
    explicit WrongUse(const QString& message) : std::runtime_error(message.toLocal8Bit().toStdString()) {}
    QString message() const { return QString::fromLocal8Bit(what()); }
};

/// What the caller says of the host that `convert` plays.
struct HostSettings
{
    std::optional<int> recordingLanguage; ///< goes before what the recording says
    std::optional<QString> installDir;    ///< where the application is installed
    std::optional<QString> optionNames;   ///< file with the enumerators of system variables' options
    std::optional<QString> lineStyles;    ///< directory of line style files, searched before those of the drawing
    bool replay = false;                  ///< whatever mode the recording says
    bool repair = false;                  ///< macros without their known faults
    bool faithful = false;                ///< and with them, of drawings too
    bool sameIdentifiers = false;         ///< whenever a macro is written
};

/// In which form `convert` tells what its macros lack and where they are faulty.
enum class ReportForm
{
    None,
    Json,
    Text
};

/// What `convert` says of its macros.
struct Telling
{
    ReportForm report = ReportForm::None;
    std::optional<QString> reportFile; ///< else it is printed in place of the list of files
    bool quiet = false;                ///< no counts on standard error
    /// What makes the exit status kFailed when there is any of it.
    bool failsOnLoss = false;
    bool failsOnAssumption = false;
    bool failsOnFault = false;

    bool reportsToOutput() const { return report != ReportForm::None && !reportFile; }
    /// Whether somebody wants to know of faults.
    bool looksAtFaults() const { return !quiet || report != ReportForm::None || failsOnFault; }
};

struct CommandLine
{
    enum class Command
    {
        Convert,
        Inspect,
        Run,
        Check,
        Format,
        Verify,
        View,
        Import,
        Snapshot,
        RecordingSchema,
        ReportSchema,
        MapSchema,
        VerificationSchema,
        Classes,
        SystemVariables,
        Faults,
        Completion,
        Version,
        Help
    };

    Command command = Command::Help;
    const CommandRow* row = nullptr;       ///< of the command; of help, the one that it is about
    QStringList files;                     ///< "-" is standard input, at most once
    std::vector<const TargetRow*> targets; ///< each once, in the order asked for
    std::optional<QString> output;
    std::optional<QString> macro; ///< that is verified in place of the recording's, or shown beside it
    bool svg = false;             ///< a picture in place of a page
    std::optional<QString> space; ///< the name of the one that is drawn
    bool map = false;             ///< a map beside each macro
    bool force = false;           ///< projects of other recordings are replaced
    HostSettings host;
    dxf::ImportOptions import;
    std::optional<QString> since; ///< the older drawing, of which only what changed is imported
    Telling telling;
    OdDbHandle handle;                           ///< of the object that is shown; null for all
    std::optional<QString> hostCommand;          ///< the name of the command that is run, or of those that are shown
    int depth = std::numeric_limits<int>::max(); ///< levels that are shown below the top-level actions

    QString className; ///< of the class that is told; empty for all
    QString shell;     ///< whose completion is printed
    bool json = false;
    bool strict = false; ///< warnings are failures
};

/// Raises WrongUse; `row` is the command's then already, when it has been understood.
void parseCommandLine(int argc, const char* const* argv, CommandLine& line);

QString targetName(const TargetRow& row);
QStringList targetNames();

} // namespace inkmacro
