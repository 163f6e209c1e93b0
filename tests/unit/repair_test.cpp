// How texts stand in repaired macros, and how faults of statements are noted in all others.

#include "TestActions.h"
#include "TestDrawing.h"
#include "TestRepair.h"
#include "TestTarget.h"
#include "objects/targets/dimensionOptions.h"
#include "statements/Fault.h"
#include "statements/Phrase.h"
#include "statements/quoting.h"
#include "statements/wording.h"

#include <QStringList>

#include <algorithm>

using namespace inkmacro;

namespace {

std::string shownTarget(Target target)
{
    return "target " + std::to_string(static_cast<int>(target));
}

/// Of the last conversion.
int timesNoted(const char* reason)
{
    std::size_t times = 0;
    for (const CFxFaultNote& note : GetFxSystemServices()->Notes().GetFaults())
        if (note.reason.toQString() == QLatin1String(reason))
            times += note.lines.size();
    return static_cast<int>(times);
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
        {R"(a"b)", {R"(a\042b)", R"(a\042b)", R"(a\u0022b)", R"(a\u0022b)", R"(a""b)", R"(a""b)"}},
        {R"(C:\n\)",
         {R"(C:\134n\134)", R"(C:\134n\134)", R"(C:\u005cn\u005c)", R"(C:\u005cn\u005c)", R"(C:\n\)", R"(C:\n\)"}},
        {"it's", {"it's", "it's", "it's", R"(it\u0027s)", "it's", "it's"}},
        {"</b>", {R"(\074/b>)", R"(\074/b>)", R"(\u003c/b>)", R"(\u003c/b>)", "</b>", "</b>"}},
        {"what?\?/", {R"(what?\077/)", R"(what?\077/)", "what?\?/", "what?\?/", "what?\?/", "what?\?/"}},
        {"\n1", {R"(\0121)", R"(\0121)", R"(\u000a1)", R"(\u000a1)", R"(" & vbLf & "1)", R"(" & vbLf & "1)"}},
        {"\x01"
         "1",
         {R"(\0011)", R"(\0011)", R"(\u00011)", R"(\u00011)", R"(" & ChrW(1) & "1)", R"(" & ChrW(1) & "1)"}},
        {QString(QChar(0x2028)),
         {"\u2028", "\u2028", R"(\u2028)", R"(\u2028)", R"(" & ChrW(8232) & ")", R"(" & ChrW(8232) & ")"}},
        // Letters stay readable but in VBA, where those beyond 16 bits are two; in VB.NET but for bytes like quotes.
        {"gr\u00FC\u00DF \U0001F600\n",
         {"gr\u00FC\u00DF \U0001F600\\012", "gr\u00FC\u00DF \U0001F600\\012", "gr\u00FC\u00DF \U0001F600\\u000a",
          "gr\u00FC\u00DF \U0001F600\\u000a", "gr\u00FC\u00DF \U0001F600\" & vbLf & \"",
          R"(gr" & ChrW(252) & ChrW(223) & " " & ChrW(55357) & ChrW(56832) & vbLf & ")"}},
        {"\u0414\u201C",
         {"\u0414\u201C", "\u0414\u201C", "\u0414\u201C", "\u0414\u201C", R"(" & ChrW(1044) & ChrW(8220) & ")",
          R"(" & ChrW(1044) & ChrW(8220) & ")"}},
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
        const char* written;
        const char* meant; ///< null: what is written
        bool cpp, csharp, javascript, vbNet, vba;
    };
    const Case cases[] = {
        {"plain", nullptr, false, false, false, false, false},
        {"it's", nullptr, false, false, false, false, false},
        {R"(C:\\plan\n)", "C:\\plan\n", false, false, false, true, true},
        {R"(C:\\new)", "C:\\new", false, false, false, true, true},
        {R"(C:\new)", nullptr, true, true, true, false, false},
        {R"(C:\\new)", nullptr, true, true, true, false, false},
        {R"(C:\temp)", nullptr, true, true, true, false, false},
        {R"(end\)", nullptr, true, true, true, false, false},
        {R"(end\\")", "end\\\"", true, true, true, true, true},
        {"\n", nullptr, true, true, true, true, true},
        {R"(a" & vbLf & "b)", "a\nb", true, true, true, false, false},
        {R"(a" & vbLf & "b)", nullptr, true, true, true, true, true},
        {"?\?/", nullptr, true, false, false, false, false},
        {"</script>", nullptr, false, false, true, false, false},
        {"\u201D", nullptr, false, false, false, true, false},
    };
    for (const Case& one : cases) {
        const QString written(one.written);
        const QString meant = one.meant ? QString(one.meant) : written;
        EXPECT_EQ(breaksQuotes(written, meant, Target::Cpp), one.cpp) << one.written;
        EXPECT_EQ(breaksQuotes(written, meant, Target::CppCom), one.cpp) << one.written;
        EXPECT_EQ(breaksQuotes(written, meant, Target::CSharp), one.csharp) << one.written;
        EXPECT_EQ(breaksQuotes(written, meant, Target::JavaScript), one.javascript) << one.written;
        EXPECT_EQ(breaksQuotes(written, meant, Target::VbNet), one.vbNet) << one.written;
        EXPECT_EQ(breaksQuotes(written, meant, Target::Vba), one.vba) << one.written;
    }
}

