#include "host/kernel/CFxSelectionSet.h"

OdRxClass* CFxSelectionSet::desc()
{
    static OdRxClass* const descriptor = OdRxClass::define("CFxSelectionSet", OdRxObject::desc());
    return descriptor;
}

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
