// Modules and pointers of the library that COM servers are written with.

#pragma once

#include "windows.h"

#define ATL_NO_VTABLE

namespace ATL {

template<class T>
class CComQIPtr
{
public:
    CComQIPtr(T* object = NULL);
    CComQIPtr(IUnknown* other);
    T* operator=(T* object);
    T* operator=(IUnknown* other);
    T* operator->() const;
    operator T*() const;
};

template<class T>
class CAtlDllModuleT
{
public:
    BOOL DllMain(DWORD reason, LPVOID reserved);
    HRESULT DllCanUnloadNow();
    HRESULT DllGetClassObject(REFCLSID cls, REFIID id, LPVOID* object);
    HRESULT DllRegisterServer();
    HRESULT DllUnregisterServer();
};

#define DECLARE_LIBID(id)                                                                                              \
    static const GUID& LibraryId()                                                                                     \
    {                                                                                                                  \
        return id;                                                                                                     \
    }
#define DECLARE_REGISTRY_RESOURCEID(resource)                                                                          \
    enum                                                                                                               \
    {                                                                                                                  \
        registryResource = resource                                                                                    \
    };
#define DECLARE_REGISTRY_APPID_RESOURCEID(resource, id)                                                                \
    DECLARE_REGISTRY_RESOURCEID(resource)                                                                              \
    static const char* AppId()                                                                                         \
    {                                                                                                                  \
        return id;                                                                                                     \
    }

} // namespace ATL
