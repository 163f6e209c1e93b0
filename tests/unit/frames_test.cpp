// The file around the statements and the project around the file, in each target.

#include "TestActions.h"
#include "TestRepair.h"
#include "TestTarget.h"

#include "host/kernel/CFxRegistry.h"
#include "host/kernel/CFxServices.h"
#include "statements/RecordingState.h"
#include "statements/TargetTable.h"
#include "targets/cpp/CFxConverterIWAPICPP.h"
#include "targets/installation.h"
#include "targets/javascript/CFxConverterIWAPIJavaScript.h"
#include "targets/objectTypes.h"
#include "targets/vba/CFxConverterIWAPIVba.h"
#include "targets/vbnet/CFxConverterIWAPIVbNet.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QXmlStreamReader>

using namespace inkmacro;

namespace {

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
}

/// Leaves the process-wide values as a first conversion finds them.
class Frames : public testing::Test
{
protected:
    Frames() { begin(true, ""); }
    ~Frames() override
    {
        begin(true, "");
        installIn("");
        GetFxSystemServices()->SetInt16("RecordingLanguage", 0);
    }

    static void begin(bool inModel, const char* sheet)
    {
        RecordingInModel = inModel;
        RecordingSheetName = sheet;
    }
    static void installIn(const char* directory)
    {
        GetFxRegistry()->SetText("SOFTWARE\\Velmorand\\Inkwright", "InstallDir", directory);
    }
    QString path(const QString& name) const { return folder.filePath("made/" + name); }
    QString convert(const TargetRow& row, const CFxActionArray& actions)
    {
        const auto language = static_cast<std::uint32_t>(row.target);
        GetFxSystemServices()->SetInt16("RecordingLanguage", static_cast<std::int16_t>(language));
        const QString macro = path(QLatin1String("plate.") + QLatin1String(row.extension.data()));
        EXPECT_EQ(CreateConverter(language, 0, 0)->Convert(macro, actions), kFxSuccess) << row.name;
        return QString::fromUtf8(contents(macro));
    }

    QTemporaryDir folder;
    Writer ofCpp{Target::Cpp};
    Writer ofJavascript{Target::JavaScript};
    Writer ofVbnet{Target::VbNet};
    Writer ofVba{Target::Vba};
    CFxConverterIWAPICPP cpp{ofCpp};
    CFxConverterIWAPIJavaScript javascript{ofJavascript};
    CFxConverterIWAPIVbNet vbnet{ofVbnet};
    CFxConverterIWAPIVba vba{ofVba};
};

/// The text of MSBuild's with its escapes read.
QString unescaped(const QString& item)
{
    return QString::fromUtf8(QByteArray::fromPercentEncoding(item.toUtf8()));
}

/// All attributes of that name in an XML file.
QStringList attributes(const QString& path, const char* name)
{
    QStringList found;
    QXmlStreamReader reader(QString::fromUtf8(contents(path)));
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.attributes().hasAttribute(name))
            found.append(reader.attributes().value(name).toString());
    }
    EXPECT_FALSE(reader.hasError()) << qPrintable(path) << ": " << qPrintable(reader.errorString());
    return found;
}

/// The lines in which the last conversion noted the fault.
std::vector<std::uint32_t> notedLines(const QString& file, const char* reason)
{
    std::vector<std::uint32_t> lines;
    for (const CFxFaultNote& note : GetFxSystemServices()->Notes().GetFaults())
        if (note.file.toQString() == file && note.reason.toQString() == reason)
            lines.insert(lines.end(), note.lines.begin(), note.lines.end());
    return lines;
}

std::vector<std::uint32_t> linesWith(const QString& path, const QString& words)
{
    std::vector<std::uint32_t> found;
    const QStringList lines = QString::fromUtf8(contents(path)).split('\n');
    for (int i = 0; i < lines.size(); ++i)
        if (lines[i].contains(words))
            found.push_back(static_cast<std::uint32_t>(i) + 1);
    return found;
}

