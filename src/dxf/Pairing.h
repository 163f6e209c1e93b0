#pragma once

#include "dxf/Facts.h"

namespace inkmacro::dxf {

/// An entity with its parts.
struct Item
{
    const Entity* entity;
    std::span<const Entity> parts;
};

/// The same entity in two drawings.
struct Pair
{
    Item before;
    Item after;
    Difference difference;
};

/// The entities of one place in two drawings.
struct Paired
{
    std::vector<Pair> pairs;
    std::vector<Item> gone; ///< only the older one has them
    std::vector<Item> come; ///< only the newer one has them
};

/// Finds the entities that two drawings have in common: by their handles, and what is left by what they draw. Where
/// handles have nothing to do with each other, what is drawn goes before.
class Pairing
{
public:
    /// All have to outlive this.
    Pairing(Comparison& comparison, Contents& before, Contents& after)
        : comparison_(comparison),
          before_(before),
          after_(after),
          beforeGroups_(before.drawing()),
          afterGroups_(after.drawing())
    {
    }

    /// The newer entity is read as if it had the handle of the older one.
    Difference difference(const Item& before, const Item& after);
    Paired pair(std::vector<Item> before, std::vector<Item> after);

private:
    using Indexes = std::vector<std::uint32_t>;
    using Matches = std::vector<std::pair<std::uint32_t, std::uint32_t>>;

    struct Side
    {
        explicit Side(std::vector<Item> all) : items(std::move(all)), hashes(items.size()) {}

        std::vector<Item> items;
        std::vector<std::uint64_t> hashes; ///< of the items; 0 for one that is not known yet
        Indexes left = {};                 ///< the items that no other has the handle of
    };
    /// With the same handle.
    struct Differing
    {
        std::uint32_t before;
        std::uint32_t after;
        Difference difference;
    };
    struct Matched
    {
        Matched(const Matches& matches, const Side& all, const Side& allAfter)
            : before(all.items.size()), after(allAfter.items.size())
        {
            for (const auto& [one, other] : matches)
                before[one] = after[other] = true;
        }

        std::vector<bool> before;
        std::vector<bool> after;
    };

    /// Gives why it is lost, else null, and leaves the numbers of made-up objects as they are.
    const char* read(Contents& contents, const Item& item, OdDbHandle handle, DrawnObject& object);
    std::uint64_t hash(Contents& contents, const Item& item);
    std::uint64_t rawHash(Contents& contents, const Item& item);
    bool isSameRaw(const Entity& before, const Entity& after);
    bool isSameRaw(const Item& before, const Item& after);
    bool isSameData(const Entity& before, const Entity& after);
    /// Pairs those that are the same too, and gives the others.
    std::vector<Differing> pairByHandle(Side& before, Side& after, std::vector<Pair>& pairs);
    /// Of what is left, or of all that is not the same by now.
    Matches matchRest(Side& before, Side& after, const std::vector<Differing>& differing);
    Matches match(Side& before, const Indexes& ofBefore, Side& after, const Indexes& ofAfter);

    Comparison& comparison_;
    Contents& before_;
    Contents& after_;
    EntityReader beforeGroups_;
    EntityReader afterGroups_;
    DrawnObject was_;
    DrawnObject is_;
};

} // namespace inkmacro::dxf
