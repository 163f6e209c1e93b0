// Several jobs, each in a process that is forked from this one.

#include "app/processes.h"

#include "app/ExitStatus.h"
#include "app/LoadedModule.h"
#include "app/ProgressLine.h"
#include "app/StagedResult.h"
#include "app/childProcess.h"
#include "app/console.h"
#include "app/conversion.h"
#include "app/earlyEnd.h"
#include "app/reading.h"
#include "app/valueText.h"
#include "recordfile/RecordingReader.h"

#include <QFileInfo>
#include <QTemporaryFile>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <optional>
#include <thread>
#include <utility>

#include <sys/wait.h>
#include <unistd.h>

namespace inkmacro {

namespace {

/// A file without a name, as long as nobody asks for one.
QString pathOf(const QTemporaryFile& file)
{
    const QString descriptor = QString("/proc/self/fd/%1").arg(file.handle());
    return QFile::exists(descriptor) ? descriptor : file.fileName();
}

class JobRunner final : private EarlyEnd
{
public:
    JobRunner(const std::vector<Job>& jobs, const HostSettings& host, const Telling& telling, const TakeResult& take);
    ~JobRunner() { endWatch(); }

    int run();

private:
    struct State
    {
        ChildProcess process;
        std::unique_ptr<ReportPart> part; ///< null when no report is asked for
        bool begun = false;
        bool done = false;
        Outcome outcome{kDone};
    };

    /// Standard input can be read once, so it is kept for all who want it.
    bool keepStandardInput();
    void refuse(std::size_t number, const Outcome& outcome);
    void startSome();
    bool mayStart(std::size_t number) const;
    bool start(std::size_t number);
    /// Gives an errno.
    int fork(State& state, const Job& job);
    int work(const Job& job, ReportPart* part);
    void couldNotStart(std::size_t number, const QString& reason);
    void waitForSome();
    void ended(std::size_t number);
    void finish(std::size_t number, const Outcome& outcome);
    void passOn();
    void passOn(std::size_t number);
    void endEarly(int signal) noexcept override;

