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
    {real, "Elevation", "Elevation"},
    {real, "Global width", "GlobalWidth"},
    {indexedReal, "Start segment width", "SetSegmentStartWidth"},
    {indexedReal, "End segment width", "SetSegmentEndWidth"},
    {vertex2D, "Vertex"},
    {yesOrFirst, "Closed", "Closed"},
    {exactEnabled, "LineStyleGen", "LineStyleGeneration"},
};

const ChangeGroups modifiedSpline{
    {indexedPoint, "Control point", "ControlPointCoordinate"},
    {indexedPoint, "Fit point", "FitPointCoordinate"},
    {real, "Fit tolerance", "FitTolerance"},
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
    {real, "RLine scale", "Scale"},
};

const ChangeGroups modifiedShape{
    {point, "Position", "Position"}, {real, "Obliquing", "Obliquing"},      {real, "Rotation", "Rotation"},
    {real, "Size", "Size"},          {real, "Width factor", "WidthFactor"},
};

const ChangeGroups modifiedEmbeddedObject{
    {real, "Height", "Height"},
    {point, "Position", "Position"},
    {real, "Width", "Width"},
    {enumText(inkmacro::enums::embeddedObjectPrintQuality), "Print quality", "PrintQuality"},
};

const ChangeGroups modifiedViewport{
    {point, "Center", "Center"},
    {real, "Height", "Height"},
    {real, "Width", "Width"},
    {exactYes, "CCS per viewport", "CCSPerViewport"},
    {real, "Custom scale", "CustomScale"},
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
