#include "conversion/Conversion.h"

#include "host/db/OdDbClassMap.h"

#include <utility>

static const inkmacro::Fault kOtherMade{"EmitObjectVariable",
                                        {inkmacro::Target::Cpp, inkmacro::Target::CSharp},
                                        "a custom action assigns what it makes to a variable of another class"};

CFxString Conversion::VariableOfMade(const CFxString& handedOver, const char* className)
{
    if (!handedOver.isEmpty() && names().DeclaredClass(lastFinished) != oddbClassByName(className))
        faults.note(kOtherMade);
    return names().VariableOfMade(handedOver, className);
}

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
