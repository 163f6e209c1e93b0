#include "host/db/OdDbRecords.h"

const OdArray<OdDbObjectId>& OdDbDimAssoc::pointRef(std::size_t index) const
{
    if (index >= pointRefs_.size())
        throw OdError_InvalidIndex();
    return pointRefs_[index];
}

OdDbObjectId OdDbDictionary::getAt(const OdString& name) const
{
    return oddbIdOf(items_, name);
}
