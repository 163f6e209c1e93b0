// Recording files: reading, writing, and what is said about damaged ones.

#include "host/db/OdDbClasses.h"
#include "recordfile/RecordingReader.h"
#include "recordfile/RecordingWriter.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QTemporaryDir>

#include <cmath>
#include <limits>

using namespace inkmacro;

namespace {

std::optional<RecordingError> read(QByteArray bytes, Recording& recording, qint64 longestLine = kLongestLine)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return ReadRecording(buffer, "walls.jsonl", recording, {}, longestLine);
}

std::string complaint(const QByteArray& bytes, qint64 longestLine = kLongestLine)
{
    Recording recording;
    const auto error = read(bytes, recording, longestLine);
    EXPECT_TRUE(!error || recording.actions.isEmpty()) << "a recording is left behind an error";
    return error ? error->text().toStdString() : "";
}

QByteArray written(const Recording& recording)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(WriteRecording(recording, buffer));
    return buffer.data();
}

// Every kind of line and every form of a value once, in the form in which it is written.
const QByteArray everything =
    R"({"recording":{"version":1,"language":3,"mode":1,"context":-7,"sheet":{"name":"Plan \"A\"","model":false}}}
{"drawing":{"currentLayout":"22","activeBlock":"1F","textStyle":"11","tableStyle":"12","dimensionStyle":"13","richLineStyle":"14","lineStyle":"15","lineStyleFolders":["styles","/usr/share/styles"],"groupDictionary":"70","settings":{"FILLETRAD":2.5,"TILEMODE":true,"CLAYER":"0"}}}
{"object":{"class":"AcDbLayerTableRecord","handle":"10"}}
{"object":{"class":"AcDbLayout","handle":"22","modelType":true,"layoutName":"Model"}}
{"object":{"class":"AcDbMText","handle":"60","isErased":true,"reactors":["61","FFFFFFFFFFFFFFFF"]}}
{"object":{"class":"AcDbDictionary","handle":"70","items":{"Bolts":"71","nuts":"72"}}}
{"object":{"class":"AcDbTable","handle":"73","rowHeights":[0.5,1.5],"columnWidths":[2.5],"textStrings":[["A"],["B"]]}}
{"object":{"class":"AcDbMText","handle":"74","backgroundFillColor":{"index":3},"attachment":5}}
{"command":{"name":"LINE","actions":[{"null":null},{"command":{"name":"","actions":[]}}]}}
{"added":{"class":"AcDbLine","handle":"2F","properties":[{"tag":"Start X","value":-0.0},{"tag":"Start Y","value":1e+300,"group":"Geometry","index":{"int":2},"old":"x"}],"extra":[]}}
{"modified":{"class":"HostWeldSymbol","handle":"30","properties":[{"tag":"a","value":{"int":-2147483648}},{"tag":"b","value":{"point":[1.0,2.0,3.0]}},{"tag":"c","value":{"color":"bylayer"}},{"tag":"d","value":{"color":"byblock"}},{"tag":"e","value":{"color":{"index":255}}},{"tag":"f","value":{"color":{"rgb":[0,128,255]}}},{"tag":"g","value":{"id":"2F"}},{"tag":"h","value":{"transparency":{"method":2,"alpha":127}}},{"tag":"i","value":{"collection":{"chosen":1,"elements":[{"tag":{"int":0},"value":"Yes"},{"tag":"t","value":null}]}}},{"tag":"j","value":{"element":{"tag":{"int":3},"value":{"collection":{"elements":[]}}}}},{"tag":"k","value":null}]}}
{"property":{"class":"AcDbLine","handle":"2F","tag":"End X","value":4.5}}
{"sysvar":{"name":"CVPORT","value":{"int16":2}}}
{"sysvar":{"name":"CHAIN","value":[{"string":"a"},{"double":0.1},{"int8":-1},{"int32":70000},{"bool":true},{"point2d":[1.0,2.0]},{"point3d":[1.0,2.0,3.0]},{"type":5004,"double":1.5}]}}
{"interaction":{"kind":"keyword","prompt":"<b>Specify</b>","result":{"string":"_Radius"},"keywords":{"local":["Radius"],"global":["_Radius"]}}}
{"interaction":{"kind":77,"prompt":"","result":null}}
{"selection":{"objects":[{"handle":"2F","class":"AcDbLine"}]}}
{"custom":{"kind":56,"data":[{"bool":true},{"int16":-1},{"int":1},{"double":1.5},{"string":"abc"},{"strings":["a","b"]},{"point":[1.0,2.0,3.0]},{"vector":[1.0,2.0,3.0]},{"color":"bylayer"},{"handle":"2F"},{"class":"AcDbLine"},{"handles":["2F","30"]},{"classes":["AcDbLine"]},{"points":[[1.0,2.0,3.0]]},{"points2d":[[1.0,2.0]]},{"doubles":[0.5]},{"ints":[1,2]},{"ids":["2F"]}]}}
{"null":null}
)";

