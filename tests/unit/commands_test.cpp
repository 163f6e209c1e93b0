#include "TestDrawing.h"
#include "commands/CFxCommandHyperlink.h"
#include "commands/CFxCommandLinetype.h"
#include "host/db/LineStyleFile.h"

#include <QDir>
#include <QTemporaryDir>

#include <sys/stat.h>

namespace {

const char* const kCancel = "\x1B";

/// Gives answers that a test has made up, and keeps what the command shows: a line a prompt or message, a prompt with
/// its answer.
class ScriptedIO final : public CFxUserIO
{
public:
    ScriptedIO(OdDbDatabase& database, QStringList answers) : CFxUserIO(database), answers_(std::move(answers)) {}

    void ShowMessage(const CFxString& message) override { shown.append(message); }

    QStringList shown;

protected:
    bool ReadAnswer(const CFxString& prompt, const CFxExpectedAnswers&, CFxString& answer) override
    {
        const QString next = answers_.isEmpty() ? QString(kCancel) : answers_.takeFirst();
        shown.append(prompt.toQString() + (next == kCancel ? QString() : next));
        answer = next;
        return next != kCancel;
    }

private:
    QStringList answers_;
};

class Commands : public testing::Test
{
protected:
    std::int32_t run(CFxCommand& command, const QStringList& answers)
    {
        ScriptedIO io(drawing.database, answers);
        CFxCommandContext context(drawing.database, &io);
        const std::int32_t status = command.Execute(&context);
        shown = io.shown;
        return status;
    }
    /// Code and value of each row, as in "1000 text".
    QStringList hyperlink(std::uint64_t handle)
    {
        QStringList rows;
        for (OdResBufPtr row = drawing.id(handle).openObject(true)->xData("PE_URL"); row; row = row->next())
            rows.append(QString("%1 %2")
                            .arg(row->restype())
                            .arg(row->restype() == OdResBuf::kDxfXdInteger32 ? QString::number(row->getInt32())
                                                                             : row->getString()));
        return rows;
    }
    template<class T>
    std::vector<OdSmartPtr<T>> all()
    {
        std::vector<OdSmartPtr<T>> objects;
        for (const OdDbObjectId& id : drawing.database.objectIds())
            if (const OdSmartPtr<T> object = odrxQuery<T>(id.openObject().get()))
                objects.push_back(object);
        return objects;
    }

