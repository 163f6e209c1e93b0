#include "app/commandTable.h"

#include "app/classesPage.h"
#include "app/completion.h"
#include "app/optionValues.h"

#include <algorithm>

namespace inkmacro {

namespace {

using Command = CommandLine::Command;

const OptionRow helpOption = {
    .name = "--help",
    .letter = 'h',
    .take = [](CommandLine& line, const QString&) { line.command = Command::Help; },
    .meaning = "tell how it is used",
    .text = "Show this text.",
};

const OptionRow versionOption = {
    .name = "--version",
    .take = [](CommandLine& line, const QString&) { line.command = Command::Version; },
    .meaning = "tell the version of the program",
    .text = "Show the version of the program.",
};

const OptionRow jsonOption = {
    .name = "--json",
    .take = [](CommandLine& line, const QString&) { line.json = true; },
    .meaning = "print JSON",
    .text = "Print one JSON document, for programs.",
};

const std::vector<OptionRow> convertOptions = {
    {
        .name = "--target",
        .letter = 't',
        .form = "TARGET[,TARGET...]|all",
        .offer = Offer::Lists,
        .words = [] { return targetNames() + QStringList("all"); },
        .take = takeTargets,
        .meaning = "the languages to write",
        .text = R"(The languages to write, by names or codes in any case, or all of them.
Blanks may stand behind the commas, and the option may be given again.)",
        .required = true,
        .repeats = true,
    },
    {
        .name = "--output",
        .letter = 'o',
        .form = "PATH",
        .offer = Offer::Files,
        .take = takeOutput,
        .meaning = "where to write",
        .text = R"(The macro file, or a directory: when it ends in / or is one, and when
there are several results. Then a folder with the name of the target is
made in it for each target, and the macro is named after the recording:
walls.jsonl becomes PATH/csharp/walls.cs, standard input
PATH/csharp/recording.cs. Of several recordings each has a folder of its
own in front: PATH/walls/csharp/walls.cs. Without this option the current
directory is taken. Existing files are replaced when the new ones are
whole, and stay when a conversion fails or is broken off; a recording that
is being read is never replaced. With - the macro of one recording in one
target, without its project, goes to standard output in place of the
paths.)",
    },
    {
        .name = "--force",
        .letter = 'f',
        .take = [](CommandLine& line, const QString&) { line.force = true; },
        .meaning = "replace files of another recording's project",
        .text = R"(Projects share names of files, as Program.cs, so the project of another
recording in the same folder would no longer work; nothing is written then
without this option.)",
    },
    {
        .name = "--replay",
        .take = [](CommandLine& line, const QString&) { line.host.replay = true; },
        .meaning = "macros that ask again what the recorded commands asked",
        .text = R"(The macro stops where the recorded command asked its user something,
offers the recorded answer, and sets the system variables that changed.
In Python a function asks for its parameters at its beginning, and uses
what is answered. Without the option the recording's header says.)",
    },
    {
        .name = "--repair",
        .take = [](CommandLine& line, const QString&) { line.host.repair = true; },
        .meaning = "macros without the known faults",
        .text = R"(Without it a macro is as the application's own recorder writes it, with
faults by which its language or its host rejects it; and a recorded text
with a quotation mark in it can become code. With it they are mended: all
that the user entered stays text. Without it too, macros of drawings are
written so.)",
    },
    {
        .name = "--faithful",
        .take = [](CommandLine& line, const QString&) { line.host.faithful = true; },
        .meaning = "macros of drawings with the known faults",
        .text = R"(A drawing in a DXF file becomes a recording on the way to the macro, which
is written as with --repair. With this option it is as the application's
own recorder would have written it.)",
    },
    {
        .name = "--recording-language",
        .form = "N",
        .offer = Offer::Words,
        .words = recordingLanguages,
        .take = takeRecordingLanguage,
        .meaning = "the language that the host records in",
        .text = R"(The host setting that decides on the byte order mark and on the form of
type names, 0 to 5. Without it the recording's header says, or else the
code of the target is taken.)",
    },
    {
        .name = "--install-dir",
        .form = "DIR",
        .take = [](CommandLine& line, const QString& value) { line.host.installDir = value; },
        .meaning = "where the application is installed",
        .text = R"(Where the application is installed, as C:\Inkwright\ with a backslash at
its end: the C++ projects look for its libraries below it. No other target
uses it, which is said when none of these is asked for.)",
    },
    {
        .name = "--option-names",
        .form = "FILE",
        .offer = Offer::Files,
        .take = [](CommandLine& line, const QString& value) { line.host.optionNames = value; },
        .meaning = "names of the options of system variables",
        .text = R"(The names by which the interface knows the options of system variables: a
JSON object of variables and enumerators, like
{"LTSCALE": "iwCommandOptionDouble_SetLTSCALE"}. They replace those that
system-variables shows. Nothing is converted when the file is faulty.)",
    },
    {
        .name = "--line-styles",
        .form = "DIR",
        .offer = Offer::Folders,
        .take = takeLineStyles,
        .meaning = "where files of line styles are",
        .text = R"(Where files of line styles (*.lin) are: a macro loads a recorded line
style from the first of them that holds it, those of the folders that
the recording names coming behind. A style without a file is loaded
under an empty file name, which is reported.)",
    },
    {
        .name = "--report",
        .form = "json|text",
        .offer = Offer::Words,
        .words = reportForms,
        .take = takeReport,
        .meaning = "tell what is lost and what is faulty",
        .text = R"(Print in place of the paths, as one JSON document, what each macro lacks
of what the user did and which values it assumes, with the place in the
recording, and where macro and project are rejected or misread by their
own language or host, with the lines and whether --repair mends it. With
text as tables for a person: what all macros of a recording lack stands
once, ahead of them.)",
        .mayLack = true,
    },
    {
        .name = "--report-file",
        .form = "FILE",
        .offer = Offer::Files,
        .take = takeReportFile,
        .meaning = "where the report goes to",
        .text = R"(Write the report to that file, as JSON or in the form of --report, and the
paths to standard output. A file that stands there is replaced when the
report is whole.)",
    },
    {
        .name = "--fail-on",
        .form = "KIND[,KIND...]",
        .offer = Offer::Lists,
        .words = noteKinds,
        .take = takeFailOn,
        .meaning = "status 1 for what is lost, assumed or faulty",
        .text = R"(Make the exit status 1 when a macro has any of that: loss, assumed or
fault, one or more of them. The macros are written all the same.)",
        .repeats = true,
    },
    {
        .name = "--quiet",
        .letter = 'q',
        .take = [](CommandLine& line, const QString&) { line.telling.quiet = true; },
        .meaning = "no word of what is lost and faulty",
        .text = "Do not tell on standard error what a macro lacks and its faults.",
    },
    {
        .name = "--map",
        .take = [](CommandLine& line, const QString&) { line.map = true; },
        .meaning = "a map from each line of a macro to its action",
        .text = R"(Write a map beside each macro, under its name with .map.json behind: which
action of the recording each of its lines comes from, as JSON (schema map
prints its schema). It is listed behind the project. A map is of the macro
that it was written with: a later call without this option leaves it.)",
    },
};

