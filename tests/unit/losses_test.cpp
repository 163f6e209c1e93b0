// What a conversion notes of a recording that its macro does not do, and where nothing is to be noted.

#include "host/kernel/CFxServices.h"
#include "module/CFxConverterIWAPI.h"
#include "recordfile/OpenDrawing.h"
#include "recordfile/RecordingReader.h"
#include "statements/Target.h"

#include "TestRepair.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QTemporaryDir>

using namespace inkmacro;

namespace {

const CFxConversionNotes& notesOf(const QByteArray& lines, Target target)
{
    QByteArray bytes = lines;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    Recording recording;
    const auto error = ReadRecording(buffer, "test", recording);
    EXPECT_FALSE(error) << error->text().toStdString();

    const auto language = static_cast<std::uint32_t>(target);
    GetFxSystemServices()->SetInt16("RecordingLanguage", static_cast<std::int16_t>(language));
    const OpenDrawing drawing(recording);
    const QTemporaryDir folder;
    CreateConverter(language, static_cast<std::uint32_t>(recording.header.mode), 0)
        ->Convert(folder.filePath("macro"), recording.actions);
    GetFxSystemServices()->SetInt16("RecordingLanguage", 0);

    return GetFxSystemServices()->Notes();
}

/// "0.2 what: reason", the numbers being the place.
std::vector<std::string> textsOf(const std::vector<CFxActionNote>& notes)
{
    std::vector<std::string> texts;
    for (const CFxActionNote& note : notes) {
        QStringList place;
        for (const std::uint32_t number : note.where)
            place.append(QString::number(number));
        texts.push_back((place.join('.') + ' ' + note.what.toQString() + ": " + note.reason.toQString()).toStdString());
    }
    return texts;
}

std::vector<std::string> lossesOf(const QByteArray& lines, Target target = Target::CSharp)
{
    return textsOf(notesOf(lines, target).GetLosses());
}

std::vector<std::string> assumptionsOf(const QByteArray& lines)
{
    return textsOf(notesOf(lines, Target::CSharp).GetAssumptions());
}

QByteArray command(const QByteArray& children)
{
    return "{\"command\":{\"name\":\"TEST\",\"actions\":[" + children + "]}}\n";
}

const QByteArray line = R"({"added":{"class":"AcDbLine","handle":"30","properties":[{"tag":"End X","value":4.5}]}})";
const QByteArray replay = "{\"recording\":{\"version\":1,\"mode\":1}}\n";

QByteArray changed(const QByteArray& cls, const QByteArray& handle, const QByteArray& properties)
{
    return "{\"modified\":{\"class\":\"" + cls + "\",\"handle\":\"" + handle + "\",\"properties\":[" + properties +
           "]}}\n";
}

using Lines = std::vector<std::string>;

TEST(Losses, AreNoneOfWhatIsPassedOverByRule)
{
    const QByteArray cases[] = {
        // Asked again only in a replay.
        command(R"({"interaction":{"kind":"angle","prompt":"A:","result":{"type":5004,"double":0.5}}},)"
                R"({"interaction":{"kind":"angle","prompt":"A:","result":null}},)"
                R"({"selection":{"objects":[]}},{"sysvar":{"name":"NOSUCH","value":{"int16":1}}})"),
        // A block brings the values of its attributes.
        R"({"object":{"class":"AcDbBlockTableRecord","handle":"60","name":"Stamp"}}
{"object":{"class":"AcDbAttribute","handle":"62","tag":"DATE","textString":"today"}}
{"object":{"class":"AcDbBlockReference","handle":"61","blockTableRecord":"60","attributes":["62"]}}
)" + command(R"({"added":{"class":"AcDbBlockReference","handle":"61","properties":[{"tag":"Name","value":"Stamp"}]}},)"
             R"({"added":{"class":"AcDbAttribute","handle":"62","properties":[{"tag":"Value","value":"today"}]}})"),
        // A leader brings its note.
        R"({"object":{"class":"AcDbMText","handle":"31","reactors":["32"]}}
{"object":{"class":"AcDbLeader","handle":"32","annotationObjectId":"31"}}
)" + command(R"({"added":{"class":"AcDbLeader","handle":"32","properties":[]}},)"
             R"({"added":{"class":"AcDbMText","handle":"31","properties":[{"tag":"Contents","value":"a"}]}})"),
        // The insertion gives what a change would set, or a new object has it anyway.
        command(
            R"({"added":{"class":"AcDbAlignedDimension","handle":"31","properties":[{"tag":"Measurement","value":2},)"
            R"({"tag":"Text override","value":"a"},{"tag":"Rotation","value":1},{"tag":"Erased","value":"NO"},)"
            R"({"tag":"Transparency","value":{"transparency":{"method":0,"alpha":0}}}]}},)"
            R"({"added":{"class":"AcDbCircle","handle":"32","properties":[{"tag":"Diameter","value":2}]}},)"
            R"({"added":{"class":"AcDbSolid","handle":"33","properties":[{"tag":"Vertex X","value":2}]}})"),
        // Only one of several marks is set.
        command(
            R"({"added":{"class":"AcDbDimStyleTableRecord","handle":"31","properties":[)"
            R"({"tag":"FitDimensionsGeometryText","value":"No"},{"tag":"Linear Dimensions Prefix","value":"<>"}]}})"),
        // Shown values that follow from others.
        line + '\n' + changed("AcDbLine", "30", R"({"tag":"End X","value":5},{"tag":"Delta X","value":5})"),
        // What a custom action makes has what new objects have.
        command(
            R"({"added":{"class":"AcDbRegion","handle":"31","properties":[{"tag":"LineColor","value":{"color":"bylayer"}}]}},)"
            R"({"custom":{"kind":44,"data":[{"handles":[]},{"classes":[]}]}})"),
        // A block inserts its hatches.
        R"({"object":{"class":"AcDbHatch","handle":"31","seedPoints":[[1,1]],"loops":[{"type":4}]}}
)" + command(R"({"added":{"class":"AcDbHatch","handle":"31","properties":[]}},)"
             R"({"added":{"class":"AcDbBlockTableRecord","handle":"32","properties":[{"tag":"Name","value":"B"},)"
             R"({"tag":"Objects","value":{"collection":{"elements":[{"tag":{"int":0},"value":"31"}]}}}]}})"),
    };
    for (const QByteArray& lines : cases)
        EXPECT_EQ(lossesOf(lines), Lines()) << lines.toStdString();
}

