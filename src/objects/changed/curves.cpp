// Changed lines, circles, points, rays, arcs, infinite lines and ellipses.

#include "objects/changeKinds.h"
#include "objects/changed/changeLists.h"
#include "objects/losses.h"
#include "objects/properties.h"

using namespace kinds;

const ChangeGroups modifiedLine{{firstPoint, "Start"}, {secondPoint, "End"}};

/// Alone among the handlers this one drops what stands in the text already.
void ConvertModifiedLine(Conversion& conversion, const RecordedObject& object, PropertyList& list, Statement& text)
{
    text.clear();
    ConvertRows(conversion, modifiedLine, object, list, text);
}

/// The host records a new radius with all that depends on it, so that one change sets the radius up to four times.
const ChangeGroups modifiedCircle{
    {radiusFromArea, "Area"},         {point, "Center", "Center"}, {radiusFromCircumference, "Circumference"},
    {radiusFromDiameter, "Diameter"}, {real, "Radius", "Radius"},
};

const ChangeGroups modifiedPoint{{position, "Position"}};

const ChangeGroups modifiedRay{{point, "Base point", "BasePoint"}, {point, "Second point", "ThroughPoint"}};

const ChangeGroups modifiedArc{
    {point, "Center", "Center"},
    {real, "End Angle", "EndAngle"},
    {real, "Radius", "Radius"},
    {real, "Start Angle", "StartAngle"},
};

const ChangeGroups modifiedInfiniteLine{{firstPoint, "Base point"}, {secondPoint, "Second point"}};

/// The tags are in another case than those of an arc.
const ChangeGroups modifiedEllipse{
    {point, "Center", "Center"},           {real, "End angle", "EndAngle"},       {real, "Major radius", "MajorRadius"},
    {real, "Minor radius", "MinorRadius"}, {real, "Radius ratio", "RadiusRatio"}, {real, "Start angle", "StartAngle"},
};
