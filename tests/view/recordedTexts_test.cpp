// Texts, dimensions and hatches of whole recordings.

#include "RecordedPicture.h"

using namespace inkmacro::view;

namespace {

QStringList textsBehind(const RecordedPicture& recorded, int steps)
{
    QStringList texts;
    for (const Primitive& one : recorded.picture.primitives)
        if (one.shape == Shape::Text && one.from < steps && (one.until == kNoStep || one.until >= steps))
            texts.append(recorded.picture.texts[static_cast<std::size_t>(recorded.picture.numbersOf(one)[6])]);
    return texts;
}

TEST(RecordedTexts, OfAttributesChangeInTheirReference)
{
    const RecordedPicture recorded({
        R"({"object":{"class":"AcDbBlockTableRecord","handle":"40","name":"Balloon","entities":["34"]}})",
        R"({"object":{"class":"AcDbAttribute","handle":"43","tag":"NO","textString":"2"}})",
        R"({"object":{"class":"AcDbBlockReference","handle":"42","blockTableRecord":"40","attributes":["43"]}})",
        command(
            {added("AcDbAttributeDefinition", "34", {{"Tag", R"("NO")"}, {"Value", R"("1")"}, {"Position X", "5"}})}),
        command({added("AcDbBlockTableRecord", "40", {{"Name", R"("Balloon")"}})}),
        command({added("AcDbBlockReference", "42", {{"Name", R"("Balloon")"}, {"Position X", "10"}})}),
        command({custom(39, R"({"handle":"42"},{"class":"AcDbBlockReference"},{"string":"NO"},{"string":"7"})")}),
    });
    EXPECT_EQ(textsBehind(recorded, 2), QStringList{"NO"});
    EXPECT_EQ(textsBehind(recorded, 4), QStringList{});
    EXPECT_EQ(textsBehind(recorded, 6), QStringList{"2"});
    EXPECT_EQ(textsBehind(recorded, 8), QStringList{"7"});
    EXPECT_FALSE(recorded.object(0x43).hasGeometry);
    EXPECT_EQ(recorded.remark(0x34), "references to its block show their own values in its place");
}

TEST(RecordedTexts, OfNotesStandWhereTheirLeaderEnds)
{
    const RecordedPicture recorded({
        R"({"object":{"class":"AcDbMText","handle":"61","reactors":["62"],"textHeight":2}})",
        R"({"object":{"class":"AcDbLeader","handle":"62","annotationObjectId":"61"}})",
        command({added("AcDbMText", "61", {{"Contents", R"("See detail")"}}),
                 added("AcDbLeader", "62",
                       {{"Vertex", R"({"collection":{"elements":[{"tag":{"int":0},"value":{"point":[0,0,0]}},)"
                                   R"({"tag":{"int":1},"value":{"point":[9,5,0]}}]}})"}})}),
        R"({"property":{"class":"AcDbLeader","handle":"62","tag":"Vertex x","value":12,"index":{"int":1}}})",
    });
    EXPECT_EQ(textsBehind(recorded, 2), QStringList{});
    EXPECT_EQ(textsBehind(recorded, 3), QStringList{"See detail"});
    const auto placeBehind = [&](int steps) {
        for (const RecordedPicture::Numbers& numbers : recorded.behind(steps))
            if (numbers.size() == 7)
                return numbers[0];
        return 0.0;
    };
    EXPECT_NEAR(placeBehind(3), 9.625, 1e-9);
    EXPECT_NEAR(placeBehind(4), 12.625, 1e-9);
    EXPECT_TRUE(recorded.remark(0x61).isEmpty());
}

TEST(RecordedDimensions, TellTheirOwnAngleFromThatOfTheirText)
{
    const Tags points{{"xLine1Point", R"({"point":[0,0,0]})"},
                      {"xLine2Point", R"({"point":[40,30,0]})"},
                      {"dimLinePoint", R"({"point":[60,0,0]})"}};
    Tags turned = points;
    turned.push_back({"rotation", "1.5707963267948966"});
    Tags text = points;
    text.push_back({"Rotation", "1.5707963267948966"});
    const RecordedPicture recorded(
        {command({added("AcDbRotatedDimension", "50", turned), added("AcDbRotatedDimension", "51", text)})});
    EXPECT_EQ(textsBehind(recorded, 3), (QStringList{"30", "40"}));
}

TEST(RecordedDimensions, FollowTheirStyle)
{
    const RecordedPicture recorded({
        command({added("AcDbDimStyleTableRecord", "20",
                       {{"DimensionStyleName", R"("Shop")"}, {"LinearDimensionsPrecision", R"({"int":1})"}})}),
        command({added("AcDbAlignedDimension", "50",
                       {{"xLine1Point", R"({"point":[0,0,0]})"},
                        {"xLine2Point", R"({"point":[40,0,0]})"},
                        {"dimLinePoint", R"({"point":[0,9,0]})"},
                        {"Dim style", R"("Shop")"}})}),
        command({modified("AcDbDimStyleTableRecord", "20", {{"LinearDimensionsPrecision", R"({"int":3})"}})}),
    });
    EXPECT_EQ(textsBehind(recorded, 4), QStringList{"40.0"});
    EXPECT_EQ(textsBehind(recorded, 6), QStringList{"40.000"});
}

QString hatching(const char* pattern, const char* boundary)
{
    const QString data = QString(R"({"string":"%1"},{"double":1},{"double":0},%2)").arg(pattern, boundary);
    return custom(18, data.toUtf8().constData());
}

TEST(RecordedHatches, AreMadeByTheActionsInTheirOrder)
{
    constexpr auto kTriangle = R"({"bool":false},{"bool":false},{"bool":false},{"bool":false},{"ints":[3]},)"
                               R"({"points2d":[[0,0],[4,0],[4,3]]})";
    constexpr auto kPoints = R"({"bool":true},{"bool":false},{"bool":false},{"bool":false},{"points2d":[[2,1]]})";
    const RecordedPicture recorded({command({hatching("SOLID", kTriangle), added("AcDbHatch", "70", {}),
                                             hatching("ANSI31", kPoints), added("AcDbHatch", "71", {})})});
    ASSERT_EQ(recorded.picture.primitives.size(), 2U);
    EXPECT_EQ(recorded.picture.primitives[0].shape, Shape::Area);
    EXPECT_EQ(recorded.picture.primitives[1].shape, Shape::Path);
    EXPECT_TRUE(recorded.remark(0x70).isEmpty());
    EXPECT_FALSE(recorded.remark(0x71).isEmpty());
}

TEST(RecordedHatches, HaveTheirGradientsAndFollowTheirBoundary)
{
    constexpr auto kByCircle =
        R"({"bool":false},{"bool":true},{"bool":false},{"bool":true},{"ids":["30"]},)"
        R"({"bool":false},{"color":{"index":3}},{"color":{"index":5}},{"bool":true},{"double":0})";
    const RecordedPicture recorded({
        command({addedCircle("30", 10, 10, 2)}),
        command({hatching("GRASS", kByCircle), added("AcDbHatch", "70", {})}),
        command({custom(3, R"({"handles":["30"]},{"classes":["AcDbCircle"]},{"vector":[5,0,0]})")}),
    });
    const auto centersBehind = [&](int steps) {
        std::vector<double> centers;
        for (const Primitive& one : recorded.picture.primitives)
            if (one.shape == Shape::Area && one.from < steps && (one.until == kNoStep || one.until >= steps)) {
                EXPECT_EQ(recorded.picture.styles[one.style].color, OdCmColor::byIndex(3));
                centers.push_back(recorded.picture.numbersOf(one)[4]);
            }
        return centers;
    };
    EXPECT_EQ(centersBehind(5), std::vector{10.0});
    EXPECT_EQ(centersBehind(7), std::vector{15.0});
}

} // namespace
