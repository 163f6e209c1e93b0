// The custom actions that edit a polyline and those that say more of a polyline that was drawn.

#include "targets/polylineEdits.h"
#include "actions/handedVariable.h"
#include "actions/handlers.h"
#include "host/db/OdDbCurves.h"
#include "objects/targets/setters.h"
#include "statements/losses.h"
#include "targets/hatches.h"

#include <algorithm>

using inkmacro::HandedVariable;
using inkmacro::takeVariable;

using enum CFxCustomActionData::_Type;

/// The statement for one edit of the polyline of that variable.
using EmitPolylineEdit = Statement (*)(Writer& writer, const CFxString& polyline, const CFxCustomAction& action);

/// A polyline is told by two data from `first` on, by a handle and a class or by arrays of which the first counts.
static const OdRxClass* ClassOfPolyline(const CFxCustomAction& action, std::int32_t first)
{
    const CFxCustomActionData& cls = action.GetData(first + 1);
    return action.GetData(first).GetType() == kHandleArray ? ClassAt(cls.GetClassArray(), 0) : cls.GetClass();
}

/// One without a variable gets no statement.
static Statement EditOfPolyline(Conversion& conversion, const CFxCustomAction& action, std::int32_t first,
                                EmitPolylineEdit edit)
{
    const CFxCustomActionData& handle = action.GetData(first);
    const OdRxClass* const cls = ClassOfPolyline(action, first);
    const bool isList = handle.GetType() == kHandleArray;
    if (isList && handle.GetHandleArray().empty())
        throw OdError_InvalidIndex();
    CFxString polyline;
    const Statement text = conversion.names().EmitObjectVariable(
        isList ? handle.GetHandleArray().front() : handle.GetHandle(), cls, polyline);
    return polyline.isEmpty() ? QString() : text + edit(conversion.writer, polyline, action);
}

template<EmitPolylineEdit edit>
static std::int32_t ConvertActionPolylineEdit(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    takeVariable(conversion.writer, text, HandedVariable::Replaced);
    text = EditOfPolyline(conversion, action, 1, edit);
    return kFxSuccess;
}

template<EmitPolylineEdit edit>
static std::int32_t ConvertActionPolylineVertex(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    takeVariable(conversion.writer, text, HandedVariable::AppendedTo);
    text += EditOfPolyline(conversion, action, 0, edit);
    return kFxSuccess;
}

/// The first object is joined with those of the others that can be; the rest is not even fetched.
std::int32_t ConvertActionPolylineJoin(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    struct Joint
    {
        const char* cls;
        Statement (*statement)(Writer& writer, const CFxString& polyline, const CFxString& other);
    };
    static constexpr Joint joints[] = {
        {"AcDbPolyline", &EmitJoinPolyline}, {"AcDbLine", &EmitJoinLine}, {"AcDbArc", &EmitJoinCircleArc}};

    takeVariable(conversion.writer, text, HandedVariable::Replaced);
    const std::vector<OdDbHandle>& objects = action.GetData(1).GetHandleArray();
    const std::vector<const OdRxClass*>& classes = action.GetData(2).GetClassArray();
    if (objects.size() < 2)
        return kFxFailure;
    CFxString polyline;
    const Statement fetch = conversion.names().EmitObjectVariable(objects[0], ClassAt(classes, 0), polyline);
    if (polyline.isEmpty())
        return kFxSuccess;
    text = fetch;
    for (std::size_t i = 1; i < objects.size(); ++i) {
        const OdRxClass* const cls = ClassAt(classes, i);
        const auto joint = std::ranges::find_if(
            joints, [&](const Joint& candidate) { return cls && CFxString(cls->name()).equalNoCase(candidate.cls); });
        if (joint == std::end(joints)) {
            NoteLoss(ObjectTitle(cls, objects[i]), "objects of its class are not joined with a polyline");
            continue;
        }
        CFxString other;
        text += conversion.names().EmitObjectVariable(objects[i], cls, other);
        if (other.isEmpty() && conversion.writer.repairs)
            continue;
        text += joint->statement(conversion.writer, polyline, other);
    }
    return kFxSuccess;
}

namespace inkmacro {

namespace {

Statement widthsOf(Writer& writer, const CFxString& polyline, const CFxCustomAction& action)
{
    const OdArray<double>& starts = action.GetData(5).GetDoubleArray();
    const OdArray<double>& ends = action.GetData(6).GetDoubleArray();
    Statement text;
    for (unsigned segment = 0; segment < starts.length(); ++segment) {
        const auto index = static_cast<std::int32_t>(segment);
        text += EmitSetIndexedDouble(writer, polyline, "SetSegmentStartWidth", index, starts[segment]);
        text += EmitSetIndexedDouble(writer, polyline, "SetSegmentEndWidth", index, ends[segment]);
    }
    if (action.GetData(7).GetBool())
        text += EmitSetDoubleProperty(writer, polyline, "GlobalWidth", action.GetData(8).GetDouble(), Meaning::Length);
    return text;
}

} // namespace

} // namespace inkmacro

