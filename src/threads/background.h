#pragma once

#include <condition_variable>
#include <csignal>
#include <mutex>
#include <thread>
#include <utility>

namespace inkmacro {

/// A thread beside the first one, to which no signal of the process comes: what handles one expects that the first
/// thread stands still meanwhile. Raises std::system_error where the system gives no further thread.
template<class Work>
std::thread startInBackground(Work work)
{
    struct Mask
    {
        Mask()
        {
            sigset_t all;
            sigfillset(&all);
            pthread_sigmask(SIG_BLOCK, &all, &before);
        }
        ~Mask() { pthread_sigmask(SIG_SETMASK, &before, nullptr); }
        sigset_t before;
    };
    const Mask mask;
    return std::thread(std::move(work));
}

/// Tells a thread by its flag that it shall end, and waits until it has; nothing when there is none. `mutex` guards the
/// flag, and the thread waits for `changed`.
inline void endInBackground(std::thread& thread, std::mutex& mutex, std::condition_variable& changed, bool& flag)
{
    if (!thread.joinable())
        return;
    {
        const std::lock_guard lock(mutex);
        flag = true;
        changed.notify_all();
    }
    thread.join();
}

} // namespace inkmacro
