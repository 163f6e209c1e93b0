// How texts stand in repaired macros, and how statements at fault are marked in all others.

#include "TestActions.h"
#include "TestRepair.h"
#include "TestTarget.h"
#include "targets/Fault.h"
#include "targets/Marks.h"
#include "targets/Phrase.h"
#include "targets/quoting.h"

#include <QStringList>

using namespace inkmacro;

namespace {

std::string shownTarget(Target target)
{
    return "target " + std::to_string(static_cast<int>(target));
}

TEST(Quoting, EscapesAsTheLanguageDoes)
{
    struct Case
    {
        QString text;
        TestTexts expected; ///< C++, C++ COM, C#, JavaScript, VB.NET, VBA
    };
    const Case cases[] = {
        {"", {"", "", "", "", "", ""}},
        {"50%1 #", {"50%1 #", "50%1 #", "50%1 #", "50%1 #", "50%1 #", "50%1 #"}},
        {R"(a"b)", {R"(a\"b)", R"(a\"b)", R"(a\"b)", R"(a\"b)", R"(a""b)", R"(a""b)"}},
        {R"(C:\n\)", {R"(C:\\n\\)", R"(C:\\n\\)", R"(C:\\n\\)", R"(C:\\n\\)", R"(C:\n\)", R"(C:\n\)"}},
        {"it's", {"it's", "it's", "it's", R"(it\'s)", "it's", "it's"}},
        {"</script>", {"</script>", "</script>", "</script>", R"(\x3C/script>)", "</script>", "</script>"}},
        {"a<b", {"a<b", "a<b", "a<b", "a<b", "a<b", "a<b"}},
        {"what?\?/", {R"(what?\?/)", R"(what?\?/)", "what?\?/", "what?\?/", "what?\?/", "what?\?/"}},
        {"\n1", {R"(\n1)", R"(\n1)", R"(\n1)", R"(\n1)", R"(" & vbLf & "1)", R"(" & vbLf & "1)"}},
        {"\x01"
         "1",
         {R"(\0011)", R"(\0011)", R"(\u00011)", R"(\u00011)", R"(" & ChrW(1) & "1)", R"(" & ChrW(1) & "1)"}},
        {QString(QChar(0x2028)),
         {"\u2028", "\u2028", R"(\u2028)", R"(\u2028)", R"(" & ChrW(8232) & ")", R"(" & ChrW(8232) & ")"}},
        {QString(QChar(0x201C)), {"\u201C", "\u201C", "\u201C", "\u201C", R"(" & ChrW(8220) & ")", "\u201C"}},
    };
    for (const Case& one : cases)
        for (const Target target : allTargets) {
            QString out = "x";
            appendQuoted(out, one.text, target);
            EXPECT_EQ(out, "x" + QString(one.expected.in(target))) << shownTarget(target);
        }
}

TEST(Quoting, TellsTextsThatBreakTheirQuotes)
{
    struct Case
    {
        const char* text;
        bool cpp, csharp, javascript, vbNet, vba;
    };
    const Case cases[] = {
        {"plain", false, false, false, false, false},
        {"it's", false, false, false, false, false},
        {R"(C:\\plan\n)", false, false, false, false, false}, // doubled before
        {R"(C:\temp)", true, true, true, false, false},
        {R"(end\)", true, true, true, false, false},
        {R"(end\\")", true, true, true, true, true},
        {"\n", true, true, true, true, true},
        {R"(a" & vbLf & "b)", true, true, true, false, false}, // replaced before in Basic
        {"?\?/", true, false, false, false, false},
        {"</script>", false, false, true, false, false},
        {"\u201D", false, false, false, true, false},
    };
    for (const Case& one : cases) {
        const QString text(one.text);
        EXPECT_EQ(breaksQuotes(text, Target::Cpp), one.cpp) << one.text;
        EXPECT_EQ(breaksQuotes(text, Target::CppCom), one.cpp) << one.text;
        EXPECT_EQ(breaksQuotes(text, Target::CSharp), one.csharp) << one.text;
        EXPECT_EQ(breaksQuotes(text, Target::JavaScript), one.javascript) << one.text;
        EXPECT_EQ(breaksQuotes(text, Target::VbNet), one.vbNet) << one.text;
        EXPECT_EQ(breaksQuotes(text, Target::Vba), one.vba) << one.text;
    }
}

