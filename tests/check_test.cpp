// What `check` finds in recordings, and what `format` makes of them.

#include "Program.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

TEST_F(Program, ChecksOnBehindTheFirstMistake)
{
    write("bad.jsonl", line +
                           R"({"added":{"class":"AcDbCircle","handle":"xyz","properties":[]}})"
                           "\n{\"addd\":{}}\n" +
                           line);
    const Outcome outcome = run({"check", "bad.jsonl"});
    EXPECT_EQ(outcome.status, 3);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "bad.jsonl:2: added.handle: \"xyz\" is not a handle: only hexadecimal digits are allowed\n"
                           "bad.jsonl:3: \"addd\" is not a kind of line\n");
    write("worse.jsonl", QByteArray("{\"addd\":{}}\n").repeated(50));
    EXPECT_EQ(run({"check", "worse.jsonl"}).err.count('\n'), 20);
}

TEST_F(Program, WarnsOfWhatIsProbablyNotMeant)
{
    const QByteArray circle =
        R"({"added":{"class":"AcDbCircle","handle":"30","properties":[{"tag":"Center X","value":1},)"
        R"({"tag":"Center Y","value":1},{"tag":"Center Z","value":0},{"tag":"Radius","value":"5"}]}})"
        "\n";
    write("circle.jsonl", line + circle + circle + R"({"added":{"class":"AcDbCirle","handle":"31","properties":[]}})");
    const Outcome outcome = run({"check", "circle.jsonl"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out, "circle.jsonl: ok, 4 actions (5 with those in commands), 4 warnings\n");
    EXPECT_EQ(
        outcome.err,
        "circle.jsonl:2: warning: assumed: property \"Radius\" of AcDbCircle 30: it is recorded in another form\n"
        "circle.jsonl:3: warning: handle 30 has been added in line 2 already\n"
        "circle.jsonl:3: warning: assumed: property \"Radius\" of AcDbCircle 30: it is recorded in another form\n"
        "circle.jsonl:4: warning: lost: added AcDbCirle 31: objects of its class have no statements; did you mean "
        "AcDbCircle?\n");
    EXPECT_EQ(run({"check", "circle.jsonl", "--strict"}).status, 1);
    write("walls.jsonl", line);
    EXPECT_EQ(run({"check", "walls.jsonl", "walls.jsonl", "--strict"}).out,
              "walls.jsonl: ok, 1 action (2 with those in commands)\n"
              "walls.jsonl: ok, 1 action (2 with those in commands)\n");
    EXPECT_EQ(run({"check", "walls.jsonl", "nowhere.jsonl", "--strict"}).status, 3);

    const QJsonObject json =
        QJsonDocument::fromJson(run({"check", "circle.jsonl", "--json"}).out.toUtf8())["recordings"][0].toObject();
    EXPECT_EQ(json["actions"], 4);
    EXPECT_EQ(json["errors"], QJsonArray());
    EXPECT_EQ(
        json["warnings"][1],
        (QJsonObject{
            {"line", 3}, {"path", ""}, {"kind", "handle"}, {"message", "handle 30 has been added in line 2 already"}}));
    write("many.jsonl", line + circle.repeated(15));
    EXPECT_TRUE(run({"check", "many.jsonl"}).err.endsWith("many.jsonl: and 9 warnings more; --json has them all\n"));
}

/// What a faithful macro writes in spite of all a repaired one loses, and by a top-level action that fails there is no
/// macro at all.
TEST_F(Program, WarnsOfWhatRepairedMacrosLoseAndOfWhatFails)
{
    write("layer.jsonl", R"({"modified":{"class":"AcDbLayerTableRecord","handle":"77","properties":[)"
                         R"({"tag":"Color","value":{"color":{"index":1}}}]}})");
    EXPECT_EQ(run({"check", "layer.jsonl"}).err,
              "layer.jsonl:1: warning: lost: changes of AcDbLayerTableRecord 77: the "
              "drawing does not have the layer\n");
    write("fails.jsonl", line + R"({"custom":{"kind":17,"data":[{"handle":"2F"}]}})");
    EXPECT_EQ(run({"check", "fails.jsonl"}).err,
              "fails.jsonl:2: warning: a conversion ends here without a macro, because of what is lost\n"
              "fails.jsonl:2: warning: lost: custom erase: invalid index\n");
    EXPECT_TRUE(run({"convert", "fails.jsonl", "-t", "vba", "-o", "out/"})
                    .err.endsWith("out/vba/fails.bas; inkmacro check fails.jsonl tells why\n"));
    EXPECT_TRUE(run({"convert", "fails.jsonl", "-t", "vba", "-o", "out/", "--report"})
                    .err.endsWith("out/vba/fails.bas: custom erase: invalid index\n"));
}

using Lines = std::vector<std::string>;

class Warnings : public Program
{
protected:
    /// Of these lines, as "LINE: MESSAGE".
    Lines of(const QByteArray& lines) const
    {
        write("recording.jsonl", lines);
        const QString json = run({"check", "--json", "recording.jsonl"}).out;
        Lines texts;
        for (const QJsonValue warning : QJsonDocument::fromJson(json.toUtf8())["recordings"][0]["warnings"].toArray())
            texts.push_back(std::to_string(warning["line"].toInt()) + ": " +
                            warning["message"].toString().toStdString());
        return texts;
    }
};

TEST_F(Warnings, TellWhichNamesWereMeant)
{
    const QByteArray recorded[] = {
        // What is missing for it is told with it.
        R"({"added":{"class":"AcDbCircle","handle":"30","properties":[{"tag":"Center X","value":1},)"
        R"({"tag":"Center Y","value":1},{"tag":"Center Z","value":0},{"tag":"radius","value":5}]}})",
        // What the object has is not meant, nor is a tag of changed objects that is no tag of added ones.
        R"({"added":{"class":"AcDbLine","handle":"31","properties":[{"tag":"Start X","value":0},)"
        R"({"tag":"Start Y","value":0},{"tag":"Start Z","value":0},{"tag":"End X","value":4},)"
        R"({"tag":"End Y","value":0},{"tag":"End Z","value":0},{"tag":"Start W","value":0},)"
        R"({"tag":"Hyperlink","value":"x"}]}})",
        R"({"modified":{"class":"AcDbCircle","handle":"30","properties":[{"tag":"Thicknes","value":5},)"
        R"({"tag":"Material","value":"Oak"}]}})",
        R"({"property":{"class":"AcDbCirle","handle":"30","tag":"Radius","value":3}})",
        R"({"added":{"class":"AcDbTable","handle":"40","properties":[{"tag":"Rows","value":{"int":1}},)"
        R"({"tag":"Columns","value":{"int":1}},{"tag":"Position X","value":0},{"tag":"Position Y","value":0},)"
        R"({"tag":"Position Z","value":0},{"tag":"RowHeight_2","value":1},{"tag":"ColumnWidth_0","value":1}]}})",
        R"({"modified":{"class":"AcDbTable","handle":"40","properties":[{"tag":"Content_0_1","value":"a"}]}})",
        R"({"added":{"class":"Line","handle":"32","properties":[]}})",
        R"({"added":{"class":"AcDbBody","handle":"33","properties":[]}})",
        // That a class is the drawing's own is no likeness.
        R"({"added":{"class":"AcDbDictionary","handle":"34","properties":[]}})",
        R"({"added":{"class":"HostWeldSymbol","handle":"35","properties":[]}})",
    };
    QByteArray lines;
    for (const QByteArray& line : recorded)
        lines += line + '\n';
    const std::string unset = ": no statement sets it";
    const std::string unknown = ": objects of its class have no statements";
    EXPECT_EQ(
        of(lines),
        (Lines{"1: lost: property \"radius\" of AcDbCircle 30" + unset + "; did you mean Radius?",
               "2: lost: property \"Start W\" of AcDbLine 31" + unset,
               "2: lost: property \"Hyperlink\" of AcDbLine 31" + unset,
               "3: lost: property \"Thicknes\" of AcDbCircle 30" + unset + "; did you mean Thickness?",
               "3: lost: property \"Material\" of AcDbCircle 30" + unset,
               "4: lost: property \"Radius\" of AcDbCirle 30" + unset + "; did you mean AcDbCircle?",
               "6: lost: property \"Content_0_1\" of AcDbTable 40" + unset + "; did you mean Contents_0_1?",
               "7: lost: added Line 32" + unknown + "; did you mean AcDbLine?", "8: lost: added AcDbBody 33" + unknown,
               "9: lost: added AcDbDictionary 34" + unknown, "10: lost: added HostWeldSymbol 35" + unknown}));
}

TEST_F(Warnings, TellOfHandlesThatReferToNothing)
{
    const QByteArray lines =
        R"({"object":{"class":"AcDbLine","handle":"2F"}}
{"command":{"name":"MOVE","actions":[{"selection":{"objects":[{"handle":"2F","class":"AcDbLine"},{"handle":"50","class":"AcDbLine"}]}},{"custom":{"kind":3,"data":[{"handles":["2F","50","60"]},{"classes":["AcDbLine","AcDbLine","AcDbLine"]},{"vector":[1,0,0]}]}}]}}
{"command":{"name":"LINE","actions":[{"custom":{"kind":3,"data":[{"handles":["61"]},{"classes":["AcDbLine"]},{"vector":[1,0,0]}]}},{"added":{"class":"AcDbLine","handle":"61","properties":[{"tag":"Start X","value":0},{"tag":"Start Y","value":0},{"tag":"Start Z","value":0},{"tag":"End X","value":4},{"tag":"End Y","value":0},{"tag":"End Z","value":0},{"tag":"Layer","value":{"id":"99"}}]}}]}}
{"added":{"class":"AcDbGroup","handle":"60","properties":[{"tag":"Name","value":"G"},{"tag":"AllEntities","value":{"collection":{"elements":[{"tag":"97","value":0}]}}}]}}
{"command":{"name":"POLYLINE","actions":[{"custom":{"kind":16,"data":[{"points":[[0,0,0],[1,1,0]]},{"points":[[0,0,0],[0,0,0]]},{"bool":true},{"handle":"62"},{"class":"AcDbPolyline"},{"doubles":[]},{"doubles":[]},{"bool":false},{"double":0}]}},{"custom":{"kind":40,"data":[{"string":"_FIT"},{"handles":["62"]},{"classes":["AcDbPolyline"]}]}}]}}
{"modified":{"class":"AcDbLayerTableRecord","handle":"99","properties":[{"tag":"Frozen","value":"Yes"}]}}
{"modified":{"class":"AcDbLayerTableRecord","handle":"98","properties":[{"tag":"Frozen","value":"Yes"}]}}
{"modified":{"class":"AcDbLayout","handle":"26","properties":[]}}
{"modified":{"class":"AcDbLine","handle":"A0","properties":[{"tag":"End X","value":3}]}}
{"custom":{"kind":17,"data":[{"handles":["A0","50"]},{"classes":["AcDbLine","AcDbLine"]}]}}
)";
    const auto nothing = [](const std::string& line, const std::string& handle) {
        return line + ": handle " + handle + " refers to nothing: neither the drawing nor the recording has it";
    };
    EXPECT_EQ(of(lines),
              (Lines{nothing("2", "50"), "2: handle 60 is added in line 4 only",
                     "3: lost: property \"Layer\" of AcDbLine 61: the drawing does not have what it names",
                     "4: lost: property \"AllEntities\" of AcDbGroup 60: the macro does not have the object 97",
                     "6: lost: changes of AcDbLayerTableRecord 99: the drawing does not have the layer",
                     "7: lost: changes of AcDbLayerTableRecord 98: the drawing does not have the layer",
                     "9: lost: changes of AcDbLine A0: the recording did not add the object, so the macro has no "
                     "variable for it",
                     nothing("10", "A0")}));
}

