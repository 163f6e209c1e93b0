// Custom actions that cut objects at others or at corners: trim, extend, fillet, chamfer.

#include "actions/handedVariable.h"
#include "module/CFxConverterIWAPIImpl.h"
#include "statements/StatementGroup.h"
#include "statements/losses.h"
#include "targets/fillets.h"
#include "targets/trim.h"
#include "targets/variables.h"

#include <utility>

using inkmacro::HandedVariable;
using inkmacro::takeVariable;

namespace {

constexpr char nothingPicked[] = "the macro does not have the objects";

/// Takes picked objects without a variable, and their points, out of a repaired macro. False when none of them is left.
bool keepNamed(const Writer& writer, std::vector<CFxString>& names, OdArray<OdGePoint3d>& points)
{
    if (!writer.repairs || names.empty())
        return true;
    std::vector<CFxString> keptNames;
    OdArray<OdGePoint3d> keptPoints;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (names[i].isEmpty())
            continue;
        keptNames.push_back(names[i]);
        if (i < points.length())
            keptPoints.append(points[i]);
    }
    names = keptNames;
    points = keptPoints;
    return !names.empty();
}

bool keepNamed(const Writer& writer, CornerSide& first, CornerSide& second)
{
    return keepNamed(writer, first.names, first.points) && keepNamed(writer, second.names, second.points);
}

} // namespace

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
        if (writer.repairs && !HasInterface(cls)) {
            NoteLoss(ObjectTitle(cls, handles[i]), "objects of its class have no statements");
            continue;
        }
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

/// False in a repaired macro that has no edge or no object.
bool CFxConverterIWAPIImpl::TakeCutObjects(const CFxCustomAction& action, CutObjects& cut)
{
    ResolveVariables(cut.edges, action.GetData(0), action.GetData(1));
    ResolveVariables(cut.objects, action.GetData(2), action.GetData(3));
    cut.points = action.GetData(4).GetPointArray();
    OdArray<OdGePoint3d> none;
    return keepNamed(writer, cut.edges, none) && keepNamed(writer, cut.objects, cut.points);
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionTrim(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    takeVariable(writer, text, HandedVariable::Replaced);
    CutObjects cut;
    if (!TakeCutObjects(*action, cut))
        return PassOver(action, nothingPicked);
    const std::vector<TrimPiece> pieces = RegisterPieces(*action);
    if (!pieces.empty())
        text = betweenGroups(writer, [&] {
            QString declarations;
            for (const TrimPiece& piece : pieces)
                declarations += EmitVariableDeclaration(writer, piece.entry);
            return declarations;
        });
    // What is fetched is seen in its group only.
    text += std::exchange(fetches, {});
    text += EmitTrimEntities(writer, cut.edges, cut.objects, cut.points, 0, pieces);
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionExtend(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    takeVariable(writer, text, HandedVariable::Replaced);
    CutObjects cut;
    if (!TakeCutObjects(*action, cut))
        return PassOver(action, nothingPicked);
    text = EmitExtendEntities(writer, cut.edges, cut.objects, cut.points, 0);
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
    CornerSide first = SideOf(*action, 0);
    CornerSide second = SideOf(*action, 3);
    if (!keepNamed(writer, first, second))
        return PassOver(action, nothingPicked);
    std::optional<double> radius;
    if (ACTIVE_DOCUMENT)
        radius = ACTIVE_DOCUMENT->GetDatabase()->getSysVarDouble("FILLETRAD");
    text = EmitFilletEntities(writer, first, second, radius);
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionChamfer(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    takeVariable(writer, text, HandedVariable::Replaced);
    CornerSide first = SideOf(*action, 0);
    CornerSide second = SideOf(*action, 3);
    if (!keepNamed(writer, first, second))
        return PassOver(action, nothingPicked);
    ChamferSettings settings;
    if (ACTIVE_DOCUMENT) {
        const OdDbDatabase& drawing = *ACTIVE_DOCUMENT->GetDatabase();
        settings.sizes = {drawing.getSysVarDouble("CHAMFERA"), drawing.getSysVarDouble("CHAMFERB"),
                          drawing.getSysVarDouble("CHAMFERC"), drawing.getSysVarDouble("CHAMFERD")};
        settings.byAngle = drawing.getSysVarInt16("CHAMMODE");
        settings.trims = drawing.getSysVarInt16("TRIMMODE");
    }
    text = EmitChamferEntities(writer, first, second, settings);
    return kFxSuccess;
}

/// All corners of a polyline at once: the interface has no operation for it, so the macro does not say it.
std::int32_t CFxConverterIWAPIImpl::ConvertActionCornersOfPolyline(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    takeVariable(writer, text, HandedVariable::Replaced);
    return PassOver(action, "the interface has no operation for all corners of a polyline");
}
