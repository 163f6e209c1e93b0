// How results get to their place: whole or not at all, whatever stands there and however the program ends.

#include "Program.h"

#include <QDirIterator>
#include <QRegularExpression>

#include <csignal>
#include <memory>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace {

/// Results are put into a folder under its lock. Whoever holds it keeps the program at the point where all is written
/// and nothing is in its place.
class Hold
{
public:
    explicit Hold(const QString& folder)
    {
        QDir().mkpath(folder);
        descriptor_ = open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        EXPECT_EQ(flock(descriptor_, LOCK_EX), 0);
    }
    ~Hold() { close(descriptor_); }
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;

private:
    int descriptor_;
};

class Results : public Program
{
protected:
    /// The files of that name which are written and not yet in their place.
    QStringList staged(const QString& name) const
    {
        QStringList found;
        QDirIterator walk(path("."), {name}, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (walk.hasNext())
            if (walk.next(); walk.filePath().contains("/.inkmacro-"))
                found.append(walk.filePath());
        return found;
    }
    QStringList temporaryFolders() const
    {
        QStringList found;
        QDirIterator walk(path("."), {".inkmacro-*"}, QDir::Dirs | QDir::Hidden, QDirIterator::Subdirectories);
        while (walk.hasNext())
            found.append(walk.next());
        return found;
    }
    /// Until the last file of the project is written whole, that many times.
    void awaitStaged(const QString& name, int count = 1) const
    {
        await([&] {
            const QStringList files = staged(name);
            return std::count_if(files.begin(), files.end(), [](const auto& f) { return QFileInfo(f).size() > 0; }) ==
                   count;
        });
    }
};

const QStringList wallsToCSharp{"convert", "walls.jsonl", "--target", "csharp", "--output", "out/"};

TEST_F(Results, StayAsTheyWereWhenASignalEndsTheProgram)
{
    write("walls.jsonl", line);
    write("doors.jsonl", line);
    const struct
    {
        QStringList arguments;
        QString folder;
        const char* last;
    } cases[] = {
        {wallsToCSharp, "out/csharp", "walls.csproj"},
        {QStringList(wallsToCSharp) << "doors.jsonl", "out/walls/csharp", "walls.csproj"},
    };
    for (const auto& [arguments, folder, last] : cases)
        for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
            write(folder + "/walls.cs", "older");
            const Hold hold(path(folder));
            QProcess process;
            start(process, arguments);
            awaitStaged(last);
            send(process, signal);
            EXPECT_EQ(finish(process).status, 128 + signal);
            EXPECT_EQ(temporaryFolders(), QStringList()) << signal;
            EXPECT_EQ(contents(folder + "/walls.cs"), "older");
            EXPECT_FALSE(exists(folder + "/Program.cs"));
        }

    // A program that began deaf to a signal stays so.
    auto hold = std::make_unique<Hold>(path("out/csharp"));
    QProcess process;
    start(process, wallsToCSharp, "trap '' HUP; ");
    awaitStaged("walls.csproj");
    send(process, SIGHUP);
    hold.reset();
    EXPECT_EQ(finish(process).status, 0);
    EXPECT_TRUE(contents("out/csharp/walls.cs").contains("class walls"));
}

TEST_F(Results, StayAsTheyWereWhenTheProgramIsKilled)
{
    write("walls.jsonl", line);
    write("doors.jsonl", line);
    write("out/csharp/walls.cs", "older");
    {
        const Hold hold(path("out/csharp"));
        QProcess process;
        start(process, wallsToCSharp);
        awaitStaged("walls.csproj");
        process.kill();
        process.waitForFinished();
    }
    EXPECT_EQ(contents("out/csharp/walls.cs"), "older");
    EXPECT_EQ(temporaryFolders().size(), 1);
    EXPECT_EQ(run(wallsToCSharp).status, 0);
    EXPECT_EQ(temporaryFolders(), QStringList()) << "the next one cleans up";
    EXPECT_TRUE(contents("out/csharp/walls.cs").contains("class walls"));

    const Hold hold(path("out/walls/csharp"));
    QProcess parent;
    start(parent, QStringList(wallsToCSharp) << "doors.jsonl");
    awaitStaged("walls.csproj");
    parent.kill();
    parent.waitForFinished();
    await([this] { return temporaryFolders().isEmpty(); });
}

