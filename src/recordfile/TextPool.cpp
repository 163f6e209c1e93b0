#include "recordfile/TextPool.h"

#include "host/db/OdDbClassMap.h"
#include "recordfile/Json.h"

namespace inkmacro::recordfile {

namespace {

/// Tags differ in their lengths and in some of these letters.
std::size_t bitsOf(std::string_view utf8)
{
    const auto letter = [&](std::size_t at) { return static_cast<unsigned char>(utf8[at]); };
    const std::size_t size = utf8.size();
    return size == 0 ? 0 : size * 5 ^ letter(0) * 3 ^ letter(size * 2 / 3) * 11 ^ letter(size - 1) * 7;
}

} // namespace

const CFxString* TextPool::text(std::string_view utf8)
{
    if (utf8.size() > longestShared)
        return &longTexts_.emplace_back(toText(utf8));
    auto& recent = recentTexts_[bitsOf(utf8) % recentTexts_.size()];
    if (!recent || recent->first != utf8) {
        auto found = texts_.find(utf8);
        if (found == texts_.end())
            found = texts_.emplace(utf8, toText(utf8)).first;
        recent = &*found;
    }
    return &recent->second;
}

OdRxClass* TextPool::classOf(std::string_view utf8)
{
    if (utf8.size() > longestShared)
        return oddbClassByName(toText(utf8));
    auto found = classes_.find(utf8);
    if (found == classes_.end())
        found = classes_.emplace(utf8, oddbClassByName(toText(utf8))).first;
    return found->second;
}

const PropertyLabel& TextPool::label(const CFxString* tag, const CFxString* group)
{
    const TextPair texts(tag, group);
    auto& recent = recentLabels_[PairHash()(texts) % recentLabels_.size()];
    if (!recent || recent->first != texts) {
        auto found = labels_.find(texts);
        if (found == labels_.end())
            found = labels_.try_emplace(texts, *tag, *group).first;
        recent = &*found;
    }
    return recent->second;
}

std::size_t TextPool::PairHash::operator()(const TextPair& pair) const
{
    // Addresses differ in their middle bits; the factor spreads them.
    const auto tag = reinterpret_cast<std::size_t>(pair.first);
    const auto group = reinterpret_cast<std::size_t>(pair.second);
    return (tag ^ (group << 1)) * 0x9E3779B97F4A7C15U >> 16;
}

} // namespace inkmacro::recordfile