    const std::vector<Job>& jobs_;
    const HostSettings& host_;
    const Telling& telling_;
    const TakeResult& take_;
    std::vector<State> states_;
    QTemporaryFile standardInput_;
    std::size_t next_ = 0; ///< all jobs in front of it have begun
    std::size_t passedOn_ = 0;
    std::pair<QString, QByteArray> lastComplaint_; ///< the recording that could not be read, and why
    std::vector<std::size_t> running_;             ///< numbers of jobs
    int status_ = kDone;
    int doneCount_ = 0;
    ProgressLine progress_;
};

JobRunner::JobRunner(const std::vector<Job>& jobs, const HostSettings& host, const Telling& telling,
                     const TakeResult& take)
    : jobs_(jobs), host_(host), telling_(telling), take_(take), states_(jobs.size()), progress_([this] {
          const auto total = static_cast<int>(jobs_.size());
          return progressBar(doneCount_, total) + QString("  %1 of %2 done").arg(doneCount_).arg(total);
      })
{
    beginWatch();
}

int JobRunner::run()
{
    const auto wantsInput = [](const Job& job) { return job.input == "-" && job.kept.isEmpty(); };
    if (std::any_of(jobs_.begin(), jobs_.end(), wantsInput) && !keepStandardInput()) {
        const RecordingError error{"-", 0, {}, "cannot be kept for several results: " + qt_error_string(errno)};
        for (std::size_t i = 0; i < jobs_.size(); ++i)
            if (wantsInput(jobs_[i]))
                refuse(i, {kUnreadable, error.text()});
    }
    loadModuleAhead();
    startSome();
    while (!running_.empty())
        waitForSome();
    return status_;
}

bool JobRunner::keepStandardInput()
{
    return standardInput_.open() && keepInput(STDIN_FILENO, standardInput_, [this] { progress_.update(); });
}

/// Its error is told unless it is empty; that of this program's own begins with its name.
void JobRunner::refuse(std::size_t number, const Outcome& outcome)
{
    const QString name = outcome.status == kUnreadable ? QString() : QStringLiteral("inkmacro: ");
    if (!outcome.error.isEmpty())
        states_[number].process.messages.bytes += (printable(name + outcome.error) + '\n').toLocal8Bit();
    finish(number, outcome);
}

void JobRunner::startSome()
{
    const unsigned most = std::max(1U, std::thread::hardware_concurrency());
    for (std::size_t number = next_; number < jobs_.size() && running_.size() < most; ++number)
        if (!states_[number].begun && mayStart(number) && !start(number))
            break;
    while (next_ < jobs_.size() && states_[next_].begun)
        ++next_;
}

bool JobRunner::mayStart(std::size_t number) const
{
    const auto done = [this](std::size_t earlier) { return states_[earlier].done; };
    return std::all_of(jobs_[number].behind.begin(), jobs_[number].behind.end(), done);
}

/// False when there is no room for it beside those that run: it has its turn when one of them has ended.
bool JobRunner::start(std::size_t number)
{
    State& state = states_[number];
    const Job& job = jobs_[number];
    // The process would take a directory at that path for a place to put results in.
    if (const QString refusal = refusalOf(job.files()); !refusal.isEmpty()) {
        refuse(number, {kFailed, refusal});
        return true;
    }

    const int error = fork(state, job);
    if (error != 0 && !running_.empty())
        return false;
    state.begun = true;
    if (error != 0)
        couldNotStart(number, qt_error_string(error));
    else
        running_.push_back(number);
    return true;
}

int JobRunner::fork(State& state, const Job& job)
{
    if (telling_.report != ReportForm::None) {
        state.part = std::make_unique<ReportPart>();
        if (!state.part->create())
            return errno;
    }
    const QByteArray input =
        standardInput_.isOpen() ? QFile::encodeName(pathOf(standardInput_)) : QByteArray("/dev/null");
    return state.process.start(input, [&] { return work(job, state.part.get()); });
}

/// In the new process.
int JobRunner::work(const Job& job, ReportPart* part)
{
    // Of the others nothing is needed here.
    for (const std::size_t number : running_) {
        states_[number].process.output.pipe.shut();
        states_[number].process.messages.pipe.shut();
    }
    return convertOne(job, host_, telling_, part);
}

/// When none runs: the next one could not be started either, so this is the end for all that wait.
void JobRunner::couldNotStart(std::size_t number, const QString& reason)
{
    const auto waiting = std::count_if(states_.begin(), states_.end(), [](const State& s) { return !s.begun; });
    QString message = QString("no process can be started for %1: %2").arg(jobs_[number].macro, reason);
    if (waiting > 0)
        message += QString(", nor for the %1 behind it").arg(waiting);
    refuse(number, {kFailed, message});
    for (std::size_t i = 0; i < states_.size(); ++i)
        if (!states_[i].begun)
            refuse(i, {kFailed});
}

void JobRunner::waitForSome()
{
    std::vector<Printed*> streams;
    for (const std::size_t number : running_)
        streams.insert(streams.end(), {&states_[number].process.output, &states_[number].process.messages});
    takeSome(streams, progress_.pollTimeout());
    progress_.update();
    for (const std::size_t number : std::vector(running_))
        if (!states_[number].process.prints())
            ended(number);
}

void JobRunner::ended(std::size_t number)
{
    State& state = states_[number];
    const int result = state.process.await();
    std::erase(running_, number);

    const int status = WEXITSTATUS(result);
    if (!WIFEXITED(result) || status > kUnreadable) {
        removeDeadStaging(QFile::encodeName(QFileInfo(jobs_[number].macro).path()).toStdString());
        refuse(number, {kFailed, QString("conversion to %1 came to no end: %2: %3")
                                     .arg(targetName(*jobs_[number].target), endWord(result), jobs_[number].macro)});
    } else {
        // Its part tells more, when it came to write one.
        finish(number, {status == kDone || status == kUnreadable ? status : kFailed,
                        QString::fromLocal8Bit(state.process.messages.bytes).trimmed()});
    }
    startSome();
}

void JobRunner::finish(std::size_t number, const Outcome& outcome)
{
    states_[number].begun = true;
    states_[number].done = true;
    states_[number].outcome = outcome;
    status_ = std::max(status_, outcome.status);
    ++doneCount_;
    passOn();
}

void JobRunner::passOn()
{
    progress_.aside([this] {
        for (; passedOn_ < states_.size() && states_[passedOn_].done; ++passedOn_)
            passOn(passedOn_);
    });
}

void JobRunner::passOn(std::size_t number)
{
    State& state = states_[number];
    QByteArray messages = std::exchange(state.process.messages.bytes, {});
    if (!messages.isEmpty()) {
        // What is wrong with a recording is said once, not once for each target, nor for each form of its macro.
        const std::pair complaint(jobs_[number].input, messages);
        if (complaint == lastComplaint_)
            messages.clear();
        else
            lastComplaint_ = complaint;
    }
    printError(messages);
    printOut(std::exchange(state.process.output.bytes, {}));
    take_(jobs_[number], std::move(state.part), state.outcome);
}

void JobRunner::endEarly(int signal) noexcept
{
    for (const State& state : states_)
        state.process.send(signal);
    for (const State& state : states_)
        state.process.awaitBySignal();
}

} // namespace

int convertInProcesses(const std::vector<Job>& jobs, const HostSettings& host, const Telling& telling,
                       const TakeResult& take)
{
    return JobRunner(jobs, host, telling, take).run();
}

} // namespace inkmacro
