// The custom action that clips an image or takes its clip boundary away. The command that attached the image hands its
// variable over.

#include "targets/clipBoundaries.h"
#include "actions/handedVariable.h"
#include "actions/handlers.h"
#include "statements/losses.h"

/// Of an image that the macro does not know the statement that would fetch it is lost, and the new name stays; but not
/// in a repaired macro.
std::int32_t ConvertActionClipBoundary(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    CFxString image = inkmacro::takeVariable(conversion.writer, text, inkmacro::HandedVariable::Replaced);
    if (image.isEmpty())
        image = conversion.names().VariableWithoutFetch(action.GetData(0).GetHandle(), action.GetData(1).GetClass());
    if (image.isEmpty())
        return PassOver(action, "objects of that class have no statements");
    const CFxCustomActionData& boundary = action.GetData(2);
    // A truth value removes the boundary, whichever it is.
    text = boundary.GetType() == CFxCustomActionData::kBool
               ? EmitRemoveClipBoundary(conversion.writer, image)
               : EmitSetClipBoundary(conversion.writer, image, boundary.Get2dPointArray());
    return kFxSuccess;
}
