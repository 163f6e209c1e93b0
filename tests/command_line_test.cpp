// What a person types: commands, options and their values, and what is said of those that cannot be.

#include "Program.h"

#include <QRegularExpression>

namespace {

QStringList commandsIn(const QString& help)
{
    static const QRegularExpression usage("^  inkmacro ([a-z][a-z-]*)", QRegularExpression::MultilineOption);
    QStringList commands;
    for (auto found = usage.globalMatch(help); found.hasNext();)
        commands.append(found.next().captured(1));
    return commands;
}

QByteArray compressed(const QByteArray& text)
{
    QProcess gzip;
    gzip.start("gzip", {"-c"});
    gzip.write(text);
    gzip.closeWriteChannel();
    gzip.waitForFinished();
    return gzip.readAllStandardOutput();
}

TEST_F(Program, TellsHowEachCommandIsUsed)
{
    QFile page(INKMACRO_SOURCE_DIR "/docs/inkmacro.1");
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    const QString manual = QString::fromUtf8(page.readAll()).remove('\\');
    static const QRegularExpression longOption("^  (?:-., )?(--[a-z-]+)", QRegularExpression::MultilineOption);
    const QString help = run({"-h"}).out;
    EXPECT_EQ(help, run({"--help"}).out);
    const QStringList commands = commandsIn(help);
    EXPECT_GE(commands.size(), 8);
    for (const QString& command : commands) {
        const Outcome outcome = run({command, "--help"});
        EXPECT_EQ(outcome.status, 0) << command.toStdString();
        EXPECT_TRUE(outcome.out.startsWith("Usage:\n  inkmacro " + command)) << outcome.out.toStdString();
        EXPECT_TRUE(outcome.out.contains("  -h, --help\n"));
        EXPECT_EQ(run({command, "-h", "--whatever"}).out, outcome.out);
        EXPECT_TRUE(manual.contains("\n.B " + command + '\n')) << "the manual has no " << command.toStdString();
        for (auto option = longOption.globalMatch(outcome.out); option.hasNext();)
            EXPECT_TRUE(manual.contains(option.next().captured(1))) << outcome.out.toStdString();
        for (const QString& line : outcome.out.split('\n'))
            EXPECT_LE(line.length(), 80) << line.toStdString();
    }
}

TEST_F(Program, TellsWhatWasProbablyMeant)
{
    write("one.jsonl", line);
    const struct
    {
        QStringList arguments;
        const char* message;
    } cases[] = {
        {{"cnovert"}, "unknown command \"cnovert\"; did you mean convert?"},
        {{"Check"}, "unknown command \"Check\"; did you mean check?"},
        {{"transmogrify"},
         "unknown command \"transmogrify\"; known are convert, inspect, check, verify, view, import, format, snapshot, "
         "run, schema, classes, system-variables, faults, completion"},
        {{"convert", "--outptu"}, "unknown option \"--outptu\"; did you mean --output?"},
        {{"convert", "--Report=text"}, "unknown option \"--Report\"; did you mean --report?"},
        {{"convert", "-output", "x"}, "unknown option \"-output\"; did you mean --output?"},
        {{"convert", "-qz"}, "unknown option \"-z\""},
        {{"convert", "--json"}, "--json is no option of convert, but of inspect, check, verify and snapshot"},
        {{"convert", "--version"}, "--version stands without a command"},
        {{"--target", "csharp"}, "--target stands before the command; it belongs behind convert and view"},
        {{"convert", "a", "-t", "cshrap"}, "-t: \"cshrap\" is no target; did you mean csharp?"},
        {{"convert", "a", "--target=c\x01"},
         "--target: \"c\\x01\" is no target; known are cpp (0), csharp (1), javascript (2), vbnet (3), "
         "cppcom (4), vba (5), python (6), all"},
        {{"convert", "a"}, "convert needs --target TARGET[,TARGET...]|all"},
        {{"convert", "-tvba"}, "convert needs FILE..."},
        {{"convert", "a", "-tvba", "-o"}, "a value is missing behind --output: it is --output PATH"},
        {{"convert", "a", "-o", "--quiet"}, "a value is missing behind --output: it is --output PATH"},
        {{"convert", "a", "-tvba", "-o", "b", "--output=c"}, "--output is given more than once"},
        {{"convert", "a", "-tvba", "--output="}, "--output: a path is expected, and it is empty"},
        {{"convert", "a", "--quiet=yes"}, "--quiet takes no value, but \"yes\" is given"},
        {{"convert", "a", "--report=txt"}, "--report: \"txt\" is none of json, text; did you mean text?"},
        {{"convert", "a", "--recording-language", "6"}, "--recording-language: \"6\" is none of 0, 1, 2, 3, 4, 5"},
        {{"convert", "a", "b", "-tvba", "-oone.jsonl"},
         "the results cannot all be one.jsonl, which is a file; a directory is needed"},
        {{"inspect", "a", "b"}, "inspect takes one argument, but \"a\" and \"b\" are given"},
        {{"inspect", "--json"}, "inspect needs FILE"},
        {{"inspect", "a", "--tree", "-1"}, "--tree: \"-1\" is not a number of levels, 0 or more"},
        {{"inspect", "a", "--command", "--json"}, "a value is missing behind --command: it is --command NAME"},
        {{"inspect", "a", "--handle=A", "--handle=A"}, "--handle is given more than once"},
        {{"check", "a", "--handle=A"}, "--handle is no option of check, but of inspect and snapshot"},
        {{"schema", "reprot"}, "\"reprot\" is none of recording, report, map, verification; did you mean report?"},
        {{"import", "a", "--select", "Walls,,Doors"}, "--select: a name is empty in \"Walls,,Doors\""},
        {{"import", "a", "--since", "-"}, "--since: the older drawing must be a file, not standard input"},
        {{"import", "a", "--tolerance", "nan"}, "--tolerance: \"nan\" is no number above 0 and up to 1"},
        {{"verify", "a", "--macro", "-"}, "--macro: the macro must be a file, not standard input"},
        {{"view", "a", "--svg", "--target", "vba"}, "--svg writes a picture, which has no macros"},
        {{"view", "a", "--space", "Model"}, "--space is of --svg: a page has all spaces"},
        {{"view", "a", "--macro", "b", "--target", "vba"},
         "--macro is a macro of the target javascript, which --target leaves out"},
        {{"classes", "AcDbLien"}, "\"AcDbLien\" is none of the 52 known names; did you mean AcDbLine?"},
        {{"completion"}, "completion needs bash|zsh|fish"},
        {{"completion", "tcsh"}, "\"tcsh\" is none of bash, zsh, fish"},
        {{"faults", "a"}, "faults takes no argument, but \"a\" is given"},
        {{"run", "a", "--command", "-HYPERLINK", "-o-"},
         "run asks on standard output, so the new recording must be a file"},
    };
    for (const auto& [arguments, message] : cases) {
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.status, 2) << message;
        EXPECT_EQ(outcome.err.section('\n', 0, 0).toStdString(), std::string("inkmacro: ") + message);
        const bool known = commandsIn(run({"--help"}).out).contains(arguments.front());
        EXPECT_EQ(outcome.err.section('\n', 1),
                  QString("Try 'inkmacro %1--help'.\n").arg(known ? arguments.front() + ' ' : QString()));
    }
}

