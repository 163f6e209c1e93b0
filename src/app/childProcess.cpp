#include "app/childProcess.h"

#include "app/ExitStatus.h"
#include "app/console.h"
#include "app/earlyEnd.h"

#include <array>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>

namespace inkmacro {

namespace {

struct Pipe
{
    PipeEnd in; ///< to write to
    PipeEnd out;
};

/// 0, or the errno.
int makePipe(Pipe& pipe)
{
    std::array<int, 2> ends = {};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        return errno;
    pipe = {PipeEnd(ends[1]), PipeEnd(ends[0])};
    return 0;
}

/// Gives the process that has just been forked its streams.
void begin(pid_t parent, const QByteArray& input, const Pipe& output, const Pipe& messages)
{
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (getppid() != parent)
        _exit(kFailed);
    const PipeEnd opened(open(input.constData(), O_RDONLY | O_CLOEXEC));
    dup2(opened.descriptor(), STDIN_FILENO);
    dup2(output.in.descriptor(), STDOUT_FILENO);
    dup2(messages.in.descriptor(), STDERR_FILENO);
    forgetOutput();
    forgetEarlyEnds();
}

} // namespace

void Printed::take()
{
    std::array<char, 64 * 1024> piece;
    const ssize_t got = read(pipe.descriptor(), piece.data(), piece.size());
    if (got > 0)
        bytes.append(piece.data(), static_cast<int>(got));
    else if (got == 0 || errno != EINTR)
        pipe.shut();
}

void takeSome(const std::vector<Printed*>& streams, int timeout)
{
    std::vector<Printed*> open;
    std::vector<pollfd> polled;
    for (Printed* const stream : streams)
        if (stream->pipe.isOpen()) {
            open.push_back(stream);
            polled.push_back({stream->pipe.descriptor(), POLLIN, 0});
        }
    if (poll(polled.data(), polled.size(), timeout) > 0)
        for (std::size_t i = 0; i < polled.size(); ++i)
            if (polled[i].revents != 0)
                open[i]->take();
}

int ChildProcess::start(const QByteArray& input, const std::function<int()>& work)
{
    Pipe printed;
    Pipe told;
    if (const int error = makePipe(printed))
        return error;
    if (const int error = makePipe(told))
        return error;
    const pid_t self = getpid();
    const SignalPause pause;
    const pid_t process = fork();
    if (process == 0) {
        begin(self, input, printed, told);
        _exit(finishOutput(orComplain(work)));
    }
    if (process == -1)
        return errno;
    id_ = process;
    output.pipe = std::move(printed.out);
    messages.pipe = std::move(told.out);
    return 0;
}

int ChildProcess::await()
{
    int result = 0;
    const SignalPause pause;
    while (waitpid(id_, &result, 0) == -1 && errno == EINTR) {
    }
    id_ = 0;
    return result;
}

void ChildProcess::send(int signal) const noexcept
{
    if (id_ > 0)
        kill(id_, signal);
}

void ChildProcess::awaitBySignal() const noexcept
{
    while (id_ > 0 && waitpid(id_, nullptr, 0) == -1 && errno == EINTR) {
    }
}

QString endWord(int result)
{
    return WIFEXITED(result) ? QString("ended with status %1").arg(WEXITSTATUS(result))
                             : QString("killed by signal %1").arg(WTERMSIG(result));
}

} // namespace inkmacro
