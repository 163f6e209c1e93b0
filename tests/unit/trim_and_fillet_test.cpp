// Trim, extend, fillet and chamfer: what is refused, what counts as a piece, and the search for the pieces.

#include "TestActions.h"
#include "TestDrawing.h"
#include "TestTarget.h"

#include "module/walk.h"

using inkmacro::Target;

namespace {

using Handles = std::vector<OdDbHandle>;
using Classes = std::vector<const OdRxClass*>;
using Points = OdArray<OdGePoint3d>;
using Reals = OdArray<double>;

const OdRxClass* cls(const char* name)
{
    return oddbClassByName(name);
}

/// One object that stands after a trim; its numbers are its place in the list and its five successors.
struct Standing
{
    std::uint64_t handle;
    const char* className;
};

TestData trimOf(const std::vector<Standing>& after)
{
    Handles handles;
    Classes classes;
    Points places;
    Reals numbers;
    for (const Standing& object : after) {
        const double number = handles.size();
        handles.emplace_back(object.handle);
        classes.push_back(cls(object.className));
        places.append({number, 0.5, 0.0});
        for (int i = 0; i < 6; ++i)
            numbers.append(number + i);
    }
    return {Handles{OdDbHandle(0x1a)},
            Classes{cls("AcDbLine")},
            Handles{OdDbHandle(0x1a)},
            Classes{cls("AcDbLine")},
            Points{{1.5, 1234567.0, 0.0}},
            handles,
            classes,
            places,
            numbers};
}

TestData corner()
{
    return {Handles{OdDbHandle(0x1a)}, Classes{cls("AcDbLine")}, OdGePoint3d{1.0, 2.0, 0.0},
            Handles{OdDbHandle(0x2b)}, Classes{cls("AcDbLine")}, OdGePoint3d{3.0, 4.0, 0.0}};
}

/// A line that the macro knows under handle 1A.
struct Cut : TestTarget
{
    explicit Cut(Target target = Target::CSharp) : TestTarget(target, 3)
    {
        conversion.names().RegisterObject(OdDbHandle(0x1a), cls("AcDbLine"));
    }
    std::int32_t convert(std::int32_t kind, const TestData& data)
    {
        Statement statement("before");
        const std::int32_t status = ConvertAction(conversion, odrxNew<TestCustom>(kind, data), statement);
        text = textOf(statement);
        return status;
    }
    QString converted(std::int32_t kind, const TestData& data)
    {
        EXPECT_EQ(convert(kind, data), kFxSuccess);
        EXPECT_EQ(writer.IndentLevel, 3U);
        return text;
    }

