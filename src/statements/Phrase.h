#pragma once

#include "statements/Fill.h"
#include "statements/Target.h"

#include <QByteArray>

#include <array>
#include <atomic>
#include <vector>

namespace inkmacro {

/// The literals of one statement, Latin-1, one a target. A null literal is a hole: the target has no such statement,
/// and filling it yields empty text. Of the values of an operation each goes to the next marker, whatever its number;
/// in Python to that of its number, where those that other targets need have none.
struct Words
{
    const char* cpp = nullptr;
    const char* cppCom = nullptr;
    const char* csharp = nullptr;
    const char* javascript = nullptr;
    const char* vbNet = nullptr;
    const char* vba = nullptr;
    const char* python = nullptr;

    const char* in(Target target) const;
};

/// The template of a literal, which is not copied: cut on its first use, since a run needs few of those that there are,
/// and then kept. Safe to use from several threads.
class LazyTemplate
{
public:
    using Reword = QByteArray(QByteArray literal);

    /// Null is a hole. With `reword` the template is that of the words which it makes of the literal.
    LazyTemplate(const char* literal, Target target, Reword* reword = nullptr)
        : literal_(literal), target_(target), reword_(reword)
    {
    }
    ~LazyTemplate() { delete kept_.load(std::memory_order_acquire); }
    LazyTemplate(const LazyTemplate&) = delete;
    LazyTemplate& operator=(const LazyTemplate&) = delete;

    const char* literal() const { return literal_; }
    /// Null for a hole.
    const Template* get() const
    {
        const Template* const kept = kept_.load(std::memory_order_acquire);
        return kept || !literal_ ? kept : cut();
    }
    /// Whether anything in this process has asked for the template.
    bool used() const { return kept_.load(std::memory_order_relaxed) != nullptr; }

private:
    const Template* cut() const;

    const char* const literal_;
    const Target target_;
    Reword* const reword_;
    mutable std::atomic<const Template*> kept_ = nullptr;
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
    bool has(Target target) const { return of(target).literal() != nullptr; }
    /// Null for a hole.
    const Template* in(Target target) const { return of(target).get(); }

    /// Whether anything in this process has asked for the target's template: so the literals that no recording reaches
    /// can be enumerated.
    bool used(Target target) const { return of(target).used(); }

    /// What is known to be wrong with the target's literal; null when nothing is.
    const Mend* mend(Target target) const { return mends_[static_cast<std::size_t>(target)]; }

    static const std::vector<const Phrase*>& all();

private:
    friend class Mend;

    const LazyTemplate& of(Target target) const { return templates_[static_cast<std::size_t>(target)]; }

    const char* name_;
    const std::array<LazyTemplate, targetCount> templates_; ///< by target
    mutable std::array<const Mend*, targetCount> mends_{};  ///< set while the program starts
};

} // namespace inkmacro
