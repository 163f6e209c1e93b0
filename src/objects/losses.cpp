// What of an object's records does not come into the macro.

#include "objects/losses.h"
#include "host/db/OdDbClassMap.h"
#include "host/db/OdDbClasses.h"
#include "objects/classTable.h"
#include "objects/properties.h"
#include "statements/actionKinds.h"

#include <algorithm>
#include <span>
#include <vector>

namespace {

struct DerivedTag
{
    const char* tag;           ///< `*` at its end stands for whatever follows
    const char* cls = nullptr; ///< null for any
    bool isRead = false;       ///< the reader looks at it and tells what of it is lost
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
    // One of the two points is the other one moved by the justification.
    {"Position *", "AcDbAttributeDefinition"},
    {"Text alignment *", "AcDbAttributeDefinition"},
    // The insertion takes it from the drawing.
    {"Contents", "AcDbArcAlignedText"},
    {"Center *", "AcDbViewport"},
    {"Height", "AcDbViewport"},
    {"Width", "AcDbViewport"},
    {"Contents_*", "AcDbTable", true},
    {"RowHeight_*", "AcDbTable", true},
    {"ColumnWidth_*", "AcDbTable", true},
};

/// What the action that makes an object says in its own data.
constexpr DerivedTag actionTags[] = {
    {"Closed", "AcDbPolyline"},
    {"Vertex", "AcDbPolyline"},
    {"Global width", "AcDbPolyline"},
    {"Start segment width *", "AcDbPolyline"},
    {"End segment width *", "AcDbPolyline"},
    {"Pattern name", "AcDbHatch"},
    {"Angle", "AcDbHatch"},
    {"Scale", "AcDbHatch"},
    {"Spacing", "AcDbHatch"},
    {"Type", "AcDbHatch"},
    {"Associative", "AcDbHatch"},
    {"Color *", "AcDbHatch"},
    {"Centered", "AcDbHatch"},
    {"Gradient Angle", "AcDbHatch"},
    {"Name", "AcDbViewTableRecord"},
};

/// A derived value tells something of its own when nothing that it follows from is recorded.
struct LoneTag
{
    LoneTag(const char* className, const char* tag, std::initializer_list<const char*> sources, bool settable = false,
            double made = 0)
        : cls(oddbClassByName(className)), tag(tag), sources(sources), settable(settable), made(made)
    {
    }

