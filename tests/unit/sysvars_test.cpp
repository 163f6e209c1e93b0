// System variables and file locations: what a change of one becomes in each target.

#include "TestActions.h"
#include "TestTarget.h"

#include "actions/entries.h"
#include "actions/optionTable.h"
#include "targets/fileLocations.h"
#include "targets/options.h"

#include <gtest/gtest.h>

#include <set>

using namespace inkmacro;

namespace {

class ChangedVariable final : public CFxSysVarChanged
{
public:
    ChangedVariable(const char* name, OdResBuf::Value value)
        : name(name), value(odrxNew<OdResBuf>(OdResBuf::kRtString, std::move(value)))
    {
    }
    const CFxString& GetName() const override { return name; }
    OdResBufPtr GetValue() const override { return value; }

    CFxString name;
    OdResBufPtr value;
};

class ChangedLocation final : public CFxCustomAction
{
public:
    ChangedLocation(std::int32_t kind, const char* key, CFxCustomActionData::Value value)
        : kind(kind), data{CFxCustomActionData(CFxString(key)), CFxCustomActionData(std::move(value))}
    {
    }
    std::int32_t GetKind() const override { return kind; }
    std::int32_t GetDataCount() const override { return static_cast<std::int32_t>(data.size()); }
    const CFxCustomActionData& GetData(std::int32_t index) const override
    {
        return data.at(static_cast<std::size_t>(index));
    }

    std::int32_t kind;
    std::vector<CFxCustomActionData> data;
};

/// In the order of the language codes.
struct Expected
{
    const char* cpp;
    const char* csharp;
    const char* javascript;
    const char* vbNet;
    const char* cppCom;
    const char* vba;
};

const char* in(const Expected& expected, int language)
{
    const std::array texts{expected.cpp,   expected.csharp, expected.javascript,
                           expected.vbNet, expected.cppCom, expected.vba};
    return texts[static_cast<std::size_t>(language)];
}

constexpr int languages = 6;

/// Settings as the program makes them for a conversion to that language.
class SysVars : public testing::Test
{
protected:
    ~SysVars() override { speak(0); }

    static void speak(int language)
    {
        GetFxSystemServices()->SetInt16("RecordingLanguage", static_cast<std::int16_t>(language));
    }

    static std::string converted(TestTarget& target, const char* variable, OdResBuf::Value value,
                                 const QString& before = {})
    {
        Statement text = before;
        const auto change = odrxNew<ChangedVariable>(variable, std::move(value));
        EXPECT_EQ(ConvertSysVar(target.conversion, *change, text), kFxSuccess);
        return text.toStdString();
    }

    static std::string converted(TestTarget& target, std::int32_t kind, const char* key,
                                 CFxCustomActionData::Value value)
    {
        Statement text("what the command left");
        EXPECT_EQ(ConvertCustomAction(target.conversion, *odrxNew<ChangedLocation>(kind, key, std::move(value)), text),
                  kFxSuccess);
        EXPECT_EQ(target.writer.IndentLevel, 1U);
        return text.toStdString();
    }