    TestDrawing drawing;
    QStringList shown;
    CFxCommandHyperlink hyperlinks;
    CFxCommandLinetype lineStyles;
};

TEST_F(Commands, TakeAKeywordInEveryFormThatIsUnambiguous)
{
    CFxKeywordArray keywords;
    keywords.Add("? to list,?", "_?,?");
    keywords.Add("eXit", "_Quit");
    keywords.Add("Extend", "_Extend");
    keywords.Add("EXTended", "_EXTended");
    EXPECT_EQ(keywords.BuildPrompt("Choose").toQString(), "Choose [? to list/eXit/Extend/EXTended]");
    const std::pair<const char*, std::vector<CFxString>> cases[] = {
        {"?", {"_?"}},           {"_?", {"_?"}},
        {"x", {"_Quit"}},        {"quit", {}},
        {"_q", {"_Quit"}},       {"E", {"_Extend"}},
        {"ext", {"_EXTended"}},  {"exte", {"_Extend", "_EXTended"}},
        {"EXTEND", {"_Extend"}}, {"_extende", {"_EXTended"}},
        {"? to list", {}},       {"", {}},
    };
    for (const auto& [answer, found] : cases)
        EXPECT_EQ(keywords.Find(answer), found) << answer;
}

TEST_F(Commands, PutAHyperlinkToEntitiesInThePlaceOfAnother)
{
    drawing.add(0x2A, "AcDbLine");
    drawing.add(0x2B, "AcDbCircle");
    drawing.add(0x2C, "AcDbLayerTableRecord");
    EXPECT_EQ(run(hyperlinks, {"", "", "2c", "2a 77", "2a 2B 2a", "plan.dwg", "North", "The plan"}), 5100);
    EXPECT_EQ(shown, (QStringList{
                         "Specify hyperlink option [Insert/Remove] <Insert>: ",
                         "Specify anchor option [Area/Entity] <Entity>: ",
                         "Specify entities: 2c",
                         "There is no entity with the handle 2c.",
                         "Specify entities: 2a 77",
                         "There is no entity with the handle 77.",
                         "Specify entities: 2a 2B 2a",
                         "Enter to use active drawing",
                         "Specify hyperlink address: plan.dwg",
                         "Enter for none",
                         "Specify place in this drawing: North",
                         "Enter for none",
                         "Specify description text: The plan",
                     }));
    for (const std::uint64_t handle : {0x2A, 0x2B})
        EXPECT_EQ(hyperlink(handle), (QStringList{"1000 plan.dwg", "1002 {", "1000 The plan", "1000 North", "1002 {",
                                                  "1071 0", "1002 }", "1002 }"}));

    EXPECT_EQ(run(hyperlinks, {"_insert", "obj", "2A", ""}), 5100);
    EXPECT_EQ(shown.back(), "Specify hyperlink address: ");
    EXPECT_EQ(hyperlink(0x2A),
              (QStringList{"1000 ", "1002 {", "1000 ", "1000 ", "1002 {", "1071 0", "1002 }", "1002 }"}));
    ASSERT_EQ(all<OdDbRegAppTableRecord>().size(), 1U);
    EXPECT_EQ(all<OdDbRegAppTableRecord>().front()->getName(), "PE_URL");

    EXPECT_EQ(run(hyperlinks, {"", "", ""}), 5100);
    EXPECT_EQ(shown.size(), 3);
}

TEST_F(Commands, DrawARectangleForAHyperlink)
{
    drawing.add(0x10, "AcDbLayerTableRecord", {{"name", OdString("Plan")}});
    drawing.database.setCLAYER(drawing.id(0x10));
    EXPECT_EQ(run(hyperlinks, {"I", "A", "1", "4,3", "@-3,-1,0.5", "a", "", ""}), 5100);
    EXPECT_EQ(shown[2] + shown[3], "Specify start corner: 1A point is x,y or x,y,z.");
    const auto areas = all<OdDb3dPolyline>();
    ASSERT_EQ(areas.size(), 1U);
    const OdArray<OdGePoint3d> corners{{4, 3, 0}, {1, 3, 0}, {1, 2, 0.5}, {4, 2, 0.5}};
    EXPECT_EQ(areas[0]->vertices(), corners);
    EXPECT_TRUE(areas[0]->isClosed());
    EXPECT_EQ(areas[0]->layerId(), drawing.id(0x10));
    EXPECT_EQ(hyperlink(areas[0]->getDbHandle().value()).front(), "1000 a");
    EXPECT_TRUE(all<OdDbRegAppTableRecord>().empty());
    const auto blocks = all<OdDbBlockTableRecord>();
    ASSERT_EQ(blocks.size(), 1U);
    EXPECT_EQ(blocks[0]->getName(), "*Model_Space");
    EXPECT_EQ(blocks[0]->newIterator()->objectId(), areas[0]->objectId());
}

TEST_F(Commands, DrawARectangleOnALayerOfItsOwn)
{
    const auto insert = [&] {
        ScriptedIO io(drawing.database, {"A", "0,0", "1,1", ""});
        CFxCommandContext context(drawing.database, &io);
        return hyperlinks.Insert(&context, true);
    };
    EXPECT_EQ(insert(), 5100);
    EXPECT_EQ(insert(), 5100);
    const auto layers = all<OdDbLayerTableRecord>();
    ASSERT_EQ(layers.size(), 1U);
    EXPECT_EQ(layers[0]->getName(), "URLLAYER");
    EXPECT_EQ(layers[0]->color().colorIndex(), 1);
    for (const auto& area : all<OdDb3dPolyline>())
        EXPECT_EQ(area->layerId(), layers[0]->objectId());
}

TEST_F(Commands, DiscardTheRectangleWhoseLayerCannotBeMade)
{
    drawing.database.noteHandle(OdDbHandle(~std::uint64_t{0}));
    ScriptedIO io(drawing.database, {"A", "0,0", "1,1", "a", "", ""});
    CFxCommandContext context(drawing.database, &io);
    EXPECT_EQ(hyperlinks.Insert(&context, true), -5001);
    EXPECT_EQ(drawing.database.objectIds().length(), 0U);
}

TEST_F(Commands, WriteNothingWhenAPromptIsCancelled)
{
    drawing.add(0x2A, "AcDbLine");
    for (const QStringList& answers : {QStringList{},
                                       {"I"},
                                       {"I", "E"},
                                       {"I", "E", "2A"},
                                       {"I", "E", "2A", "a"},
                                       {"I", "E", "2A", "a", "b"},
                                       {"I", "A"},
                                       {"I", "A", "0,0"},
                                       {"R"}}) {
        EXPECT_EQ(run(hyperlinks, answers), -5002) << answers.size();
        EXPECT_EQ(drawing.database.objectIds().length(), 1U);
        EXPECT_TRUE(hyperlink(0x2A).isEmpty());
    }
    CFxCommandContext alone(drawing.database, nullptr);
    EXPECT_EQ(hyperlinks.Execute(&alone), -5001);
    EXPECT_EQ(lineStyles.Execute(&alone), -5001);
}

TEST_F(Commands, RemoveHyperlinksByNumberAddressOrAll)
{
    const auto fill = [&] {
        for (const auto& [handle, address, description] :
             {std::tuple(0x2A, "a", "one"), {0x2B, "b", ""}, {0x2C, "a", "two"}, {0x2D, "a", "one"}}) {
            drawing.add(static_cast<std::uint64_t>(handle), "AcDbLine");
            EXPECT_EQ(run(hyperlinks, {"I", "", QString::number(handle, 16), address, "", description}), 5100);
        }
        drawing.add(0x2E, "AcDbLine");
    };
    const auto left = [&] {
        QString handles;
        for (const std::uint64_t handle : {0x2A, 0x2B, 0x2C, 0x2D})
            if (!hyperlink(handle).isEmpty())
                handles += QString::number(handle, 16).right(1);
        return handles;
    };
    fill();
    EXPECT_EQ(run(hyperlinks, {"R", "all", "4", "A", "", "1"}), 5100);
    EXPECT_EQ(shown.mid(2), (QStringList{
                                "1 a (one)",
                                "2 b ()",
                                "3 a (two)",
                                "Specify number, hyperlink, or * for all: 4",
                                "Not a valid selection, try again.",
                                "Specify number, hyperlink, or * for all: A",
                                "Not a valid selection, try again.",
                                "Specify number, hyperlink, or * for all: ",
                                "Not a valid selection, try again.",
                                "Specify number, hyperlink, or * for all: 1",
                                "2 hyperlinks deleted.",
                            }));
    EXPECT_EQ(left(), "bc");
    fill();
    EXPECT_EQ(run(hyperlinks, {"R", "2C 2B 2A", "a"}), 5100);
    EXPECT_EQ(left(), "bd");
    EXPECT_EQ(run(hyperlinks, {"R", "2B", "*"}), 5100);
    EXPECT_EQ(shown.back(), "1 hyperlink deleted.");
    EXPECT_EQ(left(), "d");

    // The last choice is the default.
    EXPECT_EQ(run(hyperlinks, {"", "2A 2E"}), 5100);
    EXPECT_EQ(shown, (QStringList{"Specify hyperlink option [Insert/Remove] <Remove>: ", "Specify entities: 2A 2E"}));
    EXPECT_EQ(run(hyperlinks, {"", ""}), 5100);
}

TEST_F(Commands, SelectAllThatIsDrawn)
{
    drawing.add(0x2A, "AcDbLine");
    drawing.add(0x2B, "AcDbLine", {{"isErased", true}});
    drawing.add(0x2C, "AcDbLine");
    drawing.add(0x2D, "AcDbLine");
    drawing.add(0x30, "AcDbBlockTableRecord", {{"entities", OdArray<OdDbObjectId>{drawing.id(0x2C)}}});
    drawing.add(0x31, "AcDbBlockTableRecord",
                {{"entities", OdArray<OdDbObjectId>{drawing.id(0x2D)}}, {"isLayout", true}});
    ScriptedIO io(drawing.database, {"ALL"});
    const CFxSelectionSetPtr selection = CreateFxSelectionSet();
    EXPECT_EQ(io.GetSelection(*selection, 0, 0), 5100);
    EXPECT_EQ(selection->GetIds(), (std::vector{drawing.id(0x2A), drawing.id(0x2D)}));
}

class LineStyles : public Commands
{
protected:
    QString write(const QString& name, const QByteArray& bytes)
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return path(name);
    }
    QByteArray contents(const QString& name)
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
    }
    QString path(const QString& name) const { return folder_.filePath(name); }
    /// What is shown between the last question for a file and the end.
    QStringList shownBehindFile() const
    {
        for (int i = shown.size() - 1; i >= 0; --i)
            if (shown[i].startsWith("Specify style definition file"))
                return shown.mid(i + 1, shown.size() - i - 3);
        return {};
    }
    std::vector<QString> loaded()
    {
        std::vector<QString> names;
        for (const auto& record : all<OdDbLinetypeTableRecord>())
            names.push_back(record->getName() + '=' + record->comments());
        return names;
    }