TEST(Losses, OfACommandAreItsFailedChildAndAllBehindIt)
{
    const QByteArray children = line +
                                R"(,{"custom":{"kind":56,"data":[]}},)"
                                R"({"sysvar":{"name":"LTSCALE","value":{"double":1}}},)" +
                                changed("AcDbLine", "30", R"({"tag":"Layer","value":{"id":"10"}})").trimmed() + ',' +
                                changed("AcDbLine", "31", "").trimmed(); // without a change
    EXPECT_EQ(lossesOf(command(line) + command(children)),
              (Lines{"1.1 custom 56: no statement is known for this kind of action or form of its data",
                     "1.3 modified AcDbLine 30: action 2 of its command could not be converted"}));
    EXPECT_EQ(lossesOf(replay + command(children)).at(1),
              "0.2 sysvar LTSCALE: action 2 of its command could not be converted");
    // The reason of a failure at top level is known too, though there is no macro then.
    EXPECT_EQ(lossesOf(line + "\n{\"custom\":{\"kind\":0,\"data\":[]}}\n"), (Lines{"1 custom mirror: invalid index"}));
    EXPECT_EQ(lossesOf(command(command(line).trimmed())), (Lines{"0.0 command TEST: it could not be converted"}));
}

TEST(Losses, OfObjectsTellTheirReason)
{
    const struct
    {
        QByteArray lines;
        const char* loss;
    } cases[] = {
        {command(R"({"added":{"class":"HostWeldSymbol","handle":"31","properties":[]}})"),
         "0.0 added HostWeldSymbol 31: objects of its class have no statements"},
        {changed("AcDbLine", "A0", R"({"tag":"End X","value":1},{"tag":"End Y","value":1})"),
         "0 changes of AcDbLine A0: the recording did not add the object, so the macro has no variable for it"},
        {command(R"({"added":{"class":"AcDbRadialDimension","handle":"31","properties":[]}})"),
         "0.0 AcDbRadialDimension 31: neither records nor the drawing tell what it measures"},
        {command(R"({"added":{"class":"AcDbRegion","handle":"31","properties":[]}})"),
         "0.0 AcDbRegion 31: no action of its command makes it"},
        {command(R"({"added":{"class":"AcDbRegion","handle":"31","properties":[{"tag":"Thickness","value":2}]}},)"
                 R"({"custom":{"kind":44,"data":[{"handles":[]},{"classes":[]}]}})"),
         "0.0 property \"Thickness\" of AcDbRegion 31: the action that makes the object does not set it"},
        {R"({"object":{"class":"AcDbPolyline","handle":"31","points":[[0,0],[1,0],[2,0]],"bulges":[0,1]}}
)" + command(R"({"added":{"class":"AcDbPolyline","handle":"31","properties":[]}})"),
         "0.0 property \"Vertex\" of AcDbPolyline 31: arcs come as lines"},
        {command(R"({"added":{"class":"AcDbBlockTableRecord","handle":"32","properties":[{"tag":"Name","value":"B"},)"
                 R"({"tag":"Objects","value":{"collection":{"elements":[{"tag":{"int":0},"value":"31"}]}}}]}})"),
         "0.0 object 31 in block B: the drawing does not have it"},
        {R"({"object":{"class":"AcDbMText","handle":"31","reactors":["32"]}}
{"object":{"class":"AcDbLeader","handle":"32","annotationObjectId":"31"}}
)" + command(R"({"added":{"class":"AcDbMText","handle":"31","properties":[]}})"),
         "0.0 AcDbMText 31: a leader brings it that the macro does not have"},
        {R"({"object":{"class":"AcDbSpline","handle":"31"}}
)" + command(R"({"custom":{"kind":18,"data":[{"string":"ANSI31"},{"double":1},{"double":0},{"bool":false},{"bool":true},)"
             R"({"bool":false},{"bool":false},{"ids":["31"]},{"bool":false}]}})"),
         "0.0 AcDbSpline 31: a boundary has no objects of its class"},
        {command(
             R"({"custom":{"kind":18,"data":[{"string":"ANSI31"},{"double":1},{"double":0},{"bool":false},{"bool":true},)"
             R"({"bool":false},{"bool":false},{"ids":["31"]},{"bool":false}]}})"),
         "0.0 custom insert hatch: the drawing does not have 31, which bounds it"},
        {command(R"({"custom":{"kind":17,"data":[{"handles":["31"]},{"classes":["HostWeldSymbol"]}]}})"),
         "0.0 HostWeldSymbol 31: objects of its class have no statements"},
        {command(R"({"custom":{"kind":37,"data":[{"handles":[]},{"classes":[]},{"string":"G"}]}})"),
         "0.0 custom group add: the macro does not have the group"},
        {command(R"({"custom":{"kind":8,"data":[{"string":"FILLET"},{"handle":"1"},{"class":"AcDbPolyline"}]}})"),
         "0.0 custom fillet: the interface has no operation for all corners of a polyline"},
        {replay + command(R"({"sysvar":{"name":"NOSUCH","value":{"int16":1}}})"),
         "0.0 sysvar NOSUCH: the interface has no option for it"},
        {replay + command(R"({"interaction":{"kind":"angle","prompt":"A:","result":null}})"),
         "0.0 interaction: it has no answer, so the macro does not ask"},
    };
    for (const auto& [lines, loss] : cases)
        EXPECT_EQ(lossesOf(lines), Lines{loss});
}