/// The lines of a head that choose a sheet or its sketch manager.
std::string choice(MacroFrame& frame)
{
    QStringList lines;
    for (const QString& line : textOf(frame.EmitFileHeader("plate", false)).split('\n'))
        if (line.contains("GetSketchManager") || line.contains("Activate()") || line.endsWith("Activate") ||
            line.contains("GetSheet("))
            lines.append(line.trimmed());
    return lines.join(" | ").toStdString();
}

TEST_F(Frames, FollowThePlaceWhereTheRecordingBegan)
{
    begin(true, "A3");
    EXPECT_EQ(choice(cpp), "iwModel->GetSketchManager( &iwSketchManager );");
    EXPECT_EQ(choice(vbnet), "iwSketchManager = iwModel.GetSketchManager()");
    EXPECT_EQ(choice(vba), "Set iwSketchManager = iwModel.GetSketchManager()");
    EXPECT_EQ(choice(javascript), "mSheet = mDoc.GetSheet(\"A3\"), | mSkMgr = mModel.GetSketchManager(),");

    begin(false, "A3");
    EXPECT_EQ(choice(cpp), "iwDoc->GetSheet( L\"A3\", &iwSheet ); | iwSheet->Activate(); | "
                           "iwSheet->GetSketchManager( &iwSketchManager );");
    EXPECT_EQ(choice(vbnet), "iwSheet = iwDoc.GetSheet(\"A3\") | iwSheet.Activate() | "
                             "iwSketchManager = iwSheet.GetSketchManager()");
    EXPECT_EQ(choice(vba), "Set iwSheet = iwDoc.GetSheet(\"A3\") | iwSheet.Activate | "
                           "Set iwSketchManager = iwSheet.GetSketchManager()");
    EXPECT_EQ(choice(javascript), "mSheet = mDoc.GetSheet(\"A3\"), | mSkMgr = mModel.GetSketchManager(), | "
                                  "mSheet.Activate(); | mSkMgr = mSheet.GetSketchManager();");

    // Only the page activates a sheet without a name; the others leave the sketch manager without a value.
    begin(false, "");
    EXPECT_EQ(choice(cpp), "");
    EXPECT_EQ(choice(vbnet), "");
    EXPECT_EQ(choice(vba), "");
    EXPECT_EQ(choice(javascript), "mSheet = mDoc.GetSheet(\"\"), | mSkMgr = mModel.GetSketchManager(), | "
                                  "mSheet.Activate(); | mSkMgr = mSheet.GetSketchManager();");
}

