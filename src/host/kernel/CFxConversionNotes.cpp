#include "host/kernel/CFxConversionNotes.h"

#include <algorithm>

void CFxConversionNotes::NoteLoss(const CFxString& what, const CFxString& reason)
{
    NoteLoss({}, what, reason, [&] { return what; });
}

void CFxConversionNotes::NoteAssumption(const CFxString& what, const CFxString& reason)
{
    NoteAssumption({}, what, reason, [&] { return what; });
}

bool CFxConversionNotes::IsFirst(Known known)
{
    constexpr std::size_t few = 16;
    if (known_.size() < few) {
        if (std::find(known_.begin(), known_.end(), known) != known_.end())
            return false;
        known_.push_back(std::move(known));
        return true;
    }
    if (manyKnown_.isEmpty())
        manyKnown_ = QSet<Known>(known_.begin(), known_.end());
    const int before = manyKnown_.size();
    manyKnown_.insert(known);
    return manyKnown_.size() > before;
}

void CFxConversionNotes::Forget()
{
    ForgetKnown();
    losses_ = {};
    assumptions_ = {};
    parameters_.clear();
    faults_.clear();
    faultKinds_.clear();
}
