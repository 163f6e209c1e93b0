#include "app/CommandLine.h"

#include <CLI/CLI.hpp>

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace inkmacro {

namespace {

QString codeOf(const TargetRow& row)
{
    return QString::number(static_cast<int>(row.target));
}

QString knownTargets()
{
    QStringList known;
    for (const TargetRow& row : targetTable)
        known.append(QString("%1 (%2)").arg(targetName(row), codeOf(row)));
    return known.join(", ") + ", all";
}

std::vector<const TargetRow*> rowsOf(const QString& word)
{
    std::vector<const TargetRow*> rows;
    for (const TargetRow& row : targetTable)
        if (word == "all" || word == targetName(row) || word == codeOf(row))
            rows.push_back(&row);
    if (rows.empty())
        throw WrongUse(QString("unknown target \"%1\"; known are %2").arg(word, knownTargets()));
    return rows;
}

std::vector<const TargetRow*> parseTargets(const QString& list)
{
    std::vector<const TargetRow*> targets;
    for (const QString& word : list.split(','))
        for (const TargetRow* row : rowsOf(word.trimmed()))
            if (std::find(targets.begin(), targets.end(), row) == targets.end())
                targets.push_back(row);
    return targets;
}

/// The arguments behind the program's name, last first, as the parser wants them. It would read a name in brackets as a
/// list and `++` as the end of a command, so these names are made paths.
std::vector<std::string> reversedArguments(int argc, const char* const* argv)
{
    std::vector<std::string> arguments;
    for (int i = argc - 1; i > 0; --i) {
        const std::string argument = argv[i];
        const bool bracketed = argument.size() > 1 && argument.front() == '[' && argument.back() == ']';
        arguments.push_back(bracketed || argument == "++" ? "./" + argument : argument);
    }
    return arguments;
}

QStringList decodeNames(const std::vector<std::string>& names)
{
    QStringList decoded;
    for (const std::string& name : names)
        decoded.append(QFile::decodeName(name.c_str()));
    return decoded;
}

QString decodeName(const std::string& name)
{
    return QFile::decodeName(name.c_str());
}

/// What the parser fills in.
struct RawArguments
{
    std::vector<std::string> files;
    std::string targets;
    std::optional<std::string> output;
    std::optional<std::string> installDir;
    std::optional<std::string> optionNames;
    std::optional<std::string> lineStyles;
    std::string handle;
    std::string hostCommand;
    std::optional<int> recordingLanguage;
    std::string report;
    std::string schemaOf = "recording";
    bool replay = false;
    bool quiet = false;
    bool repair = false;
    bool json = false;
    bool version = false;
};

CommandLine::Command commandOf(const CLI::App& app, const RawArguments& raw)
{
    if (raw.version)
        return CommandLine::Command::Version;
    const std::string name = app.get_subcommands().empty() ? "help" : app.get_subcommands().front()->get_name();
    if (name == "convert")
        return CommandLine::Command::Convert;
    if (name == "inspect")
        return CommandLine::Command::Inspect;
    if (name == "run")
        return CommandLine::Command::Run;
    if (name == "check")
        return CommandLine::Command::Check;
    if (name == "snapshot")
        return CommandLine::Command::Snapshot;
    if (name == "faults")
        return CommandLine::Command::Faults;
    if (name == "schema")
        return raw.schemaOf == "report" ? CommandLine::Command::ReportSchema : CommandLine::Command::RecordingSchema;
    return name == "system-variables" ? CommandLine::Command::SystemVariables : CommandLine::Command::Help;
}

OdDbHandle parseHandle(const QString& text)
{
    static const QRegularExpression digits("\\A[0-9A-Fa-f]{1,16}\\z");
    const OdDbHandle handle(text.toULongLong(nullptr, 16));
    if (!digits.match(text).hasMatch() || handle.isNull())
        throw WrongUse(QString("--handle: \"%1\" is not a handle, which is a hexadecimal number").arg(text));
    return handle;
}

QString parseDirectory(const char* option, const QString& path)
{
    if (!QFileInfo(path).isDir())
        throw WrongUse(QString("%1: \"%2\" is not a directory").arg(option, path));
    return path;
}

void checkFiles(const QStringList& files)
{
    if (files.contains(QString()))
        throw WrongUse("a file name is empty");
    if (files.count("-") > 1)
        throw WrongUse("standard input (-) is given more than once");
}

void declareArguments(CLI::App& app, RawArguments& raw)
{
    app.require_subcommand(0, 1);
    app.add_flag("--version", raw.version);

    CLI::App* const convert = app.add_subcommand("convert");
    convert->add_option("FILE", raw.files)->required();
    convert->add_option("--target", raw.targets)->required();
    convert->add_option("--output", raw.output);
    convert->add_flag("--replay", raw.replay);
    // A flag with a value takes no argument behind it, which may be a file.
    convert->add_flag("--report{json}", raw.report)->check(CLI::IsMember({"json", "text"}));
    convert->add_flag("--quiet", raw.quiet);
    convert->add_flag("--repair", raw.repair);
    convert->add_option("--recording-language", raw.recordingLanguage)->check(CLI::Range(0, 5));
    convert->add_option("--install-dir", raw.installDir);
    convert->add_option("--option-names", raw.optionNames);
    convert->add_option("--line-styles", raw.lineStyles);
    CLI::App* const inspect = app.add_subcommand("inspect");
    inspect->add_option("FILE", raw.files)->required()->expected(1);
    inspect->add_flag("--json", raw.json);
    app.add_subcommand("check")->add_option("FILE", raw.files)->required();
    CLI::App* const snapshot = app.add_subcommand("snapshot");
    snapshot->add_option("FILE", raw.files)->required()->expected(1);
    snapshot->add_option("--handle", raw.handle)->required();
    snapshot->add_flag("--json", raw.json);
    CLI::App* const run = app.add_subcommand("run");
    run->add_option("FILE", raw.files)->required()->expected(1);
    run->add_option("--command", raw.hostCommand)->required();
    run->add_option("--output", raw.output);
    app.add_subcommand("schema")->add_option("WHAT", raw.schemaOf)->check(CLI::IsMember({"recording", "report"}));
    app.add_subcommand("system-variables");
    app.add_subcommand("faults");
}

HostSettings hostSettings(const RawArguments& raw)
{
    HostSettings host;
    host.recordingLanguage = raw.recordingLanguage;
    if (raw.installDir)
        host.installDir = decodeName(*raw.installDir);
    if (raw.optionNames)
        host.optionNames = decodeName(*raw.optionNames);
    if (raw.lineStyles)
        host.lineStyles = parseDirectory("--line-styles", decodeName(*raw.lineStyles));
    host.replay = raw.replay;
    host.repair = raw.repair;
    return host;
}

} // namespace

QString targetName(const TargetRow& row)
{
    return QString::fromLatin1(row.name.data(), static_cast<int>(row.name.size()));
}

CommandLine parseCommandLine(int argc, const char* const* argv)
{
    RawArguments raw;
    CLI::App app;
    declareArguments(app, raw);

    CommandLine line;
    try {
        app.parse(reversedArguments(argc, argv));
    } catch (const CLI::CallForHelp&) {
        return line;
    } catch (const CLI::ParseError& error) {
        throw WrongUse(decodeName(error.what()));
    }
    if (app.get_subcommands().empty() && !raw.version)
        throw WrongUse("a command is missing");

    line.command = commandOf(app, raw);
    line.files = decodeNames(raw.files);
    checkFiles(line.files);
    line.json = raw.json;
    line.telling.quiet = raw.quiet;
    if (!raw.report.empty())
        line.telling.report = raw.report == "text" ? ReportForm::Text : ReportForm::Json;
    if (line.command == CommandLine::Command::Convert)
        line.targets = parseTargets(decodeName(raw.targets));
    if (line.command == CommandLine::Command::Snapshot)
        line.handle = parseHandle(decodeName(raw.handle));
    if (line.command == CommandLine::Command::Run) {
        if (line.files.front() == "-")
            throw WrongUse("run reads answers from standard input, so the recording must be a file");
        line.hostCommand = decodeName(raw.hostCommand);
    }
    if (raw.output) {
        if (raw.output->empty())
            throw WrongUse("--output is empty");
        line.output = decodeName(*raw.output);
        if (line.command == CommandLine::Command::Run && line.output->endsWith('/'))
            throw WrongUse(QString("--output: \"%1\" is a directory, and run writes a file").arg(*line.output));
    }
    line.host = hostSettings(raw);
    return line;
}

QString helpText()
{
    QString targets;
    for (const TargetRow& row : targetTable)
        targets += QString("  %1 (code %2)\n").arg(targetName(row), codeOf(row));
    return QString(R"(inkmacro turns recordings of Inkwright into macro projects.

Usage:
  inkmacro convert FILE... --target TARGET[,TARGET...]|all [--output PATH]
                   [--replay] [--repair] [--recording-language N]
                   [--install-dir DIR] [--option-names FILE]
                   [--line-styles DIR] [--report[=text]] [--quiet]
  inkmacro inspect FILE [--json]
  inkmacro check FILE...
  inkmacro snapshot FILE --handle H [--json]
  inkmacro run FILE --command NAME [--output FILE]
  inkmacro schema [recording|report]
  inkmacro system-variables
  inkmacro faults
  inkmacro --version | --help

Commands:
  convert  write each recording as a macro, and the project around it, in each
           of the targets
  inspect  show the actions of a recording as a tree, with counts; with --json
           as one JSON document
  check    read recordings and say what is wrong with them; writes nothing
  snapshot show what the recorder's snapshot adds for the object of the drawing
           that has the handle H, beside what the host's property sheet shows;
           with --json as one JSON array
  run      run a command of the macro writer on the drawing of a recording:
           -HYPERLINK or -LINESTYLE, with or without a leading underscore, in
           any case
  schema   print the JSON Schema of one line of a recording, or of the report of
           convert
  system-variables
           print, as a page in Markdown, the system variables that convert
  faults   print, as a page in Markdown, the known faults of macros that are
           not repaired

FILE is a recording; - is standard input. Behind -- all arguments are files,
whatever they begin with.

Targets:
%1  all: each of them

Options of convert:
  --output PATH
      The macro file, or a directory (it ends in / or exists): then a folder
      with the name of the target is made in it for each target, and the macro
      is named after the recording: walls.jsonl becomes PATH/csharp/walls.cs,
      standard input PATH/csharp/recording.cs. Of several recordings each has
      a folder of its own in front: PATH/walls/csharp/walls.cs. Without this
      option the current directory is taken. Existing files are replaced when
      the new ones are whole, and stay when a conversion fails or is broken
      off; a recording that is being read is never replaced.
  --replay
      The macro stops where the recorded command asked its user something,
      offers the recorded answer, and sets the system variables that changed.
      Without it the recording's header says.
  --repair
      Without it a macro is as the application's own recorder writes it, with
      faults by which its language or its host rejects it; and a recorded text
      with a quotation mark in it can become code. With it they are mended: all
      that the user entered stays text.
  --recording-language N
      The host setting that decides on the byte order mark and on the form of
      type names, 0 to 5. Without it the recording's header says, or else the
      code of the target is taken.
  --install-dir DIR
      Where the application is installed, as C:\Inkwright\ with a backslash at
      its end: the C++ projects look for its libraries below it.
  --option-names FILE
      The names by which the interface knows the options of system variables: a
      JSON object of variables and enumerators, like
      {"LTSCALE": "iwCommandOptionDouble_SetLTSCALE"}. They replace those that
      system-variables shows. Nothing is converted when the file is faulty.
  --line-styles DIR
      Where files of line styles (*.lin) are: a macro loads a recorded line
      style from the first of them that holds it, those of the folders that
      the recording names coming behind. A style without a file is loaded
      under an empty file name, which is reported.
  --report[=text]
      Print in place of the paths, as one JSON document, what each macro lacks
      of what the user did, with its place in the recording, and where macro and
      project are rejected or misread by their own language or host, with the
      line and whether --repair mends it. With =text as tables for a person.
  --quiet
      Do not count on standard error what a macro lacks and its faults.

Run asks on standard output, a line a prompt, and takes a line of standard
input as the answer; at a terminal it can be edited, and Tab completes it. An
option is entered by its capital letters, by its beginning or whole, an empty
line takes the one in <>. A point is x,y or x,y,z; entities are handles with
blanks between them, or all. Ctrl+C, Esc with Enter and the end of input cancel
the command. When it has ended well the recording with the changed drawing
replaces FILE, or is written to the file of --output; else nothing is written.
When somebody else has changed FILE meanwhile it stays as it is, and the new
recording goes to FILE.new, or FILE.new2 and so on, which is never replaced.

Several files or targets are converted side by side; one that fails does not
stop the others. Standard output holds the paths written, one a line, the macro
before its project; messages go to standard error, and so does a line like
"walls.cs: 3 steps lost, 2 faults; see --report" for each macro that has any.
Messages show control letters and those that turn the direction of writing as
\x1b or \u202e. Standard output holds paths and JSON as they are, unless it is
a terminal.

Exit status:
  0  all was done
  1  a conversion failed, or a command ended in another way than well
  2  wrong use: nothing was read or written
  3  a recording could not be read: nothing was written for it; or the file of
     --option-names could not: nothing was written at all
  128 and its number when SIGINT, SIGTERM or SIGHUP ended the program
)")
        .arg(targets);
}

} // namespace inkmacro
