// What becomes of changed properties, and of those that an added object's reader left.

#include "host/db/OdDbClasses.h"
#include "module/CFxConverterIWAPIImpl.h"
#include "objects/CFxConverterIWAPIObject.h"
#include "objects/classTable.h"
#include "objects/targets/dimensionOptions.h"
#include "objects/targets/references.h"
#include "objects/targets/setters.h"
#include "statements/RecordingState.h"
#include "statements/StatementGroup.h"
#include "statements/losses.h"

#include <algorithm>

namespace {

constexpr std::int16_t kJavaScript = 2;

bool hasRecord(const PropertyList& list, const char* tag)
{
    return std::any_of(list.begin(), list.end(),
                       [&](const CFxPropertyChangedPtr& record) { return record->GetName() == CFxString(tag); });
}

} // namespace

std::int32_t CFxConverterIWAPIObject::ConvertObjectChanges(const OdRxClass* cls, OdDbHandle handle, PropertyList& list,
                                                           bool fromAdded, QString& text)
{
    text.clear();
    changedClass = cls;
    changedHandle = handle;
    OdDbObjectId leader;
    if (cls == OdDbMText::desc())
        driver.GetNoteLeader(leader, handle);
    const OdDbObjectId noteLeader = fromAdded ? OdDbObjectId() : leader;
    CFxString name;
    if (!AddressChangedObject(cls, handle, noteLeader, list, name, text)) {
        NoteLoss("changes of " + ObjectTitle(cls, handle).toQString(),
                 driver.unmade.contains(handle)
                     ? "no statement inserts the object, so the macro has no variable for it"
                     : "the recording did not add the object, so the macro has no variable for it");
        return kFxSuccess;
    }

    StatementGroup group(writer);
    // For the statements of an everyday object.
    constexpr int room = 512;
    QString general;
    general.reserve(room);
    QString classText;
    if (cls->isDerivedFrom(OdDbEntity::desc())) {
        CFxString target = name;
        const QString dimension =
            IsDimensionClass(cls) ? EmitGetOptions(writer, generalDimension, name, target) : QString();
        ConvertGeneralProperties(list, fromAdded, cls == OdDbArcAlignedText::desc(), target, group, general);
        if (!general.isEmpty())
            general.prepend(dimension);
    }
    const ClassRow* const row = FindClass(cls);
    if (row && (!fromAdded || row->has(kSetWhenAdded)))
        ConvertClassChanges(*row, list, name, classText);
    if (const CFxVariant erased = fromAdded ? CFxVariant() : FindProperty("Erased", list, driver.GetContext());
        !erased.IsNull())
        classText += ConvertErased(cls, handle, name, erased);
    LoseRest(list, fromAdded);

    if (general.isEmpty() && classText.isEmpty()) {
        // Who left the group has given its level back already.
        if (RecordingLanguage() != kJavaScript && !group.abandoned())
            group.abandon();
        // The fetch of a note stands there for what follows it.
        if (!noteLeader.isNull())
            text.clear();
    } else if (group.abandoned()) {
        text += general;
        text += classText;
    } else {
        text += group.begin() + general + classText + group.close();
    }
    return kFxSuccess;
}

/// Gives the variable of the object, and the statement that the changes need in front of them. False for an object
/// that the macro does not know: its changes are dropped.
bool CFxConverterIWAPIObject::AddressChangedObject(const OdRxClass* cls, const OdDbHandle& handle,
                                                   const OdDbObjectId& noteLeader, const PropertyList& list,
                                                   CFxString& name, QString& text)
{
    if (!cls)
        return false;
    if (!noteLeader.isNull()) {
        name = NameObject(handle, cls);
        CFxString leader;
        if (!driver.FindEntry(noteLeader.getHandle()))
            driver.NoteUnmade();
        if (writer.repairs)
            text += EmitObjectVariable(noteLeader.getHandle(), OdDbLeader::desc(), leader);
        else
            leader = NameObject(noteLeader.getHandle(), OdDbLeader::desc());
        text += EmitGetNoteAnnotation(writer, name, leader);
        return true;
    }
    if (driver.FindEntry(handle)) {
        if (writer.repairs)
            text += EmitObjectVariable(handle, cls, name);
        else
            name = NameObject(handle, cls);
        return true;
    }
    if (cls == OdDbBlockTableRecord::desc() && hasRecord(list, "Objects")) {
        name = NameObject(handle, cls);
        text += EmitDeclareObject(writer, "BlockDefinition", name);
        return true;
    }
    // A sheet is found by its name in the records, it needs no variable.
    return cls == OdDbLayout::desc();
}

