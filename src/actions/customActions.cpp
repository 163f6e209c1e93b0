// Custom actions of a single statement each.

#include "targets/customActions.h"
#include "actions/CustomActionKind.h"
#include "actions/optionTable.h"
#include "frame/CFxConverterIWAPIImpl.h"
#include "frame/counters.h"
#include "objects/CFxConverterIWAPIObject.h"
#include "objects/targets/blockAttributes.h"
#include "objects/targets/regions.h"
#include "objects/targets/sheetProperties.h"
#include "targets/options.h"
#include "targets/variables.h"
#include "targets/wording.h"

#include <QStringList>

namespace {

using Datum = CFxCustomActionData;

} // namespace

std::int32_t CFxConverterIWAPIImpl::ConvertActionEmbeddedObject(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    if (action->GetKind() != kEmbeddedObject || action->GetDataCount() != 2 ||
        action->GetData(0).GetType() != Datum::kInt || action->GetData(1).GetType() != Datum::kString)
        return kFxFailure;
    const CFxString& path = action->GetData(1).GetString();
    if (path.isEmpty())
        return kFxFailure;
    const int flags = action->GetData(0).GetInt();
    text =
        EmitInsertEmbeddedObject(writer, text, inkmacro::doubleBackslashes(path), (flags & 1) != 0, (flags & 2) != 0);
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionElementColor(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    text = EmitSetElementColor(writer, action->GetData(0).GetInt(), action->GetData(1).GetColor());
    return kFxSuccess;
}

/// A variable may be an option of the document and of the application: then both are set.
std::int32_t CFxConverterIWAPIImpl::ConvertActionOptionValue(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    if (action->GetKind() != kOptionValue)
        return kFxFailure;
    using inkmacro::OptionKind;
    const CFxString& variable = action->GetData(0).GetString();
    const Datum& value = action->GetData(1);
    CFxString option;
    std::int32_t kind = 0;
    const bool ofDocument = FindCommandOption(variable, option, kind) == kFxSuccess;
    if (ofDocument) {
        if (kind == static_cast<std::int32_t>(OptionKind::Int16))
            text = EmitCommandOptionInt16(writer, option, value.GetInt16());
        else if (kind == static_cast<std::int32_t>(OptionKind::Point3d))
            text = EmitCommandOptionPoint3D(writer, option, value.GetPoint());
        else if (kind == static_cast<std::int32_t>(OptionKind::String))
            text = EmitCommandOptionString(writer, option, value.GetString());
        else
            return kFxFailure;
    }
    if (FindApplicationOption(variable, option, kind) == kFxSuccess) {
        if (kind == static_cast<std::int32_t>(OptionKind::Int16))
            text += EmitApplicationOptionInt16(writer, option, value.GetInt16());
        else if (kind == static_cast<std::int32_t>(OptionKind::String))
            text += EmitApplicationOptionString(writer, option, value.GetString());
        else
            return kFxFailure;
    } else if (!ofDocument) {
        text.clear();
    }
    return kFxSuccess;
}

/// The first statement is always lost: all that remains of it is that its counter has risen.
std::int32_t CFxConverterIWAPIImpl::ConvertActionAttributeValue(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    if (action->GetKind() != kAttributeValue)
        return kFxFailure;
    CFxString name;
    ResolveVariable(action->GetData(0).GetHandle(), action->GetData(1).GetClass(), name);
    if (name.isEmpty())
        return kFxSuccess;
    text += EmitGetLayer(writer, name);
    text =
        EmitBlockAttributeValue(writer, name, "Value", action->GetData(2).GetString(), action->GetData(3).GetString());
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionRegion(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    if (action->GetKind() != kRegion)
        return kFxFailure;
    std::vector<CFxString> names;
    ResolveVariables(names, action->GetData(0), action->GetData(1));
    QStringList curves;
    for (const CFxString& name : names)
        curves.append(name);
    text = EmitInsertRegion(writer, text, curves, ++processCounters.regions);
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionActivate(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    if (action->GetKind() != kActivate)
        return kFxFailure;
    const std::vector<OdDbHandle>& objects = action->GetData(0).GetHandleArray();
    const std::vector<const OdRxClass*>& classes = action->GetData(1).GetClassArray();
    if (objects.empty() || classes.empty())
        throw OdError_InvalidIndex();
    CFxString name;
    text += Objects().ObjectVariable(objects.front(), const_cast<OdRxClass*>(classes.front()), name);
    text += EmitActivate(writer, name);
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionViewport(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    if (action->GetKind() != kViewport)
        return kFxFailure;
    const OdArray<OdGePoint3d>& polygon = action->GetData(0).GetPointArray();
    const CFxString& sheetName = action->GetData(5).GetString();
    CFxString name = text;
    if (name.isEmpty()) {
        const OdDbHandle handle = action->GetData(3).GetHandle();
        OdRxClass* const cls = const_cast<OdRxClass*>(action->GetData(4).GetClass());
        if (!cls || !IsSupportedClass(cls->name()))
            return kFxSuccess;
        RegisterObject(handle, cls);
        ResolveVariable(handle, cls, name);
    }
    text = EmitInsertViewport(writer, name, sheetName, polygon);
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionPrintStyle(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    if (action->GetKind() != kPrintStyle || action->GetData(0).GetType() != Datum::kString ||
        action->GetData(1).GetType() != Datum::kBool || action->GetData(2).GetType() != Datum::kString)
        return kFxFailure;
    text = EmitSetModelProperty(writer, "PrintStyle", action->GetData(0).GetString(), action->GetData(1).GetBool(),
                                action->GetData(2).GetString());
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionJoin(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    if (action->GetKind() != kJoin)
        return kFxFailure;
    const auto variable = [&](std::int32_t index, CFxString& name) {
        OdRxClass* const cls = const_cast<OdRxClass*>(action->GetData(index + 1).GetClass());
        return Objects().ObjectVariable(action->GetData(index).GetHandle(), cls, name);
    };
    text.clear();
    CFxString name;
    CFxString other;
    text += variable(0, name);
    text += variable(2, other);
    text += EmitJoin(writer, name, other);
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionExplode(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    if (action->GetKind() != kExplode)
        return kFxFailure;
    const std::vector<OdDbHandle>& objects = action->GetData(0).GetHandleArray();
    const std::vector<const OdRxClass*>& classes = action->GetData(1).GetClassArray();
    if (classes.size() < objects.size())
        throw OdError_InvalidIndex();
    text.clear();
    for (std::size_t i = 0; i < objects.size(); ++i) {
        CFxString type;
        CFxString second;
        if (GetApiTypeName(classes[i], type, second) != kFxSuccess)
            continue;
        CFxString name;
        text += Objects().ObjectVariable(objects[i], const_cast<OdRxClass*>(classes[i]), name);
        text += EmitExplode(writer, name);
    }
    return kFxSuccess;
}
