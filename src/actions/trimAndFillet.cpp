// Custom actions that cut objects at others or at corners: trim, extend, fillet, chamfer.

#include "targets/trimAndFillet.h"
#include "actions/handedVariable.h"
#include "actions/handlers.h"
#include "statements/StatementGroup.h"
#include "statements/losses.h"
#include "targets/variables.h"

using inkmacro::Fault;
using inkmacro::HandedVariable;
using inkmacro::takeVariable;
using inkmacro::Target;

namespace {

const Fault kNoBlock{"EmitBlockEnd",
                     {Target::Cpp, Target::CSharp, Target::VbNet, Target::CppCom},
                     "the trim of no command ends a block that none has begun"};

constexpr char nothingPicked[] = "the macro does not have the objects";

} // namespace

/// What stands after the trim and is new is a piece: under a handle that the generated code does not know, or of
/// another class than it knows under it. Each gets a variable.
static std::vector<TrimPiece> RegisterPieces(Conversion& conversion, const CFxCustomAction& trim)
{
    const std::vector<OdDbHandle>& handles = trim.GetData(5).GetHandleArray();
    const std::vector<const OdRxClass*>& classes = trim.GetData(6).GetClassArray();
    const OdArray<OdGePoint3d>& places = trim.GetData(7).GetPointArray();
    const OdArray<double>& numbers = trim.GetData(8).GetDoubleArray();
    std::vector<TrimPiece> pieces;
    for (std::size_t i = 0; i < handles.size(); ++i) {
        const OdRxClass* const cls = ClassAt(classes, i);
        if (!HasInterface(cls) && !conversion.names().ListsUnnamed()) {
            NoteLoss(ObjectTitle(cls, handles[i]), "objects of its class have no statements");
            continue;
        }
        const ActionEntry* const known = conversion.names().FindEntry(handles[i]);
        if (known && known->cls == cls)
            continue;
        TrimPiece piece{{}, places[i], {}};
        for (std::size_t n = 0; n < piece.numbers.size(); ++n)
            piece.numbers[n] = numbers[i * piece.numbers.size() + n];
        piece.entry = conversion.names().RegisterObject(handles[i], cls);
        pieces.push_back(piece);
    }
    return pieces;
}

/// False in a repaired macro that has no edge or no object.
static bool TakeCutObjects(Conversion& conversion, const CFxCustomAction& action, CutObjects& cut)
{
    Names& names = conversion.names();
    cut.edges = names.ResolveVariables(action.GetData(0), action.GetData(1));
    cut.objects = names.ResolveVariables(action.GetData(2), action.GetData(3));
    cut.points = action.GetData(4).GetPointArray();
    OdArray<OdGePoint3d> none;
    return names.KeepNamed(cut.edges, none) && names.KeepNamed(cut.objects, cut.points);
}

std::int32_t ConvertActionTrim(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    takeVariable(conversion.writer, text, HandedVariable::Replaced);
    CutObjects cut;
    if (!TakeCutObjects(conversion, action, cut))
        return PassOver(action, nothingPicked);
    const std::vector<TrimPiece> pieces = RegisterPieces(conversion, action);
    const auto declarations = [&] {
        Statement declared;
        for (const TrimPiece& piece : pieces)
            declared += EmitVariableDeclaration(conversion.writer, piece.entry);
        return declared;
    };
    if (!pieces.empty() && conversion.command == 0 && conversion.Drops(kNoBlock))
        text = declarations();
    else if (!pieces.empty())
        text = betweenGroups(conversion.writer, declarations);
    // What is fetched is seen in its group only.
    text += conversion.names().TakeFetches();
    text += EmitTrimEntities(conversion.writer, cut.edges, cut.objects, cut.points, 0, pieces);
    return kFxSuccess;
}

std::int32_t ConvertActionExtend(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    takeVariable(conversion.writer, text, HandedVariable::Replaced);
    CutObjects cut;
    if (!TakeCutObjects(conversion, action, cut))
        return PassOver(action, nothingPicked);
    text = EmitExtendEntities(conversion.writer, cut.edges, cut.objects, cut.points, 0);
    return kFxSuccess;
}

static CornerSide SideOf(Conversion& conversion, const CFxCustomAction& action, std::int32_t first)
{
    CornerSide side;
    side.names = conversion.names().ResolveVariables(action.GetData(first), action.GetData(first + 1));
    side.points.append(action.GetData(first + 2).GetPoint());
    return side;
}

/// False in a repaired macro that has not both.
static bool TakeSides(Conversion& conversion, const CFxCustomAction& action, CornerSide& first, CornerSide& second)
{
    first = SideOf(conversion, action, 0);
    second = SideOf(conversion, action, 3);
    const Names& names = conversion.names();
    return names.KeepNamed(first.names, first.points) && names.KeepNamed(second.names, second.points);
}

std::int32_t ConvertActionFillet(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    takeVariable(conversion.writer, text, HandedVariable::Replaced);
    CornerSide first;
    CornerSide second;
    if (!TakeSides(conversion, action, first, second))
        return PassOver(action, nothingPicked);
    std::optional<double> radius;
    if (ACTIVE_DOCUMENT)
        radius = ACTIVE_DOCUMENT->GetDatabase()->getSysVarDouble("FILLETRAD");
    text = EmitFilletEntities(conversion.writer, first, second, radius);
    return kFxSuccess;
}

std::int32_t ConvertActionChamfer(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    takeVariable(conversion.writer, text, HandedVariable::Replaced);
    CornerSide first;
    CornerSide second;
    if (!TakeSides(conversion, action, first, second))
        return PassOver(action, nothingPicked);
    ChamferSettings settings;
    if (ACTIVE_DOCUMENT) {
        const OdDbDatabase& drawing = *ACTIVE_DOCUMENT->GetDatabase();
        settings.sizes = {drawing.getSysVarDouble("CHAMFERA"), drawing.getSysVarDouble("CHAMFERB"),
                          drawing.getSysVarDouble("CHAMFERC"), drawing.getSysVarDouble("CHAMFERD")};
        settings.byAngle = drawing.getSysVarInt16("CHAMMODE");
        settings.trims = drawing.getSysVarInt16("TRIMMODE");
    }
    text = EmitChamferEntities(conversion.writer, first, second, settings);
    return kFxSuccess;
}

/// All corners of a polyline at once: the interface has no operation for it, so the macro does not say it.
std::int32_t ConvertActionCornersOfPolyline(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    takeVariable(conversion.writer, text, HandedVariable::Replaced);
    return PassOver(action, "the interface has no operation for all corners of a polyline");
}