void CFxConverterIWAPIObject::ConvertClassChanges(const ClassRow& row, PropertyList& list, const CFxString& name,
                                                  QString& text)
{
    if (row.changes.groups)
        ConvertRows(*row.changes.groups, list, name, text);
    else if (row.changes.handler)
        (this->*row.changes.handler)(list, name, text);
}

QString CFxConverterIWAPIObject::ConvertErased(const OdRxClass* cls, const OdDbHandle& handle, const CFxString& name,
                                               const CFxVariant& erased)
{
    QString text;
    CFxString target = name;
    if (IsDimensionClass(cls))
        text = EmitGetOptions(writer, generalDimension, name, target);
    if (!erased.GetString().equalNoCase(ShownWord("YES"))) {
        LoseProperty("Erased", "what comes back has no statement");
        return text;
    }
    if (cls == OdDbViewTableRecord::desc()) {
        const OdDbObjectPtr object = IdOf(handle).openObject(true);
        if (const auto view = odrxCast<OdDbViewTableRecord>(object.get()))
            text += EmitRemoveNamedView(writer, name, view->getName(), view->isPaperspaceView());
        else
            LoseProperty("Erased", "the drawing does not have the view");
    } else if (cls == OdDbLayerTableRecord::desc()) {
        text += EmitRemoveLayer(writer, name);
    } else {
        text += EmitSetBoolProperty(writer, target, "Erased", true);
    }
    return text;
}

/// A property that most entities have, by the tag of its records and the name in the interface.
struct GeneralProperty
{
    PropertyTag tag;
    CFxString name;
};

std::int32_t CFxConverterIWAPIObject::ConvertGeneralProperties(PropertyList& list, bool fromAdded, bool isCurvedText,
                                                               const CFxString& target, StatementGroup& group,
                                                               QString& text)
{
    // Made once: they are asked for with every entity.
    static const GeneralProperty color{"LineColor", "Color"};
    static const GeneralProperty layer{"Layer", "Layer"};
    static const GeneralProperty lineStyle{"LineStyle", "LineStyle"};
    static const GeneralProperty lineScale{"LineScale", "LineScale"};
    static const GeneralProperty lineWeight{"LineWeight", "LineWeight"};
    static const GeneralProperty thickness{"Thickness", "Thickness"};
    static const GeneralProperty printStyle{"PrintStyle", "PrintStyle"};
    static const GeneralProperty transparency{"Transparency", {}};

    CFxVariant value;
    const auto take = [&](const GeneralProperty& property) {
        value = FindProperty(property.tag, list, driver.GetContext());
        return !value.IsNull();
    };
    const auto leaveGroup = [&] {
        if (!group.abandoned() && RecordingLanguage() != kJavaScript)
            group.abandon();
    };

    if (take(color)) {
        leaveGroup();
        CFxString holder = target;
        if (isCurvedText)
            text += EmitGetOptions(writer, curvedTextSettings, target, holder);
        text += EmitSetColor(writer, holder, color.name, value.GetColor());
        if (isCurvedText)
            text += EmitSetOptions(writer, curvedTextSettings, target, holder);
    }
    const auto addNamed = [&](const GeneralProperty& property, const QString& statement) {
        if (statement.isEmpty())
            LoseProperty(property.tag.text(), QStringLiteral("the drawing does not have what it names"));
        text += statement;
    };

    if (take(layer))
        addNamed(layer, EmitSetLayer(writer, target, layer.name, value.GetId()));
    if (take(lineStyle)) {
        leaveGroup();
        addNamed(lineStyle, EmitSetLineStyle(writer, target, lineStyle.name, value.GetId()));
    }
    if (take(lineScale))
        text += EmitSetDoubleProperty(writer, target, lineScale.name, value.GetDouble());
    if (take(lineWeight)) {
        leaveGroup();
        text += EmitSetLineWeight(writer, target, lineWeight.name, value.GetInt32());
    }
    if (take(thickness))
        text += EmitSetDoubleProperty(writer, target, thickness.name, value.GetDouble());
    if (take(printStyle))
        text += EmitSetProperty(writer, target, printStyle.name, value.GetString(), true);
    if (!fromAdded && take(transparency)) {
        if (value.GetType() == CFxVariant::kTransparency)
            text += EmitSetTransparency(writer, target, value.GetTransparency());
        else
            LoseProperty(transparency.tag.text(), "it is not recorded as a transparency");
    }
    return kFxSuccess;
}
