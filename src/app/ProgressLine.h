#pragma once

#include <QString>

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace inkmacro {

/// The line at the foot of the terminal that says how far the work is. It appears when the work has lasted over a
/// second, and never where standard error is no terminal.
class ProgressLine
{
public:
    /// `describe` runs on another thread until the line ends.
    explicit ProgressLine(std::function<QString()> describe);
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    /// Runs `write` while the line is off the terminal.
    void aside(const std::function<void()>& write);

private:
    void run();
    void draw();
    void erase();

    std::function<QString()> describe_;
    std::mutex mutex_;
    std::condition_variable ending_;
    bool ended_ = false;
    int shown_ = 0; ///< columns that are drawn on
    std::thread thread_;
};

/// "[#####---------------]  25%"
QString progressBar(qint64 done, qint64 total);
/// "12.3 MB"
QString megabytes(qint64 bytes);

} // namespace inkmacro
