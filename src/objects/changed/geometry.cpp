// Changed lines, circles, points, rays, arcs, infinite lines, ellipses, polylines, splines, meshes, solids, traces,
// faces, rich lines, shapes, embedded objects and viewports.

#include "objects/changeKinds.h"
#include "objects/changed/changeLists.h"
#include "objects/losses.h"
#include "objects/properties.h"

using namespace kinds;

const ChangeGroups modifiedPolyline3D{
    {indexedPoint, "Vertex", "VertexCoordinate"},
    {chosenEnumText(inkmacro::enums::polyLine3DFitSmooth), "Fit/Smooth", "FitSmooth"},
    {yes, "Closed", "Closed"},
};

const ChangeGroups modifiedPolyline{
    {length, "Elevation", "Elevation"},
    {length, "Global width", "GlobalWidth"},
    {indexedReal, "Start segment width", "SetSegmentStartWidth"},
    {indexedReal, "End segment width", "SetSegmentEndWidth"},
    {vertex2D, "Vertex"},
    {yesOrFirst, "Closed", "Closed"},
    {exactEnabled, "LineStyleGen", "LineStyleGeneration"},
};

const ChangeGroups modifiedSpline{
    {indexedPoint, "Control point", "ControlPointCoordinate"},
    {indexedPoint, "Fit point", "FitPointCoordinate"},
    {length, "Fit tolerance", "FitTolerance"},
};

const ChangeGroups modifiedPolygonMesh{
    {indexedPoint, "Vertex", "VertexCoordinate"},
    {yesOrFirst, "M closed", "MClosed"},
    {integer, "M density", "MDensity"},
    {integer, "N density", "NDensity"},
    {yesOrFirst, "N closed", "NClosed"},
    {enumText(inkmacro::enums::polygonMeshFitSmooth), "Fit/Smooth", "FitSmooth"},
};

const ChangeGroups modifiedPolyFaceMesh{{indexedPoint, "Vertex", "VertexCoordinate"}};

const ChangeGroups modifiedSolid{{numberedVertex, "Vertex"}};

const ChangeGroups modifiedTrace{{numberedVertex, "Vertex"}};

const ChangeGroups modifiedFace{
    {visible, "Edge 1", "Edge1Visible"},
    {visible, "Edge 2", "Edge2Visible"},
    {visible, "Edge 3", "Edge3Visible"},
    {visible, "Edge 4", "Edge4Visible"},
    {faceVertex, "Vertex"},
};

const ChangeGroups modifiedRichLine{
    {enumText(inkmacro::enums::richLineJustification), "RLine justification", "Justification"},
    {factor, "RLine scale", "Scale"},
};

const ChangeGroups modifiedShape{
    {point, "Position", "Position"}, {angle, "Obliquing", "Obliquing"},       {angle, "Rotation", "Rotation"},
    {length, "Size", "Size"},        {factor, "Width factor", "WidthFactor"},
};

const ChangeGroups modifiedEmbeddedObject{
    {length, "Height", "Height"},
    {point, "Position", "Position"},
    {length, "Width", "Width"},
    {enumText(inkmacro::enums::embeddedObjectPrintQuality), "Print quality", "PrintQuality"},
};

const ChangeGroups modifiedViewport{
    {point, "Center", "Center"},
    {length, "Height", "Height"},
    {length, "Width", "Width"},
    {exactYes, "CCS per viewport", "CCSPerViewport"},
    {factor, "Custom scale", "CustomScale"},
    {exactYes, "Display locked", "DisplayLocked"},
    {exactYes, "On", "IsOn"},
    {enumText(inkmacro::enums::viewportShadePrintStyle), "Shade print", "ShadePrintStyle"},
    {chosenEnumText(inkmacro::enums::viewportStandardScale), "Standard scale", "StandardScale"},
};

const ChangeGroups modifiedLine{{firstPoint, "Start"}, {secondPoint, "End"}};

/// Alone among the handlers this one drops what stands in the text already.
void ConvertModifiedLine(Conversion& conversion, const RecordedObject& object, PropertyList& list, Statement& text)
{
    text.clear();
    ConvertRows(conversion, modifiedLine, object, list, text);
}

/// The host records a new radius with all that depends on it, so that one change sets the radius up to four times.
const ChangeGroups modifiedCircle{
    {radiusFromArea, "Area"},         {point, "Center", "Center"},  {radiusFromCircumference, "Circumference"},
    {radiusFromDiameter, "Diameter"}, {length, "Radius", "Radius"},
};

const ChangeGroups modifiedPoint{{position, "Position"}};

const ChangeGroups modifiedRay{{point, "Base point", "BasePoint"}, {point, "Second point", "ThroughPoint"}};

const ChangeGroups modifiedArc{
    {point, "Center", "Center"},
    {angle, "End Angle", "EndAngle"},
    {length, "Radius", "Radius"},
    {angle, "Start Angle", "StartAngle"},
};

const ChangeGroups modifiedInfiniteLine{{firstPoint, "Base point"}, {secondPoint, "Second point"}};

/// The tags are in another case than those of an arc.
const ChangeGroups modifiedEllipse{
    {point, "Center", "Center"},
    {angle, "End angle", "EndAngle"},
    {length, "Major radius", "MajorRadius"},
    {length, "Minor radius", "MinorRadius"},
    {factor, "Radius ratio", "RadiusRatio"},
    {angle, "Start angle", "StartAngle"},
};
