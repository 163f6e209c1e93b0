// Macros that are run to verify them: what node is given, and what is made of its end. A script stands for node.

#include "Program.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cerrno>

#include <sys/stat.h>

namespace {

class Verify : public Program
{
protected:
    Verify()
    {
        QDir().mkpath(path("temporary"));
        node("cp -rL \"$(dirname \"$2\")\" seen; echo \"$1\" > script; wc -c > input");
    }

    /// What a shell does in the place of node.
    void node(const QByteArray& does) const
    {
        QFile file(write("bin/node", "#!/bin/sh\n" + does + '\n'));
        file.setPermissions(file.permissions() | QFile::ExeOwner);
    }
    static QString withNode() { return "PATH=$PWD/bin:$PATH; TMPDIR=$PWD/temporary; export PATH TMPDIR; "; }

    /// `before` is what a shell does first.
    Outcome verify(const QStringList& arguments, const QByteArray& input = {}, const QString& before = {}) const
    {
        const Outcome outcome = run(QStringList("verify") + arguments, input, withNode() + before);
        EXPECT_EQ(temporaryFolders(), QStringList()) << outcome.err.toStdString();
        return outcome;
    }
    QStringList temporaryFolders() const
    {
        return QDir(path("temporary")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    QJsonDocument seen(const QString& name) const { return QJsonDocument::fromJson(contents("seen/" + name)); }
};

const QByteArray weld = R"({"added":{"class":"HostWeldSymbol","handle":"3C","properties":[]}})"
                        "\n";

TEST_F(Verify, GivesNodeTheRepairedMacroAndWhatIsToldOfIt)
{
    write("walls.jsonl", line + weld);
    write("changed.html", "");
    ASSERT_EQ(run({"convert", "walls.jsonl", "-tjavascript", "-o", "own/walls.html", "--repair", "--map",
                   "--report-file", "own/report.json"})
                  .status,
              0);
    const Outcome outcome = verify({"walls.jsonl"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out + outcome.err, "");
    EXPECT_EQ(contents("input"), "0\n");
    for (const char* const name : {"walls.html", "walls.html.map.json"})
        EXPECT_EQ(contents(QString("seen/") + name), contents(QString("own/") + name));
    EXPECT_EQ(seen("report.json")["conversions"][0]["losses"],
              QJsonDocument::fromJson(contents("own/report.json"))["conversions"][0]["losses"]);

    QJsonObject job = seen("job.json").object();
    const QString folder = QString(contents("script")).section("/verify.cjs\n", 0, 0);
    EXPECT_TRUE(folder.startsWith(path("temporary/"))) << folder.toStdString();
    EXPECT_EQ(job.take("programVersion"), seen("report.json")["programVersion"]);
    const QJsonObject expected{{"input", "walls.jsonl"},
                               {"recording", path("walls.jsonl")},
                               {"macro", folder + "/walls.html"},
                               {"macroName", "walls.html"},
                               {"map", folder + "/walls.html.map.json"},
                               {"report", folder + "/report.json"},
                               {"edited", QJsonValue::Null},
                               {"json", false}};
    EXPECT_EQ(job, expected) << contents("seen/job.json").toStdString();

    QDir(path("seen")).removeRecursively();
    EXPECT_EQ(verify({"walls.jsonl", "--json", "--macro", "changed.html"}).status, 0);
    EXPECT_EQ(seen("job.json")["edited"], path("changed.html"));
    EXPECT_EQ(seen("job.json")["macroName"], "changed.html");
    EXPECT_EQ(seen("job.json")["json"], true);
}

TEST_F(Verify, MakesOneScriptOfAllThatNodeRuns)
{
    write("walls.jsonl", line);
    EXPECT_EQ(verify({"walls.jsonl"}).status, 0);
    const QDir web(INKMACRO_SOURCE_DIR "/src/view/web");
    const auto read = [&web](const QString& name) {
        QFile file(web.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        return file.readAll();
    };
    QByteArray scripts;
    for (const QString& name : QString(read("scripts.list")).split('\n', Qt::SkipEmptyParts))
        scripts += read(name);
    const QByteArray script = contents("seen/verify.cjs");
    const QByteArray head = "'use strict';\nconst TEXTS = ";
    ASSERT_TRUE(script.startsWith(head));
    const QByteArray rest = script.mid(script.indexOf('\n', head.size()) + 1);
    EXPECT_EQ(rest, scripts + read("../node/page.js") + read("../node/verify.js"));
    const QByteArray texts = script.mid(head.size(), script.size() - rest.size() - head.size() - 2);
    const QJsonObject tables = QJsonDocument::fromJson(texts).object();
    EXPECT_EQ(tables.keys(), web.entryList({"*.txt"}, QDir::Files, QDir::Name));
    for (const QString& name : tables.keys())
        EXPECT_EQ(tables[name].toString(), QString::fromUtf8(read(name)));
}

TEST_F(Verify, EndsAsNodeDoes)
{
    write("walls.jsonl", line);
    const struct
    {
        const char* ends;
        int status;
        const char* message;
    } cases[] = {
        {"exit 0", 0, ""},
        {"exit 1", 1, ""},
        {"exit 2", 1, "inkmacro: verifying walls.jsonl came to no end: node ended with status 2\n"},
        {"kill -9 $$", 1, "inkmacro: verifying walls.jsonl came to no end: node killed by signal 9\n"},
    };
    for (const auto& [ends, status, message] : cases) {
        node(QByteArray("printf 'one\\n\\303'; printf '\\244 no line end'; printf 'a\\033b\\n\\n' >&2; ") + ends);
        const Outcome outcome = verify({"walls.jsonl"});
        EXPECT_EQ(outcome.status, status) << ends;
        EXPECT_EQ(outcome.out, QString::fromUtf8("one\n\u00e4 no line end"));
        EXPECT_EQ(outcome.err.toStdString(), std::string("a\\x1bb\n\n") + message);
    }
    // A reader who goes has seen enough.
    node("yes | head -c 1000000; exit 0");
    EXPECT_EQ(
        run({"walls.jsonl"}, {}, withNode() + "{ \"$0\" verify \"$1\"; echo $? >ended; } | head -c 1; exit 0; ").out,
        "y");
    EXPECT_EQ(contents("ended"), "0\n");
}

TEST_F(Verify, ReadsWhateverConvertReads)
{
    const QByteArray bytes = line + weld;
    write("walls.jsonl", bytes);
    ASSERT_EQ(mkfifo(qPrintable(path("pipe.jsonl")), 0600), 0);
    const struct
    {
        QString before;
        QStringList arguments;
        const char* input;
        const char* macro;
    } cases[] = {
        {"", {"-"}, "-", "recording.html"},
        {"cat walls.jsonl > pipe.jsonl & ", {"pipe.jsonl"}, "pipe.jsonl", "pipe.html"},
        // In the job, a text, no byte can stand that is not UTF-8.
        {"mkdir odd; cp walls.jsonl $(printf 'odd/w\\344.jsonl'); set -- verify odd/* --macro odd/*; ",
         {},
         "odd/w\\xe4.jsonl",
         "recording.html"},
        {"mkdir verify.cjs; cp walls.jsonl job.json; ", {"job.json"}, "job.json", "job.html"},
    };
    for (const auto& [before, arguments, input, macro] : cases) {
        QDir(path("seen")).removeRecursively();
        EXPECT_EQ(verify(arguments, bytes, before).status, 0) << input;
        const QJsonDocument job = seen("job.json");
        EXPECT_EQ(job["input"], input) << input;
        EXPECT_EQ(QFileInfo(job["macro"].toString()).fileName(), macro);
        EXPECT_TRUE(exists("seen/" + QFileInfo(job["macro"].toString()).fileName()));
        // Files that are no others' are not there any longer, but node saw them.
        const QString recording = job["recording"].toString();
        QFile other(recording);
        const bool kept = recording.startsWith(path("temporary"));
        EXPECT_EQ(kept                              ? contents("seen/recording.jsonl")
                  : other.open(QIODevice::ReadOnly) ? other.readAll()
                                                    : "",
                  bytes)
            << recording.toStdString();
    }
    QProcess::execute("rm", {"-r", path("odd")});
}

TEST_F(Verify, BeginsNothingThatCannotBeDone)
{
    write("walls.jsonl", line);
    write("damaged.jsonl", line + "{\"command\":1}\n");
    node("touch run");
    for (const QStringList& input : {QStringList("nothing.jsonl"), QStringList("damaged.jsonl"), QStringList(".")}) {
        const Outcome conversion = run(QStringList{"convert", "-tjavascript", "-oout/"} + input);
        const Outcome outcome = verify(input);
        EXPECT_EQ(outcome.status, 3);
        EXPECT_EQ(outcome.err.toStdString(), conversion.err.toStdString());
    }
    EXPECT_EQ(verify({"-"}, "{").err, run({"convert", "-tjavascript", "-o-", "-"}, "{").err);
    const Outcome edited = verify({"walls.jsonl", "--macro", "nothing.html"});
    EXPECT_EQ(edited.status, 3);
    EXPECT_EQ(edited.err, "nothing.html: cannot be opened: No such file or directory\n");

    const Outcome homeless = verify({"walls.jsonl"}, {}, "TMPDIR=$PWD/nowhere; ");
    EXPECT_EQ(homeless.status, 1);
    EXPECT_EQ(homeless.err.toStdString(), "inkmacro: no temporary folder can be made: No such file or directory\n");
    const Outcome without = verify({"walls.jsonl"}, {}, "PATH=/nowhere; ");
    EXPECT_EQ(without.status, 2);
    EXPECT_EQ(without.err,
              "inkmacro: verify runs the macro in node, which is not found in PATH; on Debian it is in the "
              "package nodejs\n");
    EXPECT_FALSE(exists("run"));
}

TEST_F(Verify, LeavesNothingBehindWhenItIsBrokenOff)
{
    write("walls.jsonl", line);
    node("echo $$ > started; mv started running; exec sleep 1000");
    const auto begin = [this](QProcess& process) {
        start(process, {"verify", "walls.jsonl"}, withNode());
        await([this] { return exists("running"); });
        const pid_t id = contents("running").trimmed().toInt();
        QFile::remove(path("running"));
        return id;
    };
    const auto hasEnded = [](pid_t id) { return kill(id, 0) == -1 && errno == ESRCH; };
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        QProcess process;
        const pid_t id = begin(process);
        send(process, signal);
        EXPECT_EQ(finish(process).status, 128 + signal);
        EXPECT_TRUE(hasEnded(id));
        EXPECT_EQ(temporaryFolders(), QStringList());
    }
    QProcess process;
    const pid_t id = begin(process);
    process.kill();
    process.waitForFinished();
    await([&] { return hasEnded(id); });
    EXPECT_EQ(temporaryFolders().size(), 1);
    node("exit 0");
    EXPECT_EQ(verify({"walls.jsonl"}).status, 0) << "which cleans up";
}

} // namespace
