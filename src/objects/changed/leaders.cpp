// Changed leaders and tolerances. Their looks are overrides of a dimension style, which the host keeps in option
// objects.

#include "objects/changeKinds.h"
#include "objects/changed/changeLists.h"
#include "objects/targets/dimensionOptions.h"

using namespace kinds;

/// Each tag fetches its option object anew, into variables of its own.
const ChangeGroups modifiedLeader{
    ChangeGroup{{
        {vertex, "Vertex"},
        {quoted, "DimStyle", "DimensionStyle"},
        {enumValue(inkmacro::enums::leaderType), "Type", "Type"},
    }},
    ChangeGroup{{leaderOptions::arrows, {{arrow, "Arrow", "SetLeaderArrow"}}}},
    ChangeGroup{{leaderOptions::arrows, {{unquoted, "Arrow size", "Size"}}}},
    ChangeGroup{{leaderOptions::lines, {{color, "DimLine LColor", "DimensionLineColor"}}}},
    ChangeGroup{{leaderOptions::lines, {{lineWeight, "DimLine LWeight", "DimensionLineLineWeight"}}}},
    ChangeGroup{{leaderOptions::text, {{unquoted, "Text offset", "OffsetFromDimensionLines"}}}},
    ChangeGroup{{leaderOptions::fit, {{scaleFactor, "DimScale overall", "SetDimensionScale"}}}},
};

const ChangeGroups modifiedTolerance{ChangeGroup{
    {
        {point, "Position", "Position"},
        {real, "Dim scale overall", "DimensionScaleFactor"},
        {chosenQuoted, "Dim style", "DimensionStyle"},
    },
    {leaderOptions::lines, {{color, "DimLine LColor", "DimensionLineColor"}}},
    {
        {quoted, "TextStyle", "TextStyle"},
        {real, "Text height", "TextHeight"},
        {color, "TextColor", "TextColor"},
        {escaped, "Content", "Text"},
    },
}};
