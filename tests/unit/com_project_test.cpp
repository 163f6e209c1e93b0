// The COM add-in: the frame of the macro file and the project around it.

#include "TestActions.h"
#include "TestRepair.h"

#include "host/kernel/CFxServices.h"
#include "statements/RecordingState.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

struct ExpectedFile
{
    QString name;
    bool byteOrderMark;
};

const std::vector<ExpectedFile> projectOfWall{
    {"IwAddinConnection.h", true},
    {"IwAddinConnection.cpp", true},
    {"wall.h", true},
    {"resource.h", false},
    {"stdafx.h", true},
    {"stdafx.cpp", true},
    {"smartvars.h", true},
    {"wall.def", false},
    {"wallps.def", false},
    {"wall.idl", false},
    {"IwAddinConnection.rgs", false},
    {"wall.rgs", false},
    {"wall.rc", false},
    {"wall.vcproj", false},
    {"typeconverter.h", true},
};

const QByteArray byteOrderMark = "\xEF\xBB\xBF";
const QString uuid = "[0-9a-f]{8}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{12}";

class ComProject : public testing::Test
{
protected:
    ComProject() { GetFxSystemServices()->SetInt16("RecordingLanguage", 1); }
    ~ComProject() override
    {
        GetFxSystemServices()->SetInt16("RecordingLanguage", 0);
        RecordingSheetName = CFxString();
        RecordingInModel = true;
    }

    std::int32_t run(const CFxActionArray& actions = {}, const QString& name = "wall")
    {
        return CreateConverter(4, 0, 0)->Convert(path(name + ".cpp"), actions);
    }
    QString path(const QString& file) const { return folder.filePath("made/" + file); }
    QString text(const QString& name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }
    /// The id that the pattern holds in parentheses, empty when the file has no such line or several.
    QString id(const QString& file, const QString& pattern) const
    {
        QString withId = pattern;
        withId.replace("UUID", uuid);
        auto matches = QRegularExpression(withId).globalMatch(text(file));
        if (!matches.hasNext())
            return {};
        const QString found = matches.next().captured(1);
        return matches.hasNext() ? QString() : found;
    }

    QTemporaryDir folder;
};

QString tested(const QString& fetch, const QString& variable, const QString& message)
{
    return fetch + "    if( NULL == " + variable + " )\n    {\n        MessageBox (NULL, L\"Failed to get " + message +
           " of the current document.\", L\"title\", MB_OK);\n        return;\n    }\n\n";
}

const QString sheetByNumber =
    tested("    _variant_t pVariantArray = iwDoc->GetSheets();\n    ISheetPtr *iwSheetArrays = NULL;\n"
           "    int count = 0;\n    TypeConverter::convertVariantArrayToPtrArray<ISheetPtr, ISheet>( pVariantArray, "
           "iwSheetArrays, count );\n    ISheetPtr iwSheet = iwSheetArrays[1];\n",
           "iwSheet", "a paper space");
const QString otherManagers =
    tested("    ISelectionManagerPtr iwSelManager( iwDoc->GetSelectionManager() );\n", "iwSelManager",
           "selection manager") +
    tested("    IViewManagerPtr iwViewManager( iwDoc->GetViewManager() );\n", "iwViewManager", "a view manager");

