#include "Drawn.h"

#include "view/attributes.h"
#include "view/drawers.h"

#include <cmath>
#include <numbers>

using namespace inkmacro::view;

namespace {

constexpr double kPi = std::numbers::pi;

SaidValues text(const char* justify)
{
    SaidValues values("AcDbText");
    values.say("Contents", "Room").say("Position x", 1.0).say("Position y", 2.0);
    values.say("Text alignment X", 11.0).say("Text alignment Y", 12.0).say("Height", 5.0);
    return justify ? values.say("Justify", justify) : values;
}

TEST(Texts, StandByTheirJustification)
{
    const auto drawn = [](const char* justify) { return Drawn(drawText, text(justify)).text(0); };
    expectNear(drawn(nullptr), {1, 2, 5, 0, 0, 10});
    expectNear(drawn("Left"), {1, 2, 5, 0, 0, 10});
    expectNear(drawn("Center"), {11, 12, 5, 0, 0, 11});
    expectNear(drawn("Right"), {11, 12, 5, 0, 0, 12});
    expectNear(drawn("Middle"), {11, 12, 5, 0, 0, 5});
    expectNear(drawn("Top Left"), {11, 12, 5, 0, 0, 1});
    expectNear(drawn("Middle Right"), {11, 12, 5, 0, 0, 6});
    expectNear(drawn("Bottom Center"), {11, 12, 5, 0, 0, 8});
    expectNear(drawn("Fit"), {1, 2, 5, kPi / 4, std::sqrt(200), 10});
    expectNear(drawn("Aligned"), {1, 2, 5, kPi / 4, std::sqrt(200), 10});
}

TEST(Texts, HaveSizesOfTheirOwnOrOfTheirStyle)
{
    SaidValues style("AcDbTextStyleTableRecord");
    style.say("Height", 7.0);
    SaidValues values("AcDbText");
    values.say("Contents", "50%%d").say("Rotation", 0.5).say("TextStyle", "Titles");
    values.know("Titles", style);
    const Drawn drawn(drawText, values);
    EXPECT_EQ(drawn.texts(), QStringList{QString::fromUtf8("50°")});
    expectNear(drawn.text(0), {0, 0, 7, 0.5, 0, 10});

    SaidValues usual("AcDbText");
    usual.say("Contents", "aaaa").say("Height", 0.0).say("Spacing", 2.0);
    expectNear(Drawn(drawText, usual).text(0), {0, 0, 2.5, 0, 2 * 4 * 0.76 * 2.5, 10});
    EXPECT_TRUE(Drawn(drawText, SaidValues("AcDbText").say("Contents", " ")).isEmpty());
}

TEST(Texts, OfDefinitionsAreTheirNames)
{
    SaidValues definition("AcDbAttributeDefinition");
    definition.say("Tag", "SIZE").say("Value", "M8").say("Position X", 1.0).say("Height", 3.5);
    const Drawn drawn(drawAttribute, definition);
    EXPECT_EQ(drawn.texts(), QStringList{"SIZE"});
    expectNear(drawn.text(0), {1, 0, 3.5, 0, 0, 10});

    SaidValues attribute("AcDbAttribute");
    attribute.draw("textString", OdString("M8"));
    EXPECT_TRUE(Drawn(drawAttribute, attribute).isEmpty());
    EXPECT_EQ(Drawn(drawAttribute, attribute.say("Position x", 1.0)).texts(), QStringList{"M8"});
}

TEST(Texts, OfAttributesStandInTheirReferences)
{
    OdDbDatabase database;
    SaidValues definition("AcDbAttributeDefinition");
    definition.say("Tag", "SIZE").say("Value", "M8").say("Position X", 3.0).say("Position Y", 1.0).say("Height", 2.0);
    SaidValues hidden = definition;
    hidden.say("Invisible", "Yes");
    SaidValues constant = definition;
    constant.say("Constant", "Yes");
    SaidValues block("AcDbBlockTableRecord");
    const auto id = [&database](std::uint64_t handle) { return database.getOdDbObjectId(OdDbHandle(handle)); };
    block.draw("entities", OdArray<OdDbObjectId>{id(0x31), id(0x32), id(0x33)});
    SaidValues reference("AcDbBlockReference");
    reference.know(0x31, definition);
    reference.know(0x32, hidden);
    reference.know(0x33, constant);

    const Affine place = Affine::moved(100, 10) * Affine::rotated(kPi / 2) * Affine::scaled(2, 3);
    const auto drawn = [&] {
        return Drawn([&](const Values& values, Pen& pen) { drawAttributes(values, block, place, pen); }, reference);
    };
    EXPECT_EQ(drawn().texts(), QStringList{"M8"});
    expectNear(drawn().text(0), {97, 16, 6, kPi / 2, 0, 10});

    SaidValues attribute("AcDbAttribute");
    attribute.draw("tag", OdString("size")).draw("textString", OdString("M10"));
    reference.draw("attributes", OdArray<OdDbObjectId>{database.addObject(OdDbHandle(0x41), attribute.drawnObject())});
    EXPECT_EQ(drawn().texts(), QStringList{"M10"});
    reference.say("BlockAttributes.SIZE", "M12");
    EXPECT_EQ(drawn().texts(), QStringList{"M12"});

    // An action that makes the block tells its parts.
    SaidValues made("AcDbBlockTableRecord");
    made.say("Objects", CFxVariant(CFxVariantCollection({{CFxVariant(0), CFxVariant(CFxString("31"))}})));
    const auto ofMade = [&](const Values& values, Pen& pen) { drawAttributes(values, made, place, pen); };
    EXPECT_EQ(Drawn(ofMade, reference).texts(), QStringList{"M12"});

    EXPECT_EQ(Drawn(drawAttribute, constant).texts(), QStringList{"M8"});
}

SaidValues note(int attachment)
{
    SaidValues values("AcDbMText");
    values.draw("attachment", attachment).draw("contents", OdString("one\\Ptwo\\Pthree"));
    values.say("Position X", 100.0).say("Position Y", 50.0).say("Text Height", 3.0).say("Line space distance", 4.0);
    return values;
}

TEST(Notes, AreAttachedAtNinePlaces)
{
    // Three lines 4 apart whose letters are 3 high are 11 high together.
    const auto first = [](int attachment) { return Drawn(drawNote, note(attachment)).text(0); };
    expectNear(first(1), {100, 47, 3, 0, 0, 10});
    expectNear(first(2), {100, 47, 3, 0, 0, 11});
    expectNear(first(3), {100, 47, 3, 0, 0, 12});
    expectNear(first(4), {100, 52.5, 3, 0, 0, 10});
    expectNear(first(5), {100, 52.5, 3, 0, 0, 11});
    expectNear(first(6), {100, 52.5, 3, 0, 0, 12});
    expectNear(first(7), {100, 58, 3, 0, 0, 10});
    expectNear(first(8), {100, 58, 3, 0, 0, 11});
    expectNear(first(9), {100, 58, 3, 0, 0, 12});

    const Drawn drawn(drawNote, note(8));
    EXPECT_EQ(drawn.texts(), (QStringList{"one", "two", "three"}));
    expectNear(drawn.text(2), {100, 50, 3, 0, 0, 11});
    expectNear(Drawn(drawNote, note(1).say("Justify", "Bottom Right")).text(0), {100, 58, 3, 0, 0, 12});
    expectNear(Drawn(drawNote, note(-5)).text(0), {100, 47, 3, 0, 0, 10});
}

TEST(Notes, AreTurnedAndWrapped)
{
    SaidValues turned("AcDbMText");
    turned.say("Contents", "aaaa bbbb").say("Position X", 10.0).say("Rotation", kPi / 2).say("Text Height", 3.0);
    const Drawn drawn(drawNote, turned.say("Width", 10.0));
    EXPECT_EQ(drawn.texts(), (QStringList{"aaaa", "bbbb"}));
    expectNear(drawn.text(0), {13, 0, 3, kPi / 2, 0, 10});
    expectNear(drawn.text(1), {18, 0, 3, kPi / 2, 0, 10});
}

TEST(Notes, HaveABoxOfTheirColor)
{
    SaidValues values("AcDbMText");
    values.say("Contents", "aaaa").say("Position X", 0.0).say("Text Height", 2.0).say("Background mask", "Yes");
    values.say("BackgroundFillColor", OdCmColor::byIndex(3)).say("BackgroundBorderOffsetFactor", 1.5);
    const Drawn drawn(drawNote, values);
    const double right = 4 * 0.76 * 2 + 1;
    expectNear(drawn.corners(Shape::Area).at(0), {{-1, -3}, {right, -3}, {right, 1}, {-1, 1}});
    ASSERT_EQ(drawn.picture().primitives.size(), 2U);
    EXPECT_EQ(drawn.picture().styles[drawn.picture().primitives[0].style].color, OdCmColor::byIndex(3));
    EXPECT_EQ(drawn.picture().styles[drawn.picture().primitives[1].style].color, OdCmColor());

    const Drawn paper(drawNote, values.say("UseDrawingBackgroundColor", "Yes"));
    EXPECT_TRUE(paper.corners(Shape::Area).empty());
    EXPECT_FALSE(paper.remark().isEmpty());
}

SaidValues curved()
{
    SaidValues values("AcDbArcAlignedText");
    values.say("Contents", "aba").say("Height", 2.0).say("Radius", 10.0);
    return values.say("Start Angle", 0.0).say("End Angle", kPi);
}

TEST(CurvedTexts, RunAlongTheirArc)
{
    // The letters are 1.52 wide each.
    const Drawn center(drawArcText, curved().say("CurvedSettings Alignment", "Center"));
    EXPECT_EQ(center.texts(), (QStringList{"a", "b", "a"}));
    expectNear(center.text(1), {0, 10, 2, 0, 0, 11});
    expectNear(center.text(0), {-10 * std::sin(0.152), 10 * std::cos(0.152), 2, 0.152, 0, 11});

    const Drawn fit(drawArcText, curved());
    expectNear(fit.text(0), {-10 * std::cos(0.076), 10 * std::sin(0.076), 2, kPi / 2 - 0.076, 0, 11});
    expectNear(fit.text(2), {10 * std::cos(0.076), 10 * std::sin(0.076), 2, 0.076 - kPi / 2, 0, 11});

    const Drawn right(drawArcText, curved().say("CurvedSettings Alignment", 3).say("Right Offset", 1.0));
    expectNear(right.text(2), {10 * std::cos(0.176), 10 * std::sin(0.176), 2, 0.176 - kPi / 2, 0, 11});
}

TEST(CurvedTexts, StandOnEitherSideAndWay)
{
    SaidValues outer = curved().say("CurvedSettings Alignment", "Center").say("Arc Offset", 1.0);
    expectNear(Drawn(drawArcText, outer).text(1), {0, 11, 2, 0, 0, 11});
    SaidValues inner = outer;
    inner.say("CurvedSettings TextSide", "OnConcaveSide");
    expectNear(Drawn(drawArcText, inner).text(1), {0, 7, 2, 0, 0, 11});
    expectNear(Drawn(drawArcText, inner.say("CurvedSettings TextDirection", "InwardToTheCenter")).text(1),
               {0, 9, 2, kPi, 0, 11});
    expectNear(Drawn(drawArcText, outer.say("CurvedSettings TextDirection", "InwardToTheCenter")).text(1),
               {0, 13, 2, kPi, 0, 11});
}

TEST(CurvedTexts, NeedAnArc)
{
    SaidValues arc("AcDbArc");
    arc.say("Radius", 10.0).say("Center X", 5.0).say("Start Angle", 0.0).say("End Angle", kPi);
    OdDbDatabase database;
    SaidValues values("AcDbArcAlignedText");
    values.draw("textString", OdString("a")).draw("alignment", 4);
    EXPECT_TRUE(Drawn(drawArcText, values).isEmpty());
    EXPECT_FALSE(Drawn(drawArcText, values).remark().isEmpty());
    values.draw("arcId", database.getOdDbObjectId(OdDbHandle(0x70)));
    values.know(0x70, arc);
    expectNear(Drawn(drawArcText, values).text(0), {5, 10, 2.5, 0, 0, 11});
    EXPECT_TRUE(Drawn(drawArcText, curved().say("CurvedSettings TextSide", 2).say("Arc Offset", 50.0)).isEmpty());
}

} // namespace