/// An action makes the object, and what its data do not hold is lost all the same.
TEST(Losses, OfObjectsThatActionsMakeAreWhatTheActionsDoNotSay)
{
    const auto ofMade = [](const char* cls, const char* properties, const char* custom) {
        return lossesOf(command(QByteArray(R"({"added":{"class":")") + cls + R"(","handle":"31","properties":[)" +
                                properties + "]}},{\"custom\":" + custom + "}"));
    };
    const auto lost = [](const char* cls, std::initializer_list<const char*> tags) {
        Lines lines;
        for (const char* tag : tags)
            lines.push_back(std::string("0.0 property \"") + tag + "\" of " + cls +
                            " 31: the action that makes the object does not set it");
        return lines;
    };
    EXPECT_EQ(ofMade("AcDbOle2Frame", R"({"tag":"Height","value":4.0},{"tag":"Position X","value":2.0})",
                     R"({"kind":15,"data":[{"int":0},{"string":"a.xls"}]})"),
              lost("AcDbOle2Frame", {"Height", "Position X"}));
    EXPECT_EQ(
        ofMade("AcDbViewport",
               R"({"tag":"Center X","value":4.0},{"tag":"Display locked","value":"Yes"},{"tag":"On","value":"Yes"})",
               R"({"kind":46,"data":[{"points":[[0,0,0],[1,1,0]]},{"points":[]},{"bool":false},{"handle":"31"},)"
               R"({"class":"AcDbViewport"},{"string":""}]})"),
        lost("AcDbViewport", {"Display locked"}));
    EXPECT_EQ(ofMade("AcDbPolyline", R"({"tag":"Elevation","value":4.0},{"tag":"Closed","value":"Yes"})",
                     R"({"kind":16,"data":[{"points":[[0,0,0],[1,1,0]]},{"points":[[0,0,0],[0,0,0]]},{"bool":true},)"
                     R"({"handle":"31"},{"class":"AcDbPolyline"},{"doubles":[]},{"doubles":[]},{"bool":false},)"
                     R"({"double":0}]})"),
              lost("AcDbPolyline", {"Elevation"}));
    EXPECT_EQ(ofMade("AcDbHatch", R"({"tag":"Elevation","value":4.0},{"tag":"Pattern name","value":"ANSI31"})",
                     R"({"kind":18,"data":[{"string":"ANSI31"},{"double":1},{"double":0},{"bool":true},{"bool":false},)"
                     R"({"bool":false},{"bool":false},{"points2d":[[1,2]]}]})"),
              lost("AcDbHatch", {"Elevation"}));
}

/// The insertion takes its values from the first list, and general properties come from the second.
TEST(Losses, OfTwoListsThatDifferAreWhatOnlyOneOfThemHas)
{
    const auto ofLists = [](const char* properties, const char* extra) {
        return lossesOf(command(QByteArray(R"({"added":{"class":"AcDbLine","handle":"31","properties":[)") +
                                properties + R"(],"extra":[)" + extra + "]}}"));
    };
    EXPECT_EQ(ofLists(R"({"tag":"End X","value":4.0},{"tag":"Material","value":"Oak"},{"tag":"Thickness","value":2.0})",
                      R"({"tag":"Material","value":"Oak"},{"tag":"End Y","value":3.0})"),
              (Lines{"0.0 property \"Thickness\" of AcDbLine 31: no statement sets it",
                     "0.0 property \"Material\" of AcDbLine 31: no statement sets it",
                     "0.0 property \"End Y\" of AcDbLine 31: no statement sets it"}));
    EXPECT_EQ(
        ofLists(R"({"tag":"End X","value":4.0})", R"({"tag":"End X","value":4.0},{"tag":"Thickness","value":2.0})"),
        Lines());
}

TEST(Assumptions, OfAReplayAreValuesOfAnotherForm)
{
    const auto ofSysvar = [](const char* name, const char* value) {
        return assumptionsOf(replay +
                             command(QByteArray(R"({"sysvar":{"name":")") + name + R"(","value":)" + value + "}}"));
    };
    const auto ofAnswer = [](const char* kind, const char* result) {
        return assumptionsOf(replay + command(QByteArray(R"({"interaction":{"kind":")") + kind +
                                              R"(","prompt":"A:","result":)" + result + "}}"));
    };
    const auto sysvar = [](const std::string& name) {
        return Lines{"0.0 sysvar " + name + ": the option does not take its value as it is, and is set to another one"};
    };
    EXPECT_EQ(ofSysvar("CECOLOR", R"({"string":"red"})"), sysvar("CECOLOR"));
    EXPECT_EQ(ofSysvar("CECOLOR", R"({"string":"3"})"), Lines());
    EXPECT_EQ(ofSysvar("LTSCALE", R"({"int16":2})"), sysvar("LTSCALE"));
    EXPECT_EQ(ofSysvar("LTSCALE", R"({"double":2})"), Lines());
    const Lines answer{"0.0 interaction: its answer is of another form than the prompt's"};
    EXPECT_EQ(ofAnswer("double", R"({"int16":2})"), answer);
    EXPECT_EQ(ofAnswer("point", R"({"point2d":[1,2]})"), answer);
    EXPECT_EQ(ofAnswer("string", R"({"double":2})"), answer);
    EXPECT_EQ(ofAnswer("integer", R"({"int16":2})"), Lines());
}

/// The statement that inserts a viewport declares its variable; the command around it has no declarations.
TEST(Faults, AreNoneOfDeclarationsThatAStatementMakes)
{
    const auto lacksDeclarations = [](const QByteArray& lines) {
        lossesOf(lines, Target::CSharp);
        const auto& faults = GetFxSystemServices()->Notes().GetFaults();
        return std::ranges::any_of(
            faults, [](const CFxFaultNote& fault) { return fault.reason.toQString().endsWith("has no declarations"); });
    };
    const QByteArray viewport = R"({"custom":{"kind":46,"data":[{"points":[[0,0,0],[1,1,0]]},{"points":[]},)"
                                R"({"bool":false},{"handle":"31"},{"class":"AcDbViewport"},{"string":"A3"}]}})";
    EXPECT_FALSE(
        lacksDeclarations(command(R"({"added":{"class":"AcDbViewport","handle":"31","properties":[]}},)" + viewport)));
    EXPECT_TRUE(lacksDeclarations(command(line + "," + viewport)));
}

TEST(Assumptions, AreMadeOfWhatIsMissingOrOfAnotherForm)
{
    const auto ofAdded = [](const char* cls, const char* properties) {
        return assumptionsOf(command(QByteArray(R"({"added":{"class":")") + cls + R"(","handle":"31","properties":[)" +
                                     properties + "]}}"));
    };
    const auto property = [](const std::string& tag, const std::string& cls, const std::string& reason) {
        return "0.0 property \"" + tag + "\" of " + cls + " 31: " + reason;
    };
    EXPECT_EQ(ofAdded("AcDbCircle", R"({"tag":"Center X","value":1.0},{"tag":"Center Y","value":{"int":2}},)"
                                    R"({"tag":"Center Z","value":0.0},{"tag":"Radius","value":"5"})"),
              Lines{property("Radius", "AcDbCircle", "it is recorded in another form")});
    EXPECT_EQ(ofAdded("AcDbAlignedDimension", R"({"tag":"xLine1Point","value":{"point":[0,0,0]}},)"
                                              R"({"tag":"xLine2Point","value":{"point":[4,0,0]}})"),
              Lines{property("dimLinePoint", "AcDbAlignedDimension", "it is not recorded, which gives the origin")});
    EXPECT_EQ(ofAdded("AcDbSolid", ""),
              Lines{property("Vertex", "AcDbSolid", "it is not recorded, which gives no points")});
    EXPECT_EQ(ofAdded("AcDbLayerTableRecord", R"({"tag":"ActivateLayer","value":"Ja"})"),
              (Lines{property("Name", "AcDbLayerTableRecord",
                              "neither a record nor the drawing tells it, which gives empty text"),
                     property("ActivateLayer", "AcDbLayerTableRecord", "its word is none of \"Yes\", \"No\"")}));
    EXPECT_EQ(ofAdded("AcDbPolyline", R"({"tag":"Vertex","value":{"collection":{"elements":[]}}},)"
                                      R"({"tag":"Closed","value":"yes"})"),
              Lines());
    EXPECT_EQ(
        ofAdded("AcDbBlockTableRecord", R"({"tag":"Objects","value":{"collection":{"elements":[]}}})"),
        Lines{property("origin", "AcDbBlockTableRecord", "the drawing does not have the block, which gives 0,0,0")});
    // Of a style by its record there is the name only in the drawing.
    const Lines styled = ofAdded("AcDbMText", R"({"tag":"Style","value":{"id":"99"}})");
    EXPECT_EQ(styled.back(), property("Style", "AcDbMText", "the drawing does not have what it names"));
    const Lines table =
        assumptionsOf(command(R"({"added":{"class":"AcDbTable","handle":"31","properties":[]}})") +
                      changed("AcDbTable", "31",
                              R"({"tag":"Contents_1","value":"a"},{"tag":"Contents_0_1","value":5.0},)"
                              R"({"tag":"Contents_0_2","value":"b"},{"tag":"RowHeight_1","value":"7"})"));
    const std::string cell = "1 property \"Contents_1\" of AcDbTable 31: its tag does not number a line or cell, which "
                             "gives the first one";
    EXPECT_EQ(Lines(std::find(table.begin(), table.end(), cell), table.end()),
              (Lines{cell, "1 property \"Contents_0_1\" of AcDbTable 31: it is recorded in another form",
                     "1 property \"RowHeight_1\" of AcDbTable 31: it is recorded in another form"}));
    const auto ofChange = [](const char* properties) {
        const Lines all = assumptionsOf(command(line) + changed("AcDbLine", "30", properties));
        return all.empty() ? std::string() : all.back();
    };
    EXPECT_EQ(ofChange(R"({"tag":"LineScale","value":"two"})"),
              "1 property \"LineScale\" of AcDbLine 30: it is recorded in another form");
    EXPECT_EQ(ofChange(R"({"tag":"End X","value":"7"})"),
              "1 property \"End X\" of AcDbLine 30: it is recorded in another form");
    EXPECT_EQ(ofAdded("AcDbGroup", R"({"tag":"Description","value":3.0},{"tag":"Name","value":"G"})"),
              Lines{property("Description", "AcDbGroup", "it is recorded in another form")});
}

TEST(Losses, OfWhatIsNoChoiceAreToldWithTheDefault)
{
    const auto ofChange = [](const char* property) {
        return lossesOf(command(line) + changed("AcDbLine", "30", property));
    };
    EXPECT_EQ(ofChange(R"({"tag":"LineWeight","value":{"int":7}})"),
              Lines{"1 \"7\" of iwLineWeight: there is no such choice, so the default stands"});
    EXPECT_EQ(ofChange(R"({"tag":"LineWeight","value":{"int":-3}})"), Lines());
    const auto ofText = [](const char* justification) {
        return lossesOf(command(QByteArray(R"({"added":{"class":"AcDbAttributeDefinition","handle":"31","properties":[)"
                                           R"({"tag":"Justify","value":")") +
                                justification + R"("}]}})"));
    };
    EXPECT_EQ(ofText("Slanted"),
              Lines{"0.0 \"Slanted\" of iwTextJustification: there is no such choice, so the default stands"});
    EXPECT_EQ(ofText("Left"), Lines());
    EXPECT_EQ(ofText("middle right"), Lines());
}