const std::vector<OptionRow> checkOptions = {
    {
        .name = "--strict",
        .take = [](CommandLine& line, const QString&) { line.strict = true; },
        .meaning = "status 1 when there are warnings",
        .text = "Warnings make the exit status 1.",
    },
    jsonOption,
};

const std::vector<OptionRow> formatOptions = {
    {
        .name = "--output",
        .letter = 'o',
        .form = "FILE",
        .offer = Offer::Files,
        .take = takeOutput,
        .meaning = "where the lines go to",
        .text = "The file that the lines go to; it may be FILE itself.",
    },
};

const std::vector<OptionRow> importOptions = {
    {
        .name = "--output",
        .letter = 'o',
        .form = "FILE",
        .offer = Offer::Files,
        .take = takeOutput,
        .meaning = "where the recording goes to",
        .text = "The file that the recording goes to; - is standard output, as without it.",
    },
    {
        .name = "--since",
        .form = "OLD",
        .offer = Offer::Files,
        .take = takeSince,
        .meaning = "only what changed since that drawing",
        .text = R"(Record what turns the older drawing in the file OLD into this one.
Entities are known by their handles, and without by what they draw. What
changed is set for the older drawing's object, which a repaired macro
fetches by its handle.)",
    },
    {
        .name = "--select",
        .form = "LAYER[,LAYER...]",
        .take = takeLayers,
        .meaning = "only what lies on these layers",
        .text = R"(Take only what lies on these layers, in whatever case. Blocks come whole.)",
        .repeats = true,
    },
    {
        .name = "--blocks",
        .take = [](CommandLine& line, const QString&) { line.import.onlyBlocks = true; },
        .meaning = "only the definitions of blocks",
        .text = "Take only the styles and the definitions of blocks, as of a library.",
    },
    {
        .name = "--tolerance",
        .form = "PART",
        .take = takeTolerance,
        .meaning = "how far a curve may be from that of the drawing",
        .text = R"(A curve that no recording can hold, such as a spline by control points,
comes in as another one that is nowhere further from it than this part of
its size: 1e-6 without this option. It counts as approximated.)",
    },
    {
        .name = "--report",
        .take = [](CommandLine& line, const QString&) { line.telling.report = ReportForm::Json; },
        .meaning = "tell as JSON what came of the drawing",
        .text = R"(Tell as one JSON document what came of the entities of each kind: on
standard output, or on standard error when the recording goes there.)",
    },
    {
        .name = "--quiet",
        .letter = 'q',
        .take = [](CommandLine& line, const QString&) { line.telling.quiet = true; },
        .meaning = "do not tell what came of the drawing",
        .text = "Do not tell on standard error what came of the drawing's entities.",
    },
};

