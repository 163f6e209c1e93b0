#include "host/db/OdDbRecords.h"

#include "host/db/OdDbDatabase.h"

OdDbSymbolTable::OdDbSymbolTable(OdDbDatabase& database, const OdRxClass* recordClass)
    : OdDbObject(desc()), database_(database)
{
    for (const OdDbObjectId& id : database.objectIds())
        if (const auto record = odrxQuery<OdDbSymbolTableRecord>(id.openObject().get()))
            if (record->isA() == recordClass)
                records_.emplace(record->getName(), id);
}

OdDbObjectId OdDbSymbolTable::add(const OdSmartPtr<OdDbSymbolTableRecord>& record)
{
    if (!getAt(record->getName()).isNull())
        throw OdError(eDuplicateRecordName);
    const OdDbObjectId id = database_.addObject(database_.handseed(), record);
    records_.emplace(record->getName(), id);
    return id;
}

OdDbObjectId OdDbBlockTableRecord::appendOdDbEntity(OdDbDatabase& database, const OdSmartPtr<OdDbEntity>& entity)
{
    if (objectId().isNull())
        database.addObject(database.handseed(), OdDbBlockTableRecordPtr(this));
    const OdDbObjectId id = database.addObject(database.handseed(), entity);
    entities_.append(id);
    return id;
}

OdDbBlockTableRecordPtr OdDbBlockTableRecord::createLayoutBlock(const OdString& name)
{
    auto block = odrxNew<OdDbBlockTableRecord>(desc());
    block->setName(name);
    block->isLayout_ = true;
    return block;
}

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
