// The walk over a recording: what reaches the file, in which order, and what a failure leaves behind.

#include "TestActions.h"
#include "TestDrawing.h"
#include "TestRepair.h"

#include "host/kernel/CFxServices.h"
#include "statements/RecordingState.h"
#include "statements/counters.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <set>

namespace {

/// Leaves the process-wide values as a first conversion finds them.
class Driver : public testing::Test
{
protected:
    Driver() { GetFxSystemServices()->SetInt16("RecordingLanguage", 1); }
    ~Driver() override
    {
        GetFxSystemServices()->SetInt16("RecordingLanguage", 0);
        RecordingSheetName = CFxString();
        RecordingInModel = true;
    }

    TestConversion conversion;
};

/// An action whose class the driver has never heard of.
class Stranger final : public OdRxObject
{
public:
    OdRxClass* isA() const override { return OdRxClass::define("HostStranger", OdRxObject::desc()); }
};

/// Asks for a datum that is not there, as a handler does with a custom action that is too short.
class Throwing final : public CFxPropertyChanged
{
public:
    const CFxString& GetName() const override { return name; }
    const CFxString& GetGroup() const override { return name; }
    CFxVariant GetValue(CFxValueContext) const override { return {}; }
    CFxVariant GetOldValue(CFxValueContext) const override { return {}; }
    OdRxClass* GetObjectClass() const override { throw OdError_InvalidIndex(); }
    OdDbHandle GetHandle() const override { return {}; }
    CFxVariant GetIndex(CFxValueContext) const override { return {}; }

private:
    CFxString name;
};

/// Actions of objects that have no class.
std::vector<OdRxObjectPtr> classless()
{
    const auto added = addedLine(0x30);
    const auto modified = odrxNew<TestModified>("AcDbLine", 0x30);
    added->cls = nullptr;
    modified->cls = nullptr;
    return {added, modified, odrxNew<TestProperty>("LineScale", 2.0)};
}

const QString line1 = "                line1 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, "
                      "0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000 );\n";

QString lineStatement(int ordinal, int level)
{
    QString text = QString(line1).replace("line1", QString("line%1").arg(ordinal));
    return QString(4 * level, ' ') + text.trimmed() + '\n';
}

TEST_F(Driver, RefusesLanguagesThatNoTargetHas)
{
    EXPECT_EQ(CreateConverter(7, 0, 0), nullptr);
    EXPECT_EQ(CreateConverter(0xffffffff, 0, 0), nullptr);
    const auto converter = CreateConverter(1, 0, 0x123456789abcdef0);
    ASSERT_NE(converter, nullptr);
    EXPECT_EQ(converter->GetContext(), 0x123456789abcdef0);
}

TEST_F(Driver, FailsWhenTheFileCannotBeMade)
{
    QFile blocker(conversion.folder.filePath("made"));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    EXPECT_EQ(conversion.run({addedLine(1)}), kFxFailure);
    EXPECT_TRUE(QFileInfo(blocker.fileName()).isFile());

    blocker.remove();
    ASSERT_TRUE(QDir(conversion.folder.path()).mkpath("made/plate.cs"));
    EXPECT_EQ(conversion.run({addedLine(1)}), kFxFailure);
    EXPECT_TRUE(QFileInfo(conversion.path()).isDir());
}

TEST_F(Driver, RemovesTheFileWhenATopLevelActionFails)
{
    std::vector<OdRxObjectPtr> failing{
        odrxNew<Stranger>(),
        odrxNew<TestCustom>(99),
        odrxNew<Throwing>(),
        // A note by its class, but not in the drawing: found out while the command's children are registered.
        command({odrxNew<TestAdded>("AcDbMText", 0x2f)}),
    };
    for (const OdRxObjectPtr& action : classless())
        failing.push_back(action);
    OdDbDatabase database;
    database.addObject(OdDbHandle(0x2f), odrxNew<OdDbLeader>(OdDbLeader::desc()));
    CFxDocument document(&database);
    GetFxSystemServices()->SetActiveDocument(&document);
    for (const OdRxObjectPtr& action : failing) {
        EXPECT_EQ(conversion.run({addedLine(1), action, addedLine(2)}), kFxFailure)
            << action->isA()->name().toStdString();
        EXPECT_FALSE(QFileInfo::exists(conversion.path()));
        EXPECT_TRUE(QFileInfo(conversion.folder.filePath("made")).isDir());
        EXPECT_FALSE(QFileInfo::exists(conversion.folder.filePath("made/Program.cs")));
    }
    GetFxSystemServices()->SetActiveDocument(nullptr);
}

TEST_F(Driver, EndsACommandEarlyWhenAChildFails)
{
    std::vector<OdRxObjectPtr> failing{odrxNew<Stranger>(), odrxNew<TestCustom>(99), odrxNew<Throwing>(), command({}),
                                       nullptr};
    for (const OdRxObjectPtr& action : classless())
        failing.push_back(action);
    for (const OdRxObjectPtr& action : failing) {
        ASSERT_EQ(conversion.run({command({addedLine(1), action, addedLine(2)}), addedLine(3)}), kFxSuccess);
        EXPECT_EQ(conversion.body(), "            Line line1;\n            Line line2;\n            {\n" + line1 +
                                         "            }\n            Line line3;\n" + lineStatement(3, 3));
    }
}

/// The statements of a command wait for its end, those of plain letters in another form.
TEST_F(Driver, KeepsEveryLetterOfACommandsTexts)
{
    for (const QString& text : {QString("plain"), QString::fromUtf8("caf\u00e9"), QString::fromUtf8("\u4e16 \u00e9"),
                                QString::fromUtf16(u"front\0back", 10), QString::fromUtf16(u"\0\u4e16", 2)}) {
        const auto note =
            odrxNew<TestAdded>("AcDbText", 1, PropertyList{odrxNew<TestProperty>("Contents", CFxString(text))});
        ASSERT_EQ(conversion.run({command({note, addedLine(2)})}), kFxSuccess);
        EXPECT_TRUE(conversion.body().contains('"' + text + "\" );\n")) << conversion.body().toStdString();
    }
}

TEST_F(Driver, KeepsTheMacroWhenItsProjectCannotBeWritten)
{
    ASSERT_TRUE(QDir(conversion.folder.path()).mkpath("made/Program.cs"));
    EXPECT_EQ(conversion.run({addedLine(1)}), kFxFailure);
    EXPECT_EQ(conversion.body(), "            Line line1;\n" + lineStatement(1, 3));
    EXPECT_FALSE(QFileInfo::exists(conversion.folder.filePath("made/plate.csproj")));
}

TEST_F(Driver, DropsACommandThatSaysNothingButCountsItsObjects)
{
    ASSERT_EQ(conversion.run({command({}), command({odrxNew<TestAdded>("AcDbRegion", 7)}), nullptr,
                              odrxNew<TestAdded>("HostWeldSymbol", 8),
                              command({odrxNew<TestAdded>("HostWeldSymbol", 9)}), addedLine(10)}),
              kFxSuccess);
    // The region took 1; the unknown class took 2 at top level and nothing in a command.
    EXPECT_EQ(conversion.body(), "            Line line3;\n" + lineStatement(3, 3));
}

TEST_F(Driver, WritesBareStatementsForPolylinesAndViewports)
{
    for (const std::int32_t kind : {16, 46}) {
        ASSERT_EQ(conversion.run({command({addedLine(1), odrxNew<TestCustom>(kind)}), command({addedLine(2)})}),
                  kFxSuccess);
        // The level came back with the action, so the next command stands where it should.
        EXPECT_EQ(conversion.body(),
                  line1 + "            Line line2;\n            {\n" + lineStatement(2, 4) + "            }\n");
    }
}

TEST_F(Driver, LowersTheLevelOfAPageDownToNothing)
{
    GetFxSystemServices()->SetInt16("RecordingLanguage", 2);
    CFxActionArray commands;
    for (std::uint64_t i = 1; i <= 5; ++i)
        commands.append(command({addedLine(i), odrxNew<TestCustom>(16)}));
    const auto widths = [&] {
        EXPECT_EQ(conversion.run(commands, 0, 2), kFxSuccess);
        std::vector<qsizetype> found;
        for (const QByteArray& line : conversion.macro().split('\n'))
            if (line.contains("mSkMgr.InsertLine("))
                found.push_back(line.indexOf("var"));
        return found;
    };
    EXPECT_EQ(widths(), (std::vector<qsizetype>{12, 8, 4, 1, 1}));
    const TestRepair repair;
    EXPECT_EQ(widths(), std::vector<qsizetype>(5, 12));
}

TEST_F(Driver, IndentsAllThatFollowsABackgroundWithoutATarget)
{
    ASSERT_EQ(conversion.run({command({addedLine(1), odrxNew<TestCustom>(41)}), command({addedLine(2)})}), kFxSuccess);
    EXPECT_EQ(conversion.body(),
              line1 + "                Line line2;\n                {\n" + lineStatement(2, 5) + "                }\n");
    // An object that a custom action finishes gives the background its target.
    ASSERT_EQ(conversion.run({command({odrxNew<TestAdded>("AcDbRegion", 1), addedLine(2), odrxNew<TestCustom>(41)})}),
              kFxSuccess);
    EXPECT_EQ(conversion.body(), "            Region region1;\n            Line line2;\n            {\n" +
                                     lineStatement(2, 4) + "            }\n");
}

TEST_F(Driver, DeclaresTheOptionResultForASystemVariableAtTopLevelOnly)
{
    const QByteArray declaration = "            iwSetCommandOptionResult_e result;\n";
    const OdRxObjectPtr variable = odrxNew<TestSysVar>("LTSCALE");
    ASSERT_EQ(conversion.run({command({variable})}), kFxSuccess);
    EXPECT_FALSE(conversion.macro().contains(declaration));
    ASSERT_EQ(conversion.run({addedLine(1), nullptr, variable}), kFxSuccess);
    EXPECT_TRUE(conversion.macro().contains(declaration));
}

TEST_F(Driver, ShapesTheHeadByTheSheetOfTheRecordingOnce)
{
    const auto has = [&](const char* text) { return conversion.macro().contains(text); };
    RecordingSheetName = "A3";
    RecordingInModel = false;
    ASSERT_EQ(conversion.run({}), kFxSuccess);
    EXPECT_TRUE(has("iwSheet = iwDoc.GetSheet(\"A3\");\n"));
    EXPECT_FALSE(has("iwSketchManager = iwModel.GetSketchManager();"));
    ASSERT_EQ(conversion.run({}), kFxSuccess);
    EXPECT_FALSE(has("GetSheet(\""));
    EXPECT_TRUE(has("iwSketchManager = iwModel.GetSketchManager();"));
    // A sheet without a name leaves the sketch manager without a value.
    RecordingInModel = false;
    ASSERT_EQ(conversion.run({}), kFxSuccess);
    EXPECT_FALSE(has("GetSketchManager"));
}

TEST_F(Driver, FollowsTheRecordingLanguageAndNotItsOwn)
{
    for (const std::int16_t language : {0, 1, 2, 3, 4, 5}) {
        GetFxSystemServices()->SetInt16("RecordingLanguage", language);
        ASSERT_EQ(conversion.run({command({addedLine(1)}), odrxNew<TestAdded>("AcDbRegion", 2)}), kFxSuccess);
        EXPECT_EQ(conversion.macro().startsWith("\xEF\xBB\xBF"), language == 0 || language == 4) << language;
        EXPECT_EQ(conversion.macro().contains("            iwLine_ptr iwline_ptr1;\n            {\n"), language == 0);
        EXPECT_EQ(conversion.macro().contains("                iwline1 = iwSketchManager"), language == 0);
        EXPECT_EQ(conversion.macro().contains("            iwRegion_c* iwregion_c*2;\n"), language == 0);
    }
}

TEST_F(Driver, RepairsAMacroInWhateverLanguageTheHostRecords)
{
    TestDrawing drawing;
    drawing.add(0x10, "AcDbLayerTableRecord", {{"name", CFxString("Walls")}});
    const TestRepair repair;
    // What a layer's change is written on, the declarations and the byte order mark follow the language.
    const CFxActionArray actions{
        command({addedLine(1)}),
        command({odrxNew<TestModified>("AcDbLayerTableRecord", 0x10,
                                       PropertyList{odrxNew<TestProperty>("Frozen", CFxString("Yes"))})})};
    for (const std::uint32_t target : {0U, 1U, 2U, 3U, 4U, 5U}) {
        std::set<QString> macros;
        for (const std::int16_t language : {0, 1, 2, 3, 4, 5}) {
            GetFxSystemServices()->SetInt16("RecordingLanguage", language);
            processCounters = {};
            ASSERT_EQ(conversion.run(actions, 0, target), kFxSuccess);
            static const QRegularExpression randomId("[0-9A-Fa-f-]{36}");
            macros.insert(QString(conversion.macro()).remove(randomId));
        }
        EXPECT_EQ(macros.size(), 1U) << target;
    }
}

TEST_F(Driver, FetchesALayerOnceAndGoesOnCountingOverConversions)
{
    const OdRxObjectPtr layer = odrxNew<TestModified>("AcDbLayerTableRecord", 0x10);
    const auto managers = [&] {
        QList<int> numbers;
        for (const QString& line : conversion.body().split('\n'))
            if (line.contains("LayerManager iwLayerManager_"))
                numbers.append(line.section('_', 1, 1).section(' ', 0, 0).toInt());
        return numbers;
    };
    ASSERT_EQ(conversion.run({layer, layer, command({odrxNew<TestModified>("AcDbLayerTableRecord", 0x11)})}),
              kFxSuccess);
    const QList<int> first = managers();
    ASSERT_EQ(first.size(), 2);
    EXPECT_TRUE(conversion.body().contains(" );\n            {\n                LayerManager iwLayerManager_"))
        << conversion.body().toStdString();
    EXPECT_TRUE(conversion.body().contains("Layer layer1 = iwLayerManager_"));
    EXPECT_TRUE(conversion.body().contains("Layer layer2 = iwLayerManager_"));
    ASSERT_EQ(conversion.run({layer}), kFxSuccess);
    EXPECT_EQ(managers(), QList<int>{first.last() + 1});
}

} // namespace