TEST_F(Results, DoNotCleanUpBehindOtherUsers)
{
    write("walls.jsonl", line);
    write("out/csharp/.inkmacro-part-abcdef/walls.cs", "theirs");
    if (chown(qPrintable(path("out/csharp/.inkmacro-part-abcdef")), 65534, 65534) != 0)
        GTEST_SKIP() << "only root can give a folder away";
    EXPECT_EQ(run(wallsToCSharp).status, 0);
    EXPECT_EQ(contents("out/csharp/.inkmacro-part-abcdef/walls.cs"), "theirs");
}

TEST_F(Results, OfTwoProcessesAreNeverMixed)
{
    // The ids of a COM project are new each time, and its files agree in them.
    write("one/walls.jsonl", line);
    write("two/walls.jsonl", QByteArray(line).replace("4.5", "7.5"));
    QProcess one;
    QProcess two;
    {
        const Hold hold(path("out"));
        start(one, {"convert", "one/walls.jsonl", "--target", "cppcom", "--output", "out/walls.cpp"});
        start(two, {"convert", "two/walls.jsonl", "--target", "cppcom", "--output", "out/walls.cpp"});
        awaitStaged("typeconverter.h", 2);
        EXPECT_EQ(temporaryFolders().size(), 2) << "that of a living process is left alone";
    }
    EXPECT_EQ(finish(one).status, 0);
    EXPECT_EQ(finish(two).status, 0);
    EXPECT_EQ(temporaryFolders(), QStringList());

    const QByteArray macro = contents("out/walls.cpp");
    EXPECT_NE(macro.contains("4.50000000000000"), macro.contains("7.50000000000000"));
    const QString registration = contents("out/IwAddinConnection.rgs");
    static const QRegularExpression id("[0-9a-fA-F]{8}(-[0-9a-fA-F]{4}){3}-[0-9a-fA-F]{12}");
    const QString first = id.match(registration).captured();
    ASSERT_FALSE(first.isEmpty());
    EXPECT_TRUE(QString(contents("out/walls.idl")).contains(first, Qt::CaseInsensitive));
}

TEST_F(Results, OfOneFolderComeOneBehindTheOther)
{
    write("walls.jsonl", line);
    write("doors.jsonl", line);
    QDir().mkpath(path("out/walls"));
    ASSERT_EQ(symlink("walls", qPrintable(path("out/doors"))), 0);
    QProcess process;
    {
        const Hold hold(path("out/walls/csharp"));
        start(process, QStringList(wallsToCSharp) << "doors.jsonl"
                                                  << "--force");
        awaitStaged("walls.csproj");
        EXPECT_EQ(staged("doors.cs"), QStringList());
    }
    EXPECT_EQ(finish(process).status, 0);
    EXPECT_TRUE(exists("out/walls/csharp/walls.cs") && exists("out/walls/csharp/doors.cs"));
    EXPECT_TRUE(contents("out/walls/csharp/Program.cs").contains("doors")) << "the last one's";
}

TEST_F(Results, BreakNoProjectThatCameMeanwhile)
{
    write("walls.jsonl", line);
    QProcess process;
    {
        const Hold hold(path("out/csharp"));
        start(process, wallsToCSharp);
        awaitStaged("walls.csproj");
        for (const char* const name : {"doors.cs", "doors.csproj", "Program.cs"})
            write(QString("out/csharp/") + name, "others'");
    }
    const Outcome outcome = finish(process);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err.toStdString(),
              "inkmacro: the project of another recording is in out/csharp/ (doors.csproj); give another --output, or "
              "--force to replace the files that both have\n");
    EXPECT_EQ(contents("out/csharp/Program.cs"), "others'");
    EXPECT_FALSE(exists("out/csharp/walls.cs") || exists("out/csharp/walls.csproj"));
}

