// Drawing files as they come, and the recordings that are made of them.

#include "TestDrawingFile.h"

#include <gtest/gtest.h>

#include <cstring>

using namespace inkmacro;
using namespace inkmacro::dxf;

namespace {

/// What a binary file has in place of the lines: numbers by codes, and texts up to a zero byte.
std::string asBinary(const Groups& groups, bool shortCodes)
{
    const auto bytesOf = [](auto number) {
        std::string bytes(sizeof number, '\0');
        std::memcpy(bytes.data(), &number, sizeof number);
        return bytes;
    };
    std::string file("A drawing as Binary DXF\r\n\x1a\0", 27);
    for (const auto& [code, value] : groups) {
        file += shortCodes ? std::string(1, static_cast<char>(code)) : bytesOf(static_cast<qint16>(code));
        if (code >= 10 && code < 60)
            file += bytesOf(std::stod(value));
        else if (code >= 60 && code < 80)
            file += bytesOf(static_cast<qint16>(std::stoi(value)));
        else
            file += value + '\0';
    }
    return file;
}

Groups line(const std::string& handle, const std::string& x)
{
    return {{0, "LINE"}, {5, handle}, {8, "0"}, {10, x}, {20, "1"}, {11, "2"}, {21, "3"}};
}

Groups insert(const std::string& block, const Groups& more = {})
{
    return Groups{{0, "INSERT"}, {8, "0"}, {2, block}, {10, "1"}, {20, "2"}} + more;
}

Groups block(const std::string& name, const Groups& entities)
{
    return Groups{{0, "BLOCK"}, {8, "0"}, {2, name}, {70, "0"}, {10, "0"}, {20, "0"}} + entities +
           Groups{{0, "ENDBLK"}};
}

} // namespace

TEST(DxfFiles, ReadTheSameHoweverTheyAreWritten)
{
    const Groups drawing = section("ENTITIES", line("2F", "0.5") + line("30", "-1e3")) + Groups{{0, "EOF"}};
    const std::vector<std::string> expected = imported(asText(drawing)).actions;
    ASSERT_EQ(expected.size(), 2U);
    EXPECT_NE(expected[0].find(tag("Start X", "0.5")), std::string::npos);
    EXPECT_NE(expected[1].find(tag("Start X", "-1000")), std::string::npos);

    std::string mixed = asText(drawing);
    mixed.replace(mixed.find('\n'), 1, "\r\n");
    mixed.replace(mixed.find("LINE\n") + 4, 1, "\r");
    const std::pair<const char*, std::string> files[] = {
        {"CR LF", asText(drawing, "\r\n")},
        {"CR", asText(drawing, "\r")},
        {"CR CR LF", asText(drawing, "\r\r\n")},
        {"mixed", mixed},
        {"byte order mark", "\xef\xbb\xbf" + asText(drawing)},
        {"comment", "999\nwritten by hand\n" + asText(drawing)},
        {"blanks", asText(drawing, " \n  ")},
        {"stray line", "what is that\n" + asText(drawing)},
        {"trash behind the end", asText(drawing) + asText(line("31", "9")) + "\x01\x02"},
        {"binary", asBinary(drawing, false)},
        {"binary with short codes", asBinary(drawing, true)},
    };
    for (const auto& [how, file] : files)
        EXPECT_EQ(imported(file).actions, expected) << how;
}

TEST(DxfFiles, GiveWhatTheyHaveWhereverTheyEnd)
{
    const std::string whole = asText(section("ENTITIES", line("2F", "0.5") + line("30", "7")) + Groups{{0, "EOF"}});
    for (const std::string& file : {whole, asBinary(section("ENTITIES", line("2F", "0.5")), false)})
        for (std::size_t length = 0; length < file.size(); ++length) {
            const std::string cut = file.substr(0, length);
            const Drawing drawing(cut);
            // In a binary file a text ends with a zero byte.
            const std::string name = file == whole ? "SECTION" : std::string("SECTION\0", 8);
            EXPECT_EQ(drawing.isValid(), cut.find(name) != std::string::npos) << length;
            if (drawing.isValid()) {
                EXPECT_LE(imported(cut).actions.size(), 2U) << length;
            }
        }
    EXPECT_EQ(imported(whole.substr(0, whole.find("\nENDSEC"))).actions.size(), 2U);
}

