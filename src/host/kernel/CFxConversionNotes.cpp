#include "host/kernel/CFxConversionNotes.h"

#include <algorithm>

void CFxConversionNotes::NoteLoss(const CFxString& what, const CFxString& reason)
{
    NoteLoss({}, what, reason, [&] { return what; });
}

bool CFxConversionNotes::IsFirst(Lost lost)
{
    constexpr std::size_t few = 16;
    if (known_.size() < few) {
        if (std::find(known_.begin(), known_.end(), lost) != known_.end())
            return false;
        known_.push_back(std::move(lost));
        return true;
    }
    if (manyKnown_.isEmpty())
        manyKnown_ = QSet<Lost>(known_.begin(), known_.end());
    const int before = manyKnown_.size();
    manyKnown_.insert(lost);
    return manyKnown_.size() > before;
}

void CFxConversionNotes::Forget()
{
    ForgetKnown();
    lossCount_ = 0;
    faultCount_ = 0;
    losses_.clear();
    faults_.clear();
}
