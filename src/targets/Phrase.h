#pragma once

#include "targets/Fill.h"
#include "targets/Target.h"

#include <array>
#include <atomic>
#include <vector>

namespace inkmacro {

/// The literals of one statement, Latin-1, one a target. A null literal is a hole: the target has no such statement,
/// and filling it yields empty text.
struct Words
{
    const char* cpp = nullptr;
    const char* cppCom = nullptr;
    const char* csharp = nullptr;
    const char* javascript = nullptr;
    const char* vbNet = nullptr;
    const char* vba = nullptr;

    const char* in(Target target) const;
};

class Mend;

/// One statement in all targets, safe to use from several threads. Phrases have static storage duration; each lists
/// itself in all(), so that the holes can be enumerated.
class Phrase
{
public:
    /// `name` is the operation that fills the phrase, such as "EmitInsertLine", or what several have in common; it and
    /// the literals are not copied.
    Phrase(const char* name, const Words& words);
    ~Phrase();
    Phrase(const Phrase&) = delete;
    Phrase& operator=(const Phrase&) = delete;

    const char* name() const { return name_; }
    bool has(Target target) const { return literals_[static_cast<std::size_t>(target)] != nullptr; }
    /// Null for a hole. A template is cut on its first use, since a run needs few of them, and then kept.
    const Template* in(Target target) const;

    /// Whether anything in this process has asked for the target's template: so the literals that no recording reaches
    /// can be enumerated.
    bool used(Target target) const
    {
        return templates_[static_cast<std::size_t>(target)].load(std::memory_order_relaxed) != nullptr;
    }

    /// What is known to be wrong with the target's literal; null when nothing is.
    const Mend* mend(Target target) const { return mends_[static_cast<std::size_t>(target)]; }

    static const std::vector<const Phrase*>& all();

private:
    friend class Mend;

    const char* name_;
    std::array<const char*, targetCount> literals_;
    mutable std::array<std::atomic<const Template*>, targetCount> templates_{};
    mutable std::array<const Mend*, targetCount> mends_{}; ///< set while the program starts
};

} // namespace inkmacro
