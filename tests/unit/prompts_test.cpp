// Prompts in a replay: what is read of an answer, and the statements that ask for it again.

#include "TestActions.h"
#include "TestTarget.h"

#include "module/MacroFile.h"
#include "module/walk.h"
#include "targets/prompts.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

using namespace inkmacro;

namespace {

using Kind = CFxUserInteraction::Kind;
using Words = std::vector<CFxString>;

class TestInteraction final : public CFxUserInteraction
{
public:
    TestInteraction(std::int32_t kind, const CFxString& prompt, OdResBufPtr result, Words local = {}, Words global = {})
        : kind(kind), prompt(prompt), result(std::move(result)), local(std::move(local)), global(std::move(global))
    {
    }
    std::int32_t GetInteractionKind() const override { return kind; }
    OdResBufPtr GetResult() const override { return result; }
    void GetKeywords(Words& toLocal, Words& toGlobal) const override
    {
        toLocal = local;
        toGlobal = global;
    }
    CFxString GetPrompt() const override { return prompt; }

    std::int32_t kind;
    CFxString prompt;
    OdResBufPtr result;
    Words local;
    Words global;
};

struct Outcome
{
    std::int32_t status;
    QString text;
    std::uint32_t counter;
};

Outcome replay(const OdSmartPtr<TestInteraction>& interaction, Target target = Target::CSharp)
{
    TestTarget prompter(target, 1);
    Statement text("before");
    const std::int32_t status = ConvertAction(prompter.conversion, OdRxObjectPtr(interaction.get()), text);
    return {status, textOf(text), prompter.writer.UniqueCounter};
}

OdResBufPtr angle(double value)
{
    return odrxNew<OdResBuf>(OdResBuf::kRtAngle, value);
}

OdResBufPtr string(const char* value)
{
    return odrxNew<OdResBuf>(OdResBuf::kRtString, OdString(value));
}

TEST(Prompts, ReadTheAnswersThatTheirKindAccepts)
{
    const OdResBufPtr answers[] = {
        odrxNew<OdResBuf>(OdResBuf::kRtPoint3d, OdGePoint3d{1.5, -2, 0.25}),
        angle(0.5),
        odrxNew<OdResBuf>(OdResBuf::kRtDouble, 2.5),
        string("7"),
        odrxNew<OdResBuf>(OdResBuf::kRtInt32, std::int32_t{7}),
    };
    const char* const point = "1.5, y1 = -2, z1 = 0.25";
    const char* const origin = "0, y1 = 0, z1 = 0";
    const struct
    {
        Kind kind;
        std::array<const char*, 5> read; ///< of a point, an angle, a real, a string and an integer
    } rows[] = {
        {Kind::kPoint, {point, origin, origin, origin, origin}},
        {Kind::kAngle, {"0", "0.5", "0", "0", "0"}},
        {Kind::kDistance, {"1", "1", "2.5", "1", "1"}},
        {Kind::kOrient, {"0", "0.5", "2.5", "0", "0"}},
        {Kind::kCorner, {point, origin, origin, origin, origin}},
        {Kind::kScale, {"0", "0.5", "2.5", "1", "0"}},
        {Kind::kString, {"\"\"", "\"\"", "\"\"", "\"7\"", "\"\""}},
        {Kind::kColor, {"0", "0", "0", "1", "7"}},
        {Kind::kInteger, {"0", "0", "0", "1", "7"}},
        {Kind::kDouble, {"0", "0.5", "2.5", "1", "0"}},
    };
    const QRegularExpression declaration("(?:double|int|string) \\w+1 = (.*);\n");
    for (const auto& [kind, read] : rows)
        for (std::size_t i = 0; i < read.size(); ++i) {
            const Outcome outcome = replay(odrxNew<TestInteraction>(kind, "?", answers[i]));
            EXPECT_EQ(outcome.status, kFxSuccess);
            EXPECT_EQ(declaration.match(outcome.text).captured(1), read[i]) << "kind " << kind << ", answer " << i;
        }
}

TEST(Prompts, WithoutAnswerLeaveNoTrace)
{
    for (const int kind : {0, 7, 10, 11}) {
        const Outcome outcome = replay(odrxNew<TestInteraction>(kind, "?", nullptr, Words{"A"}));
        EXPECT_EQ(outcome.status, kFxSuccess);
        EXPECT_EQ(outcome.text, "before");
        EXPECT_EQ(outcome.counter, 0U);
    }
}

TEST(Prompts, OfUnknownKindsAndWithTooFewKeywordsAreRefused)
{
    for (const int kind : {11, 4711, -1, -2147483647 - 1})
        EXPECT_EQ(replay(odrxNew<TestInteraction>(kind, "?", string(""))).status, kFxFailure) << kind;
    for (const Target target : {Target::CSharp, Target::CppCom})
        EXPECT_EQ(
            replay(odrxNew<TestInteraction>(Kind::kKeyword, "?", string("A"), Words{"A", "B"}, Words{"_A"}), target)
                .status,
            kFxFailure);
    EXPECT_EQ(replay(odrxNew<TestInteraction>(Kind::kKeyword, "?", string("A"), Words{"A"}, Words{"_A", "_B"})).status,
              kFxSuccess);
}

TEST(Prompts, ShowTheLastLineOfTheirTextOrADefault)
{
    const auto shown = [](int kind, const char* prompt) {
        const QString text = replay(odrxNew<TestInteraction>(kind, prompt, string(""))).text;
        return QRegularExpression("PromptFor\\w+\\((?: true,)? ?\"(.*?)\"").match(text).captured(1);
    };
    EXPECT_EQ(shown(Kind::kAngle, "Arc<br>&raquo; Specify <b>end</b> angle:"), "Specify end angle:");
    EXPECT_EQ(shown(Kind::kAngle, "Specify angle:<br>"), "Specify angle:");
    EXPECT_EQ(shown(Kind::kAngle, " "), " ");
    const char* const defaults[] = {"point",  "angle",   "distance", "orient",  "corner", "scale",
                                    "string", "keyword", "color",    "integer", "double"};
    for (int kind = 0; kind <= Kind::kDouble; ++kind)
        for (const char* const blank : {"", "<br>", "<b></b>", "Arc<br><i></i>&raquo; "})
            EXPECT_EQ(shown(kind, blank), QString("Specify %1: ").arg(defaults[kind])) << blank;
}

TEST(Prompts, CountOnWithinACommand)
{
    TestTarget prompter(Target::CSharp, 1);
    QString text;
    QTextStream stream(&text);
    MacroFile macro(stream, {}, Target::CSharp, false, false);
    prompter.writer.UniqueCounter = 40;
    ConvertCommand(
        prompter.conversion, macro, "ROTATE",
        {odrxNew<TestInteraction>(Kind::kAngle, "A", angle(1234567)),
         odrxNew<TestInteraction>(Kind::kAngle, "cancelled", nullptr),
         odrxNew<TestInteraction>(Kind::kKeyword, "K", string("Copy"), Words{"Copy"}, Words{"_Copy"}),
         odrxNew<TestInteraction>(Kind::kInteger, "I", odrxNew<OdResBuf>(OdResBuf::kRtInt32, std::int32_t{-3}))});
    macro.finish();
    stream.flush();
    EXPECT_EQ(text, "    {\n"
                    "        double angle1 = 1.23457e+06;\n"
                    "        iwApp.GetCommandMessage().PromptForAngle(\"A\", 1.23457e+06, out angle1);\n"
                    "        object[] iwlocal1 = new string[1];\n"
                    "        object[] iwglobal1 = new string[1];\n"
                    "        String keyword1 = \"Copy\";\n"
                    "        iwlocal1[0] = \"Copy\";\n"
                    "        iwglobal1[0] = \"_Copy\";\n"
                    "\n"
                    "        string value2;\n"
                    "        string ErrorMsg2=\"\";\n"
                    "        iwApp.GetCommandMessage().PromptForKeyword2(\"K\",ErrorMsg2,iwglobal1,iwlocal1,1, "
                    "keyword1, out value2);\n"
                    "        int integer3 = -3;\n"
                    "        iwApp.GetCommandMessage().PromptForInteger(\"I\", -3, out integer3);\n"
                    "    }\n");
    EXPECT_EQ(prompter.writer.UniqueCounter, 40U);
}

constexpr std::array targets{Target::Cpp,        Target::CppCom, Target::CSharp,
                             Target::JavaScript, Target::VbNet,  Target::Vba};

using Emit = Statement (*)(Writer&);
/// In the order of `targets`, without the indentation of four blanks and without `cmdMesage`, whose fetch is the same
/// in all C++ statements.
using Expected = std::array<const char*, 6>;

void expectStatements(Emit ask, const Expected& expected)
{
    for (std::size_t i = 0; i < targets.size(); ++i) {
        TestTarget prompter(targets[i], 1);
        prompter.writer.UniqueCounter = 6;
        QString text = textOf(ask(prompter.writer));
        const QString fetch = "    iwCommandMessage_c* cmdMesage7;\n    m_pIwApp->GetCommandMessage(&cmdMesage7);\n";
        EXPECT_EQ(text.count(fetch), targets[i] == Target::Cpp ? 1 : 0);
        text.remove(fetch);
        EXPECT_TRUE(text.startsWith("    ")) << text.toStdString();
        text.replace("\n    ", "\n");
        EXPECT_EQ(text.mid(4).toStdString(), expected[i]);
        EXPECT_EQ(prompter.writer.UniqueCounter, 7U);
    }
}

TEST(PromptStatements, AskForOneValue)
{
    const struct
    {
        Emit ask;
        Expected expected;
    } rows[] = {
        {[](Writer& writer) { return EmitPromptAngle(writer, "P:", 0.5); },
         {"double angle7 = 0.5;\nbool  result7;\ncmdMesage7->PromptForAngle( L\"P:\", 0.5, &angle7, &result7 );\n",
          "double angle7 = 0.5;\npConnection->m_IwApp->GetCommandMessage()->PromptForAngle( L\"P:\", 0.5, &angle7);\n",
          "double angle7 = 0.5;\niwApp.GetCommandMessage().PromptForAngle(\"P:\", 0.5, out angle7);\n",
          "var angle7 = mCmdMess.PromptForAngle(\"P:\", 0.5);\n",
          "Dim angle7 As Double = 0.5\niwApp.GetCommandMessage().PromptForAngle(\"P:\", 0.5, angle7)\n",
          "Dim IO_angle7 As Double2    IO_angle7 = 0.5\n"
          "iwApp.GetCommandMessage().PromptForAngle \"P:\", 0.5, IO_angle7\n"}},
        {[](Writer& writer) { return EmitPromptDistance(writer, "P:", 1e-5); },
         {"double distance7 = 1e-05;\nbool  result7;\n"
          "cmdMesage7->PromptForDistance( L\"P:\", 1e-05, &distance7, &result7 );\n",
          "double distance7 = 1e-05;\n"
          "pConnection->m_IwApp->GetCommandMessage()->PromptForDistance( L\"P:\", 1e-05, &distance7);\n",
          "double distance7 = 1e-05;\niwApp.GetCommandMessage().PromptForDistance(\"P:\", 1e-05, out distance7);\n",
          "var distance7 = mCmdMess.PromptForDistance(\"P:\", 1e-05);\n",
          "Dim distance7 As Double = 1e-05\niwApp.GetCommandMessage().PromptForDistance(\"P:\", 1e-05, distance7)\n",
          "Dim IO_distance7 As Double\nIO_distance7 = 1e-05\n"
          "iwApp.GetCommandMessage().PromptForDistance \"P:\", 1e-05, IO_distance7\n"}},
        {[](Writer& writer) { return EmitPromptOrient(writer, "P:", 0); },
         {"double orient7 = 0;\nbool  result7;\n"
          "cmdMesage7->PromptForOrientation( L\"P:\", 0, &orient7, &result7 );\n",
          "double orient7 = 0;\n"
          "pConnection->m_IwApp->GetCommandMessage()->PromptForOrientation( L\"P:\", 0, &orient7);\n",
          "double orient7 = 0;\niwApp.GetCommandMessage().PromptForOrientation(\"P:\", 0, out orient7);\n",
          "var orient7 = mCmdMess.PromptForOrientation(\"P:\", 0);\n",
          "Dim orient7 As Double = 0\niwApp.GetCommandMessage().PromptForOrientation(\"P:\", 0, orient7)\n",
          "Dim IO_orient7 As Double\nIO_orient7 = 0\n"
          "iwApp.GetCommandMessage().PromptForOrientation \"P:\", 0, IO_orient7\n"}},
        {[](Writer& writer) { return EmitPromptScale(writer, "P:", 2); },
         {"double scale7 = 2;\nbool  result7;\ncmdMesage7->PromptForDouble( L\"P:\", 2, &scale7, &result7 );\n",
          "double scale7 = 2;\npConnection->m_IwApp->GetCommandMessage()->PromptForDouble( L\"P:\", 2, &scale7);\n",
          "double scale7 = 2;\niwApp.GetCommandMessage().PromptForDouble(\"P:\", 2,out scale7);\n",
          "var scale7 = mCmdMess.PromptForDouble(\"P:\", 2);\n",
          "Dim scale7 As Double = 2\niwApp.GetCommandMessage().PromptForDouble(\"P:\", 2, scale7)\n",
          "Dim IO_scale7 As Double\nIO_scale7 = 2\niwApp.GetCommandMessage().PromptForDouble \"P:\", 2, IO_scale7\n"}},
        {[](Writer& writer) { return EmitPromptDouble(writer, "P:", 2); },
         {"double real7 = 2;\nbool  result7;\ncmdMesage7->PromptForDouble( L\"P:\", 2, &real7, &result7 );\n",
          "double real7 = 2;\npConnection->m_IwApp->GetCommandMessage()->PromptForDouble( L\"P:\", 2, &real7);\n",
          "double real7 = 2;\niwApp.GetCommandMessage().PromptForDouble(\"P:\", 2, out real7);\n",
          "var real7 = mCmdMess.PromptForDouble(\"P:\", 2);\n",
          "Dim real7 As Double = 2\niwApp.GetCommandMessage().PromptForDouble(\"P:\", 2, real7)\n",
          "Dim IO_real7 As Double\nIO_real7 = 2\niwApp.GetCommandMessage().PromptForDouble \"P:\", 2, IO_real7\n"}},
        {[](Writer& writer) { return EmitPromptColor(writer, "P:", 5); },
         {"long color7 = 5;\nbool  result7;\ncmdMesage7->PromptForInteger( L\"P:\", 5, &color7, &result7 );\n",
          "long color7 = 5;\npConnection->m_IwApp->GetCommandMessage()->PromptForInteger( L\"P:\", 5, &color7);\n",
          "int color7 = 5;\niwApp.GetCommandMessage().PromptForInteger(\"P:\", 5, out color7);\n",
          "var color7 = mCmdMess.PromptForInteger(\"P:\", 5);\n",
          "Dim color7 As Integer = 5\niwApp.GetCommandMessage().PromptForInteger(\"P:\", 5, color7)\n",
          "Dim IO_color7 As Integer\nIO_color7 = 5\n"
          "iwApp.GetCommandMessage().PromptForInteger \"P:\", 5, IO_color7\n"}},
        {[](Writer& writer) { return EmitPromptInteger(writer, "P:", -5); },
         {"long integer7 = -5;\nbool  result7;\ncmdMesage7->PromptForInteger( L\"P:\", -5, &integer7, &result7 );\n",
          "long integer7 = -5;\n"
          "pConnection->m_IwApp->GetCommandMessage()->PromptForInteger( L\"P:\", -5, &integer7);\n",
          "int integer7 = -5;\niwApp.GetCommandMessage().PromptForInteger(\"P:\", -5, out integer7);\n",
          "var integer7 = mCmdMess.PromptForInteger(\"P:\", -5);\n",
          "Dim integer7 As Integer = -5\niwApp.GetCommandMessage().PromptForInteger(\"P:\", -5, integer7)\n",
          "Dim IO_integer7 As Integer\nIO_integer7 = -5\n"
          "iwApp.GetCommandMessage().PromptForInteger \"P:\", -5, IO_integer7\n"}},
        {[](Writer& writer) { return EmitPromptString(writer, "P:", "a\\b"); },
         {"iwString text7 = L\"a\\b\";\nbool  result7;\n"
          "cmdMesage7->PromptForString( true, L\"P:\", L\"a\\b\", &text7, &result7 );\n",
          "BSTR text7 = L\"a\\b\";\n"
          "pConnection->m_IwApp->GetCommandMessage()->PromptForString( true, L\"P:\", L\"a\\b\", &text7);\n",
          "string text7 = \"a\\b\";\n"
          "iwApp.GetCommandMessage().PromptForString( true, \"P:\", \"a\\b\", out text7);\n",
          "var text7 = mCmdMess.PromptForString( true, \"P:\", \"a\\b\");\n",
          "Dim text7 As String = \"a\\b\"\n"
          "iwApp.GetCommandMessage().PromptForString( True, \"P:\", \"a\\b\", text7)\n",
          "Dim IO_text7 As String\nIO_text7 = \"a\\b\"\n"
          "iwApp.GetCommandMessage().PromptForString True, \"P:\", \"a\\b\", IO_text7\n"}},
        {[](Writer& writer) {
             return EmitPromptCorner(writer, "P:", {1, 2.5, -3});
         },
         {"double x7 = 1, y7 = 2.5, z7 = -3;\nbool  result7;\n"
          "cmdMesage7->PromptForPoint( L\"P:\", &x7, &y7, &z7, &result7 );\n",
          "double x7 = 1, y7 = 2.5, z7 = -3;\n"
          "pConnection->m_IwApp->GetCommandMessage()->PromptForPoint( L\"P:\", &x7, &y7, &z7);\n",
          "double x7 = 1, y7 = 2.5, z7 = -3;\n"
          "iwApp.GetCommandMessage().PromptForPoint(\"P:\", out x7,out  y7,out z7);\n",
          "var x7 = 1, y7 = 2.5, z7 = -3;\nvar results = mCmdMess.PromptForPoint(\"P:\");\n"
          "x7 = results[0];\ny7 = results[1];\nz7 = results[2];\n",
          "Dim x7 As Double = 1, y7 As Double = 2.5, z7 As Double = -3\n"
          "iwApp.GetCommandMessage().PromptForPoint(\"P:\", x7, y7, z7)\n",
          "Dim IOCorner_x7 As Double, IOCorner_y7 As Double, IOCorner_z7 As Double\n"
          "IOCorner_x7 = 1\nIOCorner_y7 = 2.5\nIOCorner_z7 = -3\n"
          "iwApp.GetCommandMessage().PromptForPoint \"P:\", IOCorner_x7, IOCorner_y7, IOCorner_z7\n"}},
    };
    for (const auto& [ask, expected] : rows)
        expectStatements(ask, expected);
}

TEST(PromptStatements, BuildAStageForAPoint)
{
    expectStatements(
        [](Writer& writer) {
            return EmitPromptPoint(writer, "P:", {1, 2.5, -3});
        },
        {"iwMathUtility_ptr m_pMathUtil7;\niwMathPlane_ptr plane7;\n"
         "m_pIwApp->GetMathUtility( &m_pMathUtil7 );\nm_pMathUtil7->CreateYZPlane( &plane7 );\n"
         "double x7 = 1, y7 = 2.5, z7 = -3;\niwMathPoint_ptr basePoint7, defaultPoint7, resultPoint7;\n"
         "m_pMathUtil7->CreatePoint( x7, y7, z7, &defaultPoint7);\n"
         "m_pMathUtil7->CreatePoint( 0, 0, 0, &basePoint7 );\niwPromptResultType_e result7;\n"
         "iwString resultKeyword7;\niwStringArray iwStringArray7;\n"
         "cmdMesage7->PromptForPointOrKeyword( L\"P:\", L\"Error message\", iwStringArray7,\n"
         "iwStringArray7, 0, false, defaultPoint7, basePoint7, &resultKeyword7, &resultPoint7, plane7, "
         "&result7 );\n\n",
         "IMathUtilityPtr m_pMathUtil7;\nIMathPlanePtr plane7;\n"
         "m_pMathUtil7 = pConnection->m_IwApp->GetMathUtility();\nplane7 = m_pMathUtil7->CreateYZPlane();\n"
         "double x7 = 1, y7 = 2.5, z7 = -3;\nIMathPointPtr basePoint7, defaultPoint7, resultPoint7;\n"
         "defaultPoint7 = m_pMathUtil7->CreatePoint( x7, y7, z7);\n"
         "basePoint7 = m_pMathUtil7->CreatePoint( 0, 0, 0 );\nICommandMessagePtr cmdMesage7;\n"
         "cmdMesage7 = pConnection->m_IwApp->GetCommandMessage();\nBSTR resultKeyword7;\nVARIANT iwStringArray7;\n"
         "iwStringArray7.vt = ( VT_ARRAY | VT_BSTR );\n"
         "iwStringArray7.parray = SafeArrayCreateVector( VT_BSTR, 0, 0 );\n"
         "cmdMesage7->PromptForPointOrKeyword( L\"P:\", L\"Error message\", iwStringArray7,\n"
         "iwStringArray7, 0, false, defaultPoint7, basePoint7, &resultKeyword7, &resultPoint7, plane7 );\n\n",
         "MathUtility m_pMathUtil7;\nMathPlane plane7;\nm_pMathUtil7 = iwApp.GetMathUtility();\n"
         "plane7 = m_pMathUtil7.CreateYZPlane();\ndouble x7 = 1, y7 = 2.5, z7 = -3;\n"
         "MathPoint basePoint7, defaultPoint7, resultPoint7;\n"
         "defaultPoint7 = m_pMathUtil7.CreatePoint( x7, y7, z7);\n"
         "basePoint7 = m_pMathUtil7.CreatePoint( 0, 0, 0 );\nCommandMessage cmdMesage7;\n"
         "cmdMesage7 = iwApp.GetCommandMessage();\nString resultKeyword7;\nobject iwStringArray7 = new object();\n"
         "cmdMesage7.PromptForPointOrKeyword( \"P:\", \"Error message\", iwStringArray7,\n"
         "iwStringArray7, 0, false, defaultPoint7, basePoint7, out resultKeyword7, out resultPoint7, plane7 );\n\n",
         "var m_pMathUtil7 = mApp.GetMathUtility();\nvar plane7 = m_pMathUtil7.CreateYZPlane();\n"
         "var x7 = 1, y7 = 2.5, z7 = -3;\nvar defaultPoint7 = m_pMathUtil7.CreatePoint( x7, y7, z7);\n"
         "var basePoint7 = m_pMathUtil7.CreatePoint( 0, 0, 0 );\nvar iwStringArray7 = new Array();\n"
         "var results = mCmdMess.PromptForPointOrKeyword( \"P:\", \"Error message\", iwStringArray7,\n"
         "iwStringArray7, 0, false, defaultPoint7, basePoint7, plane7 );\n"
         "var resultKeyword7 = results[0];\nvar resultPoint7 = results[1];\n\n",
         "Dim m_pMathUtil7 As Inkwright.MathUtility \nDim plane7 As Inkwright.MathPlane\n"
         "m_pMathUtil7 = iwApp.GetMathUtility()\nplane7 = m_pMathUtil7.CreateYZPlane()\n"
         "Dim x7 As Double = 1, y7 As Double = 2.5, z7 As Double = -3\n"
         "Dim basePoint7 As Inkwright.MathPoint, defaultPoint7 As Inkwright.MathPoint, "
         "resultPoint7 As Inkwright.MathPoint\n"
         "defaultPoint7 = m_pMathUtil7.CreatePoint( x7, y7, z7)\n"
         "basePoint7 = m_pMathUtil7.CreatePoint( 0, 0, 0 )\nDim cmdMesage7 As Inkwright.CommandMessage\n"
         "cmdMesage7 = iwApp.GetCommandMessage()\nDim resultKeyword7 As String\n"
         "Dim iwStringArray7 As Object = New Object()\n"
         "cmdMesage7.PromptForPointOrKeyword( \"P:\", \"Error message\", iwStringArray7, "
         "iwStringArray7, 0, False, defaultPoint7, basePoint7, resultKeyword7, resultPoint7, plane7 )\n\n",
         "Dim m_pMathUtil7 As Inkwright.MathUtility\nDim plane7 As Inkwright.MathPlane\n"
         "Set m_pMathUtil7 = iwApp.GetMathUtility()\nSet plane7 = m_pMathUtil7.CreateYZPlane()\n"
         "Dim IOPoint_x7 As Double, IOPoint_y7 As Double, IOPoint_z7 As Double\n"
         "IOPoint_x7 = 1\nIOPoint_y7 = 2.5\nIOPoint_z7 = -3\n"
         "Dim basePoint7 As Inkwright.MathPoint, defaultPoint7 As Inkwright.MathPoint, "
         "resultPoint7 As Inkwright.MathPoint\n"
         "Set defaultPoint7 = m_pMathUtil7.CreatePoint( IOPoint_x7, IOPoint_y7, IOPoint_z7)\n"
         "Set basePoint7 = m_pMathUtil7.CreatePoint( 0, 0, 0 )\nDim cmdMesage7 As Inkwright.CommandMessage\n"
         "Set cmdMesage7 = iwApp.GetCommandMessage()\nDim resultKeyword7 As String\n"
         "Dim iwStringArray7 As Variant\n"
         "cmdMesage7.PromptForPointOrKeyword \"P:\", \"Error message\", iwStringArray7, "
         "iwStringArray7, 0, False, defaultPoint7, basePoint7, resultKeyword7, resultPoint7, plane7\n\n"});
}

TEST(PromptStatements, ListKeywords)
{
    expectStatements(
        [](Writer& writer) {
            return EmitPromptKeyword(writer, "P:", {"Ja", "Nein"}, {"_Yes", "_No"});
        },
        {"iwStringArray iwlocal6;\niwStringArray iwglobal6;\niwString keyword6 = L\"Ja\";\niwlocal6.add(L\"Ja\");\n"
         "iwglobal6.add(L\"_Yes\");\niwlocal6.add(L\"Nein\");\niwglobal6.add(L\"_No\");\n\n"
         "iwString value7;\niwString  ErrorMsg7;\niwPromptResultType_e result7;\n"
         "cmdMesage7->PromptForKeyword2(L\"P:\",ErrorMsg7,iwglobal6,iwlocal6,1, keyword6, &value7,&result7);\n",
         "VARIANT iwlocal6;\nVARIANT iwglobal6;\niwlocal6.vt = ( VT_ARRAY | VT_BSTR );\n"
         "iwlocal6.parray = SafeArrayCreateVector( VT_BSTR, 0, 2 );\niwglobal6.vt = ( VT_ARRAY | VT_BSTR );\n"
         "iwglobal6.parray = SafeArrayCreateVector( VT_BSTR, 0, 2 );\nBSTR keyword6 = L\"Ja\";\n"
         "long index6 = 0;\nBSTR str6;\n"
         "str6 = SysAllocString(L\"Ja\");\nindex6 = index6 + 1;\n"
         "SafeArrayPutElement( iwlocal6.parray, &index6, str6 );\nstr6 = SysAllocString(L\"_Yes\");\n"
         "SafeArrayPutElement( iwglobal6.parray, &index6, str6 );\n"
         "str6 = SysAllocString(L\"Nein\");\nindex6 = index6 + 1;\n"
         "SafeArrayPutElement( iwlocal6.parray, &index6, str6 );\nstr6 = SysAllocString(L\"_No\");\n"
         "SafeArrayPutElement( iwglobal6.parray, &index6, str6 );\n\n"
         "BSTR value7;\nBSTR ErrorMsg7=L\"\";\npConnection->m_IwApp->GetCommandMessage()->PromptForKeyword2( "
         "L\"P:\",ErrorMsg7,iwglobal6,iwlocal6,1, keyword6, &value7);\n",
         "object[] iwlocal6 = new string[2];\nobject[] iwglobal6 = new string[2];\nString keyword6 = \"Ja\";\n"
         "iwlocal6[0] = \"Ja\";\niwglobal6[0] = \"_Yes\";\niwlocal6[1] = \"Nein\";\niwglobal6[1] = \"_No\";\n\n"
         "string value7;\nstring ErrorMsg7=\"\";\niwApp.GetCommandMessage().PromptForKeyword2("
         "\"P:\",ErrorMsg7,iwglobal6,iwlocal6,1, keyword6, out value7);\n",
         "var iwlocal6 = new Array();\nvar iwglobal6 = new Array();\nvar keyword6 = \"Ja\";\n"
         "iwlocal6[0] = \"Ja\";\niwglobal6[0] = \"_Yes\";\niwlocal6[1] = \"Nein\";\niwglobal6[1] = \"_No\";\n\n"
         "var value7;\nvar ErrorMsg7;\n"
         "var result = mCmdMess.PromptForKeyword2(\"P:\",ErrorMsg7,iwglobal6,iwlocal6,1, keyword6);\n",
         "Dim iwlocal6(2) As String\nDim iwglobal6(2) As String\nDim keyword6 As String  = \"Ja\"\n"
         "iwlocal6(0) = \"Ja\"\niwglobal6(0) = \"_Yes\"\niwlocal6(1) = \"Nein\"\niwglobal6(1) = \"_No\"\n\n"
         "Dim value7 As String \nDim ErrorMsg7 As String =\"\"\niwApp.GetCommandMessage().PromptForKeyword2("
         "\"P:\",ErrorMsg7,iwglobal6,iwlocal6,1, keyword6, value7)\n",
         "Dim iwlocal6(2) As String\nDim iwglobal6(2) As String\nDim keyword6 As String\nkeyword6 = \"Ja\"\n"
         "iwlocal6(0) = \"Ja\"\niwglobal6(0) = \"_Yes\"\niwlocal6(1) = \"Nein\"\niwglobal6(1) = \"_No\"\n\n"
         "Dim value7 As String \nDim ErrorMsg7 As String\nErrorMsg7 = \"\"\niwApp.GetCommandMessage()."
         "PromptForKeyword2 \"P:\", ErrorMsg7, iwglobal6, iwlocal6, 1, keyword6, value7\n"});

    TestTarget basic(Target::Vba, 1);
    EXPECT_TRUE(textOf(EmitPromptKeyword(basic.writer, "P:", {}, {"_Yes"}))
                    .startsWith("    Dim iwlocal0(0) As String\n    Dim iwglobal0(0) As String\n"
                                "    Dim keyword0 As String\n    keyword0 = \"\"\n\n    Dim value1 As String \n"));
    TestTarget com(Target::CppCom, 1);
    EXPECT_TRUE(
        textOf(EmitPromptKeyword(com.writer, "P:", {}, {}))
            .contains("    BSTR keyword0 = L\"\";\n    long index0 = 0;\n    BSTR str0;\n\n    BSTR value1;\n"));
}

} // namespace
