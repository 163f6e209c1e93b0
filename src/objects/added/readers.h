#pragma once

#include <QString>

class AddedObject;

// One reader a class: takes its tags from the object's records and gives the statement that makes the object, which may
// be empty.

Statement ReadLine(AddedObject& added);
Statement ReadCircle(AddedObject& added);
Statement ReadPoint(AddedObject& added);
Statement ReadRay(AddedObject& added);
Statement ReadArc(AddedObject& added);
Statement ReadInfiniteLine(AddedObject& added);
Statement ReadEllipse(AddedObject& added);
Statement ReadTextStyle(AddedObject& added);
Statement ReadAttributeDefinition(AddedObject& added);
Statement ReadSimpleNote(AddedObject& added);
Statement ReadNote(AddedObject& added);
Statement ReadTolerance(AddedObject& added);
Statement ReadLeader(AddedObject& added);
Statement ReadCurvedText(AddedObject& added);
Statement ReadHatch(AddedObject& added);
Statement ReadRichLine(AddedObject& added);
Statement ReadFace(AddedObject& added);
Statement ReadPolyline3D(AddedObject& added);
Statement ReadPolygonMesh(AddedObject& added);
Statement ReadSolid(AddedObject& added);
Statement ReadTrace(AddedObject& added);
Statement ReadSpline(AddedObject& added);
Statement ReadPolyline(AddedObject& added);
Statement ReadPolyFaceMesh(AddedObject& added);
Statement ReadTable(AddedObject& added);
Statement ReadTableStyle(AddedObject& added);
Statement ReadDimensionStyle(AddedObject& added);
Statement ReadRichLineStyle(AddedObject& added);
Statement ReadLineStyle(AddedObject& added);
Statement ReadAlignedDimension(AddedObject& added);
Statement Read2LineAngularDimension(AddedObject& added);
Statement Read3PointAngularDimension(AddedObject& added);
Statement ReadArcLengthDimension(AddedObject& added);
Statement ReadDiameterDimension(AddedObject& added);
Statement ReadOrdinateDimension(AddedObject& added);
Statement ReadRadialDimension(AddedObject& added);
Statement ReadJoggedDimension(AddedObject& added);
Statement ReadRotatedDimension(AddedObject& added);
Statement ReadBlockReference(AddedObject& added);
Statement ReadBlockDefinition(AddedObject& added);
Statement ReadPicture(AddedObject& added);
Statement ReadShape(AddedObject& added);
Statement ReadGroup(AddedObject& added);
Statement ReadLayer(AddedObject& added);
Statement ReadViewport(AddedObject& added);
