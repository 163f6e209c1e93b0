#include "conversion/Conversion.h"

#include <utility>

bool Conversion::Drops(const inkmacro::Fault& fault)
{
    faults.note(fault);
    return writer.repairs;
}

Statement Conversion::TakeSettings(const QString& hatch)
{
    const auto found = waitingSettings.find(hatch);
    if (found == waitingSettings.end())
        return {};
    Statement settings = std::move(found->second);
    waitingSettings.erase(found);
    return settings;
}
