#include "view/blockParts.h"

#include "host/db/OdDbRecords.h"

namespace inkmacro::view {

std::vector<OdDbHandle> partsOf(const Values& block)
{
    std::vector<OdDbHandle> handles;
    if (const CFxVariant* const list = block.find("Objects")) {
        for (const CFxVariantCollectionElement& element : list->GetCollection().GetCollectionDataForRead()) {
            const CFxVariant& value = *element.GetValue();
            const OdDbObjectId id = value.GetId();
            handles.push_back(id.isNull() ? OdDbHandle(value.GetString().toQString().toULongLong(nullptr, 16))
                                          : id.getHandle());
        }
    } else if (const auto* const drawn = block.drawnAs<OdDbBlockTableRecord>()) {
        for (const OdDbObjectIteratorPtr entity = drawn->newIterator(); !entity->done(); entity->step())
            handles.push_back(entity->objectId().getHandle());
    }
    return handles;
}

} // namespace inkmacro::view
