#include "host/kernel/CFxConversionNotes.h"

void CFxConversionNotes::NoteLoss(const CFxString& what, const CFxString& reason)
{
    CFxLoss loss{place_, what, reason};
    // Those of one action stand together.
    for (auto known = losses_.rbegin(); known != losses_.rend() && known->where == place_; ++known)
        if (*known == loss)
            return;
    losses_.push_back(std::move(loss));
}

void CFxConversionNotes::Forget()
{
    losses_.clear();
    faults_.clear();
}
