// Added viewports. One with straight edges is made by a custom action.

#include "frame/RecordingState.h"
#include "host/db/OdDbClasses.h"
#include "host/kernel/CFxServices.h"
#include "objects/AddedObject.h"
#include "objects/added/readers.h"
#include "objects/targets/clipViewports.h"

QString ReadViewport(AddedObject& added)
{
    const auto viewport = added.open<OdDbViewport>();
    if (!viewport || !viewport->isNonRectClipOn())
        return {};
    // An object comes from the active document, so there is one.
    const OdDbObjectPtr current = ACTIVE_DOCUMENT->GetDatabase()->currentLayoutId().openObject();
    const auto layout = odrxCast<OdDbLayout>(current.get());
    const OdDbObjectId& clip = viewport->nonRectClipEntityId();
    return EmitInsertViewportByEntity(added.writer, layout ? CFxString(layout->getLayoutName()) : CFxString(),
                                      clip.openObject(), added.converter.KnownVariable(clip.getHandle()), added.name);
}
