#include "host/db/OdDbRecords.h"

OdDbObjectIteratorPtr OdDbBlockTableRecord::newIterator() const
{
    return odrxNew<OdDbObjectIterator>(entities_);
}

OdRxClass* OdDbObjectIterator::desc()
{
    static OdRxClass* const descriptor = OdRxClass::define("OdDbObjectIterator", OdRxObject::desc());
    return descriptor;
}

void OdDbObjectIterator::skipErased()
{
    // An entity of which only the handle is known counts as one that is there.
    const auto erased = [](const OdDbObjectId& id) {
        const OdDbObjectPtr entity = id.openObject(true);
        return entity && entity->isErased();
    };
    while (!done() && erased(objectId()))
        ++at_;
}

OdDbObjectId OdDbDictionary::getAt(const OdString& name) const
{
    const auto found = items_.find(name);
    return found == items_.end() ? OdDbObjectId() : found->second;
}
