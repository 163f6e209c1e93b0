#include "view/noteText.h"
#include "view/textBlock.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <numbers>

using namespace inkmacro::view;

namespace {

QStringList lines(const char* contents)
{
    QStringList found;
    for (const QString& line : linesOfNote(QString::fromUtf8(contents)))
        found.append(line);
    return found;
}

using List = QStringList;

TEST(NoteText, BreaksAtParagraphsAndLineEnds)
{
    EXPECT_EQ(lines("First\\PSecond"), List({"First", "Second"}));
    EXPECT_EQ(lines("a\nb^Jc\\Xd"), List({"a", "b", "c", "d"}));
    EXPECT_EQ(lines("a\\P\\Pb"), List({"a", "", "b"}));
    EXPECT_EQ(lines(""), List({""}));
}

TEST(NoteText, LeavesFormatCodesOut)
{
    EXPECT_EQ(lines("{\\fArial|b1|i0;Bolt} M8"), List({"Bolt M8"}));
    EXPECT_EQ(lines("\\A1;\\C3;\\H2.5x;\\W0.8;\\T1.1;\\Q15;\\pi0,l2;Text"), List({"Text"}));
    EXPECT_EQ(lines("\\Lunder\\l \\Oover\\o \\Kstruck\\k"), List({"under over struck"}));
    EXPECT_EQ(lines("\\\\ \\{ \\} a\\~b"), List({QString::fromUtf8("\\ { } a\u00A0b")}));
    EXPECT_EQ(lines("%%uunder%%u"), List({"under"}));
}

TEST(NoteText, KeepsBackslashesThatAreNoCodes)
{
    EXPECT_EQ(lines("D:\\drawings\\bolt.dwg"), List({"D:\\drawings\\bolt.dwg"}));
    EXPECT_EQ(lines("A\\B"), List({"A\\B"}));
    EXPECT_EQ(lines("end\\"), List({"end\\"}));
    EXPECT_EQ(lines("\\Hwithout end"), List({"\\Hwithout end"}));
}

TEST(NoteText, UnderstandsSigns)
{
    EXPECT_EQ(lines("45%%d %%C20 %%p0.1 5%%%"), List({QString::fromUtf8("45° Ø20 ±0.1 5%")}));
    EXPECT_EQ(lines("\\U+00B5m %%065 \\u+2300"), List({QString::fromUtf8("µm A ⌀")}));
    EXPECT_EQ(lines("100% 50%%"), List({"100% 50%%"}));
    EXPECT_EQ(plainText("90%%d\\P\\U+00DF"), QString::fromUtf8("90°\\Pß"));
}

TEST(NoteText, WritesStacksInARow)
{
    EXPECT_EQ(lines("3\\S1/2; m"), List({"3 1/2 m"}));
    EXPECT_EQ(lines("\\S+0.1^ -0.2;"), List({"+0.1/-0.2"}));
    EXPECT_EQ(lines("m\\S2^;"), List({"m2"}));
    EXPECT_EQ(lines("x\\S^i;"), List({"xi"}));
}

TEST(NoteText, ReadsTheFontOfTolerances)
{
    EXPECT_EQ(lines("{\\Fgdt;j}0.1"), List({QString::fromUtf8("⌖0.1")}));
    EXPECT_EQ(lines("{\\Fgdt.shx|c0;n}5 {\\Ftxt;n}"), List({QString::fromUtf8("⌀5 n")}));
}

TEST(NoteText, WrapsAtBlanks)
{
    // Each of these letters is 0.76 wide at a height of 1, a blank 0.42.
    const std::vector<QString> one{"aaaa bbbb cccc"};
    EXPECT_EQ(wrapped(one, 1.0, 6.6), (std::vector<QString>{"aaaa bbbb", "cccc"}));
    EXPECT_EQ(wrapped(one, 1.0, 6.4), (std::vector<QString>{"aaaa", "bbbb", "cccc"}));
    EXPECT_EQ(wrapped(one, 1.0, 0.1), (std::vector<QString>{"aaaa", "bbbb", "cccc"}));
    EXPECT_EQ(wrapped(one, 1.0, 0.0), one);
    EXPECT_EQ(wrapped({"", "b"}, 1.0, 5.0), (std::vector<QString>{"", "b"}));
}

TEST(NoteText, ShortensToAWidth)
{
    EXPECT_EQ(shortened("aaaa", 1.0, 3.1), "aaaa");
    EXPECT_EQ(shortened("aaaa", 1.0, 2.5), QString::fromUtf8("aa…"));
    EXPECT_EQ(shortened("aaaa", 1.0, 0.5), "");
}

TEST(TextBlock, KeepsLettersOnTheirFeet)
{
    constexpr double kDegree = std::numbers::pi / 180.0;
    EXPECT_NEAR(readableAngle(30 * kDegree), 30 * kDegree, 1e-12);
    EXPECT_NEAR(readableAngle(90 * kDegree), 90 * kDegree, 1e-12);
    EXPECT_NEAR(readableAngle(135 * kDegree), -45 * kDegree, 1e-12);
    EXPECT_NEAR(readableAngle(180 * kDegree), 0.0, 1e-12);
    EXPECT_NEAR(readableAngle(-90 * kDegree), 90 * kDegree, 1e-12);
    EXPECT_NEAR(readableAngle(300 * kDegree), -60 * kDegree, 1e-12);
}

} // namespace
