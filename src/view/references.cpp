#include "view/references.h"

#include <algorithm>

namespace inkmacro::view {

namespace {

/// References stand in one another up to here.
constexpr int kDeepest = 16;
/// More primitives are not drawn of a block, with all that it holds.
constexpr double kMost = 2e6;

class Nesting
{
public:
    explicit Nesting(Picture& picture) : picture_(picture), references_(picture.spaces.size())
    {
        for (std::size_t i = 0; i < picture.primitives.size(); ++i)
            if (picture.primitives[i].shape == Shape::Reference)
                references_[picture.primitives[i].space].push_back(i);
        isCut_.resize(picture.primitives.size());
    }

    void cut()
    {
        const std::vector<std::uint16_t> order = sortedFromTop();
        cutCycles(order);
        cutDeep(order);
        cutBig(order);
        std::size_t number = 0;
        const auto last = std::remove_if(picture_.primitives.begin(), picture_.primitives.end(),
                                         [&](const Primitive&) { return isCut_[number++]; });
        picture_.primitives.erase(last, picture_.primitives.end());
    }

private:
    std::uint16_t targetOf(std::size_t primitive) const
    {
        return static_cast<std::uint16_t>(picture_.numbers[picture_.primitives[primitive].first + 6]);
    }

    void cut(std::size_t primitive, const char* reason)
    {
        isCut_[primitive] = true;
        picture_.addRemark(picture_.primitives[primitive].object, reason);
    }

    /// Spaces behind all those that refer to them, without those that lie on a cycle or behind one.
    std::vector<std::uint16_t> sortedFromTop() const
    {
        std::vector<std::size_t> users(references_.size());
        for (const std::vector<std::size_t>& references : references_)
            for (const std::size_t reference : references)
                ++users[targetOf(reference)];
        std::vector<std::uint16_t> order;
        for (std::size_t space = 0; space < users.size(); ++space)
            if (users[space] == 0)
                order.push_back(static_cast<std::uint16_t>(space));
        for (std::size_t at = 0; at < order.size(); ++at)
            for (const std::size_t reference : references_[order[at]])
                if (--users[targetOf(reference)] == 0)
                    order.push_back(targetOf(reference));
        return order;
    }

    void cutCycles(const std::vector<std::uint16_t>& order)
    {
        if (order.size() == references_.size())
            return;
        std::vector<bool> isSorted(references_.size());
        for (const std::uint16_t space : order)
            isSorted[space] = true;
        for (std::size_t space = 0; space < references_.size(); ++space)
            if (!isSorted[space])
                for (const std::size_t reference : references_[space])
                    cut(reference, "the block holds itself");
    }

    void cutDeep(const std::vector<std::uint16_t>& order)
    {
        std::vector<int> depths(references_.size());
        for (const std::uint16_t space : order)
            for (const std::size_t reference : references_[space]) {
                int& depth = depths[targetOf(reference)];
                if (depths[space] >= kDeepest)
                    cut(reference, "blocks stand in one another more than 16 deep");
                else
                    depth = std::max(depth, depths[space] + 1);
            }
    }

    void cutBig(const std::vector<std::uint16_t>& order)
    {
        std::vector<double> sizes(references_.size());
        for (const Primitive& primitive : picture_.primitives)
            sizes[primitive.space] += primitive.shape == Shape::Reference ? 0.0 : 1.0;
        for (auto space = order.rbegin(); space != order.rend(); ++space)
            for (const std::size_t reference : references_[*space]) {
                if (isCut_[reference])
                    continue;
                const double size = sizes[targetOf(reference)] + 1.0;
                if (sizes[*space] + size > kMost)
                    cut(reference, "the blocks within hold too much");
                else
                    sizes[*space] += size;
            }
    }

    Picture& picture_;
    std::vector<std::vector<std::size_t>> references_; ///< by the spaces that they stand in
    std::vector<bool> isCut_;
};

} // namespace

void cutReferences(Picture& picture)
{
    Nesting(picture).cut();
}

} // namespace inkmacro::view
