#include "host/kernel/CFxServices.h"

void CFxSystemServices::SetOptionName(const CFxString& variable, const CFxString& enumerator)
{
    optionNames_.insert(variable, enumerator);
}

CFxSystemServices* GetFxSystemServices()
{
    static CFxSystemServices services;
    return &services;
}