TEST(DxfHandles, AreUniqueInTheRecording)
{
    const Imported doubled = entities(line("2F", "1") + line("2F", "2") + line("", "3") + line("xyz", "4"));
    ASSERT_EQ(doubled.actions.size(), 4U);
    EXPECT_EQ(doubled.count(R"("handle":"2F")"), 1);
    EXPECT_EQ(doubled.count(R"("handle":"30")") + doubled.count(R"("handle":"31")") + doubled.count(R"("handle":"32")"),
              3);

    const Imported high = entities(line("FFFFFFFFFFFFFFFF", "1") + line("", "2") + line("1", "3"));
    EXPECT_EQ(high.count(R"("handle":"FFFFFFFFFFFFFFFF")"), 1);
    EXPECT_EQ(high.count(R"("handle":"1")"), 1);
    EXPECT_EQ(high.count(R"("handle":"2")"), 1);

    const Imported seeded = imported(asText(section("HEADER", {{9, "$HANDSEED"}, {5, "A00"}}) +
                                            section("ENTITIES", line("2F", "1") + line("", "2"))));
    EXPECT_EQ(seeded.count(R"("handle":"A00")"), 1);
}

TEST(DxfEntities, AreLostForNumbersThatAreNone)
{
    for (const char* const number : {"nan", "1e400", "inf", "1,5", "abc", ""}) {
        const Imported result = entities(line("2F", number) + line("30", "1"));
        EXPECT_EQ(result.actions.size(), 1U) << number;
        EXPECT_EQ(result.accounts.lost.size(), 1U) << number;
        EXPECT_EQ(result.accounts.imported.at("LINE"), 1) << number;
    }
    EXPECT_EQ(entities(line("2F", "1e-400") + line("30", " +2 ")).actions.size(), 2U);
}

TEST(DxfEntities, SeenFromBelowStandWhereTheyStand)
{
    const Groups below{{210, "0"}, {220, "0"}, {230, "-2"}};
    const Imported arc =
        entities(Groups{{0, "ARC"}, {10, "3"}, {20, "4"}, {30, "5"}, {40, "1"}, {50, "0"}, {51, "90"}} + below);
    for (const std::string& part : {tag("Center X", "-3"), tag("Center Y", "4"), tag("Center Z", "-5"),
                                    tag("Start Angle", "1.5707963267948966"), tag("End Angle", "3.141592653589793")})
        EXPECT_TRUE(arc.has(part)) << part;

    const Imported bow = entities(Groups{{0, "LWPOLYLINE"}, {38, "7"}} + below +
                                  Groups{{10, "1"}, {20, "0"}, {42, "0.5"}, {10, "2"}, {20, "0"}});
    EXPECT_TRUE(bow.has(R"({"points":[[-1,0,0],[-2,0,0]]},{"points":[[-0.5,0,0],)"));
    EXPECT_TRUE(bow.has(tag("Elevation", "-7")));

    const Imported text = entities(Groups{{0, "TEXT"}, {1, "a"}, {10, "0"}, {20, "0"}, {40, "1"}} + below);
    EXPECT_EQ(text.accounts.lost.count({"TEXT", "it is seen from behind"}), 1U);
}

TEST(DxfEntities, InATiltedPlaneComeInWhenSpaceHasTheirKind)
{
    const Groups sideways{{210, "1"}, {220, "0"}, {230, "0"}};
    const Groups corners{{10, "1"}, {20, "2"}, {10, "3"}, {20, "4"}};
    // The X axis of such a plane is the world's Y axis, and its Y axis is the world's Z axis.
    const Imported straight = entities(Groups{{0, "LWPOLYLINE"}, {38, "5"}} + sideways + corners);
    EXPECT_TRUE(straight.has("AcDb3dPolyline"));
    EXPECT_TRUE(straight.has(R"({"point":[5,1,2]})"));
    const Imported bent = entities(Groups{{0, "LWPOLYLINE"}} + sideways + corners + Groups{{42, "1"}});
    EXPECT_EQ(bent.accounts.lost.size(), 1U);
    EXPECT_EQ(entities(Groups{{0, "CIRCLE"}, {40, "1"}} + sideways).accounts.lost.size(), 1U);
    const Groups nowhere{{210, "0"}, {220, "0"}, {230, "0"}};
    EXPECT_EQ(entities(Groups{{0, "CIRCLE"}, {40, "1"}} + nowhere).accounts.imported.at("CIRCLE"), 1);
}

