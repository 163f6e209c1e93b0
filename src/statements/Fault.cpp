#include "statements/Fault.h"

namespace inkmacro {

namespace {

// Made by the first fault, whose constructor ends later: so it outlives every fault.
std::vector<const Fault*>& registry()
{
    static std::vector<const Fault*> faults;
    return faults;
}

} // namespace

Fault::Fault(const char* operation, std::initializer_list<Target> targets, const char* reason, bool mended)
    : operation_(operation), targets_(targets), reason_(reason), mended_(mended)
{
    registry().push_back(this);
}

Fault::~Fault()
{
    std::erase(registry(), this);
}

const std::vector<const Fault*>& Fault::all()
{
    return registry();
}

Mend::Mend(const Phrase& phrase, Target target, const char* reason, const char* words)
    : Fault(phrase.name(), {target}, reason), words_(words, target)
{
    phrase.mends_[static_cast<std::size_t>(target)] = this;
}

Mend::Mend(const Phrase& phrase, Target target, const char* reason, LazyTemplate::Reword& reword)
    : Fault(phrase.name(), {target}, reason), words_(phrase.of(target).literal(), target, &reword)
{
    phrase.mends_[static_cast<std::size_t>(target)] = this;
}

} // namespace inkmacro
