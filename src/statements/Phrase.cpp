#include "statements/Phrase.h"

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
    return std::array{cpp, csharp, javascript, vbNet, cppCom, vba, python}[static_cast<std::size_t>(target)];
}

const Template* LazyTemplate::cut() const
{
    const QByteArray reworded = reword_ ? reword_(literal_) : QByteArray();
    auto made = std::make_unique<const Template>(reword_ ? reworded.constData() : literal_,
                                                 target_ == Target::Python ? Template::Markers::Counted
                                                                           : Template::Markers::Ranked);
    const Template* kept = nullptr;
    if (kept_.compare_exchange_strong(kept, made.get(), std::memory_order_acq_rel, std::memory_order_acquire)) {
        kept = made.release();
    }
    return kept;
}

Phrase::Phrase(const char* name, const Words& words)
    : name_(name),
      templates_{{
          {words.cpp, Target::Cpp},
          {words.csharp, Target::CSharp},
          {words.javascript, Target::JavaScript},
          {words.vbNet, Target::VbNet},
          {words.cppCom, Target::CppCom},
          {words.vba, Target::Vba},
          {words.python, Target::Python},
      }}
{
    registry().push_back(this);
}

Phrase::~Phrase()
{
    std::erase(registry(), this);
}

const std::vector<const Phrase*>& Phrase::all()
{
    return registry();
}

} // namespace inkmacro
