#pragma once

#include "host/db/OdDbHandle.h"
#include "host/rx/OdRxObject.h"

class OdDbObject;
struct OdDbStub;

/// Refers to an object of an open drawing; valid as long as that drawing.
class INKHOST_EXPORT OdDbObjectId
{
public:
    OdDbObjectId() = default;
    explicit OdDbObjectId(const OdDbStub* stub) : stub_(stub) {}

    bool isNull() const { return !stub_; }
    OdDbHandle getHandle() const;
    /// The object for reading; null when there is none, and for an erased one unless that is asked for.
    OdSmartPtr<OdDbObject> openObject(bool openErased = false) const;

    bool operator==(const OdDbObjectId&) const = default;
    /// By handle, so that an ordered container gives the same order in every run.
    bool operator<(const OdDbObjectId& other) const { return getHandle() < other.getHandle(); }

private:
    const OdDbStub* stub_ = nullptr;
};