TEST(RecordingFile, HoldsEveryFormAndGivesItBack)
{
    Recording recording;
    const auto error = read(everything, recording);
    ASSERT_FALSE(error) << error->text().toStdString();
    // Numbers may be spelled in several ways; written twice they have one.
    const QByteArray once = written(recording);
    Recording again;
    ASSERT_FALSE(read(once, again));
    EXPECT_EQ(written(again), once);
    QByteArray plain = everything;
    EXPECT_EQ(once.count('\n'), plain.count('\n'));
    // The drawing has no number that could be spelled in another way.
    EXPECT_EQ(once.split('\n')[1], plain.split('\n')[1]);

    EXPECT_EQ(recording.header.language, 3);
    EXPECT_EQ(recording.header.context, -7);
    EXPECT_EQ(recording.header.sheet->name, "Plan \"A\"");
    EXPECT_EQ(recording.drawing.settings.size(), 3U);
    EXPECT_EQ(recording.drawing.richLineStyle.ascii(), "14");
    EXPECT_EQ(recording.drawing.lineStyleFolders, (std::vector<QString>{"styles", "/usr/share/styles"}));
    EXPECT_EQ(recording.actions.length(), 11U);

    const OdDbObjectId note = recording.database->getOdDbObjectId(OdDbHandle(0x60));
    EXPECT_FALSE(note.openObject());
    const OdDbObjectPtr erased = note.openObject(true);
    ASSERT_TRUE(erased);
    EXPECT_EQ(erased->isA(), OdDbMText::desc());
    EXPECT_EQ(erased->getPersistentReactors()[1].getHandle().value(), ~std::uint64_t{0});
}

/// Longer than the buffers of before, the second more so than the first.
TEST(RecordingFile, GoesOnBehindLongLines)
{
    const auto note = [](int letters) {
        return R"({"added":{"class":"AcDbLine","handle":"2F","properties":[{"tag":"a","value":")" +
               QByteArray(letters, 'x') + "\"}]}}\n";
    };
    Recording recording;
    ASSERT_FALSE(read(note(3'000'000) + note(1) + note(9'000'000) + note(2), recording));
    std::vector<int> lengths;
    for (const OdRxObjectPtr& action : recording.actions)
        lengths.push_back(odrxCast<CFxObjectAdded>(action.get())
                              ->GetProperties()
                              .front()
                              ->GetValue(0)
                              .GetString()
                              .toQString()
                              .size());
    EXPECT_EQ(lengths, (std::vector<int>{3'000'000, 1, 9'000'000, 2}));
    EXPECT_NE(complaint(note(3'000'000) + note(5'000'000), 4'000'000).find("longer than"), std::string::npos);
}

