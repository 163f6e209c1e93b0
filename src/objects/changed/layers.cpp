// Changed layers and groups.

#include "objects/changeKinds.h"
#include "objects/changed/changeLists.h"
#include "objects/losses.h"
#include "objects/properties.h"
#include "objects/targets/styles.h"
#include "statements/RecordingState.h"

using namespace kinds;

/// The sense of "Show" is turned round, and two of the host's operations are misspelt: it all has to stay.
static const ChangeGroups modifiedLayer{
    {contents, "Description", "Description"},
    {color, "Color", "Color"},
    {lineStyle, "LineStyle", "LineStyle"},
    {lineWeight, "LineWeight", "LineWeight"},
    {plainYes, "Frozen", "Frozen"},
    {plainYes, "Locked", "Locked"},
    {plainYes, "Printable", "Printable"},
    {plainYes, "Hidden", "Hidden"},
    {plainNo, "Show", "Shown"},
    {richLineStyleName, "Name"},
    {activation, "ActivateLayer"},
    {anyQuoted, "PrintStyle", "PrintStyle"},
    {integerText, "Transparency", "Transparency"},
    {plainYes, "FrozenInNewViewport", "FrozenInNewViewport"},
    {overrideYes, "FrozenInViewport", "SetFrozenInViewport"},
    {overrideColor, "ColorInViewport", "SetColorInViewport"},
    {overrideLineStyle, "LinetypeInViewport", "SetLineStyleInViewport"},
    {overrideLineWeight, "LineweightInViewport", "SetLineWeigthInViewport"},
    {overrideInteger, "TransparencyInViewport", "SetTranparencyInViewport"},
    {overrideText, "PrintStyleInViewport", "SetPrintStyleInViewport"},
};

const ChangeGroups modifiedGroup{
    {richLineStyleName, "Name"},
    {contents, "Description", "Description"},
    {plainYes, "SelectableEntities", "Selectable"},
};

void ConvertModifiedLayer(Conversion& conversion, const RecordedObject& object, PropertyList& list, Statement& text)
{
    const RecordedObject layer{object.cls, object.handle, LayerOf(object.name)};
    if (RecordsOtherwise(inkmacro::Target::JavaScript, conversion.writer.target))
        conversion.faults.note(otherLanguage);
    ConvertRows(conversion, modifiedLayer, layer, list, text);
}
