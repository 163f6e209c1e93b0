// What of an object's records does not come into the macro.

#include "statements/losses.h"
#include "host/db/OdDbClassMap.h"
#include "host/db/OdDbClasses.h"
#include "objects/CFxConverterIWAPIObject.h"
#include "objects/classTable.h"
#include "statements/actionKinds.h"
#include "module/CFxConverterIWAPIImpl.h"

#include <algorithm>
#include <span>

namespace {

struct DerivedTag
{
    const char* tag;           ///< `*` at its end stands for whatever follows
    const char* cls = nullptr; ///< null for any
};
/// Shown values that the host computes of others: a change of them comes with a change of those.
constexpr DerivedTag derivedTags[] = {
    {"Area"},
    {"Arc length"},
    {"Length"},
    {"Measurement"},
    {"Perimeter"},
    {"Total angle"},
    {"Angle", "AcDbLine"},
    {"Delta *", "AcDbLine"},
};

/// What the insertion of an added object says in another form.
constexpr DerivedTag insertedTags[] = {
    {"Circumference", "AcDbCircle"},
    {"Diameter", "AcDbCircle"},
    {"Major radius", "AcDbEllipse"},
    {"Radius ratio", "AcDbEllipse"},
    // One point of a collection, which the property sheet shows.
    {"Vertex *"},
    {"Control point *", "AcDbSpline"},
    {"Fit point *", "AcDbSpline"},
    {"Line space factor", "AcDbMText"},
    // One of the two points is the other one moved by the justification.
    {"Position *", "AcDbAttributeDefinition"},
    {"Text alignment *", "AcDbAttributeDefinition"},
    // The insertion takes it from the drawing.
    {"Contents", "AcDbArcAlignedText"},
    {"Center *", "AcDbViewport"},
    {"Height", "AcDbViewport"},
    {"Width", "AcDbViewport"},
    // The reader tells which of them are lost.
    {"Contents_*", "AcDbTable"},
    {"RowHeight_*", "AcDbTable"},
    {"ColumnWidth_*", "AcDbTable"},
};

bool holds(std::span<const DerivedTag> rows, const OdRxClass* cls, const QString& tag)
{
    return std::ranges::any_of(rows, [&](const DerivedTag& row) {
        const QLatin1String known(row.tag);
        const bool fits = known.endsWith(QLatin1Char('*')) ? tag.startsWith(known.chopped(1)) : tag == known;
        return fits && (!row.cls || cls->name() == QLatin1String(row.cls));
    });
}

constexpr std::int32_t kLineWeightByLayer = -1;

/// Objects that a custom action of their command makes.
struct MadeByAction
{
    const char* cls;
    std::int32_t kind;
};
constexpr MadeByAction madeByActions[] = {
    {"AcDbHatch", inkmacro::kInsertHatch},
    {"AcDbLayout", inkmacro::kSheet},
    {"AcDbOle2Frame", inkmacro::kEmbeddedObject},
    {"AcDbRegion", inkmacro::kRegion},
    {"AcDbViewport", inkmacro::kViewport},
    {"AcDbViewportTableRecord", inkmacro::kViewTiles},
    {"AcDbViewTableRecord", inkmacro::kViewBackground},
};

/// Null for a class whose objects a reader makes.
const MadeByAction* madeByAction(const OdRxClass* cls)
{
    const auto row = std::ranges::find_if(
        madeByActions, [&](const MadeByAction& made) { return cls->name() == QLatin1String(made.cls); });
    return row == std::end(madeByActions) ? nullptr : row;
}

/// A block inserts the hatches that it is made of.
bool isInBlock(const OdRxClass* cls, const CFxConverterIWAPIImpl& driver)
{
    return cls == OdDbHatch::desc() && driver.HasSiblingBlock();
}

CFxString nameOfLineStyle(const OdDbObjectId& id)
{
    const auto style = odrxQuery<OdDbLinetypeTableRecord>(id.openObject(true).get());
    return style ? CFxString(style->getName()) : CFxString();
}

/// A general property, and whether a new object has that value anyway.
struct GeneralTag
{
    const char* tag;
    bool (*isUsual)(const CFxVariant& value);
};
constexpr GeneralTag generalTags[] = {
    {"LineColor", [](const CFxVariant& value) { return value.GetColor().isByLayer(); }},
    {"Layer",
     [](const CFxVariant& value) {
         return ACTIVE_DOCUMENT && value.GetId() == ACTIVE_DOCUMENT->GetDatabase()->getCLAYER();
     }},
    {"LineStyle", [](const CFxVariant& value) { return nameOfLineStyle(value.GetId()).equalNoCase("ByLayer"); }},
    {"LineScale", [](const CFxVariant& value) { return value.GetDouble() == 1; }},
    {"LineWeight", [](const CFxVariant& value) { return value.GetInt32() == kLineWeightByLayer; }},
    {"Thickness", [](const CFxVariant& value) { return value.GetDouble() == 0; }},
    {"Transparency",
     [](const CFxVariant& value) {
         return value.GetType() == CFxVariant::kTransparency &&
                value.GetTransparency().method == OdCmTransparency::ByLayer;
     }},
    {"Erased", [](const CFxVariant& value) { return !value.GetString().equalNoCase(ShownWord("YES")); }},
};

bool isUsual(const QString& tag, const CFxVariant& value)
{
    return std::ranges::any_of(
        generalTags, [&](const GeneralTag& row) { return tag == QLatin1String(row.tag) && row.isUsual(value); });
}

} // namespace

