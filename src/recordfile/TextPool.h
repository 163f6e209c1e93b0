#pragma once

#include "recordfile/recordedActions.h"

#include <array>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

namespace inkmacro::recordfile {

/// What the records of a recording have in common, each once. Looked up by the bytes of the file, so that a text is
/// made for its first occurrence only.
class TextPool
{
public:
    /// Lasts as long as the pool; a copy shares the characters.
    const CFxString* text(std::string_view utf8);
    OdRxClass* classOf(std::string_view utf8);
    /// Both texts are of this pool.
    const PropertyLabel& label(const CFxString* tag, const CFxString* group);

private:
    struct BytesHash
    {
        using is_transparent = void;
        std::size_t operator()(std::string_view bytes) const { return std::hash<std::string_view>()(bytes); }
    };
    template<class T>
    using ByBytes = std::unordered_map<std::string, T, BytesHash, std::equal_to<>>;
    using TextPair = std::pair<const CFxString*, const CFxString*>;
    struct PairHash
    {
        std::size_t operator()(const TextPair& pair) const;
    };
    /// What was looked up last, by a few bits of the key: the records of one object have the tags of the one before.
    /// Without it, reading 20,000 added lines takes 5 % more instructions.
    template<class Entry>
    using Recent = std::array<const Entry*, 256>;

    /// Longer ones are made anew each time: as keys they would take half as much again, and hardly any occurs twice.
    static constexpr std::size_t longestShared = 64 * 1024;

    ByBytes<CFxString> texts_;
    Recent<ByBytes<CFxString>::value_type> recentTexts_{};
    std::deque<CFxString> longTexts_;
    ByBytes<OdRxClass*> classes_;
    using Labels = std::unordered_map<TextPair, PropertyLabel, PairHash>;
    Labels labels_;
    Recent<Labels::value_type> recentLabels_{};
};

} // namespace inkmacro::recordfile
