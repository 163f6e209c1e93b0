#pragma once

#include "recordfile/Recording.h"
#include "recordfile/actionForms.h"

namespace inkmacro::recordfile {

/// The kinds of line, in the order of their keys. The kinds of action come behind the others.
enum LineKind : std::size_t
{
    kHeaderLine,
    kDrawingLine,
    kObjectLine,
    kActionLines,
};

inline constexpr std::string_view kOtherLineKeys[] = {"recording", "drawing", "object"};
static_assert(std::size(kOtherLineKeys) == kActionLines);

inline std::vector<std::string_view> lineKeys()
{
    std::vector<std::string_view> keys(std::begin(kOtherLineKeys), std::end(kOtherLineKeys));
    for (const Choice<OdRxObjectPtr>& choice : actionChoices())
        keys.push_back(choice.key);
    return keys;
}

// The header and the drawing's settings.

template<>
struct Form<Recording::Header> : ObjectForm<Form<Recording::Header>, Recording::Header>
{
    static constexpr const char* name = "recording";
    static const std::span<const Key<Recording::Header>> keys;
};

template<>
struct Form<Recording::Drawing> : ObjectForm<Form<Recording::Drawing>, Recording::Drawing>
{
    static constexpr const char* name = "drawing";
    static const std::span<const Key<Recording::Drawing>> keys;
};

} // namespace inkmacro::recordfile
