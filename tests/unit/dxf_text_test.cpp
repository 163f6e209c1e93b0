// Bytes of a drawing's values as texts.

#include "dxf/TextDecoder.h"

#include <gtest/gtest.h>

#include <random>

using namespace inkmacro::dxf;

namespace {

struct Case
{
    const char* page;
    std::string_view bytes;
    std::string text;
    int undecodable = 0;
};

void expectTexts(std::initializer_list<Case> cases)
{
    for (const Case& each : cases) {
        TextDecoder decoder(each.page);
        EXPECT_EQ(decoder.text(each.bytes).toStdString(), each.text) << each.page << ": " << each.bytes;
        EXPECT_EQ(decoder.undecodable(), each.undecodable) << each.page << ": " << each.bytes;
    }
}

TEST(DxfTexts, AreInTheCodePageOfTheHeader)
{
    for (const char* page : {"", "ANSI_1252", "ansi_1252", "ASCII", "windows-1252"})
        expectTexts({{page, "\x80 \xE4\xFF \x9F", "€ äÿ Ÿ"}});
    expectTexts({
        {"ANSI_1251", "\xCF\xEB\xE0\xED", "План"},
        {"ANSI_1253", "\xD3\xF7", "Σχ"},
        {"dos850", "\x81\xF8", "ü°"},
        {"DOS866", "\x8F\xAB", "Пл"},
        {"MAC-ROMAN", "\x8A\xA1", "ä°"},
        {"ISO8859-2", "\xA3", "Ł"},
        {"8859_5", "\xBF", "П"},
        {"ansi_932", "\x90\x7D\x96\xCA \xB1", "図面 ｱ"},
        {"dos932", "\x90\x7D\x96\xCA", "図面"},
        {"GB2312", "\xCD\xBC\xD6\xBD", "图纸"},
        {"ANSI_936", "\xCD\xBC\xD6\xBD", "图纸"},
        {"ANSI_949", "\xB5\xB5\xB8\xE9", "도면"},
        {"BIG5", "\xB9\xCF\xAF\xC8", "圖紙"},
        {"utf8", "Größe 図面 \xF0\x9F\x98\x80", "Größe 図面 😀"},
        // An accent behind its letter is one with it.
        {"ANSI_1258", "a\xD2", "ả"},
    });

    EXPECT_TRUE(TextDecoder("ANSI_1361").isKnown());
    TextDecoder unknown("KLINGON_7");
    EXPECT_FALSE(unknown.isKnown());
    EXPECT_EQ(unknown.text("\xE4"), "ä");
    EXPECT_EQ(TextDecoder().text("Größe"), "Größe");
}

TEST(DxfTexts, AreTakenForWhatTheyAreWhereABackslashIsHalfACharacter)
{
    // 表 is 0x95 0x5C: no escape begins in it.
    expectTexts({
        {"ANSI_932", "\x95\\U+0041", "表U+0041"},
        {"ANSI_932", "\x95\\\\U+0041", "表A"},
        {"ANSI_950", "\xB3\\P", "許P"},
        // The page of Johab has the Won sign there, whatever stands beside it.
        {"ANSI_1361", "\\P", "\\P"},
        {"ANSI_1361", "\x88\x61\\P", "가\\P"},
    });
}

TEST(DxfTexts, HaveTheirEscapesDecoded)
{
    expectTexts({
        {"", "\\U+00B0 \\U+00e4 \\u+4E2D", "° ä 中"},
        {"", "\\U+D83D\\U+DE00", "😀"},
        // Text in escapes is not looked at again.
        {"", "\\U+005CU+0041", "\\U+0041"},
        {"", "\\M+1907D \\M+2B9CF \\M+3B5B5 \\M+48861 \\M+5CDBC \\M+100B1", "図 圖 도 가 图 ｱ"},
        {"ANSI_1251", "\xCF\\M+1907D^I\\U+00B0", "П図\t°"},
        {"", "a^Ib^Jc^Md^ Ie", "a\tb\nc\rd^Ie"},
    });
    // What is no escape stays.
    for (const char* text : {"\\U+", "\\U+00B", "\\U+00G0", "\\U00B0", "\\U+0x41", "\\M+", "\\M+1907", "\\M+0907D",
                             "\\M+6907D", "\\MX190 7D", "\\", "^", "^i", "^A", "x^2", "\\P{\\fArial|b0;a}", "%%c"})
        expectTexts({{"", text, text}});
}

TEST(DxfTexts, CountTheBytesThatAreNoText)
{
    expectTexts({
        {"", "a\x81\x8D\x8F\x90\x9D", "a\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD", 5},
        {"utf8", "a\xC3", "a\uFFFD", 1},
        {"utf8", "\xC3(\xE5\x9B", "\uFFFD(\uFFFD\uFFFD", 3},
        // Halves of surrogate pairs, numbers beyond the last character, and more bytes than needed.
        {"utf8", "\xED\xA0\x80", "\uFFFD\uFFFD\uFFFD", 3},
        {"utf8", "\xF4\x90\x80\x80", "\uFFFD\uFFFD\uFFFD\uFFFD", 4},
        {"utf8", "\xC0\x80", "\uFFFD\uFFFD", 2},
        {"utf8", "\xEF\xBF\xBD", "\uFFFD"},
        {"ANSI_932", "\x95", "\uFFFD", 1},
        {"ANSI_1258", "a\xD2z\x8A", "ảz\uFFFD", 1},
        {"", "\\U+D83Dx\\U+DE00\\U+D83D", "\uFFFDx\uFFFD\uFFFD", 3},
        {"", "\\U+D83D\\U+D83D\\U+DE00", "\uFFFD😀", 1},
        {"", "\\M+1FFFF", "\uFFFD\uFFFD", 2},
        {"", std::string_view("a\0b", 3), "a\uFFFDb", 1},
        {"", "\\U+0000", "\uFFFD", 1},
    });

    TextDecoder all;
    all.text("\xFF");
    all.text("fine");
    all.text("\xFE\xFF");
    EXPECT_EQ(all.undecodable(), 3);
}

TEST(DxfTexts, ComeOfWhateverBytes)
{
    std::mt19937 random(25);
    // Often what means something, in every place of a long text.
    const std::string pieces = std::string("\\\\\\UMum+++0015DdF8^^IJ \x81\x95\xE5\xF0\xFF") + '\0';
    for (const char* page : {"", "utf8", "ANSI_932", "ANSI_950", "ANSI_949", "ANSI_1361", "ANSI_936", "ANSI_1255",
                             "ANSI_1258", "dos437"}) {
        TextDecoder decoder(page);
        for (int i = 0; i < 500; ++i) {
            std::string bytes(random() % 700, ' ');
            for (char& c : bytes)
                c = random() % 4 ? pieces[random() % pieces.size()] : char(random() % 256);
            const qint64 before = decoder.undecodable();
            const QString text = decoder.text(bytes);
            EXPECT_EQ(text.count(QChar(QChar::ReplacementCharacter)), decoder.undecodable() - before);
            EXPECT_FALSE(text.contains(QChar(0)));
            EXPECT_EQ(QString::fromUtf8(text.toUtf8()), text);
        }
    }
}

} // namespace
