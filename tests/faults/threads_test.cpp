// Every command where the system gives no thread beside the first one: it does what it does elsewhere.

#include "../Program.h"
#include "../Terminal.h"

#include <QDirIterator>
#include <QMap>
#include <QRegularExpression>

#include <thread>

namespace {

/// What a command leaves behind.
struct Result
{
    int status = 0;
    QString out;
    QByteArray errors;
    QMap<QString, QByteArray> files;
    bool operator==(const Result&) const = default;
};

class Threads : public Program
{
protected:
    Result resultOf(const QStringList& arguments, const QByteArray& input, const QString& environment) const
    {
        Terminal terminal;
        const Outcome outcome = run(arguments, input, terminal.asErrors() + environment);
        Result result{outcome.status, outcome.out, terminal.lastingText(), {}};
        QDir top(path("out"));
        QDirIterator walk(top.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (walk.hasNext()) {
            const QString name = top.relativeFilePath(walk.next());
            result.files.insert(name, withoutIds(contents("out/" + name)));
        }
        top.removeRecursively();
        return result;
    }

private:
    /// Each conversion makes ids of its own.
    static QByteArray withoutIds(const QByteArray& bytes)
    {
        static const QRegularExpression id("[0-9a-fA-F]{8}(-[0-9a-fA-F]{4}){3}-[0-9a-fA-F]{12}");
        return QString::fromUtf8(bytes).replace(id, "ID").toUtf8();
    }
};

TEST_F(Threads, AreNotNeeded)
{
    // Reading and writing want a thread each only for more than this.
    const QString many = write("many.jsonl", line.repeated(3000));
    const QString drawing = write("drawing.jsonl", R"({"object":{"class":"AcDbLine","handle":"2A"}})"
                                                   "\n" +
                                                       line);
    const struct
    {
        QStringList arguments;
        QByteArray input;
        bool wantsThreads;
    } cases[] = {
        {{"convert", many, "--target", "csharp", "--output", "out/"}, {}, true},
        {{"convert", many, "--target", "vba", "--output", "out/", "--repair", "--report", "--map"}, {}, true},
        {{"convert", many, drawing, "--target", "all", "--output", "out/", "--report"}, {}, true},
        {{"convert", "-", "--target", "csharp,vba", "--output", "out/"}, contents("many.jsonl"), true},
        {{"check", many}, {}, true},
        {{"inspect", many}, {}, true},
        {{"inspect", many, "--json"}, {}, true},
        {{"snapshot", drawing, "--handle", "2A"}, {}, false},
        {{"run", drawing, "--command", "-HYPERLINK", "--output", path("out/linked.jsonl")},
         "Insert\nEntity\n2A\n\nplan.dwg\n\n\n",
         false},
        {{"schema"}, {}, false},
        {{"system-variables"}, {}, false},
        {{"faults"}, {}, false},
    };
    const QString mark = path("mark");
    for (const auto& [arguments, input, wantsThreads] : cases) {
        const std::string name = arguments.join(' ').toStdString();
        const Result expected = resultOf(arguments, input, {});
        EXPECT_EQ(expected.status, 0) << name << expected.errors.toStdString();
        EXPECT_EQ(expected.files.isEmpty(), !arguments.contains("--output")) << name;

        QFile::remove(mark);
        const Result result = resultOf(arguments, input,
                                       "export LD_PRELOAD=" INKMACRO_FAILING_CALLS " FAULT_CALL=pthread_create"
                                       " ASAN_OPTIONS=\"$ASAN_OPTIONS:verify_asan_link_order=0\" FAULT_MARK=" +
                                           mark + "; ");
        EXPECT_EQ(result.status, expected.status) << name << result.errors.toStdString();
        EXPECT_TRUE(result == expected) << name << result.errors.toStdString();
        EXPECT_EQ(QFile::exists(mark), wantsThreads) << name;
    }
}

/// As the second of two that would run side by side; a machine with one processor starts it when the first has ended.
TEST_F(Threads, OfWhichOneIsMissingLeaveTheWorkToTheOthers)
{
    if (std::thread::hardware_concurrency() < 2)
        GTEST_SKIP();
    QStringList arguments{"convert", "--target", "csharp", "--output", "out/"};
    for (const char* const name : {"a.jsonl", "b.jsonl", "c.jsonl", "d.jsonl"})
        arguments.append(write(name, line));
    const QString failingFork = "export LD_PRELOAD=" INKMACRO_FAILING_CALLS " FAULT_CALL=fork"
                                " ASAN_OPTIONS=\"$ASAN_OPTIONS:verify_asan_link_order=0\" FAULT_MARK=" +
                                path("mark") + " FAULT_NUMBER=";
    const QString expected = run(arguments).out;
    Outcome outcome = run(arguments, {}, failingFork + "2; ");
    EXPECT_EQ(outcome.status, 0) << outcome.err.toStdString();
    EXPECT_EQ(outcome.out, expected);
    EXPECT_EQ(outcome.err, "");
    EXPECT_TRUE(exists("mark"));

    outcome = run(arguments, {}, failingFork + "1; ");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, "inkmacro: no process can be started for out/a/csharp/a.cs: Resource temporarily "
                           "unavailable, nor for the 3 behind it\n");

    outcome = run({"verify", "a.jsonl"}, {}, failingFork + "1; ");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, "inkmacro: no process can be started for node: Resource temporarily unavailable\n");
}

} // namespace
