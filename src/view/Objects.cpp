#include "view/Objects.h"

#include <algorithm>

namespace inkmacro::view {

namespace {

/// The name that the drawing has for a record; empty for what is no record.
QString drawnName(const OdDbObject* object)
{
    if (const auto* const record = dynamic_cast<const OdDbSymbolTableRecord*>(object))
        return record->getName();
    if (const auto* const style = dynamic_cast<const OdDbMlineStyle*>(object))
        return style->name();
    return {};
}

} // namespace

ObjectState* Objects::find(const OdDbHandle& handle)
{
    const auto found = numbers_.find(handle);
    return found == numbers_.end() ? nullptr : &states_[found->second];
}

ObjectState& Objects::at(const OdDbHandle& handle, const OdRxClass& cls)
{
    const auto [found, isNew] = numbers_.emplace(handle, count());
    if (!isNew)
        return states_[found->second];
    ObjectState& state =
        states_.emplace_back(*this, count(), handle, cls, database_.findOdDbObjectId(handle).openObject(true));
    if (const QString name = drawnName(state.drawn()); !name.isEmpty())
        setName(state, name);
    return state;
}

ObjectState& Objects::copy(const ObjectState& original)
{
    ObjectState& state = states_.emplace_back(*this, count(), OdDbHandle(), original.cls(), OdDbObjectPtr());
    state.takeFrom(original);
    return state;
}

const ObjectState* Objects::named(const QString& className, const QString& name) const
{
    const auto found = names_.constFind(key(className, name));
    return found == names_.constEnd() ? nullptr : &states_[*found];
}

void Objects::setName(const ObjectState& record, const QString& name)
{
    names_.insert(key(record.className(), name), record.number());
}

void Objects::noteUse(std::uint32_t user, std::uint32_t used) const
{
    if (uses_.insert(std::uint64_t{user} << 32 | used).second)
        users_[used].push_back(user);
}

const std::vector<std::uint32_t>& Objects::usersOf(std::uint32_t number) const
{
    static const std::vector<std::uint32_t> none;
    const auto found = users_.find(number);
    return found == users_.end() ? none : found->second;
}

void Objects::release()
{
    for (const std::uint32_t number : loaded_)
        states_[number].release();
    loaded_.clear();
}

} // namespace inkmacro::view
