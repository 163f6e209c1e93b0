#include "host/kernel/CFxSelectionSet.h"

ODRX_DEFINE_DESC(CFxSelectionSet, OdRxObject)

void CFxSelectionSet::Clear()
{
    ids_.clear();
    known_.clear();
}

void CFxSelectionSet::Append(OdDbObjectId id)
{
    if (known_.insert(id).second)
        ids_.push_back(id);
}

CFxSelectionSetPtr CreateFxSelectionSet()
{
    return odrxNew<CFxSelectionSet>();
}
