// What `inspect` shows of a recording.

#include "Program.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

/// Lines 1 to 3 are no actions.
const QByteArray drawing = R"({"recording":{"version":1}}
{"object":{"class":"AcDbCircle","handle":"2E","radius":2}}
{"object":{"class":"AcDbLine","handle":"2A","endPoint":[4,0,0],"layer":"10","xData":{"A\u001b\u202e":{"type":1000,"string":""}}}}

{"object":{"class":"AcDbLine","handle":"2B"}}
)";

const QByteArray actions =
    R"({"command":{"name":"_MOVE","actions":[{"selection":{"objects":[{"handle":"2A","class":"AcDbLine"}]}},)"
    R"({"interaction":{"kind":"point","prompt":"To:","result":null}},)"
    R"({"command":{"name":"'ZOOM","actions":[{"sysvar":{"name":"VIEWSIZE","value":{"double":2.5}}},null_]}},)"
    R"({"custom":{"kind":3,"data":[{"handles":["2A","2B"]},{"classes":["AcDbLine"]},{"vector":[1,2,3]}]}}]}}
{"command":{"name":"PROPERTIES","actions":[{"modified":{"class":"AcDbLine","handle":"2A","properties":[)"
    R"({"tag":"End X","value":4200,"old":4000,"group":"Geometry"},{"tag":"Layer","value":{"id":"10"}}]}},)"
    R"({"added":{"class":"AcDbText","handle":"2F","properties":[{"tag":"Height","value":{"int":3}}],)"
    R"("extra":[{"tag":"Contents","value":"a\nb\u001b[31m"}]}}]}}
{"command":{"name":"","actions":[]}}
{"property":{"class":"AcDbLine","handle":"2B","tag":"Color","value":{"color":"bylayer"}}}
{"custom":{"kind":5600,"data":[]}}
{"selection":{"objects":[]}}
)";

/// The recording of most cases.
QByteArray recording()
{
    return drawing + QByteArray(actions).replace("null_", R"({"null":null})");
}

QJsonObject jsonOf(const Outcome& outcome)
{
    QJsonParseError fault;
    const QJsonObject object = QJsonDocument::fromJson(outcome.out.toUtf8(), &fault).object();
    EXPECT_EQ(fault.error, QJsonParseError::NoError) << outcome.out.toStdString();
    return object;
}

QJsonArray parsed(const QByteArray& array)
{
    return QJsonDocument::fromJson(array).array();
}

TEST_F(Program, ShowsTheActionsOfARecording)
{
    write("r.jsonl", recording());
    EXPECT_EQ(run({"inspect", "r.jsonl"}).out.toStdString(), R"(r.jsonl: 6 actions (14 with those in commands)
drawing: 2 AcDbLine, 1 AcDbCircle
 6  command _MOVE (4 actions)
      [0] selection of 1 object: AcDbLine 2A
      [1] interaction point "To:" = no answer
      [2] command 'ZOOM (2 actions)
        [0] sysvar VIEWSIZE = 2.5
        [1] null
      [3] custom move (3 values)
        handles ("2A", "2B")
        classes ("AcDbLine")
        vector (1, 2, 3)
 7  command PROPERTIES (2 actions)
      [0] modified AcDbLine 2A (2 properties)
        End X = 4200 (group Geometry, was 4000)
        Layer = id 10
      [1] added AcDbText 2F (1 property, 1 extra)
        Height = 3
        extra: Contents = "a\nb\x1b[31m"
 8  command (0 actions)
 9  property AcDbLine 2B: Color = color bylayer
10  custom 5600 (no data)
11  selection of 0 objects
counts: 1 added, 4 command, 2 custom, 1 interaction, 1 modified, 1 null, 1 property, 2 selection, 1 sysvar
)");
    EXPECT_EQ(run({"check", "r.jsonl"}).out.section(',', 0, 1), "r.jsonl: ok, 6 actions (14 with those in commands)");
    EXPECT_EQ(run({"inspect", "-"}, "").out, "-: 0 actions\ncounts: none\n");
}

TEST_F(Program, ShowsActionsAsTheyStandInTheRecording)
{
    write("r.jsonl", recording());
    const Outcome outcome = run({"inspect", "r.jsonl", "--json"});
    EXPECT_EQ(outcome.out.count('\n'), 3 + 6 + 1) << "an action a line";
    const QJsonObject json = jsonOf(outcome);
    EXPECT_EQ(json["file"], "r.jsonl");
    EXPECT_EQ(json["drawing"], (QJsonObject{{"AcDbLine", 2}, {"AcDbCircle", 1}}));
    EXPECT_EQ(json["counts"]["command"], 4);
    EXPECT_EQ(json["actions"].toArray().size(), 6);
    const QJsonObject changes = json["actions"][1].toObject();
    EXPECT_EQ(changes["line"], 7);
    EXPECT_EQ(changes["command"]["name"], "PROPERTIES");
    EXPECT_EQ(changes["command"]["actions"],
              parsed(R"([{"index":0,"modified":{"class":"AcDbLine","handle":"2A","properties":[
                         {"tag":"End X","value":4200,"old":4000,"group":"Geometry"},
                         {"tag":"Layer","value":{"id":"10"},"group":""}]}},
                         {"index":1,"added":{"class":"AcDbText","handle":"2F",
                         "properties":[{"tag":"Height","value":{"int":3},"group":""}],
                         "extra":[{"tag":"Contents","value":"a\nb\u001b[31m","group":""}]}}])"));
    EXPECT_EQ(json["actions"][0]["command"]["actions"][3]["custom"]["name"], "move");
    EXPECT_EQ(json["actions"][0]["command"]["actions"][3]["custom"]["data"],
              parsed(R"([{"handles":["2A","2B"]},{"classes":["AcDbLine"]},{"vector":[1,2,3]}])"));
    EXPECT_EQ(jsonOf(run({"inspect", "-", "--json"}, "")).value("actions"), QJsonArray());
}

TEST_F(Program, ShowsWhichAnswersArePythonsParameters)
{
    const QString plate = INKMACRO_SOURCE_DIR "/examples/base_plate.jsonl";
    const QString shown = run({"inspect", plate, "--command", "line"}).out;
    EXPECT_EQ(shown.count(" (parameter "), 5);
    EXPECT_TRUE(shown.contains(" = (160, 0, 0) (parameter next_point of line)\n")) << shown.toStdString();
    const QJsonArray line = jsonOf(run({"inspect", plate, "--command", "line", "--json"}))["actions"].toArray();
    const QJsonValue asked = line[0]["command"]["actions"][3]["interaction"];
    EXPECT_EQ(asked["parameter"], (QJsonObject{{"function", "line"}, {"name", "next_point_2"}}));
    // A keyword chooses, and so is none.
    const QString answered = INKMACRO_SOURCE_DIR "/tests/scenarios/answered_commands/recording.jsonl";
    EXPECT_EQ(run({"inspect", answered, "--command", "layer"}).out.count(" (parameter "), 1);
    EXPECT_FALSE(run({"inspect", answered, "--command", "print"}).out.contains("parameter"));
}

TEST_F(Program, ShowsAsManyLevelsAsAreAskedFor)
{
    write("r.jsonl", recording());
    const auto lines = [this](const char* levels) { return run({"inspect", "r.jsonl", "--tree", levels}).out; };
    EXPECT_EQ(lines("0").section('\n', 2, 7), " 6  command _MOVE (4 actions)\n"
                                              " 7  command PROPERTIES (2 actions)\n"
                                              " 8  command (0 actions)\n"
                                              " 9  property AcDbLine 2B: Color = color bylayer\n"
                                              "10  custom 5600 (no data)\n"
                                              "11  selection of 0 objects");
    EXPECT_EQ(lines("0").section('\n', -2), lines("2").section('\n', -2)) << "counts are those of all levels";
    EXPECT_TRUE(lines("1").contains("added AcDbText 2F (1 property, 1 extra)\n 8  "));
    EXPECT_TRUE(lines("1").contains("[2] command 'ZOOM (2 actions)\n      [3] custom move (3 values)\n 7"));
    for (const char* const all : {"2", "3", "99999999999999999999"})
        EXPECT_EQ(lines(all), run({"inspect", "r.jsonl"}).out) << all;
    for (const char* const wrong : {"-1", "1.5", "", "x", "0x1", " 1"})
        EXPECT_EQ(run({"inspect", "r.jsonl", "--tree", wrong}).status, 2) << wrong;

    const QJsonObject one = jsonOf(run({"inspect", "r.jsonl", "--tree=1", "--json"}));
    EXPECT_EQ(one["actions"][1]["command"]["actions"],
              parsed(R"([{"index":0,"modified":{"class":"AcDbLine","handle":"2A","properties":2}},
                         {"index":1,"added":{"class":"AcDbText","handle":"2F","properties":1,"extra":1}}])"));
    EXPECT_EQ(one["actions"][0]["command"]["actions"][2]["command"]["actions"], 2);
    EXPECT_EQ(one["actions"][0]["command"]["actions"][3]["custom"]["data"], 3);
    EXPECT_EQ(one["counts"], jsonOf(run({"inspect", "r.jsonl", "--json"})).value("counts"));
}

TEST_F(Program, ShowsOnlyCommandsOfAName)
{
    write("r.jsonl", recording());
    const auto shown = [this](const char* name) {
        return run({"inspect", "r.jsonl", "--command", name, "--tree", "1"}).out.section('\n', 2).toStdString();
    };
    const char* const zoom = " 6  command _MOVE (1 of 4 actions)\n"
                             "      [2] command 'ZOOM (2 actions)\n"
                             "found: 2 command, 1 null, 1 sysvar\n";
    for (const char* const name : {"ZOOM", "zoom", "_zoom", "'_Zoom", "._ZOOM"})
        EXPECT_EQ(shown(name), zoom) << name;
    EXPECT_EQ(shown("move").substr(0, 35), " 6  command _MOVE (4 actions)\n     ");
    EXPECT_EQ(shown(""), " 8  command (0 actions)\nfound: 1 command\n");

    const Outcome near = run({"inspect", "r.jsonl", "--command", "MOEV"});
    EXPECT_EQ(near.status, 1);
    EXPECT_EQ(near.out, "");
    EXPECT_EQ(near.err, "inkmacro: r.jsonl: there is no command MOEV; did you mean MOVE?\n");
    EXPECT_EQ(run({"inspect", "-", "--command", "-ZOOM", "--json"}, "").err,
              "inkmacro: standard input: there is no command -ZOOM\n");
    EXPECT_EQ(run({"inspect", "-", "--command", "-ZOOM", "--json"}, "").out, "");
}

TEST_F(Program, ShowsWhatIsAboutAnObject)
{
    write("r.jsonl", recording());
    EXPECT_EQ(run({"inspect", "r.jsonl", "--handle", "2a"}).out.section('\n', 1).toStdString(),
              R"(drawing: 2 AcDbLine, 1 AcDbCircle
object AcDbLine 2A
  endPoint = [4,0,0]
  layer = "10"
  xData = {"A\u001b\u202e":[{"string":"","type":1000}]}
 6  command _MOVE (2 of 4 actions)
      [0] selection of 1 object: AcDbLine 2A
      [3] custom move (3 values)
        handles ("2A", "2B")
        classes ("AcDbLine")
        vector (1, 2, 3)
 7  command PROPERTIES (1 of 2 actions)
      [0] modified AcDbLine 2A (2 properties)
        End X = 4200 (group Geometry, was 4000)
        Layer = id 10
found: 2 command, 1 custom, 1 modified, 1 selection
)");
    const auto found = [this](const QStringList& more) {
        return run(QStringList{"inspect", "r.jsonl", "--tree", "0"} + more).out.section('\n', 2).toStdString();
    };
    EXPECT_EQ(found({"--handle", "2B"}), "object AcDbLine 2B\n"
                                         " 6  command _MOVE (1 of 4 actions)\n"
                                         " 9  property AcDbLine 2B: Color = color bylayer\n"
                                         "found: 1 command, 1 custom, 1 property\n");
    EXPECT_EQ(found({"--handle", "2F"}), " 7  command PROPERTIES (1 of 2 actions)\nfound: 1 added, 1 command\n");
    EXPECT_EQ(found({"--handle", "2E"}), "object AcDbCircle 2E\nfound: none\n");
    EXPECT_EQ(found({"--handle", "2B", "--command", "MOVE"}), " 6  command _MOVE (1 of 4 actions)\n"
                                                              "found: 1 command, 1 custom\n");
    const QJsonObject json = jsonOf(run({"inspect", "r.jsonl", "--json", "--handle", "2A"}));
    EXPECT_EQ(json["object"]["endPoint"], parsed("[4,0,0]"));
    EXPECT_EQ(json["actions"].toArray().size(), 2);
    EXPECT_EQ(json["actions"][1]["command"]["leftOut"], 1);

    // A layer is not what its entities are about.
    const Outcome missing = run({"inspect", "r.jsonl", "--handle", "10"});
    EXPECT_EQ(missing.status, 1);
    EXPECT_EQ(missing.out, "");
    EXPECT_EQ(missing.err, "inkmacro: r.jsonl: there is nothing about an object with the handle 10\n");
    const Outcome both = run({"inspect", "r.jsonl", "--handle", "2F", "--command", "move", "--json"});
    EXPECT_EQ(both.status, 1);
    EXPECT_EQ(both.out, "");
    EXPECT_EQ(both.err, "inkmacro: r.jsonl: no command move is about an object with the handle 2F\n");
    EXPECT_EQ(run({"inspect", "r.jsonl", "--handle", "0"}).status, 2);
    EXPECT_EQ(run({"inspect", "nowhere.jsonl", "--handle", "2A"}).status, 3);
}

TEST_F(Program, ShowsNoEndlessLinesOrLists)
{
    QByteArray vertices;
    for (int i = 0; i < 1000; ++i)
        for (const char axis : {'X', 'Y'})
            vertices += QString(R"({"tag":"Vertex %1","value":%2,"index":{"int":%2}},)").arg(axis).arg(i).toUtf8();
    QByteArray elements;
    QByteArray handles;
    for (int i = 0; i < 500; ++i) {
        elements += QString(R"({"tag":%1,"value":{"point":[0,0,0]}},)").arg(i).toUtf8();
        handles += QString(R"({"class":"AcDbLine","handle":"%1"},)").arg(i + 1000, 0, 16).toUtf8();
    }
    elements.chop(1);
    handles.chop(1);
    const QByteArray text = "%2" + QByteArray(76, 'x') + "\xF0\x9F\x98\x80" + QByteArray(400, 'y');
    write("r.jsonl", R"({"added":{"class":"AcDbPolyline","handle":"2F","properties":[)" + vertices +
                         R"({"tag":"Vertex","value":{"collection":{"elements":[)" + elements +
                         R"(]}}},{"tag":"Note","value":")" + text + R"(","old":")" + text + "\"}]}}\n" +
                         R"({"selection":{"objects":[)" + handles + "]}}\n{\"sysvar\":{\"name\":\"" +
                         QByteArray(5000, 'n') + "\",\"value\":{\"string\":\"" + text + "\"}}}\n");
    const QString out = run({"inspect", "r.jsonl"}).out;
    for (const QString& line : out.split('\n'))
        EXPECT_LE(line.length(), 260) << line.toStdString();
    EXPECT_LT(out.count('\n'), 55);
    EXPECT_TRUE(out.contains("\n     Vertex Y[19] = 19\n")) << out.toStdString();
    EXPECT_FALSE(out.contains("Vertex Y[20]"));
    EXPECT_TRUE(out.contains("\n     and more, which --json shows: 980 Vertex X, 980 Vertex Y\n"));
    EXPECT_TRUE(out.contains("\n2  selection of 500 objects: AcDbLine 3E8, "));
    EXPECT_TRUE(out.contains("(was \"%2" + QString(76, 'x') + "... (482 letters))\n"));
    const QJsonValue actions = jsonOf(run({"inspect", "r.jsonl", "--json"})).value("actions");
    EXPECT_EQ(actions[0]["added"]["properties"].toArray().size(), 2002);
}

} // namespace
