// One action after the other: to each its place.

#include "module/walk.h"

#include "actions/entries.h"
#include "host/db/OdDbClasses.h"
#include "objects/classTable.h"
#include "objects/entries.h"
#include "statements/losses.h"
#include "targets/variables.h"

static bool isWanted(const Conversion& conversion, const CFxSysVarChanged& variable)
{
    return conversion.replays || variable.GetName().equalNoCase("CVPORT");
}

std::int32_t FailedAction(const OdRxObjectPtr& action, const OdError& error)
{
    NoteLoss(ActionTitle(action.get()), error.what());
    if (error.code() == eTextTooLong)
        GetFxSystemServices()->ReportProblem(QString(error.what()));
    return kFxFailure;
}

bool IsPassedOver(const Conversion& conversion, const OdRxObject* action)
{
    if (const auto variable = odrxQuery<CFxSysVarChanged>(action))
        return !isWanted(conversion, *variable);
    if (odrxQuery<CFxUserInteraction>(action) || odrxQuery<CFxUserSelection>(action))
        return !conversion.replays;
    if (const auto modified = odrxQuery<CFxObjectModified>(action))
        return modified->GetProperties().empty();
    // A leader brings its note.
    const auto added = odrxQuery<CFxObjectAdded>(action);
    return added && added->GetObjectClass() == OdDbMText::desc() && !conversion.names().FindEntry(added->GetHandle());
}

std::int32_t ConvertOrLose(Conversion& conversion, const OdRxObjectPtr& action, Statement& text)
{
    const LossWatch losses;
    conversion.faults.forget();
    const std::int32_t status = ConvertAction(conversion, action, text);
    text = conversion.faults.on(std::move(text), conversion.writer);
    if (status != kFxSuccess && !losses.any())
        NoteLoss(ActionTitle(action.get()), "it could not be converted");
    return status;
}

/// As recorded: a layer that the recording did not make has no variable yet, although a statement is about to change
/// it, and of all such objects it alone gets one.
static std::int32_t convertModifiedLayer(Conversion& conversion, const CFxObjectModified& action, Statement& text)
{
    OdRxClass* const cls = action.GetObjectClass();
    const OdDbHandle handle = action.GetHandle();
    Names& names = conversion.names();
    names.RegisterObject(handle, cls);
    CFxString name;
    names.ResolveVariable(handle, cls, name);
    if (!name.isEmpty())
        text += EmitGetLayer(conversion.writer, name, LayerName(conversion, handle));
    const std::int32_t status = ConvertObjectModified(conversion, action, text);
    names.EndFetchedLayer(handle);
    return status;
}

static std::int32_t convertModified(Conversion& conversion, const CFxObjectModified& action, Statement& text)
{
    OdRxClass* const cls = action.GetObjectClass();
    const bool isLayer = cls && IsSupportedClass(cls) && CFxString(cls->name()).equalNoCase("AcDbLayerTableRecord");
    return isLayer && !conversion.names().FetchesUnknown() && !conversion.names().FindEntry(action.GetHandle())
               ? convertModifiedLayer(conversion, action, text)
               : ConvertObjectModified(conversion, action, text);
}

std::int32_t ConvertAction(Conversion& conversion, const OdRxObjectPtr& action, Statement& text)
{
    const OdRxObject* const object = action.get();
    try {
        if (const auto interaction = odrxQuery<CFxUserInteraction>(object))
            return conversion.replays ? ConvertInteraction(conversion, *interaction, text) : kFxSuccess;
        if (const auto added = odrxQuery<CFxObjectAdded>(object))
            return ConvertObjectAdded(conversion, *added, text);
        if (const auto modified = odrxQuery<CFxObjectModified>(object))
            return convertModified(conversion, *modified, text);
        if (const auto variable = odrxQuery<CFxSysVarChanged>(object))
            return isWanted(conversion, *variable) ? ConvertSysVar(conversion, *variable, text) : kFxSuccess;
        if (auto property = odrxQuery<CFxPropertyChanged>(object))
            return ConvertPropertyChanged(conversion, std::move(property), text);
        if (const auto selection = odrxQuery<CFxUserSelection>(object))
            return conversion.replays ? ConvertSelection(conversion, *selection, text) : kFxSuccess;
        if (const auto custom = odrxQuery<CFxCustomAction>(object))
            return ConvertCustomAction(conversion, *custom, text);
    } catch (const OdError& error) {
        return FailedAction(action, error);
    }
    return kFxFailure;
}
