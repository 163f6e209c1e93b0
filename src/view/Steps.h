#pragma once

#include "host/kernel/CFxActions.h"
#include "host/kernel/CFxConversionNotes.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace inkmacro::view {

/// All actions of a recording in one row, numbered from 0: a command stands in front of what it holds. The actions
/// outlive the row.
class Steps
{
public:
    enum class Kind : std::uint8_t
    {
        Command,
        Added,
        Modified,
        Property,
        Variable,
        Interaction,
        Selection,
        Custom,
        Nothing
    };

    struct Step
    {
        const OdRxObject* action; ///< null for an empty place
        Kind kind;
        std::int32_t parent; ///< -1 at the top
        std::uint32_t child; ///< number among the actions of its parent, or of the recording
    };

    explicit Steps(const CFxActionArray& actions);

    std::size_t size() const { return steps_.size(); }
    const Step& operator[](std::size_t number) const { return steps_[number]; }
    std::vector<Step>::const_iterator begin() const { return steps_.begin(); }
    std::vector<Step>::const_iterator end() const { return steps_.end(); }

    /// The number of the step at a place; none for no place, or for one that is not there.
    std::optional<std::uint32_t> at(const CFxActionPlace& place) const;

private:
    void add(const CFxActionArray& actions, std::int32_t parent);

    std::vector<Step> steps_;
    /// Of each step, and in front of them of the recording, where the numbers of its children begin in `children_`.
    std::vector<std::size_t> firstChild_;
    std::vector<std::uint32_t> children_;
};

} // namespace inkmacro::view