const std::vector<OptionRow> verifyOptions = {
    {
        .name = "--macro",
        .form = "FILE",
        .offer = Offer::Files,
        .take = takeMacro,
        .meaning = "a changed macro to run in place of its own",
        .text = R"(Run that JavaScript macro in place of the one that is written of the
recording, and compare with the recording what it draws: a macro that
convert wrote and somebody has changed. It runs as it is, so recorded
texts in one that was written without --repair may run as code.)",
    },
    jsonOption,
};

const std::vector<OptionRow> viewOptions = {
    {
        .name = "--output",
        .letter = 'o',
        .form = "FILE",
        .offer = Offer::Files,
        .take = takeOutput,
        .meaning = "where the page goes to",
        .text = R"(The file that the page goes to, or a directory that it comes into; - is
standard output. Without it, the page of walls.jsonl is walls.view.html in
the current directory.)",
    },
    {
        .name = "--target",
        .letter = 't',
        .form = "TARGET[,TARGET...]|all",
        .offer = Offer::Lists,
        .words = [] { return targetNames() + QStringList("all"); },
        .take = takeTargets,
        .meaning = "the languages that are shown",
        .text = R"(The languages whose macros are in the page, as convert takes them; all of
them without it. Fewer make a smaller page.)",
        .repeats = true,
    },
    {
        .name = "--macro",
        .form = "FILE",
        .offer = Offer::Files,
        .take = takeMacro,
        .meaning = "a changed macro to show and run besides",
        .text = R"(Show that JavaScript macro beside those of the recording, and run it where
the page is asked to: one that convert wrote and somebody has changed.
Nothing runs in a page but what it was made with.)",
    },
    {
        .name = "--svg",
        .take = [](CommandLine& line, const QString&) { line.svg = true; },
        .meaning = "a picture in place of the page",
        .text = R"(Write an SVG file of what the recording and its drawing show in the end.
Without --output it is called as the recording is.)",
    },
    {
        .name = "--space",
        .form = "NAME",
        .take = [](CommandLine& line, const QString& value) { line.space = value; },
        .meaning = "the sheet or block that --svg draws",
        .text = R"(Draw that sheet, the definition of that block, or Model with --svg, in
place of what the recording began in.)",
    },
};

const std::vector<OptionRow> inspectOptions = {
    {
        .name = "--tree",
        .form = "N",
        .take = takeDepth,
        .meaning = "how many levels are shown",
        .text = R"(How many levels below the top-level actions are shown: 0 for none, 1 for
what is in their commands, 2 for the properties of objects there, too.
Properties stand a level below their object, and so do the values of a
custom action. What is not shown is counted all the same.)",
    },
    {
        .name = "--command",
        .form = "NAME",
        .take = takeHostCommand,
        .meaning = "only commands of that name",
        .text = R"(Only commands of that name, in any case and whether or not there is a _, .
or ' in front; a - in front belongs to the name.)",
    },
    {
        .name = "--handle",
        .form = "H",
        .take = takeHandle,
        .meaning = "only what is about that object",
        .text = R"(Only what is about the object with that handle, a hexadecimal number:
where it is added, changed, picked in a selection, or named by a value of
a custom action. Without --command the object itself is shown too when it
is in the drawing.)",
    },
    jsonOption,
};

const std::vector<OptionRow> snapshotOptions = {
    {
        .name = "--handle",
        .form = "H",
        .take = takeHandle,
        .meaning = "the object of the drawing",
        .text = "The object's handle, a hexadecimal number.",
        .required = true,
    },
    jsonOption,
};

