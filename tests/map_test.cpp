// Maps, which lead the lines of macros back to the recording.

#include "Program.h"

#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QRegularExpression>

#include <algorithm>

namespace {

const QMap<QString, QString> actionOfKind{
    {"declaration", "added"}, {"insertion", "added"},     {"change", "modified"},
    {"property", "property"}, {"variable", "sysvar"},     {"prompt", "interaction"},
    {"custom", "custom"},     {"selection", "selection"}, {"block", "command"},
};

struct Range
{
    int first;
    int last;
    QString kind;
    int line;
    QString path;
    QStringList handles;
    QString text; ///< of its lines

    QString place() const { return QString("%1 %2 ").arg(line).arg(path); }
};

class Maps : public Program
{
protected:
    /// Converts to all targets into out/, and gives the macros' paths by their targets.
    QMap<QString, QString> convert(const QString& recording, const QStringList& options) const
    {
        const Outcome outcome = run(
            QStringList{"convert", recording, "--target", "all", "--output", "out/", "--map", "--quiet", "--force"} +
            options);
        EXPECT_EQ(outcome.status, 0) << recording.toStdString() << ": " << outcome.err.toStdString();
        QMap<QString, QString> macros;
        for (const QString& file : outcome.out.split('\n'))
            if (file.endsWith(".map.json"))
                macros.insert(file.section('/', 1, 1), file.chopped(9));
        EXPECT_EQ(macros.size(), 7) << outcome.out.toStdString();
        return macros;
    }

    std::vector<Range> rangesOf(const QString& macro) const
    {
        const QStringList lines = QString::fromUtf8(contents(macro)).split('\n');
        std::vector<Range> ranges;
        const QJsonDocument map = QJsonDocument::fromJson(contents(macro + ".map.json"));
        EXPECT_EQ(map["mapVersion"], 1) << macro.toStdString();
        EXPECT_EQ(map["macro"], QFileInfo(macro).fileName());
        for (const QJsonValue& value : map["ranges"].toArray()) {
            Range range{value["lines"][0].toInt(),
                        value["lines"][1].toInt(),
                        value["kind"].toString(),
                        value["line"].toInt(),
                        value["path"].toString(),
                        {},
                        {}};
            for (const QJsonValue& handle : value["handles"].toArray())
                range.handles.append(handle.toString());
            range.text = lines.mid(range.first - 1, range.last - range.first + 1).join('\n');
            ranges.push_back(range);
        }
        return ranges;
    }

    /// The ranges follow each other and leave no line out; head and foot are a frame.
    void expectWhole(const QString& macro, const std::vector<Range>& ranges) const
    {
        int next = 1;
        for (const Range& range : ranges) {
            EXPECT_EQ(range.first, next) << macro.toStdString();
            EXPECT_GE(range.last, range.first) << macro.toStdString();
            next = range.last + 1;
        }
        QByteArray text = contents(macro);
        if (text.endsWith('\n'))
            text.chop(1);
        EXPECT_EQ(next - 1, text.count('\n') + 1) << macro.toStdString();
        EXPECT_EQ(ranges.front().kind, "frame") << macro.toStdString();
        EXPECT_EQ(ranges.back().kind, "frame") << macro.toStdString();
    }

    /// Each range names an action that the recording has, of that kind and about those handles.
    static void expectPlaces(const QList<QByteArray>& recording, const std::vector<Range>& ranges)
    {
        static const QRegularExpression child("^command\\.actions\\[([0-9]+)\\]$");
        for (const Range& range : ranges) {
            if (range.kind == "frame")
                continue;
            QJsonValue action = QJsonDocument::fromJson(recording.value(range.line - 1)).object();
            if (!range.path.isEmpty())
                action = action["command"]["actions"][child.match(range.path).captured(1).toInt()];
            const QString key = actionOfKind.value(range.kind);
            EXPECT_TRUE(action.toObject().contains(key)) << range.place().toStdString() << range.kind.toStdString();
            const QString handle = action[key]["handle"].toString();
            EXPECT_TRUE(handle.isEmpty() || range.handles == QStringList(handle)) << range.place().toStdString();
        }
    }