TEST_F(Frames, OpenAndCloseAsTheirLanguageAsks)
{
    const QString source = textOf(cpp.EmitFileHeader("plate", true));
    EXPECT_TRUE(source.startsWith("#include \"plate.h\"\n#include \"iwAddinConnection.h\"\n")) << qPrintable(source);
    EXPECT_TRUE(source.endsWith("    if ( !iwViewManager )\n    {\n        return false;\n    }\n\n"));
    EXPECT_TRUE(source.contains("\nbool CMacroCommand::ExecuteNotify(void)\n{\n"));
    EXPECT_EQ(ofCpp.IndentLevel, 1U);
    EXPECT_TRUE(textOf(cpp.EmitFileFooter()).startsWith("    return true;\n}\n\nconst iwString &"));
    EXPECT_EQ(ofCpp.IndentLevel, 0U);

    EXPECT_TRUE(textOf(vbnet.EmitFileHeader("plate", true))
                    .startsWith("\nImports System.Runtime.InteropServices\n\n\nPublic Class plate\n\n    Sub Run("));
    EXPECT_EQ(vbnet.EmitFileFooter(), "\n    End Sub\n\nEnd Class");
    EXPECT_EQ(ofVbnet.IndentLevel, 2U);

    const QString macro = textOf(vba.EmitFileHeader("plate", true));
    Writer ofAnother(Target::Vba);
    EXPECT_EQ(CFxConverterIWAPIVba(ofAnother).EmitFileHeader("another", false), macro);
    EXPECT_TRUE(macro.startsWith("'" + QString(62, '-') + "\n' Preconditions:\n"));
    EXPECT_TRUE(
        macro.contains("drawing document.\n'" + QString(64, '-') + "\nOption Explicit\nSub main()\n\tDim iwApp"));
    EXPECT_TRUE(macro.contains("'    install_dir\\bin\\iwAutomation.dll.\n"));
    EXPECT_TRUE(
        macro.contains("\n   Dim iwViewManager As Inkwright.ViewManager\n\t'Connect to Inkwright\n\tSet iwApp"));
    EXPECT_TRUE(textOf(vba.EmitFileFooter()).startsWith("\tElse\n\n\t\tMsgBox \"There are"));
    EXPECT_EQ(ofVba.IndentLevel, 2U);

    const QString page = textOf(javascript.EmitFileHeader("plate", true));
    EXPECT_TRUE(page.contains("   <meta http-equiv =\"X-UA-Compatible\" content =\"IE=8\" /\n>   <!-- Add your"));
    EXPECT_TRUE(page.contains("   <script type=\"text/javascript\" "
                              "src=\"http://localhost:7776/APISDK/ijLibrary/iwCurvedSettings.js\"></script>\n"
                              "   <script type=\"text/javascript\">\n"));
    EXPECT_EQ(page.count(".js\"></script>\n"), 102);
    EXPECT_EQ(page.count("/iwMathUtility.js"), 2);
    EXPECT_EQ(ofJavascript.IndentLevel, 3U);
    EXPECT_TRUE(textOf(javascript.EmitFileFooter()).startsWith("       }\n   </script>\n"));
    EXPECT_EQ(ofJavascript.IndentLevel, 0U);
}

TEST_F(Frames, HoldTheStatementsOfACommand)
{
    const QString zeros = QStringList(QVector<QString>(6, "0.00000000000000").toList()).join(", ");
    const std::map<Target, QString> bodies{
        {Target::Cpp, "    iwLine_ptr iwline1;\n    {\n        iwSketchManager->InsertLine( %1, &iwline1 );\n    }\n"},
        {Target::CSharp,
         "            Line line1;\n            {\n                line1 = iwSketchManager.InsertLine( %1 "
         ");\n            }\n"},
        {Target::JavaScript, "            var line1 = mSkMgr.InsertLine(%1);\n"},
        {Target::VbNet, "        Dim line1 As Inkwright.Line\n        If 1 Then\n            line1 = "
                        "iwSketchManager.InsertLine( %1 )\n        End If\n\n"},
        {Target::Vba, "        Dim line1 As Inkwright.Line\n        If 1 Then\n            Set line1 = "
                      "iwSketchManager.InsertLine( %1 )\n        End If\n\n"},
    };
    for (const TargetRow& row : targetTable) {
        const auto body = bodies.find(row.target);
        if (body == bodies.end())
            continue;
        const QString empty = convert(row, {});
        const QString full = convert(row, {command({addedLine(1)})});
        // The statement stands between the head and the tail, both of which are those of an empty recording.
        const QString expected = body->second.arg(zeros);
        const int at = full.indexOf(expected);
        ASSERT_GE(at, 0) << full.toStdString();
        EXPECT_EQ(QString(full).remove(at, expected.length()), empty) << row.name;
        EXPECT_EQ(full.endsWith("End Class"), row.target == Target::VbNet);
    }
}

TEST_F(Frames, BringTheFilesOfTheirRow)
{
    for (const TargetRow& row : targetTable) {
        QDir(folder.filePath("made")).removeRecursively();
        convert(row, {});
        QStringList expected =
            QString::fromLatin1(row.projectFiles.data()).replace("%1", "plate").split(' ', Qt::SkipEmptyParts);
        expected.append(QLatin1String("plate.") + QLatin1String(row.extension.data()));
        expected.sort();
        QStringList found = QDir(folder.filePath("made")).entryList(QDir::Files);
        found.sort();
        EXPECT_EQ(found, expected) << row.name;
    }
}

