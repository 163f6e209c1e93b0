#include "host/kernel/CFxServices.h"

std::int16_t CFxSystemServices::GetInt16(const CFxString& name) const
{
    return settings_.value(name, 0);
}

void CFxSystemServices::SetInt16(const CFxString& name, std::int16_t value)
{
    settings_.insert(name, value);
}

void CFxSystemServices::SetOptionName(const CFxString& variable, const CFxString& enumerator)
{
    optionNames_.insert(variable, enumerator);
}

CFxSystemServices* GetFxSystemServices()
{
    static CFxSystemServices services;
    return &services;
}