/// The second points hold the bulges as their x.
std::int32_t ConvertActionPolyline(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    CFxString name = takeVariable(conversion.writer, text, HandedVariable::Replaced);
    const OdArray<OdGePoint3d>& vertices = action.GetData(0).GetPointArray();
    const OdArray<OdGePoint3d>& bends = action.GetData(1).GetPointArray();
    const bool closed = action.GetData(2).GetBool();
    if (vertices.length() != bends.length())
        return kFxFailure;
    NameInsertedObject(conversion, action, name);
    if (name.isEmpty())
        return PassOver(action, "the macro does not have the polyline");
    OdArray<OdGePoint2d> points;
    OdArray<double> bulges;
    for (unsigned i = 0; i < vertices.length(); ++i) {
        points.append({vertices[i].x, vertices[i].y});
        bulges.append(bends[i].x);
    }
    text = EmitHatchBoundaryPolyline(conversion.writer, name, points, closed);
    text += EmitSetSegmentAngles(conversion.writer, name, bulges);
    text += inkmacro::widthsOf(conversion.writer, name, action);
    return kFxSuccess;
}

namespace inkmacro {

namespace {

constexpr int kAny = DataSignature::anyType;

constexpr DataSignature objectsOnly(const char* option)
{
    return DataSignature::exactly({kString, kHandleArray, kClassArray}).withWord(option);
}

constexpr DataSignature vertexOnly(const char* option)
{
    return DataSignature::exactly({kString, kAny, kAny, kInt}).withWord(option);
}

constexpr DataSignature vertexAndPoint(const char* option)
{
    return DataSignature::exactly({kString, kAny, kAny, kInt, kPoint}).withWord(option);
}

template<Statement (*statement)(Writer&, const CFxString&)>
Statement whole(Writer& writer, const CFxString& polyline, const CFxCustomAction&)
{
    return statement(writer, polyline);
}

template<bool spatial>
Statement split(Writer& writer, const CFxString& polyline, const CFxCustomAction& action)
{
    return EmitPolylineSplit(writer, polyline, action.GetData(3).GetInt(), spatial);
}

template<Statement (*statement)(Writer&, const CFxString&, int, const OdGePoint3d&, bool), bool spatial>
Statement placed(Writer& writer, const CFxString& polyline, const CFxCustomAction& action)
{
    return statement(writer, polyline, action.GetData(3).GetInt(), action.GetData(4).GetPoint(), spatial);
}

Statement straightened(Writer& writer, const CFxString& polyline, const CFxCustomAction& action)
{
    return EmitPolylineStraighten(writer, polyline, action.GetData(3).GetInt(), action.GetData(4).GetInt());
}

Statement widened(Writer& writer, const CFxString& polyline, const CFxCustomAction& action)
{
    return EmitPolylineWidth(writer, polyline, action.GetData(3).GetInt(), action.GetData(4).GetDouble(),
                             action.GetData(5).GetDouble());
}

const Fault kHeightOfPlane{
    "EmitAddVertexAfter",
    {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
    "a vertex that is added to a polyline of a plane is given three coordinates"};

Statement vertexAdded(Writer& writer, const CFxString& polyline, const CFxCustomAction& action)
{
    const bool isPlane = ClassOfPolyline(action, 0) == OdDbPolyline::desc();
    const Statement text = EmitAddVertexAfter(writer, polyline, action.GetData(2).GetInt(),
                                              action.GetData(3).GetPoint(), !isPlane || !writer.repairs);
    return isPlane ? writer.faulty(text, kHeightOfPlane) : text;
}

Statement vertexDeleted(Writer& writer, const CFxString& polyline, const CFxCustomAction& action)
{
    return EmitDeleteVertex(writer, polyline, action.GetData(2).GetInt());
}

} // namespace

const ActionForm polylineEditForms[12] = {
    {objectsOnly("_FIT"), &ConvertActionPolylineEdit<&whole<&EmitPolylineFit>>},
    {objectsOnly("_DECURVE"), &ConvertActionPolylineEdit<&whole<&EmitPolylineDecurve>>},
    {objectsOnly("_SPLINE"), &ConvertActionPolylineEdit<&whole<&EmitPolylineSpline>>},
    {objectsOnly("_JOIN"), &ConvertActionPolylineJoin},
    {vertexOnly("_SPLIT"), &ConvertActionPolylineEdit<&split<false>>},
    {vertexOnly("_SPLIT3D"), &ConvertActionPolylineEdit<&split<true>>},
    {vertexAndPoint("_INSERT"), &ConvertActionPolylineEdit<&placed<&EmitAddVertexAfter, false>>},
    {vertexAndPoint("_INSERT3D"), &ConvertActionPolylineEdit<&placed<&EmitAddVertexAfter, true>>},
    {vertexAndPoint("_MOVE"), &ConvertActionPolylineEdit<&placed<&EmitSetVertexCoordinate, false>>},
    {vertexAndPoint("_MOVE3D"), &ConvertActionPolylineEdit<&placed<&EmitSetVertexCoordinate, true>>},
    {DataSignature::exactly({kString, kAny, kAny, kInt, kInt}).withWord("_STRAIGHTEN"),
     &ConvertActionPolylineEdit<&straightened>},
    {DataSignature::exactly({kString, kAny, kAny, kInt, kDouble, kDouble}).withWord("_WIDTH"),
     &ConvertActionPolylineEdit<&widened>},
};

const ActionForm polylineVertexForms[2] = {
    {DataSignature::anyOf(4), &ConvertActionPolylineVertex<&vertexAdded>},
    {DataSignature::anyOf(3), &ConvertActionPolylineVertex<&vertexDeleted>},
};

} // namespace inkmacro
