// What becomes of changed properties, and of those that an added object's reader left.

#include "host/db/OdDbClasses.h"
#include "objects/ChangeRows.h"
#include "objects/classTable.h"
#include "objects/entries.h"
#include "objects/losses.h"
#include "objects/properties.h"
#include "objects/targets/dimensionOptions.h"
#include "objects/targets/references.h"
#include "objects/targets/setters.h"
#include "statements/RecordingState.h"
#include "statements/StatementGroup.h"
#include "statements/losses.h"
#include "targets/variables.h"

#include <algorithm>

using inkmacro::Fault;
using inkmacro::Target;

namespace {

constexpr std::int16_t kJavaScript = 2;

bool hasRecord(const PropertyList& list, const char* tag)
{
    return std::any_of(list.begin(), list.end(),
                       [&](const CFxPropertyChangedPtr& record) { return record->GetName() == CFxString(tag); });
}

} // namespace

static Statement fetchLent(Conversion& conversion, RecordedObject& object)
{
    const auto& [cls, handle, name] = object;
    object.name = conversion.names().LendVariable(handle, cls);
    return cls == OdDbLayerTableRecord::desc()
               ? EmitGetLayer(conversion.writer, name, LayerName(conversion, handle))
               : EmitGetObjectByHandle(conversion.writer, FindTypeNames(cls)->type, name, handle);
}

/// Why the macro does not come by an object that the recording did not add; null where it does.
static const char* whyOutOfReach(const Conversion& conversion, const OdRxClass* cls, const OdDbHandle& handle)
{
    if (conversion.names().IsUnmade(handle))
        return "no statement inserts the object, so the macro has no variable for it";
    if (!IsSupportedClass(cls) || !HasInterface(cls))
        return "objects of its class have no statements";
    if (cls == OdDbLayerTableRecord::desc() && LayerName(conversion, handle).isEmpty())
        return "the drawing does not have the layer";
    const OdDbObjectPtr object = IdOf(handle).openObject(true);
    if (!object)
        return "the recording did not add the object, so the macro has no variable for it";
    if (object->isA() != cls)
        return "the drawing has an object of another class under its handle";
    return conversion.names().FetchesUnknown() ? nullptr
                                               : "the recording did not add the object, and only a repaired macro "
                                                 "fetches it from the drawing";
}

/// Gives the variable of the object, and the statement that the changes need in front of them. False for an object
/// that the macro does not know: its changes are dropped.
static bool addressChangedObject(Conversion& conversion, RecordedObject& object, const OdDbObjectId& noteLeader,
                                 const PropertyList& list, Statement& text)
{
    const auto& [cls, handle, name] = object;
    Names& names = conversion.names();
    if (!noteLeader.isNull()) {
        object.name = names.NameObject(handle, cls);
        CFxString leader;
        if (!names.FindEntry(noteLeader.getHandle()))
            conversion.faults.noteUnmade();
        text += names.EmitVariableOfChanged(noteLeader.getHandle(), OdDbLeader::desc(), leader);
        text += EmitGetNoteAnnotation(conversion.writer, name, leader);
        return true;
    }
    if (names.FindEntry(handle)) {
        text += names.EmitVariableOfChanged(handle, cls, object.name);
        return true;
    }
    if (cls == OdDbBlockTableRecord::desc() && hasRecord(list, "Objects")) {
        object.name = names.NameObject(handle, cls);
        text += EmitDeclareObject(conversion.writer, "BlockDefinition", name);
        return true;
    }
    // A sheet is found by its name in the records, it needs no variable.
    if (cls == OdDbLayout::desc())
        return true;
    if (const char* const reason = whyOutOfReach(conversion, cls, handle)) {
        NoteLoss("changes of " + ObjectTitle(cls, handle).toQString(), reason);
        return false;
    }
    // Nor does a named view, of which nothing but its removal is written.
    if (cls != OdDbViewTableRecord::desc())
        text += fetchLent(conversion, object);
    return true;
}

