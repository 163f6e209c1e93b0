#pragma once

#include "host/kernel/CFxActions.h"
#include "host/kernel/CFxServices.h"
#include "host/kernel/CFxStatus.h"

#include <optional>
#include <set>

/// What an action is called in notes: `added AcDbLine 2F`, `custom move`.
CFxString ActionTitle(const OdRxObject* action);
/// Class and handle.
CFxString ObjectTitle(const OdRxClass* cls, const OdDbHandle& handle);

/// Notes of the action that is being converted what the macro does not do of it.
inline void NoteLoss(const CFxString& what, const CFxString& reason)
{
    GetFxSystemServices()->Notes().NoteLoss(what, reason);
}

/// The same of a custom action for which nothing is written; gives the status of its handler.
inline std::int32_t PassOver(const OdSmartPtr<CFxCustomAction>& action, const CFxString& reason)
{
    NoteLoss(ActionTitle(action.get()), reason);
    return kFxSuccess;
}

/// Whether anything has been noted as lost since this was made.
class LossWatch
{
public:
    bool any() const { return count() != before_; }

private:
    static std::size_t count() { return GetFxSystemServices()->Notes().GetLossCount(); }
    const std::size_t before_ = count();
};

/// The kinds of custom action that stand side by side. They are looked at when the first is asked for.
class ActionKinds
{
public:
    explicit ActionKinds(const CFxActionArray& actions) : actions_(actions) {}
    bool has(std::int32_t kind) const;
    /// Whether a block definition is added or changed beside them.
    bool hasBlock() const;

private:
    void look() const;

    const CFxActionArray& actions_;
    mutable std::optional<std::set<std::int32_t>> kinds_;
    mutable bool hasBlock_ = false;
};