    const OdRxClass* cls;
    QString tag;
    std::vector<const char*> sources; ///< beginnings of tags
    bool settable;                    ///< a change of it alone has a statement
    double made;                      ///< what an insertion without any record gives, 0 when not known
};

/// Made once: they are asked for with every object.
std::span<const LoneTag> loneTags()
{
    static const LoneTag rows[] = {
        {"AcDbCircle", "Diameter", {"Radius"}, true, 2},
        {"AcDbCircle", "Circumference", {"Radius"}, true},
        {"AcDbEllipse", "Major radius", {"Major axis vector"}, true},
        {"AcDbEllipse", "Radius ratio", {"Minor radius"}, true},
        {"AcDbLine", "Length", {"Start ", "End "}},
        {"AcDbLine", "Angle", {"Start ", "End "}},
        {"AcDbLine", "Delta X", {"Start ", "End "}},
        {"AcDbLine", "Delta Y", {"Start ", "End "}},
        {"AcDbLine", "Delta Z", {"Start ", "End "}},
        {"AcDbArc", "Arc length", {"Radius", "Start Angle", "End Angle"}},
        {"AcDbArc", "Total angle", {"Start Angle", "End Angle"}},
    };
    return rows;
}

bool isRecorded(const LoneTag& row, const PropertyList& list)
{
    return std::ranges::any_of(list, [&](const CFxPropertyChangedPtr& record) {
        return std::ranges::any_of(row.sources, [&](const char* source) {
            return record->GetName().toQString().startsWith(QLatin1String(source));
        });
    });
}

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
bool isInBlock(const OdRxClass* cls, const Conversion& conversion)
{
    return cls == OdDbHatch::desc() && conversion.HasSiblingBlock();
}

CFxString nameOfLineStyle(const OdDbObjectId& id)
{
    const auto style = odrxQuery<OdDbLinetypeTableRecord>(id.openObject(true).get());
    return style ? CFxString(style->getName()) : CFxString();
}

template<bool yes>
bool shows(const CFxVariant& value)
{
    return wordOf(value).equalNoCase(ShownWord(yes ? "Yes" : "No"));
}

/// A property, and whether a new object has that value anyway.
struct UsualValue
{
    const char* tag;
    bool (*isUsual)(const CFxVariant& value);
};
constexpr UsualValue usualValues[] = {
    {"LineColor", [](const CFxVariant& value) { return value.GetColor().isByLayer(); }},
    {"Layer",
     [](const CFxVariant& value) {
         return ACTIVE_DOCUMENT && value.GetId() == ACTIVE_DOCUMENT->GetDatabase()->getCLAYER();
     }},
    {"LineStyle", [](const CFxVariant& value) { return nameOfLineStyle(value.GetId()).equalNoCase("ByLayer"); }},
    {"Line space factor", [](const CFxVariant& value) { return value.GetDouble() == 1; }},
    {"LineScale", [](const CFxVariant& value) { return value.GetDouble() == 1; }},
    {"LineWeight", [](const CFxVariant& value) { return value.GetInt32() == kLineWeightByLayer; }},
    {"Thickness", [](const CFxVariant& value) { return value.GetDouble() == 0; }},
    {"Transparency",
     [](const CFxVariant& value) {
         return value.GetType() == CFxVariant::kTransparency &&
                value.GetTransparency().method == OdCmTransparency::ByLayer;
     }},
    {"Erased", [](const CFxVariant& value) { return !value.GetString().equalNoCase(ShownWord("YES")); }},
    {"Elevation", [](const CFxVariant& value) { return value.GetDouble() == 0; }},
    {"Display locked", shows<false>},
    {"On", shows<true>},
};

bool isUsual(const QString& tag, const CFxVariant& value)
{
    return std::ranges::any_of(
        usualValues, [&](const UsualValue& row) { return tag == QLatin1String(row.tag) && row.isUsual(value); });
}

bool isOneOf(std::span<const char* const> words, const CFxString& text)
{
    return std::ranges::any_of(words, [&](const char* word) { return text.equalNoCase(ShownWord(word)); });
}

QString listOf(std::span<const char* const> words)
{
    QStringList shown;
    for (const char* const word : words)
        shown.append('"' + ShownWord(word).toQString() + '"');
    return shown.join(", ");
}

} // namespace

void LoseObject(const RecordedObject& object, const char* reason)
{
    NoteLoss(ObjectTitle(object.cls, object.handle), reason);
}

static CFxString propertyTitle(const RecordedObject& object, const QString& tag)
{
    return "property \"" + tag + "\" of " + ObjectTitle(object.cls, object.handle).toQString();
}

void LoseProperty(const RecordedObject& object, const QString& tag, const QString& reason)
{
    GetFxSystemServices()->Notes().NoteLoss(object.handle, tag, reason, [&] { return propertyTitle(object, tag); });
}

void AssumeProperty(const RecordedObject& object, const QString& tag, const QString& reason)
{
    GetFxSystemServices()->Notes().NoteAssumption(object.handle, tag, reason,
                                                  [&] { return propertyTitle(object, tag); });
}

static const char otherForm[] = "it is recorded in another form";

void LoseUnlessFormed(const RecordedObject& object, const QString& tag, const CFxVariant& value, const ValueForm& form)
{
    if (!value.IsNull() && !form.fits(value))
        LoseProperty(object, tag, otherForm);
}

void AssumeUnlessFormed(const RecordedObject& object, const QString& tag, const CFxVariant& value,
                        const ValueForm& form)
{
    if (value.IsNull())
        return;
    if (!form.fits(value))
        AssumeProperty(object, tag, otherForm);
    else if (value.GetType() == CFxVariant::kString && !form.words.empty() && !isOneOf(form.words, value.GetString()))
        AssumeProperty(object, tag, "its word is none of " + listOf(form.words));
}

void LoseArcs(const Conversion& conversion, const RecordedObject& object, const OdDbPolyline& polyline)
{
    for (unsigned i = 0; i < polyline.numVerts(); ++i)
        if (polyline.segType(i) == OdDbPolyline::kArc && !conversion.HasSibling(inkmacro::kPolyline))
            return LoseProperty(object, "Vertex", "arcs come as lines");
}

void LoseNoteWithoutLeader(const Conversion& conversion, const RecordedObject& object)
{
    if (object.cls == OdDbMText::desc() && !conversion.names().FindEntry(GetNoteLeader(object.handle).getHandle()))
        LoseObject(object, "a leader brings it that the macro does not have");
}

