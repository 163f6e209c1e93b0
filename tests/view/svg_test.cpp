// Files of SVG: always well-formed, and what a picture shows.

#include "RecordedPicture.h"

#include "view/Pen.h"
#include "view/palette.h"
#include "view/patternStrokes.h"
#include "view/svg.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

#include <cmath>
#include <numbers>

namespace {

using namespace inkmacro::view;

/// The names of the elements in their order; fails where it is not well-formed.
QStringList elementsOf(const QByteArray& svg)
{
    QStringList names;
    QXmlStreamReader reader(svg);
    while (!reader.atEnd())
        if (reader.readNext() == QXmlStreamReader::StartElement)
            names.append(reader.name().toString());
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString() << '\n' << svg.toStdString();
    return names;
}

QByteArray svgOf(const RecordedPicture& seen, std::uint16_t space = 0)
{
    return inkmacro::view::svgOf(seen.picture, space, "T");
}

std::vector<Stroke> hatched(const std::vector<PatternLines>& families, const Outline& boundary)
{
    Picture picture;
    picture.objects.resize(1);
    Pen(picture, {0, 0, {}, 0, kNoStep, kNoStep}).pattern(families, boundary);
    const auto strokes = strokesOf(picture.numbersOf(picture.primitives.front()));
    EXPECT_TRUE(strokes);
    return strokes.value_or(std::vector<Stroke>());
}

double lengthOf(const Stroke& stroke)
{
    return std::hypot(stroke.to.x - stroke.from.x, stroke.to.y - stroke.from.y);
}

const Outline kSquare = Outline().move({0, 0}).line({10, 0}).line({10, 10}).line({0, 10}).close();

} // namespace

TEST(Svg, IsWellFormedWhateverIsRecorded)
{
    Picture picture;
    picture.spaces.resize(1);
    picture.layers.resize(1);
    picture.objects.resize(1);
    Pen pen(picture, {0, 0, {}, 0, kNoStep, kNoStep});
    const QString hostile = QString("]]></text></title><script>\"'&amp;&#0;\r\n\t") + QChar(0) + QChar(0x1B) +
                            QChar(0xFFFE) + QChar(0xD800) + "x" + QChar(0xDC00) + QChar(0x85);
    pen.text({.text = hostile, .at = {0, 0}});
    pen.line({0, 0}, {1e-300, -1e99});
    const QByteArray svg = inkmacro::view::svgOf(picture, 0, hostile);
    EXPECT_EQ(elementsOf(svg), (QStringList{"svg", "title", "style", "rect", "g", "text", "path"}));
    const QByteArray shown = "]]&gt;&lt;/text&gt;&lt;/title&gt;&lt;script&gt;&quot;'&amp;amp;&amp;#0;";
    EXPECT_EQ(svg.count(shown), 2);
    EXPECT_EQ(elementsOf(svgOf(RecordedPicture({}))), (QStringList{"svg", "title", "style", "rect", "g"}));
}

TEST(Svg, ShowsTheEndOfOneSpace)
{
    const RecordedPicture seen(
        {R"({"object":{"class":"AcDbLayerTableRecord","handle":"11","name":"Hidden"}})",
         R"({"object":{"class":"AcDbBlockTableRecord","handle":"40","name":"B","entities":["41"]}})",
         R"({"object":{"class":"AcDbCircle","handle":"41","center":[1000000.5,0,0],"radius":1}})",
         addedLine("30", 0, 0, 10, 20), addedLine("31", 5, 5, 6, 6),
         modified("AcDbLine", "31", {{"Layer", R"({"id":"11"})"}}),
         modified("AcDbLayerTableRecord", "11", {{"Frozen", "\"Yes\""}}), addedLine("32", 900, 0, 1, 1),
         modified("AcDbLine", "32", {{"Erased", "\"Yes\""}}),
         added("AcDbBlockReference", "33",
               {{"Name", "\"B\""},
                {"Position X", "-1000000"},
                {"Position Y", "4"},
                {"LineColor", R"({"color":{"index":1}})"}}),
         added("AcDbRay", "34",
               {{"Base point X", "0"}, {"Base point Y", "0"}, {"Second point X", "-1"}, {"Second point Y", "1"}})});
    const QByteArray svg = svgOf(seen);
    EXPECT_EQ(elementsOf(svg),
              (QStringList{"svg", "title", "style", "defs", "g", "path", "rect", "g", "path", "use", "path"}));
    // A margin of 4 % of the larger side, and y downwards.
    EXPECT_TRUE(svg.contains("viewBox=\"-1.3 -20.8 12.1")) << svg.toStdString();
    EXPECT_TRUE(svg.contains("<path class=\"ink\" d=\"M0 0L10 20\"/>"));
    // What is far away is drawn near its own origin.
    EXPECT_TRUE(svg.contains("<path d=\"M1.5 0A1 1 0 0 1")) << svg.toStdString();
    EXPECT_TRUE(svg.contains("<use href=\"#b1\" class=\"c0\" transform=\"matrix(1 0 0 1 0 4)\"/>"));
    EXPECT_TRUE(svg.contains("<path class=\"ink\" d=\"M0 0L-1.3 1.3\"/>"));
    EXPECT_EQ(svg, svgOf(seen));
}

