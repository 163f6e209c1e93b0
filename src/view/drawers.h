#pragma once

#include "view/Values.h"

namespace inkmacro::view {

// Each draws the objects of a class, or of several that are alike.

void drawLine(const Values& values, Pen& pen);
void drawCircle(const Values& values, Pen& pen);
void drawArc(const Values& values, Pen& pen);
void drawEllipse(const Values& values, Pen& pen);
void drawPoint(const Values& values, Pen& pen);
void drawRay(const Values& values, Pen& pen);
void drawXLine(const Values& values, Pen& pen);
void drawPolyline(const Values& values, Pen& pen);

void drawSpline(const Values& values, Pen& pen);
void drawRichLine(const Values& values, Pen& pen);

void drawSolid(const Values& values, Pen& pen);
void drawFace(const Values& values, Pen& pen);
void drawPolygonMesh(const Values& values, Pen& pen);
void drawPolyFaceMesh(const Values& values, Pen& pen);
void drawRegion(const Values& values, Pen& pen);

void drawBlockReference(const Values& values, Pen& pen);
void drawImage(const Values& values, Pen& pen);
void drawEmbedded(const Values& values, Pen& pen);
void drawViewport(const Values& values, Pen& pen);
void drawShape(const Values& values, Pen& pen);

void drawText(const Values& values, Pen& pen);
void drawNote(const Values& values, Pen& pen);
void drawAttribute(const Values& values, Pen& pen);
void drawArcText(const Values& values, Pen& pen);

void drawAlignedDimension(const Values& values, Pen& pen);
void drawRotatedDimension(const Values& values, Pen& pen);
void drawOrdinateDimension(const Values& values, Pen& pen);
void drawTwoLineAngle(const Values& values, Pen& pen);
void drawThreePointAngle(const Values& values, Pen& pen);
void drawArcLength(const Values& values, Pen& pen);
void drawDiameter(const Values& values, Pen& pen);
void drawRadius(const Values& values, Pen& pen);
void drawJogged(const Values& values, Pen& pen);

void drawLeader(const Values& values, Pen& pen);
void drawTolerance(const Values& values, Pen& pen);
void drawHatch(const Values& values, Pen& pen);
void drawTable(const Values& values, Pen& pen);

} // namespace inkmacro::view
