// What the program tells of a macro besides writing it: counts and reports.

#include "Program.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

/// In the third line a property and in the fourth an object that has no statement.
const QByteArray lossy =
    "{\"recording\":{\"version\":1}}\n" + line +
    R"({"command":{"name":"A","actions":[{"sysvar":{"name":"X","value":{"int16":1}}},{"modified":{"class":"AcDbLine",)"
    R"("handle":"2F","properties":[{"tag":"Material","value":"Oak"}]}}]}})"
    "\n\n"
    R"({"added":{"class":"HostWeldSymbol","handle":"3C","properties":[]}})"
    "\n";
/// A text that closes its literal.
const QByteArray faulty =
    R"({"added":{"class":"AcDbText","handle":"30","properties":[{"tag":"Contents","value":"6\" wide"},)"
    R"({"tag":"Position X","value":1},{"tag":"Position Y","value":1},{"tag":"Position Z","value":0},)"
    R"({"tag":"Text alignment X","value":1},{"tag":"Text alignment Y","value":1},{"tag":"Text alignment Z","value":0},)"
    R"({"tag":"Height","value":2.5},{"tag":"Rotation","value":0}]}})"
    "\n";
/// A radius that is no number.
const QByteArray assumed =
    R"({"added":{"class":"AcDbCircle","handle":"30","properties":[{"tag":"Center X","value":1},)"
    R"({"tag":"Center Y","value":1},{"tag":"Center Z","value":0},{"tag":"Radius","value":"5"}]}})"
    "\n";

QJsonArray conversions(const Outcome& outcome)
{
    const QJsonDocument document = QJsonDocument::fromJson(outcome.out.toUtf8());
    EXPECT_EQ(document["reportVersion"], 2) << outcome.out.toStdString();
    EXPECT_EQ(document["programVersion"].toString().count('.'), 2) << outcome.out.toStdString();
    return document["conversions"].toArray();
}

TEST_F(Program, SaysKindsPlacesAndTheWayOut)
{
    write("whole.jsonl", line);
    write("lossy.jsonl", lossy);
    write("one.jsonl", R"({"added":{"class":"HostWeldSymbol","handle":"3C","properties":[]}})");
    write("faulty.jsonl", faulty);
    const auto counts = [this](const QStringList& arguments) {
        const Outcome outcome = run(QStringList{"convert", "--force", "--output", "out/"} + arguments);
        EXPECT_EQ(outcome.status, 0);
        EXPECT_TRUE(outcome.out.startsWith("out/"));
        return outcome.err;
    };
    const QString noGoSub = "1 fault (Return goes back from a GoSub, and there is none); --repair mends it";
    EXPECT_EQ(counts({"whole.jsonl", "--target", "all"}), "out/vba/whole.bas: " + noGoSub + "\n");
    EXPECT_EQ(counts({"lossy.jsonl", "--target", "csharp,vba"}),
              "out/csharp/lossy.cs: 2 steps lost; --report text tells which\n"
              "out/vba/lossy.bas: 2 steps lost, " +
                  noGoSub + ", --report text tells which\n");
    write("assumed.jsonl", assumed);
    EXPECT_EQ(counts({"assumed.jsonl", "one.jsonl", "--target", "csharp"}),
              "out/assumed/csharp/assumed.cs: 1 value assumed; --report text tells which\n"
              "out/one/csharp/one.cs: 1 step lost; --report text tells which\n");
    write("again.jsonl", faulty + QByteArray(faulty).replace("\"30\"", "\"31\""));
    EXPECT_EQ(
        counts({"again.jsonl", "--target", "csharp,vba"}),
        "out/csharp/again.cs: 1 kind of fault in 2 places (a text closes the literal that it stands in, or is read "
        "as another text there); --repair mends it\n"
        "out/vba/again.bas: 2 kinds of faults in 3 places; --repair mends them, --report text tells which\n");
    EXPECT_EQ(counts({"faulty.jsonl", "--target", "vba", "--repair"}), "");
    EXPECT_EQ(counts({"lossy.jsonl", "--target", "csharp", "--quiet"}), "");
    EXPECT_EQ(counts({"lossy.jsonl", "faulty.jsonl", "--target", "csharp,vba", "--quiet"}), "");
}

