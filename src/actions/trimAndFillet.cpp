// Custom actions that cut objects at others or at corners: trim, extend, fillet, chamfer.

#include "actions/handedVariable.h"
#include "frame/CFxConverterIWAPIImpl.h"
#include "frame/StatementGroup.h"
#include "frame/losses.h"
#include "targets/fillets.h"
#include "targets/trim.h"
#include "targets/variables.h"

using inkmacro::HandedVariable;
using inkmacro::takeVariable;

/// What stands after the trim and is new is a piece: under a handle that the generated code does not know, or of
/// another class than it knows under it. Each gets a variable.
std::vector<TrimPiece> CFxConverterIWAPIImpl::RegisterPieces(const CFxCustomAction& trim)
{
    const std::vector<OdDbHandle>& handles = trim.GetData(5).GetHandleArray();
    const std::vector<const OdRxClass*>& classes = trim.GetData(6).GetClassArray();
    const OdArray<OdGePoint3d>& places = trim.GetData(7).GetPointArray();
    const OdArray<double>& numbers = trim.GetData(8).GetDoubleArray();
    std::vector<TrimPiece> pieces;
    for (std::size_t i = 0; i < handles.size(); ++i) {
        const OdRxClass* const cls = ClassAt(classes, i);
        const ActionEntry* const known = FindEntry(handles[i]);
        if (known && known->cls == cls)
            continue;
        TrimPiece piece{{}, places[i], {}};
        for (std::size_t n = 0; n < piece.numbers.size(); ++n)
            piece.numbers[n] = numbers[i * piece.numbers.size() + n];
        piece.entry = RegisterObject(handles[i], cls);
        pieces.push_back(piece);
    }
    return pieces;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionTrim(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    takeVariable(writer, text, HandedVariable::Replaced);
    std::vector<CFxString> cutting;
    std::vector<CFxString> removed;
    ResolveVariables(cutting, action->GetData(0), action->GetData(1));
    ResolveVariables(removed, action->GetData(2), action->GetData(3));
    const std::vector<TrimPiece> pieces = RegisterPieces(*action);
    if (!pieces.empty())
        text = betweenGroups(writer, [&] {
            QString declarations;
            for (const TrimPiece& piece : pieces)
                declarations += EmitVariableDeclaration(writer, piece.entry);
            return declarations;
        });
    text += EmitTrimEntities(writer, cutting, removed, action->GetData(4).GetPointArray(), 0, pieces);
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionExtend(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    takeVariable(writer, text, HandedVariable::Replaced);
    std::vector<CFxString> boundary;
    std::vector<CFxString> extended;
    ResolveVariables(boundary, action->GetData(0), action->GetData(1));
    ResolveVariables(extended, action->GetData(2), action->GetData(3));
    text = EmitExtendEntities(writer, boundary, extended, action->GetData(4).GetPointArray(), 0);
    return kFxSuccess;
}

CornerSide CFxConverterIWAPIImpl::SideOf(const CFxCustomAction& action, std::int32_t first)
{
    CornerSide side;
    ResolveVariables(side.names, action.GetData(first), action.GetData(first + 1));
    side.points.append(action.GetData(first + 2).GetPoint());
    return side;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionFillet(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    takeVariable(writer, text, HandedVariable::Replaced);
    std::optional<double> radius;
    if (ACTIVE_DOCUMENT)
        radius = ACTIVE_DOCUMENT->GetDatabase()->getSysVarDouble("FILLETRAD");
    text = EmitFilletEntities(writer, SideOf(*action, 0), SideOf(*action, 3), radius);
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionChamfer(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    takeVariable(writer, text, HandedVariable::Replaced);
    ChamferSettings settings;
    if (ACTIVE_DOCUMENT) {
        const OdDbDatabase& drawing = *ACTIVE_DOCUMENT->GetDatabase();
        settings.sizes = {drawing.getSysVarDouble("CHAMFERA"), drawing.getSysVarDouble("CHAMFERB"),
                          drawing.getSysVarDouble("CHAMFERC"), drawing.getSysVarDouble("CHAMFERD")};
        settings.byAngle = drawing.getSysVarInt16("CHAMMODE");
        settings.trims = drawing.getSysVarInt16("TRIMMODE");
    }
    text = EmitChamferEntities(writer, SideOf(*action, 0), SideOf(*action, 3), settings);
    return kFxSuccess;
}

/// All corners of a polyline at once: the interface has no operation for it, so the macro does not say it.
std::int32_t CFxConverterIWAPIImpl::ConvertActionCornersOfPolyline(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    takeVariable(writer, text, HandedVariable::Replaced);
    return PassOver(action, "the interface has no operation for all corners of a polyline");
}