    /// What is declared for an action is what its other lines name, save those of groups, and of files of shapes, that
    /// have no variable. Gives the number of such pairs.
    static int expectNames(const QString& macro, const std::vector<Range>& ranges)
    {
        static const QRegularExpression variable("\\b[a-zA-Z]+[0-9]+\\b");
        QMap<QString, QString> declared;
        for (const Range& range : ranges)
            if (range.kind == "declaration")
                if (const QRegularExpressionMatch name = variable.match(range.text); name.hasMatch())
                    declared.insert(range.place(), name.captured());
        int pairs = 0;
        for (const Range& range : ranges) {
            if (range.kind != "insertion" || !declared.contains(range.place()))
                continue;
            ++pairs;
            EXPECT_TRUE(range.text.contains(declared.value(range.place())) || range.text.contains("CreateGroup") ||
                        range.text.contains("ShapeManager"))
                << macro.toStdString() << ':' << range.first << ": " << range.text.toStdString();
        }
        return pairs;
    }

    /// The range that a line with those words stands in.
    static Range rangeWith(const std::vector<Range>& ranges, const QString& words)
    {
        const auto found =
            std::find_if(ranges.begin(), ranges.end(), [&](const Range& range) { return range.text.contains(words); });
        EXPECT_NE(found, ranges.end()) << words.toStdString();
        return found == ranges.end() ? Range{} : *found;
    }
};

TEST_F(Maps, LeadEachLineOfAllScenariosBack)
{
    QStringList files;
    for (QDirIterator all(INKMACRO_SOURCE_DIR "/tests/scenarios", {"recording.jsonl"}, QDir::Files,
                          QDirIterator::Subdirectories);
         all.hasNext();)
        files.append(all.next());
    for (QDirIterator all(INKMACRO_SOURCE_DIR "/examples", {"*.jsonl"}, QDir::Files); all.hasNext();)
        files.append(all.next());
    int pairs = 0;
    for (const QString& name : files) {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QList<QByteArray> recording = file.readAll().split('\n');
        for (const QStringList& options : {QStringList{"--replay"}, {"--replay", "--repair"}})
            for (const QString& macro : convert(name, options)) {
                SCOPED_TRACE((name + ' ' + macro + ' ' + options.join(' ')).toStdString());
                const std::vector<Range> ranges = rangesOf(macro);
                ASSERT_FALSE(ranges.empty());
                expectWhole(macro, ranges);
                expectPlaces(recording, ranges);
                pairs += expectNames(macro, ranges);
            }
    }
    EXPECT_GT(pairs, 1000);
}

/// A command that draws a line and changes it, and behind it a system variable.
const QByteArray commands =
    "{\"recording\":{\"version\":1}}\n\n"
    R"({"command":{"name":"LINE","actions":[{"added":{"class":"AcDbLine","handle":"2F","properties":[{"tag":"End X","value":4.5},)"
    R"({"tag":"End Y","value":0},{"tag":"End Z","value":0},{"tag":"Start X","value":0},{"tag":"Start Y","value":0},)"
    R"({"tag":"Start Z","value":0}]}},{"sysvar":{"name":"CLAYER","value":{"int16":1}}},{"modified":{"class":"AcDbLine",)"
    R"("handle":"2F","properties":[{"tag":"LineScale","value":2}]}}]}})"
    "\n"
    R"({"sysvar":{"name":"CVPORT","value":{"int16":2}}})"
    "\n";

TEST_F(Maps, TellActionsHandlesAndKinds)
{
    write("walls.jsonl", commands);
    const QString macro = convert("walls.jsonl", {}).value("csharp");
    const QByteArray map = contents(macro + ".map.json");
    const auto lineOf = [lines = contents(macro).split('\n')](const char* words) {
        const auto found =
            std::find_if(lines.begin(), lines.end(), [&](const QByteArray& line) { return line.contains(words); });
        return static_cast<int>(found - lines.begin()) + 1;
    };
    const int declared = lineOf("Line line1;");
    const QString expected =
        "{\"mapVersion\":1,\"programVersion\":\"" + run({"--version"}).out.trimmed().section(' ', 1) +
        "\",\"input\":\"walls.jsonl\",\"target\":\"csharp\","
        "\"macro\":\"walls.cs\",\"ranges\":[\n"
        "{\"lines\":[1,%1],\"kind\":\"frame\"},\n"
        "{\"lines\":[%2,%2],\"line\":3,\"path\":\"command.actions[0]\",\"handles\":[\"2F\"],\"kind\":\"declaration\"},\n"
        "{\"lines\":[%3,%3],\"line\":3,\"path\":\"\",\"handles\":[],\"kind\":\"block\"},\n"
        "{\"lines\":[%4,%4],\"line\":3,\"path\":\"command.actions[0]\",\"handles\":[\"2F\"],\"kind\":\"insertion\"},\n"
        "{\"lines\":[%5,%6],\"line\":3,\"path\":\"command.actions[2]\",\"handles\":[\"2F\"],\"kind\":\"change\"},\n"
        "{\"lines\":[%7,%7],\"line\":3,\"path\":\"\",\"handles\":[],\"kind\":\"block\"},\n"
        "{\"lines\":[%8,%9],\"line\":4,\"path\":\"\",\"handles\":[],\"kind\":\"variable\"},\n"
        "{\"lines\":[";
    EXPECT_TRUE(QString::fromUtf8(map).startsWith(expected.arg(declared - 1)
                                                      .arg(declared)
                                                      .arg(declared + 1)
                                                      .arg(declared + 2)
                                                      .arg(declared + 3)
                                                      .arg(declared + 6)
                                                      .arg(declared + 7)
                                                      .arg(declared + 8)
                                                      .arg(declared + 11)))
        << map.toStdString();
    EXPECT_EQ(lineOf("line1 = iwSketchManager.InsertLine"), declared + 2);
    EXPECT_EQ(lineOf("object modified"), declared + 3);
    EXPECT_EQ(lineOf("SetCVPORT"), declared + 10);
    EXPECT_TRUE(map.endsWith("],\"kind\":\"frame\"}\n]}\n")) << map.toStdString();
}

TEST_F(Maps, LeadWhatACustomActionMakesToItsHandle)
{
    const QString hatched = INKMACRO_SOURCE_DIR "/examples/site_plan_hatched.jsonl";
    for (const QStringList& options : {QStringList(), {"--repair"}}) {
        const std::vector<Range> ranges = rangesOf(convert(hatched, options).value("csharp"));
        const Range inserted = rangeWith(ranges, "hatch3 = iwSketchManager.InsertHatch");
        const Range declared = rangeWith(ranges, "Hatch hatch3;");
        EXPECT_EQ(inserted.kind, "custom");
        EXPECT_EQ(inserted.line, 42);
        EXPECT_EQ(inserted.path, "command.actions[0]");
        EXPECT_EQ(declared.line, 42);
        EXPECT_EQ(declared.path, "command.actions[1]");
        ASSERT_EQ(declared.handles.size(), 1);
        EXPECT_TRUE(inserted.handles.contains(declared.handles.front())) << inserted.handles.join(' ').toStdString();
    }
}

/// So many that a repaired VBA macro has several procedures, and the macro is written by a second thread.
QByteArray manyLines()
{
    QByteArray lines;
    for (int i = 0; i < 3000; ++i)
        lines += QByteArray(line).replace("\"2F\"", '"' + QByteArray::number(256 + i, 16).toUpper() + '"');
    return lines;
}

TEST_F(Maps, LeadDividedAndLongMacrosBack)
{
    const QByteArray recording = manyLines();
    write("many.jsonl", recording);
    for (const QStringList& options : {QStringList(), {"--repair"}}) {
        const QMap<QString, QString> macros = convert("many.jsonl", options);
        for (const QString& macro : macros) {
            SCOPED_TRACE((macro + options.join(' ')).toStdString());
            const std::vector<Range> ranges = rangesOf(macro);
            expectWhole(macro, ranges);
            expectPlaces(recording.split('\n'), ranges);
            const auto inserted = std::count_if(ranges.begin(), ranges.end(),
                                                [](const Range& range) { return range.kind == "insertion"; });
            EXPECT_EQ(inserted, 3000);
            EXPECT_EQ(expectNames(macro, ranges), macro.endsWith(".html") || macro.endsWith(".py") ? 0 : 3000);
        }
        if (options.isEmpty())
            continue;
        const std::vector<Range> ranges = rangesOf(macros.value("vba"));
        EXPECT_EQ(rangeWith(ranges, "Private Sub RecordedActions2()").kind, "frame");
        EXPECT_EQ(rangeWith(ranges, " RecordedActions2\n").kind, "frame");
        const Range last = rangeWith(ranges, "Set line3000 = ");
        EXPECT_EQ(last.line, 3000);
        EXPECT_EQ(last.handles, QStringList("CB7"));
    }
}

TEST_F(Maps, AreTheSameInEachRun)
{
    for (const QStringList& options : {QStringList(), {"--repair"}}) {
        QMap<QString, QByteArray> first;
        for (int i = 0; i < 2; ++i)
            for (const QString& macro : convert(INKMACRO_SOURCE_DIR "/examples/floor_plan.jsonl", options)) {
                const QByteArray map = contents(macro + ".map.json");
                EXPECT_FALSE(map.isEmpty());
                EXPECT_EQ(first.insert(macro, first.value(macro, map)).value(), map) << macro.toStdString();
            }
    }
}

TEST_F(Maps, StandAndFallWithTheMacro)
{
    write("walls.jsonl", commands);
    const QStringList call{"convert", "walls.jsonl", "--target", "csharp,javascript", "--output", "out/", "--quiet"};
    EXPECT_FALSE(run(call).out.contains("map"));
    EXPECT_FALSE(exists("out/csharp/walls.cs.map.json"));

    const Outcome listed = run(call + QStringList("--map"));
    EXPECT_EQ(listed.out, "out/csharp/walls.cs\nout/csharp/Program.cs\nout/csharp/walls.csproj\n"
                          "out/csharp/walls.cs.map.json\n"
                          "out/javascript/walls.html\nout/javascript/walls.html.map.json\n");
    const QJsonDocument report = QJsonDocument::fromJson(run(call + QStringList{"--map", "--report"}).out.toUtf8());
    EXPECT_EQ(report["conversions"][0]["map"], "out/csharp/walls.cs.map.json");
    EXPECT_EQ(report["conversions"][0]["project"].toArray().size(), 2);
    EXPECT_EQ(report["conversions"][1]["map"], "out/javascript/walls.html.map.json");

    const QByteArray map = contents("out/csharp/walls.cs.map.json");
    // Neither of them is replaced when one cannot be written whole.
    write("walls.jsonl", commands + manyLines());
    const Outcome full = run(call + QStringList("--map"), {}, "ulimit -f 200; trap '' XFSZ; ");
    EXPECT_NE(full.status, 0);
    EXPECT_EQ(contents("out/csharp/walls.cs.map.json"), map);
    EXPECT_FALSE(contents("out/csharp/walls.cs").contains("line2"));
    // Nor what is in its place and not to be replaced.
    QDir().mkpath(path("out/csharp/other.cs.map.json"));
    write("other.jsonl", commands);
    const Outcome folder =
        run({"convert", "other.jsonl", "-t", "csharp", "-o", "out/csharp/other.cs", "--map", "-q", "-f"});
    EXPECT_EQ(folder.status, 1);
    EXPECT_TRUE(folder.err.contains("other.cs.map.json exists and is not a regular file")) << folder.err.toStdString();
    write("out/a.cs.map.json", commands);
    const Outcome input = run({"convert", "out/a.cs.map.json", "-t", "csharp", "-o", "out/a.cs", "--map", "-q", "-f"});
    EXPECT_EQ(input.status, 2);
    EXPECT_EQ(contents("out/a.cs.map.json"), commands);
    const Outcome printed = run({"convert", "walls.jsonl", "-t", "csharp", "-o", "-", "--map"});
    EXPECT_EQ(printed.status, 2);
    EXPECT_TRUE(printed.err.startsWith("inkmacro: --map writes a file beside the macro, "))
        << printed.err.toStdString();
    EXPECT_EQ(printed.out, "");
}

} // namespace
