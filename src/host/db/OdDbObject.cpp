#include "host/db/OdDbObject.h"

#include "host/db/OdDbObjectIterator.h"

OdDbObjectId oddbIdOf(const OdDbNamedIds& ids, const OdString& name)
{
    const auto found = ids.find(name);
    return found == ids.end() ? OdDbObjectId() : found->second;
}

OdResBufPtr OdDbObject::xData(const OdString& application) const
{
    const auto found = xData_.find(application);
    return found == xData_.end() ? OdResBufPtr() : found->second;
}

void OdDbObject::setXData(const OdResBufPtr& chain)
{
    OdResBufPtr last;
    OdResBufPtr* rows = nullptr;
    for (OdResBufPtr row = chain; row; row = row->next()) {
        if (row->restype() == OdResBuf::kDxfRegAppName) {
            rows = &xData_[row->getString()];
            *rows = nullptr;
            last = nullptr;
            continue;
        }
        if (!rows)
            throw OdError(eBadDxfSequence);
        const auto copy = odrxNew<OdResBuf>(row->restype(), row->value());
        if (last)
            last->setNext(copy);
        else
            *rows = copy;
        last = copy;
    }
    std::erase_if(xData_, [](const auto& entry) { return !entry.second; });
}

ODRX_DEFINE_DESC(OdDbObjectIterator, OdRxObject)

void OdDbObjectIterator::skipErased()
{
    // An object of which only the handle is known counts as one that is there.
    const auto erased = [](const OdDbObjectId& id) {
        const OdDbObjectPtr object = id.openObject(true);
        return object && object->isErased();
    };
    while (!done() && erased(objectId()))
        ++at_;
}