TEST_F(Frames, WriteProjectsThatCanBeRead)
{
    EXPECT_EQ(cpp.EmitProjectFiles(path("my plate.v2.cpp")), kFxSuccess);
    EXPECT_EQ(vbnet.EmitProjectFiles(path("my plate.vb")), kFxSuccess);
    EXPECT_EQ(contents(path("my plate.def")),
              "LIBRARY\t\"my plate\"\n\nEXPORTS\nconnectToInkwright\ndisconnectFromInkwright\n");
    EXPECT_TRUE(contents(path("IwAddin_global.h")).startsWith("\xEF\xBB\xBF\n// IwAddin_global.h, C++ API"));
    EXPECT_TRUE(contents(path("iwAddinConnection.cpp")).contains("m_macroCmd( iwApp, L\"my plate\" )"));
    EXPECT_TRUE(contents(path("Module1.vb")).startsWith("\n\nModule Module1\n"));
    EXPECT_TRUE(contents(path("Module1.vb")).contains("            Dim my plateObj As my plate\n"));
    for (const char* const marked : {"iwAddinConnection.h", "iwAddinConnection.cpp", "my plate.h"})
        EXPECT_TRUE(contents(path(marked)).startsWith("\xEF\xBB\xBF")) << marked;
    for (const char* const name : {"my plate.vcproj", "my plate.vbproj"}) {
        QXmlStreamReader reader(QString::fromUtf8(contents(path(name))));
        int names = 0;
        while (!reader.atEnd()) {
            reader.readNext();
            names += reader.isStartElement();
        }
        EXPECT_FALSE(reader.hasError()) << name << ": " << reader.errorString().toStdString();
        EXPECT_GT(names, 30) << name;
        EXPECT_TRUE(contents(path(name)).startsWith("<?xml"));
    }
}

/// Names and directories are whatever the file system allows.
TEST_F(Frames, WriteProjectsThatCanBeReadWhateverTheName)
{
    const QString name = "R&D <\"a\">";
    installIn("D:\\Q&A\\");
    for (const auto& [language, extension, project] :
         {std::tuple{0U, ".cpp", ".vcproj"}, {1U, ".cs", ".csproj"}, {3U, ".vb", ".vbproj"}, {4U, ".cpp", ".vcproj"}}) {
        ASSERT_EQ(CreateConverter(language, 0, 0)->Convert(path(name + extension), {}), kFxSuccess);
        QXmlStreamReader reader(QString::fromUtf8(contents(path(name + project))));
        QString read;
        while (!reader.atEnd()) {
            reader.readNext();
            for (const QXmlStreamAttribute& attribute : reader.attributes())
                read += attribute.value() + '\n';
            read += reader.text();
        }
        EXPECT_FALSE(reader.hasError()) << language << ": " << reader.errorString().toStdString();
        EXPECT_TRUE(read.contains(name)) << language;
        EXPECT_EQ(read.contains("\"D:\\\\Q&A\\\\APISDK\\headers\\cpp\""), language == 0) << language;
    }
    // What is no XML is not escaped.
    EXPECT_TRUE(contents(path("Module1.vb")).contains("            Dim R&D <\"a\">Obj As R&D <\"a\">\n"));
}

