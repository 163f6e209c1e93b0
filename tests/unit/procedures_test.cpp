// VBA macros that are divided into procedures.

#include "TestStream.h"
#include "module/MacroFile.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <map>

using namespace inkmacro;

namespace {

const QString head = "'A macro\nOption Explicit\nSub main()\n\tDim iwApp As Inkwright.Application\n"
                     "\tSet iwApp = GetObject(, \"Inkwright.Application\")\n\tIf Not iwApp Is Nothing Then\n";
const QString foot = "\tElse\n\t\tMsgBox \"none\"\n\tEnd If\nEnd Sub\n";

struct Written
{
    QStringList lines;
    bool isWhole = false;
    std::vector<CFxFaultNote> faults;
};

/// A macro of those statements, each an action.
Written write(const QStringList& actions, bool repairs, const QString& path)
{
    TestStream to;
    MacroFile macro(to.stream, path, Target::Vba, repairs, !repairs);
    macro.writeFrame(head);
    for (const QString& action : actions) {
        macro.write(action);
        macro.endAction();
    }
    macro.writeFrame(foot);
    macro.finish();
    to.stream.flush();
    Written written{QString::fromUtf8(to.buffer.data()).split('\n'), to.stream.status() == QTextStream::Ok,
                    GetFxSystemServices()->Notes().GetFaults()};
    GetFxSystemServices()->Notes().Forget();
    return written;
}

Written repaired(const QStringList& actions)
{
    const QTemporaryDir folder;
    return write(actions, true, folder.filePath("test.bas"));
}

/// The lines of each procedure without its first and its last one, by its name; under no name what stands outside.
std::map<QString, QStringList> proceduresOf(const QStringList& lines)
{
    std::map<QString, QStringList> procedures;
    QString name;
    for (const QString& line : lines) {
        if (line.startsWith("Sub ") || line.startsWith("Private Sub "))
            name = line.section("Sub ", 1).section('(', 0, 0);
        else if (line == "End Sub")
            name.clear();
        else
            procedures[name] += line;
    }
    return procedures;
}

int longest(const QStringList& lines)
{
    int most = 0;
    for (const auto& [name, body] : proceduresOf(lines))
        most = std::max(most, name.isEmpty() ? 0 : body.size() + 2);
    return most;
}

/// The statements in the order in which they are run, without blanks and declarations.
QStringList run(const QStringList& lines)
{
    const std::map<QString, QStringList> procedures = proceduresOf(lines);
    QStringList statements;
    const std::function<void(const QString&)> call = [&](const QString& name) {
        for (const QString& line : procedures.at(name))
            if (const QString code = line.trimmed(); procedures.contains(code) && !code.isEmpty())
                call(code);
            else if (!code.isEmpty() && !code.startsWith("Dim "))
                statements += code;
    };
    call("main");
    return statements;
}

QString repeated(const QString& text, int times)
{
    QString all;
    for (int i = 0; i < times; ++i)
        all += QString(text).replace("#", QString::number(i));
    return all;
}

/// What is run of the macro that is not divided.
QStringList runAsRecorded(const QStringList& actions)
{
    return run((head + actions.join("") + foot).split('\n'));
}

} // namespace

TEST(Procedures, AreOneInAShortMacro)
{
    const QStringList actions{"        Dim line1 As Inkwright.Line\n", repeated("        line1.X = #\n", 200)};
    EXPECT_EQ(repaired(actions).lines.join('\n'), head + actions.join("") + foot);
}

TEST(Procedures, HaveWholeActionsAndVariablesOfTheirOwn)
{
    QStringList actions;
    for (int i = 0; i < 40; ++i)
        actions += repeated("        Dim line" + QString::number(i) +
                                " As Inkwright.Line\n        If 1 Then\n            Set line" + QString::number(i) +
                                " = iwApp.InsertLine( \"line" + QString::number(i + 1) + "\" )\n",
                            1) +
                   repeated("            line" + QString::number(i) + ".line39 = # 'line39\n", 36) +
                   "        End If\n\n";
    const Written macro = repaired(actions);
    EXPECT_EQ(run(macro.lines), runAsRecorded(actions));
    const std::map<QString, QStringList> procedures = proceduresOf(macro.lines);
    // Six actions of 40 lines each.
    ASSERT_EQ(procedures.size(), 9U);
    EXPECT_EQ(procedures.at("RecordedActions1").first(), "    Dim line0 As Inkwright.Line");
    EXPECT_EQ(procedures.at("RecordedActions1").last(), "    End If");
    EXPECT_EQ(procedures.at("RecordedActions7").last(), "    End If");
    EXPECT_EQ(procedures.at("").join('\n'), "'A macro\nOption Explicit\nPrivate iwApp As Inkwright.Application\n\n"
                                            "\n\n\n\n\n\n\n");
}

