#pragma once

#include "host/db/OdDbObjectId.h"

#include <set>
#include <vector>

/// Entities that the user picked, each once, in the order of picking.
class INKHOST_EXPORT CFxSelectionSet : public OdRxObject
{
public:
    static OdRxClass* desc();
    OdRxClass* isA() const override { return desc(); }

    void Clear();
    void Append(OdDbObjectId id);
    const std::vector<OdDbObjectId>& GetIds() const { return ids_; }

private:
    std::vector<OdDbObjectId> ids_;
    std::set<OdDbObjectId> known_;
};

using CFxSelectionSetPtr = OdSmartPtr<CFxSelectionSet>;

/// A new and empty one.
INKHOST_EXPORT CFxSelectionSetPtr CreateFxSelectionSet();
