// Prompts that are shown again: each offers the recorded answer and takes a fresh one.

#include "targets/prompts.h"

#include "statements/quoting.h"

using namespace inkmacro;

static Statement prompted(Writer& writer, const Phrase& phrase, const CFxString& prompt, const OdGePoint3d& value)
{
    return writer.fill(phrase).number(++writer.UniqueCounter).text(prompt).shortPoint(value);
}

static Statement prompted(Writer& writer, const Phrase& phrase, const CFxString& prompt, double value)
{
    return writer.fill(phrase).number(++writer.UniqueCounter).text(prompt).shortReal(value);
}

static Statement prompted(Writer& writer, const Phrase& phrase, const CFxString& prompt, std::int32_t value)
{
    return writer.fill(phrase).number(++writer.UniqueCounter).text(prompt).number(value);
}

/// The point's prompt can be answered with a keyword as well, so it has lists of them, both empty.
static const Phrase promptPoint{
    "EmitPromptPoint",
    {
        .cpp = "%1iwMathUtility_ptr m_pMathUtil%3;%2%1iwMathPlane_ptr plane%3;%2"
               "%1m_pIwApp->GetMathUtility( &m_pMathUtil%3 );%2%1m_pMathUtil%3->CreateYZPlane( &plane%3 );%2"
               "%1double x%3 = %5, y%3 = %6, z%3 = %7;%2"
               "%1iwMathPoint_ptr basePoint%3, defaultPoint%3, resultPoint%3;%2"
               "%1m_pMathUtil%3->CreatePoint( x%3, y%3, z%3, &defaultPoint%3);%2"
               "%1m_pMathUtil%3->CreatePoint( 0, 0, 0, &basePoint%3 );%2"
               "%1iwPromptResultType_e result%3;%2%1iwCommandMessage_c* cmdMesage%3;%2"
               "%1m_pIwApp->GetCommandMessage(&cmdMesage%3);%2%1iwString resultKeyword%3;%2"
               "%1iwStringArray iwStringArray%3;%2"
               "%1cmdMesage%3->PromptForPointOrKeyword( L\"%4\", L\"Error message\", iwStringArray%3,%2"
               "%1iwStringArray%3, 0, false, defaultPoint%3, basePoint%3, &resultKeyword%3, &resultPoint%3, plane%3, "
               "&result%3 );%2%2",
        .cppCom = "%1IMathUtilityPtr m_pMathUtil%3;%2%1IMathPlanePtr plane%3;%2"
                  "%1m_pMathUtil%3 = pConnection->m_IwApp->GetMathUtility();%2"
                  "%1plane%3 = m_pMathUtil%3->CreateYZPlane();%2%1double x%3 = %5, y%3 = %6, z%3 = %7;%2"
                  "%1IMathPointPtr basePoint%3, defaultPoint%3, resultPoint%3;%2"
                  "%1defaultPoint%3 = m_pMathUtil%3->CreatePoint( x%3, y%3, z%3);%2"
                  "%1basePoint%3 = m_pMathUtil%3->CreatePoint( 0, 0, 0 );%2%1ICommandMessagePtr cmdMesage%3;%2"
                  "%1cmdMesage%3 = pConnection->m_IwApp->GetCommandMessage();%2%1BSTR resultKeyword%3;%2"
                  "%1VARIANT iwStringArray%3;%2%1iwStringArray%3.vt = ( VT_ARRAY | VT_BSTR );%2"
                  "%1iwStringArray%3.parray = SafeArrayCreateVector( VT_BSTR, 0, 0 );%2"
                  "%1cmdMesage%3->PromptForPointOrKeyword( L\"%4\", L\"Error message\", iwStringArray%3,%2"
                  "%1iwStringArray%3, 0, false, defaultPoint%3, basePoint%3, &resultKeyword%3, &resultPoint%3, "
                  "plane%3 );%2%2",
        .csharp = "%1MathUtility m_pMathUtil%3;%2%1MathPlane plane%3;%2%1m_pMathUtil%3 = iwApp.GetMathUtility();%2"
                  "%1plane%3 = m_pMathUtil%3.CreateYZPlane();%2%1double x%3 = %5, y%3 = %6, z%3 = %7;%2"
                  "%1MathPoint basePoint%3, defaultPoint%3, resultPoint%3;%2"
                  "%1defaultPoint%3 = m_pMathUtil%3.CreatePoint( x%3, y%3, z%3);%2"
                  "%1basePoint%3 = m_pMathUtil%3.CreatePoint( 0, 0, 0 );%2%1CommandMessage cmdMesage%3;%2"
                  "%1cmdMesage%3 = iwApp.GetCommandMessage();%2%1String resultKeyword%3;%2"
                  "%1object iwStringArray%3 = new object();%2"
                  "%1cmdMesage%3.PromptForPointOrKeyword( \"%4\", \"Error message\", iwStringArray%3,%2"
                  "%1iwStringArray%3, 0, false, defaultPoint%3, basePoint%3, out resultKeyword%3, out resultPoint%3, "
                  "plane%3 );%2%2",
        .javascript = "%1var m_pMathUtil%3 = mApp.GetMathUtility();%2%1var plane%3 = m_pMathUtil%3.CreateYZPlane();%2"
                      "%1var x%3 = %5, y%3 = %6, z%3 = %7;%2"
                      "%1var defaultPoint%3 = m_pMathUtil%3.CreatePoint( x%3, y%3, z%3);%2"
                      "%1var basePoint%3 = m_pMathUtil%3.CreatePoint( 0, 0, 0 );%2"
                      "%1var iwStringArray%3 = new Array();%2"
                      "%1var results = mCmdMess.PromptForPointOrKeyword( \"%4\", \"Error message\", iwStringArray%3,%2"
                      "%1iwStringArray%3, 0, false, defaultPoint%3, basePoint%3, plane%3 );%2"
                      "%1var resultKeyword%3 = results[0];%2%1var resultPoint%3 = results[1];%2%2",
        .vbNet = "%1Dim m_pMathUtil%3 As Inkwright.MathUtility %2%1Dim plane%3 As Inkwright.MathPlane%2"
                 "%1m_pMathUtil%3 = iwApp.GetMathUtility()%2%1plane%3 = m_pMathUtil%3.CreateYZPlane()%2"
                 "%1Dim x%3 As Double = %5, y%3 As Double = %6, z%3 As Double = %7%2"
                 "%1Dim basePoint%3 As Inkwright.MathPoint, defaultPoint%3 As Inkwright.MathPoint, "
                 "resultPoint%3 As Inkwright.MathPoint%2"
                 "%1defaultPoint%3 = m_pMathUtil%3.CreatePoint( x%3, y%3, z%3)%2"
                 "%1basePoint%3 = m_pMathUtil%3.CreatePoint( 0, 0, 0 )%2"
                 "%1Dim cmdMesage%3 As Inkwright.CommandMessage%2%1cmdMesage%3 = iwApp.GetCommandMessage()%2"
                 "%1Dim resultKeyword%3 As String%2%1Dim iwStringArray%3 As Object = New Object()%2"
                 "%1cmdMesage%3.PromptForPointOrKeyword( \"%4\", \"Error message\", iwStringArray%3, "
                 "iwStringArray%3, 0, False, defaultPoint%3, basePoint%3, resultKeyword%3, resultPoint%3, "
                 "plane%3 )%2%2",
        .vba = "%1Dim m_pMathUtil%3 As Inkwright.MathUtility%2%1Dim plane%3 As Inkwright.MathPlane%2"
               "%1Set m_pMathUtil%3 = iwApp.GetMathUtility()%2%1Set plane%3 = m_pMathUtil%3.CreateYZPlane()%2"
               "%1Dim IOPoint_x%3 As Double, IOPoint_y%3 As Double, IOPoint_z%3 As Double%2"
               "%1IOPoint_x%3 = %5%2%1IOPoint_y%3 = %6%2%1IOPoint_z%3 = %7%2"
               "%1Dim basePoint%3 As Inkwright.MathPoint, defaultPoint%3 As Inkwright.MathPoint, "
               "resultPoint%3 As Inkwright.MathPoint%2"
               "%1Set defaultPoint%3 = m_pMathUtil%3.CreatePoint( IOPoint_x%3, IOPoint_y%3, IOPoint_z%3)%2"
               "%1Set basePoint%3 = m_pMathUtil%3.CreatePoint( 0, 0, 0 )%2"
               "%1Dim cmdMesage%3 As Inkwright.CommandMessage%2%1Set cmdMesage%3 = iwApp.GetCommandMessage()%2"
               "%1Dim resultKeyword%3 As String%2%1Dim iwStringArray%3 As Variant%2"
               "%1cmdMesage%3.PromptForPointOrKeyword \"%4\", \"Error message\", iwStringArray%3, "
               "iwStringArray%3, 0, False, defaultPoint%3, basePoint%3, resultKeyword%3, resultPoint%3, plane%3%2%2",
    }};

