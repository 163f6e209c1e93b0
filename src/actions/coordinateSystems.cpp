// The custom action that makes a coordinate system the active one, or changes the systems. What was done is told by the
// number of the data, their types and the first word.

#include "targets/coordinateSystems.h"
#include "actions/handedVariable.h"
#include "actions/handlers.h"
#include "statements/arrays.h"
#include "statements/losses.h"

namespace inkmacro {

namespace {

Statement standardSystem(Writer& writer, const CFxCustomAction& action)
{
    return EmitDefaultCoordinateSystem(
        writer, CFxString("iwDefaultCustomCoordinateSystem_" + action.GetData(0).GetString().toQString()));
}

Statement threePoints(Writer& writer, const CFxCustomAction& action)
{
    return EmitThreePointCoordinateSystem(writer, action.GetData(1).GetPoint(), action.GetData(2).GetPoint(),
                                          action.GetData(3).GetPoint());
}

constexpr DataSignature word(const char* first)
{
    return DataSignature::exactly({CFxCustomActionData::kString}).withWord(first);
}

constexpr DataSignature wordAndName(const char* first)
{
    return DataSignature::exactly({CFxCustomActionData::kString, CFxCustomActionData::kString}).withWord(first);
}

constexpr DataSignature wordAndPoints(const char* first)
{
    using enum CFxCustomActionData::_Type;
    return DataSignature::exactly({kString, kPoint, kPoint, kPoint}).withWord(first, Qt::CaseInsensitive);
}

} // namespace

using enum CFxCustomActionData::_Type;

const ActionForm coordinateSystemForms[21] = {
    {word("Previous"), [](Writer& writer, const CFxCustomAction&) { return EmitPreviousCoordinateSystem(writer); }},
    {word("World"), [](Writer& writer, const CFxCustomAction&) { return EmitWorldCoordinateSystem(writer); }},
    {word("View"), [](Writer& writer, const CFxCustomAction&) { return EmitViewCoordinateSystem(writer); }},
    {word("Top"), standardSystem},
    {word("Bottom"), standardSystem},
    {word("Left"), standardSystem},
    {word("Right"), standardSystem},
    {word("Front"), standardSystem},
    {word("Back"), standardSystem},
    {DataSignature::exactly({kPoint}),
     [](Writer& writer, const CFxCustomAction& action) {
         return EmitCoordinateSystemOrigin(writer, action.GetData(0).GetPoint());
     }},
    {wordAndName("Delete"),
     [](Writer& writer, const CFxCustomAction& action) {
         return EmitRemoveCoordinateSystem(writer, action.GetData(1).GetString());
     }},
    {wordAndName("NamedSave"),
     [](Writer& writer, const CFxCustomAction& action) {
         return EmitSaveCoordinateSystem(writer, action.GetData(1).GetString());
     }},
    {wordAndName("NamedRestore"),
     [](Writer& writer, const CFxCustomAction& action) {
         return EmitRestoreCoordinateSystem(writer, action.GetData(1).GetString());
     }},
    // A second point is an offset too.
    {DataSignature::exactly({kPoint, kPoint}),
     [](Writer& writer, const CFxCustomAction& action) {
         const OdGePoint3d& base = action.GetData(0).GetPoint();
         const OdGePoint3d& offset = action.GetData(1).GetPoint();
         return EmitAlignCoordinateSystemZAxis(writer, base, base + OdGeVector3d{offset.x, offset.y, offset.z});
     }},
    {DataSignature::exactly({kPoint, kVector}),
     [](Writer& writer, const CFxCustomAction& action) {
         const OdGePoint3d& base = action.GetData(0).GetPoint();
         return EmitAlignCoordinateSystemZAxis(writer, base, base + action.GetData(1).GetVector());
     }},
    {DataSignature::exactly({kHandle, kClass, kPoint}), &ConvertActionCoordinateSystemOfEntity},
    {wordAndPoints("3POINT"), threePoints},
    {wordAndPoints("X"), threePoints},
    {wordAndPoints("Y"), threePoints},
    {wordAndPoints("Z"), threePoints},
    {wordAndPoints("ZAXIS"), threePoints},
};

} // namespace inkmacro

std::int32_t ConvertActionCoordinateSystemOfEntity(Conversion& conversion, const CFxCustomAction& action,
                                                   Statement& text)
{
    inkmacro::takeVariable(conversion.writer, text, inkmacro::HandedVariable::Replaced);
    const OdDbHandle handle = action.GetData(0).GetHandle();
    const OdRxClass* const cls = action.GetData(1).GetClass();
    CFxString entity;
    conversion.names().ResolveVariable(handle, cls, entity);
    if (entity.isEmpty())
        entity = conversion.names().FetchedUnknown(handle, cls);
    if (entity.isEmpty() && conversion.Drops(inkmacro::emptyPlace))
        return PassOver(action, "the macro does not have the entity");
    text = EmitAlignCoordinateSystemToEntity(conversion.writer, entity, action.GetData(2).GetPoint());
    return kFxSuccess;
}
