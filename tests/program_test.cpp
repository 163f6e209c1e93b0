// The program as a person meets it: what it prints, what it leaves on disk, how it ends.

#include "Program.h"
#include "Terminal.h"

#include <QDir>
#include <QDirIterator>

#include <chrono>
#include <csignal>
#include <thread>

#include <sys/stat.h>

namespace {

using namespace std::chrono_literals;

/// Work that takes no longer shows nothing of itself.
constexpr auto quietTime = 1200ms;

/// No handler has a kind like this.
const QByteArray refused = "{\"custom\":{\"kind\":56,\"data\":[]}}\n";

TEST_F(Program, ConvertsIntoAFolderATarget)
{
    write("walls.v2.jsonl", line);
    const Outcome outcome = run({"convert", "walls.v2.jsonl", "--target", "csharp", "--output", "out/"});
    EXPECT_EQ(outcome.status, 0) << outcome.err.toStdString();
    EXPECT_EQ(outcome.out, "out/csharp/walls.cs\nout/csharp/Program.cs\nout/csharp/walls.csproj\n");
    EXPECT_EQ(outcome.err, "");
    EXPECT_TRUE(contents("out/csharp/walls.cs").contains("    class walls\n"));
    EXPECT_TRUE(contents("out/csharp/walls.cs").contains(", 4.50000000000000, 0.00000000000000, "));
    EXPECT_TRUE(exists("out/csharp/Program.cs") && exists("out/csharp/walls.csproj"));
}

TEST_F(Program, ConvertsToTheNamedFileAndFromStandardInput)
{
    EXPECT_EQ(run({"convert", "-", "--target", "1", "--output", "deep/er/m.cs"}, line).out.split('\n').first(),
              "deep/er/m.cs");
    EXPECT_TRUE(exists("deep/er/m.csproj"));
    EXPECT_EQ(run({"convert", "-", "--target", "csharp"}, line).out.split('\n').first(), "csharp/recording.cs");
    // An empty recording is one: head and tail.
    EXPECT_EQ(run({"convert", "-", "--target", "csharp", "--output", "empty.cs"}, "").status, 0);
    EXPECT_TRUE(contents("empty.cs").endsWith("        }\n    }\n}\n"));
}

TEST_F(Program, ReplaysPromptsWhenToldTo)
{
    const QByteArray angle =
        R"({"command":{"name":"ROTATE","actions":[{"interaction":{"kind":"angle","prompt":"Angle:","result":{"type":5004,"double":0.5}}}]}})"
        "\n";
    write("turn.jsonl", angle);
    write("asked.jsonl", R"({"recording":{"version":1,"mode":1}})"
                         "\n" +
                             angle);
    const auto asks = [this](const QStringList& arguments, const char* macro = "out/csharp/turn.cs") {
        EXPECT_EQ(run(QStringList{"convert", "--target", "csharp", "--output", "out/"} + arguments).status, 0);
        return contents(macro).contains("PromptForAngle(\"Angle:\", 0.5, out angle1);\n");
    };
    EXPECT_FALSE(asks({"turn.jsonl"}));
    EXPECT_TRUE(contents("out/csharp/turn.cs").endsWith("        }\n    }\n}\n"));
    EXPECT_TRUE(asks({"turn.jsonl", "--replay"}));
    EXPECT_FALSE(asks({"turn.jsonl", "asked.jsonl"}, "out/turn/csharp/turn.cs"));
    EXPECT_TRUE(contents("out/asked/csharp/asked.cs").contains("PromptForAngle"));
    EXPECT_TRUE(asks({"turn.jsonl", "asked.jsonl", "--replay"}, "out/turn/csharp/turn.cs"))
        << "in processes of their own";
}

TEST_F(Program, OneFailureDoesNotStopTheOthers)
{
    write("a.jsonl", line);
    write("b.jsonl", refused);
    write("c.jsonl", "{\"undo\":1}\n");
    write("d.jsonl", line);
    const Outcome outcome =
        run({"convert", "a.jsonl", "b.jsonl", "c.jsonl", "d.jsonl", "--target", "csharp", "--output", "out/"});
    EXPECT_EQ(outcome.status, 3);
    for (const char* const name : {"a", "d"})
        for (const char* const file : {"%1.cs", "Program.cs", "%1.csproj"})
            EXPECT_TRUE(exists(QString("out/%1/csharp/").arg(name) + QString(file).replace("%1", name))) << file;
    EXPECT_FALSE(exists("out/b/csharp/b.cs") || exists("out/c"));
    EXPECT_TRUE(outcome.err.contains("conversion to csharp failed with status -5001: out/b/csharp/b.cs"));
    EXPECT_TRUE(outcome.err.contains("c.jsonl:1: \"undo\" is not a kind of line"));
    EXPECT_EQ(outcome.out, "out/a/csharp/a.cs\nout/a/csharp/Program.cs\nout/a/csharp/a.csproj\n"
                           "out/d/csharp/d.cs\nout/d/csharp/Program.cs\nout/d/csharp/d.csproj\n");
}

TEST_F(Program, TellsOfAStatementThatOutgrowsEveryBound)
{
    const QString recording = QStringLiteral(INKMACRO_SOURCE_DIR "/fuzz/found/many_markers.jsonl");
    const Outcome outcome = run({"convert", recording, "--target", "vba", "--output", "out/"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.err.contains("many_markers.jsonl to vba: markers in the texts of a statement "
                                     "would make it more than 16 MiB longer\n"));
    EXPECT_FALSE(exists("out/vba/many_markers.bas"));
}

TEST_F(Program, ComplainsOfARecordingOnceForAllTargets)
{
    write("c.jsonl", "{\"undo\":1}\n");
    write("d.jsonl", "{\"undo\":1}\n");
    const Outcome outcome = run({"convert", "c.jsonl", "d.jsonl", "--target", "all", "--output", "out/"});
    EXPECT_EQ(outcome.status, 3);
    EXPECT_EQ(outcome.err.count('\n'), 2) << outcome.err.toStdString();
    EXPECT_EQ(outcome.err.count("c.jsonl:1: "), 1);
    EXPECT_EQ(outcome.err.count("d.jsonl:1: "), 1);
}

TEST_F(Program, LeavesAnOlderMacroAloneWhenTheRecordingCannotBeRead)
{
    const struct
    {
        const char* what;
        QByteArray bytes;
    } cases[] = {
        {"broken JSON", line + "{\"command\":\n"},
        {"unknown kind", line + "{\"undo\":1}\n"},
        {"unknown class", "{\"object\":{\"class\":\"AcDbChair\",\"handle\":\"1\"}}\n" + line},
        {"no handle", line + "{\"added\":{\"class\":\"AcDbLine\",\"handle\":\"xyz\",\"properties\":[]}}\n"},
        {"number", line + "{\"sysvar\":{\"name\":\"A\",\"value\":{\"int32\":123456789012345678901234567890}}}\n"},
        {"wrong form", line + "{\"added\":[]}\n"},
        {"no UTF-8", line + "{\"sysvar\":{\"name\":\"\xFF\xFE\"}}\n"},
        {"an endless line", line + QByteArray(300'000'000, ' ')},
    };
    write("out/walls.cs", "older");
    for (const auto& [what, bytes] : cases) {
        write("walls.jsonl", bytes);
        const Outcome outcome = run({"convert", "walls.jsonl", "--target", "csharp", "--output", "out/walls.cs"});
        EXPECT_EQ(outcome.status, 3) << what;
        EXPECT_TRUE(outcome.err.startsWith("walls.jsonl:")) << what << ": " << outcome.err.toStdString();
        EXPECT_EQ(outcome.err.count('\n'), 1) << what << ": " << outcome.err.toStdString();
        EXPECT_EQ(outcome.out, "") << what;
        EXPECT_EQ(contents("out/walls.cs"), "older") << what;
        EXPECT_FALSE(exists("out/walls.csproj")) << what;
    }
    for (const char* const missing : {"nowhere.jsonl", "out"}) {
        const Outcome outcome = run({"convert", missing, "--target", "csharp", "--output", "out/walls.cs"});
        EXPECT_EQ(outcome.status, 3) << missing;
        EXPECT_TRUE(outcome.err.startsWith(QString(missing) + ": cannot be opened: ")) << outcome.err.toStdString();
        EXPECT_EQ(contents("out/walls.cs"), "older");
    }
}

TEST_F(Program, LeavesNoPartOfAMacroThatCouldNotBeWritten)
{
    write("walls.jsonl", line);
    // A file where a directory is wanted stops everybody, root too.
    write("file", "");
    Outcome outcome = run({"convert", "walls.jsonl", "--target", "csharp", "--output", "file/walls.cs"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, "inkmacro: file/walls.cs: Not a directory\n");

    QByteArray many;
    for (int i = 0; i < 200; ++i)
        many += line;
    write("many.jsonl", many);
    outcome = run({"convert", "many.jsonl", "--target", "csharp", "--output", "full.cs"}, {}, "ulimit -f 8; ");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, "inkmacro: conversion to csharp failed with status -5001: full.cs: File too large\n");
    EXPECT_FALSE(exists("full.cs"));

    outcome = run({"convert", "walls.jsonl", "--target", "csharp", "--output", "/dev/full"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.err.contains("/dev/full exists and is not a regular file")) << outcome.err.toStdString();
    EXPECT_TRUE(QFileInfo::exists("/dev/full"));

    if (geteuid() != 0) {
        QDir().mkdir(path("locked"));
        QFile::setPermissions(path("locked"), QFile::ReadOwner | QFile::ExeOwner);
        EXPECT_EQ(run({"convert", "walls.jsonl", "--target", "csharp", "--output", "locked/walls.cs"}).status, 1);
    }
}

TEST_F(Program, TellsThatStandardOutputIsFull)
{
    write("walls.jsonl", R"({"object":{"class":"AcDbLine","handle":"2A"}})"
                         "\n" +
                             line);
    const QStringList commands[] = {
        {"convert", "walls.jsonl", "--target", "csharp", "--output", "out/", "--quiet"},
        {"convert", "walls.jsonl", "--target", "csharp,vba", "--output", "out/", "--quiet"},
        {"convert", "walls.jsonl", "--target", "csharp,vba", "--output", "out/", "--quiet", "--report"},
        {"check", "walls.jsonl"},
        {"inspect", "walls.jsonl"},
        {"snapshot", "walls.jsonl", "--handle", "2A"},
        {"run", "walls.jsonl", "--command", "-HYPERLINK", "--output", "out/run.jsonl"},
        {"schema"},
        {"system-variables"},
        {"faults"},
        {"--version"},
        {"--help"},
    };
    for (const QStringList& arguments : commands) {
        const Outcome outcome = run(arguments, "Insert\nEntity\n2A\nplan.dwg\n\n\n", "exec >/dev/full; ");
        EXPECT_EQ(outcome.status, 1) << arguments.join(' ').toStdString();
        EXPECT_EQ(outcome.err, "inkmacro: standard output: No space left on device\n")
            << arguments.join(' ').toStdString();
    }
}

TEST_F(Program, KeepsLettersFromTheTerminalThatItWouldObey)
{
    const QString hostile = QString::fromUtf8("w\x1B[31m\u009B\u202E\u2066\u200F\u061C\u2028ü😀");
    const QString shown = QString::fromUtf8("w\\x1b[31m\\x9b\\u202e\\u2066\\u200f\\u061c\\u2028ü😀");
    const QString file = hostile + ".jsonl";
    const QString name = shown + ".jsonl";
    write(file,
          "{\"sysvar\":{\"name\":\"" + hostile.toUtf8().replace('\x1B', "\\u001b") + "\",\"value\":{\"int32\":1}}}\n");
    write("bad/" + file, "{");
    EXPECT_EQ(run({"check", file}).out, name + ": ok, 1 action\n");
    EXPECT_EQ(run({"inspect", file}).out, name + ": 1 action\n1  sysvar " + shown + " = 1\ncounts: 1 sysvar\n");
    EXPECT_TRUE(run({"check", "bad/" + file}).err.startsWith("bad/" + name + ":1: "));
    EXPECT_EQ(run({"convert", file, "--target", "vba", "--output", file + "/x.bas"}).err,
              "inkmacro: " + name + "/x.bas: Not a directory\n");
    for (const QString targets : {"csharp,vba", "vba"})
        EXPECT_TRUE(run({"convert", file, "--target", targets, "--output", file + "/"}).err.contains(name + '/'))
            << targets.toStdString();
    EXPECT_TRUE(run({"convert", file, "--target", hostile}).err.startsWith("inkmacro: --target: \"" + shown));

    // Paths are for programs, unless it is a terminal that they come to.
    const QStringList conversion{"convert", file, "--target", "csharp,vba", "--output", "out/"};
    EXPECT_TRUE(run(conversion).out.startsWith("out/csharp/" + hostile + ".cs\n"));
    Terminal terminal;
    run(conversion, {}, terminal.asErrors() + "exec >&2; ");
    EXPECT_TRUE(terminal.text().contains("out/csharp/" + shown.toUtf8() + ".cs\r\n")) << terminal.text().toStdString();
    run({"inspect", file, "--json"}, {}, terminal.asErrors() + "exec >&2; ");
    for (const QChar letter : hostile.mid(1, 1) + hostile.mid(6, 6))
        EXPECT_FALSE(terminal.text().contains(QString(letter).toUtf8())) << letter.unicode();
}

TEST_F(Program, RefusesToRepairInCppWhatNoIncludeFinds)
{
    write("x\"y.jsonl", line);
    const Outcome outcome = run({"convert", "x\"y.jsonl", "--target", "cpp,csharp", "--repair", "--output", "out/"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "out/csharp/x\"y.cs\nout/csharp/Program.cs\nout/csharp/x\"y.csproj\n");
    EXPECT_EQ(outcome.err, "inkmacro: conversion to cpp failed with status -5001: out/cpp/x\"y.cpp: no #include or "
                           "project finds a file whose name has a quotation mark, a backslash, a control character, a "
                           "trigraph or $( in it, or is no UTF-8\n");
    EXPECT_TRUE(QDir(path("out/cpp")).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    EXPECT_EQ(run({"convert", "x\"y.jsonl", "--target", "cpp", "--repair", "--output", "xy.cpp"}).status, 0);
}

TEST_F(Program, NamesTheProjectFileThatCouldNotBeWritten)
{
    // The macro of an empty recording is shorter than the project file.
    const Outcome full = run({"convert", "-", "--target", "cpp", "--output", "full/m.cpp"}, "", "ulimit -f 8; ");
    EXPECT_EQ(full.status, 1);
    EXPECT_EQ(full.err, "inkmacro: full/m.vcproj could not be written whole: File too large\n");
    EXPECT_TRUE(QDir(path("full")).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

TEST_F(Program, NeverOverwritesItsInput)
{
    write("walls.cs", line);
    QFile::link(path("walls.cs"), path("link.cs"));
    for (const char* const output : {"walls.cs", "./walls.cs", "link.cs"}) {
        const Outcome outcome = run({"convert", "walls.cs", "--target", "csharp", "--output", output});
        EXPECT_EQ(outcome.status, 2) << output;
        EXPECT_TRUE(outcome.err.contains("would overwrite the recording")) << outcome.err.toStdString();
    }
    EXPECT_EQ(contents("walls.cs"), line);
}

TEST_F(Program, RefusesWrongUseBeforeItReadsAnything)
{
    write("walls.jsonl", line);
    write("other/walls.jsonl", line);
    const QStringList cases[] = {
        {},
        {"transmogrify"},
        {"convert", "walls.jsonl"},
        {"convert", "--target", "csharp"},
        {"convert", "walls.jsonl", "--target", "cobol"},
        {"convert", "walls.jsonl", "--target", "7"},
        {"convert", "walls.jsonl", "--target", "csharp", "--recording-language", "6"},
        {"convert", "-", "-", "--target", "csharp"},
        {"convert", "walls.jsonl", "other/walls.jsonl", "--target", "csharp", "--output", "out/"},
        {"convert", "walls.jsonl", "other/walls.jsonl", "--target", "csharp", "--output", "one.cs"},
        {"inspect"},
    };
    for (const QStringList& arguments : cases) {
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.status, 2) << arguments.join(' ').toStdString();
        EXPECT_TRUE(outcome.err.contains(" --help'.\n")) << arguments.join(' ').toStdString();
    }
    EXPECT_FALSE(exists("out") || exists("csharp") || exists("one.cs"));
}

TEST_F(Program, ShowsTheSnapshotOfAnObject)
{
    write("d.jsonl", R"({"object":{"class":"AcDbMline","handle":"2F","isErased":true,"vertices":[[1,2,0.5],[3,4,0]]}}
{"object":{"class":"AcDbFcf","handle":"30","text":"a\nb"}}
)");
    EXPECT_EQ(run({"snapshot", "d.jsonl", "--handle", "2f"}).out, "Erased       \"YES\"\n"
                                                                  "vertices     (0: (1, 2, 0.5), 1: (3, 4, 0))\n"
                                                                  "closedMline  0\n");
    const QString json = run({"snapshot", "d.jsonl", "--handle", "30", "--json"}).out;
    EXPECT_TRUE(json.contains("\"tag\": \"Content\"") && json.contains("\"value\": \"a\\nb\"")) << json.toStdString();
    write("table.jsonl", R"({"object":{"class":"AcDbTable","handle":"2F","rowHeights":[1)" +
                             QByteArray(",1").repeated(1000) + R"(],"columnWidths":[1)" +
                             QByteArray(",1").repeated(999) + "]}}\n");
    const Outcome large = run({"snapshot", "table.jsonl", "--handle", "2F"});
    EXPECT_EQ(large.status, 1);
    EXPECT_EQ(large.err,
              "inkmacro: table.jsonl: the table 2F has 1001 rows and 1000 columns, but a snapshot has at most "
              "1000000 cells\n");
    const Outcome missing = run({"snapshot", "d.jsonl", "--handle", "31"});
    EXPECT_EQ(missing.status, 1);
    EXPECT_EQ(missing.err, "inkmacro: d.jsonl: the drawing has no object with the handle 31\n");
    for (const char* const handle : {"0", "2G", "-1", "0x2F", "", "12345678901234567"})
        EXPECT_EQ(run({"snapshot", "d.jsonl", "--handle", handle}).status, 2) << handle;
    EXPECT_EQ(run({"snapshot", "nowhere.jsonl", "--handle", "1"}).status, 3);
}

TEST_F(Program, ShowsItself)
{
    EXPECT_TRUE(run({"--version"}).out.startsWith("inkmacro "));
    EXPECT_TRUE(run({"--help"}).out.contains("Exit status:"));
    EXPECT_TRUE(run({"schema"}).out.contains("\"$defs\""));
    EXPECT_EQ(run({"schema", "recording"}).out, run({"schema"}).out);
    EXPECT_EQ(run({"schema", "drawing"}).status, 2);
}

TEST_F(Program, NamesOptionsAsItIsTold)
{
    write("scale.jsonl", "{\"recording\":{\"version\":1,\"mode\":1}}\n"
                         "{\"sysvar\":{\"name\":\"LTSCALE\",\"value\":{\"double\":0.5}}}\n");
    write("names.json", R"({"LTSCALE": "iwCommandOptionDouble_SetLnScl", "PICKBOX": "iwApplicationOptionInt16_Pck"})");
    const auto statement = [&](const QString& macro, const QByteArray& name) {
        return contents(macro).contains("SetCommandOptionDouble(iwCommandOptionDouble_e." + name +
                                        ", 0.5, out result1);\n");
    };
    ASSERT_EQ(run({"convert", "scale.jsonl", "--target", "csharp"}).status, 0);
    EXPECT_TRUE(statement("csharp/scale.cs", "iwCommandOptionDouble_SetLTSCALE"));
    // In one process and in several.
    write("again.jsonl", contents("scale.jsonl"));
    ASSERT_EQ(run({"convert", "scale.jsonl", "--target", "csharp", "--output", "one/", "--option-names", "names.json"})
                  .status,
              0);
    EXPECT_TRUE(statement("one/csharp/scale.cs", "iwCommandOptionDouble_SetLnScl"));
    ASSERT_EQ(run({"convert", "scale.jsonl", "again.jsonl", "--target", "csharp", "--output", "two/", "--option-names",
                   "names.json"})
                  .status,
              0);
    EXPECT_TRUE(statement("two/again/csharp/again.cs", "iwCommandOptionDouble_SetLnScl"));
    EXPECT_EQ(
        run({"convert", "scale.jsonl", "--target", "csharp", "--output", "names.json", "--option-names", "names.json"})
            .status,
        2);
}

TEST_F(Program, LooksForLineStylesInFoldersOfTheCommandLineAndOfTheRecording)
{
    write("fence.jsonl", R"({"drawing":{"lineStyleFolders":["own"]}}
{"added":{"class":"AcDbLinetypeTableRecord","handle":"24","properties":[{"tag":"Name","value":"FENCE1"}]}}
)");
    const auto convert = [&](const QStringList& more) {
        return run(QStringList{"convert", "fence.jsonl", "--target", "csharp", "--output", "out/"} + more);
    };
    const auto isLoadedFrom = [&](const QString& file) {
        return contents("out/csharp/fence.cs").contains(("LoadLineStyle( \"FENCE1\",\"" + file + "\",").toUtf8());
    };
    const Outcome without = convert({});
    EXPECT_EQ(without.status, 0);
    EXPECT_TRUE(without.err.contains("\"FENCE1\"")) << without.err.toStdString();
    EXPECT_EQ(without.err.count('\n'), 1);
    EXPECT_TRUE(isLoadedFrom(""));

    ASSERT_TRUE(QDir().mkpath(path("own")) && QDir().mkpath(path("given")));
    write("own/a.lin", "*FENCE1,of the recording\n");
    EXPECT_EQ(convert({"--line-styles", "given"}).err, "");
    EXPECT_TRUE(isLoadedFrom(path("own/a.lin")));
    write("given/b.lin", "*FENCE1,of the command line\n");
    EXPECT_EQ(convert({"--line-styles", "given"}).err, "");
    EXPECT_TRUE(isLoadedFrom(path("given/b.lin")));
    // Several processes are told the folder too.
    EXPECT_EQ(
        run({"convert", "fence.jsonl", "--target", "csharp,vbnet", "--output", "out/", "--line-styles", "given"}).err,
        "");
    EXPECT_TRUE(isLoadedFrom(path("given/b.lin")));
    EXPECT_EQ(convert({"--line-styles", "given/b.lin"}).status, 2);
    EXPECT_EQ(convert({"--line-styles", ""}).status, 2);
}

TEST_F(Program, ConvertsNothingWithFaultyNamesOfOptions)
{
    const struct
    {
        QByteArray names;
        const char* message;
    } cases[] = {
        {"{\n\"LTSCALE\":\n", "names.json:3: not valid JSON: "},
        {"[]", "names.json: expected an object"},
        {R"({"LTSCALE": "iwCommandOptionDouble_A", "ltscale": "iwCommandOptionDouble_A"})",
         "names.json: ltscale: there is no system variable"},
        {R"({"no such": "iwCommandOptionDouble_A"})", "names.json: [\"no such\"]: there is no system variable"},
        {R"({"LTSCALE": 3})", "names.json: LTSCALE: expected an enumerator that begins with iwCommandOptionDouble_"},
        {R"({"LTSCALE": "iwCommandOptionInt16_A"})", "names.json: LTSCALE: expected"},
        {R"({"LTSCALE": "iwCommandOptionDouble_"})", "names.json: LTSCALE: expected"},
        {R"({"LTSCALE": "iwCommandOptionDouble_A, 1"})", "names.json: LTSCALE: expected"},
        {R"({"CHAMMODE": "iwCommandOptionBool_A"})",
         "names.json: CHAMMODE: expected an enumerator that begins with iwCommandOptionInt16_ or "
         "iwApplicationOptionInt16_"},
    };
    write("walls.jsonl", line);
    for (const auto& [names, message] : cases) {
        write("names.json", names);
        const Outcome outcome = run(
            {"convert", "walls.jsonl", "--target", "csharp,vba", "--output", "out/", "--option-names", "names.json"});
        EXPECT_EQ(outcome.status, 3) << message;
        EXPECT_TRUE(outcome.err.startsWith(message)) << outcome.err.toStdString();
        EXPECT_EQ(outcome.err.count('\n'), 1);
    }
    EXPECT_EQ(run({"convert", "walls.jsonl", "--target", "csharp", "--option-names", "nowhere"}).status, 3);
    EXPECT_EQ(run({"convert", "walls.jsonl", "--target", "csharp", "--option-names", "."}).status, 3);
    EXPECT_FALSE(exists("out") || exists("csharp"));
}

TEST_F(Program, ShowsAtATerminalHowFarItHasRead)
{
    Terminal terminal;
    write("walls.jsonl", line);
    const auto began = std::chrono::steady_clock::now();
    EXPECT_EQ(run({"check", "walls.jsonl"}, {}, terminal.asErrors()).status, 0);
    EXPECT_TRUE(terminal.text().isEmpty() || std::chrono::steady_clock::now() - began > 1s) << "it was soon done";
    EXPECT_EQ(terminal.lastingText(), "");

    const auto readSlowly = [&](const QString& before) {
        QProcess process;
        start(process, {"check", "-"}, before);
        process.write(line);
        process.waitForBytesWritten();
        std::this_thread::sleep_for(quietTime);
        process.write(QByteArray(line).replace("2F", "30"));
        return finish(process);
    };
    EXPECT_EQ(readSlowly({}).err, "") << "no terminal";
    EXPECT_EQ(readSlowly(terminal.asErrors()).out, "-: ok, 2 actions (4 with those in commands)\n");
    EXPECT_TRUE(terminal.text().startsWith("\rreading 0.0 MB\r")) << terminal.text().toStdString();
    EXPECT_EQ(terminal.lastingText(), "");
}

TEST_F(Program, ShowsAtATerminalHowMuchItHasWritten)
{
    Terminal terminal;
    write("many.jsonl", line.repeated(100'000));
    QProcess process;
    start(process, {"convert", "many.jsonl", "--target", "csharp", "--output", "out/"}, terminal.asErrors());
    const auto writes = [this] {
        QDirIterator walk(path("out"), {"many.cs"}, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        return walk.hasNext() && QFileInfo(walk.next()).size() > 0;
    };
    while (!writes())
        std::this_thread::sleep_for(1ms);
    // In the midst of the conversion, which would be done within a second.
    kill(static_cast<pid_t>(process.processId()), SIGSTOP);
    std::this_thread::sleep_for(quietTime);
    kill(static_cast<pid_t>(process.processId()), SIGCONT);
    terminal.await("\rwriting ");
    EXPECT_EQ(finish(process).status, 0);
    EXPECT_EQ(terminal.lastingText(), "");
}

TEST_F(Program, ShowsAtATerminalHowManyAreConverted)
{
    Terminal terminal;
    write("walls.jsonl", line);
    ASSERT_EQ(mkfifo(qPrintable(path("slow.jsonl")), 0600), 0);
    const int slow = open(qPrintable(path("slow.jsonl")), O_RDWR | O_CLOEXEC);
    QProcess process;
    start(process, {"convert", "walls.jsonl", "slow.jsonl", "--target", "csharp", "--output", "out/"},
          terminal.asErrors());
    terminal.await("\r[##########----------]  50%  1 of 2 done");
    EXPECT_EQ(::write(slow, line.constData(), static_cast<std::size_t>(line.size())), line.size());
    close(slow);
    const Outcome outcome = finish(process);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out.count('\n'), 6);
    EXPECT_EQ(terminal.lastingText(), "");
}

} // namespace