static const Fault kErasedSheet{
    "ConvertObjectChanges",
    {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
    "a sheet has no property that erases it"};

CFxString LayerName(const Conversion& conversion, const OdDbHandle& handle)
{
    const auto record = odrxQuery<OdDbLayerTableRecord>(IdOf(handle).openObject(true).get());
    return record ? NameByNow(conversion.writer, *record) : CFxString();
}

bool LacksErasure(const OdRxClass* cls)
{
    return cls == OdDbViewTableRecord::desc() || cls == OdDbLayerTableRecord::desc() || cls == OdDbLayout::desc();
}

Statement TakeAway(Writer& writer, const RecordedObject& object)
{
    if (object.cls == OdDbLayerTableRecord::desc())
        return EmitRemoveLayer(writer, object.name);
    if (object.cls == OdDbLayout::desc()) {
        LoseProperty(object, "Erased", "the interface cannot erase a sheet");
        return {};
    }
    const OdDbObjectPtr opened = IdOf(object.handle).openObject(true);
    if (const auto view = odrxCast<OdDbViewTableRecord>(opened.get()))
        return EmitRemoveNamedView(writer, object.name, view->getName(), view->isPaperspaceView());
    LoseProperty(object, "Erased", "the drawing does not have the view");
    return {};
}

static Statement convertErased(Conversion& conversion, const RecordedObject& object, const CFxVariant& erased)
{
    Writer& writer = conversion.writer;
    Statement text;
    CFxString target = object.name;
    if (IsDimensionClass(object.cls))
        text = EmitGetOptions(writer, generalDimension, object.name, target);
    if (!erased.GetString().equalNoCase(ShownWord("YES")))
        LoseProperty(object, "Erased", "what comes back has no statement");
    else if (LacksErasure(object.cls) && (object.cls != OdDbLayout::desc() || conversion.Drops(kErasedSheet)))
        text += TakeAway(writer, object);
    else
        text += EmitSetBoolProperty(writer, target, "Erased", true);
    return text;
}

static Statement convertClassChanges(Conversion& conversion, const RecordedObject& object, PropertyList& list,
                                     bool fromAdded)
{
    Statement text;
    const ClassRow* const row = FindClass(object.cls);
    if (row && (!fromAdded || row->has(kSetWhenAdded))) {
        if (row->changes.groups)
            ConvertRows(conversion, *row->changes.groups, object, list, text);
        else if (row->changes.handler)
            row->changes.handler(conversion, object, list, text);
    }
    if (const CFxVariant erased =
            fromAdded ? CFxVariant() : TakeProperty(conversion, object, "Erased", forms::text.with(forms::yesNo), list);
        !erased.IsNull())
        text += convertErased(conversion, object, erased);
    return text;
}

static Statement convertGeneral(Conversion& conversion, const RecordedObject& object, PropertyList& list,
                                bool fromAdded, StatementGroup& group)
{
    // For the statements of an everyday object.
    constexpr int room = 512;
    Statement general;
    general.reserve(room);
    CFxString target = object.name;
    const Statement dimension = IsDimensionClass(object.cls)
                                    ? EmitGetOptions(conversion.writer, generalDimension, object.name, target)
                                    : Statement();
    ConvertGeneralProperties(conversion, object, list, fromAdded, target, group, general);
    if (!general.isEmpty())
        general.prepend(dimension);
    return general;
}

void ConvertObjectChanges(Conversion& conversion, const OdRxClass* cls, const OdDbHandle& handle, PropertyList& list,
                          bool fromAdded, Statement& text)
{
    text.clear();
    RecordedObject object{cls, handle, {}};
    const OdDbObjectId leader = cls == OdDbMText::desc() ? GetNoteLeader(handle) : OdDbObjectId();
    const OdDbObjectId noteLeader = fromAdded ? OdDbObjectId() : leader;
    if (!addressChangedObject(conversion, object, noteLeader, list, text))
        return;
    const bool isFetched = conversion.names().IsLent(handle) && !text.isEmpty();

    if (!fromAdded)
        LoseLoneTags(conversion, object, list, false);
    StatementGroup group(conversion.writer);
    const Statement general =
        cls->isDerivedFrom(OdDbEntity::desc()) ? convertGeneral(conversion, object, list, fromAdded, group) : QString();
    const Statement classText = convertClassChanges(conversion, object, list, fromAdded);
    LoseRest(conversion, object, list, fromAdded);

    if (general.isEmpty() && classText.isEmpty()) {
        // Who left the group has given its level back already.
        if (RecordingLanguage() != kJavaScript && !group.abandoned())
            group.abandon();
        // A fetch stands there for what follows it.
        if (!noteLeader.isNull() || isFetched)
            text.clear();
        if (isFetched)
            conversion.names().TakeBack(handle);
    } else if (group.abandoned()) {
        text += general;
        text += classText;
    } else {
        text += group.begin() + general + classText + group.close();
    }
    if (conversion.command == 0)
        conversion.names().TakeBack(handle);
}

/// A property that most entities have, by the tag of its records and the name in the interface.
struct GeneralProperty
{
    PropertyTag tag;
    ValueForm form;
    CFxString name;
};

void ConvertGeneralProperties(Conversion& conversion, const RecordedObject& object, PropertyList& list, bool fromAdded,
                              const CFxString& target, StatementGroup& group, Statement& text)
{
    Writer& writer = conversion.writer;
    const bool isCurvedText = object.cls == OdDbArcAlignedText::desc();
    // Made once: they are asked for with every entity.
    static const GeneralProperty color{"LineColor", forms::color, "Color"};
    static const GeneralProperty layer{"Layer", forms::object, "Layer"};
    static const GeneralProperty lineStyle{"LineStyle", forms::object, "LineStyle"};
    static const GeneralProperty lineScale{"LineScale", forms::number, "LineScale"};
    static const GeneralProperty lineWeight{"LineWeight", forms::whole, "LineWeight"};
    static const GeneralProperty thickness{"Thickness", forms::number, "Thickness"};
    static const GeneralProperty printStyle{"PrintStyle", forms::text, "PrintStyle"};
    static const GeneralProperty transparency{"Transparency", forms::transparency, {}};

    CFxVariant value;
    const auto take = [&](const GeneralProperty& property) {
        if (conversion.asked)
            conversion.asked->push_back({property.tag.text(), property.form, {}, false, true});
        value = FindProperty(conversion, property.tag, list);
        // Ids and transparencies of another form are lost.
        const bool hasNeutral =
            !property.form.accepts(CFxVariant::kId) && !property.form.accepts(CFxVariant::kTransparency);
        if (hasNeutral)
            AssumeUnlessFormed(object, property.tag.text(), value, property.form);
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
    const auto addNamed = [&](const GeneralProperty& property, const Statement& statement) {
        if (statement.isEmpty())
            LoseProperty(object, property.tag.text(),
                         property.form.fits(value) ? QStringLiteral("the drawing does not have what it names")
                                                   : QStringLiteral("it is recorded in another form"));
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
            LoseProperty(object, transparency.tag.text(), "it is not recorded as a transparency");
    }
}
