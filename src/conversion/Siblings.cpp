#include "conversion/Siblings.h"

#include "host/db/OdDbClasses.h"

bool Siblings::has(std::int32_t kind) const
{
    look();
    return kinds_->contains(kind);
}

bool Siblings::hasBlock() const
{
    look();
    return hasBlock_;
}

void Siblings::look() const
{
    if (kinds_)
        return;
    kinds_.emplace();
    for (const OdRxObjectPtr& action : actions_) {
        if (const auto custom = odrxQuery<CFxCustomAction>(action.get()))
            kinds_->insert(custom->GetKind());
        else if (const auto added = odrxQuery<CFxObjectAdded>(action.get()))
            hasBlock_ = hasBlock_ || added->GetObjectClass() == OdDbBlockTableRecord::desc();
        else if (const auto modified = odrxQuery<CFxObjectModified>(action.get()))
            hasBlock_ = hasBlock_ || modified->GetObjectClass() == OdDbBlockTableRecord::desc();
    }
}
