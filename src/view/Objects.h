#pragma once

#include "view/ObjectState.h"
#include "view/Spaces.h"

#include <deque>
#include <unordered_map>
#include <unordered_set>

namespace inkmacro::view {

/// The objects of a recording, by their numbers and handles.
class Objects
{
public:
    /// What is given has to outlive this.
    Objects(OdDbDatabase& database, const Spaces& spaces, CFxValueContext context)
        : database_(database), spaces_(spaces), context_(context)
    {
    }
    Objects(const Objects&) = delete;
    Objects& operator=(const Objects&) = delete;

    /// Null for a handle that nobody has spoken of.
    ObjectState* find(const OdDbHandle& handle);
    /// Makes it when it is new; of one that is there the class counts.
    ObjectState& at(const OdDbHandle& handle, const OdRxClass& cls);
    /// One without a handle, whose properties are those of the other.
    ObjectState& copy(const ObjectState& original);
    ObjectState& operator[](std::uint32_t number) { return states_[number]; }
    std::uint32_t count() const { return static_cast<std::uint32_t>(states_.size()); }
    void reserve(std::size_t count) { numbers_.reserve(count); }

    /// A record by its name now; null for none.
    const ObjectState* named(const QString& className, const QString& name) const;
    /// It has that name from here on.
    void setName(const ObjectState& record, const QString& name);

    /// Somebody has asked for the other while it was drawn.
    void noteUse(std::uint32_t user, std::uint32_t used) const;
    /// Who has asked for it.
    const std::vector<std::uint32_t>& usersOf(std::uint32_t number) const;

    const Spaces& spaces() const { return spaces_; }
    CFxValueContext context() const { return context_; }
    /// Room for properties, which goes from one object to the next.
    Properties& spare() const { return spare_; }
    void noteLoaded(const ObjectState& state) const { loaded_.push_back(state.number()); }
    /// Lets go what was read since.
    void release();

private:
    static QString key(const QString& className, const QString& name) { return className + '\n' + name.toLower(); }

    OdDbDatabase& database_;
    const Spaces& spaces_;
    CFxValueContext context_;
    std::deque<ObjectState> states_;
    std::unordered_map<OdDbHandle, std::uint32_t, OdDbHandleHash> numbers_;
    QHash<QString, std::uint32_t> names_;
    mutable std::unordered_map<std::uint32_t, std::vector<std::uint32_t>> users_;
    mutable std::unordered_set<std::uint64_t> uses_; ///< who asks whom, so that each pair is noted once
    mutable std::vector<std::uint32_t> loaded_;
    mutable Properties spare_;
};

} // namespace inkmacro::view
