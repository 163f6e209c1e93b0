#include "dxf/Pairing.h"

namespace inkmacro::dxf {

namespace {

/// Of entities with the same hash so many are looked at for each. More than that have it only where they differ by less
/// than a hash can tell.
constexpr std::size_t kMostCandidates = 16;

/// Where the group stands in the structure of its file, and not what it is about.
bool isOfFile(int code)
{
    constexpr int handle = 5;
    constexpr int subclass = 100;
    return code == handle || code == subclass || (code >= 320 && code < 370) || (code >= 390 && code < 400) ||
           code == 480 || code == 481;
}

/// Within entities that no recording has.
bool isSameValue(const Group& left, const Group& right)
{
    if (left.code != right.code)
        return false;
    const std::optional<double> one = left.real();
    const std::optional<double> other = right.real();
    return one && other ? isSame(*one, *other) : left.word() == right.word();
}

} // namespace

const char* Pairing::read(Contents& contents, const Item& item, OdDbHandle handle, DrawnObject& object)
{
    MadeHandles& made = contents.around().madeHandles;
    const std::size_t place = made.place();
    made.beginAgain();
    const char* lost = nullptr;
    try {
        contents.readEntity(*item.entity, item.parts, handle, object);
    } catch (const Lost& why) {
        lost = why.reason;
    }
    made.goTo(place);
    return lost;
}

bool Pairing::isSameRaw(const Entity& before, const Entity& after)
{
    if (before.kind != after.kind)
        return false;
    beforeGroups_.read(before);
    afterGroups_.read(after);
    const auto skip = [](const std::vector<Group>& groups, std::size_t index) {
        while (index < groups.size() && isOfFile(groups[index].code))
            ++index;
        return index;
    };
    const std::vector<Group>& one = beforeGroups_.groups();
    const std::vector<Group>& other = afterGroups_.groups();
    std::size_t left = skip(one, 0);
    std::size_t right = skip(other, 0);
    while (left < one.size() && right < other.size()) {
        if (!isSameValue(one[left], other[right]))
            return false;
        left = skip(one, left + 1);
        right = skip(other, right + 1);
    }
    return left == one.size() && right == other.size();
}

bool Pairing::isSameRaw(const Item& before, const Item& after)
{
    return isSameRaw(*before.entity, *after.entity) &&
           std::equal(before.parts.begin(), before.parts.end(), after.parts.begin(), after.parts.end(),
                      [&](const Entity& one, const Entity& other) { return isSameRaw(one, other); });
}

Difference Pairing::difference(const Item& before, const Item& after)
{
    const OdDbHandle handle(before.entity->handle);
    const char* const lostBefore = read(before_, before, handle, was_);
    const char* const lostAfter = read(after_, after, handle, is_);
    if (!lostBefore && !lostAfter)
        return comparison_.difference(was_, is_);
    Difference difference;
    if (!lostBefore || !lostAfter)
        difference.isOther = true;
    else if (!isSameRaw(before, after))
        difference.lost = lostAfter;
    return difference;
}

std::uint64_t Pairing::rawHash(Contents& contents, const Item& item)
{
    EntityReader& reader = &contents == &before_ ? beforeGroups_ : afterGroups_;
    reader.read(*item.entity);
    std::uint64_t hash = std::hash<std::string_view>()(item.entity->kind);
    for (const Group& group : reader.groups())
        if (!isOfFile(group.code))
            hash = 3 * hash + static_cast<std::uint64_t>(group.code);
    return hash;
}

std::uint64_t Pairing::hash(Contents& contents, const Item& item)
{
    return read(contents, item, {}, is_) ? rawHash(contents, item) : comparison_.hash(is_, contents);
}

Pairing::Matches Pairing::match(Side& before, const Indexes& ofBefore, Side& after, const Indexes& ofAfter)
{
    Matches matches;
    if (ofBefore.empty() || ofAfter.empty())
        return matches;
    const auto hashOf = [&](Contents& contents, Side& side, std::uint32_t index) {
        std::uint64_t& known = side.hashes[index];
        if (known == 0)
            known = hash(contents, side.items[index]);
        return known;
    };
    // The last of each list comes first.
    std::unordered_map<std::uint64_t, Indexes> candidates;
    for (auto index = ofBefore.rbegin(); index != ofBefore.rend(); ++index)
        candidates[hashOf(before_, before, *index)].push_back(*index);
    for (const std::uint32_t index : ofAfter) {
        const auto found = candidates.find(hashOf(after_, after, index));
        if (found == candidates.end())
            continue;
        Indexes& list = found->second;
        for (std::size_t tried = 0; tried < std::min(list.size(), kMostCandidates); ++tried) {
            const auto candidate = list.end() - 1 - static_cast<std::ptrdiff_t>(tried);
            if (!difference(before.items[*candidate], after.items[index]).isNone())
                continue;
            matches.emplace_back(*candidate, index);
            list.erase(candidate);
            break;
        }
    }
    return matches;
}

Paired Pairing::pair(std::vector<Item> before, std::vector<Item> after)
{
    Side was{std::move(before), {}, {}};
    Side is{std::move(after), {}, {}};
    was.hashes.resize(was.items.size());
    is.hashes.resize(is.items.size());
    Paired paired;
    std::unordered_map<quint64, std::uint32_t> byHandle;
    byHandle.reserve(was.items.size());
    for (std::uint32_t index = 0; index < was.items.size(); ++index)
        if (was.items[index].entity->hadHandle)
            byHandle.emplace(was.items[index].entity->handle, index);

    struct Differing
    {
        std::uint32_t before;
        std::uint32_t after;
        Difference difference;
    };
    std::vector<Differing> differing;
    std::vector<bool> isPaired(was.items.size());
    for (std::uint32_t index = 0; index < is.items.size(); ++index) {
        const Entity& entity = *is.items[index].entity;
        const auto found = entity.hadHandle ? byHandle.find(entity.handle) : byHandle.end();
        if (found == byHandle.end()) {
            is.left.push_back(index);
            continue;
        }
        isPaired[found->second] = true;
        Difference difference = this->difference(was.items[found->second], is.items[index]);
        if (difference.isNone())
            paired.pairs.push_back({was.items[found->second], is.items[index], std::move(difference)});
        else
            differing.push_back({found->second, index, std::move(difference)});
    }
    for (std::uint32_t index = 0; index < was.items.size(); ++index)
        if (!isPaired[index])
            was.left.push_back(index);

    Matches matches = match(was, was.left, is, is.left);
    std::vector<bool> isMatchedBefore(was.items.size());
    std::vector<bool> isMatchedAfter(is.items.size());
    if (!differing.empty()) {
        Indexes ofBefore = was.left;
        Indexes ofAfter = is.left;
        for (const Differing& each : differing) {
            ofBefore.push_back(each.before);
            ofAfter.push_back(each.after);
        }
        std::sort(ofBefore.begin(), ofBefore.end());
        std::sort(ofAfter.begin(), ofAfter.end());
        Matches others = match(was, ofBefore, is, ofAfter);
        std::vector<bool> isBefore(was.items.size());
        std::vector<bool> isAfter(is.items.size());
        for (const auto& [one, other] : others)
            isBefore[one] = isAfter[other] = true;
        const auto both =
            static_cast<std::size_t>(std::count_if(differing.begin(), differing.end(), [&](const Differing& each) {
                return !isBefore[each.before] && !isAfter[each.after];
            }));
        const std::size_t byHandles = differing.size() + was.left.size() + is.left.size() - 2 * matches.size();
        const std::size_t byLooks = ofBefore.size() + ofAfter.size() - 2 * others.size() - both;
        // Handles of their own files, which only happen to be the same.
        if (2 * byLooks < byHandles) {
            matches = std::move(others);
            isMatchedBefore = std::move(isBefore);
            isMatchedAfter = std::move(isAfter);
        }
    }
    for (const auto& [one, other] : matches) {
        isMatchedBefore[one] = isMatchedAfter[other] = true;
        paired.pairs.push_back({was.items[one], is.items[other], difference(was.items[one], is.items[other])});
    }
    for (Differing& each : differing) {
        if (isMatchedBefore[each.before] || isMatchedAfter[each.after] || each.difference.isOther) {
            was.left.push_back(each.before);
            is.left.push_back(each.after);
        } else {
            paired.pairs.push_back({was.items[each.before], is.items[each.after], std::move(each.difference)});
        }
    }
    std::sort(was.left.begin(), was.left.end());
    std::sort(is.left.begin(), is.left.end());
    for (const std::uint32_t index : was.left)
        if (!isMatchedBefore[index])
            paired.gone.push_back(was.items[index]);
    for (const std::uint32_t index : is.left)
        if (!isMatchedAfter[index])
            paired.come.push_back(is.items[index]);
    return paired;
}

} // namespace inkmacro::dxf