TEST_F(ComProject, FramesTheMacroByTheSheetOfTheRecording)
{
    const QString declaration = "    ISketchManagerPtr iwSketchManager;\n";
    const auto after = [&] {
        const QString macro = text("wall.cpp");
        return macro.mid(macro.indexOf(declaration) + declaration.size());
    };
    ASSERT_EQ(run({command({addedLine(1)})}), kFxSuccess);
    const QString line = "    ILinePtr line1;\n    {\n        line1 = iwSketchManager->InsertLine( "
                         "0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, "
                         "0.00000000000000 );\n    }\n";
    EXPECT_EQ(after(),
              tested("    iwSketchManager = iwModel->GetSketchManager();\n", "iwSketchManager", "a sketch manager") +
                  sheetByNumber + otherManagers + line + "}\n\n");
    EXPECT_TRUE(
        text("wall.cpp")
            .startsWith("#include \"stdafx.h\"\n#include \"resource.h\"\n#include \"wall_i.h\"\n#include \"wall.h\"\n"
                        "#include \"smartvars.h\"\n#include \"typeconverter.h\"\n#include \"IwAddinConnection.h\"\n"
                        "#include \"math.h\"\n\nclass CwallModule : public CAtlDllModuleT< CwallModule >\n{\n"));
    EXPECT_TRUE(
        text("wall.cpp")
            .contains(
                "void __stdcall IwMacroCommand::OnExecuteNotify()\n{\n    CIwAddinConnection* pConnection = getMacroApp();\n\n" +
                tested("    IDocumentPtr iwDoc( pConnection->m_IwApp->GetActiveDocument() );\n", "iwDoc",
                       "current document")
                    .remove(" of the current document") +
                tested("    IModelPtr iwModel( iwDoc->GetModel() );\n", "iwModel", "a model space") + declaration));

    RecordingSheetName = "A3";
    RecordingInModel = false;
    ASSERT_EQ(run({odrxNew<TestSysVar>("LTSCALE")}), kFxSuccess);
    EXPECT_EQ(after(),
              sheetByNumber +
                  tested("    iwSheet = NULL;\n    iwSheet = iwDoc->GetSheet(L\"A3\");\n", "iwSheet", "a paper space") +
                  tested("    iwSheet->Activate();\n\n    iwSketchManager = iwSheet->GetSketchManager();\n",
                         "iwSketchManager", "a sketch manager") +
                  otherManagers + "}\n\n");

    RecordingInModel = false;
    ASSERT_EQ(run(), kFxSuccess);
    EXPECT_EQ(after(), sheetByNumber + otherManagers + "}\n\n");
}

TEST_F(ComProject, AgreesOnItsIds)
{
    ASSERT_EQ(run(), kFxSuccess);
    const QString library = id("wall.idl", "uuid\\((UUID)\\),\n    version");
    const QString cls = id("wall.idl", "uuid\\((UUID)\\),\n +helpstring\\(\"IwAddinConnection Class");
    EXPECT_EQ(id("IwAddinConnection.rgs", "'TypeLib' = s '(\\{UUID\\})'"), '{' + library + '}');
    EXPECT_EQ(id("IwAddinConnection.rgs", "ForceRemove (\\{UUID\\}) = "), '{' + cls + '}');
    EXPECT_EQ(text("IwAddinConnection.rgs").count("CLSID = s '{" + cls + "}'"), 2);

    const std::vector<QString> ids{library, cls, id("wall.idl", "object,\n    uuid\\((UUID)\\)"),
                                   id("wall.cpp", "RESOURCEID\\(IDR_wall, \"\\{(UUID)\\}\"\\)"),
                                   id("wall.vcproj", "ProjectGUID=\"\\{(UUID)\\}\"")};
    ASSERT_EQ(run(), kFxSuccess);
    QString second;
    for (const QString file : {"wall.cpp", "wall.idl", "IwAddinConnection.rgs", "wall.vcproj"})
        second += text(file);
    for (std::size_t i = 0; i < ids.size(); ++i) {
        EXPECT_FALSE(ids[i].isEmpty()) << i;
        EXPECT_EQ(std::count(ids.begin(), ids.end(), ids[i]), 1) << i;
        EXPECT_FALSE(second.contains(ids[i])) << i;
    }
}

