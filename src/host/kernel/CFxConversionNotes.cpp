#include "host/kernel/CFxConversionNotes.h"

void CFxConversionNotes::NoteLoss(const CFxString& what, const CFxString& reason)
{
    NoteLoss({}, what, reason, [&] { return what; });
}

bool CFxConversionNotes::IsFirst(const Lost& lost)
{
    const int before = known_.size();
    known_.insert(lost);
    return known_.size() > before;
}

void CFxConversionNotes::Forget()
{
    known_.clear();
    lossCount_ = 0;
    faultCount_ = 0;
    losses_.clear();
    faults_.clear();
}