void CFxConverterIWAPIObject::LoseObject(const char* reason) const
{
    NoteLoss(ObjectTitle(changedClass, changedHandle), reason);
}

void CFxConverterIWAPIObject::LoseProperty(const QString& tag, const QString& reason) const
{
    GetFxSystemServices()->Notes().NoteLoss(changedHandle, tag, reason, [&] {
        return CFxString("property \"" + tag + "\" of " + ObjectTitle(changedClass, changedHandle).toQString());
    });
}

void CFxConverterIWAPIObject::LoseArcs(const OdDbPolyline& polyline) const
{
    for (unsigned i = 0; i < polyline.numVerts(); ++i)
        if (polyline.segType(i) == OdDbPolyline::kArc && !driver.HasSibling(inkmacro::kPolyline))
            return LoseProperty("Vertex", "arcs come as lines");
}

void CFxConverterIWAPIObject::LoseNoteWithoutLeader(const OdRxClass* cls, const OdDbHandle& handle) const
{
    if (cls == OdDbMText::desc() && !driver.FindEntry(LeaderOfNote(handle).getHandle()))
        NoteLoss(ObjectTitle(cls, handle), "a leader brings it that the macro does not have");
}

/// What is left of an added object is no loss when an action makes the object, nor when the object is lost itself, as a
/// hatch without its action is.
void CFxConverterIWAPIObject::LoseRest(const PropertyList& list, bool fromAdded) const
{
    if (list.empty())
        return;
    if (fromAdded && (changedClass == OdDbHatch::desc() || IsMadeByAction(changedClass, changedHandle)))
        return;
    for (const CFxPropertyChangedPtr& record : list) {
        const QString& tag = record->GetName();
        const bool isThere = fromAdded && (holds(insertedTags, changedClass, tag) ||
                                           isUsual(tag, record->GetValue(driver.GetContext())));
        if (!isThere && !holds(derivedTags, changedClass, tag))
            LoseProperty(tag, "no statement sets it");
    }
}

bool CFxConverterIWAPIObject::IsEntityOfAction(const OdRxClass* cls, std::int32_t kind)
{
    return std::ranges::any_of(madeByActions, [&](const MadeByAction& made) {
        const OdRxClass* const known = oddbClassByName(made.cls);
        return made.kind == kind && (!cls || cls == known) && known->isDerivedFrom(OdDbEntity::desc());
    });
}

bool CFxConverterIWAPIObject::IsMadeByAction(const OdRxClass* cls, const OdDbHandle& handle) const
{
    if (cls == OdDbPolyline::desc())
        return driver.HasSibling(inkmacro::kPolyline);
    if (isInBlock(cls, driver))
        return true;
    const MadeByAction* const row = madeByAction(cls);
    const ClassRow* const known = FindClass(cls);
    if (!row || !known || !driver.HasSibling(row->kind))
        return false;
    const bool onlyLast = known->has(kFinishedByCustomAction) && cls != OdDbViewTableRecord::desc();
    return !onlyLast || handle == driver.lastFinished || driver.finished.contains(handle);
}

void CFxConverterIWAPIObject::LoseUnmade(PropertyList& rest, bool written)
{
    const MadeByAction* const row = madeByAction(changedClass);
    if (!row)
        return;
    if (!isInBlock(changedClass, driver) && !driver.HasSibling(row->kind)) {
        LoseObject("no action of its command makes it");
        return;
    }
    if (written || !changedClass->isDerivedFrom(OdDbEntity::desc()))
        return;
    for (const auto& [tag, isUsual] : generalTags)
        if (const CFxVariant value = FindProperty(tag, rest, driver.GetContext()); !value.IsNull() && !isUsual(value))
            LoseProperty(tag, "the action that makes the object does not set it");
}
