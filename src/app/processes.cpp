// Several jobs, each in a process that is this program once more.

#include "app/processes.h"

#include "app/ExitStatus.h"
#include "app/ProgressLine.h"
#include "app/StagedResult.h"
#include "app/console.h"
#include "app/earlyEnd.h"
#include "app/report.h"
#include "recordfile/RecordingReader.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryFile>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <memory>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace inkmacro {

namespace {

/// Ends when this process does, however it does.
class JobProcess final : public QProcess
{
protected:
    void setupChildProcess() override
    {
        prctl(PR_SET_PDEATHSIG, SIGTERM);
        if (getppid() != parent_)
            _exit(kFailed);
    }

private:
    const pid_t parent_ = getpid();
};

/// Whether there are descriptors for one more process: else the errno. QProcess would give a wrong reason.
int lackOfDescriptors()
{
    std::array<int, 12> probes = {};
    for (int& probe : probes)
        probe = fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 0);
    const int error = probes.back() < 0 ? errno : 0;
    for (const int probe : probes)
        if (probe >= 0)
            close(probe);
    return error;
}

class JobRunner final : private EarlyEnd
{
public:
    JobRunner(const std::vector<Job>& jobs, const HostSettings& host, const Telling& telling);
    ~JobRunner() { endWatch(); }

    int run();

private:
    struct State
    {
        std::unique_ptr<JobProcess> process;
        std::atomic<pid_t> processId = 0; ///< while the process runs
        QByteArray output;
        QByteArray messages;
        bool begun = false;
        bool done = false;
        int status = kDone;
    };

    /// Standard input can be read once, so it is kept for all who want it.
    bool keepStandardInput();
    QString keptInput();
    void refuse(std::size_t number, const QByteArray& message, int status);
    void startSome();
    bool mayStart(std::size_t number) const;
    void start(std::size_t number);
    QStringList argumentsOf(const Job& job) const;
    void couldNotStart(std::size_t number, const QString& reason);
    void ended(std::size_t number, bool crashed);
    std::unique_ptr<JobProcess, void (*)(JobProcess*)> release(State& state);
    void finish(std::size_t number, int status);
    void passOn();
    void passOn(std::size_t number);
    void endEarly(int signal) noexcept override;

    const std::vector<Job>& jobs_;
    const HostSettings& host_;
    const Telling& telling_;
    std::vector<State> states_;
    QJsonArray reports_; ///< of the jobs passed on
    QTemporaryFile standardInput_;
    QEventLoop loop_;
    std::size_t next_ = 0; ///< all jobs in front of it have begun
    std::size_t passedOn_ = 0;
    std::pair<QString, QByteArray> lastComplaint_; ///< the recording that could not be read, and why
    unsigned running_ = 0;
    int status_ = kDone;
    std::atomic<int> doneCount_ = 0;
    ProgressLine progress_;
};

JobRunner::JobRunner(const std::vector<Job>& jobs, const HostSettings& host, const Telling& telling)
    : jobs_(jobs), host_(host), telling_(telling), states_(jobs.size()), progress_([this] {
          const auto total = static_cast<int>(jobs_.size());
          return progressBar(doneCount_, total) + QString("  %1 of %2 done").arg(doneCount_).arg(total);
      })
{
    beginWatch();
}

int JobRunner::run()
{
    const auto wantsInput = [](const Job& job) { return job.input == "-"; };
    if (std::any_of(jobs_.begin(), jobs_.end(), wantsInput) && !keepStandardInput()) {
        const RecordingError error{"-", 0, {}, "cannot be kept for several results: " + qt_error_string(errno)};
        for (std::size_t i = 0; i < jobs_.size(); ++i)
            if (wantsInput(jobs_[i]))
                refuse(i, (error.text() + '\n').toLocal8Bit(), kUnreadable);
    }
    startSome();
    if (passedOn_ < jobs_.size())
        loop_.exec();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (telling_.report != ReportForm::None)
        progress_.aside([this] { printReport(reports_, telling_.report); });
    return status_;
}

bool JobRunner::keepStandardInput()
{
    if (!standardInput_.open())
        return false;
    std::vector<char> piece(1 << 20);
    for (;;) {
        const ssize_t got = read(STDIN_FILENO, piece.data(), piece.size());
        if (got == 0)
            return standardInput_.flush();
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0 || standardInput_.write(piece.data(), got) != got)
            return false;
    }
}

/// By its descriptor, because asking for its name would give it one, and with that something to leave behind when this
/// process is killed.
QString JobRunner::keptInput()
{
    const QString descriptor = QString("/proc/self/fd/%1").arg(standardInput_.handle());
    return QFile::exists(descriptor) ? descriptor : standardInput_.fileName();
}

void JobRunner::refuse(std::size_t number, const QByteArray& message, int status)
{
    states_[number].messages = message;
    finish(number, status);
}

void JobRunner::startSome()
{
    const unsigned most = std::max(1U, std::thread::hardware_concurrency());
    for (std::size_t number = next_; number < jobs_.size() && running_ < most; ++number)
        if (!states_[number].begun && mayStart(number))
            start(number);
    while (next_ < jobs_.size() && states_[next_].begun)
        ++next_;
}