TEST_F(Program, ReportsOfAllJobsInOneDocument)
{
    write("lossy.jsonl", lossy);
    write("faulty.jsonl", faulty);
    write("refused.jsonl", line + "{\"custom\":{\"kind\":56,\"data\":[]}}\n");
    write("broken.jsonl", "{\"undo\":1}\n");
    write("out/blocked/csharp/blocked.cs/file", "");
    write("blocked.jsonl", line);
    const Outcome outcome = run({"convert", "lossy.jsonl", "faulty.jsonl", "refused.jsonl", "broken.jsonl",
                                 "blocked.jsonl", "-", "--target", "csharp,vba", "--output", "out/", "--report"},
                                line);
    EXPECT_EQ(outcome.status, 3);
    EXPECT_EQ(outcome.err.count("broken.jsonl:1: "), 1) << outcome.err.toStdString();
    EXPECT_TRUE(outcome.err.contains("out/lossy/csharp/lossy.cs: 2 steps lost\n"));

    const QJsonArray reports = conversions(outcome);
    QStringList told;
    for (const QJsonValue& report : reports)
        told.append(QString("%1 %2 %3 %4 %5")
                        .arg(report["macro"].toString(), report["status"].toString())
                        .arg(report["project"].toArray().size())
                        .arg(report["losses"].toArray().size())
                        .arg(report["faults"].toArray().size()));
    EXPECT_EQ(told.join('\n').toStdString(), "out/lossy/csharp/lossy.cs converted 2 2 0\n"
                                             "out/lossy/vba/lossy.bas converted 0 2 1\n"
                                             "out/faulty/csharp/faulty.cs converted 2 0 1\n"
                                             "out/faulty/vba/faulty.bas converted 0 0 2\n"
                                             " failed 0 1 0\n"
                                             " failed 0 1 1\n"
                                             " unreadable 0 0 0\n"
                                             " unreadable 0 0 0\n"
                                             " failed 0 0 0\n"
                                             "out/blocked/vba/blocked.bas converted 0 0 1\n"
                                             "out/recording/csharp/recording.cs converted 2 0 0\n"
                                             "out/recording/vba/recording.bas converted 0 0 1");
    EXPECT_EQ(reports[0]["project"], (QJsonArray{"out/lossy/csharp/Program.cs", "out/lossy/csharp/lossy.csproj"}));
    EXPECT_EQ(reports[1]["losses"], (QJsonArray{QJsonObject{{"line", 3},
                                                            {"path", "command.actions[1]"},
                                                            {"what", "property \"Material\" of AcDbLine 2F"},
                                                            {"reason", "no statement sets it"}},
                                                QJsonObject{{"line", 5},
                                                            {"path", ""},
                                                            {"what", "added HostWeldSymbol 3C"},
                                                            {"reason", "objects of its class have no statements"}}}));
    const QJsonObject fault = reports[3]["faults"][1].toObject();
    EXPECT_EQ(fault["file"], "faulty.bas");
    EXPECT_TRUE(fault["mended"].toBool());
    EXPECT_EQ(fault["count"], 1);
    for (int i = 0; i < reports.size(); ++i)
        EXPECT_EQ(reports[i]["error"].isString(), reports[i]["status"] != "converted") << i;
    EXPECT_TRUE(reports[4]["error"].toString().startsWith("conversion to csharp failed with status "));
    EXPECT_TRUE(reports[6]["error"].toString().startsWith("broken.jsonl:1: "));
    EXPECT_EQ(reports[8]["error"], "out/blocked/csharp/blocked.cs exists and is not a regular file");
    const QList<QByteArray> lines = contents("out/faulty/vba/faulty.bas").split('\n');
    EXPECT_TRUE(lines.value(fault["line"].toInt() - 1).contains("6\" wide")) << fault["line"].toInt();
}