TEST_F(Frames, ListTheMacroAsMsbuildReadsItsName)
{
    const QString names[] = {"plate", "plate.v2", "a;b@(c)$(d)", "5%41*?", " x&<y>'", "tab\tq\"\\"};
    for (const QString& name : names)
        for (const auto& [language, extension, project] : {std::tuple{1U, ".cs", ".csproj"}, {3U, ".vb", ".vbproj"}}) {
            const QString macro = name + extension;
            const QString base = name.section('.', 0, 0);
            ASSERT_EQ(CreateConverter(language, 0, 0)->Convert(path(macro), {}), kFxSuccess);
            const bool plain = name == "plate";
            const QString beginning = "<Compile Include=\"" + base.left(1);
            EXPECT_EQ(notedLines(base + project, "where the project lists the macro, it names another file"),
                      plain ? std::vector<std::uint32_t>() : linesWith(path(base + project), beginning))
                << qPrintable(macro);

            const TestRepair repair;
            ASSERT_EQ(CreateConverter(language, 0, 0)->Convert(path(macro), {}), kFxSuccess);
            const QString item = attributes(path(base + project), "Include").filter(extension).first();
            EXPECT_EQ(unescaped(item), macro);
            EXPECT_FALSE(item.contains(QRegularExpression("[;*?@$()'\\\\\t]|^ "))) << qPrintable(item);
            EXPECT_TRUE(GetFxSystemServices()->Notes().GetFaults().empty());
        }
}

TEST_F(Frames, IncludeFilesByTheirNames)
{
    const TestRepair repair;
    const QString name = QString::fromUtf8("<a> 'é'");
    for (const std::uint32_t language : {0U, 4U}) {
        ASSERT_EQ(CreateConverter(language, 0, 0)->Convert(path(name + ".v2.cpp"), {}), kFxSuccess);
        const QString connection = language == 0 ? "iwAddinConnection.h" : "IwAddinConnection.h";
        for (const QString& file : {name + ".v2.cpp", connection})
            EXPECT_FALSE(linesWith(path(file), "#include \"" + name + ".h\"").empty()) << qPrintable(file);
        EXPECT_TRUE(attributes(path(name + ".vcproj"), "RelativePath").contains(".\\" + name + ".v2.cpp"));
    }
    // Elsewhere it is a text like others.
    EXPECT_EQ(linesWith(path("iwAddinConnection.cpp"), QString::fromUtf8("L\"\\074a> 'é'\"")).size(), 1U);
}

TEST_F(Frames, RefuseNamesThatNoToolFinds)
{
    static constexpr char reason[] =
        "no #include or project finds a file whose name has a quotation mark, a backslash, a control character, a "
        "trigraph or $( in it, or is no UTF-8";
    const QString noUtf8 = QString("x") + QChar(0xDCFF);
    const auto repairs = [this](std::uint32_t language, const QString& file) {
        const TestRepair repair;
        QDir(path("")).removeRecursively();
        const std::size_t failures = GetFxSystemServices()->GetFailedFiles().size();
        const bool done = CreateConverter(language, 0, 0)->Convert(path(file), {}) == kFxSuccess;
        EXPECT_EQ(QFileInfo::exists(path("")), done) << qPrintable(file);
        EXPECT_EQ(GetFxSystemServices()->GetFailedFiles().size() - failures, done ? 0 : 1) << qPrintable(file);
        return done;
    };
    for (const QString& name : {QString("x\"y"), QString("x\\y"), QString("x\ny"), QString("x\x7Fy"),
                                QString("x\?\?=y"), QString("x$(y)"), noUtf8, QString("plate.v\"2")}) {
        for (const std::uint32_t language : {0U, 4U}) {
            EXPECT_FALSE(repairs(language, name + ".cpp")) << qPrintable(name);
            EXPECT_EQ(GetFxSystemServices()->GetFailedFiles().back().reason.toQString(), reason);
        }
        EXPECT_EQ(repairs(1, name + ".cs"), name != noUtf8) << qPrintable(name);
        EXPECT_EQ(repairs(3, name + ".vb"), name != noUtf8) << qPrintable(name);
        EXPECT_TRUE(repairs(2, name + ".html") && repairs(5, name + ".bas")) << qPrintable(name);
    }
    for (const char* const name : {"x?\?.y", "x$y", "%41", "\xC3\xA9"})
        EXPECT_TRUE(repairs(0, QString::fromUtf8(name) + ".cpp")) << name;

    // Any other macro is written, and told.
    for (const std::uint32_t language : {0U, 4U}) {
        ASSERT_EQ(CreateConverter(language, 0, 0)->Convert(path("x\"y.cpp"), {}), kFxSuccess);
        const std::uint32_t first = linesWith(path("x\"y.cpp"), "#include \"x\"y").front();
        EXPECT_EQ(notedLines("x\"y.cpp", reason), std::vector{first});
    }
}

