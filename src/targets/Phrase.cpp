#include "targets/Phrase.h"

#include <memory>

namespace inkmacro {

namespace {

// Made by the first phrase, whose constructor ends later: so it outlives every phrase.
std::vector<const Phrase*>& registry()
{
    static std::vector<const Phrase*> phrases;
    return phrases;
}

} // namespace

const char* Words::in(Target target) const
{
    return std::array{cpp, csharp, javascript, vbNet, cppCom, vba}[static_cast<std::size_t>(target)];
}

Phrase::Phrase(const char* name, const Words& words)
    : name_(name), literals_{words.cpp, words.csharp, words.javascript, words.vbNet, words.cppCom, words.vba}
{
    registry().push_back(this);
}

Phrase::~Phrase()
{
    std::erase(registry(), this);
    for (const auto& cut : templates_) {
        delete cut.load(std::memory_order_acquire);
    }
}

const Template* Phrase::in(Target target) const
{
    const auto index = static_cast<std::size_t>(target);
    if (!literals_[index]) {
        return nullptr;
    }
    auto& slot = templates_[index];
    const Template* kept = slot.load(std::memory_order_acquire);
    if (!kept) {
        auto cut = std::make_unique<const Template>(literals_[index], target);
        if (slot.compare_exchange_strong(kept, cut.get(), std::memory_order_acq_rel, std::memory_order_acquire)) {
            kept = cut.release();
        }
    }
    return kept;
}

const std::vector<const Phrase*>& Phrase::all()
{
    return registry();
}

} // namespace inkmacro