TEST_F(Program, TakesTargetsAndOptionsAsPeopleWriteThem)
{
    write("a.jsonl", line);
    write("-t.jsonl", line);
    const auto macros = [this](const QStringList& arguments) {
        const Outcome outcome = run(QStringList("convert") + arguments);
        EXPECT_EQ(outcome.status, 0) << outcome.err.toStdString();
        return outcome.out.split('\n').filter(QRegularExpression("\\.(bas|html|vb|cs)$")).join(' ');
    };
    EXPECT_EQ(macros({"a.jsonl", "-t", "VBA,", "JavaScript", "-q"}), "vba/a.bas javascript/a.html");
    EXPECT_EQ(macros({"a.jsonl", "-t", "vba , 2", "--target", "5"}), "vba/a.bas javascript/a.html");
    EXPECT_EQ(macros({"-tVBA", "-oout/", "--", "-t.jsonl"}), "out/vba/-t.bas");
    EXPECT_EQ(macros({"a.jsonl", "-qt=vba", "-o=out/x.bas"}), "out/x.bas");
    EXPECT_EQ(macros({"a.jsonl", "-t", "vba", "--output=[o]/x.bas"}), "[o]/x.bas");

    // Of one result the path is the macro's; of several it can only be a folder.
    EXPECT_EQ(macros({"a.jsonl", "-t", "vba", "-o", "new"}), "");
    EXPECT_TRUE(contents("new").startsWith("'---"));
    EXPECT_EQ(macros({"a.jsonl", "-t", "vba,javascript", "-o", "several/new"}),
              "several/new/vba/a.bas several/new/javascript/a.html");
    EXPECT_EQ(macros({"a.jsonl", "--target", "vba", "./-t.jsonl", "-o", "more"}),
              "more/a/vba/a.bas more/-t/vba/-t.bas");
}