private:
    QTemporaryDir folder_;
};

TEST_F(LineStyles, AreListedByTheRulesOfTheirFiles)
{
    const QByteArray longText = "a description that is cut behind forty-seven ch|aracters";
    const QString file =
        write("all.lin", ";; only comment\r*ONE,first ;; of all\rA,1,-1\r\n\n  *Two\n*THREE, \xE9\xE8\nA,0\r\r"
                         "*A_VERY_LONG_NAME_INDEED,x\n*four," +
                             longText + "\r\n x*FIVE,no\n*six,\xC3\xA9");
    EXPECT_EQ(run(lineStyles, {"?", "*", file, ""}), 5100);
    EXPECT_EQ(shown, (QStringList{
                         "Active LineStyle: ByLayer",
                         "Specify LineStyle option [? to list/Activate/Create/Load/Set]: ?",
                         "Specify LineStyle: *",
                         "Specify LineStyle File",
                         "Specify style definition file [. for none]: " + file,
                         "LineStyles defined in file " + file,
                         " Name Description ",
                         "---------------- ------------------",
                         "\"ONE\"            first ",
                         "\"Two\"            ",
                         QString::fromUtf8("\"THREE\"           éè"),
                         "\"A_VERY_LONG_NAME_INDEED\" x",
                         "\"four\"           a description that is cut behind forty-seven ch",
                         QString::fromUtf8("\"six\"            é"),
                         "Active LineStyle: ByLayer",
                         "Specify LineStyle option [? to list/Activate/Create/Load/Set]: ",
                     }));
    EXPECT_EQ(run(lineStyles, {"_?", "t?[om]*", "nowhere.lin", file, ""}), 5100);
    EXPECT_EQ(shown[5], "There is no file nowhere.lin that can be read.");
    EXPECT_EQ(shownBehindFile().mid(3), QStringList("\"Two\"            "));
    EXPECT_EQ(run(lineStyles, {"?", "", "?", "*", ".", ""}), 5100);
    EXPECT_FALSE(shown.contains(" Name Description "));
}