    QString text;
};

TEST(TrimAndFillet, AreRefusedForTheNumberOfTheirData)
{
    const std::vector<std::pair<std::int32_t, std::vector<int>>> accepted{{6, {9}}, {7, {5}}, {8, {6}}, {9, {6}}};
    for (const auto& [kind, counts] : accepted)
        for (int count = 0; count <= 10; ++count) {
            const bool taken = std::find(counts.begin(), counts.end(), count) != counts.end();
            // Of whatever type: each is read as its neutral value.
            const auto action = odrxNew<TestCustom>(kind, TestData(static_cast<std::size_t>(count), 7));
            Statement text("before");
            Cut cut;
            EXPECT_EQ(ConvertAction(cut.conversion, action, text), taken ? kFxSuccess : kFxFailure) << kind << count;
            EXPECT_EQ(textOf(text).contains("Entities("), taken) << kind << ' ' << count;

            TestConversion alone;
            EXPECT_EQ(alone.run({action}), taken ? kFxSuccess : kFxFailure) << kind << ' ' << count;
            EXPECT_EQ(QFile::exists(alone.path()), taken);
            TestConversion inCommand;
            EXPECT_EQ(inCommand.run({command({addedLine(1), action, addedLine(2)})}), kFxSuccess);
            EXPECT_TRUE(inCommand.body().contains("line1 = "));
            EXPECT_EQ(inCommand.body().contains("line2 = "), taken) << kind << ' ' << count;
        }
}

TEST(TrimAndFillet, TakeOnePolylineByTheirOwnWord)
{
    const auto status = [](std::int32_t kind, const CFxCustomActionData::Value& word) {
        Cut cut;
        const std::int32_t code = cut.convert(kind, {word, OdDbHandle(0x1a), cls("AcDbPolyline")});
        EXPECT_TRUE(code == kFxFailure || cut.text.isEmpty());
        return code;
    };
    EXPECT_EQ(status(8, CFxString("FILLET")), kFxSuccess);
    EXPECT_EQ(status(9, CFxString("Chamfer")), kFxSuccess);
    EXPECT_EQ(status(9, CFxString("FILLET")), kFxFailure);
    EXPECT_EQ(status(8, CFxString("CHAMFER")), kFxFailure);
    EXPECT_EQ(status(8, CFxString("FILLET ")), kFxFailure);
    EXPECT_EQ(status(8, 1), kFxFailure);
}

TEST(Trim, FailsWithoutClassPlaceOrNumbersOfAnObject)
{
    const TestData whole = trimOf({{0x1a, "AcDbLine"}, {0x30, "AcDbLine"}});
    EXPECT_EQ(Cut().convert(6, whole), kFxSuccess);
    TestData data = whole;
    data[6] = Classes{cls("AcDbLine")};
    EXPECT_EQ(Cut().convert(6, data), kFxFailure);
    data = whole;
    data[7] = Points{{1.0, 2.0, 3.0}};
    EXPECT_EQ(Cut().convert(6, data), kFxFailure);
    data = whole;
    data[8] = Reals{0, 1, 2, 3, 4, 5, 1, 2, 3, 4, 5};
    EXPECT_EQ(Cut().convert(6, data), kFxFailure);
    // What is no piece needs neither place nor numbers.
    data = trimOf({{0x1a, "AcDbLine"}});
    data[7] = Points();
    data[8] = Reals();
    EXPECT_EQ(Cut().convert(6, data), kFxSuccess);
}

TEST(Trim, SearchesForWhatIsNewOnly)
{
    Cut cut;
    const QString without = cut.converted(6, trimOf({{0x1a, "AcDbLine"}}));
    EXPECT_TRUE(without.startsWith("            DispatchWrapper[] CuttingEntitiesArray0;\n"));
    EXPECT_TRUE(without.endsWith("            iwApp.GetActiveDocument().GetModel().GetSketchManager().TrimEntities("
                                 "CuttingEntitiesArray0, EntitiesToRemoveArray0, PointOnEntityDblArray0);\n"));
    EXPECT_TRUE(without.contains("PointOnEntityDblArray0[1] = 1.23457e+06;\n"));
    // The edge option has taken a number, the arrays have not.
    EXPECT_EQ(cut.writer.UniqueCounter, 1U);

    // The same handle with another class is a new object, which takes the place of the old one.
    const QString search = cut.converted(6, trimOf({{0x1a, "AcDbRay"}, {0x30, "AcDbCircle"}, {0x1a, "AcDbRay"}}));
    EXPECT_TRUE(search.startsWith("        }\n        Ray ray2;\n        Circle circle3;\n        {\n"
                                  "            DispatchWrapper[] CuttingEntitiesArray1;\n"));
    EXPECT_EQ(cut.conversion.names().FindEntry(OdDbHandle(0x1a))->cls, cls("AcDbRay"));
    EXPECT_EQ(cut.objectCount(), 3U);
    EXPECT_TRUE(search.contains("iNewEnt < 2;"));
    EXPECT_TRUE(search.contains("            ray2 = null;\n            for (int iNewEnt"));
    // No test of circles: their variable stays as it was declared.
    EXPECT_FALSE(search.contains("iwCircleType"));
    EXPECT_FALSE(search.contains("circle3 ="));
}

TEST(Trim, AssignsTheDeclaredVariableInWhateverLanguageTheHostRecords)
{
    for (const auto& [language, variable] : {std::pair{0, "iwline2"}, {1, "line2"}}) {
        Cut cut(Target::Cpp);
        GetFxSystemServices()->SetInt16("RecordingLanguage", static_cast<std::int16_t>(language));
        const QString text = cut.converted(6, trimOf({{0x30, "AcDbLine"}}));
        EXPECT_TRUE(text.contains(QString(" %1;\n").arg(variable))) << text.toStdString();
        EXPECT_TRUE(text.contains(QString("            %1 = NULL;\n").arg(variable)));
        EXPECT_TRUE(text.contains(QString("                %1 = line;\n").arg(variable)));
    }
    GetFxSystemServices()->SetInt16("RecordingLanguage", 0);
}

TEST(Trim, SearchesNothingByTestsInOneOfOtherClasses)
{
    // Neither a test nor the end of tests.
    for (const Target target : {Target::VbNet, Target::Vba})
        EXPECT_TRUE(Cut(target)
                        .converted(6, trimOf({{0x30, "AcDbCircle"}}))
                        .contains("i, retObjType)\n                    \n                Next\n"));
}

TEST(Trim, TestsClassesInTheOrderOfTheirNames)
{
    const QString text = Cut().converted(
        6, trimOf({{0x30, "AcDbLine"}, {0x31, "AcDbPolyline"}, {0x32, "AcDbLine"}, {0x33, "AcDb2dPolyline"}}));
    EXPECT_TRUE(text.contains("            polyline5 = null;\n            line2 = null;\n            line4 = null;\n"
                              "            polyline3 = null;\n            for (int iNewEnt = 0; iNewEnt < 4;"));
    const int first = text.indexOf("                    if (retObjType == iwObjectType_e.iwPolyLineType)\n");
    const int line = text.indexOf("            }\n            else if (retObjType == iwObjectType_e.iwLineType)\n");
    const int last = text.indexOf("            }\n            else if (retObjType == iwObjectType_e.iwPolyLineType)\n");
    EXPECT_TRUE(0 < first && first < line && line < last);
    EXPECT_TRUE(text.mid(line, last - line)
                    .endsWith("                    Math.Abs(secondZ - prop[iNewEnt*6 + 5]) < epsi )\n"
                              "                {\n"
                              "            if (iNewEnt == 0)\n                line2 = line;\n"
                              "            if (iNewEnt == 2)\n                line4 = line;\n"
                              "                    break;\n                }\n"));
    // Of polylines in the plane the heights are not looked at.
    EXPECT_FALSE(text.mid(last).contains("iNewEnt*6 + 2]"));
    EXPECT_FALSE(text.mid(last).contains("iNewEnt*6 + 5]"));
}

TEST(Trim, DeclaresLocalsOnceWhereAProcedureIsOneScope)
{
    const QString text =
        Cut(Target::Vba).converted(6, trimOf({{0x30, "AcDbLine"}, {0x31, "AcDbPolyline"}, {0x32, "AcDb2dPolyline"}}));
    EXPECT_EQ(text.count("Dim firstX As Double\n"), 1);
    EXPECT_EQ(text.count("Dim firstZ As Double\n"), 1);
    EXPECT_EQ(text.count("Dim polyline As Inkwright.PolyLine\n"), 1);
    EXPECT_EQ(text.count("Set polyline = obj\n"), 2);
}

TEST(Corners, AreCutWithTheSettingsOfTheDrawing)
{
    TestDrawing drawing;
    drawing.database.setSysVar("FILLETRAD", 2.5);
    drawing.database.setSysVar("CHAMFERA", 1.5);
    drawing.database.setSysVar("CHAMFERC", 0.1234567);
    drawing.database.setSysVar("CHAMMODE", 1);
    Cut page(Target::JavaScript);
    const QString fillet = page.converted(8, corner());
    EXPECT_TRUE(fillet.contains("            mDoc.SetCommandOptionDouble(\"iwCommandOptionDouble_SetFltRad\", 2.5);\n"
                                "            mSkMgr.FilletEntities("));
    EXPECT_TRUE(
        page.converted(9, corner())
            .contains("mDoc.SetCommandOptionDouble(\"iwCommandOptionDouble_SetChmfDst1\", 1.5);\n"
                      "            mDoc.SetCommandOptionDouble(\"iwCommandOptionDouble_SetChmfDst2\", 0);\n"
                      "            mDoc.SetCommandOptionDouble(\"iwCommandOptionDouble_SetChmfLen\", 0.123457);\n"
                      "            mDoc.SetCommandOptionDouble(\"iwCommandOptionDouble_SetChmfAng\", 0);\n"
                      "            mDoc.SetCommandOptionInt16(\"iwCommandOptionInt16_EnblChmfAng\", 1);\n"
                      "            mDoc.SetCommandOptionInt16(\"iwCommandOptionInt16_EnblFltTrm\", 0);\n"
                      "            mSkMgr.ChamferEntities("));
}

TEST(Corners, KnowNoSizesWithoutADrawing)
{
    Cut page(Target::JavaScript);
    EXPECT_FALSE(page.converted(8, corner()).contains("SetCommandOption"));
    const QString chamfer = page.converted(9, corner());
    EXPECT_FALSE(chamfer.contains("SetCommandOptionDouble"));
    EXPECT_EQ(chamfer.count("SetCommandOptionInt16"), 2);
}

TEST(Corners, CountTheirArraysEachByItself)
{
    const auto numberIn = [](const QString& text) {
        const QString name = "var firstEntityArray";
        const int from = text.indexOf(name) + name.length();
        return text.mid(from, text.indexOf(';', from) - from).toInt();
    };
    Cut page(Target::JavaScript);
    const int fillet = numberIn(page.converted(8, corner()));
    const int chamfer = numberIn(page.converted(9, corner()));
    EXPECT_EQ(numberIn(page.converted(9, corner())), chamfer + 1);
    const QString last = Cut(Target::JavaScript).converted(8, corner());
    EXPECT_EQ(numberIn(last), fillet + 1);
    // The object that the macro does not know leaves its place empty.
    const QString number = QString::number(fillet + 1);
    EXPECT_TRUE(last.contains("            firstEntityArray" + number +
                              "[0] = line1;\n\n            secondEntityArray" + number +
                              "[0] = ;\n\n            firstPointOnEntityDblArray" + number + "[0] = 1;\n"));
    EXPECT_TRUE(last.endsWith("FilletEntities(firstPointOnEntityDblArray" + number + ", firstEntityArray" + number +
                              ", secondPointOnEntityDblArray" + number + ", secondEntityArray" + number + ");\n"));
}

} // namespace
