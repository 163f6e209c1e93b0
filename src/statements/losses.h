#pragma once

#include "host/kernel/CFxActions.h"
#include "host/kernel/CFxServices.h"
#include "host/kernel/CFxStatus.h"

/// What an action is called in notes: `added AcDbLine 2F`, `custom move`.
CFxString ActionTitle(const OdRxObject* action);
/// Class and handle.
CFxString ObjectTitle(const OdRxClass* cls, const OdDbHandle& handle);

/// Notes of the action that is being converted what the macro does not do of it.
inline void NoteLoss(const CFxString& what, const CFxString& reason)
{
    GetFxSystemServices()->Notes().NoteLoss(what, reason);
}

/// Notes a value that the macro states for the action otherwise than it is recorded.
inline void NoteAssumption(const CFxString& what, const CFxString& reason)
{
    GetFxSystemServices()->Notes().NoteAssumption(what, reason);
}

/// The same as a loss of a custom action for which nothing is written; gives the status of its handler.
inline std::int32_t PassOver(const CFxCustomAction& action, const CFxString& reason)
{
    NoteLoss(ActionTitle(&action), reason);
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