Statement EmitPromptPoint(Writer& writer, const CFxString& prompt, const OdGePoint3d& value)
{
    return prompted(writer, promptPoint, prompt, value);
}

static const Phrase promptCorner{
    "EmitPromptCorner",
    {
        .cpp = "%1double x%3 = %5, y%3 = %6, z%3 = %7;%2%1bool  result%3;%2%1iwCommandMessage_c* cmdMesage%3;%2"
               "%1m_pIwApp->GetCommandMessage(&cmdMesage%3);%2"
               "%1cmdMesage%3->PromptForPoint( L\"%4\", &x%3, &y%3, &z%3, &result%3 );%2",
        .cppCom = "%1double x%3 = %5, y%3 = %6, z%3 = %7;%2"
                  "%1pConnection->m_IwApp->GetCommandMessage()->PromptForPoint( L\"%4\", &x%3, &y%3, &z%3);%2",
        .csharp = "%1double x%3 = %5, y%3 = %6, z%3 = %7;%2"
                  "%1iwApp.GetCommandMessage().PromptForPoint(\"%4\", out x%3,out  y%3,out z%3);%2",
        .javascript = "%1var x%3 = %5, y%3 = %6, z%3 = %7;%2%1var results = mCmdMess.PromptForPoint(\"%4\");%2"
                      "%1x%3 = results[0];%2%1y%3 = results[1];%2%1z%3 = results[2];%2",
        .vbNet = "%1Dim x%3 As Double = %5, y%3 As Double = %6, z%3 As Double = %7%2"
                 "%1iwApp.GetCommandMessage().PromptForPoint(\"%4\", x%3, y%3, z%3)%2",
        .vba = "%1Dim IOCorner_x%3 As Double, IOCorner_y%3 As Double, IOCorner_z%3 As Double%2"
               "%1IOCorner_x%3 = %5%2%1IOCorner_y%3 = %6%2%1IOCorner_z%3 = %7%2"
               "%1iwApp.GetCommandMessage().PromptForPoint \"%4\", IOCorner_x%3, IOCorner_y%3, IOCorner_z%3%2",
    }};

