// Drawing files at the command line.

#include "Program.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const QByteArray kDrawing = "0\nSECTION\n2\nENTITIES\n"
                            "0\nLINE\n5\n2F\n8\nWalls\n10\n0\n20\n0\n11\n0.123456789012345\n21\n3\n"
                            "0\n3DSOLID\n5\n30\n8\n0\n"
                            "0\nSPLINE\n5\n31\n8\n0\n71\n3\n40\n0\n40\n0\n40\n0\n40\n0\n40\n1\n40\n1\n40\n1\n40\n1\n"
                            "10\n0\n20\n0\n10\n1\n20\n2\n10\n3\n20\n-1\n10\n4\n20\n0\n"
                            "0\nENDSEC\n0\nEOF\n";

QJsonObject object(const QByteArray& json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    EXPECT_TRUE(document.isObject()) << json.constData();
    return document.object();
}

void expectAccounts(const QJsonObject& accounts)
{
    EXPECT_EQ(accounts["imported"].toObject(), (QJsonObject{{"LINE", 1}}));
    const QJsonObject lost = accounts["lost"].toArray().at(0).toObject();
    EXPECT_EQ(lost["kind"], "3DSOLID");
    EXPECT_EQ(lost["count"], 1);
    const QJsonObject spline = accounts["approximated"].toArray().at(0).toObject();
    EXPECT_EQ(spline["kind"], "SPLINE");
    // A millionth of its size.
    EXPECT_GT(spline["deviation"].toDouble(), 0);
    EXPECT_LT(spline["deviation"].toDouble(), 6e-6);
}

} // namespace

TEST_F(Program, ImportsADrawingWhereverItComesFrom)
{
    write("plan.dxf", kDrawing);
    const Outcome printed = run({"import", "plan.dxf"});
    EXPECT_EQ(printed.status, 0);
    EXPECT_EQ(printed.err, "plan.dxf: 1 LINE imported\n"
                           "plan.dxf: 1 SPLINE approximated, by at most " +
                               printed.err.section("at most ", 1).section('\n', 0, 0) +
                               "\nplan.dxf: 1 3DSOLID lost: no recording has its kind\n");
    EXPECT_EQ(run({"import", "-", "--output", "-", "-q"}, kDrawing).out, printed.out);
    const Outcome reported = run({"import", "plan.dxf", "-o", "plan.jsonl", "--report"});
    EXPECT_EQ(contents("plan.jsonl"), printed.out.toUtf8());
    expectAccounts(object(reported.out.toUtf8()));
    EXPECT_EQ(run({"check", "--strict", "plan.jsonl"}).status, 0);
}

TEST_F(Program, TakesADrawingInPlaceOfARecording)
{
    write("plan.dxf", kDrawing);
    ASSERT_EQ(run({"import", "plan.dxf", "-o", "plan.jsonl", "-q"}).status, 0);
    const Outcome told = run({"convert", "plan.dxf", "-t", "csharp", "-o", "drawn/", "--report"});
    EXPECT_EQ(told.status, 0);
    expectAccounts(object(told.out.toUtf8())["conversions"].toArray().at(0).toObject());
    ASSERT_EQ(run({"convert", "plan.jsonl", "-t", "csharp", "-o", "repaired/", "-q", "--repair"}).status, 0);
    ASSERT_EQ(run({"convert", "plan.jsonl", "-t", "csharp", "-o", "recorded/", "-q"}).status, 0);
    EXPECT_EQ(contents("drawn/csharp/plan.cs"), contents("repaired/csharp/plan.cs"));
    EXPECT_EQ(run({"convert", "plan.dxf", "-t", "csharp", "-o", "-", "-q", "--faithful"}).out,
              QString::fromUtf8(contents("recorded/csharp/plan.cs")));
    EXPECT_EQ(run({"convert", "-", "-t", "csharp", "-o", "-", "-q"}, kDrawing).status, 0);
    EXPECT_EQ(run({"check", "plan.dxf"}).status, 0);
    // Where the kind of the entity stands in the text.
    const QString inspected = run({"inspect", "plan.dxf"}).out;
    EXPECT_TRUE(inspected.contains(" 6  added AcDbLine 2F")) << inspected.toStdString();
}

TEST_F(Program, SaysWhatIsNoDrawing)
{
    write("empty.dxf", "");
    write("old.jsonl", "what was there");
    const Outcome refused = run({"import", "empty.dxf", "-o", "old.jsonl"});
    EXPECT_EQ(refused.status, 3);
    EXPECT_EQ(refused.err, "empty.dxf:1: no section of a drawing is found from here on\n");
    EXPECT_EQ(contents("old.jsonl"), "what was there");
    EXPECT_EQ(run({"convert", "empty.dxf", "-t", "csharp"}).status, 3);
    EXPECT_EQ(run({"import", "nowhere.dxf"}).status, 3);
    write("plan.dxf", kDrawing);
    EXPECT_EQ(run({"format", "plan.dxf"}).err, "plan.dxf: is a drawing, and inkmacro import makes a recording of it\n");
    EXPECT_TRUE(run({"import", "plan.dxf", "--select", "Doors"}).err.contains("it has no layer Doors"));
}
