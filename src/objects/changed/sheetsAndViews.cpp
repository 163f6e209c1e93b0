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
    const CFxVariant table = FindProperty(conversion, "PrintStyleTable", list);
    const CFxVariant model = FindProperty(conversion, "Model_PrintStyleTable", list);
    const CFxVariant sheet = FindProperty(conversion, "SheetName_PrintStyleTable", list);
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
