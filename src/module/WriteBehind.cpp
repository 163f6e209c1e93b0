#include "module/WriteBehind.h"

#include "threads/background.h"

#include <system_error>
#include <utility>

namespace inkmacro {

namespace {

/// Letters of a batch: so many that handing it over costs nothing, and so few that it stays in the processor's caches.
/// No batch has twice as many.
constexpr int kFullBatch = 64 * 1024;

} // namespace

WriteBehind::~WriteBehind()
{
    end();
}

MacroText::Found WriteBehind::write(MacroText::Kind kind, QStringView text)
{
    MacroText::Found found;
    forSlices(text, kFullBatch, [&](QStringView slice) {
        filling_.text += slice;
        const auto length = static_cast<int>(slice.size());
        std::vector<Part>& parts = filling_.parts;
        if (!parts.empty() && parts.back().isText() && parts.back().kind == kind)
            parts.back().length += length;
        else
            parts.push_back({kind, length});
        if (filling_.text.size() < kFullBatch)
            return;
        found.add(handOver());
    });
    return found;
}

MacroText::Found WriteBehind::finish()
{
    if (!thread_.joinable()) {
        writeAll(filling_);
        return text_.take();
    }
    MacroText::Found found = handOver();
    end();
    if (failure_)
        std::rethrow_exception(failure_);
    found.add(found_);
    return found;
}

/// False where the system gives no further thread.
bool WriteBehind::start()
{
    try {
        if (!thread_.joinable())
            thread_ = startInBackground([this] { run(); });
        return true;
    } catch (const std::system_error&) {
        return false;
    }
}

MacroText::Found WriteBehind::handOver()
{
    if (!start()) {
        writeAll(filling_);
        return text_.take();
    }
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return waiting_.isEmpty(); });
    if (failure_)
        std::rethrow_exception(failure_);
    std::swap(waiting_, filling_);
    changed_.notify_all();
    return std::exchange(found_, {});
}

void WriteBehind::run()
{
    Batch writing;
    std::unique_lock lock(mutex_);
    for (;;) {
        changed_.wait(lock, [this] { return ended_ || !waiting_.isEmpty(); });
        if (waiting_.isEmpty())
            return;
        std::swap(writing, waiting_);
        changed_.notify_all();
        lock.unlock();
        try {
            writeAll(writing);
            const MacroText::Found found = text_.take();
            lock.lock();
            found_.add(found);
        } catch (...) {
            if (!lock.owns_lock())
                lock.lock();
            // What comes now is of no use, but has to be taken.
            failure_ = std::current_exception();
            writing = Batch();
        }
    }
}

void WriteBehind::writeAll(Batch& batch)
{
    const QStringView text = batch.text;
    int from = 0;
    for (const Part& part : batch.parts) {
        if (part.fault)
            text_.noteFault(*part.fault);
        else if (part.endsAction)
            text_.endAction();
        else if (part.origin)
            text_.begin(*part.origin);
        else
            text_.write(stream_, part.kind, text.mid(from, part.length));
        from += part.length;
    }
    batch.parts.clear();
    batch.text.resize(0);
}

void WriteBehind::end()
{
    endInBackground(thread_, mutex_, changed_, ended_);
}

} // namespace inkmacro
