#include "objects/snapshot.h"

#include "frame/RecordingState.h"
#include "host/db/OdDbClasses.h"
#include "host/kernel/CFxServices.h"

namespace {

/// The first snapshot of a recording fixes the layout; Convert arms the next recording by clearing the name.
void noteCurrentLayout()
{
    if (!RecordingSheetName.isEmpty() || !ACTIVE_DOCUMENT)
        return;
    const OdDbObjectPtr current = ACTIVE_DOCUMENT->GetDatabase()->currentLayoutId().openObject();
    if (const auto layout = odrxCast<OdDbLayout>(current.get())) {
        RecordingInModel = layout->modelType();
        RecordingSheetName = layout->getLayoutName();
    }
}

} // namespace

void TakeSnapshot(const OdDbObject* object, std::vector<CFxSnapshotRecord>& target)
{
    noteCurrentLayout();
    target.emplace_back(CFxString("Erased"), CFxString(object->isErased() ? "YES" : "NO"));
}
