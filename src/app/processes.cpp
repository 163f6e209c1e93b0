// Several jobs, each in a process that is this program once more.

#include "app/processes.h"

#include "app/ExitStatus.h"
#include "app/ProgressLine.h"
#include "app/console.h"
#include "app/turns.h"
#include "recordfile/RecordingReader.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QProcess>
#include <QTemporaryFile>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <map>
#include <memory>
#include <thread>
#include <utility>

#include <unistd.h>

namespace inkmacro {

namespace {

class JobProcess final : public QProcess
{
public:
    std::unique_ptr<Turn> turn; ///< null for a process that need not wait

protected:
    void setupChildProcess() override
    {
        if (turn)
            turn->inherit();
    }
};

class JobRunner
{
public:
    JobRunner(const std::vector<Job>& jobs, const HostSettings& host);

    int run();

private:
    struct State
    {
        std::unique_ptr<JobProcess> process;
        std::size_t before = 0; ///< one more than the number of the job that must have written; 0 when there is none
        QByteArray output;
        QByteArray messages;
        bool done = false;
        bool unreadable = false;
    };

    /// Standard input can be read once, so it is kept for all who want it.
    bool keepStandardInput();
    QString keptInput();
    void refuse(std::size_t number, const QByteArray& message, int status);
    void startSome();
    /// Whether an earlier job has yet to write a file that this one writes too.
    bool mustWait(State& state) const;
    void start(std::size_t number);
    QStringList argumentsOf(const Job& job) const;
    void ended(std::size_t number, bool crashed);
    void finish(std::size_t number, int status);
    void passOn();

    const std::vector<Job>& jobs_;
    const HostSettings& host_;
    std::vector<State> states_;
    QTemporaryFile standardInput_;
    QEventLoop loop_;
    std::size_t next_ = 0;
    std::size_t passedOn_ = 0;
    std::pair<QString, QByteArray> lastComplaint_; ///< the recording that could not be read, and why
    unsigned running_ = 0;
    int status_ = kDone;
    std::atomic<int> doneCount_ = 0;
    ProgressLine progress_;
};

JobRunner::JobRunner(const std::vector<Job>& jobs, const HostSettings& host)
    : jobs_(jobs), host_(host), states_(jobs.size()), progress_([this] {
          const auto total = static_cast<int>(jobs_.size());
          return progressBar(doneCount_, total) + QString("  %1 of %2 done").arg(doneCount_).arg(total);
      })
{
    std::map<QString, std::size_t> lastWriter;
    for (std::size_t i = 0; i < jobs_.size(); ++i)
        for (const QString& file : jobs_[i].projectFiles()) {
            std::size_t& writer = lastWriter[file];
            states_[i].before = std::max(states_[i].before, writer);
            writer = i + 1;
        }
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
    while (next_ < jobs_.size() && running_ < most) {
        const std::size_t number = next_++;
        if (!states_[number].done)
            start(number);
    }
}

/// A job may end before its own turn came, when its recording cannot be read; then the one in front of it counts.
bool JobRunner::mustWait(State& state) const
{
    while (state.before > 0 && states_[state.before - 1].done)
        state.before = states_[state.before - 1].before;
    return state.before > 0;
}

void JobRunner::start(std::size_t number)
{
    State& state = states_[number];
    const Job& job = jobs_[number];
    // The process would take a directory at that path for a place to put results in.
    if (const QString refusal = refusalOf(job.macro); !refusal.isEmpty()) {
        refuse(number, ("inkmacro: " + refusal + '\n').toLocal8Bit(), kFailed);
        return;
    }

    state.process = std::make_unique<JobProcess>();
    JobProcess& process = *state.process;
    if (mustWait(state)) {
        process.turn = std::make_unique<Turn>();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(Turn::variable(), QString::number(process.turn->descriptor()));
        process.setProcessEnvironment(environment);
    }
    process.setStandardInputFile(job.input == "-" ? keptInput() : QProcess::nullDevice());
    QObject::connect(&process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished),
                     [this, number](int, QProcess::ExitStatus how) { ended(number, how == QProcess::CrashExit); });
    QObject::connect(&process, &QProcess::errorOccurred, [this, number](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            ended(number, true);
    });
    ++running_;
    process.start(QCoreApplication::applicationFilePath(), argumentsOf(job));
    if (process.turn)
        process.turn->started();
}

QStringList JobRunner::argumentsOf(const Job& job) const
{
    QStringList arguments{"convert", "--target=" + targetName(*job.target), "--output=" + job.macro};
    arguments += host_.arguments();
    return arguments << "--" << job.input;
}

void JobRunner::ended(std::size_t number, bool crashed)
{
    State& state = states_[number];
    JobProcess* const process = state.process.release();
    if (!process)
        return;
    // Its signal is still under way.
    process->deleteLater();
    --running_;

    state.output = process->readAllStandardOutput();
    state.messages += process->readAllStandardError();
    int status = process->exitCode();
    if (crashed) {
        state.messages += QString("inkmacro: conversion to %1 came to no end: %2: %3\n")
                              .arg(targetName(*jobs_[number].target), process->errorString(), jobs_[number].macro)
                              .toLocal8Bit();
        status = kFailed;
    }
    finish(number, status == kDone || status == kUnreadable ? status : kFailed);
    startSome();
}

void JobRunner::finish(std::size_t number, int status)
{
    states_[number].done = true;
    states_[number].unreadable = status == kUnreadable;
    status_ = std::max(status_, status);
    ++doneCount_;
    for (State& state : states_)
        if (state.process && state.process->turn && !mustWait(state))
            state.process->turn->come();
    passOn();
}

void JobRunner::passOn()
{
    progress_.aside([this] {
        for (; passedOn_ < states_.size() && states_[passedOn_].done; ++passedOn_) {
            State& state = states_[passedOn_];
            QByteArray messages = std::exchange(state.messages, {});
            if (state.unreadable) {
                // What is wrong with a recording is said once, not once for each target.
                const std::pair complaint(jobs_[passedOn_].input, messages);
                if (complaint == lastComplaint_)
                    messages.clear();
                else
                    lastComplaint_ = complaint;
            }
            printError(messages);
            printOut(std::exchange(state.output, {}));
        }
    });
    if (passedOn_ == states_.size())
        loop_.quit();
}

} // namespace

int convertInProcesses(const std::vector<Job>& jobs, const HostSettings& host)
{
    return JobRunner(jobs, host).run();
}

} // namespace inkmacro
