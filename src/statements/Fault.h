#pragma once

#include "statements/Phrase.h"

#include <initializer_list>
#include <vector>

namespace inkmacro {

/// What a target's own language or host rejects or misreads in a macro as it has to be. Static storage duration; each
/// lists itself in all(), so that they can be enumerated; the texts are not copied.
class Fault
{
public:
    /// `operation` is the operation that writes the text at fault, `reason` a sentence without a full stop. A fault
    /// that is not `mended` stands in repaired macros too.
    Fault(const char* operation, std::initializer_list<Target> targets, const char* reason, bool mended = true);
    ~Fault();
    Fault(const Fault&) = delete;
    Fault& operator=(const Fault&) = delete;

    const char* operation() const { return operation_; }
    const char* reason() const { return reason_; }
    const std::vector<Target>& targets() const { return targets_; }
    bool mended() const { return mended_; }

    static const std::vector<const Fault*>& all();

private:
    const char* operation_;
    std::vector<Target> targets_;
    const char* reason_;
    bool mended_;
};

/// A fault of the literal that a phrase has for a target, and the literal without it. It is filled with the same values
/// in the same order, so an operation may give more of them than the faithful literal has markers for.
class Mend : public Fault
{
public:
    /// Null words leave the statement out.
    Mend(const Phrase& phrase, Target target, const char* reason, const char* words);
    /// The words are made of the faithful ones.
    Mend(const Phrase& phrase, Target target, const char* reason, LazyTemplate::Reword& reword);

    /// Null for words that leave the statement out.
    const Template* words() const { return words_.get(); }

private:
    const LazyTemplate words_;
};

} // namespace inkmacro
