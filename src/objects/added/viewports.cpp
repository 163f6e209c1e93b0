// Added viewports. One with straight edges is made by a custom action.

#include "host/db/OdDbClasses.h"
#include "host/kernel/CFxServices.h"
#include "objects/AddedObject.h"
#include "objects/added/readers.h"
#include "objects/targets/clipViewports.h"
#include "statements/RecordingState.h"
#include "statements/arrays.h"

Statement ReadViewport(AddedObject& added)
{
    const auto viewport = added.open<OdDbViewport>();
    if (!viewport || !viewport->isNonRectClipOn())
        return {};
    // An object comes from the active document, so there is one.
    const OdDbObjectPtr current = ACTIVE_DOCUMENT->GetDatabase()->currentLayoutId().openObject();
    const auto layout = odrxCast<OdDbLayout>(current.get());
    const OdDbObjectId& clip = viewport->nonRectClipEntityId();
    const OdDbObjectPtr entity = clip.openObject();
    QString variable = added.conversion.names().KnownVariable(clip.getHandle());
    Statement fetch;
    if (variable.isEmpty() && !CanMakeClip(entity.get())) {
        variable = added.conversion.names().AddedOrFetched(clip, fetch);
        if (variable.isEmpty() && added.conversion.Drops(inkmacro::emptyPlace))
            return {};
    }
    return fetch + EmitInsertViewportByEntity(added.writer, layout ? CFxString(layout->getLayoutName()) : CFxString(),
                                              entity, variable, added.name);
}
