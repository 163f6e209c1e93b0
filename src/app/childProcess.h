#pragma once

#include <QByteArray>
#include <QString>

#include <atomic>
#include <functional>
#include <utility>
#include <vector>

#include <unistd.h>

namespace inkmacro {

/// One end of a pipe, closed when this goes.
class PipeEnd
{
public:
    PipeEnd() = default;
    explicit PipeEnd(int descriptor) : descriptor_(descriptor) {}
    PipeEnd(PipeEnd&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
    PipeEnd& operator=(PipeEnd&& other) noexcept
    {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }
    ~PipeEnd() { shut(); }

    void shut()
    {
        if (const int descriptor = std::exchange(descriptor_, -1); descriptor != -1)
            close(descriptor);
    }
    bool isOpen() const { return descriptor_ != -1; }
    int descriptor() const { return descriptor_; }

private:
    int descriptor_ = -1;
};

/// What a process prints on one of its streams.
struct Printed
{
    PipeEnd pipe;
    QByteArray bytes;

    /// Takes what is there, and closes the pipe behind the last of it.
    void take();
};

/// Waits, at most so many milliseconds, or for ever when that is negative, until one of the open ones has something,
/// and takes it.
void takeSome(const std::vector<Printed*>& streams, int timeout);

/// A process that this one has forked.
class ChildProcess
{
public:
    /// Its standard input is that file, and what it prints comes here. It ends with what the work gives, or when this
    /// process does, however that ends. Gives an errno.
    int start(const QByteArray& input, const std::function<int()>& work);
    /// Whether its end has not been seen at its streams.
    bool prints() const { return output.pipe.isOpen() || messages.pipe.isOpen(); }
    /// Waits for its end, and gives what waitpid tells of it.
    int await();

    /// Both may run within a signal handler.
    void send(int signal) const noexcept;
    void awaitBySignal() const noexcept;

    Printed output;
    Printed messages;

private:
    std::atomic<pid_t> id_ = 0; ///< while the process runs
};

/// "killed by signal 9", of what waitpid tells.
QString endWord(int result);

} // namespace inkmacro