TEST_F(LineStyles, ThatCannotEndAreReadWithinBounds)
{
    QByteArray endless(3'000'000, '*');
    LineStyleFile::Style style;
    LineStyleFile file(write("endless.lin", endless + "\n*LAST,one"));
    EXPECT_TRUE(file.next(style));
    EXPECT_LT(style.name.length(), 5000);
    EXPECT_TRUE(file.next(style));
    EXPECT_EQ(style.name, "LAST");
    EXPECT_FALSE(file.next(style));

    ASSERT_EQ(mkfifo(path("pipe.lin").toLocal8Bit().constData(), 0600), 0);
    EXPECT_FALSE(LineStyleFile(path("pipe.lin")).isOpen());
    EXPECT_FALSE(LineStyleFile(path(".")).isOpen());
}

TEST_F(LineStyles, AreCreatedBehindThoseOfAFile)
{
    const QByteArray before = "*OLD,\xE9\nA,1,-1";
    const QString file = write("my.lin", before);
    const QString thirteen = "1,1,1,1,1,1,1,1,1,1,1,1,1";
    EXPECT_EQ(run(lineStyles, {"C", "A,B", file, "Dash, dot", "1", thirteen, "1,", "1,x", "0.5, -.25,0", "c", "NEXT",
                               file, "", thirteen.mid(2), ""}),
              5100);
    const QString format =
        "Format: positive decimal values for dashes, negative decimal values for spaces, and a 0 for dots...";
    EXPECT_EQ(shown.mid(3, 12), (QStringList{
                                    "Create or Append LineStyle file",
                                    "Specify style definition file [. for none]: " + file,
                                    "Specify descriptive text: Dash, dot",
                                    format,
                                    "Specify pattern descriptors: 1",
                                    "There must be between 2 and 12 dash/dot specs.",
                                    format,
                                    "Specify pattern descriptors: " + thirteen,
                                    "There must be between 2 and 12 dash/dot specs.",
                                    format,
                                    "Specify pattern descriptors: 1,",
                                    "Invalid number or bad continuation.",
                                }));
    EXPECT_EQ(shown.count("New LineStyle definition saved to file."), 2);
    EXPECT_EQ(contents("my.lin"),
              before + "\r\n*A,B,Dash, dot\r\nA,0.5, -.25,0\r\n\r\n*NEXT,\r\nA," + thirteen.mid(2).toLatin1() + "\r\n");

    // What is no file cannot be written, and nothing is said of it.
    ASSERT_EQ(mkfifo(path("pipe.lin").toLocal8Bit().constData(), 0600), 0);
    for (const QString& place : {path("."), path("pipe.lin"), path("no/such/folder.lin")}) {
        EXPECT_EQ(run(lineStyles, {"C", "X", place, "", "1,1", ""}), 5100);
        EXPECT_EQ(shown[shown.size() - 3], "Specify pattern descriptors: 1,1");
    }
    EXPECT_EQ(run(lineStyles, {"C", "", "C", "X", ".", "C", "X", file, kCancel}), -5002);
}

