// What becomes of changed properties, and of those that an added object's reader left.

#include "frame/CFxConverterIWAPIImpl.h"
#include "frame/RecordingState.h"
#include "host/db/OdDbClassMap.h"
#include "objects/CFxConverterIWAPIObject.h"
#include "objects/targets/references.h"
#include "objects/targets/setters.h"
#include "targets/blocks.h"

#include <algorithm>

namespace {

constexpr std::int16_t kJavaScript = 2;

bool hasRecord(const PropertyList& list, const char* tag)
{
    return std::any_of(list.begin(), list.end(),
                       [&](const CFxPropertyChangedPtr& record) { return record->GetName() == CFxString(tag); });
}

} // namespace

CFxConverterIWAPIObject::ClassChanges CFxConverterIWAPIObject::ClassChangesOf(const OdRxClass* cls)
{
    using Self = CFxConverterIWAPIObject;
    constexpr bool notAdded = true;
    static const QHash<const OdRxClass*, ClassChanges> rows{
        {oddbDwgClassMapDesc(19), {&Self::ConvertModifiedLine}},
        {oddbDwgClassMapDesc(18), {&Self::ConvertModifiedCircle}},
        {oddbDwgClassMapDesc(53), {nullptr}}, // text style
        {oddbDwgClassMapDesc(27), {&Self::ConvertModifiedPoint}},
        {oddbDwgClassMapDesc(40), {&Self::ConvertModifiedRay}},
        {oddbDwgClassMapDesc(17), {&Self::ConvertModifiedArc}},
        {oddbDwgClassMapDesc(41), {&Self::ConvertModifiedInfiniteLine}},
        {oddbDwgClassMapDesc(35), {&Self::ConvertModifiedEllipse}},
        {oddbDwgClassMapDesc(3), {nullptr}},            // attribute definition
        {oddbDwgClassMapDesc(1), {nullptr}},            // simple note
        {oddbDwgClassMapDesc(44), {nullptr}},           // note
        {oddbDwgClassMapDesc(7), {nullptr}},            // block instance
        {OdDbRasterImage::desc(), {nullptr}},           // picture
        {oddbDwgClassMapDesc(61), {nullptr}},           // named view: passed over on purpose
        {oddbDwgClassMapDesc(22), {nullptr, notAdded}}, // dimensions
        {oddbDwgClassMapDesc(24), {nullptr, notAdded}},
        {oddbDwgClassMapDesc(23), {nullptr, notAdded}},
        {OdDbArcDimension::desc(), {nullptr, notAdded}},
        {oddbDwgClassMapDesc(26), {nullptr, notAdded}},
        {oddbDwgClassMapDesc(20), {nullptr, notAdded}},
        {oddbDwgClassMapDesc(25), {nullptr, notAdded}},
        {OdDbRadialDimensionLarge::desc(), {nullptr, notAdded}},
        {oddbDwgClassMapDesc(21), {nullptr, notAdded}},
        {oddbDwgClassMapDesc(78), {nullptr}}, // hatch
        {oddbDwgClassMapDesc(16), {&Self::ConvertModifiedPolyline3D}},
        {oddbDwgClassMapDesc(45), {&Self::ConvertModifiedLeader}},
        {oddbDwgClassMapDesc(47), {&Self::ConvertModifiedRichLine}},
        {oddbDwgClassMapDesc(31), {&Self::ConvertModifiedSolid}},
        {oddbDwgClassMapDesc(77), {&Self::ConvertModifiedPolyline}},
        {oddbDwgClassMapDesc(36), {&Self::ConvertModifiedSpline}},
        {oddbDwgClassMapDesc(33), {&Self::ConvertModifiedShape}},
        {OdDbTable::desc(), {nullptr}}, // table
        {oddbDwgClassMapDesc(30), {&Self::ConvertModifiedPolygonMesh}},
        {oddbDwgClassMapDesc(29), {&Self::ConvertModifiedPolyFaceMesh}},
        {oddbDwgClassMapDesc(46), {&Self::ConvertModifiedTolerance}},
        {OdDbTableStyle::desc(), {nullptr}}, // table style
        {oddbDwgClassMapDesc(28), {&Self::ConvertModifiedFace}},
        {oddbDwgClassMapDesc(74), {&Self::ConvertModifiedEmbeddedObject}},
        {oddbDwgClassMapDesc(69), {nullptr}}, // dimension style
        {oddbDwgClassMapDesc(73), {nullptr}}, // rich line style
        {oddbDwgClassMapDesc(57), {nullptr}}, // line style
        {oddbDwgClassMapDesc(34), {&Self::ConvertModifiedViewport, notAdded}},
        {oddbDwgClassMapDesc(32), {&Self::ConvertModifiedTrace}},
        {oddbDwgClassMapDesc(51), {nullptr}},           // layer
        {oddbDwgClassMapDesc(49), {nullptr, notAdded}}, // block definition
        {oddbDwgClassMapDesc(72), {nullptr, notAdded}}, // group
        {oddbDwgClassMapDesc(82), {nullptr, notAdded}}, // sheet
        {oddbDwgClassMapDesc(65), {nullptr, notAdded}}, // view tile
        {OdDbArcAlignedText::desc(), {nullptr}},        // curved text
    };
    return rows.value(cls, {nullptr});
}