const std::vector<OptionRow> runOptions = {
    {
        .name = "--command",
        .form = "NAME",
        .offer = Offer::Names,
        .words =
            [] {
                return QStringList{"-HYPERLINK", "-LINESTYLE"};
            },
        .take = takeHostCommand,
        .meaning = "the command that is run",
        .text = R"(-HYPERLINK or -LINESTYLE, with or without a leading underscore, in any
case.)",
        .required = true,
    },
    {
        .name = "--output",
        .letter = 'o',
        .form = "FILE",
        .offer = Offer::Files,
        .take = takeOutput,
        .meaning = "where the changed recording goes to",
        .text = "The file that the changed recording goes to, in place of FILE itself.",
    },
};

const char* const convertText = R"(Writes each recording as a macro, and the project around it, in each of the
targets.

Several files or targets are converted side by side; one that fails does not
stop the others. Standard output holds the paths written, one a line, the
macro before its project; messages go to standard error, and so does a line
for each macro that lacks something or is faulty, with the way out, like
"walls.cpp: 1 kind of fault in 14 places (REASON); --repair mends it".)";

const char* const inspectText = R"(Shows the actions of a recording as a tree. In front of a top-level action
stands its line in FILE, in front of one in a command its number there, from 0,
as in the path that a message tells. Below an object stand its properties;
those of the second list of an added one bear "extra:". Behind an answer at a
prompt stands which parameter of its function it is in a Python macro, if it is
one. The last line counts the actions of all levels by their kinds.

Long texts and lists are cut, and of properties whose tags differ in numbers
alone, as those of the vertices of a polyline, the first 20 are shown; --json
has all of them. The exit status is 1 when nothing of the recording is what
--command and --handle ask for.)";

const char* const verifyText = R"(Runs the macro of a recording and tells whether it draws what was recorded.

The macro is the repaired one in JavaScript. It runs in node, against a model of
the application, and is written to a temporary folder that goes with it. What it
has drawn then is compared with the objects of the recording, property by
property; what differs is told with the lines of recording and macro. That the
macro lacks what convert reports as lost is told, too, but is no difference. The
exit status is 1 when something differs, or when the macro stops with an error.)";

const char* const viewText = R"(Writes a page of HTML in which a recording is seen: what it drew, step by step,
and the macros of all targets, repaired and as recorded, with what they lack.

Steps, objects and lines of macros lead to one another. The page runs the
JavaScript macro and lays what it draws over what was recorded. It is one file,
which opens from a disk and fetches nothing. A recording whose conversion fails
has a page too, which tells why; the exit status is 1 then.)";

const char* const runText = R"(Runs a command of the macro writer on the drawing of a recording.

It asks on standard output, a line a prompt, and takes a line of standard
input as the answer; at a terminal it can be edited, and Tab completes it,
names of files and line styles too. An option is entered by its capital
letters, by its beginning or whole, an empty line takes the one in <>. A point
is x,y or x,y,z; entities are handles with blanks between them, or all: those
of the drawing and those that the recording adds, but no dimensions, curved
texts and traces of which the drawing knows nothing. Ctrl+C, Esc with Enter and
the end of input cancel the command. When it has ended well the recording with
the changed drawing replaces FILE, or is written to the file of --output; else
nothing is written. When somebody else has changed FILE meanwhile it stays as
it is, and the new recording goes to FILE.new, or FILE.new2 and so on, which
is never replaced.)";

