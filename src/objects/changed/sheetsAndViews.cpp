// Changed sheets and view tiles. Of a changed named view only its removal is converted.

#include "module/CFxConverterIWAPIImpl.h"
#include "objects/CFxConverterIWAPIObject.h"
#include "objects/changeKinds.h"
#include "objects/changed/changeLists.h"
#include "objects/targets/sheetProperties.h"

using namespace kinds;

const ChangeGroups modifiedViewTile{
    {exactYes, "CCS per View Tile", "CCSPerViewTile"},
    {exactYes, "CS icon at origin", "CSIconAtOrigin"},
    {exactYes, "CS icon on", "CSIconIsOn"},
};

/// The three records come together; the sheet is found by its name and needs no variable.
void CFxConverterIWAPIObject::ConvertModifiedSheet(PropertyList& list, const CFxString&, QString& text)
{
    const CFxValueContext context = driver.GetContext();
    const CFxVariant table = FindProperty("PrintStyleTable", list, context);
    const CFxVariant model = FindProperty("Model_PrintStyleTable", list, context);
    const CFxVariant sheet = FindProperty("SheetName_PrintStyleTable", list, context);
    if (table.IsNull() || model.IsNull() || sheet.IsNull()) {
        if (!table.IsNull())
            LoseProperty("PrintStyleTable", "its sheet is not recorded");
        return;
    }
    text += EmitSetModelProperty(writer, "PrintStyleTable", table.GetString(), model.GetString() == ShownWord("Yes"),
                                 sheet.GetString());
}