TEST_F(Program, ReportsWhatIsAssumed)
{
    write("assumed.jsonl", assumed);
    const auto report = [this](const char* form) {
        return run({"convert", "assumed.jsonl", "--target", "csharp", "--output", "out/", "--quiet", form});
    };
    EXPECT_EQ(conversions(report("--report")).first().toObject()["assumed"],
              (QJsonArray{QJsonObject{{"line", 1},
                                      {"path", ""},
                                      {"what", "property \"Radius\" of AcDbCircle 30"},
                                      {"reason", "it is recorded in another form"}}}));
    EXPECT_TRUE(report("--report=text").out.contains("  assumed\n    line 1    property \"Radius\""));
}

/// An insertion draws the arcs of a polyline as lines, an action as arcs.
TEST_F(Program, ReportsArcsAsLostWhereNoActionDrawsThem)
{
    const QByteArray object =
        R"({"object":{"class":"AcDbPolyline","handle":"31","points":[[0,0],[1,0],[2,0]],"bulges":[0,1]}})"
        "\n";
    const QByteArray added = R"({"added":{"class":"AcDbPolyline","handle":"31","properties":[]}})";
    const QByteArray action = R"({"custom":{"kind":16,"data":[{"points":[[0,0,0],[1,0,0],[2,0,0]]},)"
                              R"({"points":[[0,0,0],[1,0,0],[0,0,0]]},{"bool":false},{"handle":"31"},)"
                              R"({"class":"AcDbPolyline"},{"doubles":[]},{"doubles":[]},{"bool":true},{"double":0}]}})";
    const auto lossesOf = [this, &object](const QByteArray& actions) {
        write("arcs.jsonl", object + R"({"command":{"name":"POLYLINE","actions":[)" + actions + "]}}\n");
        const QJsonArray reports =
            conversions(run({"convert", "arcs.jsonl", "--target", "csharp", "--output", "out/", "--report"}));
        EXPECT_EQ(reports[0]["status"], "converted");
        return reports[0]["losses"].toArray();
    };
    EXPECT_EQ(lossesOf(added), (QJsonArray{QJsonObject{{"line", 2},
                                                       {"path", "command.actions[0]"},
                                                       {"what", "property \"Vertex\" of AcDbPolyline 31"},
                                                       {"reason", "arcs come as lines"}}}));
    EXPECT_EQ(lossesOf(added + ',' + action), QJsonArray());
}

/// A second thread writes the text of a long macro, in batches of 64 Ki letters.
TEST_F(Program, ReportsFaultsUpToTheEndOfALongMacro)
{
    QByteArray recording = faulty;
    for (int handle = 0x100; handle < 0x500; ++handle)
        recording += QByteArray(line).replace("2F", QByteArray::number(handle, 16));
    write("long.jsonl", recording + QByteArray(faulty).replace("6\\\" wide", "7\\\" high"));
    const QJsonArray reports =
        conversions(run({"convert", "long.jsonl", "--target", "all", "--output", "out/", "--report"}));
    EXPECT_EQ(reports.size(), 7);
    for (const QJsonValue& report : reports) {
        if (report["target"] == "python") {
            EXPECT_TRUE(report["faults"].toArray().isEmpty());
            continue;
        }
        const QString macro = report["macro"].toString();
        const QByteArray text = contents(macro);
        EXPECT_GT(text.size(), 2 * 64 * 1024) << macro.toStdString();
        const QList<QByteArray> lines = text.split('\n');
        const QJsonArray faults = report["faults"].toArray();
        const auto tells = [&](const char* words) {
            return std::any_of(faults.begin(), faults.end(), [&](const QJsonValue& fault) {
                const QJsonArray places = fault["lines"].toArray();
                return std::any_of(places.begin(), places.end(), [&](const QJsonValue& place) {
                    return lines.value(place.toInt() - 1).contains(words);
                });
            });
        };
        EXPECT_TRUE(tells("6\" wide")) << macro.toStdString();
        EXPECT_TRUE(tells("7\" high")) << macro.toStdString();
    }
}

