#pragma once

#include "recordfile/LineParser.h"

#include <array>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>

namespace inkmacro::recordfile {

/// Gives the batches of a parser in turn. While one is worked on, a second thread fills those behind it: the parser and
/// its device are that thread's from the second batch on. What a single batch takes is parsed without one.
class ParseAhead
{
public:
    /// A device that waits for its bytes is never read ahead: who has seen enough would wait for it at the end.
    ParseAhead(LineParser& parser, bool readsAhead) : parser_(parser), readsAhead_(readsAhead) {}
    ~ParseAhead();
    ParseAhead(const ParseAhead&) = delete;
    ParseAhead& operator=(const ParseAhead&) = delete;

    /// The next batch; none follows one that has an ending. It lasts until the next call, which throws what filling it
    /// has thrown.
    const LineBatch& next();

private:
    bool start();
    void run();
    LineBatch& lastFilled() { return batches_[(filled_ - 1) % batches_.size()]; }
    bool mayFill();

    LineParser& parser_;
    bool readsAhead_;
    std::array<LineBatch, 3> batches_; ///< in a ring
    std::thread thread_;

    std::mutex mutex_; ///< guards what follows
    std::condition_variable changed_;
    std::size_t filled_ = 0; ///< batches, in all
    std::size_t given_ = 0;
    bool stopped_ = false;
    std::exception_ptr failure_;
};

} // namespace inkmacro::recordfile
