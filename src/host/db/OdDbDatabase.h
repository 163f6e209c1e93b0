#pragma once

#include "host/db/OdDbObject.h"

#include <cstdint>
#include <memory>
#include <unordered_map>

/// A drawing: its objects by handle. Owns them and the entries behind their ids, so ids live as long as the drawing.
class INKHOST_EXPORT OdDbDatabase
{
public:
    OdDbDatabase();
    ~OdDbDatabase();
    OdDbDatabase(const OdDbDatabase&) = delete;
    OdDbDatabase& operator=(const OdDbDatabase&) = delete;

    /// The id of that handle, whether an object stands behind it or not; the null id for the null handle.
    OdDbObjectId getOdDbObjectId(const OdDbHandle& handle);
    /// Puts the object into the drawing under the handle and tells it its id. A former object there is let go.
    OdDbObjectId addObject(const OdDbHandle& handle, OdSmartPtr<OdDbObject> object);

    OdDbObjectId currentLayoutId() const { return currentLayoutId_; }
    void setCurrentLayoutId(OdDbObjectId id) { currentLayoutId_ = id; }
    /// The dictionary of the groups by name.
    OdDbObjectId getGroupDictionaryId() const { return groupDictionaryId_; }
    void setGroupDictionaryId(OdDbObjectId id) { groupDictionaryId_ = id; }

    /// All objects, by ascending handle.
    OdArray<OdDbObjectId> objectIds() const;

private:
    /// Handles come from files: were they their own hashes, those of one file could all fall into one place.
    struct HandleHash
    {
        std::size_t operator()(std::uint64_t handle) const;
    };

    std::unordered_map<std::uint64_t, std::unique_ptr<OdDbStub>, HandleHash> stubs_; ///< by the handle's value
    OdDbObjectId currentLayoutId_;
    OdDbObjectId groupDictionaryId_;
};