TEST(DxfHatches, HaveTheSimplestBoundaryThatTellsAll)
{
    const auto hatch = [](const Groups& loops, const Groups& more = {}) {
        return entities(Groups{{0, "HATCH"}, {10, "0"}, {20, "0"}, {30, "0"}} + more +
                        Groups{{2, "ANSI31"}, {70, "0"}, {91, "99"}} + loops +
                        Groups{{75, "1"}, {76, "1"}, {52, "0"}, {41, "2"}, {78, "1"}, {53, "45"}, {98, "0"}});
    };
    const auto line = [](const char* x, const char* y, const char* endX, const char* endY) {
        return Groups{{72, "1"}, {10, x}, {20, y}, {11, endX}, {21, endY}};
    };
    const Groups edges{{92, "1"}, {93, "1"}};
    const Groups corner = line("0", "0", "4", "0");
    const Groups below{{210, "0"}, {220, "0"}, {230, "-1"}};

    // Lines are joined in whatever direction they run, and a last point that is the first one is none.
    const Imported straight = hatch(edges + corner + line("4", "3", "4", "0") + line("4", "3", "0", "0") +
                                    Groups{{92, "3"},
                                           {72, "0"},
                                           {73, "1"},
                                           {93, "70000"},
                                           {10, "1"},
                                           {20, "1"},
                                           {10, "2"},
                                           {20, "1"},
                                           {10, "2"},
                                           {20, "2"},
                                           {10, "1"},
                                           {20, "1"}});
    EXPECT_TRUE(straight.has(R"({"ints":[3,3]},{"points2d":[[0,0],[4,0],[4,3],[1,1],[2,1],[2,2]]})"));
    EXPECT_TRUE(straight.has(tag("Internal region detection", R"("Outer")")));

    // From behind the pattern's lines, which rise, fall.
    const Imported bent = hatch({{92, "2"}, {10, "1"}, {20, "0"}, {42, "1"}, {10, "3"}, {20, "0"}}, below);
    EXPECT_TRUE(bent.has(R"({"doubles":[-1,0]},{"points2d":[[-1,0],[-3,0]]})"));
    EXPECT_TRUE(bent.has(R"({"double":2},{"double":1.5707963267948966})"));

    // The angles of clockwise arcs are written clockwise.
    const Groups arc{{72, "2"}, {10, "2"}, {20, "0"}, {40, "2"}, {50, "180"}, {51, "360"}, {73, "0"}};
    const Groups loop = edges + corner + arc;
    EXPECT_NE(hatch(loop).head.find(R"("center":[2,0,0],"radius":2,"startAngle":0,"endAngle":3.141592653589793)"),
              std::string::npos);
    EXPECT_NE(hatch(loop, below).head.find(R"("center":[-2,0,0],"radius":2,"startAngle":0,"endAngle":3.14159)"),
              std::string::npos);
    EXPECT_TRUE(hatch(loop).has(R"({"ids":[)"));

    EXPECT_EQ(hatch(edges).accounts.lost.count({"HATCH", "it has no boundary"}), 1U);
}

TEST(DxfBlocks, ComeBehindThoseThatTheyHold)
{
    const Imported result =
        imported(asText(section("BLOCKS", block("Outer", insert("INNER")) + block("Inner", line("2F", "1"))) +
                        section("ENTITIES", insert("outer"))));
    ASSERT_EQ(result.actions.size(), 5U);
    EXPECT_NE(result.actions[0].find("AcDbLine"), std::string::npos);
    EXPECT_NE(result.actions[1].find(tag("Name", "\"Inner\"")), std::string::npos);
    EXPECT_NE(result.actions[2].find(tag("Name", "\"Inner\"")), std::string::npos);
    EXPECT_NE(result.actions[3].find(tag("Name", "\"Outer\"")), std::string::npos);
    EXPECT_NE(result.actions[4].find("AcDbBlockReference"), std::string::npos);
}

