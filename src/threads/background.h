#pragma once

#include <csignal>
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

} // namespace inkmacro
