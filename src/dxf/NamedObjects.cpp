#include "dxf/NamedObjects.h"

namespace inkmacro::dxf {

bool isOfOtherFile(const QString& name)
{
    return name.contains('|');
}

NamedObjects::NamedObjects(Drawing& drawing, OdDbDatabase& ids, std::string_view table) : drawing_(drawing), ids_(ids)
{
    for (const Entity& record : drawing.table(table))
        if (const QString name = drawing.nameOf(record); !name.isEmpty())
            add(name, record.handle, &record);
}

void NamedObjects::add(QString name, quint64 handle, const Entity* record)
{
    if (byName_.emplace(name.toLower(), all_.size()).second)
        all_.push_back({std::move(name), handle, record});
}

void NamedObjects::addUnlisted(std::string_view bytes)
{
    const QString name = drawing_.decoder().text(bytes).trimmed();
    if (!name.isEmpty() && !find(name))
        add(name, drawing_.newHandle(), nullptr);
}

const NamedObjects::Named* NamedObjects::find(const QString& name) const
{
    const auto found = byName_.find(name.toLower());
    return found == byName_.end() ? nullptr : &all_[found->second];
}

const NamedObjects::Found* NamedObjects::look(std::string_view bytes)
{
    // Most entities lie where the one before does.
    if (last_.second && last_.first == bytes)
        return last_.second;
    auto [entry, isNew] = byBytes_.try_emplace(bytes);
    if (isNew)
        if (const Named* named = find(drawing_.decoder().text(bytes).trimmed()))
            entry->second = Found{static_cast<std::size_t>(named - all_.data()),
                                  CFxVariant(ids_.getOdDbObjectId(OdDbHandle(named->handle)))};
    if (!entry->second)
        return nullptr;
    last_ = {entry->first, &*entry->second};
    return last_.second;
}

const NamedObjects::Named* NamedObjects::find(std::string_view bytes)
{
    const Found* const found = look(bytes);
    return found ? &all_[found->index] : nullptr;
}

const NamedObjects::Named* NamedObjects::findHandle(quint64 handle)
{
    for (std::size_t i = byHandle_.size(); i < all_.size(); ++i)
        byHandle_.emplace(all_[i].record ? all_[i].record->handle : all_[i].handle, i);
    const auto found = byHandle_.find(handle);
    return found == byHandle_.end() ? nullptr : &all_[found->second];
}

CFxVariant NamedObjects::id(std::string_view bytes)
{
    const Found* const found = look(bytes);
    return found ? found->id : CFxVariant::kNull;
}

} // namespace inkmacro::dxf
