#pragma once

#include "host/db/OdDbHandle.h"
#include "host/kernel/CFxString.h"
#include "host/rx/Export.h"

#include <QSet>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

/// Where an action stands: its number at the recording's top level, and behind it the one among the children of the
/// command around it. All count from 0.
using CFxActionPlace = std::vector<std::uint32_t>;

/// Something that the user did and that the macro does not do.
struct CFxLoss
{
    CFxActionPlace where;
    CFxString what;   ///< such as `property "Material" of AcDbLine 2F`
    CFxString reason; ///< a clause without a full stop
    bool operator==(const CFxLoss&) const = default;
};

/// A place of the macro or its project that its own language or host rejects or misreads.
struct CFxFaultNote
{
    CFxString operation;    ///< what writes the place, such as "EmitSetColor"
    CFxString reason;       ///< a clause without a full stop
    CFxString file;         ///< without folders
    std::uint32_t line = 0; ///< from 1; 0 when it is not known
    bool mended = false;    ///< whether a repaired macro is without it
    bool operator==(const CFxFaultNote&) const = default;
};

/// What one conversion tells of its result beside the files. The module notes, its host reads; the next conversion
/// begins by forgetting all.
class INKHOST_EXPORT CFxConversionNotes
{
public:
    /// While one of these lives, what is lost is of the action with that number.
    class Action
    {
    public:
        Action(CFxConversionNotes& notes, std::uint32_t number) : notes_(notes)
        {
            notes_.ForgetKnown();
            notes_.place_.push_back(number);
            if (notes_.onAction_)
                notes_.onAction_();
        }
        ~Action()
        {
            notes_.ForgetKnown();
            notes_.place_.pop_back();
        }
        Action(const Action&) = delete;
        Action& operator=(const Action&) = delete;

    private:
        CFxConversionNotes& notes_;
    };

    /// What the host does before each action, those within commands included, to show its user that a long conversion
    /// goes on; nothing when it is empty.
    void OnAction(std::function<void()> call) { onAction_ = std::move(call); }

    /// A host that is about to ask for no more than the numbers of losses and faults spares what tells of them.
    void KeepAll(bool keeps) { keepsAll_ = keeps; }

    /// What is lost of one action in the same way several times counts once.
    void NoteLoss(const CFxString& what, const CFxString& reason);
    /// Of the object with that handle. Who calls makes a loss's words of the part in `title`, when they are kept.
    template<class Title>
    void NoteLoss(const OdDbHandle& object, const QString& part, const QString& reason, Title title)
    {
        if (!IsFirst({object, part, reason}))
            return;
        ++lossCount_;
        if (keepsAll_)
            losses_.push_back({place_, title(), CFxString(reason)});
    }
    std::size_t GetLossCount() const { return lossCount_; }
    /// Empty when they are not kept.
    const std::vector<CFxLoss>& GetLosses() const { return losses_; }

    /// `note` makes the fault's note, when they are kept.
    template<class Note>
    void NoteFault(Note note)
    {
        ++faultCount_;
        if (keepsAll_)
            faults_.push_back(note());
    }
    std::size_t GetFaultCount() const { return faultCount_; }
    /// Empty when they are not kept.
    const std::vector<CFxFaultNote>& GetFaults() const { return faults_; }

    void Forget();

private:
    struct Lost
    {
        OdDbHandle object; ///< null when the part says it all
        QString part;
        QString reason;
        bool operator==(const Lost&) const = default;
        friend uint qHash(const Lost& lost, uint seed) noexcept
        {
            return ::qHash(lost.object.value(), seed) ^ ::qHash(lost.part, seed);
        }
    };
    bool IsFirst(Lost lost);
    void ForgetKnown()
    {
        known_.clear();
        manyKnown_.clear();
    }

    std::function<void()> onAction_;
    CFxActionPlace place_;
    std::vector<Lost> known_; ///< of the action, as long as they are few: most actions lose little
    QSet<Lost> manyKnown_;    ///< else all of them
    bool keepsAll_ = true;
    std::size_t lossCount_ = 0;
    std::size_t faultCount_ = 0;
    std::vector<CFxLoss> losses_;
    std::vector<CFxFaultNote> faults_;
};