TEST(Svg, WritesNumbersThatGiveThemselvesBack)
{
    const RecordedPicture seen({addedLine("30", 0, 0, 1, 1),
                                R"({"modified":{"class":"AcDbLine","handle":"30","properties":[)"
                                R"({"tag":"End X","value":0.1},{"tag":"End Y","value":1e-7},)"
                                R"({"tag":"Start X","value":-0.0}]}})"});
    EXPECT_TRUE(svgOf(seen).contains("d=\"M0 0L0.1 1e-07\""));
}

TEST(Svg, ShowsColorsOnBothPapers)
{
    const auto colors = [](const char* color) {
        const QByteArray svg = svgOf(
            RecordedPicture({added("AcDbCircle", "30", {{"Center X", "0"}, {"Radius", "1"}, {"LineColor", color}})}));
        QStringList found;
        static const QRegularExpression rule(R"(\.c0\{color:#(\w{6})\})");
        for (auto match = rule.globalMatch(svg); match.hasNext();)
            found.append(match.next().captured(1));
        return found;
    };
    EXPECT_EQ(colors(R"({"color":{"index":7}})"), QStringList());
    EXPECT_EQ(colors(R"({"color":{"rgb":[255,0,0]}})"), (QStringList{"ff0000", "ff0000"}));
    const auto rgb = [](const QString& hex) {
        const uint value = hex.toUInt(nullptr, 16);
        return Rgb{static_cast<std::uint8_t>(value >> 16), static_cast<std::uint8_t>(value >> 8),
                   static_cast<std::uint8_t>(value)};
    };
    for (const char* const color :
         {R"({"color":{"rgb":[255,255,0]}})", R"({"color":{"rgb":[0,0,40]}})", R"({"color":{"index":250}})"}) {
        const QStringList found = colors(color);
        ASSERT_EQ(found.size(), 2);
        EXPECT_GE(contrastOf(rgb(found[0]), {255, 255, 255}), 3.0);
        EXPECT_GE(contrastOf(rgb(found[1]), {0x14, 0x1b, 0x24}), 3.0);
    }
    EXPECT_EQ(visibleOn({255, 255, 255}, {255, 255, 0}).blue, 0);
}

TEST(Palette, KnowsTheIndexedColors)
{
    const auto color = [](std::uint16_t index) { return rgbOf(OdCmColor::byIndex(index)); };
    EXPECT_EQ(color(1), (Rgb{255, 0, 0}));
    EXPECT_EQ(color(9), (Rgb{192, 192, 192}));
    EXPECT_EQ(color(21), (Rgb{255, 159, 127}));
    EXPECT_EQ(color(92), (Rgb{0, 165, 0}));
    EXPECT_EQ(color(174), (Rgb{0, 0, 127}));
    EXPECT_EQ(color(240), (Rgb{255, 0, 63}));
    EXPECT_EQ(color(255), (Rgb{255, 255, 255}));
    EXPECT_EQ(color(7), std::nullopt);
    EXPECT_EQ(rgbOf(OdCmColor::byBlock()), std::nullopt);
}

TEST(Pattern, StaysWithinItsBoundary)
{
    const auto level = hatched({{0, {0, 0.5}, 2}}, kSquare);
    ASSERT_EQ(level.size(), 5U);
    for (const Stroke& stroke : level) {
        EXPECT_DOUBLE_EQ(lengthOf(stroke), 10);
        EXPECT_DOUBLE_EQ(std::fmod(stroke.from.y, 2), 0.5);
    }
    // Through a hole in it: even and odd.
    Outline ring = kSquare;
    ring.move({2, 2}).line({8, 2}).line({8, 8}).line({2, 8}).close();
    double length = 0.0;
    for (const Stroke& stroke : hatched({{std::numbers::pi / 2, {0.5, 0}, 3}}, ring))
        length += lengthOf(stroke);
    EXPECT_NEAR(length, 10 + 4 + 4 + 10, 1e-9);
    // A circle that begins with its arc; dashes of 1 with gaps of 1.
    double dashes = 0.0;
    for (const Stroke& stroke : hatched({{0, {0, 0}, 100, {1, -1}}}, Outline().arc({0, 0}, 4, 0, kTurn)))
        dashes += lengthOf(stroke);
    EXPECT_NEAR(dashes, 4, 1e-9);
}

TEST(Pattern, IsATintWhereItIsTooDense)
{
    for (const PatternLines& family : {PatternLines{0, {0, 0}, 1e-9},
                                       {0, {0, 0}, 0},
                                       {0, {0, 1e20}, 1},
                                       {0, {0, 0}, 1, {1e-9, -1e-9}},
                                       {0, {1e18, 0}, 1, {1, -1}}}) {
        Picture picture;
        picture.objects.resize(1);
        Pen(picture, {0, 0, {}, 0, kNoStep, kNoStep}).pattern({family}, kSquare);
        EXPECT_FALSE(strokesOf(picture.numbersOf(picture.primitives.front())));
    }
}