TEST_F(Results, AreMissedWhenTheirFolderVanishes)
{
    write("walls.jsonl", line);
    QProcess process;
    {
        const Hold hold(path("out/csharp"));
        start(process, wallsToCSharp);
        awaitStaged("walls.csproj");
        ASSERT_TRUE(QDir().rename(path("out"), path("gone")));
    }
    const Outcome outcome = finish(process);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.err.startsWith("inkmacro: out/csharp/")) << outcome.err.toStdString();
    EXPECT_EQ(outcome.err.count('\n'), 1);
    EXPECT_EQ(outcome.out, "");
    EXPECT_FALSE(exists("out") || exists("gone/csharp/walls.cs"));
}

TEST_F(Results, FollowSymbolicLinksAndLeaveHardLinksAlone)
{
    write("walls.jsonl", line);
    write("real/walls.cs", "older");
    write("out/csharp/name", "older");
    chmod(qPrintable(path("real/walls.cs")), 0640);
    ASSERT_EQ(symlink("../../real/walls.cs", qPrintable(path("out/csharp/walls.cs"))), 0);
    ASSERT_EQ(symlink("../../real/new.csproj", qPrintable(path("out/csharp/walls.csproj"))), 0);
    ASSERT_EQ(link(qPrintable(path("out/csharp/name")), qPrintable(path("out/csharp/Program.cs"))), 0);

    ASSERT_EQ(run(wallsToCSharp).status, 0);
    EXPECT_TRUE(QFileInfo(path("out/csharp/walls.cs")).isSymLink());
    EXPECT_TRUE(QFileInfo(path("out/csharp/walls.csproj")).isSymLink());
    EXPECT_TRUE(contents("real/walls.cs").contains("class walls"));
    EXPECT_TRUE(contents("real/new.csproj").contains("</Project>"));
    EXPECT_EQ(contents("out/csharp/name"), "older");
    EXPECT_TRUE(contents("out/csharp/Program.cs").contains("Main("));
    EXPECT_EQ(temporaryFolders(), QStringList());
    struct stat rights = {};
    ASSERT_EQ(stat(qPrintable(path("real/walls.cs")), &rights), 0);
    EXPECT_EQ(rights.st_mode & 0777, 0640U);

    QFile::remove(path("out/csharp/walls.cs"));
    ASSERT_EQ(symlink("walls.cs", qPrintable(path("out/csharp/walls.cs"))), 0);
    const Outcome outcome = run(wallsToCSharp);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.err.contains("out/csharp/walls.cs: Too many levels")) << outcome.err.toStdString();
}

TEST_F(Results, GoToFilesOnly)
{
    write("walls.jsonl", line);
    write("doors.jsonl", line);
    for (const char* const place : {"walls.cs", "Program.cs", "walls.csproj"})
        for (const bool several : {false, true}) {
            const QString folder = several ? "out/walls/csharp/" : "out/csharp/";
            QDir().mkpath(path(folder));
            const QByteArray name = path(folder + place).toLocal8Bit();
            const auto refuses = [&] {
                const Outcome outcome = run(several ? QStringList(wallsToCSharp) << "doors.jsonl" : wallsToCSharp);
                EXPECT_EQ(outcome.status, 1);
                EXPECT_EQ(outcome.err, QString("inkmacro: %1%2 exists and is not a regular file\n").arg(folder, place));
                EXPECT_EQ(
                    QDir(path(folder)).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot),
                    QStringList(place));
                EXPECT_EQ(exists("out/doors/csharp/doors.cs"), several);
            };
            ASSERT_EQ(mkfifo(name.constData(), 0600), 0);
            refuses();
            ASSERT_EQ(remove(name.constData()), 0);
            ASSERT_EQ(mkdir(name.constData(), 0700), 0);
            refuses();
            ASSERT_EQ(remove(name.constData()), 0);
            QDir(path("out")).removeRecursively();
        }
}

const QByteArray drawing = R"({"recording":{"version":1}})"
                           "\n"
                           R"({"object":{"class":"AcDbLine","handle":"2A"}})"
                           "\n";
