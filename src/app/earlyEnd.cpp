#include "app/earlyEnd.h"

#include "app/ExitStatus.h"
#include "app/console.h"
#include "app/valueText.h"

#include <QByteArray>

#include <exception>
#include <new>

#include <unistd.h>

namespace inkmacro {

/// Those that watch, the last one in front.
struct EarlyEnds
{
    static inline EarlyEnd* first = nullptr;

    static void begin(EarlyEnd& end)
    {
        end.next_ = first;
        first = &end;
    }
    static void leave(const EarlyEnd& end)
    {
        EarlyEnd** link = &first;
        while (*link != &end)
            link = &(*link)->next_;
        *link = end.next_;
    }
    static void endAll(int signal) noexcept
    {
        for (EarlyEnd* end = first; end; end = end->next_)
            end->endEarly(signal);
    }
};

namespace {

constexpr int endingSignals[] = {SIGINT, SIGTERM, SIGHUP};

/// Made beforehand, because when it is wanted there is no memory for it.
QByteArray memoryMessage = "inkmacro: out of memory\n";

sigset_t endingSet()
{
    sigset_t set;
    sigemptyset(&set);
    for (const int number : endingSignals)
        sigaddset(&set, number);
    return set;
}

void onSignal(int number)
{
    EarlyEnds::endAll(number);
    _exit(128 + number);
}

[[noreturn]] void onTerminate()
{
    // Thrown where nothing may be thrown.
    if (const std::exception_ptr thrown = std::current_exception()) {
        try {
            std::rethrow_exception(thrown);
        } catch (const std::bad_alloc&) {
            endWithoutMemory();
        } catch (...) {
        }
    }
    std::abort();
}

} // namespace

void prepareEarlyEnd()
{
    std::set_new_handler(endWithoutMemory);
    std::set_terminate(onTerminate);
    struct sigaction ending = {};
    ending.sa_handler = onSignal;
    ending.sa_mask = endingSet();
    for (const int number : endingSignals) {
        struct sigaction before = {};
        if (sigaction(number, nullptr, &before) == 0 && before.sa_handler != SIG_IGN)
            sigaction(number, &ending, nullptr);
    }
}

void forgetEarlyEnds()
{
    EarlyEnds::first = nullptr;
    const sigset_t set = endingSet();
    pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
}

int orComplain(const std::function<int()>& work)
{
    try {
        return work();
    } catch (const std::bad_alloc&) {
        endWithoutMemory();
    } catch (const std::exception& error) {
        complain(QString::fromUtf8(error.what()));
        return kFailed;
    }
}

void nameWork(const QString& work)
{
    memoryMessage = (printable("inkmacro: out of memory while " + work) + '\n').toLocal8Bit();
}

void endWithoutMemory()
{
    // There is nobody to tell when this fails too.
    [[maybe_unused]] const ssize_t written =
        write(STDERR_FILENO, memoryMessage.constData(), static_cast<std::size_t>(memoryMessage.size()));
    EarlyEnds::endAll(SIGTERM);
    _exit(kFailed);
}

SignalPause::SignalPause()
{
    const sigset_t set = endingSet();
    pthread_sigmask(SIG_BLOCK, &set, &before_);
}

SignalPause::~SignalPause()
{
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

void EarlyEnd::beginWatch()
{
    const SignalPause pause;
    EarlyEnds::begin(*this);
}

void EarlyEnd::endWatch()
{
    const SignalPause pause;
    EarlyEnds::leave(*this);
}

} // namespace inkmacro
