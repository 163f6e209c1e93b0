// Changed text styles, attribute definitions, notes and curved texts.

#include "objects/changeKinds.h"
#include "objects/changed/changeLists.h"
#include "objects/targets/dimensionOptions.h"

using namespace kinds;

const ChangeGroups modifiedTextStyle{
    {textStyleName, "Name"},
    {doubledBackslashes, "Font", "Font"},
    {angle, "Angle", "Angle"},
    {length, "Height", "Height"},
    {length, "Spacing", "Spacing"},
    {anyYes, "Backwards", "Backwards"},
    {anyYes, "Upside down", "UpsideDown"},
    {anyYes, "Vertical", "Vertical"},
    {anyQuoted, "BigFont", "BigFont"},
};

const ChangeGroups modifiedAttributeDefinition{
    {angle, "Angle", "Angle"},
    {length, "Height", "Height"},
    {anyEnumText(inkmacro::enums::textJustification), "Justify", "Justification"},
    {contents, "Prompt", "Caption"},
    {angle, "Rotation", "Rotation"},
    {length, "Spacing", "Spacing"},
    {anyQuoted, "Style", "TextStyle"},
    {contents, "Tag", "Name"},
    {contents, "Value", "Value"},
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
    {angle, "Angle", "Angle"},
    {contents, "Contents", "Contents"},
    {length, "Height", "Height"},
    {angle, "Rotation", "Rotation"},
    {length, "Spacing", "Spacing"},
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
    {factor, "BackgroundBorderOffsetFactor", "BackgroundBorderOffsetFactor"},
    {doubledBackslashes, "Contents", "Text"},
    {noteDirection, "Direction", "Direction"},
    {anyEnumText(inkmacro::enums::noteJustification), "Justify", "Justify"},
    {length, "Line space distance", "LineSpaceDistance"},
    {factor, "Line space factor", "LineSpaceFactor"},
    {noteLineSpacing, "Line space style", "LineSpacingStyle"},
    {angle, "Rotation", "Rotation"},
    {anyQuoted, "Style", "TextStyle"},
    {length, "Text Height", "TextHeight"},
    {length, "Width", "Width"},
    {position, "Position"},
};

/// Each tag of the settings fetches them anew and hands them back.
const ChangeGroups modifiedCurvedText{
    ChangeGroup{{
        {contents, "Contents", "Contents"},
        {length, "Height", "Height"},
        {factor, "Width Factor", "WidthFactor"},
        {length, "Char Spacing", "CharSpacing"},
        {point, "Center", "Center"},
        {angle, "Start Angle", "StartAngle"},
        {angle, "End Angle", "EndAngle"},
        {length, "Arc Offset", "ArcOffset"},
        {length, "Left Offset", "LeftOffset"},
        {length, "Right Offset", "RightOffset"},
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