TEST_F(Program, FormatsRecordingsAnObjectALine)
{
    const QByteArray lines =
        "{\"recording\":{\"version\":1}}\n{\"custom\":{\"kind\":0,\"data\":[\"a } \\\" b\",1.50e3]}}\n";
    const QByteArray pretty = "{\n  \"recording\": {\"version\": 1}\n}\n{ \"custom\": {\n\t\"kind\": 0,\r\n"
                              "  \"data\": [ \"a } \\\" b\",\n1.50e3 ] } }";
    write("pretty.jsonl", pretty);
    EXPECT_TRUE(run({"check", "pretty.jsonl"}).err.contains("inkmacro format writes it so\n"));
    write("partly.jsonl", line + "{\"sysvar\": {\"name\": \"A\",\n\"value\": {\"int16\": 1}\n}}\n");
    EXPECT_EQ(run({"check", "partly.jsonl"}).err.count("inkmacro format writes it so\n"), 1);
    EXPECT_EQ(run({"format", "pretty.jsonl"}).out.toUtf8(), lines);
    EXPECT_EQ(run({"format", "-"}, "[" + QByteArray(pretty).replace("}\n{", "},\n{") + "]").out.toUtf8(), lines);
    EXPECT_EQ(run({"format", "pretty.jsonl", "-o", "pretty.jsonl"}).status, 0);
    EXPECT_EQ(contents("pretty.jsonl"), lines);

    const Outcome broken = run({"format", "-", "-o", "pretty.jsonl"}, "{\"a\":1}\n{\n\"b\": tru}");
    EXPECT_EQ(broken.status, 3);
    EXPECT_EQ(broken.err, "standard input:2: not valid JSON: \"tru\" is no value\n");
    EXPECT_EQ(contents("pretty.jsonl"), lines);
}

} // namespace
