// A conversion in which one call of the system fails: afterwards the old files stand or the new ones, each whole, and
// nothing else; and a failure is told.

#include "statements/TargetTable.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace inkmacro {
namespace {

using Files = QMap<QString, QByteArray>;

struct Outcome
{
    int status;
    QString messages;
};

QString toQString(std::string_view text)
{
    return QString::fromLatin1(text.data(), static_cast<int>(text.size()));
}

QByteArray recordingOfLine(const char* end)
{
    return QByteArray(R"({"command":{"name":"LINE","actions":[{"added":{"class":"AcDbLine","handle":"2F","properties":)"
                      R"([{"tag":"End X","value":)") +
           end +
           R"(},{"tag":"End Y","value":0},{"tag":"End Z","value":0},{"tag":"Start X","value":0},)"
           R"({"tag":"Start Y","value":0},{"tag":"Start Z","value":0}]}}]}})"
           "\n";
}

class Faults : public testing::TestWithParam<TargetRow>
{
protected:
    void SetUp() override
    {
        QDir(folder_.path()).mkpath("made/out");
        write(folder_.filePath("old/walls.jsonl"), recordingOfLine("4.5"));
        write(folder_.filePath("new/walls.jsonl"), recordingOfLine("7.25"));
        old_ = made("old");
        new_ = made("new");
        ASSERT_NE(old_, new_);
        ASSERT_EQ(old_.keys(), new_.keys());
    }

    /// Lets the call fail at each of its places in turn. Ends when there is no such place any more.
    void expectWholeFiles(const QString& call);

private:
    void expectEachWhole(const Files& files, const std::string& place);

    static void write(const QString& path, const QByteArray& bytes)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    /// Each conversion makes ids of its own.
    static QByteArray withoutIds(const QByteArray& bytes)
    {
        static const QRegularExpression id("[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}");
        return QString::fromUtf8(bytes).replace(id, "ID").toUtf8();
    }

    /// Everything below the folder in which results stand, folders included.
    Files found() const
    {
        Files files;
        const QDir top(folder_.filePath("made"));
        QDirIterator entries(top.path(), QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                             QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            QFile file(entries.next());
            file.open(QIODevice::ReadOnly);
            files.insert(top.relativeFilePath(file.fileName()),
                         entries.fileInfo().isDir() ? "a folder" : withoutIds(file.readAll()));
        }
        return files;
    }

    void putBack(const Files& files) const
    {
        QDir(folder_.filePath("made")).removeRecursively();
        QDir(folder_.path()).mkpath("made/out");
        for (auto file = files.begin(); file != files.end(); ++file)
            if (file.key() != "out")
                write(folder_.filePath("made/" + file.key()), file.value());
    }

    Outcome convert(const QString& recording, const QProcessEnvironment& environment) const
    {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder_.filePath("made"));
        process.start(INKMACRO_PROGRAM, {"convert", folder_.filePath(recording + "/walls.jsonl"), "--map", "--target",
                                         toQString(GetParam().name), "--output", folder_.filePath("made/" + macro())});
        EXPECT_TRUE(process.waitForFinished(120'000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardError())};
    }

    Files made(const QString& recording) const
    {
        const Outcome outcome = convert(recording, QProcessEnvironment::systemEnvironment());
        EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
        return found();
    }

    QProcessEnvironment withFault(const QString& call, int number) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("LD_PRELOAD", INKMACRO_FAILING_CALLS);
        // A sanitizer wants to be the first library.
        environment.insert("ASAN_OPTIONS", environment.value("ASAN_OPTIONS") + ":verify_asan_link_order=0");
        environment.insert("FAULT_FOLDER", folder_.filePath("made"));
        environment.insert("FAULT_CALL", call);
        environment.insert("FAULT_NUMBER", QString::number(number));
        environment.insert("FAULT_MARK", mark());
        return environment;
    }

    QString macro() const { return "out/walls." + toQString(GetParam().extension); }
    QString mark() const { return folder_.filePath("mark"); }

    QTemporaryDir folder_;
    Files old_;
    Files new_;
};

void Faults::expectEachWhole(const Files& files, const std::string& place)
{
    EXPECT_EQ(files.keys(), old_.keys()) << place;
    for (auto file = files.begin(); file != files.end(); ++file)
        EXPECT_TRUE(file.value() == old_[file.key()] || file.value() == new_[file.key()])
            << place << ", " << file.key().toStdString();
}

void Faults::expectWholeFiles(const QString& call)
{
    constexpr int most = 500;
    for (int number = 1; number < most; ++number) {
        putBack(old_);
        QFile::remove(mark());
        const Outcome outcome = convert("new", withFault(call, number));
        const Files files = found();
        const std::string place = call.toStdString() + ' ' + std::to_string(number) + ": " +
                                  std::to_string(outcome.status) + ' ' + outcome.messages.toStdString() + '\n' +
                                  QStringList(files.keys()).join(' ').toStdString();
        if (!QFile::exists(mark())) {
            EXPECT_EQ(outcome.status, 0) << place;
            EXPECT_TRUE(files == new_) << place;
            return;
        }
        if (outcome.status == 0) {
            // Only folders do without: the others of these calls are of files.
            EXPECT_TRUE(call == "open" || call == "close") << place;
            EXPECT_TRUE(files == new_) << place;
            continue;
        }
        EXPECT_EQ(outcome.status, 1) << place;
        EXPECT_TRUE(outcome.messages.startsWith("inkmacro: ")) << place;
        EXPECT_EQ(outcome.messages.count('\n'), 1) << place;
        expectEachWhole(files, place);
        // Names are changed one after the other, at the very end, the macro's last.
        EXPECT_TRUE(call == "rename" || files == old_) << place;
        EXPECT_EQ(files[macro()], old_[macro()]) << place;
    }
    FAIL() << call.toStdString() << " does not come to an end";
}

TEST_P(Faults, LeaveWholeFilesWhenOneCannotBeOpened)
{
    expectWholeFiles("open");
}

TEST_P(Faults, LeaveWholeFilesWhenTheDiskIsFull)
{
    expectWholeFiles("write");
}

TEST_P(Faults, LeaveWholeFilesWhenOneCannotBeFlushed)
{
    expectWholeFiles("fdatasync");
}

TEST_P(Faults, LeaveWholeFilesWhenOneCannotBeClosed)
{
    expectWholeFiles("close");
}

TEST_P(Faults, LeaveWholeFilesWhenOneCannotBeRenamed)
{
    expectWholeFiles("rename");
}

INSTANTIATE_TEST_SUITE_P(Targets, Faults, testing::ValuesIn(targetTable),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace
} // namespace inkmacro
