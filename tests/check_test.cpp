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
    EXPECT_EQ(outcome.err,
              "circle.jsonl:2: warning: property \"Radius\" of AcDbCircle 30: it is recorded in another form\n"
              "circle.jsonl:3: warning: handle 30 has been added in line 2 already\n"
              "circle.jsonl:3: warning: property \"Radius\" of AcDbCircle 30: it is recorded in another form\n"
              "circle.jsonl:4: warning: added AcDbCirle 31: objects of its class have no statements\n");
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
    EXPECT_EQ(json["warnings"][1],
              (QJsonObject{{"line", 3}, {"path", ""}, {"message", "handle 30 has been added in line 2 already"}}));
    write("many.jsonl", line + circle.repeated(15));
    EXPECT_TRUE(run({"check", "many.jsonl"}).err.endsWith("many.jsonl: and 9 warnings more; --json has them all\n"));
}

TEST_F(Program, FormatsRecordingsAnObjectALine)
{
    const QByteArray lines =
        "{\"recording\":{\"version\":1}}\n{\"custom\":{\"kind\":0,\"data\":[\"a } \\\" b\",1.50e3]}}\n";
    const QByteArray pretty = "{\n  \"recording\": {\"version\": 1}\n}\n{ \"custom\": {\n\t\"kind\": 0,\r\n"
                              "  \"data\": [ \"a } \\\" b\",\n1.50e3 ] } }";
    write("pretty.jsonl", pretty);
    EXPECT_TRUE(run({"check", "pretty.jsonl"}).err.contains("inkmacro format writes it so\n"));
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