Statement EmitPromptCorner(Writer& writer, const CFxString& prompt, const OdGePoint3d& value)
{
    return prompted(writer, promptCorner, prompt, value);
}

/// In VBA a marker's `%` is missing behind `Double`: the 2 and the next statement stand on the declaration's line. That
/// fault is expected there.
static const Phrase promptAngle{
    "EmitPromptAngle",
    {
        .cpp = "%1double angle%3 = %5;%2%1bool  result%3;%2%1iwCommandMessage_c* cmdMesage%3;%2"
               "%1m_pIwApp->GetCommandMessage(&cmdMesage%3);%2"
               "%1cmdMesage%3->PromptForAngle( L\"%4\", %5, &angle%3, &result%3 );%2",
        .cppCom = "%1double angle%3 = %5;%2"
                  "%1pConnection->m_IwApp->GetCommandMessage()->PromptForAngle( L\"%4\", %5, &angle%3);%2",
        .csharp = "%1double angle%3 = %5;%2%1iwApp.GetCommandMessage().PromptForAngle(\"%4\", %5, out angle%3);%2",
        .javascript = "%1var angle%3 = mCmdMess.PromptForAngle(\"%4\", %5);%2",
        .vbNet = "%1Dim angle%3 As Double = %5%2"
                 "%1iwApp.GetCommandMessage().PromptForAngle(\"%4\", %5, angle%3)%2",
        .vba = "%1Dim IO_angle%3 As Double2%1IO_angle%3 = %5%2"
               "%1iwApp.GetCommandMessage().PromptForAngle \"%4\", %5, IO_angle%3%2",
    }};
static const Mend basicAngle(promptAngle, Target::Vba,
                             "the sign of a placeholder is missing, so the assignment stands in the declaration",
                             "%1Dim IO_angle%3 As Double%2%1IO_angle%3 = %5%2"
                             "%1iwApp.GetCommandMessage().PromptForAngle \"%4\", %5, IO_angle%3%2");

