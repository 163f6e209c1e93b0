#pragma once

#include "host/kernel/CFxActions.h"

#include <cstdint>
#include <optional>
#include <set>

/// Actions that stand side by side, by what they are. They are looked at when the first is asked for.
class Siblings
{
public:
    explicit Siblings(const CFxActionArray& actions) : actions_(actions) {}
    /// Whether a custom action of that kind is among them.
    bool has(std::int32_t kind) const;
    /// Whether a block definition is added or changed.
    bool hasBlock() const;

private:
    void look() const;

    const CFxActionArray& actions_;
    mutable std::optional<std::set<std::int32_t>> kinds_;
    mutable bool hasBlock_ = false;
};
