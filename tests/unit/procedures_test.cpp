// Macros that are divided: in VBA into procedures, in JavaScript into functions.

#include "TestStream.h"
#include "module/MacroFile.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <map>

using namespace inkmacro;

namespace {

const QString head = "'A macro\nOption Explicit\nSub main()\n\tDim iwApp As Inkwright.Application\n"
                     "\tSet iwApp = GetObject(, \"Inkwright.Application\")\n\tIf Not iwApp Is Nothing Then\n";
const QString foot = "\tElse\n\t\tMsgBox \"none\"\n\tEnd If\nEnd Sub\n";

const QString pageHead = "<html>\n       function runMacro() {\n            var mApp = getApplication(),\n"
                         "               mDoc = mApp.GetActiveDocument();\n\n";
const QString pageFoot = "       }\n   </script>\n</html>\n";

struct Written
{
    QStringList lines;
    bool isWhole = false;
    std::vector<CFxFaultNote> faults;
};

/// A macro of those statements, each an action.
Written write(const QStringList& actions, bool repairs, const QString& path, Target target = Target::Vba)
{
    TestStream to;
    MacroFile macro(to.stream, path, target, repairs, !repairs);
    macro.writeFrame(target == Target::Vba ? head : pageHead);
    for (const QString& action : actions) {
        macro.write(action);
        macro.endAction();
    }
    macro.writeFrame(target == Target::Vba ? foot : pageFoot);
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

QStringList repairedPage(const QStringList& actions)
{
    const QTemporaryDir folder;
    return write(actions, true, folder.filePath("test.html"), Target::JavaScript).lines;
}

/// The lines of each procedure without its first and its last one, by its name; under no name what stands outside. A
/// page's functions stand in its main one.
std::map<QString, QStringList> proceduresOf(const QStringList& lines)
{
    const std::array<QString, 2> functionEnds{"       }", "            }"};
    std::map<QString, QStringList> procedures;
    QStringList open{QString()};
    for (const QString& line : lines) {
        const auto depth = static_cast<std::size_t>(open.size() - 1);
        if (line.startsWith("Sub ") || line.startsWith("Private Sub "))
            open += line.section("Sub ", 1).section('(', 0, 0);
        else if (line.trimmed().startsWith("function "))
            open += line.section("function ", 1).section('(', 0, 0);
        else if (line == "End Sub" || (depth > 0 && line == functionEnds.at(depth - 1)))
            open.removeLast();
        else
            procedures[open.last()] += line;
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
            else if (code.endsWith("();") && procedures.contains(code.chopped(3)))
                call(code.chopped(3));
            else if (!code.isEmpty() && !code.startsWith("Dim "))
                statements += code;
    };
    call(procedures.contains("main") ? "main" : "runMacro");
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

TEST(Functions, AreOneInAShortPage)
{
    const QStringList actions{"            var line1 = f();\n", repeated("            line1.put_X(#);\n", 2999)};
    EXPECT_EQ(repairedPage(actions).join('\n'), pageHead + actions.join("") + pageFoot);
}

TEST(Functions, StandInTheMainOneAndHaveWholeActions)
{
    QStringList actions;
    for (int i = 0; i < 100; ++i)
        actions += "            var line" + QString::number(i) + " = mSkMgr.InsertLine(1);\n" +
                   repeated("            line" + QString::number(i) + ".put_X(#);\n", 38) + "\n";
    const QStringList page = repairedPage(actions);
    EXPECT_EQ(run(page), run((pageHead + actions.join("") + pageFoot).split('\n')));
    EXPECT_EQ(page.first(), "<html>");
    EXPECT_EQ(page.mid(page.size() - 4).join('\n'), pageFoot);
    const std::map<QString, QStringList> functions = proceduresOf(page);
    ASSERT_EQ(functions.size(), 4U);
    // 75 actions of 40 lines.
    EXPECT_EQ(functions.at("recordedActions1").first(), "                var line0 = mSkMgr.InsertLine(1);");
    EXPECT_EQ(functions.at("recordedActions1").last(), "                line74.put_X(37);");
    EXPECT_EQ(functions.at("runMacro").join('\n'), "            var mApp = getApplication(),\n"
                                                   "               mDoc = mApp.GetActiveDocument();\n\n"
                                                   "            recordedActions1();\n"
                                                   "            recordedActions2();\n\n");
}

/// A variable that is declared in one place is the same in all of a function.
TEST(Functions, ShareVariablesOfTheMainOne)
{
    const QString filling = repeated("            mApp.Run(#);\n", 2990);
    const QStringList actions{
        "            var line1 = f(\"var text = 1\"), mine = g(1, other), list =\n            [];\n"
        "            var points;\n            var own = 1;\n"
        "            for (var i = 0; i < 2; ++i)\n                line1.put_X(i);\n",
        filling,
        "            var points;\n            points = line1.GetPoint();\n            var own2;\n"
        "            for (var i = 0; i < 2; ++i)\n                x.put_X(own2.own, list, Line1);\n",
        filling,
        "            late = 1;\n",
        filling,
        "            var late = late + 1;\n"};
    const QString text = repairedPage(actions).join('\n');
    EXPECT_TRUE(text.contains("mDoc = mApp.GetActiveDocument();\n\n            var line1, mine, list;\n"
                              "            var points;\n            var i;\n            var late;\n\n"
                              "            recordedActions1();\n"))
        << text.left(400).toStdString();
    EXPECT_TRUE(text.contains("recordedActions1() {\n"
                              "                line1 = f(\"var text = 1\"), mine = g(1, other), list =\n"
                              "                [];\n                var own = 1;\n"
                              "                for (i = 0; i < 2; ++i)\n                    line1.put_X(i);\n"));
    EXPECT_TRUE(text.contains("recordedActions2() {\n                points = line1.GetPoint();\n"
                              "                var own2;\n                for (i = 0;"));
    EXPECT_TRUE(text.contains("                late = late + 1;\n"));
}

TEST(Functions, HaveWholeStatements)
{
    const QString block = "            if (x &&\n                y)\n            {\n" +
                          repeated("                f(\"}\", #);\n", 700) + "            }\n";
    const QStringList actions{block + block, block,
                              block + "            var list =\n            [\n" + repeated("             #,\n", 7000) +
                                  "            ];\n",
                              block, repeated("            for (i = 0; i < 2; ++i)\n                g(#);\n", 9000)};
    const QStringList page = repairedPage(actions);
    EXPECT_EQ(run(page), run((pageHead + actions.join("") + pageFoot).split('\n')));
    for (const auto& [name, lines] : proceduresOf(page)) {
        const QString text = lines.join('\n');
        EXPECT_EQ(text.count("{\n"), text.count("}\n") + (text.endsWith('}') ? 1 : 0)) << name.toStdString();
        EXPECT_EQ(text.count("for ("), text.count("g(")) << name.toStdString();
        EXPECT_LE(lines.size(), 7003) << name.toStdString();
    }
}

TEST(Functions, AreToldToHaveTooManyVariablesInFaithfulPages)
{
    const auto faults = [](const QString& action) {
        std::vector<std::uint32_t> found;
        for (const CFxFaultNote& fault : write({action}, false, "test.html", Target::JavaScript).faults)
            if (fault.reason == CFxString("the function has more variables than browsers have room for"))
                found = fault.lines;
        return found;
    };
    // One is the head's.
    EXPECT_EQ(faults(repeated("            var a#, b# = f(\"var x#\");\n", 50'000 - 1) + "            var last;\n"),
              std::vector<std::uint32_t>{});
    EXPECT_EQ(faults(repeated("            var a#, b#;\n", 50'000)), std::vector<std::uint32_t>{2});
    EXPECT_EQ(faults(repeated("            var a = f(#);\n", 200'000)), std::vector<std::uint32_t>{});
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
