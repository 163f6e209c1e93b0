#include "host/kernel/CFxServices.h"

#include "host/kernel/CFxUtils.h"

#include <QCoreApplication>

#include <iterator>

void CFxSystemServices::SetOptionName(const CFxString& variable, const CFxString& enumerator)
{
    optionNames_.insert(variable, enumerator);
}

CFxSystemServices* GetFxSystemServices()
{
    static CFxSystemServices services;
    return &services;
}

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