std::int32_t CFxConverterIWAPIObject::ConvertObjectChanges(OdRxClass* cls, OdDbHandle handle, PropertyList& list,
                                                           bool fromAdded, QString& text)
{
    text.clear();
    OdDbObjectId leader;
    if (cls == OdDbMText::desc())
        driver.GetNoteLeader(leader, handle);
    const OdDbObjectId noteLeader = fromAdded ? OdDbObjectId() : leader;
    CFxString name;
    if (!AddressChangedObject(cls, handle, noteLeader, list, name, text))
        return kFxSuccess;
    if (!name.isEmpty()) {
        const OdDbObjectId id = IdOf(handle);
        changedVariableById[id] = name;
        changedIdByVariable[name] = id;
    }

    const QString opening = EmitBlockBegin(writer);
    QString general;
    QString classText;
    bool noGroup = false;
    if (cls->isDerivedFrom(OdDbEntity::desc())) {
        CFxString target = name;
        const QString dimension = IsDimensionClass(cls) ? EmitGetGeneralDimension(writer, name, target) : QString();
        ConvertGeneralProperties(list, fromAdded, cls == OdDbArcAlignedText::desc(), target, noGroup, general);
        if (!general.isEmpty())
            general.prepend(dimension);
    }
    if (const ClassChanges row = ClassChangesOf(cls); row.handler && !(fromAdded && row.notAdded))
        (this->*row.handler)(list, fromAdded, name, classText);
    const CFxVariant erased = FindProperty("Erased", list, driver.GetContext());
    if (!fromAdded && !erased.IsNull())
        classText += ConvertErased(cls, name, erased);

    if (general.isEmpty() && classText.isEmpty()) {
        // Who left the group has given its level back already.
        if (RecordingLanguage() != kJavaScript && !noGroup)
            --writer.IndentLevel;
        // The fetch of a note stands there for what follows it.
        if (!noteLeader.isNull())
            text.clear();
    } else if (noGroup) {
        text += general + classText;
    } else {
        text += opening + general + classText + EmitBlockEnd(writer);
    }
    return kFxSuccess;
}

/// Gives the variable of the object, and the statement that the changes need in front of them. False for an object
/// that the macro does not know: its changes are dropped.
bool CFxConverterIWAPIObject::AddressChangedObject(OdRxClass* cls, const OdDbHandle& handle,
                                                   const OdDbObjectId& noteLeader, const PropertyList& list,
                                                   CFxString& name, QString& text)
{
    if (!cls)
        return false;
    if (!noteLeader.isNull()) {
        CFxString leader;
        ObjectVariable(handle, cls, name);
        ObjectVariable(noteLeader.getHandle(), OdDbLeader::desc(), leader);
        text += EmitGetNoteAnnotation(writer, name, leader);
        return true;
    }
    if (driver.FindEntry(handle)) {
        ObjectVariable(handle, cls, name);
        return true;
    }
    if (cls == oddbDwgClassMapDesc(49) && hasRecord(list, "Objects")) {
        ObjectVariable(handle, cls, name);
        text += EmitDeclareBlockDefinition(writer, name);
        return true;
    }
    // A sheet is found by its name in the records, it needs no variable.
    return cls == OdDbLayout::desc();
}

QString CFxConverterIWAPIObject::ConvertErased(OdRxClass* cls, const CFxString& name, const CFxVariant& erased)
{
    QString text;
    CFxString target = name;
    if (IsDimensionClass(cls))
        text = EmitGetGeneralDimension(writer, name, target);
    // What comes back has no statement.
    if (!erased.GetString().equalNoCase(ShownWord("YES")))
        return text;
    if (cls == OdDbViewTableRecord::desc()) {
        const OdDbObjectPtr object = changedIdByVariable[name].openObject(true);
        if (const auto view = odrxCast<OdDbViewTableRecord>(object.get()))
            text += EmitRemoveNamedView(writer, name, view->getName(), view->isPaperspaceView());
    } else if (cls == oddbDwgClassMapDesc(51)) {
        text += EmitRemoveLayer(writer, name);
    } else {
        text += EmitSetBoolProperty(writer, target, "Erased", true);
    }
    return text;
}

std::int32_t CFxConverterIWAPIObject::ConvertGeneralProperties(PropertyList& list, bool fromAdded, bool isCurvedText,
                                                               const CFxString& target, bool& noGroup, QString& text)
{
    noGroup = false;
    CFxVariant value;
    // Asked for each object: the tags are made once.
    const auto take = [&](const QString& tag) {
        value = FindProperty(tag, list, driver.GetContext());
        return !value.IsNull();
    };
    const auto leaveGroup = [&] {
        if (noGroup || RecordingLanguage() == kJavaScript)
            return;
        --writer.IndentLevel;
        noGroup = true;
    };

    if (take(QStringLiteral("LineColor"))) {
        leaveGroup();
        CFxString holder = target;
        if (isCurvedText)
            text += EmitGetCurvedTextSettings(writer, target, holder);
        text += EmitSetColor(writer, holder, "Color", value.GetColor());
        if (isCurvedText)
            text += EmitSetCurvedTextSettings(writer, target, holder);
    }
    if (take(QStringLiteral("Layer")))
        text += EmitSetLayer(writer, target, "Layer", value.GetId());
    if (take(QStringLiteral("LineStyle"))) {
        leaveGroup();
        text += EmitSetLineStyle(writer, target, "LineStyle", value.GetId());
    }
    if (take(QStringLiteral("LineScale")))
        text += EmitSetDoubleProperty(writer, target, "LineScale", value.GetDouble());
    if (take(QStringLiteral("LineWeight"))) {
        leaveGroup();
        text += EmitSetLineWeight(writer, target, "LineWeight", value.GetInt32());
    }
    if (take(QStringLiteral("Thickness")))
        text += EmitSetDoubleProperty(writer, target, "Thickness", value.GetDouble());
    if (take(QStringLiteral("PrintStyle")))
        text += EmitSetProperty(writer, target, "PrintStyle", value.GetString(), true);
    if (take(QStringLiteral("Transparency")) && !fromAdded && value.GetType() == CFxVariant::kTransparency)
        text += EmitSetTransparency(writer, target, value.GetTransparency());
    return kFxSuccess;
}
