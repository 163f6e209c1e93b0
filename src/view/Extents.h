#pragma once

#include "view/Picture.h"

namespace inkmacro::view {

/// The boxes around what a picture holds; those of spaces are reckoned once.
class Extents
{
public:
    /// The picture has to outlive this.
    explicit Extents(const Picture& picture);

    /// None for what has no ends, and for a reference to nothing.
    std::optional<Box> boxOf(const Primitive& primitive);
    /// Around a space behind the last step.
    const std::optional<Box>& of(std::uint16_t space);

private:
    enum class State : std::uint8_t
    {
        Unknown,
        Begun,
        Known
    };
    struct Entry
    {
        State state = State::Unknown;
        std::optional<Box> box;
    };

    void sort();

    const Picture& picture_;
    std::vector<std::vector<std::uint32_t>> contents_; ///< numbers of the primitives of each space
    std::vector<Entry> entries_;
};

} // namespace inkmacro::view