TEST(Losses, OfPropertiesAreThoseThatNoStatementSets)
{
    const auto ofLine = [](const QByteArray& properties) {
        return lossesOf(command(line) + changed("AcDbLine", "30", properties));
    };
    EXPECT_EQ(
        ofLine(R"({"tag":"Material","value":"Oak"},{"tag":"Layer","value":{"id":"99"}},{"tag":"End X","value":1})"),
        (Lines{"1 property \"Layer\" of AcDbLine 30: the drawing does not have what it names",
               "1 property \"Material\" of AcDbLine 30: no statement sets it"}));
    EXPECT_EQ(ofLine(R"({"tag":"Erased","value":"NO"})"),
              (Lines{"1 property \"Erased\" of AcDbLine 30: what comes back has no statement"}));
    // The same property of one action counts once, of two actions twice.
    const QByteArray twice = R"({"tag":"Material","value":"Oak"},{"tag":"Material","value":"Ash"})";
    EXPECT_EQ(ofLine(twice).size(), 1U);
    EXPECT_EQ(lossesOf(command(line) + changed("AcDbLine", "30", twice) + changed("AcDbLine", "30", twice)).size(), 2U);

    const QByteArray polyline = command(R"({"added":{"class":"AcDbPolyline","handle":"31","properties":[]}})");
    EXPECT_EQ(lossesOf(polyline + changed("AcDbPolyline", "31", R"({"tag":"Vertex X","value":1})")),
              (Lines{"1 property \"Vertex X\" of AcDbPolyline 31: its number is not recorded"}));

    const auto ofDimension = [](const char* cls, const QByteArray& properties) {
        return lossesOf(command(QByteArray(R"({"added":{"class":")") + cls + R"(","handle":"31","properties":[]}})") +
                        changed(cls, "31", properties));
    };
    EXPECT_EQ(
        ofDimension("AcDbAlignedDimension",
                    R"({"tag":"Text inside","value":{"element":{"tag":{"int":0},"value":"Yes"}}})"),
        (Lines{"1 property \"Text inside\" of AcDbAlignedDimension 31: the drawing does not have the dimension"}));
    EXPECT_EQ(ofDimension("AcDbAlignedDimension",
                          R"({"tag":"Text inside","value":{"element":{"tag":{"int":1},"value":"No"}}})"),
              Lines());
    // One that may say nothing, in a form that says nothing.
    EXPECT_EQ(
        ofDimension("AcDbDimStyleTableRecord",
                    R"({"tag":"FitDimensionsGeometryText","value":1},{"tag":"Linear Dimensions Prefix","value":2})"),
        (Lines{"1 property \"FitDimensionsGeometryText\" of AcDbDimStyleTableRecord 31: it is recorded in another "
               "form",
               "1 property \"Linear Dimensions Prefix\" of AcDbDimStyleTableRecord 31: it is recorded in another "
               "form"}));

    const QByteArray table = command(
        R"({"added":{"class":"AcDbTable","handle":"31","properties":[{"tag":"Rows","value":5},{"tag":"Columns","value":2},)"
        R"({"tag":"ColumnWidth_0","value":9},{"tag":"ColumnWidth_1","value":9},{"tag":"Contents_1_1","value":"a"}]}})");
    EXPECT_EQ(lossesOf(table + changed("AcDbTable", "31", R"({"tag":"Rows","value":3})")),
              (Lines{"0.0 property \"Contents_1_1\" of AcDbTable 31: the texts of a new table have no statement",
                     "1 property \"Rows\" of AcDbTable 31: one line is removed where several went"}));
}

/// Values that an insertion or a change passes over although nothing else in the recording says the same.
TEST(Losses, OfValuesThatNothingElseSaysAreThoseValues)
{
    const QByteArray reference = R"({"object":{"class":"AcDbBlockTableRecord","handle":"40","name":"X",)"
                                 R"("isFromExternalReference":true,"pathName":"x.dwg"}}
{"object":{"class":"AcDbBlockReference","handle":"31","blockTableRecord":"40"}}
)";
    const struct
    {
        const char* cls;
        QByteArray properties;
        std::vector<std::string> lost;
    } cases[] = {
        {"AcDbBlockReference",
         R"({"tag":"Name","value":"X"},{"tag":"Scale Z","value":3.0},{"tag":"Rotation","value":0.5})",
         {"Scale Z", "Rotation"}},
        {"AcDbBlockReference", R"({"tag":"Scale X","value":3.0},{"tag":"Scale Y","value":3.0})", {}},
        {"AcDbMText", R"({"tag":"Line space factor","value":1.5})", {"Line space factor"}},
        {"AcDbMText", R"({"tag":"Line space factor","value":1.0})", {}},
        {"AcDbCircle", R"({"tag":"Diameter","value":7.0})", {"Diameter"}},
        {"AcDbCircle", R"({"tag":"Radius","value":3.5},{"tag":"Diameter","value":7.0})", {}},
        {"AcDbEllipse",
         R"({"tag":"Major radius","value":7.0},{"tag":"Radius ratio","value":0.5})",
         {"Major radius", "Radius ratio"}},
        {"AcDbEllipse",
         R"({"tag":"Major axis vector X","value":7.0},{"tag":"Minor radius","value":3.5},)"
         R"({"tag":"Major radius","value":7.0},{"tag":"Radius ratio","value":0.5})",
         {}},
        {"AcDbEllipse", R"({"tag":"Center X","value":1.0},{"tag":"Center Z","value":2.0})", {"Center Z"}},
        {"AcDbEllipse",
         R"({"tag":"Major axis vector X","value":1.0},{"tag":"Major axis vector Z","value":2.0})",
         {"Major axis vector Z"}},
        {"AcDbTable", R"({"tag":"Position X","value":1.0},{"tag":"Position Z","value":2.0})", {"Position Z"}},
        {"AcDbPolyline",
         R"({"tag":"Vertex","value":{"collection":{"elements":[{"tag":{"int":0},"value":{"point":[1,0,4]}}]}}})",
         {"Vertex Z"}},
        {"AcDbArc",
         R"({"tag":"Arc length","value":7.0},{"tag":"Total angle","value":1.0})",
         {"Arc length", "Total angle"}},
        {"AcDbArc",
         R"({"tag":"Radius","value":2.0},{"tag":"End Angle","value":1.0},{"tag":"Arc length","value":2.0})",
         {}},
    };
    for (const auto& [cls, properties, lost] : cases) {
        const QByteArray drawing = QByteArray(cls) == "AcDbBlockReference" ? reference : QByteArray();
        const Lines losses = lossesOf(drawing + command(QByteArray(R"({"added":{"class":")") + cls +
                                                        R"(","handle":"31","properties":[)" + properties + "]}}"));
        ASSERT_EQ(losses.size(), lost.size()) << cls << ' ' << properties.toStdString();
        for (std::size_t i = 0; i < lost.size(); ++i)
            EXPECT_TRUE(losses[i].starts_with("0.0 property \"" + lost[i] + "\" of " + cls)) << losses[i];
    }

    const auto ofLine = [](const QByteArray& properties) {
        return lossesOf(command(line) + changed("AcDbLine", "30", properties)).size();
    };
    EXPECT_EQ(ofLine(R"({"tag":"Length","value":5.0},{"tag":"Angle","value":0.5})"), 2U);
    EXPECT_EQ(ofLine(R"({"tag":"Length","value":5.0},{"tag":"Delta X","value":5.0})"), 2U);
    EXPECT_EQ(ofLine(R"({"tag":"End X","value":5.0},{"tag":"Length","value":5.0},{"tag":"Angle","value":0.5})"), 0U);
}

