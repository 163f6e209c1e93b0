#include "host/kernel/CFxRegistry.h"

#ifdef _WIN32
#include <windows.h>

#include <algorithm>
#include <array>
#endif

namespace {

#ifdef _WIN32

CFxString machineText(const QString& key, const QString& name)
{
    HKEY opened = nullptr;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, key.toStdWString().c_str(), 0, KEY_READ | KEY_WOW64_64KEY, &opened) !=
        ERROR_SUCCESS)
        return {};
    std::array<wchar_t, 512> buffer{};
    DWORD size = sizeof buffer;
    const LSTATUS status = RegQueryValueExW(opened, name.toStdWString().c_str(), nullptr, nullptr,
                                            reinterpret_cast<BYTE*>(buffer.data()), &size);
    RegCloseKey(opened);
    if (status != ERROR_SUCCESS)
        return {};
    // A value need not end in a null character.
    const auto end = std::find(buffer.begin(), buffer.end(), L'\0');
    return QString::fromWCharArray(buffer.data(), static_cast<int>(end - buffer.begin()));
}

#else

CFxString machineText(const QString&, const QString&)
{
    return {};
}

#endif

} // namespace

CFxString CFxRegistry::GetText(const CFxString& key, const CFxString& name) const
{
    const auto set = values_.constFind({key, name});
    return set == values_.constEnd() ? machineText(key, name) : CFxString(*set);
}

void CFxRegistry::SetText(const CFxString& key, const CFxString& name, const CFxString& value)
{
    values_.insert({key, name}, value);
}

CFxRegistry* GetFxRegistry()
{
    static CFxRegistry registry;
    return &registry;
}
