#pragma once

#include "host/db/OdDbObject.h"

/// Stands on one of the objects of a list, or behind the last. The list has to outlive it.
class INKHOST_EXPORT OdDbObjectIterator : public OdRxObject
{
public:
    explicit OdDbObjectIterator(const OdArray<OdDbObjectId>& ids) : ids_(ids) { skipErased(); }
    static OdRxClass* desc();
    OdRxClass* isA() const override { return desc(); }

    bool done() const { return at_ == ids_.length(); }
    void step()
    {
        ++at_;
        skipErased();
    }
    const OdDbObjectId& objectId() const { return ids_[at_]; }

private:
    void skipErased();

    const OdArray<OdDbObjectId>& ids_;
    unsigned at_ = 0;
};

using OdDbObjectIteratorPtr = OdSmartPtr<OdDbObjectIterator>;
