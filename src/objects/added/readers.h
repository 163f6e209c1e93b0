#pragma once

#include <QString>

class AddedObject;

// One reader a class: takes its tags from the object's records and gives the statement that makes the object, which may
// be empty.

QString ReadLine(AddedObject& added);
QString ReadCircle(AddedObject& added);
QString ReadPoint(AddedObject& added);
QString ReadRay(AddedObject& added);
QString ReadArc(AddedObject& added);
QString ReadInfiniteLine(AddedObject& added);
QString ReadEllipse(AddedObject& added);
QString ReadTextStyle(AddedObject& added);
QString ReadAttributeDefinition(AddedObject& added);
QString ReadSimpleNote(AddedObject& added);
QString ReadNote(AddedObject& added);
QString ReadTolerance(AddedObject& added);
QString ReadLeader(AddedObject& added);
QString ReadCurvedText(AddedObject& added);
QString ReadHatch(AddedObject& added);
QString ReadRichLine(AddedObject& added);
QString ReadFace(AddedObject& added);
QString ReadPolyline3D(AddedObject& added);
QString ReadPolygonMesh(AddedObject& added);
QString ReadSolid(AddedObject& added);
QString ReadTrace(AddedObject& added);
QString ReadSpline(AddedObject& added);
QString ReadPolyline(AddedObject& added);
QString ReadPolyFaceMesh(AddedObject& added);
QString ReadTable(AddedObject& added);
QString ReadTableStyle(AddedObject& added);
QString ReadDimensionStyle(AddedObject& added);
QString ReadRichLineStyle(AddedObject& added);
QString ReadLineStyle(AddedObject& added);
QString ReadAlignedDimension(AddedObject& added);
QString Read2LineAngularDimension(AddedObject& added);
QString Read3PointAngularDimension(AddedObject& added);
QString ReadArcLengthDimension(AddedObject& added);
QString ReadDiameterDimension(AddedObject& added);
QString ReadOrdinateDimension(AddedObject& added);
QString ReadRadialDimension(AddedObject& added);
QString ReadJoggedDimension(AddedObject& added);
QString ReadRotatedDimension(AddedObject& added);
QString ReadBlockReference(AddedObject& added);
QString ReadBlockDefinition(AddedObject& added);
QString ReadPicture(AddedObject& added);
QString ReadShape(AddedObject& added);
QString ReadGroup(AddedObject& added);
QString ReadLayer(AddedObject& added);
QString ReadViewport(AddedObject& added);
