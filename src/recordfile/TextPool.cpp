#include "recordfile/TextPool.h"

#include "host/db/OdDbClassMap.h"
#include "recordfile/Json.h"

namespace inkmacro::recordfile {

const CFxString* TextPool::text(std::string_view utf8)
{
    if (utf8.size() > longestShared)
        return &longTexts_.emplace_back(toText(utf8));
    auto found = texts_.find(utf8);
    if (found == texts_.end())
        found = texts_.emplace(utf8, toText(utf8)).first;
    return &found->second;
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
    auto found = labels_.find(texts);
    if (found == labels_.end())
        found = labels_.try_emplace(texts, *tag, *group).first;
    return found->second;
}

std::size_t TextPool::PairHash::operator()(const TextPair& pair) const
{
    // Addresses differ in their middle bits; the factor spreads them.
    const auto tag = reinterpret_cast<std::size_t>(pair.first);
    const auto group = reinterpret_cast<std::size_t>(pair.second);
    return (tag ^ (group << 1)) * 0x9E3779B97F4A7C15U >> 16;
}

} // namespace inkmacro::recordfile