bool JobRunner::mayStart(std::size_t number) const
{
    const auto done = [this](std::size_t earlier) { return states_[earlier].done; };
    return std::all_of(jobs_[number].behind.begin(), jobs_[number].behind.end(), done);
}

void JobRunner::start(std::size_t number)
{
    State& state = states_[number];
    const Job& job = jobs_[number];
    // The process would take a directory at that path for a place to put results in.
    if (const QString refusal = refusalOf(job.files()); !refusal.isEmpty()) {
        refuse(number, ("inkmacro: " + refusal + '\n').toLocal8Bit(), kFailed);
        return;
    }

    if (const int error = lackOfDescriptors()) {
        couldNotStart(number, qt_error_string(error));
        return;
    }

    state.begun = true;
    state.process = std::make_unique<JobProcess>();
    JobProcess& process = *state.process;
    process.setStandardInputFile(job.input == "-" ? keptInput() : QProcess::nullDevice());
    QObject::connect(&process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished),
                     [this, number](int, QProcess::ExitStatus how) { ended(number, how == QProcess::CrashExit); });
    QObject::connect(&process, &QProcess::errorOccurred, [this, number](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart && states_[number].process)
            couldNotStart(number, states_[number].process->errorString());
    });
    ++running_;
    const SignalPause pause;
    process.start(QCoreApplication::applicationFilePath(), argumentsOf(job));
    state.processId = static_cast<pid_t>(process.processId());
}

QStringList JobRunner::argumentsOf(const Job& job) const
{
    QStringList arguments{"convert", "--target=" + targetName(*job.target), "--output=" + job.macro};
    arguments += host_.arguments();
    if (telling_.report != ReportForm::None)
        arguments.append("--report");
    if (telling_.quiet)
        arguments.append("--quiet");
    return arguments << "--" << job.input;
}

/// Null when it was released before.
std::unique_ptr<JobProcess, void (*)(JobProcess*)> JobRunner::release(State& state)
{
    state.processId = 0;
    if (state.process)
        --running_;
    // Its signal is still under way.
    return {state.process.release(), [](JobProcess* process) { process->deleteLater(); }};
}

/// The next one could not be started either, so this is the end for all that wait.
void JobRunner::couldNotStart(std::size_t number, const QString& reason)
{
    states_[number].begun = true;
    release(states_[number]);
    const auto waiting = std::count_if(states_.begin(), states_.end(), [](const State& s) { return !s.begun; });
    QString message = QString("inkmacro: no process can be started for %1: %2").arg(jobs_[number].macro, reason);
    if (waiting > 0)
        message += QString(", nor for the %1 behind it").arg(waiting);
    refuse(number, (message + '\n').toLocal8Bit(), kFailed);
    for (std::size_t i = 0; i < states_.size(); ++i)
        if (!states_[i].begun)
            refuse(i, {}, kFailed);
}

void JobRunner::ended(std::size_t number, bool crashed)
{
    State& state = states_[number];
    const auto process = release(state);
    if (!process)
        return;

    state.output = process->readAllStandardOutput();
    state.messages += process->readAllStandardError();
    int status = process->exitCode();
    if (crashed || status > kUnreadable) {
        const QString reason = crashed ? process->errorString() : QString("ended with status %1").arg(status);
        state.messages += QString("inkmacro: conversion to %1 came to no end: %2: %3\n")
                              .arg(targetName(*jobs_[number].target), reason, jobs_[number].macro)
                              .toLocal8Bit();
        status = kFailed;
        removeDeadStaging(QFile::encodeName(QFileInfo(jobs_[number].macro).path()).toStdString());
    }
    finish(number, status == kDone || status == kUnreadable ? status : kFailed);
    startSome();
}

void JobRunner::finish(std::size_t number, int status)
{
    states_[number].begun = true;
    states_[number].done = true;
    states_[number].status = status;
    status_ = std::max(status_, status);
    ++doneCount_;
    passOn();
}

void JobRunner::passOn()
{
    progress_.aside([this] {
        for (; passedOn_ < states_.size() && states_[passedOn_].done; ++passedOn_)
            passOn(passedOn_);
    });
    if (passedOn_ == states_.size())
        loop_.quit();
}

void JobRunner::passOn(std::size_t number)
{
    State& state = states_[number];
    QByteArray messages = std::exchange(state.messages, {});
    if (state.status == kUnreadable) {
        // What is wrong with a recording is said once, not once for each target.
        const std::pair complaint(jobs_[number].input, messages);
        if (complaint == lastComplaint_)
            messages.clear();
        else
            lastComplaint_ = complaint;
    }
    printError(messages);
    const QByteArray output = std::exchange(state.output, {});
    if (telling_.report == ReportForm::None) {
        printOut(output);
        return;
    }
    const QJsonObject report = reportFrom(output);
    reports_.append(report.isEmpty() ? reportOf(jobs_[number], state.status) : report);
}

void JobRunner::endEarly(int signal) noexcept
{
    for (State& state : states_)
        if (state.processId > 0)
            kill(state.processId, signal);
    for (State& state : states_)
        while (state.processId > 0 && waitpid(state.processId, nullptr, 0) == -1 && errno == EINTR) {
        }
}

} // namespace

int convertInProcesses(const std::vector<Job>& jobs, const HostSettings& host, const Telling& telling)
{
    return JobRunner(jobs, host, telling).run();
}

} // namespace inkmacro
