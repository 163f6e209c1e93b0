#include "recordfile/ParseAhead.h"

#include "threads/background.h"

#include <system_error>

namespace inkmacro::recordfile {

ParseAhead::~ParseAhead()
{
    endInBackground(thread_, mutex_, changed_, stopped_);
}

const LineBatch& ParseAhead::next()
{
    if (given_ == 0 || !readsAhead_ || !start()) {
        parser_.fill(batches_.front());
        filled_ = given_ = 1;
        return batches_.front();
    }
    std::unique_lock lock(mutex_);
    // The batch that was given last is free from here on.
    ++given_;
    changed_.notify_all();
    changed_.wait(lock, [this] { return filled_ >= given_ || failure_; });
    if (filled_ < given_)
        std::rethrow_exception(failure_);
    return batches_[(given_ - 1) % batches_.size()];
}

/// False where the system gives no further thread.
bool ParseAhead::start()
{
    try {
        if (!thread_.joinable())
            thread_ = startInBackground([this] { run(); });
    } catch (const std::system_error&) {
        readsAhead_ = false;
    }
    return readsAhead_;
}

/// The batch given last is being worked on until the next one is asked for.
bool ParseAhead::mayFill()
{
    return lastFilled().isLarge ? filled_ < given_ : filled_ - (given_ - 1) < batches_.size();
}

void ParseAhead::run()
{
    std::unique_lock lock(mutex_);
    for (bool more = true; more;) {
        changed_.wait(lock, [this] { return stopped_ || mayFill(); });
        if (stopped_)
            return;
        if (lastFilled().isLarge)
            lastFilled().dropLongLines();
        LineBatch& batch = batches_[filled_ % batches_.size()];
        lock.unlock();
        try {
            parser_.fill(batch);
            more = !batch.ending;
            lock.lock();
            ++filled_;
        } catch (...) {
            lock.lock();
            failure_ = std::current_exception();
            more = false;
        }
        changed_.notify_all();
    }
}

} // namespace inkmacro::recordfile