    /// The variable's statement in all targets, each in a converter of its own.
    static void expectStatements(const char* variable, const OdResBuf::Value& value, const Expected& expected)
    {
        for (int language = 0; language < languages; ++language) {
            TestTarget target(static_cast<Target>(language), 1);
            EXPECT_EQ(converted(target, variable, value), in(expected, language)) << variable << ' ' << language;
        }
    }
};

std::string found(std::int32_t (*find)(const CFxString&, CFxString&, std::int32_t&), const char* variable)
{
    CFxString name = "before";
    std::int32_t kind = 99;
    const std::int32_t status = find(variable, name, kind);
    EXPECT_EQ(status == kFxSuccess, kind != -1) << variable;
    return name.toQString().toStdString() + ' ' + std::to_string(kind);
}

std::string command(const char* variable)
{
    return found(&FindCommandOption, variable);
}

std::string application(const char* variable)
{
    return found(&FindApplicationOption, variable);
}

TEST_F(SysVars, HaveTheEnumeratorsOfTheInterface)
{
    EXPECT_EQ(command("LIMCHECK"), "iwCommandOptionBool_EnblBnds 0");
    EXPECT_EQ(command("QTEXTMODE"), "iwCommandOptionBool_EnblBoxTxt 0");
    EXPECT_EQ(command("TILEMODE"), "iwCommandOptionBool_EnblVP 0");
    EXPECT_EQ(command("EXTNAMES"), "iwCommandOptionBool_LgcyEXTNAMES 0");
    EXPECT_EQ(command("OLESTARTUP"), "iwCommandOptionBool_SetFLXOLESTARTUP 0");
    EXPECT_EQ(command("DIMTOLJ"), "iwCommandOptionInt8_SetDmTolVJst 2");
    EXPECT_EQ(command("CECOLOR"), "iwCommandOptionInt16_SetActLClr 3");
    EXPECT_EQ(command("CHAMMODE"), "iwCommandOptionInt16_EnblChmfAng 3");
    EXPECT_EQ(command("PROXYGRAPHICS"), "iwCommandOptionInt16_SetFLXPROXYGRAPHICS 3");
    EXPECT_EQ(application("EDGEMODE"), "iwApplicationOptionInt16_EnblEdgeExtd 3");
    EXPECT_EQ(application("PICKFIRST"), "iwApplicationOptionBool_EnblEntSelPreSel 0");
    EXPECT_EQ(application("SAVETIME"), "iwApplicationOptionInt32_SetSvTm 4");
    EXPECT_EQ(application("ATTDIA"), "iwApplicationOptionBool_EnblBAttDlgs 0");
    EXPECT_EQ(application("BIGFONTALT"), "iwApplicationOptionString_SetAltBgFnt 7");
    // Told by the statements of fillets and chamfers.
    EXPECT_EQ(command("FILLETRAD"), "iwCommandOptionDouble_SetFltRad 1");
    EXPECT_EQ(command("CHAMFERA"), "iwCommandOptionDouble_SetChmfDst1 1");
    EXPECT_EQ(command("CHAMFERB"), "iwCommandOptionDouble_SetChmfDst2 1");
    EXPECT_EQ(command("CHAMFERC"), "iwCommandOptionDouble_SetChmfLen 1");
    EXPECT_EQ(command("CHAMFERD"), "iwCommandOptionDouble_SetChmfAng 1");
    // Made of a verb and the variable.
    EXPECT_EQ(command("ORTHOMODE"), "iwCommandOptionBool_EnblORTHOMODE 0");
    EXPECT_EQ(command("AREA"), "iwCommandOptionDouble_GetAREA 1");
    EXPECT_EQ(command("LIMMIN"), "iwCommandOptionPoint2d_SetLIMMIN 5");
    EXPECT_EQ(command("VSMAX"), "iwCommandOptionPoint3d_GetVSMAX 6");
    EXPECT_EQ(command("CLAYER"), "iwCommandOptionString_SetCLAYER 7");

    for (const char* unknown : {"", "chammode", "EDGEMODE", "PICKSTYLES"})
        EXPECT_EQ(command(unknown), " -1") << unknown;
    for (const char* unknown : {"", "Pickfirst", "LTSCALE"})
        EXPECT_EQ(application(unknown), " -1") << unknown;
}

TEST_F(SysVars, AreEachKnownOnceButOne)
{
    std::set<std::string> document;
    for (const OptionRow& row : OptionRows(OptionOwner::Document))
        document.insert(row.variable);
    std::set<std::string> application;
    std::set<std::string> both;
    for (const OptionRow& row : OptionRows(OptionOwner::Application)) {
        application.insert(row.variable);
        if (document.count(row.variable))
            both.insert(row.variable);
    }
    EXPECT_EQ(document.size(), 241U);
    EXPECT_EQ(application.size(), 93U);
    EXPECT_EQ(both, std::set<std::string>{"CHAMMODE"});
}

TEST_F(SysVars, TakeTheNamesThatTheHostGivesThem)
{
    CFxSystemServices* const services = GetFxSystemServices();
    services->SetOptionName("LTSCALE", "iwCommandOptionDouble_SetLnScl");
    services->SetOptionName("CHAMMODE", "iwApplicationOptionInt16_EnblAng");
    EXPECT_EQ(command("LTSCALE"), "iwCommandOptionDouble_SetLnScl 1");
    EXPECT_EQ(application("CHAMMODE"), "iwApplicationOptionInt16_EnblAng 3");
    EXPECT_EQ(command("CHAMMODE"), "iwCommandOptionInt16_EnblChmfAng 3");
    for (const char* variable : {"LTSCALE", "CHAMMODE"})
        services->SetOptionName(variable, {});
    EXPECT_EQ(command("LTSCALE"), "iwCommandOptionDouble_SetLTSCALE 1");
}

TEST_F(SysVars, BecomeDocumentOptionsByTheirKind)
{
    expectStatements(
        "QTEXTMODE", true,
        {
            "    {\n        iwSetCommandOptionResult_e result;\n        iwDocument_c* iwDoc;\n"
            "        m_pIwApp->GetActiveDocument(&iwDoc);\n"
            "        iwDoc->SetCommandOptionBool(iwCommandOptionBool_EnblBoxTxt, true,&result);\n    }\n",
            "    {\n        iwSetCommandOptionResult_e result1;\n        iwApp.GetActiveDocument()."
            "SetCommandOptionBool(iwCommandOptionBool_e.iwCommandOptionBool_EnblBoxTxt, true, out result1);\n    }\n",
            "    mDoc.SetCommandOptionBool(\"iwCommandOptionBool_EnblBoxTxt\", true);\n",
            "    If 1 Then\n        Dim result1 As Inkwright.iwSetCommandOptionResult_e \n"
            "        iwApp.GetActiveDocument().SetCommandOptionBool("
            "Inkwright.iwCommandOptionBool_e.iwCommandOptionBool_EnblBoxTxt, True,result1)\n    End If\n",
            "    {\n        iwSetCommandOptionResult_e result;\n        pConnection->m_IwApp->GetActiveDocument()->"
            "SetCommandOptionBool(iwCommandOptionBool_EnblBoxTxt, true,&result);\n    }\n",
            "    If 1 Then\n    Dim resultBool1 As Inkwright.iwSetCommandOptionResult_e \n"
            "    iwApp.GetActiveDocument().SetCommandOptionBool "
            "Inkwright.iwCommandOptionBool_e.iwCommandOptionBool_EnblBoxTxt, True, resultBool1\n    End If\n",
        });
    expectStatements(
        "LIMMAX", OdGePoint2d{1234567.0, -0.5},
        {
            "    {\n        iwSetCommandOptionResult_e result;\n        iwDocument_c* iwDoc;\n"
            "        m_pIwApp->GetActiveDocument(&iwDoc);\n        iwDoc->SetCommandOptionPoint2D("
            "iwCommandOptionPoint2d_SetLIMMAX, 1.23457e+06, -0.5,&result);\n    }\n",
            "    {\n        iwSetCommandOptionResult_e result1;\n        iwApp.GetActiveDocument()."
            "SetCommandOptionPoint2D(iwCommandOptionPoint2d_e.iwCommandOptionPoint2d_SetLIMMAX, 1.23457e+06, -0.5, "
            "out result1);\n    }\n",
            "    mDoc.SetCommandOptionPoint2D(\"iwCommandOptionPoint2d_SetLIMMAX\", 1.23457e+06, -0.5);\n",
            "    If 1 Then\n        Dim result1 As Inkwright.iwSetCommandOptionResult_e \n"
            "        iwApp.GetActiveDocument().SetCommandOptionPoint2D("
            "Inkwright.iwCommandOptionPoint2d_e.iwCommandOptionPoint2d_SetLIMMAX, 1.23457e+06, -0.5,result1)\n"
            "    End If\n",
            "    {\n        iwSetCommandOptionResult_e result;\n        pConnection->m_IwApp->GetActiveDocument()->"
            "SetCommandOptionPoint2D(iwCommandOptionPoint2d_SetLIMMAX, 1.23457e+06, -0.5,&result);\n    }\n",
            "    If 1 Then\n    Dim resultPoint2D1 As Inkwright.iwSetCommandOptionResult_e \n"
            "    iwApp.GetActiveDocument().SetCommandOptionPoint2D "
            "Inkwright.iwCommandOptionPoint2d_e.iwCommandOptionPoint2d_SetLIMMAX, 1.23457e+06, -0.5, "
            "resultPoint2D1\n    End If\n",
        });
    // A backslash stays single, markup goes.
    expectStatements(
        "CLAYER", OdString("<b>W\\4</b>"),
        {
            "    {\n        iwSetCommandOptionResult_e result;\n        iwDocument_c* iwDoc;\n"
            "        m_pIwApp->GetActiveDocument(&iwDoc);\n"
            "        iwDoc->SetCommandOptionString(iwCommandOptionString_SetCLAYER, L\"W\\4\",&result);\n    }\n",
            "    {\n        iwSetCommandOptionResult_e result1;\n        iwApp.GetActiveDocument()."
            "SetCommandOptionString(iwCommandOptionString_e.iwCommandOptionString_SetCLAYER, \"W\\4\", out result1);\n"
            "    }\n",
            "    mDoc.SetCommandOptionString(\"iwCommandOptionString_SetCLAYER\", \"W\\4\");\n",
            "    If 1 Then\n        Dim result1 As Inkwright.iwSetCommandOptionResult_e \n"
            "        iwApp.GetActiveDocument().SetCommandOptionString("
            "Inkwright.iwCommandOptionString_e.iwCommandOptionString_SetCLAYER, \"W\\4\",result1)\n    End If\n",
            "    {\n        iwSetCommandOptionResult_e result;\n        pConnection->m_IwApp->GetActiveDocument()->"
            "SetCommandOptionString(iwCommandOptionString_SetCLAYER, L\"W\\4\",&result);\n    }\n",
            "    If 1 Then\n    Dim resultString1 As Inkwright.iwSetCommandOptionResult_e \n"
            "    iwApp.GetActiveDocument().SetCommandOptionString "
            "Inkwright.iwCommandOptionString_e.iwCommandOptionString_SetCLAYER, \"W\\4\", resultString1\n"
            "    End If\n",
        });

    // What the kinds in between put in: the call, the value, VBA's variable.
    TestTarget page(Target::JavaScript, 1);
    EXPECT_EQ(converted(page, "LTSCALE", 100000.0),
              "    mDoc.SetCommandOptionDouble(\"iwCommandOptionDouble_SetLTSCALE\", 100000);\n");
    EXPECT_EQ(converted(page, "DIMTZIN", std::int32_t{-2}),
              "    mDoc.SetCommandOptionInt8(\"iwCommandOptionInt8_SetDIMTZIN\", -2);\n");
    EXPECT_EQ(converted(page, "USERI1", std::int16_t{-32768}),
              "    mDoc.SetCommandOptionInt16(\"iwCommandOptionInt16_SetUSERI1\", -32768);\n");
    EXPECT_EQ(converted(page, "INSBASE", OdGePoint3d{1, 2.5, 1e-5}),
              "    mDoc.SetCommandOptionPoint3D(\"iwCommandOptionPoint3d_SetINSBASE\", 1, 2.5, 1e-05);\n");
    EXPECT_EQ(EmitCommandOptionInt32(page.writer, "iwCommandOptionInt32_X", 70000),
              "    mDoc.SetCommandOptionInt32(\"iwCommandOptionInt32_X\", 70000);\n");
    TestTarget vba(Target::Vba, 1);
    EXPECT_EQ(converted(vba, "INSBASE", OdGePoint3d{1, 2, 3}),
              "    If 1 Then\n    Dim resultPoint3D1 As Inkwright.iwSetCommandOptionResult_e \n"
              "    iwApp.GetActiveDocument().SetCommandOptionPoint3D "
              "Inkwright.iwCommandOptionPoint3d_e.iwCommandOptionPoint3d_SetINSBASE, 1, 2, 3, resultPoint3D1\n"
              "    End If\n");
}

TEST_F(SysVars, BecomeApplicationOptionsByTheirKind)
{
    expectStatements(
        "FILEDIA", std::int16_t{0},
        {
            "\n    iwApplicationOptions_c* appOption1;\n    m_pIwApp->GetApplicationOptions(&appOption1);\n"
            "    appOption1->SetApplicationOptionBool(iwApplicationOptionBool_EnblFILEDIA, false);\n",
            "\n    iwApp.GetApplicationOptions().SetApplicationOptionBool("
            "iwApplicationOptionBool_e.iwApplicationOptionBool_EnblFILEDIA, false);\n",
            "\n    mApp.GetApplicationOptions().SetApplicationOptionBool("
            "\"iwApplicationOptionBool_EnblFILEDIA\", false);\n",
            "\n    iwApp.GetApplicationOptions().SetApplicationOptionBool("
            "Inkwright.iwApplicationOptionBool_e.iwApplicationOptionBool_EnblFILEDIA, False)\n",
            "\n    pConnection->m_IwApp->GetApplicationOptions()->SetApplicationOptionBool("
            "iwApplicationOptionBool_EnblFILEDIA, false);\n",
            "\n    iwApp.GetApplicationOptions().SetApplicationOptionBool "
            "Inkwright.iwApplicationOptionBool_e.iwApplicationOptionBool_EnblFILEDIA, False\n",
        });
    // The text stays as it is: its markup too.
    expectStatements(
        "FONTALT", OdString("<a>.shx"),
        {
            "\n    iwApplicationOptions_c* appOption1;\n    m_pIwApp->GetApplicationOptions(&appOption1);\n"
            "    appOption1->SetApplicationOptionString(iwApplicationOptionString_SetFONTALT, L\"<a>.shx\");\n",
            "\n    iwApp.GetApplicationOptions().SetApplicationOptionString("
            "iwApplicationOptionString_e.iwApplicationOptionString_SetFONTALT, \"<a>.shx\");\n",
            "\n    mApp.GetApplicationOptions().SetApplicationOptionString("
            "\"iwApplicationOptionString_SetFONTALT\", \"<a>.shx\");\n",
            "\n    iwApp.GetApplicationOptions().SetApplicationOptionString("
            "Inkwright.iwApplicationOptionString_e.iwApplicationOptionString_SetFONTALT, \"<a>.shx\")\n",
            "\n    pConnection->m_IwApp->GetApplicationOptions()->SetApplicationOptionString("
            "iwApplicationOptionString_SetFONTALT, L\"<a>.shx\");\n",
            "\n    iwApp.GetApplicationOptions().SetApplicationOptionString "
            "Inkwright.iwApplicationOptionString_e.iwApplicationOptionString_SetFONTALT, \"<a>.shx\"\n",
        });
    // Unlike a document option, it joins the text that is there.
    TestTarget page(Target::JavaScript, 1);
    EXPECT_EQ(converted(page, "SAVETIME", std::int32_t{100000}, "before"),
              "before\n    mApp.GetApplicationOptions().SetApplicationOptionInt32("
              "\"iwApplicationOptionInt32_SetSvTm\", 100000);\n");
    EXPECT_EQ(converted(page, "POLARDIST", 0.25, "before"),
              "before\n    mApp.GetApplicationOptions().SetApplicationOptionDouble("
              "\"iwApplicationOptionDouble_SetPOLARDIST\", 0.25);\n");
    EXPECT_EQ(converted(page, "CHAMMODE", std::int16_t{1}, "before"),
              "    mDoc.SetCommandOptionInt16(\"iwCommandOptionInt16_EnblChmfAng\", 1);\n");
}

TEST_F(SysVars, GiveTheCurrentColorByItsText)
{
    TestTarget page(Target::JavaScript, 1);
    const std::string begin = "    mDoc.SetCommandOptionInt16(\"iwCommandOptionInt16_SetActLClr\", ";
    EXPECT_EQ(converted(page, "CECOLOR", OdString("5")), begin + "5);\n");
    EXPECT_EQ(converted(page, "CECOLOR", OdString("BYLAYER")), begin + "0);\n");
    EXPECT_EQ(converted(page, "CECOLOR", OdString("0x10")), begin + "0);\n");
}

TEST_F(SysVars, AreSkippedWhenUnknown)
{
    TestTarget target(Target::CSharp, 1);
    EXPECT_EQ(converted(target, "NOSUCHVAR", std::int16_t{1}, "before"), "before");
    EXPECT_EQ(converted(target, "ltscale", 2.0, "before"), "before");
    EXPECT_EQ(target.writer.UniqueCounter, 0U);
}

TEST_F(SysVars, CountOnlyWhereTheStatementHasANumber)
{
    // A document option twice, an application option twice.
    const std::array<unsigned, languages> counts{2, 2, 0, 2, 0, 2};
    for (int language = 0; language < languages; ++language) {
        TestTarget target(static_cast<Target>(language), 1);
        for (int i = 0; i < 2; ++i) {
            converted(target, "USERI1", std::int16_t{1});
            converted(target, "PICKBOX", std::int16_t{1});
        }
        EXPECT_EQ(target.writer.UniqueCounter, counts[static_cast<std::size_t>(language)]) << language;
    }
    // A text with a marker takes the number, where there is one; elsewhere it stays.
    TestTarget csharp(Target::CSharp, 1);
    EXPECT_TRUE(QString::fromStdString(converted(csharp, "USERS1", OdString("%5"))).contains("\"1\", out result1"));
    TestTarget page(Target::JavaScript, 1);
    EXPECT_TRUE(QString::fromStdString(converted(page, "USERS1", OdString("%5"))).contains("\"%5\""));
}

using EmitFiles = Statement (*)(Writer&, CFxString&);

/// Use up a number of the process-wide counters.
int takeNumber(TestTarget& target, EmitFiles emitObject)
{
    CFxString name;
    emitObject(target.writer, name);
    return name.toQString().section('_', 1).toInt();
}

int takeArrayNumber(TestTarget& target)
{
    return textOf(EmitFileLocationArray(target.writer, "x", "P", {}))
        .section("sArrayP_", 1, 1)
        .section(QRegExp("[^0-9]"), 0, 0)
        .toInt();
}

TEST_F(SysVars, FetchTheirFileObjects)
{
    const Expected objects{
        "    iwSystemFiles_ptr iwSystemFiles_#;\n    m_pIwApp->GetSystemFiles( &iwSystemFiles_# );\n",
        "    SystemFiles iwSystemFiles_# = iwApp.GetSystemFiles();\n",
        "    var iwSystemFiles_# = mApp.GetSystemFiles();\n",
        "    Dim iwSystemFiles_# As Inkwright.SystemFiles = iwApp.GetSystemFiles()\n",
        "    ISystemFilesPtr iwSystemFiles_# = pConnection->m_IwApp->GetSystemFiles();\n",
        "    Dim iwSystemFiles_# As Inkwright.SystemFiles\n    Set iwSystemFiles_# = iwApp.GetSystemFiles()\n",
    };
    for (int language = 0; language < languages; ++language) {
        TestTarget target(static_cast<Target>(language), 1);
        const QString expected = in(objects, language);
        const auto matches = [&](EmitFiles emitObject, const char* name) {
            const int number = takeNumber(target, emitObject) + 1;
            CFxString variable;
            const Statement text = emitObject(target.writer, variable);
            QString wanted = QString(expected).replace("SystemFiles", name).replace('#', QString::number(number));
            if (language == 5 && QString(name) == "DrawingSupportFiles")
                wanted.replace("    Set", "%11Set");
            EXPECT_EQ(text.toStdString(), wanted.toStdString());
        };
        matches(EmitInterfaceFilesObject, "InterfaceFiles");
        matches(EmitSystemFilesObject, "SystemFiles");
        matches(EmitDrawingSupportFilesObject, "DrawingSupportFiles");
    }
}

TEST_F(SysVars, SetFileLocationsInArrays)
{
    // @ is the array's number.
    const Expected expected{
        "    iwStringArray sArraySupportPaths_@;\n    sArraySupportPaths_@.add( L\"C:\\a\" );\n"
        "    sArraySupportPaths_@.add( L\"b\" );\n    x->put_SupportPaths( sArraySupportPaths_@ );\n",
        "    string sSupportPaths_0 = \"C:\\a\";\n    string sSupportPaths_1 = \"b\";\n"
        "    string[] sArraySupportPaths_@ = new string[] { sSupportPaths_0, sSupportPaths_1 };\n"
        "    x.SupportPaths = sArraySupportPaths_@;\n",
        "    var sArraySupportPaths_@ = new Array( 2 );\n    var sSupportPaths_0 = \"C:\\a\";\n"
        "    sArraySupportPaths_0[0] = sSupportPaths_0;\n    var sSupportPaths_1 = \"b\";\n"
        "    sArraySupportPaths_1[1] = sSupportPaths_1;\n    x.put_SupportPaths( sArraySupportPaths_@ );\n",
        "    Dim sSupportPaths_0 As String = \"C:\\a\"\n    Dim sSupportPaths_1 As String = \"b\"\n"
        "    Dim sArraySupportPaths_@ As String() = New String() { sSupportPaths_0, sSupportPaths_1 }\n"
        "    x.SupportPaths = sArraySupportPaths_@\n",
        "    VARIANT sArraySupportPaths_@;\n    sArraySupportPaths_@.vt = ( VT_ARRAY | VT_BSTR );\n"
        "    sArraySupportPaths_@.parray = SafeArrayCreateVector( VT_BSTR, 0, 2 );\n"
        "    long rgSupportPaths_@ = -1;\n    rgSupportPaths_@ = 0;\n"
        "    BSTR sSupportPaths_0 = SysAllocString( L\"C:\\a\");\n"
        "    SafeArrayPutElement( sArraySupportPaths_@.parray, &rgSupportPaths_@, sSupportPaths_0 );\n"
        "    rgSupportPaths_@ = 1;\n    BSTR sSupportPaths_1 = SysAllocString( L\"b\");\n"
        "    SafeArrayPutElement( sArraySupportPaths_@.parray, &rgSupportPaths_@, sSupportPaths_1 );\n"
        "    x->put_SupportPaths( sArraySupportPaths_@ );\n",
        "    Dim sArraySupportPaths_@(1) As String\n    sArraySupportPaths_@(0) = \"C:\\a\"\n"
        "    sArraySupportPaths_@(1) = \"b\"\n    x.SupportPaths = sArraySupportPaths_@\n",
    };
    for (int language = 0; language < languages; ++language) {
        TestTarget target(static_cast<Target>(language), 1);
        const int number = takeArrayNumber(target) + 1;
        const Statement text =
            EmitFileLocationArray(target.writer, "x", "SupportPaths", {CFxString("C:\\a"), CFxString("b")});
        EXPECT_EQ(text.toStdString(),
                  QString(in(expected, language)).replace('@', QString::number(number)).toStdString());
    }
}

TEST_F(SysVars, SetOneFileLocationInEachTarget)
{
    const Expected expected{
        "    {\n        iwSystemFiles_ptr iwSystemFiles_#;\n        m_pIwApp->GetSystemFiles( &iwSystemFiles_# );\n"
        "        iwSystemFiles_#->put_TempPath( L\"C:\\\\t\" );\n    }\n\n",
        "    {\n        SystemFiles iwSystemFiles_# = iwApp.GetSystemFiles();\n"
        "        iwSystemFiles_#.TempPath = \"C:\\\\t\";\n    }\n\n",
        "    var iwSystemFiles_# = mApp.GetSystemFiles();\n    iwSystemFiles_#.put_TempPath (\"C:\\\\t\");\n\n",
        "    If 1 Then\n        Dim iwSystemFiles_# As Inkwright.SystemFiles = iwApp.GetSystemFiles()\n"
        "        iwSystemFiles_#.TempPath = \"C:\\t\"\n    End If\n\n\n",
        "    {\n        ISystemFilesPtr iwSystemFiles_# = pConnection->m_IwApp->GetSystemFiles();\n"
        "        iwSystemFiles_#->put_TempPath( L\"C:\\\\t\" );\n    }\n\n",
        "    If 1 Then\n        Dim iwSystemFiles_# As Inkwright.SystemFiles\n"
        "        Set iwSystemFiles_# = iwApp.GetSystemFiles()\n"
        "        iwSystemFiles_#.TempPath = \"C:\\t\"\n    End If\n\n\n",
    };
    for (int language = 0; language < languages; ++language) {
        speak(language);
        TestTarget target(static_cast<Target>(language), 1);
        const int number = takeNumber(target, EmitSystemFilesObject) + 1;
        EXPECT_EQ(converted(target, 35, "eFileLocSystemTemporaryFileLoc", CFxString("C:\\t")),
                  QString(in(expected, language)).replace('#', QString::number(number)).toStdString());
    }
}

TEST_F(SysVars, SetFileLocationsByTheirKey)
{
    speak(1);
    TestTarget target(Target::CSharp, 1);
    const auto expectText = [&](std::int32_t kind, const char* key, const CFxCustomActionData::Value& value,
                                QString expected) {
        static const std::array<EmitFiles, 3> emitObject{EmitInterfaceFilesObject, EmitSystemFilesObject,
                                                         EmitDrawingSupportFilesObject};
        const int number = takeNumber(target, emitObject[static_cast<std::size_t>(kind - 34)]) + 1;
        EXPECT_EQ(converted(target, kind, key, value), expected.replace('#', QString::number(number)).toStdString());
    };
    const QString menus = "    {\n        InterfaceFiles iwInterfaceFiles_# = iwApp.GetInterfaceFiles();\n";
    const QString system = "    {\n        SystemFiles iwSystemFiles_# = iwApp.GetSystemFiles();\n";
    const QString drawing = "    {\n        DrawingSupportFiles iwDrawingSupportFiles_# = "
                            "iwApp.GetDrawingSupportFiles();\n";
    const QString end = "    }\n\n";
    expectText(34, "EFILELOCINTERFACEMENUFILES", CFxString("C:\\menus\\a.xml"),
               menus + "        iwInterfaceFiles_#.MenuFilesPath = \"C:\\\\menus\\\\a.xml\";\n" + end);
    // The host's setting decides about backslashes.
    speak(3);
    expectText(35, "eFileLocSystemTemporaryFileLoc", CFxString("C:\\tmp"),
               system + "        iwSystemFiles_#.TempPath = \"C:\\tmp\";\n" + end);
    speak(1);
    // A key of another object, a value that is no text.
    expectText(36, "eFileLocSystemTemporaryFileLoc", CFxString("t"),
               drawing + "        iwDrawingSupportFiles_#. = \"t\";\n" + end);
    expectText(36, "eFileLocDrawingSupprtDWT", true, drawing + end);
    const int array = takeArrayNumber(target) + 1;
    expectText(35, "eFileLocSystemFontFileSearchPath", std::vector<CFxString>{"f"},
               system + "        string sFontsPaths_0 = \"f\";\n        string[] sArrayFontsPaths_" +
                   QString::number(array) +
                   " = new string[] { sFontsPaths_0 };\n        iwSystemFiles_#.FontsPaths = " + "sArrayFontsPaths_" +
                   QString::number(array) + ";\n" + end);
}

TEST_F(SysVars, NumberFileObjectsOverConversionsAndForEachTarget)
{
    const auto emitObject = EmitSystemFilesObject;
    int first = 0;
    {
        TestTarget target(Target::CSharp, 1);
        first = takeNumber(target, emitObject);
    }
    TestTarget other(Target::Vba, 1);
    const int ofOther = takeNumber(other, emitObject);
    TestTarget target(Target::CSharp, 1);
    EXPECT_EQ(takeNumber(target, emitObject), first + 1);
    takeNumber(target, EmitInterfaceFilesObject);
    EXPECT_EQ(takeNumber(target, emitObject), first + 2);
    EXPECT_EQ(takeNumber(other, emitObject), ofOther + 1);
}

} // namespace
