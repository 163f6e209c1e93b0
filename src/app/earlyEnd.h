#pragma once

#include <QString>

#include <csignal>
#include <functional>

namespace inkmacro {

/// From here on SIGINT, SIGTERM and SIGHUP end the process with 128 and their number, and lack of memory ends it with
/// a message and kFailed, both after every EarlyEnd was told. A signal that the caller had ignored stays ignored.
void prepareEarlyEnd();

/// In a process that was forked during a SignalPause: what the other one watches is none of its business, and the
/// signals come through.
void forgetEarlyEnds();

/// What the process is at, for the message when memory runs out: "converting walls.jsonl to csharp".
void nameWork(const QString& work);

/// The end for lack of memory.
[[noreturn]] void endWithoutMemory();

/// Runs the work and gives its exit status; complains of an exception and gives kFailed.
int orComplain(const std::function<int()>& work);

/// Keeps the signals above away from this thread, and from processes that it starts, for as long as this lives.
class SignalPause
{
public:
    SignalPause();
    ~SignalPause();
    SignalPause(const SignalPause&) = delete;
    SignalPause& operator=(const SignalPause&) = delete;

private:
    sigset_t before_;
};

/// Something that must not be left as it is when the process ends early.
class EarlyEnd
{
public:
    EarlyEnd(const EarlyEnd&) = delete;
    EarlyEnd& operator=(const EarlyEnd&) = delete;

protected:
    EarlyEnd() = default;
    ~EarlyEnd() = default;

    /// Called by the class itself, around the time in which endEarly may run.
    void beginWatch();
    void endWatch();

private:
    friend struct EarlyEnds;

    /// Runs within a signal handler or without memory: neither allocates nor locks. `signal` is SIGTERM when there was
    /// none.
    virtual void endEarly(int signal) noexcept = 0;

    EarlyEnd* next_ = nullptr;
};

} // namespace inkmacro