const std::vector<CommandRow> commandRows = {
    {
        .command = Command::Convert,
        .name = "convert",
        .meaning = "write recordings as macros",
        .operands = Operands::Files,
        .form = "FILE...",
        .text = convertText,
        .options = convertOptions,
    },
    {
        .command = Command::Inspect,
        .name = "inspect",
        .meaning = "show the actions of a recording",
        .operands = Operands::File,
        .form = "FILE",
        .text = inspectText,
        .options = inspectOptions,
    },
    {
        .command = Command::Check,
        .name = "check",
        .meaning = "read recordings and say what is wrong with them",
        .operands = Operands::Files,
        .form = "FILE...",
        .text = R"(Reads recordings and says what is wrong with up to 20 lines of each; writes
nothing. Of a recording that can be read it warns of what is probably not what
was meant: what a conversion to VBA loses or assumes, with --repair or without,
and where it comes to no macro; the class or tag that a misspelled one may
stand for; handles that are added twice, and handles that neither the drawing
nor the recording up to there has.)",
        .options = checkOptions,
    },
    {
        .command = Command::Verify,
        .name = "verify",
        .meaning = "run the macro of a recording and compare what it draws",
        .operands = Operands::File,
        .form = "FILE",
        .text = verifyText,
        .options = verifyOptions,
    },
    {
        .command = Command::View,
        .name = "view",
        .meaning = "make a page that shows a recording and runs its macro",
        .operands = Operands::File,
        .form = "FILE",
        .text = viewText,
        .options = viewOptions,
    },
    {
        .command = Command::Import,
        .name = "import",
        .meaning = "make a recording of a DXF drawing",
        .operands = Operands::File,
        .form = "FILE",
        .text = R"(Makes a recording of a drawing in a DXF file, ASCII or binary, as if a user had
drawn it: its layers and styles, its blocks, and its entities in their order.
What became of each kind of entity, and what could not come in, is told at the
end on standard error.)",
        .options = importOptions,
    },
    {
        .command = Command::Format,
        .name = "format",
        .meaning = "write the values of a recording on a line each",
        .operands = Operands::File,
        .form = "FILE",
        .text = R"(Writes a recording whose objects stand on several lines each, or in one list,
as recordings are: an object a line. Nothing but the blanks between its parts
changes. Without --output it goes to standard output.)",
        .options = formatOptions,
    },
    {
        .command = Command::Snapshot,
        .name = "snapshot",
        .meaning = "show what the recorder's snapshot adds for an object",
        .operands = Operands::File,
        .form = "FILE",
        .text = R"(Shows what the recorder's snapshot adds for one object of the drawing, beside
what the host's property sheet shows.)",
        .options = snapshotOptions,
    },
    {
        .command = Command::Run,
        .name = "run",
        .meaning = "run an interactive command on the drawing of a recording",
        .operands = Operands::File,
        .form = "FILE",
        .text = runText,
        .options = runOptions,
    },
    {
        .command = Command::RecordingSchema,
        .name = "schema",
        .meaning = "print the JSON Schema of recordings or of what is told of them",
        .operands = Operands::MaybeWord,
        .form = "recording|report|map|verification",
        .words =
            [] {
                return QStringList{"recording", "report", "map", "verification"};
            },
        .takeWord =
            [](CommandLine& line, const QString& word) {
                line.command = word == "report"         ? Command::ReportSchema
                               : word == "map"          ? Command::MapSchema
                               : word == "verification" ? Command::VerificationSchema
                                                        : Command::RecordingSchema;
            },
        .text = R"(Prints the JSON Schema of one line of a recording, without an argument too,
of the report or a map of convert, or of what verify prints with --json.)",
    },
    {
        .command = Command::Classes,
        .name = "classes",
        .meaning = "tell what objects and custom actions may hold",
        .operands = Operands::MaybeWord,
        .form = "CLASS",
        .words = classNames,
        .takeWord = [](CommandLine& line, const QString& word) { line.className = word; },
        .text = R"(Prints, as a page in Markdown, which properties of added and of changed
objects convert, class by class, with the form of their values, and what the
data of custom actions mean; of one class the part that is about it.)",
    },
    {
        .command = Command::SystemVariables,
        .name = "system-variables",
        .meaning = "list the system variables that convert",
        .text = "Prints, as a page in Markdown, the system variables that convert.",
    },
    {
        .command = Command::Faults,
        .name = "faults",
        .meaning = "list the known faults of macros",
        .text = R"(Prints, as a page in Markdown, the known faults of macros that are not
repaired.)",
    },
    {
        .command = Command::Completion,
        .name = "completion",
        .meaning = "print what a shell needs to complete command lines",
        .operands = Operands::Word,
        .form = "bash|zsh|fish",
        .words = completedShells,
        .takeWord = [](CommandLine& line, const QString& word) { line.shell = word; },
        .text = R"(Prints what a shell needs to complete command lines of inkmacro. An installed
inkmacro has put it where shells look for it, bash by its package
bash-completion. Otherwise bash and zsh take it by
  source <(inkmacro completion bash)
and fish by
  inkmacro completion fish | source)",
    },
};

} // namespace

const std::vector<CommandRow>& commandTable()
{
    return commandRows;
}

QStringList commandNames()
{
    QStringList names;
    for (const CommandRow& row : commandTable())
        names.append(row.name);
    return names;
}

const CommandRow* findCommandRow(const QString& name)
{
    for (const CommandRow& row : commandTable())
        if (name == row.name)
            return &row;
    return nullptr;
}

const std::vector<OptionRow>& generalOptions()
{
    static const std::vector<OptionRow> rows = {helpOption, versionOption};
    return rows;
}

const OptionRow* findOptionRow(const std::vector<OptionRow>& rows, const QString& name)
{
    const auto isIt = [&](const OptionRow& row) {
        return name == row.name || (row.letter != 0 && name == QString("-%1").arg(QChar(row.letter)));
    };
    const auto found = std::find_if(rows.begin(), rows.end(), isIt);
    return found == rows.end() ? nullptr : &*found;
}

} // namespace inkmacro