TEST_F(Program, ReportsAsTables)
{
    write("lossy.jsonl", lossy);
    write("none.jsonl", line);
    EXPECT_EQ(
        run({"convert", "lossy.jsonl", "none.jsonl", "--target", "csharp", "--output", "out/", "--report", "text"}).out,
        "lossy.jsonl to csharp: out/lossy/csharp/lossy.cs: 2 steps lost\n"
        "  lost\n"
        "    line 3  command.actions[1]  property \"Material\" of AcDbLine 2F  no statement sets it\n"
        "    line 5                      added HostWeldSymbol 3C             objects of its class have no statements\n"
        "none.jsonl to csharp: out/none/csharp/none.cs: nothing lost, no faults\n");
    EXPECT_EQ(run({"convert", "lossy.jsonl", "--target", "csharp", "--report=table"}).status, 2);
    // What stands behind the option and is no form is a file.
    EXPECT_EQ(conversions(run({"convert", "--target", "csharp", "--report", "none.jsonl"})).size(), 1);
}

TEST_F(Program, ReportsOnceWhatAllMacrosLack)
{
    write("lossy.jsonl", lossy + faulty + faulty);
    const QString name = "added HostWeldSymbol 3C";
    const QString text =
        run({"convert", "lossy.jsonl", "--target", "csharp,vba", "--output", "out/", "--report", "text"}).out;
    EXPECT_TRUE(text.startsWith("lossy.jsonl\n"
                                "  lost in each macro\n"
                                "    line 3  command.actions[1]  property \"Material\" of AcDbLine 2F  no statement"))
        << text.toStdString();
    EXPECT_EQ(text.count(name), 1);
    EXPECT_TRUE(text.contains("lossy.jsonl to csharp: out/csharp/lossy.cs: 2 steps lost, ")) << text.toStdString();
    EXPECT_TRUE(text.contains("lossy.cs:49  2 places  mended by --repair  EscapeText")) << text.toStdString();
}

TEST_F(Program, WritesTheReportToAFile)
{
    write("lossy.jsonl", lossy);
    const QStringList call{"convert", "lossy.jsonl", "--output", "out/", "--quiet", "--target"};
    for (const auto& [targets, count] : {std::pair{"csharp", 1}, {"csharp,vba", 2}}) {
        const Outcome outcome = run(call + QStringList{targets, "--report-file", "told/report.json"});
        EXPECT_EQ(outcome.status, 0) << outcome.err.toStdString();
        EXPECT_TRUE(outcome.out.startsWith("out/csharp/lossy.cs\nout/csharp/Program.cs\n"));
        EXPECT_EQ(QJsonDocument::fromJson(contents("told/report.json"))["conversions"].toArray().size(), count);
    }
    run(call + QStringList{"vba", "--report-file", "told/report.json", "--report", "text"});
    EXPECT_TRUE(contents("told/report.json").startsWith("lossy.jsonl to vba: "));
    const Outcome printed = run({"convert", "lossy.jsonl", "-t", "vba", "-o-", "-q", "--report-file", "told/one.json"});
    EXPECT_TRUE(printed.out.contains("Sub main")) << printed.out.toStdString();
    EXPECT_EQ(QJsonDocument::fromJson(contents("told/one.json"))["conversions"][0]["macro"], "-");

    // What is refused leaves everything as it is.
    for (const QStringList& refused : {QStringList{"vba", "--report-file", "lossy.jsonl"},
                                       {"vba", "--report-file", "out/vba/lossy.bas"},
                                       {"vba", "--report-file", "told/"},
                                       {"vba", "--report-file", "told"},
                                       {"vba", "--report-file", "-"}}) {
        EXPECT_EQ(run(call + refused).status, 2) << refused.join(' ').toStdString();
        EXPECT_EQ(contents("lossy.jsonl"), lossy);
    }
    const Outcome full = run(call + QStringList{"vba", "--report-file", "told/report.json"}, {}, "ulimit -f 0; ");
    EXPECT_NE(full.status, 0);
    EXPECT_TRUE(contents("told/report.json").startsWith("lossy.jsonl to vba: ")) << full.err.toStdString();
}