/// What only a change sets: for each class a tag that its insertion takes beside one that nothing takes.
TEST(Losses, OfAddedObjectsAreAllPropertiesThatTheirInsertionDoesNotTake)
{
    const struct
    {
        const char* cls;
        const char* taken;
        const char* lost;
    } cases[] = {
        {"AcDbAlignedDimension", "dimLinePoint", "Arrow size"},
        {"AcDb2LineAngularDimension", "arcPoint", "Suppress leading zeros"},
        {"AcDb3PointAngularDimension", "centerPoint", "Dim style"},
        {"AcDbOrdinateDimension", "setZero", "Position x"},
        {"AcDbRotatedDimension", "rotation", "Arrow 1"},
        {"AcDbLeader", "width", "DimStyle"},
        {"AcDbFcf", "Content", "Text height"},
        {"AcDbText", "Height", "TextStyle"},
        {"AcDbLayerTableRecord", "Name", "Frozen"},
        {"AcDbRasterImage", "Scale", "Fade"},
        {"AcDbGroup", "Description", "Erased"},
        {"AcDbCircle", "Layer", "Transparency"},
    };
    for (const auto& [cls, taken, lost] : cases) {
        const auto record = [](const char* tag) { return QByteArray(R"({"tag":")") + tag + R"(","value":"YES"})"; };
        const QByteArray added = QByteArray(R"({"added":{"class":")") + cls + R"(","handle":"31","properties":[)";
        const Lines losses = lossesOf(command(added + record(taken) + ',' + record(lost) + "]}}"));
        const std::string property = std::string("property \"") + lost + "\" of " + cls + " 31: no statement sets it";
        EXPECT_NE(std::find(losses.begin(), losses.end(), "0.0 " + property), losses.end()) << cls;
        EXPECT_EQ(std::count_if(
                      losses.begin(), losses.end(),
                      [](const std::string& loss) { return loss.find("no statement sets it") != std::string::npos; }),
                  1)
            << cls;
    }
}

/// A faithful macro changes the layer "0" then, which a repaired one must not touch.
TEST(Losses, OfARepairedMacroAreLayersWithoutAName)
{
    const QByteArray frozen = changed("AcDbLayerTableRecord", "99", R"({"tag":"Frozen","value":"Yes"})");
    EXPECT_EQ(lossesOf(frozen), Lines());
    const TestRepair repair;
    EXPECT_EQ(lossesOf(frozen), Lines{"0 changes of AcDbLayerTableRecord 99: the drawing does not have the layer"});
}

TEST(Losses, AreChangesOfWhatTheRecordingDidNotAdd)
{
    const QByteArray drawn = R"({"object":{"class":"AcDbLine","handle":"2F"}}
{"object":{"class":"AcDb2dPolyline","handle":"31"}}
{"object":{"class":"AcDbLayerTableRecord","handle":"10","name":"Walls"}}
)";
    struct Case
    {
        const char* cls;
        const char* handle;
        const char* reason;
        bool isRepaired = false;
    };
    const Case cases[] = {
        {"AcDbLine", "2F",
         "the recording did not add the object, and only a repaired macro fetches it from the drawing", true},
        {"AcDbLayerTableRecord", "10",
         "the recording did not add the object, and only a repaired macro fetches it from the drawing", true},
        {"AcDbCircle", "2F", "the drawing has an object of another class under its handle"},
        {"AcDbLine", "A0", "the recording did not add the object, so the macro has no variable for it"},
        {"AcDb2dPolyline", "31", "objects of its class have no statements"},
        {"HostWeldSymbol", "2F", "objects of its class have no statements"},
    };
    for (const auto& [cls, handle, reason, isRepaired] : cases) {
        const auto object = QByteArray(R"("class":")") + cls + R"(","handle":")" + handle + '"';
        const bool isLayer = QLatin1String(cls) == QLatin1String("AcDbLayerTableRecord");
        const QByteArray change =
            drawn + R"({"property":{)" + object +
            (isLayer ? R"(,"tag":"Locked","value":"Yes"}})" : R"(,"tag":"LineScale","value":2}})") + '\n';
        const Lines lost{std::string("0 changes of ") + cls + ' ' + handle + ": " + reason};
        EXPECT_EQ(lossesOf(change), lost);
        const TestRepair repair;
        EXPECT_EQ(lossesOf(change), isRepaired ? Lines() : lost);
    }
}

/// By its handle another object of the drawing would be erased.
TEST(Losses, OfARepairedMacroAreUsesOfWhatItDoesNotMake)
{
    const TestRepair repair;
    const std::string lost = "AcDbRegion 31: no statement inserts the object, so the macro has no variable for it";
    const QByteArray region = command(R"({"added":{"class":"AcDbRegion","handle":"31","properties":[]}})");
    for (const char* use :
         {R"({"custom":{"kind":17,"data":[{"handles":["31"]},{"classes":["AcDbRegion"]}]}})",
          R"({"custom":{"kind":55,"data":[{"handles":["31"]},{"classes":["AcDbRegion"]}]}})",
          R"({"custom":{"kind":3,"data":[{"handles":["31"]},{"classes":["AcDbRegion"]},{"vector":[1,0,0]}]}})"})
        EXPECT_EQ(lossesOf(region + command(use)).at(1), "1.0 " + lost) << use;
}

TEST(Losses, DependOnTheTarget)
{
    const QByteArray style = command(R"({"added":{"class":"AcDbTableStyle","handle":"31","properties":[)"
                                     R"({"tag":"TableStyleName","value":"S"}]}})") +
                             changed("AcDbTableStyle", "31", R"({"tag":"textStyle","value":"Roman"})");
    const QByteArray selection = command(R"({"custom":{"kind":10,"data":[{"int":0},{"points":[[0,0,0]]}]}})");
    for (const Target target :
         {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba}) {
        const bool noStyle = target == Target::Cpp || target == Target::JavaScript;
        const bool noSelection = target == Target::CppCom || target == Target::JavaScript || target == Target::VbNet;
        EXPECT_EQ(lossesOf(style, target), noStyle ? Lines{"1 property \"textStyle\" of AcDbTableStyle 31: the target "
                                                           "has no statement that sets it so"}
                                                   : Lines());
        EXPECT_EQ(lossesOf(selection, target),
                  noSelection ? Lines{"0.0 selection: the target has no statement for it"} : Lines());
    }
}

} // namespace