TEST_F(LineStyles, AreLoadedAndReloaded)
{
    const QString file = write("all.lin", "*ONE,first\nA,.5,-.25\n*GAS,g\nA,.5,[\"GAS\",STANDARD,S=.1,X=-0.1],-.25\n"
                                          "*BAD,b\n*WORSE,w\nA,1,x\n*TWO,second\n;; more\nA,1,-1\n");
    EXPECT_EQ(run(lineStyles, {"L", "one", file, "load", "none", file, ""}), 5100);
    EXPECT_EQ(shownBehindFile(), QStringList("No matching or bad definition of none in file " + file + "."));
    EXPECT_EQ(loaded(), (std::vector<QString>{"ONE=first"}));

    write("all.lin", contents("all.lin").replace("first", "again"));
    EXPECT_EQ(run(lineStyles, {"L", "*", file, "n", ""}), 5100);
    EXPECT_EQ(shownBehindFile(), (QStringList{
                                     "LineStyle \"ONE\" is already loaded. Reload it? [Yes/No] <Yes>: n",
                                     "No matching or bad definition of  BAD  in file  " + file + ".",
                                     "No matching or bad definition of  WORSE  in file  " + file + ".",
                                 }));
    EXPECT_EQ(loaded(), (std::vector<QString>{"ONE=first", "GAS=g", "TWO=second"}));
    EXPECT_EQ(run(lineStyles, {"L", "ONE", file, "_Yes", "L", "", ""}), 5100);
    EXPECT_TRUE(shown.contains("LineStyle \"ONE\" reloaded."));
    EXPECT_EQ(loaded().front(), "ONE=again");
}