const QByteArray linkAnswers = "Insert\nEntity\n2A\nplan.dwg\n\n\n";

TEST_F(Results, OfACommandReplaceNothingThatOthersWroteMeanwhile)
{
    const auto runsOn = [](const QString& file) { return QStringList{"run", file, "--command", "-HYPERLINK"}; };
    const QByteArray appended = drawing + line;
    const QString message =
        "inkmacro: %1 was changed by somebody else meanwhile and stays as it is; the new drawing is "
        "in %1.new\n";
    write("a.jsonl", drawing);
    QDir().mkpath(path("links"));
    QFile::link(path("a.jsonl"), path("links/a.jsonl"));
    const struct
    {
        QString file;
        std::function<void()> change;
        QByteArray left;
    } cases[] = {
        {"a.jsonl", [&] { write("a.jsonl", appended); }, appended},
        {"a.jsonl", [&] { QFile::remove(path("a.jsonl")); }, {}},
        {"a.jsonl",
         [&] {
             write("b.jsonl", drawing);
             rename(qPrintable(path("b.jsonl")), qPrintable(path("a.jsonl")));
         },
         drawing},
        {"links/a.jsonl", [&] { write("a.jsonl", appended); }, appended},
    };
    for (const auto& [file, change, left] : cases) {
        write("a.jsonl", drawing);
        auto hold = std::make_unique<Hold>(path("."));
        QProcess process;
        start(process, runsOn(file));
        process.write(linkAnswers);
        EXPECT_TRUE(process.waitForBytesWritten());
        awaitStaged("a.jsonl");
        change();
        hold.reset();
        const Outcome outcome = finish(process);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.err, message.arg(file));
        EXPECT_EQ(contents("a.jsonl"), left);
        EXPECT_TRUE(contents(file + ".new").contains("plan.dwg"));
        EXPECT_EQ(temporaryFolders(), QStringList());
        QFile::remove(path(file + ".new"));
    }

    // Of several at once one comes through, and none replaces what another has put beside.
    write("a.jsonl", drawing);
    write("a.jsonl.new", "mine");
    auto hold = std::make_unique<Hold>(path("."));
    QProcess processes[3];
    for (QProcess& process : processes) {
        start(process, runsOn("a.jsonl"));
        process.write(linkAnswers);
        EXPECT_TRUE(process.waitForBytesWritten());
    }
    awaitStaged("a.jsonl", 3);
    hold.reset();
    int failed = 0;
    for (QProcess& process : processes)
        failed += finish(process).status;
    EXPECT_EQ(failed, 2);
    EXPECT_EQ(contents("a.jsonl.new"), "mine");
    for (const char* const name : {"a.jsonl", "a.jsonl.new2", "a.jsonl.new3"})
        EXPECT_TRUE(contents(name).contains("plan.dwg")) << name;

    // What only stands at another place is replaced as ever.
    write("out.jsonl", "older");
    EXPECT_EQ(run(runsOn("a.jsonl") << "--output"
                                    << "out.jsonl",
                  linkAnswers)
                  .status,
              0);
    EXPECT_TRUE(contents("out.jsonl").contains("plan.dwg"));
}

TEST_F(Results, OfACommandAreRefusedBeforeItAsks)
{
    write("a.jsonl", drawing);
    write("file", "");
    const struct
    {
        const char* output;
        int status;
        const char* message;
    } cases[] = {
        {"out/", 2, "inkmacro: --output: \"out/\" is a directory, and run writes a file\nTry 'inkmacro run --help'.\n"},
        {".", 1, "inkmacro: . exists and is not a regular file\n"},
        {"file/b.jsonl", 1, "inkmacro: file/b.jsonl: Not a directory\n"},
        {"file/deeper/b.jsonl", 1, "inkmacro: file/deeper/b.jsonl: Not a directory\n"},
    };
    for (const auto& [output, status, message] : cases) {
        const Outcome outcome = run({"run", "a.jsonl", "--command", "-HYPERLINK", "--output", output}, linkAnswers);
        EXPECT_EQ(outcome.status, status) << output;
        EXPECT_EQ(outcome.err, message);
        EXPECT_EQ(outcome.out, "") << output;
    }
    EXPECT_FALSE(exists("out"));
}

