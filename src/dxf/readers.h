#pragma once

#include "dxf/kinds.h"

namespace inkmacro::dxf {

using Parts = std::span<const Entity>;

void readLine(EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object);
void readPoint(EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object);
void readCircle(EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object);
void readArc(EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object);
void readEllipse(EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object);
/// An infinite line too.
void readRay(EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object);
void readLightPolyline(EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object);
void readPolyline(EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object);
void readSpline(EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object);
void readFace(EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object);
/// A trace too.
void readSolid(EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object);
void readText(EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object);
void readParagraphs(EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object);
void readAttributeDefinition(EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object);
void readDimension(EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object);
void readArcDimension(EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object);
void readJoggedDimension(EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object);
void readLeader(EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object);
void readTolerance(EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object);
void readInsert(EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object);
void readHatch(EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object);
void readViewport(EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object);
/// A mesh that can be smoothed.
void readSubdivision(EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object);
void readImage(EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object);
void readRichLine(EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object);
void readRichLineStyle(EntityReader& record, Parts parts, Surroundings& around, DrawnObject& object);
void readShape(EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object);

// Records of tables.

void readDimensionStyle(EntityReader& record, Parts parts, Surroundings& around, DrawnObject& object);

} // namespace inkmacro::dxf
