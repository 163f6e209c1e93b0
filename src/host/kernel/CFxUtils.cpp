#include "host/kernel/CFxUtils.h"

#include <QCoreApplication>

#include <iterator>

CFxString CFxUtils::GetStringForUnitScalingFactor(int units)
{
    static constexpr const char* names[] = {
        "Unitless",   "Inches",      "Feet",        "Miles",      "Millimeters",  "Centimeters", "Meters",
        "Kilometers", "Microinches", "Mils",        "Yards",      "Angstroms",    "Nanometers",  "Microns",
        "Decimeters", "Dekameters",  "Hectometers", "Gigameters", "Astronomical", "Light Years", "Parsecs",
    };
    const bool known = units >= 0 && units < static_cast<int>(std::size(names));
    return QCoreApplication::translate("CFxUtils", names[known ? units : 0]);
}
