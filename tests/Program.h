#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <chrono>
#include <csignal>
#include <functional>
#include <thread>

#include <unistd.h>

/// How the program ended and what it printed.
struct Outcome
{
    int status;
    QString out;
    QString err;
};

/// Runs the program in a temporary folder.
class Program : public testing::Test
{
protected:
    QString path(const QString& name) const { return folder_.filePath(name); }

    QString write(const QString& name, const QByteArray& bytes) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return path(name);
    }
    QByteArray contents(const QString& name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    bool exists(const QString& name) const { return QFileInfo::exists(path(name)); }

    /// `before` is what a shell does first, to set limits for the program alone.
    void start(QProcess& process, const QStringList& arguments, const QString& before = {}) const
    {
        process.setWorkingDirectory(folder_.path());
        process.start("/bin/sh", QStringList{"-c", before + "exec \"$0\" \"$@\"", INKMACRO_PROGRAM} + arguments);
    }
    static Outcome finish(QProcess& process)
    {
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished(120'000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }
    Outcome run(const QStringList& arguments, const QByteArray& input = {}, const QString& before = {}) const
    {
        QProcess process;
        start(process, arguments, before);
        process.write(input);
        return finish(process);
    }

    static void await(const std::function<bool()>& holds)
    {
        for (int i = 0; i < 6000; ++i, std::this_thread::sleep_for(std::chrono::milliseconds(10)))
            if (holds())
                return;
        FAIL() << "it never came";
    }
    static void send(const QProcess& process, int signal) { kill(static_cast<pid_t>(process.processId()), signal); }

private:
    QTemporaryDir folder_;
};

inline const QByteArray line =
    R"({"command":{"name":"LINE","actions":[{"added":{"class":"AcDbLine","handle":"2F","properties":[{"tag":"End X","value":4.5},)"
    R"({"tag":"End Y","value":0},{"tag":"End Z","value":0},{"tag":"Start X","value":0},{"tag":"Start Y","value":0},)"
    R"({"tag":"Start Z","value":0}]}}]}})"
    "\n";
