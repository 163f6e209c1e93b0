#pragma once

#include "dxf/kinds.h"

namespace inkmacro::dxf {

/// Of a POLYLINE that is a mesh.
void readMesh(const EntityReader& entity, std::span<const Entity> parts, Surroundings& around, DrawnObject& object);

} // namespace inkmacro::dxf
