#pragma once

#include "dxf/EntityReader.h"

namespace inkmacro::dxf {

/// Some groups of an entity, one after the other.
using Piece = std::span<const Group>;

/// The first of that code; null for none.
const Group* find(Piece piece, int code);
/// What is missing is 0; what is no finite number throws Lost.
double real(Piece piece, int code);
qint64 integer(Piece piece, int code, qint64 otherwise);
/// Each piece begins with a group of that code. What stands in front of the first is left out.
std::vector<Piece> split(Piece groups, int code);
/// Of those codes and those 10 and 20 above them; what is missing is 0.
std::vector<OdGePoint3d> points(Piece groups, int code);

} // namespace inkmacro::dxf