TEST(Quoting, KnowsTheNamesOfEachTarget)
{
    using enum NameFlaw;
    struct Case
    {
        const char* name;
        NameFlaw csharp, vbNet, cppCom;
    };
    const Case cases[] = {
        {"plate_2", None, None, None},
        {"line", None, None, None},
        {"Line", HidesType, None, None},
        {"class", Keyword, Keyword, None},
        {"Class", None, Keyword, None},
        {"gr\u00F6\u00DFe", None, None, NoIdentifier},
        {"dim", None, Keyword, None},
        {"1st", NoIdentifier, NoIdentifier, NoIdentifier},
        {"a b", NoIdentifier, NoIdentifier, NoIdentifier},
        {"_", None, NoIdentifier, None},
        {"Console", HidesType, HidesType, None},
        {"console", None, HidesType, None},
        {"Run", NamesOther, None, None},
        {"module1", None, NamesOther, None},
        {"", NoIdentifier, NoIdentifier, NoIdentifier},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(flawOf(one.name, Target::CSharp), one.csharp) << one.name;
        EXPECT_EQ(flawOf(one.name, Target::VbNet), one.vbNet) << one.name;
        EXPECT_EQ(flawOf(one.name, Target::CppCom), one.cppCom) << one.name;
    }
}

TEST(Quoting, MakesLegalNames)
{
    const std::pair<const char*, const char*> cases[] = {
        {"plate_2", "plate_2"},
        {"a b-c", "a_b_c"},
        {"gr\u00F6\u00DFe", "gr__e"},
        {"1st", "macro_1st"},
        {"_x", "macro__x"},
        {"", "macro_"},
        {"Class", "Class_macro"},
        {"elseIf", "elseIf_macro"},
        {"StdAfx", "StdAfx_macro"},
        {"class1", "class1"},
        {"DispatchWrapper", "DispatchWrapper_macro"},
        {"Model", "Model_macro"},
    };
    for (const auto& [name, expected] : cases)
        EXPECT_EQ(legalName(name), expected) << name;
}

/// A value of a statement.
struct Value
{
    QString words;
    bool isText = false; ///< one of the user's, which stands between quotes
};

Value text(const char* words)
{
    return {words, true};
}

Value word(const char* words)
{
    return {words, false};
}

Statement filled(const char* literal, const std::vector<Value>& values, const FillMode& mode)
{
    const Template words(literal,
                         mode.target == Target::Python ? Template::Markers::Counted : Template::Markers::Ranked);
    Fill fill = Fill(&words, mode);
    for (const Value& value : values)
        value.isText ? fill.text(value.words) : fill.word(value.words);
    return fill;
}