TEST_F(Results, OfAFullDiskAreNoEmptyFiles)
{
    write("a.jsonl", drawing);
    write("old.lin", "*OLD,o\nA,1,-1\n");
    QFile::link("missing.lin", path("link.lin"));
    for (const QString name : {"new.lin", "old.lin", "link.lin"}) {
        const Outcome outcome = run({"run", "a.jsonl", "--command", "-LINESTYLE", "--output", "b.jsonl"},
                                    "Create\nX\n" + name.toUtf8() + "\nd\n1,-1\n\n", "ulimit -f 0; ");
        EXPECT_TRUE(outcome.err.contains("the line style could not be written to " + path(name) + ": File too large"))
            << outcome.err.toStdString();
        EXPECT_FALSE(outcome.out.contains("saved to file"));
    }
    EXPECT_FALSE(exists("new.lin"));
    EXPECT_FALSE(exists("missing.lin"));
    EXPECT_TRUE(QFileInfo(path("link.lin")).isSymLink());
    EXPECT_EQ(contents("old.lin"), "*OLD,o\nA,1,-1\n");
}

// The sanitizers' own checks take descriptors and memory.
#if !defined(__SANITIZE_ADDRESS__)
TEST_F(Results, AreNotBegunWithoutDescriptorsOrMemory)
{
    QStringList many{"convert", "--target", "csharp", "--output", "out/"};
    for (int i = 0; i < 4000; ++i)
        many.append(QString("r%1.jsonl").arg(i));
    Outcome outcome = run(many, {}, "ulimit -n 6; ");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, "inkmacro: no process can be started for out/r0/csharp/r0.cs: Too many open files, nor for "
                           "the 3999 behind it\n");

    write("walls.jsonl", line + "{\"sysvar\":{\"name\":\"" + QByteArray(100'000'000, 'x') + "\"}}\n");
    write("out/csharp/walls.cs", "older");
    for (const QString targets : {"csharp", "csharp,vba"}) {
        outcome = run({"convert", "walls.jsonl", "--target", targets, "--output", "out/"}, {}, "ulimit -v 200000; ");
        EXPECT_EQ(outcome.status, 1);
        EXPECT_TRUE(outcome.err.startsWith("inkmacro: out of memory while converting walls.jsonl to csharp\n"))
            << outcome.err.toStdString();
        EXPECT_EQ(outcome.err.count('\n'), targets.count(',') + 1) << outcome.err.toStdString();
        EXPECT_EQ(contents("out/csharp/walls.cs"), "older");
        EXPECT_EQ(temporaryFolders(), QStringList());
    }
}
#endif

TEST_F(Results, KeepTheBytesOfANameThatIsNotUtf8)
{
    const QByteArray recording = path("w").toLocal8Bit() + "\xE4lls.jsonl";
    ASSERT_EQ(rename(qPrintable(write("walls.jsonl", line)), recording.constData()), 0);
    const QString addName = "set -- \"$@\" \"$(printf 'w\\344lls.jsonl')\"; ";
    for (const char* const targets : {"csharp", "csharp,vba"}) {
        const Outcome outcome = run({"convert", "--output", "out/", "--target", targets}, {}, addName);
        EXPECT_EQ(outcome.status, 0) << outcome.err.toStdString();
        const QByteArray macro = path("out/csharp/w").toLocal8Bit() + "\xE4lls.cs";
        EXPECT_EQ(unlink(macro.constData()), 0) << targets;
    }
    EXPECT_EQ(run({"check"}, {}, addName).status, 0);
    EXPECT_EQ(run({"inspect", "--json"}, {}, addName).status, 0);
    // Qt does not find what it has to remove.
    QProcess::execute("/bin/rm", {"-r", path("out")});
    EXPECT_EQ(unlink(recording.constData()), 0);
}

} // namespace