TEST_F(Program, FailsOnWhatItIsToldTo)
{
    write("lossy.jsonl", lossy);
    write("assumed.jsonl", assumed);
    const auto statusOf = [this](const char* file, const char* kinds) {
        const Outcome outcome = run({"convert", file, "-t", "csharp", "-o", "out/", "-q", "-f", "--fail-on", kinds});
        EXPECT_TRUE(outcome.out.startsWith("out/csharp/"));
        return outcome.status;
    };
    EXPECT_EQ(statusOf("lossy.jsonl", "loss"), 1);
    EXPECT_EQ(statusOf("lossy.jsonl", "assumed,fault"), 0);
    EXPECT_EQ(statusOf("assumed.jsonl", "fault, assumed"), 1);
    EXPECT_EQ(
        run({"convert", "lossy.jsonl", "-t", "vba,csharp", "-o", "out/", "-q", "-f", "--fail-on", "fault"}).status, 1);
    EXPECT_EQ(run({"convert", "lossy.jsonl", "-t", "csharp", "--fail-on", "lost"}).status, 2);
}

// The sanitizers' own checks take memory.
#if !defined(__SANITIZE_ADDRESS__)
TEST_F(Program, ReportsWithLittleMoreMemoryThanItConvertsWith)
{
    QByteArray strangers;
    for (int i = 0; i < 100'000; ++i)
        strangers += R"({"added":{"class":"Host)" + QByteArray(60, 'W') + R"(","handle":")" +
                     QByteArray::number(256 + i, 16).toUpper() + R"(","properties":[]}})" + '\n';
    write("strangers.jsonl", strangers);
    const QStringList call{"convert", "strangers.jsonl", "--output", "out/", "--quiet", "--target"};
    for (const auto& [targets, count] : {std::pair{"csharp", 1}, {"all", 7}}) {
        const Outcome json = run(call + QStringList{targets, "--report"}, {}, "ulimit -v 200000; ");
        EXPECT_EQ(json.status, 0) << json.err.toStdString();
        EXPECT_EQ(json.out.count("objects of its class have no statements"), 100'000 * count);
        EXPECT_EQ(conversions(json).size(), count);
        const Outcome text = run(call + QStringList{targets, "--report=text"}, {}, "ulimit -v 200000; ");
        EXPECT_EQ(text.status, 0) << text.err.toStdString();
        // What all macros lack stands once.
        EXPECT_EQ(text.out.count("objects of its class have no statements"), 100'000);
    }
}
#endif

TEST_F(Program, TellsWhenAReportIsNotWritten)
{
    write("lossy.jsonl", lossy);
    for (const char* const targets : {"csharp", "csharp,vba"}) {
        const Outcome outcome = run({"convert", "lossy.jsonl", "--target", targets, "--output", "out/", "--report"}, {},
                                    "exec >/dev/full; ");
        EXPECT_EQ(outcome.status, 1) << targets;
        EXPECT_TRUE(outcome.err.endsWith("inkmacro: standard output: No space left on device\n"))
            << outcome.err.toStdString();
        EXPECT_TRUE(contents("out/csharp/lossy.cs").contains("line1")) << targets;
    }
}

} // namespace
