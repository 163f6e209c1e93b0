#include "app/ProgressLine.h"

#include "app/console.h"
#include "threads/background.h"

#include <algorithm>
#include <chrono>

#include <sys/ioctl.h>
#include <unistd.h>

namespace inkmacro {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

const Clock::time_point workBegan = Clock::now();

/// One less than the terminal has: a full last column would begin a new line.
int usableColumns()
{
    winsize size = {};
    const bool known = ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 1;
    return (known ? size.ws_col : 80) - 1;
}

} // namespace

ProgressLine::ProgressLine(std::function<QString()> describe) : describe_(std::move(describe))
{
    if (!isatty(STDERR_FILENO))
        return;
    thread_ = startInBackground([this] { run(); });
}

ProgressLine::~ProgressLine()
{
    endInBackground(thread_, mutex_, ending_, ended_);
}

void ProgressLine::aside(const std::function<void()>& write)
{
    const std::lock_guard lock(mutex_);
    erase();
    write();
}

void ProgressLine::run()
{
    std::unique_lock lock(mutex_);
    const milliseconds beat(200);
    const auto worked = std::chrono::duration_cast<milliseconds>(Clock::now() - workBegan);
    milliseconds pause = std::max(beat, milliseconds(1000) - worked);
    while (!ending_.wait_for(lock, pause, [this] { return ended_; })) {
        draw();
        pause = beat;
    }
    erase();
}

void ProgressLine::draw()
{
    const QString text = describe_().left(usableColumns());
    const int columns = text.length();
    printError(('\r' + text.leftJustified(shown_)).toLocal8Bit());
    shown_ = std::max(shown_, columns);
}

void ProgressLine::erase()
{
    if (shown_ > 0)
        printError('\r' + QByteArray(shown_, ' ') + '\r');
    shown_ = 0;
}

QString progressBar(qint64 done, qint64 total)
{
    const int width = 20;
    const double share = total > 0 ? std::clamp(double(done) / double(total), 0.0, 1.0) : 0.0;
    const int filled = int(share * width);
    return QString("[%1%2] %3%").arg(QString(filled, '#'), QString(width - filled, '-')).arg(int(share * 100), 3);
}

QString megabytes(qint64 bytes)
{
    return QString::number(double(bytes) / 1e6, 'f', 1) + " MB";
}

} // namespace inkmacro