TEST(RepairedFill, EscapesTextsOnlyAndReadsNoMarkers)
{
    struct Case
    {
        Target target;
        const char* literal;
        std::vector<Value> values;
        const char* expected;
    };
    const Case cases[] = {
        {Target::CSharp,
         R"(%1f( "%3", %4 );%2)",
         {word(""), word("\n"), text("%4\""), word("b\"%9")},
         "f( \"%4\\u0022\", b\"%9 );\n"},
        {Target::CSharp, R"(f( "a\"%1", "%1" ))", {text("\"")}, R"(f( "a\"\u0022", "\u0022" ))"},
        {Target::Cpp, R"(f( L"%2%1" ))", {text("\\"), text("%1")}, R"(f( L"%1\134" ))"},
        {Target::JavaScript, R"(f( '%1', %2 ))", {text("it's"), word("'")}, R"(f( 'it\u0027s', ' ))"},
        {Target::VbNet, R"(f( "a""%1", %2 ))", {text("\""), word("\"")}, R"(f( "a""""", " ))"},
        {Target::Vba, R"(f "C:\" & "%1" & %2)", {text("\\\""), word("\"")}, R"(f "C:\" & "\""" & ")"},
        {Target::Python, R"(f(%1, %3))", {text("a\"b"), text("left out"), word("x")}, R"(f('a"b', x))"},
        // A value without a marker is dropped, a marker without a value stays.
        {Target::Vba, R"(f "%1")", {text("%2"), word("3")}, R"(f "%2")"},
        {Target::Vba, R"(f "%1", %2)", {text("%2")}, R"(f "%2", %2)"},
    };
    for (const Case& one : cases)
        EXPECT_EQ(filled(one.literal, one.values, {one.target, true}), one.expected) << one.literal;
}

TEST(FaithfulFill, NotesTextsAtFaultAndChangesNothingElse)
{
    struct Case
    {
        Target target;
        const char* literal;
        std::vector<Value> values;
        bool noted;
    };
    const Case cases[] = {
        {Target::CSharp, R"(f( "%1", %2 );)", {text("a"), word("b")}, false},
        {Target::CSharp, R"(f( "%1", %2 );)", {text("a\""), word("b")}, true},
        {Target::CSharp, R"(f( "%1", %2 );)", {text("a"), word("b\"")}, false},
        {Target::CSharp, R"(f( "%1", %2 );)", {text("C:\\temp"), word("b")}, true},
        {Target::Vba, R"(f "%1", %2)", {text("C:\\temp"), word("b")}, false},
        {Target::JavaScript, R"(f( "%1" );)", {text("it's")}, false},
        // A later value stands in the text's marker.
        {Target::CSharp, R"(f( %1, %2 );)", {word("50%2"), word("b")}, true},
        {Target::CSharp, R"(f( %1, %2 );)", {word("50%1"), word("b")}, true},
        {Target::CSharp, R"(f( %1 );)", {word("50%9"), word("b")}, true},
        // No later value does: it takes the lower marker, or there is none.
        {Target::CSharp, R"(f( %1, %2 );)", {word("50%9"), word("b")}, false},
        {Target::CSharp, R"(f( %1, %2 );)", {word("a"), word("50%9")}, false},
        {Target::CSharp, R"(f( %1, %2 );)", {word("50%"), word("b")}, false},
        {Target::CSharp, R"(f( %1 );)", {word("50%1")}, false},
    };
    for (const Case& one : cases) {
        const Statement outcome = filled(one.literal, one.values, {one.target, false, true});
        QString expected(one.literal);
        std::string shown = std::string(one.literal) + " with";
        for (const Value& value : one.values) {
            shown += " | " + value.words.toStdString();
            if (expected.contains('%'))
                expected = expected.arg(value.words);
        }
        EXPECT_EQ(outcome, expected) << shown;
        EXPECT_EQ(outcome.hasNotes(), one.noted) << shown;
        EXPECT_EQ(filled(one.literal, one.values, {one.target}), expected) << shown;
    }
}

TEST(ShortNumbers, KeepTheirDigitsInRepairedMacrosAndAreNotedInOthers)
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
    const Template words("f( %1 );");
    for (const auto& [value, faithful, repaired] : cases) {
        const Statement outcome = Fill(&words, {Target::CSharp, false, true}).shortReal(value);
        EXPECT_EQ(outcome.hasNotes(), repaired != nullptr) << value;
        EXPECT_EQ(outcome, QString("f( %1 );").arg(faithful)) << value;
        const QString mended = textOf(Fill(&words, {Target::CSharp, true}).shortReal(value));
        EXPECT_EQ(mended, QString("f( %1 );").arg(repaired ? repaired : faithful)) << value;
    }
    // A value that no marker takes is not at fault.
    const Statement dropped = Fill(&words, {Target::CSharp, false, true}).shortReal(1).shortReal(1.23456789);
    EXPECT_EQ(dropped, "f( 1 );");
    EXPECT_FALSE(dropped.hasNotes());
}

TEST(StatementNotes, StayWithTheTextBehindThem)
{
    const Fault fault("EmitTest", {Target::CSharp}, "a test");
    // The letter that has the note is in no other text.
    const char* const texts[] = {"#", "  #", "\n # ", "#%1", "#%2", "%1#", "%2 #%3", "5#", "#5%L2"};
    const char* const outers[] = {"%1",      "%1%2",  "%%1%2", "%L%1%2", "%1%12", "%13 %2",    "%2%15L",
                                  "%3%1%1%", "%2(%1", "%1%1",  "%2",     "x",     "%1\n%2\n%1"};
    for (const char* const text : texts)
        for (const char* const outer : outers)
            for (const QString& other : {QString("b"), QString("%3 7"), QString()})
                for (const bool repairs : {false, true}) {
                    const QString shown = QString(text) + " in " + outer + " with " + other;
                    const Template words(outer);
                    const Statement noted(text, {{QString(text).indexOf('#'), &fault}});
                    const Statement outcome =
                        Fill(&words, {Target::CSharp, repairs}).word(noted).word(other).word(QString("c")).str();
                    QString plain(outer);
                    for (const QString& value : {QString(text), other, QString("c")})
                        if (plain.contains('%'))
                            plain = plain.arg(value);
                    if (!repairs && plain.contains('#')) {
                        EXPECT_EQ(outcome, plain) << shown.toStdString();
                    }
                    EXPECT_EQ(outcome.notes().size(), outcome.text().count('#')) << shown.toStdString();
                    for (const StatementNote& note : outcome.notes())
                        EXPECT_EQ(outcome.text().mid(note.offset, 1), "#") << shown.toStdString();
                }
}

TEST(StatementNotes, StandWhereTheTextOfTheirStatementBegins)
{
    const Fault fault("EmitTest", {Target::CSharp}, "a test");
    const Fault outerFault("EmitTest", {Target::CSharp}, "another test");
    Statement inner(QString("\n  g();\n"));
    inner.addFault(fault);
    Statement statements = QString("    f();\n") + inner;
    statements.addFault(outerFault);
    ASSERT_EQ(statements.notes().size(), 2U);
    EXPECT_EQ(statements.notes()[0].offset, 4);
    EXPECT_EQ(std::get<const Fault*>(statements.notes()[0].what), &outerFault);
    EXPECT_EQ(statements.text().mid(statements.notes()[1].offset), "g();\n");
    statements.prepend(QString("h();\n"));
    EXPECT_EQ(statements.text().mid(statements.notes()[1].offset), "g();\n");
    statements.cut(5, 1);
    EXPECT_EQ(statements.text().mid(statements.notes()[1].offset), "g();");
}

TEST(Writer, TakesMendedWordsOrNotesTheFaultOfTheFaithful)
{
    const Phrase phrase("EmitTest", {.csharp = "%1f( %3 );%2", .vba = "%1f%2"});
    const Mend mended(phrase, Target::CSharp, "f is called g", "%1g( %3, %4 );%2");
    const Mend leftOut(phrase, Target::Vba, "there is no f", nullptr);
    const auto statement = [&](TestTarget& made) { return made.writer.fill(phrase).number(3).number(4).str(); };

    TestTarget faithful(Target::CSharp);
    const Statement noted = statement(faithful);
    EXPECT_EQ(noted, " f( 3 );\n");
    ASSERT_EQ(noted.notes().size(), 1U);
    EXPECT_EQ(std::get<const Fault*>(noted.notes()[0].what), &mended);

    GetFxSystemServices()->SetInt16("IgnoreFaults", 1);
    TestTarget quiet(Target::CSharp);
    GetFxSystemServices()->SetInt16("IgnoreFaults", 0);
    EXPECT_EQ(statement(quiet), " f( 3 );\n");
    EXPECT_FALSE(statement(quiet).hasNotes());
    EXPECT_FALSE(quiet.writer.faulty(QString("f();"), mended).hasNotes());
    EXPECT_TRUE(faithful.writer.faulty(QString("f();"), mended).hasNotes());
    EXPECT_FALSE(faithful.writer.faulty(Statement(), mended).hasNotes());

    const TestRepair repair;
    TestTarget csharp(Target::CSharp);
    TestTarget vba(Target::Vba);
    EXPECT_EQ(statement(csharp), " g( 3, 4 );\n");
    EXPECT_EQ(statement(vba), "");
    EXPECT_FALSE(csharp.writer.faulty(QString("f();"), mended).hasNotes());
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

/// A way in which objects or values get lost on their way into a statement of a C# macro.
struct Hole
{
    const char* fault; ///< what is said of the faithful macro
    CFxActionArray actions;
    const char* faithful; ///< stands there and not in the repaired macro
    const char* repaired; ///< the other way round; empty where the statement is left out
};

using Handles = std::vector<OdDbHandle>;
using Classes = std::vector<const OdRxClass*>;
using Points = OdArray<OdGePoint3d>;

OdSmartPtr<TestCommand> custom(std::int32_t kind, const TestData& data)
{
    return command({odrxNew<TestCustom>(kind, data)});
}

std::vector<Hole> holes()
{
    const auto cls = [](const char* name) -> const OdRxClass* { return oddbClassByName(name); };
    const OdRxObjectPtr line = command({addedLine(1)});
    const OdRxObjectPtr loose = command({odrxNew<TestAdded>("AcDbRegion", 2)});
    const OdDbHandle known(1);
    const OdDbHandle unmade(2);
    const OdDbHandle unknown(0xA2);
    const OdGePoint3d point{1, 2, 0};
    const TestData hatch{CFxString("ANSI31"), 1.0, 0.0, true, false, false, false, OdArray<OdGePoint2d>{{2, 1}}};
    static constexpr char unmadeUsed[] = "an object that no statement inserts has a variable without a value";
    static constexpr char emptyPlaceNoted[] = "an object without a variable leaves its place empty";
    static constexpr char otherClass[] = "an object that is declared as one class is named as another one";
    static constexpr char textAsCodeNoted[] = "a text stands where a number or an enumerator belongs";
    static constexpr char unnamed[] = "what a custom action makes has no variable when its command has no such object";
    return {
        {unmadeUsed,
         {line, loose,
          custom(7, {Handles{known}, Classes{cls("AcDbLine")}, Handles{unmade, known},
                     Classes{cls("AcDbRegion"), cls("AcDbLine")}, Points{{5, 0, 0}, {6, 0, 0}}})},
         "new DispatchWrapper(region2)",
         "EntitiesToExtendArray0[0] = new DispatchWrapper(line1)"},
        {unmadeUsed,
         {line, loose,
          custom(8, {Handles{known}, Classes{cls("AcDbLine")}, point, Handles{unmade}, Classes{cls("AcDbRegion")},
                     point})},
         "FilletEntities(",
         ""},
        {unmadeUsed,
         {loose, custom(6, {Handles{unmade}, Classes{cls("AcDbRegion")}, Handles{}, Classes{}, Points{}, Handles{},
                            Classes{}, Points{}, OdArray<double>{}})},
         "TrimEntities(",
         ""},
        {unnamed, {custom(18, hatch)}, "  = iwSketchManager.InsertHatch", "hatch1 = iwSketchManager.InsertHatch"},
        {unnamed,
         {custom(15, {1, CFxString("a.xls")})},
         "  = iwSketchManager.InsertEmbedded",
         "EmbeddedObject embeddedobject1;"},
        {unnamed,
         {line, custom(44, {Handles{known}, Classes{cls("AcDbLine")}})},
         "  = iwRegions",
         "region2 = iwRegions"},
        {emptyPlaceNoted, {custom(12, {unknown, cls("AcDbLine"), point})}, "ByEntity( , ", "ByEntity( line1, "},
        {unmadeUsed, {loose, custom(12, {unmade, cls("AcDbRegion"), point})}, "ByEntity( region1, ", ""},
        {otherClass,
         {line, command({odrxNew<TestModified>("AcDbArc", 1, PropertyList{odrxNew<TestProperty>("Thickness", 2.0)})})},
         "circlearc1",
         "CircleArc circlearc2 = iwApp.GetActiveDocument().GetObjectByHandle"},
        {textAsCodeNoted, {loose, custom(43, {CFxString("iwZoomRange_All; f()")})}, "f()", ""},
        {otherClass,
         {line, custom(4, {Handles{known}, Classes{cls("AcDbArc")}, point, 0.5})},
         "circlearc1",
         "DispatchWrapper(line1)"},
        {otherClass,
         {line, custom(4, {Handles{known}, Classes{cls("AcDbArc")}, point, 0.5})},
         "iwCircleArcType",
         "iwLineType"},
        {emptyPlaceNoted,
         {loose, line, custom(45, {Handles{known}, Classes{cls("HostWeldSymbol")}})},
         ".Activate()",
         ""},
        {emptyPlaceNoted,
         {loose, line, custom(50, {known, cls("AcDbLine"), unknown, cls("HostWeldSymbol")})},
         ".Join(",
         ""},
    };
}

/// Of the repaired macro, whose losses are left in the notes.
void expectMended(const Hole& hole)
{
    const TestTarget host(Target::CSharp);
    TestConversion conversion;
    ASSERT_EQ(conversion.run(hole.actions), kFxSuccess);
    const QString faithful = conversion.body();
    EXPECT_TRUE(faithful.contains(hole.faithful)) << hole.faithful << " in\n" << faithful.toStdString();
    EXPECT_EQ(faithful.contains(hole.repaired), QString(hole.repaired).isEmpty()) << hole.repaired;
    EXPECT_EQ(timesNoted(hole.fault), 1) << hole.fault;

    const TestRepair repair;
    ASSERT_EQ(conversion.run(hole.actions), kFxSuccess);
    const QString repaired = conversion.body();
    EXPECT_FALSE(repaired.contains(hole.faithful)) << hole.faithful << " in\n" << repaired.toStdString();
    EXPECT_TRUE(repaired.contains(hole.repaired)) << hole.repaired << " in\n" << repaired.toStdString();
}

TEST(RepairedMacro, HasNoPlaceWithoutItsObject)
{
    for (const Hole& hole : holes()) {
        expectMended(hole);
        const std::size_t least = QString(hole.repaired).isEmpty() ? 2 : 0;
        EXPECT_GE(GetFxSystemServices()->Notes().GetLosses().size(), least) << hole.faithful;
    }
}

TEST(RepairedMacro, SaysTheValuesThatWereRecorded)
{
    const auto record = [](const char* tag, const CFxVariant& value) { return odrxNew<TestProperty>(tag, value); };
    const auto item = [](const CFxVariant& number, const char* word) {
        return CFxVariantCollectionElement(number, CFxString(word));
    };
    const auto add = [](const char* cls, const PropertyList& list) {
        return command({odrxNew<TestAdded>(cls, 0x50, list, list)});
    };
    const auto change = [](const char* cls, const PropertyList& list) {
        return command({odrxNew<TestModified>(cls, 0x50, list)});
    };
    const auto format = [&](std::vector<CFxVariantCollectionElement> items, std::int32_t chosen) {
        return change("AcDbAlignedDimension", {record("Alt format", CFxVariantCollection(std::move(items), chosen))});
    };
    const auto note = [&](const CFxVariant& justification) {
        return add("AcDbMText", {record("Width", 10.0), record("Position X", 25.0), record("Justify", justification)});
    };
    const OdRxObjectPtr circle = add("AcDbCircle", {});
    const OdRxObjectPtr dimension = add("AcDbAlignedDimension", {});
    const CFxVariantCollection nothing{std::vector<CFxVariantCollectionElement>()};
    const auto define = [&](const char* description) {
        return PropertyList{record("Name", CFxString("B")), record("Objects", nothing),
                            record("Description", CFxString(description))};
    };
    const OdRxObjectPtr block = add("AcDbBlockTableRecord", define("old"));
    const OdRxObjectPtr renewed = change("AcDbBlockTableRecord", {record("Objects", nothing)});
    static constexpr char place[] = "the place of the chosen item of a list is taken for the item's number";
    static constexpr char box[] = "the box of a note is that of another justification than it gets, which moves it";
    static constexpr char forgotten[] = "a block that is made anew loses its description";

    const Hole values[] = {
        {"an area below zero gives a radius that is no number",
         {circle, change("AcDbCircle", {record("Area", -2.0)})},
         "Radius = ",
         ""},
        {place, {dimension, format({item(1, "Scientific"), item(2, "Decimal")}, 1)}, "_Scientific;", "_Decimal;"},
        {box, {note(item(1, "top center"))}, "InsertNote( 25.", "InsertNote( 20."},
        {box,
         {note(CFxVariantCollection({item(0, "Top Left"), item(1, "Middle Right")}, 1))},
         "InsertNote( 20.",
         "InsertNote( 15."},
        {forgotten, {block, renewed}, "\"\"", ""},
        {forgotten,
         {command({odrxNew<TestModified>("AcDbBlockTableRecord", 0x60, PropertyList{record("Objects", nothing)})})},
         "\"\"",
         "\"drawn\""},
    };
    TestDrawing drawing;
    drawing.add(0x60, "AcDbBlockTableRecord", {{"name", OdString("B")}, {"comments", OdString("drawn")}});
    for (const Hole& value : values) {
        expectMended(value);
        const std::size_t lost = value.actions[0] == circle ? 1 : 0;
        EXPECT_EQ(GetFxSystemServices()->Notes().GetLosses().size(), lost) << value.fault;
    }

    // Those that agree have no fault.
    const CFxActionArray sound[] = {
        {dimension, format({item(0, "Decimal"), item(1, "Scientific")}, 1)},
        {dimension, format({item(1, "Decimal")}, 1)},
        {dimension, format({item(CFxString("1"), "Decimal")}, 0)},
        {note(CFxVariantCollection({item(0, "Top Left"), item(1, "Top Center")}, 1))},
        {note(item(0, "Top Left"))},
        {block, change("AcDbBlockTableRecord", define("new"))},
        {add("AcDbBlockTableRecord", define("")), renewed},
    };
    const TestTarget host(Target::CSharp);
    for (const CFxActionArray& actions : sound) {
        TestConversion conversion;
        ASSERT_EQ(conversion.run(actions), kFxSuccess);
        for (const char* fault : {place, box, forgotten})
            EXPECT_EQ(timesNoted(fault), 0) << fault << " in\n" << conversion.body().toStdString();
    }
}

/// The same of objects that their readers look up in the drawing.
TEST(RepairedMacro, HasNoPlaceWithoutAnObjectOfTheDrawing)
{
    const TestTarget host(Target::CSharp);
    TestDrawing drawing;
    drawing.add(0xA1, "AcDbArc");
    drawing.add(0xA2, "AcDbRegion");
    drawing.add(1, "AcDbArcAlignedText", {{"arcId", drawing.id(0xA1)}});
    drawing.add(2, "AcDbArcAlignedText");
    drawing.add(3, "AcDbViewport", {{"isNonRectClipOn", true}, {"nonRectClipEntityId", drawing.id(0xA2)}});
    drawing.add(4, "AcDbViewport", {{"isNonRectClipOn", true}});
    const std::tuple<const char*, std::uint64_t, const char*, const char*> cases[] = {
        {"AcDbArcAlignedText", 1, "InsertCurvedText( \"\",  )", "InsertCurvedText( \"\", circlearc2 )"},
        {"AcDbArcAlignedText", 2, "InsertCurvedText( \"\",  )", ""},
        {"AcDbViewport", 3, "InsertViewportByEntity()", "InsertViewportByEntity(region2)"},
        {"AcDbViewport", 4, "InsertViewportByEntity()", ""},
    };
    for (const auto& [cls, handle, faithful, repaired] : cases) {
        const CFxActionArray actions{command({odrxNew<TestAdded>(cls, handle)})};
        TestConversion conversion;
        ASSERT_EQ(conversion.run(actions), kFxSuccess);
        EXPECT_TRUE(conversion.body().contains(faithful)) << conversion.body().toStdString();
        EXPECT_EQ(timesNoted("an object without a variable leaves its place empty"), 1) << cls;

        const TestRepair repair;
        ASSERT_EQ(conversion.run(actions), kFxSuccess);
        const QString body = conversion.body();
        EXPECT_FALSE(body.contains(faithful)) << body.toStdString();
        EXPECT_TRUE(body.contains(repaired)) << body.toStdString();
        EXPECT_EQ(GetFxSystemServices()->Notes().GetLosses().empty(), *repaired != '\0') << cls;
    }
}

TEST(RepairedMacro, NamesNoObjectWhoseInsertionFailed)
{
    const TestTarget host(Target::CSharp);
    TestDrawing drawing;
    drawing.add(1, "AcDbLine");
    const CFxActionArray actions{
        command({odrxNew<TestAdded>("AcDbArcAlignedText", 1)}),
        custom(4, {Handles{OdDbHandle(1)}, Classes{oddbClassByName("AcDbArcAlignedText")}, OdGePoint3d{}, 0.5})};
    TestConversion conversion;
    ASSERT_EQ(conversion.run(actions), kFxSuccess);
    EXPECT_TRUE(conversion.body().contains("DispatchWrapper(arcalignedtext1)"));
    EXPECT_EQ(timesNoted("an object that no statement inserts has a variable without a value"), 1);

    const TestRepair repair;
    ASSERT_EQ(conversion.run(actions), kFxSuccess);
    EXPECT_FALSE(conversion.body().contains("arcalignedtext1")) << conversion.body().toStdString();
}

// Their command hands the variable of its last object to each of its actions.
/// An object is used by nothing when what was to make it says nothing or failed, although it stands behind the object.
TEST(RepairedMacro, LeavesOutTheUsesOfWhatNothingMakes)
{
    const TestTarget host(Target::CSharp);
    const auto change = [](const char* cls) {
        return command({odrxNew<TestModified>(cls, 0x41, PropertyList{odrxNew<TestProperty>("LineScale", 2.0)})});
    };
    // The items of the gradient are missing.
    const TestData gradient{CFxString("ANSI31"), 1.0, 0.0, true, false, false, true, OdArray<OdGePoint2d>{{1, 2}}};
    const CFxActionArray cases[] = {
        {command({odrxNew<TestAdded>("AcDbHatch", 0x41, PropertyList{odrxNew<TestProperty>("LineScale", 2.0)}),
                  odrxNew<TestCustom>(18, gradient)}),
         change("AcDbHatch")},
        // The drawing does not have what it measures.
        {command({odrxNew<TestAdded>("AcDbDiametricDimension", 0x41,
                                     PropertyList{odrxNew<TestProperty>("Rotation", 0.5)})}),
         change("AcDbDiametricDimension")},
    };
    for (const CFxActionArray& actions : cases) {
        TestConversion conversion;
        ASSERT_EQ(conversion.run(actions), kFxSuccess);
        EXPECT_GE(timesNoted("an object that no statement inserts has a variable without a value"), 1);
        const TestRepair repair;
        ASSERT_EQ(conversion.run(actions), kFxSuccess);
        EXPECT_EQ(conversion.body(), "");
        EXPECT_GE(GetFxSystemServices()->Notes().GetLosses().size(), 2U);
    }
}

/// As it is passed over in a faithful macro.
TEST(RepairedMacro, DoesWithoutTheClassOfAnUnknownObject)
{
    const TestTarget host(Target::CSharp);
    const TestRepair repair;
    TestConversion conversion;
    const std::vector<OdDbHandle> objects{OdDbHandle(0x1a), OdDbHandle(0x99)};
    const auto move = odrxNew<TestCustom>(
        3, TestData{objects, std::vector<const OdRxClass*>{oddbClassByName("AcDbLine")}, OdGeVector3d{1, 0, 0}});
    ASSERT_EQ(conversion.run({addedLine(0x1a), move}), kFxSuccess);
    EXPECT_TRUE(conversion.body().contains("(line1)"));
    EXPECT_TRUE(conversion.body().contains(".MoveEntities("));
}

TEST(RepairedMacro, HandsEachActionTheObjectThatItMakes)
{
    const TestTarget host(Target::CSharp);
    const TestData solid{CFxString("SOLID"), 1.0, 0.0, true, false, false, false, OdArray<OdGePoint2d>{{2, 1}}};
    const auto hatch = [](std::uint64_t handle) {
        return odrxNew<TestAdded>("AcDbHatch", handle, PropertyList{odrxNew<TestProperty>("Origin X", 2.0)});
    };
    const CFxActionArray actions{
        command({addedLine(1), odrxNew<TestCustom>(18, solid), hatch(2), odrxNew<TestCustom>(18, solid), hatch(3),
                 odrxNew<TestAdded>("AcDbRegion", 4), odrxNew<TestCustom>(44, TestData{Handles{}, Classes{}})})};
    TestConversion conversion;
    ASSERT_EQ(conversion.run(actions), kFxSuccess);
    EXPECT_EQ(conversion.body().count("region4 = iwSketchManager.InsertHatch"), 2);

    const TestRepair repair;
    ASSERT_EQ(conversion.run(actions), kFxSuccess);
    const QString body = conversion.body();
    for (const char* const made : {"hatch2 = iwSketch", "hatch3 = iwSketch", "region4 = iwRegions"})
        EXPECT_EQ(body.count(made), 1) << made << " in\n" << body.toStdString();
    EXPECT_TRUE(GetFxSystemServices()->Notes().GetLosses().empty());
}

/// The block of the command hides the variable behind it; at top level there is none.
TEST(RepairedMacro, FetchesAChangedObjectOfTheDrawingOnceACommand)
{
    const TestTarget host(Target::CSharp);
    TestDrawing drawing;
    drawing.add(0xA1, "AcDbLine");
    const auto change = [](const char* tag) {
        return odrxNew<TestModified>("AcDbLine", 0xA1, PropertyList{odrxNew<TestProperty>(tag, 2.0)});
    };
    const CFxActionArray actions{command({change("Nothing"), change("LineScale"), change("Thickness")}),
                                 command({change("LineScale")}), change("LineScale"), change("Thickness")};
    TestConversion conversion;
    ASSERT_EQ(conversion.run(actions), kFxSuccess);
    EXPECT_EQ(conversion.body(), "");
    const TestRepair repair;
    ASSERT_EQ(conversion.run(actions), kFxSuccess);
    EXPECT_EQ(conversion.body().count("GetObjectByHandle(\"A1\""), 4) << conversion.body().toStdString();
    ASSERT_EQ(conversion.run({command({change("Nothing")})}), kFxSuccess);
    EXPECT_EQ(conversion.body(), "");
    const TestData attribute{OdDbHandle(0xA2), oddbClassByName("AcDbBlockReference"), CFxString("NR"), CFxString("7")};
    ASSERT_EQ(conversion.run({custom(39, attribute)}), kFxSuccess);
    EXPECT_TRUE(conversion.body().contains("GetObjectByHandle(\"A2\"")) << conversion.body().toStdString();
}

TEST(RepairedMacro, KnowsHowLargeATableOfTheDrawingIs)
{
    const TestTarget host(Target::CSharp);
    const TestRepair repair;
    TestDrawing drawing;
    drawing.add(0xA1, "AcDbTable", {{"rowHeights", OdArray<double>{1, 2, 1}}});
    const auto change = [](const char* tag, const CFxVariant& value) {
        return command({odrxNew<TestModified>("AcDbTable", 0xA1, PropertyList{odrxNew<TestProperty>(tag, value)})});
    };
    TestConversion conversion;
    ASSERT_EQ(conversion.run(
                  {change("Rows", 2), change("Table height", 8.0), change("Rows", 1), change("Table height", 4.0)}),
              kFxSuccess);
    const QString body = conversion.body();
    for (const char* const part :
         {".DeleteRow( 2 )", ".DeleteRow( 1 )", " = 2.00000000000000;", " = 0.50000000000000;"})
        EXPECT_EQ(body.count(part), 1) << part << " in\n" << body.toStdString();
}

TEST(RepairedMacro, CallsWhatItHasRenamedByTheNewName)
{
    const TestTarget host(Target::CSharp);
    TestDrawing drawing;
    drawing.add(0x10, "AcDbLayerTableRecord", {{"name", OdString("Walls")}});
    drawing.add(0x11, "AcDbTextStyleTableRecord", {{"name", OdString("Notes")}});
    const auto change = [](const char* cls, std::uint64_t handle, const char* tag, const CFxVariant& value) {
        return odrxNew<TestModified>(cls, handle, PropertyList{odrxNew<TestProperty>(tag, value)});
    };
    const CFxActionArray actions{
        addedLine(1),
        change("AcDbLine", 1, "Layer", drawing.id(0x10)),
        change("AcDbLayerTableRecord", 0x10, "Name", CFxString("Outer")),
        change("AcDbTextStyleTableRecord", 0x11, "Name", CFxString("Titles")),
        odrxNew<TestAdded>("AcDbMText", 2, PropertyList{odrxNew<TestProperty>("Style", drawing.id(0x11))}),
        change("AcDbLine", 1, "Layer", drawing.id(0x10)),
        change("AcDbLayerTableRecord", 0x10, "Name", CFxString("Inner")),
    };
    const auto timesOf = [&](const char* name) {
        TestConversion conversion;
        EXPECT_EQ(conversion.run(actions), kFxSuccess);
        return conversion.body().count('"' + QString(name) + '"');
    };
    EXPECT_EQ(timesOf("Walls"), 2);
    EXPECT_EQ(timesOf("Notes"), 1);
    const TestRepair repair;
    for (const auto& [name, times] : {std::pair("Walls", 2), {"Outer", 3}, {"Notes", 0}, {"Titles", 2}, {"Inner", 1}})
        EXPECT_EQ(timesOf(name), times) << name;
}

// Behind the declaration of a trim's pieces another group begins.
TEST(RepairedMacro, FetchesTrimmedObjectsInTheGroupOfTheTrim)
{
    const TestTarget host(Target::CSharp);
    const TestRepair repair;
    const OdRxClass* const line = oddbClassByName("AcDbLine");
    const Handles unknown{OdDbHandle(0xA2)};
    const TestData trim{unknown,       Classes{line},     unknown,
                        Classes{line}, Points{{1, 0, 0}}, Handles{OdDbHandle(0xB0)},
                        Classes{line}, Points{{2, 0, 0}}, OdArray<double>{0, 0, 0, 2, 0, 0}};
    TestConversion conversion;
    ASSERT_EQ(conversion.run({custom(6, trim)}), kFxSuccess);
    const QString macro = conversion.body();
    const auto piece = macro.indexOf("Line line2;");
    const auto fetch = macro.indexOf("Line line1 = iwApp.GetActiveDocument().GetObjectByHandle");
    EXPECT_NE(piece, -1) << macro.toStdString();
    EXPECT_LT(piece, fetch) << macro.toStdString();
    EXPECT_LT(fetch, macro.indexOf("new DispatchWrapper(line1)")) << macro.toStdString();
}

// Code takes such texts as they stand.
TEST(CodeTexts, AreNumbersOrWords)
{
    for (const char* const text : {"0", "-2.5", "+.5", "3.", "1e-05", "1.5E+6"})
        EXPECT_TRUE(isNumber(text)) << text;
    for (const char* const text : {"", ".", "-", "2,5", "2.5;f()", "1e", "0x1", "inf", " 1", "1\n"})
        EXPECT_FALSE(isNumber(text)) << text;
    for (const char* const text : {"iwZoomRange_All", "_a1"})
        EXPECT_TRUE(isWord(text)) << text;
    for (const char* const text : {"", "1a", "a b", "a\n", "\u00E4", "a;f()"})
        EXPECT_FALSE(isWord(text)) << text;
}

// Where blocks hide their locals, the layer's variable is gone behind its command.
TEST(FaithfulMacro, TellsLayersThatAnotherCommandHasDeclared)
{
    const auto change = [] {
        return odrxNew<TestModified>(
            "AcDbLayerTableRecord", 7,
            PropertyList{odrxNew<TestProperty>("Locked", CFxVariantCollectionElement(0, CFxString("Yes")))});
    };
    const std::pair<Target, int> cases[] = {{Target::Cpp, 1},        {Target::CppCom, 1}, {Target::CSharp, 1},
                                            {Target::JavaScript, 0}, {Target::VbNet, 1},  {Target::Vba, 0}};
    for (const auto& [target, expected] : cases) {
        const TestTarget host(target);
        const QTemporaryDir folder;
        const CFxActionArray actions{command({change(), change()}), command({change()})};
        const auto converter = CreateConverter(static_cast<std::int16_t>(target), 0, 0);
        ASSERT_EQ(converter->Convert(folder.filePath("plate.txt"), actions), kFxSuccess);
        EXPECT_EQ(timesNoted("a layer is declared in the block of a former command"), expected) << shownTarget(target);
    }
}

// The quotes of this statement are values too.
TEST(FaithfulMacro, TellsANoteThatIsDeclaredAgainWithItsLeader)
{
    const TestTarget host(Target::CSharp);
    TestDrawing drawing;
    drawing.add(0x30, "AcDbLeader");
    drawing.add(0x31, "AcDbMText", {{"reactors", OdArray<OdDbObjectId>{drawing.id(0x30)}}});
    const auto rotated = odrxNew<TestModified>("AcDbMText", 0x31, PropertyList{odrxNew<TestProperty>("Rotation", 1.0)});
    TestConversion conversion;
    ASSERT_EQ(conversion.run({odrxNew<TestAdded>("AcDbLeader", 0x30), odrxNew<TestAdded>("AcDbMText", 0x31), rotated}),
              kFxSuccess);
    EXPECT_EQ(conversion.body().count("Note note2"), 2) << conversion.body().toStdString();
    EXPECT_EQ(timesNoted("a local variable is declared where one of its name is seen already"), 1);
}

TEST(FaithfulMacro, TellsTextsThatBreakQuotesOfValues)
{
    for (const auto& [name, count] : {std::pair("_DOT", 0U), {"_D\"OT", 1U}}) {
        TestTarget csharp(Target::CSharp);
        const Statement statement = EmitSetArrow(csharp.writer, "a", "SetStartArrow", 3, name);
        EXPECT_EQ(statement.notes().size(), count);
        EXPECT_EQ(statement,
                  QString(" a.SetStartArrow( iwDimensionArrowType_e.iwDimensionArrowType_Dot, \"%1\" );\n").arg(name));
    }
}

TEST(BstrTexts, StandWhereALiteralIsGivenOrKept)
{
    const std::pair<const char*, const char*> cases[] = {
        {R"(%1%3->put_%4( L"%5" );%2)", R"(%1%3->put_%4( _bstr_t(L"%5") );%2)"},
        {R"(BSTR text%3 = L"%5";%2%1f->Ask( true, L"%4", &text%3);)",
         R"(BSTR text%3 = SysAllocString(L"%5");%2%1f->Ask( true, L"%4", &text%3);)"},
        {R"(BSTR none%3=L"";BSTR more = L"a";)",
         R"(BSTR none%3=SysAllocString(L"");BSTR more = SysAllocString(L"a");)"},
        {R"(if (a->GetName() == _bstr_t(L"%5")) a->put_Name( L"%6" );)",
         R"(if (a->GetName() == _bstr_t(L"%5")) a->put_Name( _bstr_t(L"%6") );)"},
        {R"(f->put_Sheet( d->GetSheet( L"%3" ) );)", R"(f->put_Sheet( d->GetSheet( L"%3" ) );)"},
    };
    for (const auto& [words, expected] : cases)
        EXPECT_EQ(textsAsBstr(words), QByteArray(expected));
}

} // namespace
