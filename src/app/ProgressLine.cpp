#include "app/ProgressLine.h"

#include "app/console.h"

#include <algorithm>

#include <sys/ioctl.h>
#include <unistd.h>

namespace inkmacro {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds kQuietTime(1000); ///< work that takes no longer shows nothing
constexpr milliseconds kBeat(200);

/// One less than the terminal has: a full last column would begin a new line.
int usableColumns()
{
    winsize size = {};
    const bool known = ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 1;
    return (known ? size.ws_col : 80) - 1;
}

} // namespace

const ProgressLine::Clock::time_point ProgressLine::workBegan_ = Clock::now();

ProgressLine::ProgressLine(std::function<QString()> describe) : describe_(std::move(describe))
{
    if (isatty(STDERR_FILENO))
        next_ = std::max(Clock::now() + kBeat, workBegan_ + kQuietTime);
}

ProgressLine::~ProgressLine()
{
    erase();
}

void ProgressLine::update()
{
    if (next_ == Clock::time_point::max())
        return;
    if (const auto now = Clock::now(); now >= next_) {
        draw();
        next_ = now + kBeat;
    }
}

int ProgressLine::pollTimeout() const
{
    if (next_ == Clock::time_point::max())
        return -1;
    const auto left = std::chrono::ceil<milliseconds>(next_ - Clock::now());
    return static_cast<int>(std::max(left, milliseconds(0)).count());
}

void ProgressLine::aside(const std::function<void()>& write)
{
    erase();
    write();
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
