#pragma once

#include <QString>

#include <chrono>
#include <functional>

namespace inkmacro {

/// The line at the foot of the terminal that says how far the work is. It appears when the work has lasted over a
/// second, and never where standard error is no terminal. Who works calls `update` whenever he comes by: a thread of
/// its own would keep the line moving through one long step too, but not every system gives one, and the program forks.
class ProgressLine
{
public:
    explicit ProgressLine(std::function<QString()> describe);
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    /// Draws the line anew when it is time to, and costs next to nothing when it is not.
    void update();

    /// For poll(): the milliseconds until it is time, or -1 where the line never appears.
    int pollTimeout() const;

    /// Runs `write` while the line is off the terminal.
    void aside(const std::function<void()>& write);

private:
    using Clock = std::chrono::steady_clock;

    void draw();
    void erase();

    static const Clock::time_point workBegan_;

    std::function<QString()> describe_;
    Clock::time_point next_ = Clock::time_point::max(); ///< when it is drawn; the far end: never
    int shown_ = 0;                                     ///< columns that are drawn on
};

/// "[#####---------------]  25%"
QString progressBar(qint64 done, qint64 total);
/// "12.3 MB"
QString megabytes(qint64 bytes);

} // namespace inkmacro