/// Longer than the stack is deep.
TEST(RecordingFile, HoldsLongChainsAndTexts)
{
    constexpr int length = 500'000;
    const QByteArray text(200'000, 'x');
    OdResBufPtr third;
    {
        Recording recording;
        const auto error =
            read("{\"sysvar\":{\"name\":\"" + text + "\",\"value\":[{\"int32\":0}" +
                     QByteArray(",{\"int32\":7}").repeated(length) + "]}}\n{\"modified\":{\"class\":\"" + text +
                     "\",\"handle\":\"2F\",\"properties\":[{\"tag\":\"" + text + "\",\"value\":1}]}}\n",
                 recording);
        ASSERT_FALSE(error) << error->text().toStdString();
        const auto variable = odrxQuery<CFxSysVarChanged>(recording.actions[0].get());
        const auto modified = odrxQuery<CFxObjectModified>(recording.actions[1].get());
        EXPECT_EQ(variable->GetName().toQString(), text);
        EXPECT_EQ(modified->GetObjectClass()->name(), text);
        EXPECT_EQ(modified->GetProperties()[0]->GetName().toQString(), text);
        third = variable->GetValue()->next()->next();
    }
    // What is still held keeps all behind it.
    int count = 1;
    for (OdResBufPtr element = third; element->next(); element = element->next())
        ++count;
    EXPECT_EQ(count, length - 1);
}

TEST(RecordingFile, KeepsValuesExact)
{
    Recording recording;
    ASSERT_FALSE(read(everything, recording));
    const auto added = odrxQuery<CFxObjectAdded>(recording.actions[1].get());
    ASSERT_TRUE(added);
    EXPECT_TRUE(std::signbit(added->GetProperties()[0]->GetValue(0).GetDouble()));
    EXPECT_EQ(added->GetProperties()[1]->GetIndex(0).GetInt32(), 2);
    EXPECT_EQ(added->GetProperties()[1]->GetOldValue(0).GetString(), CFxString("x"));
    EXPECT_TRUE(added->GetExtraProperties().empty());

    const auto modified = odrxQuery<CFxObjectModified>(recording.actions[2].get());
    const PropertyList list = modified->GetProperties();
    EXPECT_EQ(list[0]->GetValue(0).GetInt32(), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(list[5]->GetValue(0).GetColor(), OdCmColor::byRgb(0, 128, 255));
    EXPECT_EQ(list[7]->GetValue(0).GetTransparency().alpha, 127);
    EXPECT_EQ(list[8]->GetValue(0).GetCollection().GetChosen(), 1);

    const auto chain = odrxQuery<CFxSysVarChanged>(recording.actions[5].get())->GetValue();
    EXPECT_EQ(chain->restype(), 5005);
    EXPECT_EQ(chain->next()->restype(), 5001);
    const auto keyword = odrxQuery<CFxUserInteraction>(recording.actions[6].get());
    EXPECT_EQ(keyword->GetInteractionKind(), 7);
    const auto custom = odrxQuery<CFxCustomAction>(recording.actions[9].get());
    EXPECT_EQ(custom->GetDataCount(), 18);
    EXPECT_EQ(custom->GetData(11).GetHandleArray()[1].ascii(), "30");
    EXPECT_THROW(custom->GetData(18), OdError_InvalidIndex);
    EXPECT_FALSE(recording.actions[10]);
}

/// The object of the line, and that the line is what is written for it.
template<class T>
OdSmartPtr<T> objectOf(Recording& recording, const QByteArray& data)
{
    const QByteArray line =
        R"({"object":{"class":")" + T::desc()->name().toLatin1() + R"(","handle":"1",)" + data + "}}\n";
    const auto error = read(line, recording);
    EXPECT_FALSE(error) << error->text().toStdString();
    EXPECT_TRUE(written(recording).endsWith('\n' + line)) << written(recording).toStdString();
    return odrxCast<T>(recording.database->getOdDbObjectId(OdDbHandle(1)).openObject().get());
}

TEST(RecordingFile, HoldsWhatDrawingObjectsAreMadeOf)
{
    Recording recording;
    const auto line = objectOf<OdDbLine>(
        recording,
        R"("extensionDictionary":{"ACAD_DIMASSOC":"41"},"xData":{"EMPTY":[],"PE_URL":[{"type":1000,"string":"a"},{"type":1041,"double":1.5}]},"endPoint":[4,0,0])");
    EXPECT_EQ(line->getExtension("acad_dimassoc").getHandle().ascii(), "41");
    EXPECT_TRUE(line->getExtension("OTHER").isNull());
    EXPECT_FALSE(line->xData("EMPTY"));
    EXPECT_EQ(line->xData("pe_url")->restype(), 1000);
    EXPECT_EQ(line->xData("PE_URL")->next()->getDouble(), 1.5);
    EXPECT_EQ(line->endPoint(), (OdGePoint3d{4, 0, 0}));

    const auto polyline = objectOf<OdDbPolyline>(recording, R"("points":[[0,0],[4,0]],"bulges":[0.5],"isClosed":true)");
    EXPECT_EQ(polyline->segType(0), OdDbPolyline::kArc);
    EXPECT_EQ(polyline->segType(1), OdDbPolyline::kLine);
    EXPECT_THROW(polyline->getBulgeAt(2), OdError_InvalidIndex);

    const auto mesh =
        objectOf<OdDbPolyFaceMesh>(recording, R"("vertices":[[0,0,0],[1,0,0],[0,1,0]],"faces":[[1,-2,3],[1,2,3,-1]])");
    EXPECT_EQ(mesh->faces()[0].getVertexAt(1), -2);
    EXPECT_EQ(mesh->faces()[0].getVertexAt(3), 0);
    EXPECT_EQ(mesh->faces()[1].getVertexAt(3), -1);
    EXPECT_THROW(mesh->faces()[1].getVertexAt(4), OdError_InvalidIndex);

    const auto face = objectOf<OdDbFace>(
        recording, R"("vertices":[[0,0,0],[1,0,0],[1,1,0],[0,1,5]],"edgesVisible":[true,false,true,true])");
    EXPECT_EQ(face->getVertexAt(3).z, 5);
    EXPECT_FALSE(face->isEdgeVisibleAt(1));
    EXPECT_THROW(face->isEdgeVisibleAt(4), OdError_InvalidIndex);

    const auto hatch = objectOf<OdDbHatch>(
        recording,
        R"("patternScale":2,"seedPoints":[[1,1]],"loops":[{"type":2,"vertices":[[0,0],[4,0]],"assocObjIds":["2F"]},{},{"type":4,"assocObjIds":["30","2F"]}])");
    EXPECT_EQ(hatch->numLoops(), 3);
    EXPECT_EQ(hatch->loopTypeAt(2), OdDbHatch::kDerived);
    EXPECT_EQ(hatch->getLoopAt(0)[1].x, 4);
    EXPECT_TRUE(hatch->getAssocObjIdsAt(1).isEmpty());
    EXPECT_EQ(hatch->getAssocObjIds().length(), 3U);
    EXPECT_THROW(hatch->getLoopAt(3), OdError_InvalidIndex);

    const auto style = objectOf<OdDbMlineStyle>(
        recording, R"("name":"WALL","elements":[{"offset":0.5,"color":{"index":1},"lineStyle":"14"},{}])");
    EXPECT_EQ(style->getElementAt(0).linetypeId.getHandle().ascii(), "14");
    EXPECT_TRUE(style->getElementAt(1).color.isByLayer());

    const auto association = objectOf<OdDbDimAssoc>(recording, R"("pointRefs":[null,["50","2F"],null,null])");
    EXPECT_TRUE(association->pointRef(0).isEmpty());
    EXPECT_EQ(association->pointRef(1)[1].getHandle().ascii(), "2F");
    EXPECT_THROW(association->pointRef(4), OdError_InvalidIndex);

    const auto reference =
        objectOf<OdDbBlockReference>(recording, R"("scaleFactors":[1,2,1],"attributes":["51","52"])");
    EXPECT_EQ(reference->scaleFactors().sy, 2);
    unsigned attributes = 0;
    for (const auto walk = reference->attributeIterator(); !walk->done(); walk->step())
        ++attributes;
    EXPECT_EQ(attributes, 2U);

    const auto table = objectOf<OdDbTable>(recording, R"("position":[1,2,0],"cellStyles":["_TITLE"],"rowHeights":[1])");
    EXPECT_EQ(table->cellStyle(0, -1), "_TITLE");
    EXPECT_EQ(table->cellStyle(1, -1), "");
    EXPECT_EQ(table->position().y, 2);
    EXPECT_EQ(table->scaleFactors().sx, 1);
}

TEST(RecordingFile, RemembersItsFolder)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("walls.jsonl"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(everything);
    file.close();
    Recording recording;
    ASSERT_FALSE(ReadRecording(file.fileName(), recording));
    EXPECT_EQ(recording.folder, folder.path());
}

TEST(RecordingFile, KnowsThePiecesOfARegionThatAreThere)
{
    Recording recording;
    ASSERT_FALSE(read(R"({"object":{"class":"AcDbRegion","handle":"1","pieces":["3","2","4","5"]}}
{"object":{"class":"AcDbLine","handle":"2"}}
{"object":{"class":"AcDbArc","handle":"3","radius":2}}
{"object":{"class":"AcDbArc","handle":"4","isErased":true}})",
                      recording));
    const auto region = odrxCast<OdDbRegion>(recording.database->getOdDbObjectId(OdDbHandle(1)).openObject().get());
    const OdArray<OdDbObjectPtr> pieces = region->explode();
    ASSERT_EQ(pieces.length(), 2U);
    EXPECT_EQ(odrxCast<OdDbArc>(pieces[0].get())->radius(), 2);
    EXPECT_EQ(pieces[1]->isA(), OdDbLine::desc());
}

TEST(RecordingFile, TellsVariablesAsNumbers)
{
    OdDbDatabase database;
    database.setSysVar("FILLETRAD", 2.5);
    database.setSysVar("TRIMMODE", 1);
    database.setSysVar("CHAMMODE", 40000);
    EXPECT_EQ(database.getSysVarDouble("filletrad"), 2.5);
    EXPECT_EQ(database.getSysVarInt16("FILLETRAD"), 2);
    EXPECT_EQ(database.getSysVarInt16("TRIMMODE"), 1);
    EXPECT_EQ(database.getSysVarInt16("CHAMMODE"), 0);
    EXPECT_EQ(database.getSysVarDouble("CHAMFERA"), 0);
}

TEST(RecordingFile, TakesLinesAsTheyCome)
{
    const QByteArray action = R"({"null":null})";
    const struct
    {
        QByteArray bytes;
        unsigned actions;
    } cases[] = {
        {"", 0},
        {"\n \t\r\n", 0},
        {action, 1},
        {"\xEF\xBB\xBF" + action + "\r\n\n" + action + "\r\n", 2},
    };
    for (const auto& [bytes, actions] : cases) {
        Recording recording;
        EXPECT_FALSE(read(bytes, recording));
        EXPECT_EQ(recording.actions.length(), actions) << bytes.toStdString();
    }
    // Across the chunks in which the file is read, and with a line longer than any of them.
    QByteArray many = R"({"sysvar":{"name":"A","value":{"string":")" + QByteArray(3 << 20, 'x') + "\"}}}\n";
    for (int i = 0; i < 200'000; ++i)
        many += action + '\n';
    Recording recording;
    EXPECT_FALSE(read(many, recording));
    EXPECT_EQ(recording.actions.length(), 200'001U);
}

TEST(RecordingFile, SaysWhatIsWrongAndWhere)
{
    const QByteArray ok = "{\"null\":null}\n";
    const struct
    {
        QByteArray bytes;
        const char* error;
    } cases[] = {
        {ok + ok + R"({"undo":1})", "walls.jsonl:3: \"undo\" is not a kind of line"},
        {R"({})", "walls.jsonl:1: a kind of line is missing"},
        {R"({"null":null,"sysvar":1})",
         "walls.jsonl:1: only one kind of line is allowed, found \"null\" and \"sysvar\""},
        {"[1]", "walls.jsonl:1: expected an object, found a list with 1 entry"},
        {R"({"command":{"name":"L","actions":[{"null":null},{"null":null},{"added":{"class":"AcDbLine","handle":"2F","properties":[{"tag":"a","value":{"doubel":1}}]}}]}})",
         "walls.jsonl:1: command.actions[2].added.properties[0].value: \"doubel\" is not a value type"},
        {R"({"command":{"name":"L","actions":[{"object":{}}]}})",
         "walls.jsonl:1: command.actions[0]: \"object\" is not a kind of action"},
        {R"({"added":{"class":"AcDbLine","handle":"2G","properties":[]}})",
         "walls.jsonl:1: added.handle: \"2G\" is not a handle: only hexadecimal digits are allowed"},
        {R"({"added":{"class":"AcDbLine","handle":"12345678901234567","properties":[]}})",
         "walls.jsonl:1: added.handle: \"12345678901234567\" is not a handle: more than 16 digits"},
        {R"({"added":{"class":"AcDbLine","properties":[]}})", "walls.jsonl:1: added: the key \"handle\" is missing"},
        {R"({"drawing":{"settings":{"A":1,"B":2,"A":3}}})",
         "walls.jsonl:1: drawing.settings: the key \"A\" is given twice"},
        {R"({"added":{"class":"AcDbLine","handle":"1","colour":2,"properties":[]}})",
         "walls.jsonl:1: added: unknown key \"colour\""},
        {R"({"sysvar":{"name":"A","value":{"int16":40000}}})",
         "walls.jsonl:1: sysvar.value.int16: expected a whole number from -32768 to 32767, found the number 40000"},
        {R"({"sysvar":{"name":"A","value":{"string":"a","double":1}}})",
         "walls.jsonl:1: sysvar.value: only one value is allowed, found \"string\" and \"double\""},
        {R"({"custom":{"kind":1.5,"data":[]}})",
         "walls.jsonl:1: custom.kind: expected a whole number from -2147483648 to 2147483647, found the number 1.5"},
        {R"({"custom":{"kind":0,"data":[{"point":[1,2]}]}})",
         "walls.jsonl:1: custom.data[0].point: expected a point [x, y, z], found a list with 2 entries"},
        {R"({"interaction":{"kind":"pont","prompt":"","result":null}})",
         "walls.jsonl:1: interaction.kind: \"pont\" is not an interaction kind"},
        {R"({"null":1})", "walls.jsonl:1: null: expected null, found the number 1"},
        {R"({"object":{"class":"HostWeldSymbol","handle":"1"}})",
         "walls.jsonl:1: object.class: \"HostWeldSymbol\" is not a class whose objects are known"},
        {R"({"object":{"class":"AcDbEntity","handle":"1"}})",
         "walls.jsonl:1: object.class: \"AcDbEntity\" is not a class whose objects are known"},
        {R"({"object":{"handle":"1"}})", "walls.jsonl:1: object: the key \"class\" is missing"},
        {"{\"object\":{\"class\":\"AcDbLine\",\"handle\":\"1\"}}\n{\"object\":{\"class\":\"AcDbArc\",\"handle\":\"01\"}}",
         "walls.jsonl:2: object: the drawing has an object with the handle 1 already"},
        {R"({"object":{"class":"AcDbFace","handle":"1","edgesVisible":[true,true,true]}})",
         "walls.jsonl:1: object.edgesVisible: expected a list with 4 entries, found a list with 3 entries"},
        {R"({"object":{"class":"AcDbTrace","handle":"1","points":[[0,0,0],[0,0,0],[0,0],[0,0,0]]}})",
         "walls.jsonl:1: object.points[2]: expected a point [x, y, z], found a list with 2 entries"},
        {R"({"object":{"class":"AcDbPolyFaceMesh","handle":"1","faces":[[1,2,3],[1,2]]}})",
         "walls.jsonl:1: object.faces[1]: expected three or four numbers of vertices, found a list with 2 entries"},
        {R"({"object":{"class":"AcDbDimAssoc","handle":"1","pointRefs":[null,["2F"],null]}})",
         "walls.jsonl:1: object.pointRefs: expected a list with 4 entries, found a list with 3 entries"},
        {R"({"object":{"class":"AcDbDimAssoc","handle":"1","pointRefs":[null,["2F","G"],null,null]}})",
         "walls.jsonl:1: object.pointRefs[1][1]: \"G\" is not a handle: only hexadecimal digits are allowed"},
        {R"({"object":{"class":"AcDbHatch","handle":"1","loops":[{"type":2},{"kind":2}]}})",
         "walls.jsonl:1: object.loops[1]: unknown key \"kind\""},
        {R"({"object":{"class":"AcDbMlineStyle","handle":"1","elements":[{"color":"red"}]}})",
         "walls.jsonl:1: object.elements[0].color: \"red\" is not a color"},
        {R"({"object":{"class":"AcDbBlockReference","handle":"1","scaleFactors":2}})",
         "walls.jsonl:1: object.scaleFactors: expected scale factors [x, y, z], found the number 2"},
        {R"({"object":{"class":"AcDbLine","handle":"1","xData":{"PE_URL":[{"type":1000}]}}})",
         "walls.jsonl:1: object.xData.PE_URL[0]: the value is missing, one of string, double, int8, int16, int32, bool, "
         "point2d, point3d"},
        {R"({"object":{"class":"AcDbLine","handle":"1","extensionDictionary":{"A":"2","a":"3"}}})",
         "walls.jsonl:1: object.extensionDictionary.a: the name is given twice"},
        {R"({"drawing":{"lineStyleFolders":["a",1]}})",
         "walls.jsonl:1: drawing.lineStyleFolders[1]: expected a text, found the number 1"},
        {ok + R"({"recording":{"version":1}})", "walls.jsonl:2: recording: the header must be the first line"},
        {R"({"recording":{"version":2}})",
         "walls.jsonl:1: recording.version: expected the version 1, found the number 2"},
        {R"({"recording":{"version":1,"language":6}})",
         "walls.jsonl:1: recording.language: expected a whole number from 0 to 5, found the number 6"},
        {ok + R"({"drawing":{}})", "walls.jsonl:2: drawing: this line must stand before the first action"},
        {ok + R"({"object":{"class":"AcDbLine","handle":"1"}})",
         "walls.jsonl:2: object: this line must stand before the first action"},
        {"{\"drawing\":{}}\n{\"drawing\":{}}", "walls.jsonl:2: drawing: the drawing has been described before"},
    };
    for (const auto& [bytes, error] : cases)
        EXPECT_EQ(complaint(bytes), error);
}

/// Lines are parsed far ahead of the one that a recording is being made of.
TEST(RecordingFile, TellsTheFirstFaultOfManyLines)
{
    constexpr int count = 300'000;
    const auto withLine = [](std::initializer_list<std::pair<int, QByteArray>> others) {
        QByteArray bytes;
        int number = 1;
        for (const auto& [at, other] : others) {
            for (; number < at; ++number)
                bytes += "{\"null\":null}\n";
            bytes += other + '\n';
            ++number;
        }
        for (; number <= count; ++number)
            bytes += "{\"null\":null}\n";
        return bytes;
    };
    const QByteArray undo = R"({"undo":1})";
    const QByteArray broken = R"({"null":nul})";
    EXPECT_EQ(complaint(withLine({{150'000, undo}, {150'001, broken}})),
              "walls.jsonl:150000: \"undo\" is not a kind of line");
    EXPECT_EQ(complaint(withLine({{150'000, broken}, {150'001, undo}})).substr(0, 19), "walls.jsonl:150000:");
    EXPECT_EQ(complaint(withLine({{2, undo}, {150'000, broken}})), "walls.jsonl:2: \"undo\" is not a kind of line");
    EXPECT_EQ(complaint(withLine({{149'000, undo}, {150'000, QByteArray(2000, ' ')}}), 1000),
              "walls.jsonl:149000: \"undo\" is not a kind of line");
    EXPECT_EQ(complaint(withLine({{150'000, QByteArray(2000, ' ')}, {150'001, undo}}), 1000),
              "walls.jsonl:150000: the line is longer than 1000 bytes");
}

TEST(RecordingFile, SaysWhereBrokenTextIs)
{
    const struct
    {
        QByteArray line;
        const char* reason;
    } cases[] = {
        {R"({"null":nul})", "\"nul\" is no value (column 9)"},
        {R"({"null":'a'})", "\"'a'\" is no value (column 9)"},
        {R"({"null":})", "a value is expected (column 9)"},
        {R"({"null":null)", "the line ends within an object (column 13)"},
        {R"([[1,2)", "the line ends within a list (column 6)"},
        {R"({"null":null}})", "nothing may stand behind the line's object (column 14)"},
        {R"({null:null})", "a key in quotes is expected (column 2)"},
        {R"({"null":null,})", "a key in quotes is expected (column 14)"},
        {R"({"a":[1,]})", "a value is expected (column 9)"},
        {R"({"null" null})", "a colon is expected behind the key (column 9)"},
        {R"({"a":1 "b":2})", "a comma or } is expected (column 8)"},
        {R"({"a":[1 2]})", "a comma or ] is expected (column 9)"},
        {R"({"a":[1}})", "a comma or ] is expected (column 8)"},
        {R"({"a":"b})", "a text lacks its closing quote (column 6)"},
        {"{\"\xC3\xA4\":\"b\tc\"}", "a text holds a control character that is not escaped (column 8)"},
        {R"({"a":"C:\Users"})", "there is no such escape (column 9)"},
        {R"({"a":"\u00g1"})", "four hexadecimal digits are expected behind \\u (column 7)"},
        {R"({"a":"\u00)", "four hexadecimal digits are expected behind \\u (column 7)"},
        {R"({"a":01})", "\"01\" is not a number as JSON writes it (column 6)"},
        {R"({"a":-})", "\"-\" is not a number as JSON writes it (column 6)"},
        {R"({"a":1.})", "\"1.\" is not a number as JSON writes it (column 6)"},
        {R"({"a":1e+})", "\"1e+\" is not a number as JSON writes it (column 6)"},
        {R"({"a":.5})", "\".5\" is no value (column 6)"},
    };
    for (const auto& [line, reason] : cases)
        EXPECT_EQ(complaint("\n" + line + "\n"), std::string("walls.jsonl:2: not valid JSON: ") + reason);
    EXPECT_EQ(complaint("{\"a\":\"\xC3\x28\"}"), "walls.jsonl:1: not valid UTF-8");
    EXPECT_EQ(complaint(R"({"a":"\ud800"})"), "walls.jsonl:1: a text holds half a pair of surrogates");
    for (const char* const number : {"99999999999999999999", "-9223372036854775809", "1e999"})
        EXPECT_EQ(complaint(QByteArray("{\"a\":") + number + "}").find("walls.jsonl:1: a number is out of range"), 0U);

    EXPECT_EQ(complaint("{}\n" + QByteArray(100, ' '), 50).substr(0, 14), "walls.jsonl:1:");
    EXPECT_EQ(complaint("\n" + QByteArray(51, ' '), 50), "walls.jsonl:2: the line is longer than 50 bytes");

    QByteArray deep = R"({"null":null})";
    for (int i = 0; i < 201; ++i)
        deep = R"({"command":{"name":"","actions":[)" + deep + "]}}";
    EXPECT_NE(complaint(deep).find("commands are nested more than 200 deep"), std::string::npos);
    EXPECT_NE(complaint(QByteArray(100'000, '[')), "");
}

TEST(RecordingFile, RefusesToWriteWhatHasNoForm)
{
    const auto refused = [](const QByteArray& line, auto spoil) {
        Recording recording;
        EXPECT_FALSE(read(line, recording));
        spoil(recording);
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        return !WriteRecording(recording, buffer);
    };
    EXPECT_TRUE(refused("", [](Recording& recording) {
        recording.drawing.settings.emplace_back("A", std::numeric_limits<double>::infinity());
    }));
    EXPECT_TRUE(refused("", [](Recording& recording) { recording.header.mode = -1; }));
    EXPECT_FALSE(refused("", [](Recording&) {}));
}

} // namespace
