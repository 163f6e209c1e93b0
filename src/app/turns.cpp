#include "app/turns.h"

#include <QByteArray>

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace inkmacro {

namespace {

void closeEnd(int& end)
{
    if (end >= 0)
        close(std::exchange(end, -1));
}

} // namespace

Turn::Turn()
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) == 0) {
        waiting_ = ends[0];
        holding_ = ends[1];
    }
}

Turn::~Turn()
{
    started();
    come();
}

const char* Turn::variable()
{
    return "INKMACRO_TURN";
}

void Turn::inherit() const
{
    if (waiting_ >= 0)
        fcntl(waiting_, F_SETFD, 0);
}

void Turn::started()
{
    closeEnd(waiting_);
}

void Turn::come()
{
    closeEnd(holding_);
}

void waitForTurn()
{
    bool valid = false;
    const int end = qEnvironmentVariableIntValue(Turn::variable(), &valid);
    struct stat found = {};
    if (!valid || fstat(end, &found) != 0 || !S_ISFIFO(found.st_mode))
        return;
    // Nothing is ever sent: the pipe ends when the turn has come, and also when the parent is gone.
    char nothing = 0;
    while (read(end, &nothing, 1) == -1 && errno == EINTR) {
    }
    close(end);
}

} // namespace inkmacro
