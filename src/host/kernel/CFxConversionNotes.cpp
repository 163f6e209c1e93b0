#include "host/kernel/CFxConversionNotes.h"

void CFxConversionNotes::NoteLoss(const CFxString& what, const CFxString& reason)
{
    const QPair<QString, QString> loss(what, reason);
    if (known_.contains(loss))
        return;
    known_.insert(loss);
    losses_.push_back({place_, what, reason});
}

void CFxConversionNotes::Forget()
{
    known_.clear();
    losses_.clear();
    faults_.clear();
}
