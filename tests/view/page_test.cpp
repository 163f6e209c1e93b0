// What goes into a page besides the picture: numbers, steps, differences, markup.

#include "view/Columns.h"
#include "view/PageFile.h"
#include "view/Steps.h"
#include "view/differences.h"
#include "view/scripts.h"

#include "recordfile/Recording.h"
#include "recordfile/RecordingReader.h"

#include <QBuffer>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <climits>

using namespace inkmacro;
using namespace inkmacro::view;

namespace {

std::vector<std::vector<std::uint32_t>> rowsOf(const std::vector<Hunk>& hunks)
{
    std::vector<std::vector<std::uint32_t>> rows;
    for (const Hunk& hunk : hunks)
        rows.push_back({hunk.recordedFirst, hunk.recordedCount, hunk.repairedFirst, hunk.repairedCount,
                        static_cast<std::uint32_t>(hunk.step)});
    return rows;
}

/// A macro whose lines come from steps; a line a pair of text and step.
MacroLines macroOf(const std::vector<std::pair<const char*, std::int32_t>>& lines)
{
    MacroLines macro;
    for (const auto& [text, step] : lines) {
        macro.text += QByteArray(text) + '\n';
        macro.ranges.push_back({1, step, 3});
    }
    return macro;
}

using Rows = std::vector<std::vector<std::uint32_t>>;

} // namespace

TEST(Differences, PairLinesOfOneStep)
{
    // Equal statements of two steps are not taken for one another: step 2 is lost in the first macro, not step 1.
    const MacroLines recorded = macroOf({{"head", -1}, {"draw()", 1}, {"x = 1", 3}, {"foot", -1}});
    const MacroLines repaired = macroOf({{"head", -1}, {"draw()", 1}, {"draw()", 2}, {"var x = 1", 3}, {"foot", -1}});
    EXPECT_EQ(rowsOf(differencesOf(recorded, repaired)), (Rows{{3, 0, 3, 1, 2}, {3, 1, 4, 1, 3}}));
    EXPECT_EQ(rowsOf(differencesOf(repaired, recorded)), (Rows{{3, 1, 3, 0, 2}, {4, 1, 3, 1, 3}}));
    EXPECT_TRUE(differencesOf(recorded, recorded).empty());
}

TEST(Differences, KeepEqualLinesWithinAStep)
{
    const MacroLines recorded = macroOf({{"a", 1}, {"b", 1}, {"c", 1}, {"d", 1}});
    const MacroLines repaired = macroOf({{"new", 1}, {"a", 1}, {"B", 1}, {"c", 1}, {"D", 1}, {"e", 1}});
    EXPECT_EQ(rowsOf(differencesOf(recorded, repaired)), (Rows{{1, 0, 1, 1, 1}, {2, 1, 3, 1, 1}, {4, 1, 5, 2, 1}}));
}

TEST(Differences, ReachTheEndsOfMacros)
{
    const MacroLines one = macroOf({{"a", 1}});
    EXPECT_EQ(rowsOf(differencesOf({}, one)), (Rows{{1, 0, 1, 1, 1}}));
    EXPECT_EQ(rowsOf(differencesOf(one, {})), (Rows{{1, 1, 1, 0, 1}}));
}

TEST(Columns, BeginAtMultiplesOfEight)
{
    Columns columns;
    columns.add("small", std::vector<std::uint8_t>{1, 2, 3});
    columns.addDeltas("rising", {5, 7, -1, INT32_MIN, INT32_MAX});
    EXPECT_EQ(columns.layout(), (QJsonArray{QJsonArray{"small", "u8", 3}, QJsonArray{"rising", "d32", 5}}));
    EXPECT_EQ(columns.bytes().toHex(), "0102030000000000"
                                       "0500000002000000f8ffffff01000080ffffffff");
}

TEST(Steps, AreFoundByTheirPlaces)
{
    QByteArray text =
        "{\"command\":{\"name\":\"A\",\"actions\":[{\"null\":null},{\"command\":{\"name\":\"B\",\"actions\":["
        "{\"sysvar\":{\"name\":\"X\",\"value\":{\"int16\":1}}}]}},{\"null\":null}]}}\n"
        "{\"sysvar\":{\"name\":\"Y\",\"value\":{\"int16\":1}}}\n";
    QBuffer file(&text);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    Recording recording;
    ASSERT_TRUE(ReadWithErrors(file, "a", recording, 1, {}).empty());
    const Steps steps(recording.actions);
    ASSERT_EQ(steps.size(), 6U);
    EXPECT_EQ(steps.at({0}), 0U);
    EXPECT_EQ(steps.at({0, 0}), 1U);
    EXPECT_EQ(steps.at({0, 1}), 2U);
    EXPECT_EQ(steps.at({0, 1, 0}), 3U);
    EXPECT_EQ(steps.at({0, 2}), 4U);
    EXPECT_EQ(steps.at({1}), 5U);
    EXPECT_EQ(steps.at({2}), std::nullopt);
    EXPECT_EQ(steps.at({1, 0}), std::nullopt);
    EXPECT_EQ(steps.at({0, 1, 1}), std::nullopt);
    EXPECT_EQ(steps.at({}), std::nullopt);
    EXPECT_EQ(steps[3].parent, 2);
    EXPECT_EQ(steps[4].kind, Steps::Kind::Nothing);
}

TEST(PageFile, ShowsWhatIsNotSeen)
{
    EXPECT_EQ(escapedForPage("<a href=\"x\">&\n"), "&lt;a href=&quot;x&quot;&gt;&amp;\n");
    EXPECT_EQ(escapedForPage(QString("a") + QChar(0x202E) + QChar(0x1B) + QChar(0xD800) + "b"),
              "a\\u202e\\u001b\\ud800b");
    EXPECT_EQ(escapedForPage(QString::fromUtf8("\xF0\x9F\x8F\xA0")), QString::fromUtf8("\xF0\x9F\x8F\xA0"));
}

TEST(PageFile, NamesTheScriptOfAMacro)
{
    EXPECT_EQ(scriptOfMacro("<script src=\"a\"></script><script type=\"text/javascript\">\nrun();</script></html>"),
              "\nrun();");
    EXPECT_EQ(scriptOfMacro("<script type=\"text/javascript\">a \xFF b"), "a \xEF\xBF\xBD b");
    EXPECT_EQ(scriptOfMacro("no page"), QByteArray());
}