/// They begin as new in each run of the macro, as a local does.
TEST(Procedures, ShareVariablesOfTheModule)
{
    const QStringList actions{"        Dim line1 As Inkwright.Line\n        Dim d As Double\n        Dim s As String\n"
                              "        Dim v As Variant\n        Dim e As Inkwright.iwObjectType_e\n"
                              "        Dim a( 2 ) As Double 'three\n        Dim mine As Long\n        mine = 1\n",
                              repeated("        iwApp.Run #\n", 300),
                              "        iwApp.Run LINE1, d, s, v, e, a, x.mine\n"};
    const QString text = repaired(actions).lines.join('\n');
    EXPECT_TRUE(text.contains("\nPrivate line1 As Inkwright.Line\nPrivate d As Double\nPrivate s As String\n"
                              "Private v As Variant\nPrivate e As Inkwright.iwObjectType_e\n"
                              "Private a( 2 ) As Double 'three\n\nSub main()\n\tSet iwApp"))
        << text.left(800).toStdString();
    EXPECT_TRUE(text.contains("()\n    Set line1 = Nothing\n    d = 0\n    s = \"\"\n    v = Empty\n    e = 0\n"
                              "    Erase a\n    Dim mine As Long\n    mine = 1\n"));
}

TEST(Procedures, AreTakenOutOfLongBlocks)
{
    const QString array = repeated("                a(#) = 1\n", 1200);
    const QStringList actions{
        "        If 1 Then\n" + repeated("            x.Run #, _\n                y\n", 900) + "        End If\n",
        "        If x Then\n            If y Then\n" + array + "            Else\n" + array +
            "            End If\n        ElseIf y Then\n" + repeated("            x.Run #\n", 600) + "        End If\n",
        // What leaves a loop cannot stand in another procedure than the loop.
        "        For i = 0 To 9\n" + repeated("            x.Run i, #\n", 600) +
            "            If x Then\n                Exit For\n            End If\n        Next\n",
    };
    const Written macro = repaired(actions);
    EXPECT_LE(longest(macro.lines), 300);
    QStringList statements = run(macro.lines);
    EXPECT_EQ(statements, runAsRecorded(actions));
    int loops = 0;
    for (const auto& [name, body] : proceduresOf(macro.lines)) {
        const QString text = QString(body.join('\n') + '\n').replace('\t', ' ');
        EXPECT_EQ(text.count(" If "), text.count("End If\n")) << name.toStdString();
        EXPECT_EQ(text.count("Exit For"), text.count("For i ")) << name.toStdString();
        loops += text.count("Exit For");
    }
    EXPECT_EQ(loops, 1);
}

TEST(Procedures, AreCalledByOthersWhereTheyAreMany)
{
    const QStringList actions{repeated("        x.Run #\n", 200'000)};
    const Written macro = repaired(actions);
    EXPECT_TRUE(macro.isWhole);
    EXPECT_LE(longest(macro.lines), 300);
    EXPECT_EQ(run(macro.lines), runAsRecorded(actions));
}

/// Lines may be long.
TEST(Procedures, HaveNoMoreTextThanCompiles)
{
    const QStringList actions{repeated("        x.Run \"" + QString(1000, 'a') + "\", #\n", 200)};
    const Written macro = repaired(actions);
    for (const auto& [name, body] : proceduresOf(macro.lines))
        EXPECT_LT(body.join('\n').size(), 64 * 1024) << name.toStdString();
    EXPECT_EQ(run(macro.lines), runAsRecorded(actions));
}

TEST(Procedures, FailTheMacroWhenTheyCannotWait)
{
    const QStringList actions{repeated("        x.Run #\n", 1000)};
    EXPECT_TRUE(repaired(actions).isWhole);
    EXPECT_FALSE(write(actions, true, "/nowhere/at/all/test.bas").isWhole);
}

TEST(Procedures, AreToldToBeTooLongInFaithfulMacros)
{
    const auto faults = [](int lines) {
        std::vector<std::uint32_t> found;
        for (const CFxFaultNote& fault : write({repeated("        x.Run 1\n", lines)}, false, "test.bas").faults)
            if (fault.reason == CFxString("the procedure is longer than VBA compiles"))
                found = fault.lines;
        return found;
    };
    // Lines of 16 letters.
    EXPECT_EQ(faults(4000), std::vector<std::uint32_t>{});
    EXPECT_EQ(faults(4096), std::vector<std::uint32_t>{3});
}
