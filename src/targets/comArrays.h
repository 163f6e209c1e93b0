#pragma once

#include "host/db/OdGe.h"
#include "host/rx/OdArray.h"

#include <QString>

#include <vector>

namespace inkmacro {

// In C++ COM an array is a VARIANT that holds a safe array. These are the statements that put the values into one that
// was made before; `array` is its name without the suffix. Each declares variables that carry the suffix alone, so two
// of them with one suffix cannot stand in the same block.

QString comObjects(unsigned level, const QString& array, unsigned suffix, const std::vector<QString>& values);
QString comIntegers(unsigned level, const QString& array, unsigned suffix, const std::vector<QString>& values);
/// One point in the short form of numbers.
QString comPoint(unsigned level, const QString& array, unsigned suffix, const OdGePoint3d& point);
/// The coordinates of all points in the short form, into the array "variant".
QString comPoints(unsigned level, unsigned suffix, const OdArray<OdGePoint3d>& points);

} // namespace inkmacro