Statement EmitPromptAngle(Writer& writer, const CFxString& prompt, double value)
{
    return prompted(writer, promptAngle, prompt, value);
}

/// The other prompts for one number: the variable, its types in C++, C# and Basic, the call. `out` has C#'s word with
/// the blanks around it, which are not the same everywhere.
#define NUMBER_PROMPT(variable, cppType, sharpType, basicType, call, out)                                              \
    {                                                                                                                  \
        .cpp = "%1" cppType " " variable "%3 = %5;%2%1bool  result%3;%2%1iwCommandMessage_c* cmdMesage%3;%2"           \
               "%1m_pIwApp->GetCommandMessage(&cmdMesage%3);%2"                                                        \
               "%1cmdMesage%3->" call "( L\"%4\", %5, &" variable "%3, &result%3 );%2",                                \
        .cppCom = "%1" cppType " " variable "%3 = %5;%2"                                                               \
                  "%1pConnection->m_IwApp->GetCommandMessage()->" call "( L\"%4\", %5, &" variable "%3);%2",           \
        .csharp = "%1" sharpType " " variable "%3 = %5;%2"                                                             \
                  "%1iwApp.GetCommandMessage()." call "(\"%4\", %5," out variable "%3);%2",                            \
        .javascript = "%1var " variable "%3 = mCmdMess." call "(\"%4\", %5);%2",                                       \
        .vbNet = "%1Dim " variable "%3 As " basicType " = %5%2"                                                        \
                 "%1iwApp.GetCommandMessage()." call "(\"%4\", %5, " variable "%3)%2",                                 \
        .vba = "%1Dim IO_" variable "%3 As " basicType "%2%1IO_" variable "%3 = %5%2"                                  \
               "%1iwApp.GetCommandMessage()." call " \"%4\", %5, IO_" variable "%3%2",                                 \
    }
#define REAL_PROMPT(variable, call, out) NUMBER_PROMPT(variable, "double", "double", "Double", call, out)
#define INTEGER_PROMPT(variable) NUMBER_PROMPT(variable, "long", "int", "Integer", "PromptForInteger", " out ")

static const Phrase promptDistance{"EmitPromptDistance", REAL_PROMPT("distance", "PromptForDistance", " out ")};
static const Phrase promptOrient{"EmitPromptOrient", REAL_PROMPT("orient", "PromptForOrientation", " out ")};
static const Phrase promptScale{"EmitPromptScale", REAL_PROMPT("scale", "PromptForDouble", "out ")};
static const Phrase promptDouble{"EmitPromptDouble", REAL_PROMPT("real", "PromptForDouble", " out ")};
static const Phrase promptColor{"EmitPromptColor", INTEGER_PROMPT("color")};
static const Phrase promptInteger{"EmitPromptInteger", INTEGER_PROMPT("integer")};

#undef INTEGER_PROMPT
#undef REAL_PROMPT
#undef NUMBER_PROMPT

Statement EmitPromptDistance(Writer& writer, const CFxString& prompt, double value)
{
    return prompted(writer, promptDistance, prompt, value);
}

Statement EmitPromptOrient(Writer& writer, const CFxString& prompt, double value)
{
    return prompted(writer, promptOrient, prompt, value);
}

Statement EmitPromptScale(Writer& writer, const CFxString& prompt, double value)
{
    return prompted(writer, promptScale, prompt, value);
}

Statement EmitPromptDouble(Writer& writer, const CFxString& prompt, double value)
{
    return prompted(writer, promptDouble, prompt, value);
}

/// The number of a color, not a color object.
Statement EmitPromptColor(Writer& writer, const CFxString& prompt, std::int32_t value)
{
    return prompted(writer, promptColor, prompt, value);
}

Statement EmitPromptInteger(Writer& writer, const CFxString& prompt, std::int32_t value)
{
    return prompted(writer, promptInteger, prompt, value);
}