TEST_F(Frames, TellWhereABadNameStandsInTheProject)
{
    struct Place
    {
        std::uint32_t language;
        QString macro;
        QString head; ///< what stands before the name in the macro
        QString file;
        QString words;
    };
    const Place places[] = {
        {1, "a b.cs", "class ", "Program.cs", "a b"},
        {3, "a b.vb", "Class ", "Module1.vb", "a b"},
        {4, "a b.cpp", "class C", "IwAddinConnection.h", "&LIBID_a bLib"},
        {4, "a b.cpp", "class C", "resource.h", "IDR_a b"},
        {4, "a b.cpp", "class C", "a b.idl", "library a bLib"},
        {4, "a b.cpp", "class C", "a b.rc", "IDR_a b"},
    };
    static constexpr char reason[] = "the file's name stands in code, where it is no identifier";
    for (const auto& [language, macro, head, file, words] : places) {
        ASSERT_EQ(CreateConverter(language, 0, 0)->Convert(path(macro), {}), kFxSuccess);
        const std::vector<std::uint32_t> lines = linesWith(path(file), words);
        EXPECT_FALSE(lines.empty()) << qPrintable(file);
        EXPECT_EQ(notedLines(file, reason), lines) << qPrintable(file);
        EXPECT_EQ(notedLines(macro, reason), linesWith(path(macro), head + "a b")) << qPrintable(macro);
    }
}

TEST_F(Frames, TellWhereALibraryIsHiddenByTheNameOfAMacro)
{
    static constexpr char reason[] = "an #include that is meant for a library finds the header named after the file";
    const std::tuple<std::uint32_t, QString, QString> places[] = {
        {0, "math", "math"}, {0, "iwsheet_c", "iwSheet_c"}, {4, "Math", "math"}};
    for (const auto& [language, name, header] : places) {
        const QString macro = name + ".cpp";
        ASSERT_EQ(CreateConverter(language, 0, 0)->Convert(path(macro), {}), kFxSuccess);
        const std::uint32_t last = linesWith(path(macro), "#include \"" + header + ".h\"").back();
        EXPECT_EQ(notedLines(macro, reason), std::vector{last}) << qPrintable(name);
        const TestRepair repair;
        ASSERT_EQ(CreateConverter(language, 0, 0)->Convert(path(macro), {}), kFxSuccess);
        EXPECT_EQ(linesWith(path(macro), "#include <" + header + ".h>"), std::vector{last}) << qPrintable(name);
        EXPECT_EQ(linesWith(path(macro), "#include \"" + name + ".h\"").size(), 1U) << qPrintable(name);
    }
    ASSERT_EQ(CreateConverter(4, 0, 0)->Convert(path("iwSheet_c.cpp"), {}), kFxSuccess);
    EXPECT_TRUE(notedLines("iwSheet_c.cpp", reason).empty());
}

