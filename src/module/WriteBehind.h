#pragma once

#include "module/MacroText.h"

#include <condition_variable>
#include <exception>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace inkmacro {

/// Writes the text of a macro on a second thread, while the first one makes what stands behind it. A macro that is
/// shorter than one batch is written by finish() without a second thread. Until finish() has returned, text and stream
/// belong to this class; all of its operations are the first thread's.
class WriteBehind
{
public:
    WriteBehind(MacroText& text, QTextStream& stream) : text_(text), stream_(stream) {}
    /// Drops what is not written yet.
    ~WriteBehind();
    WriteBehind(const WriteBehind&) = delete;
    WriteBehind& operator=(const WriteBehind&) = delete;

    // Each gives what was found in what has been written since the last call, in the macro's order, and throws what was
    // thrown while it was written.

    MacroText::Found write(MacroText::Kind kind, QStringView text);
    void noteFault(const Fault& fault) { filling_.parts.push_back({.fault = &fault}); }
    void begin(const Origin& origin) { filling_.parts.push_back({.origin = origin}); }
    void endAction() { filling_.parts.push_back({.endsAction = true}); }
    /// Writes all that is left.
    MacroText::Found finish();

private:
    struct Part
    {
        MacroText::Kind kind{};
        int length = 0;                    ///< of its text
        const Fault* fault = nullptr;      ///< null for a text
        bool endsAction = false;           ///< is no text either
        std::optional<Origin> origin = {}; ///< nor is it when it has one
        bool isText() const { return !fault && !endsAction && !origin; }
    };
    struct Batch
    {
        QString text; ///< of all parts
        std::vector<Part> parts;
        bool isEmpty() const { return parts.empty(); }
    };

    bool start();
    void run();
    void writeAll(Batch& batch);
    MacroText::Found handOver();
    void end();

    MacroText& text_;
    QTextStream& stream_;
    Batch filling_;
    std::thread thread_;

    std::mutex mutex_; ///< guards what follows
    std::condition_variable changed_;
    Batch waiting_; ///< empty: its memory is to be used again
    MacroText::Found found_;
    std::exception_ptr failure_;
    bool ended_ = false;
};

} // namespace inkmacro