static const Phrase promptString{
    "EmitPromptString",
    {
        .cpp = "%1iwString text%3 = L\"%5\";%2%1bool  result%3;%2%1iwCommandMessage_c* cmdMesage%3;%2"
               "%1m_pIwApp->GetCommandMessage(&cmdMesage%3);%2"
               "%1cmdMesage%3->PromptForString( true, L\"%4\", L\"%5\", &text%3, &result%3 );%2",
        .cppCom = "%1BSTR text%3 = L\"%5\";%2"
                  "%1pConnection->m_IwApp->GetCommandMessage()->PromptForString( true, L\"%4\", L\"%5\", &text%3);%2",
        .csharp = "%1string text%3 = \"%5\";%2"
                  "%1iwApp.GetCommandMessage().PromptForString( true, \"%4\", \"%5\", out text%3);%2",
        .javascript = "%1var text%3 = mCmdMess.PromptForString( true, \"%4\", \"%5\");%2",
        .vbNet = "%1Dim text%3 As String = \"%5\"%2"
                 "%1iwApp.GetCommandMessage().PromptForString( True, \"%4\", \"%5\", text%3)%2",
        .vba = "%1Dim IO_text%3 As String%2%1IO_text%3 = \"%5\"%2"
               "%1iwApp.GetCommandMessage().PromptForString True, \"%4\", \"%5\", IO_text%3%2",
    }};
static const Mend bstrAnswer(promptString, Target::CppCom, literalIsNoBstr, textsAsBstr);

Statement EmitPromptString(Writer& writer, const CFxString& prompt, const CFxString& value)
{
    return writer.fill(promptString).number(++writer.UniqueCounter).text(prompt).text(value);
}

/// Only some targets give their lists a size, the last value. COM puts the elements in through an index and a string,
/// and raises the index before the first.
static const Phrase keywordLists{
    "EmitPromptKeyword: lists",
    {
        .cpp = "%1iwStringArray iwlocal%2;\n%1iwStringArray iwglobal%2;\n%1iwString keyword%2 = L\"%3\";\n",
        .cppCom = "%1VARIANT iwlocal%2;\n%1VARIANT iwglobal%2;\n%1iwlocal%2.vt = ( VT_ARRAY | VT_BSTR );\n"
                  "%1iwlocal%2.parray = SafeArrayCreateVector( VT_BSTR, 0, %4 );\n"
                  "%1iwglobal%2.vt = ( VT_ARRAY | VT_BSTR );\n"
                  "%1iwglobal%2.parray = SafeArrayCreateVector( VT_BSTR, 0, %4 );\n%1BSTR keyword%2 = L\"%3\";\n"
                  "%1long index%2 = 0;\n%1BSTR str%2;\n",
        .csharp = "%1object[] iwlocal%2 = new string[%4];\n%1object[] iwglobal%2 = new string[%4];\n"
                  "%1String keyword%2 = \"%3\";\n",
        .javascript = "%1var iwlocal%2 = new Array();\n%1var iwglobal%2 = new Array();\n%1var keyword%2 = \"%3\";\n",
        .vbNet = "%1Dim iwlocal%2(%4) As String\n%1Dim iwglobal%2(%4) As String\n"
                 "%1Dim keyword%2 As String  = \"%3\"\n",
        .vba = "%1Dim iwlocal%2(%4) As String\n%1Dim iwglobal%2(%4) As String\n%1Dim keyword%2 As String\n"
               "%1keyword%2 = \"%3\"\n",
    }};
static const Mend bstrKeyword(keywordLists, Target::CppCom, literalIsNoBstr, textsAsBstr);

static const Phrase localKeyword{"EmitPromptKeyword: element of a list",
                                 {
                                     .cpp = "%1iwlocal%2.add(L\"%3\");\n",
                                     .csharp = "%1iwlocal%2[%4] = \"%3\";\n",
                                     .javascript = "%1iwlocal%2[%4] = \"%3\";\n",
                                     .vbNet = "%1iwlocal%2(%4) = \"%3\"\n",
                                     .vba = "%1iwlocal%2(%4) = \"%3\"\n",
                                 }};

static const Phrase globalKeyword{"EmitPromptKeyword: element of a list",
                                  {
                                      .cpp = "%1iwglobal%2.add(L\"%3\");\n",
                                      .csharp = "%1iwglobal%2[%4] = \"%3\";\n",
                                      .javascript = "%1iwglobal%2[%4] = \"%3\";\n",
                                      .vbNet = "%1iwglobal%2(%4) = \"%3\"\n",
                                      .vba = "%1iwglobal%2(%4) = \"%3\"\n",
                                  }};

static const Phrase bothKeywords{
    "EmitPromptKeyword: element of both lists",
    {
        .cppCom = "%1str%5 = SysAllocString(L\"%2\");\n%1index%5 = index%5 + 1;\n"
                  "%1SafeArrayPutElement( iwlocal%3.parray, &index%5, str%5 );\n%1str%5 = SysAllocString(L\"%4\");\n"
                  "%1SafeArrayPutElement( iwglobal%3.parray, &index%5, str%5 );\n",
    }};