TEST(DxfBlocks, ThatHoldThemselvesLoseOnlyThat)
{
    const Imported result = imported(asText(
        section("BLOCKS", block("A", insert("B") + line("2F", "1")) + block("B", insert("A") + line("30", "2"))) +
        section("ENTITIES", insert("A") + insert("Nowhere"))));
    EXPECT_EQ(result.accounts.lost.at({"INSERT", "its block holds itself"}), 1);
    EXPECT_EQ(result.accounts.lost.at({"INSERT", "there is no such block"}), 1);
    EXPECT_EQ(result.accounts.imported.at("INSERT"), 2);
    EXPECT_EQ(result.count("AcDbBlockTableRecord"), 2);
}

TEST(DxfBlocks, OfTheApplicationComeInWhenTheyAreInserted)
{
    const Imported result = imported(asText(
        section("BLOCKS", block("*D1", line("2F", "1")) + block("*U1", line("30", "2")) + block("Anonymous_U1", {})) +
        section("ENTITIES", insert("*U1"))));
    EXPECT_EQ(result.accounts.imported.at("LINE"), 1);
    EXPECT_TRUE(result.accounts.lost.empty());
    EXPECT_EQ(result.count(tag("Name", "\"Anonymous_U1_2\"")), 2);
}

TEST(DxfBlocks, AsArraysAreWrittenOut)
{
    const auto array = [](const char* columns, const char* rows) {
        return imported(
            asText(section("BLOCKS", block("A", line("2F", "1"))) +
                   section("ENTITIES", insert("A", {{50, "90"}, {70, columns}, {71, rows}, {44, "10"}, {45, "100"}}))));
    };
    const Imported six = array("3", "2");
    EXPECT_EQ(six.count("AcDbBlockReference"), 6);
    EXPECT_EQ(six.accounts.imported.at("INSERT"), 1);
    // A quarter turn: columns go up, and rows to the left.
    EXPECT_EQ(six.count(tag("Position X", "-99")) + six.count("\"Position X\",\"value\":-98.9999"), 3);
    EXPECT_EQ(array("32767", "32767").accounts.lost.size(), 1U);
    EXPECT_EQ(array("-5", "0").count("AcDbBlockReference"), 1);
}

TEST(DxfBlocks, HaveAttributesByTheirTags)
{
    const Groups definition{{0, "ATTDEF"}, {2, "Number"}, {10, "0"}, {20, "0"}, {40, "1"}, {70, "0"}};
    const auto attribute = [](const char* name, const char* value) {
        return Groups{{0, "ATTRIB"}, {8, "0"}, {2, name}, {1, value}};
    };
    // The end of the sequence is missing.
    const Imported result = imported(asText(section("BLOCKS", block("A", definition)) +
                                            section("ENTITIES", insert("A", {{66, "1"}}) + attribute("NUMBER", "7") +
                                                                    attribute("Color", "red") + line("2F", "1"))));
    EXPECT_TRUE(result.has(R"({"tag":"Number","value":"7","group":"BlockAttributes"})"));
    EXPECT_EQ(result.accounts.imported.at("ATTRIB"), 1);
    EXPECT_EQ(result.accounts.lost.at({"ATTRIB", "the block defines no such attribute"}), 1);
    EXPECT_EQ(result.accounts.imported.at("LINE"), 1);
}

TEST(DxfOptions, ChooseWhatComesIn)
{
    const std::string file = asText(section("BLOCKS", block("A", line("2F", "1"))) +
                                    section("ENTITIES", line("30", "2") + Groups{{0, "POINT"}, {8, "Walls"}}));
    EXPECT_TRUE(imported(file, {{"WALLS"}, false, 1e-6}).has("AcDbPoint"));
    EXPECT_EQ(imported(file, {{"WALLS"}, false, 1e-6}).count("AcDbLine"), 1);
    EXPECT_FALSE(imported(file, {{}, true, 1e-6}).has("AcDbPoint"));
    EXPECT_TRUE(imported(file, {{}, true, 1e-6}).has("AcDbBlockTableRecord"));
}
