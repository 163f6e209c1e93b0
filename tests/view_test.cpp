// Pages and pictures of recordings, as files that the program writes.

#include "Program.h"

#include <QCryptographicHash>

namespace {

const QByteArray macroPage = "<html><script type=\"text/javascript\">\nfunction runMacro() {}</script></html>\n";

class View : public Program
{
protected:
    View() { write("walls.jsonl", line); }

    bool isPage(const QString& file) const
    {
        const QByteArray page = contents(file);
        return page.startsWith("<!doctype html>\n") && page.endsWith("</html>\n");
    }
};

TEST_F(View, WritesAPageWhereItIsAskedTo)
{
    QDir().mkpath(path("folder"));
    const struct
    {
        QStringList arguments;
        QByteArray input;
        const char* file;
    } cases[] = {
        {{"walls.jsonl"}, {}, "walls.view.html"},
        {{"walls.jsonl", "-o", "folder"}, {}, "folder/walls.view.html"},
        {{"walls.jsonl", "-o", "new/", "-t", "vba"}, {}, "new/walls.view.html"},
        {{"-", "-o", "piped.html"}, line, "piped.html"},
    };
    for (const auto& [arguments, input, file] : cases) {
        const Outcome outcome = run(QStringList("view") + arguments, input);
        EXPECT_EQ(outcome.status, 0) << outcome.err.toStdString();
        EXPECT_EQ(outcome.out, file + QByteArray("\n"));
        EXPECT_TRUE(isPage(file)) << file;
    }
    // What goes to standard output is the same as a file.
    EXPECT_EQ(run({"view", "walls.jsonl", "-o", "-"}).out, contents("walls.view.html"));
}

TEST_F(View, RefusesWhatWouldBeLost)
{
    write("edited.html", macroPage);
    const struct
    {
        QStringList arguments;
        int status;
        const char* message;
    } cases[] = {
        {{"walls.jsonl", "-o", "walls.jsonl"}, 2, "walls.jsonl would overwrite the recording walls.jsonl"},
        {{"walls.jsonl", "--macro", "edited.html", "-o", "edited.html"}, 2, "edited.html would overwrite the macro"},
        {{"walls.jsonl", "--macro", "none.html"}, 3, "none.html: cannot be opened: No such file or directory"},
        {{"walls.jsonl", "--macro", "walls.jsonl"},
         3,
         "walls.jsonl: no <script type=\"text/javascript\"> is found, in which a macro stands"},
        {{"none.jsonl"}, 3, "none.jsonl: cannot be opened: No such file or directory"},
        {{"walls.jsonl", "--svg", "--space", "Attic"}, 2, "--space: there is no \"Attic\" in the recording, but Model"},
    };
    for (const auto& [arguments, status, message] : cases) {
        const Outcome outcome = run(QStringList("view") + arguments);
        EXPECT_EQ(outcome.status, status) << message;
        EXPECT_TRUE(outcome.err.contains(message)) << outcome.err.toStdString();
        EXPECT_EQ(outcome.out, "");
    }
    EXPECT_EQ(contents("walls.jsonl"), line);
    EXPECT_EQ(contents("edited.html"), macroPage);
    EXPECT_FALSE(exists("walls.view.html"));
}

TEST_F(View, LeavesAnOlderPageOfWhatCannotBeRead)
{
    write("walls.view.html", "older");
    write("walls.jsonl", line + "{\"added\":1}\n");
    const Outcome outcome = run({"view", "walls.jsonl"});
    EXPECT_EQ(outcome.status, 3);
    // Once, and not for each target.
    EXPECT_EQ(outcome.err.count("walls.jsonl:2: "), 1) << outcome.err.toStdString();
    EXPECT_EQ(contents("walls.view.html"), "older");
}

TEST_F(View, ShowsWhatCannotBeConverted)
{
    write("odd.jsonl", line + R"({"custom":{"kind":999,"data":[]}})" + '\n');
    const Outcome outcome = run({"view", "odd.jsonl", "-t", "csharp"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(isPage("odd.view.html"));
    // Both forms of the macro fail, which is said once.
    EXPECT_EQ(outcome.err.count('\n'), 1) << outcome.err.toStdString();
}

TEST_F(View, LetsOnlyItsOwnMacrosRun)
{
    write("edited.html", macroPage);
    ASSERT_EQ(run({"view", "walls.jsonl", "--macro", "edited.html", "-t", "javascript", "-o", "with.html"}).status, 0);
    ASSERT_EQ(run({"view", "walls.jsonl", "-t", "javascript", "-o", "without.html"}).status, 0);
    const QByteArray hash = QCryptographicHash::hash("\nfunction runMacro() {}", QCryptographicHash::Sha256).toBase64();
    EXPECT_TRUE(contents("with.html").contains("'sha256-" + hash + '\''));
    EXPECT_FALSE(contents("without.html").contains(hash));
}

TEST_F(View, DrawsAPicture)
{
    const Outcome outcome = run({"view", "walls.jsonl", "--svg", "--space", "model"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out, "walls.svg\n");
    EXPECT_TRUE(contents("walls.svg").contains("<path"));
    EXPECT_EQ(run({"view", "walls.jsonl", "--svg", "-o", "-"}).out, contents("walls.svg"));
}

} // namespace
