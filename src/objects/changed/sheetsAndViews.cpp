// Changed sheets and view tiles. Of a changed named view only its removal is converted.

#include "objects/changeKinds.h"
#include "objects/changed/changeLists.h"
#include "objects/losses.h"
#include "objects/properties.h"
#include "targets/sheets.h"

using namespace kinds;

const ChangeGroups modifiedViewTile{
    {exactYes, "CCS per View Tile", "CCSPerViewTile"},
    {exactYes, "CS icon at origin", "CSIconAtOrigin"},
    {exactYes, "CS icon on", "CSIconIsOn"},
};

/// The three records come together; the sheet is found by its name and needs no variable.
void ConvertModifiedSheet(Conversion& conversion, const RecordedObject& object, PropertyList& list, Statement& text)
{
    const CFxVariant table = TakeProperty(conversion, object, "PrintStyleTable", forms::text, list);
    const CFxVariant model =
        TakeProperty(conversion, object, "Model_PrintStyleTable", forms::text.with(forms::yesNo), list);
    const CFxVariant sheet = TakeProperty(conversion, object, "SheetName_PrintStyleTable", forms::text, list);
    if (table.IsNull() || model.IsNull() || sheet.IsNull()) {
        if (!table.IsNull())
            LoseProperty(object, "PrintStyleTable", "its sheet is not recorded");
        return;
    }
    const bool ofModel = model.GetString() == ShownWord("Yes");
    if (conversion.writer.repairs && !ofModel && sheet.GetString().isEmpty())
        LoseProperty(object, "PrintStyleTable", "its sheet has no name");
    else
        text +=
            EmitSetModelProperty(conversion.writer, "PrintStyleTable", table.GetString(), ofModel, sheet.GetString());
}
