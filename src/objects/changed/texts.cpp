// Changed text styles, attribute definitions, notes and curved texts.

#include "objects/changeKinds.h"
#include "objects/changed/changeLists.h"
#include "objects/targets/dimensionOptions.h"

using namespace kinds;

const ChangeGroups modifiedTextStyle{
    {textStyleName, "Name"},
    {doubledBackslashes, "Font", "Font"},
    {real, "Angle", "Angle"},
    {real, "Height", "Height"},
    {real, "Spacing", "Spacing"},
    {anyYes, "Backwards", "Backwards"},
    {anyYes, "Upside down", "UpsideDown"},
    {anyYes, "Vertical", "Vertical"},
    {anyQuoted, "BigFont", "BigFont"},
};

const ChangeGroups modifiedAttributeDefinition{
    {real, "Angle", "Angle"},
    {real, "Height", "Height"},
    {anyEnumText(inkmacro::enums::textJustification), "Justify", "Justification"},
    {anyQuoted, "Prompt", "Caption"},
    {real, "Rotation", "Rotation"},
    {real, "Spacing", "Spacing"},
    {anyQuoted, "Style", "TextStyle"},
    {anyQuoted, "Tag", "Name"},
    {anyQuoted, "Value", "Value"},
    {point, "Position", "Position"},
    {point, "Text alignment", "AlignmentPoint"},
    {anyYes, "Backward", "Backwards"},
    {anyYes, "Constant", "Constant"},
    {anyYes, "Invisible", "Hidden"},
    {anyYes, "Lock position", "LockPosition"},
    {anyYes, "Preset", "Preset"},
    {anyYes, "UpsideDown", "UpsideDown"},
    {anyYes, "Verify", "Verify"},
};

const ChangeGroups modifiedSimpleNote{
    {real, "Angle", "Angle"},
    {anyQuoted, "Contents", "Contents"},
    {real, "Height", "Height"},
    {real, "Rotation", "Rotation"},
    {real, "Spacing", "Spacing"},
    {anyQuoted, "TextStyle", "TextStyle"},
    {point, "Position", "Position"},
    {anyYes, "Backward", "Backwards"},
    {anyYes, "UpsideDown", "UpsideDown"},
    {anyEnumText(inkmacro::enums::textJustification), "Justify", "Justify"},
    {point, "Text alignment", "AlignmentPoint"},
};

const ChangeGroups modifiedNote{
    {chosenYes, "Background mask", "BackgroundMask"},
    {color, "BackgroundFillColor", "BackgroundFillColor"},
    {anyYes, "UseDrawingBackgroundColor", "UseDrawingBackgroundColor"},
    {real, "BackgroundBorderOffsetFactor", "BackgroundBorderOffsetFactor"},
    {doubledBackslashes, "Contents", "Text"},
    {noteDirection, "Direction", "Direction"},
    {anyEnumText(inkmacro::enums::noteJustification), "Justify", "Justify"},
    {real, "Line space distance", "LineSpaceDistance"},
    {real, "Line space factor", "LineSpaceFactor"},
    {noteLineSpacing, "Line space style", "LineSpacingStyle"},
    {real, "Rotation", "Rotation"},
    {anyQuoted, "Style", "TextStyle"},
    {real, "Text Height", "TextHeight"},
    {real, "Width", "Width"},
    {position, "Position"},
};

/// Each tag of the settings fetches them anew and hands them back.
const ChangeGroups modifiedCurvedText{
    ChangeGroup{{
        {anyQuoted, "Contents", "Contents"},
        {real, "Height", "Height"},
        {real, "Width Factor", "WidthFactor"},
        {real, "Char Spacing", "CharSpacing"},
        {point, "Center", "Center"},
        {real, "Start Angle", "StartAngle"},
        {real, "End Angle", "EndAngle"},
        {real, "Arc Offset", "ArcOffset"},
        {real, "Left Offset", "LeftOffset"},
        {real, "Right Offset", "RightOffset"},
    }},
    ChangeGroup{{curvedTextSettings, {{anyYes, "CurvedSettings Underlined", "Underlined"}}}},
    ChangeGroup{{curvedTextSettings, {{anyYes, "CurvedSettings Flip", "Flip"}}}},
    ChangeGroup{{curvedTextSettings,
                 {{anyEnumValue(inkmacro::enums::arcTextAlignment), "CurvedSettings Alignment", "Alignment"}}}},
    ChangeGroup{{curvedTextSettings,
                 {{anyEnumValue(inkmacro::enums::arcTextPosition), "CurvedSettings TextSide", "TextSide"}}}},
    ChangeGroup{{curvedTextSettings,
                 {{anyEnumValue(inkmacro::enums::arcTextDirection), "CurvedSettings TextDirection", "TextDirection"}}}},
    ChangeGroup{{curvedTextSettings, {{anyQuoted, "CurvedSettings TextStyle", "TextStyle"}}}},
    ChangeGroup{{curvedTextSettings, {{anyQuoted, "CurvedSettings Font", "Font"}}}},
    ChangeGroup{{curvedTextSettings, {{fontParameter, "CurvedSettings bold", "Bold"}}}},
    ChangeGroup{{curvedTextSettings, {{fontParameter, "CurvedSettings italic", "Italic"}}}},
};
