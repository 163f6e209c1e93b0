#include "dxf/Pairing.h"

#include "dxf/sameness.h"

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
    constexpr int brace = 102;
    constexpr int handleInData = 1005;
    return code == handle || code == subclass || code == brace || code == handleInData || (code >= 320 && code < 370) ||
           (code >= 390 && code < 400) || code == 480 || code == 481;
}

bool isSameValue(const Group& left, const Group& right)
{
    if (left.code != right.code)
        return false;
    const std::optional<double> one = left.real();
    const std::optional<double> other = right.real();
    return one && other ? isSame(*one, *other) : left.word() == right.word();
}

/// As the file has them, where no recording says what they mean.
bool areSame(const std::vector<Group>& left, const std::vector<Group>& right)
{
    const auto skip = [](const std::vector<Group>& groups, std::size_t index) {
        while (index < groups.size() && isOfFile(groups[index].code))
            ++index;
        return index;
    };
    std::size_t one = skip(left, 0);
    std::size_t other = skip(right, 0);
    while (one < left.size() && other < right.size() && isSameValue(left[one], right[other])) {
        one = skip(left, one + 1);
        other = skip(right, other + 1);
    }
    return one == left.size() && other == right.size();
}

bool hasOtherData(const DrawnObject& object)
{
    return std::find(object.untold.begin(), object.untold.end(), kOtherData) != object.untold.end();
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
    return areSame(beforeGroups_.groups(), afterGroups_.groups());
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
    Difference difference;
    if (!lostBefore && !lostAfter) {
        difference = comparison_.difference(was_, is_);
        if (hasOtherData(was_) && hasOtherData(is_) && !isSameData(*before.entity, *after.entity))
            difference.untold.push_back(kOtherData);
        return difference;
    }
    if (!lostBefore || !lostAfter)
        difference.isOther = true;
    else if (!isSameRaw(before, after))
        difference.lost = lostAfter;
    return difference;
}

bool Pairing::isSameData(const Entity& before, const Entity& after)
{
    beforeGroups_.read(before);
    afterGroups_.read(after);
    return areSame(beforeGroups_.extendedData(), afterGroups_.extendedData());
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

std::vector<Pairing::Differing> Pairing::pairByHandle(Side& before, Side& after, std::vector<Pair>& pairs)
{
    std::unordered_map<quint64, std::uint32_t> byHandle;
    byHandle.reserve(before.items.size());
    for (std::uint32_t index = 0; index < before.items.size(); ++index)
        if (before.items[index].entity->hadHandle)
            byHandle.emplace(before.items[index].entity->handle, index);
    std::vector<Differing> differing;
    std::vector<bool> isPaired(before.items.size());
    for (std::uint32_t index = 0; index < after.items.size(); ++index) {
        const Item& item = after.items[index];
        const auto found = item.entity->hadHandle ? byHandle.find(item.entity->handle) : byHandle.end();
        if (found == byHandle.end()) {
            after.left.push_back(index);
            continue;
        }
        isPaired[found->second] = true;
        const Item& same = before.items[found->second];
        Difference difference = this->difference(same, item);
        if (difference.isNone())
            pairs.push_back({same, item, std::move(difference)});
        else
            differing.push_back({found->second, index, std::move(difference)});
    }
    for (std::uint32_t index = 0; index < before.items.size(); ++index)
        if (!isPaired[index])
            before.left.push_back(index);
    return differing;
}

Pairing::Matches Pairing::matchRest(Side& before, Side& after, const std::vector<Differing>& differing)
{
    Matches matches = match(before, before.left, after, after.left);
    if (differing.empty())
        return matches;
    Indexes ofBefore = before.left;
    Indexes ofAfter = after.left;
    for (const Differing& each : differing) {
        ofBefore.push_back(each.before);
        ofAfter.push_back(each.after);
    }
    std::sort(ofBefore.begin(), ofBefore.end());
    std::sort(ofAfter.begin(), ofAfter.end());
    Matches byLooks = match(before, ofBefore, after, ofAfter);
    const Matched matched(byLooks, before, after);
    const auto stillPaired =
        static_cast<std::size_t>(std::count_if(differing.begin(), differing.end(), [&](const Differing& each) {
            return !matched.before[each.before] && !matched.after[each.after];
        }));
    const std::size_t changes = differing.size() + before.left.size() + after.left.size() - 2 * matches.size();
    const std::size_t changesByLooks = ofBefore.size() + ofAfter.size() - 2 * byLooks.size() - stillPaired;
    // With half the changes, handles of two files only happen to be the same.
    return 2 * changesByLooks < changes ? byLooks : matches;
}

Paired Pairing::pair(std::vector<Item> before, std::vector<Item> after)
{
    Side was(std::move(before));
    Side is(std::move(after));
    Paired paired;
    std::vector<Differing> differing = pairByHandle(was, is, paired.pairs);
    const Matches matches = matchRest(was, is, differing);
    const Matched matched(matches, was, is);
    for (const auto& [one, other] : matches)
        paired.pairs.push_back({was.items[one], is.items[other], difference(was.items[one], is.items[other])});
    for (Differing& each : differing) {
        if (matched.before[each.before] || matched.after[each.after] || each.difference.isOther) {
            was.left.push_back(each.before);
            is.left.push_back(each.after);
        } else {
            paired.pairs.push_back({was.items[each.before], is.items[each.after], std::move(each.difference)});
        }
    }
    std::sort(was.left.begin(), was.left.end());
    std::sort(is.left.begin(), is.left.end());
    for (const std::uint32_t index : was.left)
        if (!matched.before[index])
            paired.gone.push_back(was.items[index]);
    for (const std::uint32_t index : is.left)
        if (!matched.after[index])
            paired.come.push_back(is.items[index]);
    return paired;
}

} // namespace inkmacro::dxf