TEST_F(ComProject, MarksTheByteOrderOfItsSourcesOnly)
{
    ASSERT_EQ(run(), kFxSuccess);
    for (const ExpectedFile& expected : projectOfWall) {
        QFile file(path(expected.name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << expected.name.toStdString();
        EXPECT_EQ(file.readAll().startsWith(byteOrderMark), expected.byteOrderMark) << expected.name.toStdString();
        EXPECT_TRUE(text("wall.vcproj").contains("RelativePath=\".\\" + expected.name + "\""));
    }
    // The macro itself follows the host's setting.
    EXPECT_FALSE(text("wall.cpp").startsWith(QChar(0xfeff)));
    EXPECT_EQ(QDir(path(".")).entryList(QDir::Files).size(), 16);
}

TEST_F(ComProject, StopsAtTheFirstFileThatCannotBeWritten)
{
    for (std::size_t failing = 0; failing < projectOfWall.size(); ++failing) {
        QDir(path(".")).removeRecursively();
        ASSERT_TRUE(QDir().mkpath(path(projectOfWall[failing].name)));
        EXPECT_EQ(run(), kFxFailure);
        EXPECT_TRUE(QFileInfo(path("wall.cpp")).isFile());
        for (std::size_t i = 0; i < projectOfWall.size(); ++i)
            EXPECT_EQ(QFileInfo(path(projectOfWall[i].name)).isFile(), i < failing)
                << projectOfWall[i].name.toStdString() << " while failing at " << failing;
    }
}

TEST_F(ComProject, KeepsTheMarkersOfANameInTheResourceScript)
{
    for (const QString name : {"n%1m", "a%2b", "x%5"}) {
        ASSERT_EQ(run({}, name), kFxSuccess);
        const QString script = text(name + ".rc");
        EXPECT_TRUE(script.startsWith("// Resource script of " + name + "\n//\n"));
        EXPECT_EQ(script.count(name), 8) << name.toStdString();
        for (const char* const number : {"1", "2", "3"})
            EXPECT_TRUE(script.contains(QString("\n%1 TEXTINCLUDE\nBEGIN\n").arg(number)));
    }
}

TEST_F(ComProject, RegistersARepairedServerWhateverItsName)
{
    const TestRepair repair;
    ASSERT_EQ(run({}, "it's 100%1"), kFxSuccess);
    EXPECT_TRUE(text("it's 100%1.rgs").contains("        '%APPID%' = s 'it''s 100%%1'\n        'it''s 100%%1.DLL'\n"));
    const QString keys = text("IwAddinConnection.rgs");
    EXPECT_TRUE(keys.contains("\n    it_s_100_1.IwAddinConnection.1 = s 'IwAddinConnection Class'\n"));
    EXPECT_TRUE(keys.contains("\n            VersionIndependentProgID = s 'it_s_100_1.IwAddinConnection'\n"));
    EXPECT_TRUE(text("it's 100%1.rc").contains("\n#pragma code_page(65001)\n"));
    EXPECT_TRUE(text("it's 100%1.rc").contains("\nIDR_it_s_100_1 REGISTRY \"it's 100%1.rgs\"\n"));
}

TEST_F(ComProject, NamesEverythingAfterTheMacro)
{
    ASSERT_EQ(run({}, "my wall.v2"), kFxSuccess);
    EXPECT_TRUE(text("my wall.def")
                    .startsWith("; my wall.def : Declares the module parameters.\n\n"
                                "LIBRARY      \"my wall.DLL\"\n\n"));
    EXPECT_TRUE(text("my wallps.def").startsWith("LIBRARY      \"my wallPS\"\n\n"));
    EXPECT_TRUE(text("my wall.rgs").contains("        '%APPID%' = s 'my wall'\n        'my wall.DLL'\n"));
    EXPECT_TRUE(text("IwAddinConnection.rgs").contains("InprocServer32 = s '%MODULE%'"));
    EXPECT_TRUE(text("IwAddinConnection.h").contains("CreateCommand( m_sApiUuid, L\"my wall\", &commandErr )"));
    EXPECT_TRUE(text("stdafx.h")
                    .contains("APISDK\\tlb\\iwAddin.tlb\" raw_interfaces_only, raw_native_types, "
                              "no_namespace, named_guids, auto_search\n"));
    EXPECT_TRUE(text("stdafx.h").contains("bin\\iwAutomation.dll\" no_namespace named_guids \n"));
    for (const ExpectedFile& file : projectOfWall) {
        const QString name = QString(file.name).replace("wall", "my wall");
        EXPECT_FALSE(text(name).contains(QRegularExpression("%[0-9]|\\{[a-zA-Z]+\\}"))) << name.toStdString();
        EXPECT_TRUE(text(name).endsWith('\n')) << name.toStdString();
    }
}

} // namespace