static const Mend keywordsFromFirst(
    bothKeywords, Target::CppCom, "the index is raised before the first element, so the last one lies behind the array",
    "%1str%5 = SysAllocString(L\"%2\");\n%1SafeArrayPutElement( iwlocal%3.parray, &index%5, str%5 );\n"
    "%1str%5 = SysAllocString(L\"%4\");\n%1SafeArrayPutElement( iwglobal%3.parray, &index%5, str%5 );\n"
    "%1index%5 = index%5 + 1;\n");

static const Phrase promptKeyword{
    "EmitPromptKeyword",
    {
        .cpp = "%1iwString value%3;%2%1iwString  ErrorMsg%3;%2%1iwPromptResultType_e result%3;%2"
               "%1iwCommandMessage_c* cmdMesage%3;%2%1m_pIwApp->GetCommandMessage(&cmdMesage%3);%2"
               "%1cmdMesage%3->PromptForKeyword2(L\"%4\",ErrorMsg%3,iwglobal%5,iwlocal%5,1, keyword%5, "
               "&value%3,&result%3);%2",
        .cppCom = "%1BSTR value%3;%2%1BSTR ErrorMsg%3=L\"\";%2"
                  "%1pConnection->m_IwApp->GetCommandMessage()->PromptForKeyword2( L\"%4\",ErrorMsg%3,iwglobal%5,"
                  "iwlocal%5,1, keyword%5, &value%3);%2",
        .csharp = "%1string value%3;%2%1string ErrorMsg%3=\"\";%2"
                  "%1iwApp.GetCommandMessage().PromptForKeyword2(\"%4\",ErrorMsg%3,iwglobal%5,iwlocal%5,1, keyword%5, "
                  "out value%3);%2",
        .javascript = "%1var value%3;%2%1var ErrorMsg%3;%2"
                      "%1var result = mCmdMess.PromptForKeyword2(\"%4\",ErrorMsg%3,iwglobal%5,iwlocal%5,1, "
                      "keyword%5);%2",
        .vbNet = "%1Dim value%3 As String %2%1Dim ErrorMsg%3 As String =\"\"%2"
                 "%1iwApp.GetCommandMessage().PromptForKeyword2(\"%4\",ErrorMsg%3,iwglobal%5,iwlocal%5,1, keyword%5, "
                 "value%3)%2",
        .vba = "%1Dim value%3 As String %2%1Dim ErrorMsg%3 As String%2%1ErrorMsg%3 = \"\"%2"
               "%1iwApp.GetCommandMessage().PromptForKeyword2 \"%4\", ErrorMsg%3, iwglobal%5, iwlocal%5, 1, "
               "keyword%5, value%3%2",
    }};
static const Mend bstrErrorMessage(promptKeyword, Target::CppCom, literalIsNoBstr, textsAsBstr);
static const Mend scriptKeyword(
    promptKeyword, Target::JavaScript, "the error message has no value",
    "%1var value%3;%2%1var ErrorMsg%3 = \"\";%2%1var result = mCmdMess.PromptForKeyword2(\"%4\",ErrorMsg%3,iwglobal%5,iwlocal%5,1, keyword%5);%2");

/// The lists bear the number in front of the call's own.
Statement EmitPromptKeyword(Writer& writer, const CFxString& prompt, const std::vector<CFxString>& local,
                            const std::vector<CFxString>& global)
{
    const std::uint32_t lists = writer.UniqueCounter;
    const auto line = [&](const Phrase& phrase) { return writer.fillIndented(phrase); };
    const CFxString first = local.empty() ? CFxString() : local.front();
    Statement text = line(keywordLists).number(lists).text(first).number(local.size());
    for (std::size_t i = 0; i < local.size(); ++i) {
        text += line(localKeyword).number(lists).text(local[i]).number(i).str();
        text += line(globalKeyword).number(lists).text(global[i]).number(i).str();
        text += line(bothKeywords).text(local[i]).number(lists).text(global[i]).number(lists).str();
    }
    text += QString('\n');
    return text + writer.fill(promptKeyword).number(++writer.UniqueCounter).text(prompt).number(lists).str();
}

bool AsksWhereRecorded(const Writer& writer)
{
    return promptPoint.has(writer.target);
}