TEST_F(Program, WritesAMacroToStandardOutput)
{
    write("a.jsonl", line + R"({"added":{"class":"HostWeldSymbol","handle":"3C","properties":[]}})" + '\n');
    ASSERT_EQ(run({"convert", "a.jsonl", "--target", "cpp,csharp", "--output", "out/"}).status, 0);
    for (const char* const target : {"cpp", "csharp"}) {
        QDir().mkdir(path("temporary"));
        const Outcome outcome =
            run({"convert", "a.jsonl", "-t", target, "-o", "-"}, {}, "export TMPDIR=" + path("temporary") + "; ");
        EXPECT_EQ(outcome.status, 0);
        const QString file = QString("out/%1/a.%2").arg(target, target == QString("cpp") ? "cpp" : "cs");
        EXPECT_EQ(outcome.out.toStdString(), QString::fromUtf8(contents(file)).toStdString());
        EXPECT_TRUE(outcome.err.startsWith("standard output: 1 step lost")) << outcome.err.toStdString();
        EXPECT_TRUE(QDir(path("temporary")).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    }
    EXPECT_EQ(run({"convert", "-", "-t", "vba", "-o-"}, "{\"undo\":1}\n").out, "");
    EXPECT_EQ(run({"convert", "a.jsonl", "-t", "vba,csharp", "-o-"}).err.section('\n', 0, 0),
              "inkmacro: standard output takes the macro of one recording in one target, not 2");
    EXPECT_EQ(run({"convert", "a.jsonl", "-t", "vba", "-o-", "--report"}).err.section('\n', 0, 0),
              "inkmacro: --report and --output - would both write to standard output; --report-file FILE does not");
    EXPECT_FALSE(exists("-") || exists("vba"));
    const Outcome full = run({"convert", "a.jsonl", "-t", "vba", "-o-", "-q"}, {}, "exec >/dev/full; ");
    EXPECT_EQ(full.status, 1);
    EXPECT_EQ(full.err, "inkmacro: standard output: No space left on device\n");
}

TEST_F(Program, BreaksNoProjectOfAnotherRecording)
{
    write("walls.jsonl", line);
    write("doors.jsonl", line);
    const auto convert = [this](const QString& recording, const char* targets, const QStringList& more = {}) {
        return run(QStringList{"convert", recording, "-q", "-t", targets} + more);
    };
    const auto refusal = [](const char* places) {
        return QString("inkmacro: the project of another recording is in %1; give another --output, or --force to "
                       "replace the files that both have\nTry 'inkmacro convert --help'.\n")
            .arg(places)
            .toStdString();
    };
    ASSERT_EQ(convert("walls.jsonl", "all").status, 0);
    EXPECT_EQ(convert("walls.jsonl", "all").status, 0) << "the same again";
    EXPECT_EQ(convert("doors.jsonl", "vba,javascript").status, 0) << "without projects";
    for (const auto& [target, place] :
         {std::pair("csharp", "csharp/ (walls.csproj)"), std::pair("vbnet", "vbnet/ (walls.vbproj)"),
          std::pair("cpp", "cpp/ (walls.vcproj)"), std::pair("cppcom", "cppcom/ (walls.h)"),
          std::pair("python", "python/ (pyproject.toml)")}) {
        const QByteArray shared = contents("csharp/Program.cs");
        const Outcome outcome = convert("doors.jsonl", target);
        EXPECT_EQ(outcome.status, 2) << target;
        EXPECT_EQ(outcome.err.toStdString(), refusal(place));
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(contents("csharp/Program.cs"), shared);
    }
    EXPECT_EQ(convert("doors.jsonl", "all").err.toStdString(),
              refusal("cpp/ (walls.vcproj), csharp/ (walls.csproj), vbnet/ (walls.vbproj) and 2 more folders"));
    EXPECT_FALSE(exists("csharp/doors.cs") || exists("cpp/doors.cpp"));
    EXPECT_EQ(convert("doors.jsonl", "csharp", {"-o", "csharp/d.cs"}).status, 2) << "named by its path";
    EXPECT_EQ(convert("doors.jsonl", "csharp", {"-o", "other/"}).status, 0);
    EXPECT_EQ(convert("doors.jsonl", "csharp", {"-o", "-"}).status, 0);

    EXPECT_EQ(convert("doors.jsonl", "csharp", {"--force"}).status, 0);
    EXPECT_TRUE(contents("csharp/Program.cs").contains("namespace doors\n"));
    EXPECT_TRUE(exists("csharp/walls.cs") && exists("csharp/doors.cs"));
    EXPECT_EQ(convert("walls.jsonl", "csharp").status, 2) << "both are there";

    write("mine/Program.cs", "by hand");
    EXPECT_EQ(convert("walls.jsonl", "csharp", {"-o", "mine/walls.cs"}).err.toStdString(),
              refusal("mine/ (Program.cs)"));
    EXPECT_EQ(contents("mine/Program.cs"), "by hand");
    EXPECT_EQ(convert("walls.jsonl", "csharp", {"-fo", "mine/walls.cs"}).status, 0);
    EXPECT_EQ(convert("walls.jsonl", "csharp", {"-o", "mine/walls.cs"}).status, 0) << "its own now";
}

TEST_F(Program, SaysThatNoTargetUsesTheFolderOfTheApplication)
{
    write("a.jsonl", line);
    const auto said = [this](const char* targets) {
        return run({"convert", "a.jsonl", "-q", "-t", targets, "--install-dir", "C:\\I\\"}).err;
    };
    EXPECT_EQ(said("csharp,vba"),
              "inkmacro: --install-dir has no effect here: only the targets cpp and cppcom use it\n");
    EXPECT_EQ(said("csharp,cppcom"), "");
    EXPECT_EQ(said("cpp"), "");
}

TEST_F(Program, NamesFilesThatAreNoTextInUtf8)
{
    const QString text = QString::fromUtf8(line);
    QByteArray little;
    QByteArray big;
    for (const QChar letter : text) {
        little.append(static_cast<char>(letter.cell())).append(static_cast<char>(letter.row()));
        big.append(static_cast<char>(letter.row())).append(static_cast<char>(letter.cell()));
    }
    const QString zipped = "cannot be read: it is compressed by gzip; zcat unpacks it\n";
    const QString wide = "cannot be read: it is text in UTF-16; UTF-8 is expected\n";
    const std::pair<QByteArray, QString> cases[] = {
        {compressed(line), zipped},
        {compressed({}), zipped},
        {"\xFF\xFE" + little, wide},
        {"\xFE\xFF" + big, wide},
        {little, wide},
        {big, wide},
        {QByteArray("\xFE\xFF\0\n", 4), wide},
    };
    for (const auto& [bytes, reason] : cases) {
        write("a.jsonl", bytes);
        EXPECT_EQ(run({"check", "a.jsonl"}).err, "a.jsonl: " + reason);
        EXPECT_EQ(run({"check", "-"}, bytes).err, "standard input: " + reason);
        write("names\x1B.json", bytes);
        const Outcome outcome = run({"convert", "a.jsonl", "-t", "vba", "--option-names", "names\x1B.json"});
        EXPECT_EQ(outcome.err, "names\\x1b.json: " + reason);
        EXPECT_EQ(outcome.status, 3);
    }
    EXPECT_EQ(run({"check", "-"}, "\xEF\xBB\xBF" + line).status, 0) << "a mark of UTF-8";
}

} // namespace