TEST(Quoting, MakesLegalNames)
{
    const std::pair<const char*, const char*> cases[] = {
        {"plate_2", "plate_2"},     {"a b-c", "a_b_c"},   {"gr\u00F6\u00DFe", "gr__e"}, {"1st", "macro_1st"},
        {"_x", "macro__x"},         {"", "macro_"},       {"Class", "Class_macro"},     {"elseIf", "elseIf_macro"},
        {"StdAfx", "StdAfx_macro"}, {"class1", "class1"},
    };
    for (const auto& [name, expected] : cases)
        EXPECT_EQ(legalName(name), expected) << name;
}

QString filled(const char* literal, const QStringList& values, const FillMode& mode)
{
    const Template words(literal, mode.target);
    Fill fill = Fill(&words).with(mode);
    for (const QString& value : values)
        fill.text(value);
    return fill;
}

TEST(RepairedFill, EscapesBetweenQuotesOnlyAndReadsNoMarkers)
{
    struct Case
    {
        Target target;
        const char* literal;
        QStringList values;
        const char* expected;
    };
    const Case cases[] = {
        {Target::CSharp, R"(%1f( "%3", %4 );%2)", {"", "\n", "%4\"", "b\"%9"}, "f( \"%4\\\"\", b\"%9 );\n"},
        {Target::CSharp, R"(f( "a\"%1" + %1 ))", {"\""}, R"(f( "a\"\"" + " ))"},
        {Target::CSharp, R"(f( "\\", %1, '"', %2 ))", {"\"", "\\"}, R"(f( "\\", ", '"', \ ))"},
        {Target::CSharp, R"(// isn't "it%1f( "%2" );)", {"\n", "\""}, "// isn't \"it\nf( \"\\\"\" );"},
        {Target::Cpp, R"(f( L"%2%1" ))", {"\\", "%1"}, R"(f( L"%1\\" ))"},
        {Target::JavaScript, R"(f( '%1', %2 ))", {"it's", "'"}, R"(f( 'it\'s', ' ))"},
        {Target::VbNet, R"(f( "a""%1", %2 ))", {"\"", "\""}, R"(f( "a""""", " ))"},
        {Target::VbNet, R"(' isn't%1f( "%2" ))", {"\n", "\""}, "' isn't\nf( \"\"\"\" )"},
        {Target::Vba, R"(f "it's", %1, "%2")", {"\"", "\""}, R"(f "it's", ", """")"},
        {Target::Vba, R"(f "C:\" & "%1" & %2)", {"\\\"", "\""}, R"(f "C:\" & "\""" & ")"},
        // A value without a marker is dropped, a marker without a value stays.
        {Target::Vba, R"(f "%1")", {"%2", "3"}, R"(f "%2")"},
        {Target::Vba, R"(f "%1", %2)", {"%2"}, R"(f "%2", %2)"},
    };
    for (const Case& one : cases)
        EXPECT_EQ(filled(one.literal, one.values, {one.target, true}), one.expected) << one.literal;
}

TEST(FaithfulFill, MarksTextsAtFaultAndChangesNothingElse)
{
    struct Case
    {
        Target target;
        const char* literal;
        QStringList values;
        bool marked;
    };
    const Case cases[] = {
        {Target::CSharp, R"(f( "%1", %2 );)", {"a", "b"}, false},
        {Target::CSharp, R"(f( "%1", %2 );)", {"a\"", "b"}, true},
        {Target::CSharp, R"(f( "%1", %2 );)", {"a", "b\""}, false},
        {Target::CSharp, R"(f( "%1", %2 );)", {"C:\\temp", "b"}, true},
        {Target::Vba, R"(f "%1", %2)", {"C:\\temp", "b"}, false},
        {Target::JavaScript, R"(f( "%1" );)", {"it's"}, false},
        // A later value stands in the text's marker.
        {Target::CSharp, R"(f( %1, %2 );)", {"50%2", "b"}, true},
        {Target::CSharp, R"(f( %1, %2 );)", {"50%1", "b"}, true},
        {Target::CSharp, R"(f( %1 );)", {"50%9", "b"}, true},
        // No later value does: it takes the lower marker, or there is none.
        {Target::CSharp, R"(f( %1, %2 );)", {"50%9", "b"}, false},
        {Target::CSharp, R"(f( %1, %2 );)", {"a", "50%9"}, false},
        {Target::CSharp, R"(f( %1, %2 );)", {"50%", "b"}, false},
        {Target::CSharp, R"(f( %1 );)", {"50%1"}, false},
    };
    for (const Case& one : cases) {
        bool marked = false;
        QString outcome = filled(one.literal, one.values, {one.target, false, &marked});
        const bool found = takeMarks(outcome) > 0;
        QString expected(one.literal);
        for (const QString& value : one.values)
            if (expected.contains('%'))
                expected = expected.arg(value);
        const std::string shown = std::string(one.literal) + " with " + one.values.join(" | ").toStdString();
        EXPECT_EQ(outcome, expected) << shown;
        EXPECT_EQ(found, one.marked) << shown;
        EXPECT_EQ(marked, one.marked) << shown;
        EXPECT_EQ(filled(one.literal, one.values, {one.target}), expected) << shown;
    }
}

TEST(ShortNumbers, KeepTheirDigitsInRepairedMacrosAndAreMarkedInOthers)
{
    struct Case
    {
        double value;
        const char* faithful;
        const char* repaired; ///< null: the same
    };
    const Case cases[] = {
        {0.5, "0.5", nullptr},
        {1e6, "1e+06", nullptr},
        {-0.0, "0", nullptr},
        {1e-20, "1e-20", nullptr},
        {1.23456789e-12, "1.23457e-12", nullptr}, // the long form has less of it
        {1234567, "1.23457e+06", "1234567.00000000000000"},
        {-3.14159265358979, "-3.14159", "-3.14159265358979"},
    };
    const Template words("f( %1 );", Target::CSharp);
    for (const auto& [value, faithful, repaired] : cases) {
        bool marked = false;
        QString outcome = Fill(&words).with({Target::CSharp, false, &marked}).shortReal(value);
        EXPECT_EQ(takeMarks(outcome) > 0, repaired != nullptr) << value;
        EXPECT_EQ(marked, repaired != nullptr) << value;
        EXPECT_EQ(outcome, QString("f( %1 );").arg(faithful)) << value;
        const QString mended = Fill(&words).with({Target::CSharp, true}).shortReal(value);
        EXPECT_EQ(mended, QString("f( %1 );").arg(repaired ? repaired : faithful)) << value;
    }
    // A value that no marker takes is not at fault.
    bool marked = false;
    const QString dropped = Fill(&words).with({Target::CSharp, false, &marked}).shortReal(1).shortReal(1.23456789);
    EXPECT_EQ(dropped, "f( 1 );");
    EXPECT_FALSE(marked);
}

TEST(Marks, NeitherMakeNorBreakMarkers)
{
    const char* const texts[] = {"",   " ",  "  ",  "%",   "%1",  "5",     "L",     "%L",   "L5",   "x",
                                 "%x", "x%", "5 x", "  5", "5  ", "%1 %2", "\n%3;", "%%2x", "L%\n", "12(%"};
    const char* const outers[] = {"%1",     "%1%2",   "%%1%2", "%%1",  "%L%1%2", "%%L%1", "%1%12",
                                  "%13 %2", "%2%15L", "5%15",  "%3%1", "%2(%1)", "%1%1"};
    const auto fill = [](const QString& outer, const QString& text) {
        QString filled = outer;
        for (const QString& value : {text, QString("b"), QString("7")})
            filled = filled.arg(value);
        return filled;
    };
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    for (const Mark& mark : {Mark{Mark::Kind::Fault, 0}, Mark{Mark::Kind::Later, (1U << 30) - 1}})
        for (const char* const text : texts) {
            QString statement(text);
            insertMark(statement, mark);
            const auto found = Mark::find(statement, 0);
            if (found) {
                EXPECT_EQ(found->mark.kind, mark.kind);
                EXPECT_EQ(found->mark.number, mark.number);
            }
            QString without = statement;
            EXPECT_EQ(takeMarks(without), found ? 1 : 0);
            EXPECT_EQ(without, text);
            for (const char* const outer : outers) {
                QString made = fill(outer, statement);
                takeMarks(made);
                EXPECT_EQ(made, fill(outer, text)) << '"' << text << "\" in \"" << outer << '"';
            }
            // As words that are filled themselves.
            QString made = fill(statement, "a");
            takeMarks(made);
            EXPECT_EQ(made, fill(text, "a")) << text;
        }
    qInstallMessageHandler(nullptr);

    for (QString statement : {QString("x"), QString("%1x = %2;"), QString("    f();\n"), QString("5 + %1")}) {
        insertMark(statement, {Mark::Kind::Fault, 3});
        EXPECT_TRUE(Mark::find(statement, 0)) << statement.toStdString();
    }
}

TEST(Writer, TakesMendedWordsOrMarksTheFaithful)
{
    const Phrase phrase("EmitTest", {.csharp = "%1f( %3 );%2", .vba = "%1f%2"});
    const Mend mended(phrase, Target::CSharp, "f is called g", "%1g( %3, %4 );%2");
    const Mend leftOut(phrase, Target::Vba, "there is no f", nullptr);
    const auto statement = [&](TestTarget& made) { return made.writer.fill(phrase).number(3).number(4).str(); };

    TestTarget quiet(Target::CSharp);
    EXPECT_EQ(statement(quiet), " f( 3 );\n");
    quiet.writer.noteFaults();
    QString marked = statement(quiet);
    const auto found = Mark::find(marked, 0);
    ASSERT_TRUE(found);
    EXPECT_EQ(Fault::all().at(found->mark.number), &mended);
    EXPECT_EQ(takeMarks(marked), 1);
    EXPECT_EQ(marked, " f( 3 );\n");

    const TestRepair repair;
    TestTarget csharp(Target::CSharp);
    TestTarget vba(Target::Vba);
    csharp.writer.noteFaults();
    EXPECT_EQ(statement(csharp), " g( 3, 4 );\n");
    EXPECT_EQ(statement(vba), "");
}

TEST(Writer, MarksStatementsAtFaultOnlyWhereFaultsAreNoted)
{
    const Fault fault("EmitTest", {Target::CSharp}, "a test");
    TestTarget faithful(Target::CSharp);
    EXPECT_EQ(faithful.writer.faulty("f();", fault), "f();");
    faithful.writer.noteFaults();
    QString marked = faithful.writer.faulty("f();", fault);
    EXPECT_EQ(takeMarks(marked), 1);
    EXPECT_EQ(marked, "f();");
    EXPECT_EQ(faithful.writer.faulty("", fault), "");

    const TestRepair repair;
    TestTarget repaired(Target::CSharp);
    repaired.writer.noteFaults();
    EXPECT_EQ(repaired.writer.faulty("f();", fault), "f();");
}

// Behind a polyline's or a viewport's own action a command has no block.
TEST(RepairedCommand, HasItsDeclarationsWithoutABlockToo)
{
    const TestTarget host(Target::CSharp);
    for (const std::int32_t kind : {16, 46}) {
        const CFxActionArray actions{command({addedLine(1), odrxNew<TestCustom>(kind)})};
        TestConversion conversion;
        ASSERT_EQ(conversion.run(actions), kFxSuccess);
        EXPECT_TRUE(conversion.macro().contains(" line1 = "));
        EXPECT_FALSE(conversion.macro().contains("Line line1;"));

        const TestRepair repair;
        ASSERT_EQ(conversion.run(actions), kFxSuccess);
        const QByteArray macro = conversion.macro();
        EXPECT_EQ(macro.count("Line line1;"), 1);
        EXPECT_LT(macro.indexOf("Line line1;"), macro.indexOf(" line1 = "));
    }
}

} // namespace
