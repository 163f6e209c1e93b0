#include "host/db/OdDbDatabase.h"

#include "host/db/LineStyleFile.h"

#include <algorithm>
#include <limits>

OdDbHandle OdDbObjectId::getHandle() const
{
    return stub_ ? stub_->handle : OdDbHandle();
}

OdDbObjectPtr OdDbObjectId::openObject(bool openErased) const
{
    if (!stub_ || !stub_->object || (stub_->object->isErased() && !openErased))
        return {};
    return stub_->object;
}

OdDbDatabase::OdDbDatabase() = default;
OdDbDatabase::~OdDbDatabase() = default;

OdDbObjectId OdDbDatabase::getOdDbObjectId(const OdDbHandle& handle)
{
    if (handle.isNull())
        return {};
    noteHandle(handle);
    OdDbStub& stub = stubs_[handle];
    stub.handle = handle;
    return OdDbObjectId(&stub);
}

OdDbObjectId OdDbDatabase::findOdDbObjectId(const OdDbHandle& handle) const
{
    const auto found = stubs_.find(handle);
    return found == stubs_.end() ? OdDbObjectId() : OdDbObjectId(&found->second);
}

OdDbObjectId OdDbDatabase::addObject(const OdDbHandle& handle, OdDbObjectPtr object)
{
    const OdDbObjectId id = getOdDbObjectId(handle);
    object->objectId_ = id;
    stubs_[handle].object = std::move(object);
    return id;
}

OdDbHandle OdDbDatabase::handseed() const
{
    if (lastHandle_.value() == std::numeric_limits<std::uint64_t>::max())
        throw OdError(eHandlesUsedUp, "no handle is left for a new object");
    return OdDbHandle(lastHandle_.value() + 1);
}

OdDbObjectId OdDbDatabase::tableId(Table& table, const OdRxClass* recordClass)
{
    if (!table)
        table = std::make_unique<OdDbStub>(OdDbStub{{}, odrxNew<OdDbSymbolTable>(*this, recordClass)});
    return OdDbObjectId(table.get());
}

OdDbObjectId OdDbDatabase::linetypeId(const char* name)
{
    return odrxCast<OdDbSymbolTable>(getLinetypeTableId().openObject().get())->getAt(name);
}

OdDbObjectId OdDbDatabase::getLinetypeByLayerId()
{
    return linetypeId("ByLayer");
}

OdDbObjectId OdDbDatabase::getLinetypeByBlockId()
{
    return linetypeId("ByBlock");
}

OdDbObjectId OdDbDatabase::getLinetypeContinuousId()
{
    return linetypeId("Continuous");
}

void OdDbDatabase::loadLineTypeFile(const OdString& name, const OdString& path)
{
    LineStyleFile file(path);
    LineStyleFile::Style style;
    do {
        if (!file.next(style))
            throw OdError(eUndefinedLineType);
    } while (style.name.compare(name, Qt::CaseInsensitive) != 0);
    if (!file.nextIsPattern())
        throw OdError(eUndefinedLineType);

    const auto table = odrxCast<OdDbSymbolTable>(getLinetypeTableId().openObject().get());
    auto record = odrxCast<OdDbLinetypeTableRecord>(table->getAt(style.name).openObject().get());
    if (!record) {
        record = odrxNew<OdDbLinetypeTableRecord>(OdDbLinetypeTableRecord::desc());
        record->setName(style.name);
        table->add(record);
    }
    record->setComments(style.description);
}

double OdDbDatabase::getSysVarDouble(const OdString& name) const
{
    const auto found = sysVars_.find(name);
    return found == sysVars_.end() ? 0.0 : found->second;
}

std::int16_t OdDbDatabase::getSysVarInt16(const OdString& name) const
{
    using Limits = std::numeric_limits<std::int16_t>;
    const double value = getSysVarDouble(name);
    return value >= Limits::min() && value <= Limits::max() ? static_cast<std::int16_t>(value) : std::int16_t{0};
}

OdArray<OdDbObjectId> OdDbDatabase::objectIds() const
{
    std::vector<const OdDbStub*> stubs;
    for (const auto& [handle, stub] : stubs_)
        if (stub.object)
            stubs.push_back(&stub);
    std::sort(stubs.begin(), stubs.end(), [](const OdDbStub* a, const OdDbStub* b) { return a->handle < b->handle; });
    OdArray<OdDbObjectId> ids;
    for (const OdDbStub* const stub : stubs)
        ids.append(OdDbObjectId(stub));
    return ids;
}
