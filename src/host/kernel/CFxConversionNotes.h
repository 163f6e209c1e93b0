#pragma once

#include "host/kernel/CFxString.h"
#include "host/rx/Export.h"

#include <QPair>
#include <QSet>

#include <cstddef>
#include <cstdint>
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
            notes_.known_.clear();
            notes_.place_.push_back(number);
        }
        ~Action()
        {
            notes_.known_.clear();
            notes_.place_.pop_back();
        }
        Action(const Action&) = delete;
        Action& operator=(const Action&) = delete;

    private:
        CFxConversionNotes& notes_;
    };

    /// What is lost of one action in the same way several times counts once.
    void NoteLoss(const CFxString& what, const CFxString& reason);
    const std::vector<CFxLoss>& GetLosses() const { return losses_; }

    void NoteFault(CFxFaultNote fault) { faults_.push_back(std::move(fault)); }
    const std::vector<CFxFaultNote>& GetFaults() const { return faults_; }

    void Forget();

private:
    CFxActionPlace place_;
    QSet<QPair<QString, QString>> known_; ///< what is lost of the action, and why
    std::vector<CFxLoss> losses_;
    std::vector<CFxFaultNote> faults_;
};