TEST_F(Frames, TellWhereTheirHeadsSuitNoSheet)
{
    static constexpr char breaksQuotes[] =
        "a text closes the literal that it stands in, or is read as another text there";
    static constexpr char noManager[] = "a recording that began on a sheet without a name has no sketch manager";
    for (const TargetRow& row : targetTable) {
        if (!isRecorders(row.target))
            continue;
        const QString macro = QString("plate.") + QString::fromStdString(std::string(row.extension));
        const auto convert = [&](const char* sheet) {
            begin(false, sheet);
            return CreateConverter(static_cast<std::uint32_t>(row.target), 0, 0)->Convert(path(macro), {});
        };
        ASSERT_EQ(convert("A\"3"), kFxSuccess);
        EXPECT_EQ(notedLines(macro, breaksQuotes), linesWith(path(macro), "\"A\"3\"")) << row.name;
        ASSERT_EQ(convert(""), kFxSuccess);
        const std::vector<std::uint32_t> lines = notedLines(macro, noManager);
        // It would stand in front of the next manager.
        const char* const next = row.target == Target::CppCom ? "ISelectionManagerPtr"
                                 : row.target == Target::Vba  ? "'Get View Manager"
                                                              : "ViewManager";
        const std::vector<std::uint32_t> behind = linesWith(path(macro), next);
        if (row.target == Target::JavaScript)
            EXPECT_TRUE(lines.empty());
        else
            EXPECT_EQ(lines, std::vector<std::uint32_t>{behind.front()}) << row.name;
    }
}

TEST_F(Frames, StopAtTheFirstProjectFileThatCannotBeOpened)
{
    ASSERT_TRUE(QDir().mkpath(path("iwAddinConnection.h")));
    EXPECT_EQ(cpp.EmitProjectFiles(path("plate.cpp")), kFxFailure);
    EXPECT_TRUE(QFileInfo::exists(path("IwAddin_global.h")));
    EXPECT_TRUE(QFileInfo::exists(path("plate.vcproj")));
    EXPECT_FALSE(QFileInfo::exists(path("iwAddinConnection.cpp")));
    EXPECT_FALSE(QFileInfo::exists(path("plate.def")));
    // A file where the directory should be.
    EXPECT_EQ(vbnet.EmitProjectFiles(path("plate.vcproj/plate.vb")), kFxFailure);
    EXPECT_EQ(vba.EmitProjectFiles(path("plate.vcproj/plate.bas")), kFxSuccess);
    EXPECT_EQ(javascript.EmitProjectFiles(path("plate.vcproj/plate.html")), kFxSuccess);
}

TEST_F(Frames, FindTheInstalledLibraries)
{
    EXPECT_EQ(installedPath("bin\\x.dll"), "C:\\Program Files\\Velmorand\\Inkwright\\bin\\x.dll");
    installIn("D:\\CAD\\Inkwright\\");
    // What was found is doubled, the tail is not.
    EXPECT_EQ(installedPath("bin\\x.dll"), "D:\\\\CAD\\\\Inkwright\\\\bin\\x.dll");
    ASSERT_EQ(cpp.EmitProjectFiles(path("plate.cpp")), kFxSuccess);
    const QString project = QString::fromUtf8(contents(path("plate.vcproj")));
    EXPECT_EQ(project.count("AdditionalIncludeDirectories=\"&quot;D:\\\\CAD\\\\Inkwright\\\\APISDK\\headers\\cpp"
                            "&quot;\""),
              4);
    EXPECT_EQ(project.count("AdditionalLibraryDirectories=\"&quot;D:\\\\CAD\\\\Inkwright\\\\APISDK\\lib\\cpp&quot;\""),
              4);
    EXPECT_EQ(project.count("WarnAsError"), 1);
    EXPECT_EQ(project.count("TargetMachine=\"17\""), 2);
}

TEST_F(Frames, NumberObjectTypes)
{
    EXPECT_EQ(ObjectTypeValue("iwLineType"), 21);
    EXPECT_EQ(ObjectTypeValue("iwRichLineType"), 39);
    EXPECT_EQ(ObjectTypeValue("iwIWWindowType"), 87);
    EXPECT_EQ(ObjectTypeValue("iwObjectTypeCount"), 111);
    // Filed with a blank behind it.
    EXPECT_EQ(ObjectTypeValue("iwApplicationType"), 0);
    EXPECT_EQ(ObjectTypeValue("iwApplicationType "), 1);
    for (int again = 0; again < 2; ++again)
        EXPECT_EQ(ObjectTypeValue("iwlinetype"), 0);
    EXPECT_EQ(ObjectTypeValue("iwLayoutType"), 0);
}

} // namespace