TEST_F(LineStyles, WithoutANameOrWithThatOfAnotherAreLeftOut)
{
    const QString file = write("all.lin", "*,none\nA,1,-1\n*ONE,first\nA,1,-1\n*  ,blank\nA,1,-1\n"
                                          "*one,second\nA,2,-2\n*TWO,t\nA,1,-1\n");
    auto problems = [seen = GetFxSystemServices()->GetProblems().size()]() mutable {
        const std::vector<CFxString>& all = GetFxSystemServices()->GetProblems();
        const std::vector<CFxString> fresh(all.begin() + static_cast<std::ptrdiff_t>(seen), all.end());
        seen = all.size();
        return fresh;
    };
    const CFxString without = "a line style without a name in " + file + " is left out";
    const CFxString further = "a further definition of the line style one in " + file + " is left out";
    EXPECT_EQ(run(lineStyles, {"L", "*", file, ""}), 5100);
    EXPECT_EQ(shownBehindFile(), QStringList());
    EXPECT_EQ(loaded(), (std::vector<QString>{"ONE=first", "TWO=t"}));
    EXPECT_EQ(problems(), (std::vector<CFxString>{without, without, further}));
    EXPECT_EQ(run(lineStyles, {"L", "one", file, "y", ""}), 5100);
    EXPECT_EQ(loaded().front(), "ONE=first");
    EXPECT_EQ(problems(), std::vector<CFxString>{further});

    // A blank name is as good as none.
    EXPECT_EQ(run(lineStyles, {"C", "  ", ""}), 5100);
    EXPECT_EQ(shown.size(), 5);
}

TEST_F(LineStyles, AreByLayerWhereNoneIsActive)
{
    drawing.add(0x14, "AcDbLinetypeTableRecord", {{"name", OdString("ByLayer")}});
    EXPECT_EQ(run(lineStyles, {""}), 5100);
    EXPECT_EQ(shown.front(), "Active LineStyle: ByLayer");
}

TEST_F(LineStyles, BecomeActive)
{
    drawing.add(0x14, "AcDbLinetypeTableRecord", {{"name", OdString("Dashed")}});
    EXPECT_EQ(run(lineStyles, {"Set", "dashed", "A", "NONE", "_Activate", "continuous", "S", "byblock", ""}), 5100);
    EXPECT_EQ(shown, (QStringList{
                         "Active LineStyle: ByLayer",
                         "Specify LineStyle option [? to list/Activate/Create/Load/Set]: Set",
                         "Specify LineStyle: dashed",
                         "Active LineStyle: Dashed",
                         "Specify LineStyle option [? to list/Activate/Create/Load/Set]: A",
                         "Specify LineStyle: NONE",
                         "LineStyle \"NONE\" not found in definition file.",
                         "You can use the \"Load\" option to load it from another file.",
                         "Active LineStyle: Dashed",
                         "Specify LineStyle option [? to list/Activate/Create/Load/Set]: _Activate",
                         "Specify LineStyle: continuous",
                         "Active LineStyle: Continuous",
                         "Specify LineStyle option [? to list/Activate/Create/Load/Set]: S",
                         "Specify LineStyle: byblock",
                         "Active LineStyle: ByBlock",
                         "Specify LineStyle option [? to list/Activate/Create/Load/Set]: ",
                     }));
    EXPECT_EQ(run(lineStyles, {"Set", "bylayer", kCancel}), -5002);
    EXPECT_EQ(shown[3], "Active LineStyle: ByLayer");
}

TEST_F(Commands, AreKnownByGlobalAndLocalName)
{
    const auto hyperlink = odrxNew<CFxCommandHyperlink>();
    CFxCommandStack stack;
    stack.AddCommand(hyperlink);
    for (const char* name : {"_-HYPERLINK", "-HYPERLINK", "-hyperlink"})
        EXPECT_EQ(stack.LookupCommand(name).get(), hyperlink.get()) << name;
    EXPECT_FALSE(stack.LookupCommand("HYPERLINK"));
    stack.RemoveCommand(hyperlink);
    EXPECT_FALSE(stack.LookupCommand("-HYPERLINK"));
}

} // namespace