void LoseRest(const Conversion& conversion, const RecordedObject& object, const PropertyList& list, bool fromAdded)
{
    if (list.empty())
        return;
    const bool isMade = fromAdded && IsMadeByAction(conversion, object);
    if (fromAdded && object.cls == OdDbHatch::desc() && !isMade)
        return;
    const char* const reason = !isMade                             ? "no statement sets it"
                               : isInBlock(object.cls, conversion) ? "the block that holds the object does not set it"
                                                                   : "the action that makes the object does not set it";
    for (const CFxPropertyChangedPtr& record : list) {
        const QString& tag = record->GetName();
        const bool isThere =
            fromAdded && (holds(insertedTags, object.cls, tag) || isUsual(tag, record->GetValue(conversion.context)) ||
                          (isMade && holds(actionTags, object.cls, tag)));
        if (!isThere && !holds(derivedTags, object.cls, tag))
            LoseProperty(object, tag, reason);
    }
}

void LoseLoneTags(const Conversion& conversion, const RecordedObject& object, const PropertyList& list, bool fromAdded)
{
    const auto concerns = [&](const LoneTag& row) { return object.cls == row.cls && (fromAdded || !row.settable); };
    const std::span<const LoneTag> rows = loneTags();
    const auto first = std::ranges::find_if(rows, concerns);
    if (first == rows.end())
        return;
    for (const CFxPropertyChangedPtr& record : list) {
        const QString& tag = record->GetName();
        const auto row = std::find_if(first, rows.end(), [&](const LoneTag& known) {
            // Few tags of an everyday object begin like one that is looked for.
            return tag.size() == known.tag.size() && tag[0] == known.tag[0] && tag == known.tag && concerns(known);
        });
        if (row != rows.end() && !isRecorded(*row, list) &&
            !(fromAdded && row->made != 0 && record->GetValue(conversion.context).GetDouble() == row->made))
            LoseProperty(object, row->tag, "what it follows from is not recorded");
    }
}

std::vector<QString> RepeatedTags(const OdRxClass* cls, bool fromAdded)
{
    std::vector<QString> tags;
    const auto append = [&](std::span<const DerivedTag> rows) {
        for (const DerivedTag& row : rows)
            if (!row.isRead && (!row.cls || cls->name() == QLatin1String(row.cls)))
                tags.push_back(row.tag);
    };
    append(derivedTags);
    if (fromAdded) {
        append(insertedTags);
        append(actionTags);
    }
    return tags;
}

std::int32_t KindThatMakes(const OdRxClass* cls)
{
    const MadeByAction* const row = madeByAction(cls);
    return row ? row->kind : -1;
}

std::int32_t KindThatCompletes(const OdRxClass* cls)
{
    return cls == OdDbPolyline::desc() ? inkmacro::kPolyline : -1;
}

bool IsEntityOfAction(const OdRxClass* cls, std::int32_t kind)
{
    return std::ranges::any_of(madeByActions, [&](const MadeByAction& made) {
        const OdRxClass* const known = oddbClassByName(made.cls);
        return made.kind == kind && (!cls || cls == known) && known->isDerivedFrom(OdDbEntity::desc());
    });
}

bool IsMadeByAction(const Conversion& conversion, const RecordedObject& object)
{
    if (object.cls == OdDbPolyline::desc())
        return conversion.HasSibling(inkmacro::kPolyline);
    if (isInBlock(object.cls, conversion))
        return true;
    const MadeByAction* const row = madeByAction(object.cls);
    const ClassRow* const known = FindClass(object.cls);
    if (!row || !known || !conversion.HasSibling(row->kind))
        return false;
    const bool onlyLast = known->has(kFinishedByCustomAction) && object.cls != OdDbViewTableRecord::desc();
    return !onlyLast || object.handle == conversion.lastFinished || conversion.finished.contains(object.handle);
}

void LoseUnmade(const Conversion& conversion, const RecordedObject& object, const PropertyList& rest, bool written)
{
    const MadeByAction* const row = madeByAction(object.cls);
    if (!row)
        return;
    if (!isInBlock(object.cls, conversion) && !conversion.HasSibling(row->kind)) {
        LoseObject(object, "no action of its command makes it");
        return;
    }
    if (!written && (object.cls->isDerivedFrom(OdDbEntity::desc()) || object.cls == OdDbViewTableRecord::desc()))
        LoseRest(conversion, object, rest, true);
}
