#include "view/Spaces.h"

#include <limits>

namespace inkmacro::view {

Spaces::Spaces(Picture& picture, OdDbDatabase& database) : picture_(picture)
{
    add(Space::Kind::Model, "Model", {});
    sheets_.insert("model", model);
    std::vector<OdSmartPtr<OdDbBlockTableRecord>> records;
    for (const OdDbObjectId& id : database.objectIds()) {
        const OdDbObjectPtr object = id.openObject(true);
        if (const auto layout = odrxQuery<OdDbLayout>(object.get()); layout && !layout->modelType())
            sheet(layout->getLayoutName());
        if (const auto record = odrxQuery<OdDbBlockTableRecord>(object.get()))
            records.push_back(record);
    }
    for (const OdSmartPtr<OdDbBlockTableRecord>& record : records) {
        const std::uint16_t space =
            record->isLayout() ? layoutOf(*record, database) : addBlock(record->getDbHandle(), record->getName());
        for (const OdDbObjectIteratorPtr entity = record->newIterator(); !entity->done(); entity->step())
            holders_.emplace(entity->objectId().getHandle(), space);
    }
}

std::uint16_t Spaces::layoutOf(const OdDbBlockTableRecord& block, OdDbDatabase& database)
{
    const OdDbHandle handle = block.getDbHandle();
    std::uint16_t space = model;
    if (!block.getName().startsWith("*Model", Qt::CaseInsensitive)) {
        const auto current = odrxQuery<OdDbLayout>(database.currentLayoutId().openObject().get());
        const bool isActive = database.getActiveLayoutBTRId() == block.objectId() && current && !current->modelType();
        if (isActive)
            space = sheet(current->getLayoutName());
        else
            space = sheets_.size() == 2 ? std::uint16_t{1} : sheet(block.getName());
    }
    if (picture_.spaces[space].block.isNull())
        picture_.spaces[space].block = handle;
    blocksByHandle_.emplace(handle, space);
    return space;
}

std::uint16_t Spaces::add(Space::Kind kind, const QString& name, const OdDbHandle& block)
{
    // More than there are numbers: the last stands for all further ones.
    constexpr std::size_t most = std::numeric_limits<std::uint16_t>::max();
    if (picture_.spaces.size() == most)
        return most - 1;
    picture_.spaces.push_back({kind, name, block});
    return static_cast<std::uint16_t>(picture_.spaces.size() - 1);
}

std::uint16_t Spaces::sheet(const QString& name)
{
    const auto found = sheets_.constFind(name.toLower());
    if (found != sheets_.constEnd())
        return *found;
    const std::uint16_t space = add(Space::Kind::Sheet, name, {});
    sheets_.insert(name.toLower(), space);
    return space;
}

void Spaces::renameSheet(const QString& from, const QString& to)
{
    const std::uint16_t space = sheet(from);
    if (space == model || sheets_.contains(to.toLower()))
        return;
    sheets_.insert(to.toLower(), space);
    sheets_.remove(from.toLower());
    picture_.spaces[space].name = to;
}

std::uint16_t Spaces::addBlock(const OdDbHandle& handle, const QString& name)
{
    const auto found = blocksByHandle_.find(handle);
    const std::uint16_t space = found != blocksByHandle_.end() ? found->second : add(Space::Kind::Block, name, handle);
    blocksByHandle_.emplace(handle, space);
    if (!name.isEmpty()) {
        blocks_.insert(name.toLower(), space);
        picture_.spaces[space].name = name;
    }
    return space;
}

std::optional<std::uint16_t> Spaces::block(const QString& name) const
{
    const auto found = blocks_.constFind(name.toLower());
    return found == blocks_.constEnd() ? std::nullopt : std::optional(*found);
}

std::optional<std::uint16_t> Spaces::block(const OdDbHandle& handle) const
{
    const auto found = blocksByHandle_.find(handle);
    return found == blocksByHandle_.end() ? std::nullopt : std::optional(found->second);
}

std::optional<std::uint16_t> Spaces::holder(const OdDbHandle& entity) const
{
    const auto found = holders_.find(entity);
    return found == holders_.end() ? std::nullopt : std::optional(found->second);
}

} // namespace inkmacro::view
