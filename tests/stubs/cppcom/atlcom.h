// Objects, interfaces and events of the library that COM servers are written with.

#pragma once

#include "atlbase.h"

namespace ATL {

class CComSingleThreadModel
{
};

template<class ThreadModel>
class CComObjectRootEx
{
};

template<class T, const CLSID* id>
class CComCoClass
{
};

template<class T, const IID* id, const GUID* library, int major, int minor>
class IDispatchImpl : public T
{
};

template<unsigned int source, class T, const IID* id, const GUID* library, int major, int minor>
class IDispEventImpl
{
public:
    HRESULT DispEventAdvise(IUnknown* object);
    HRESULT DispEventUnadvise(IUnknown* object);
};

// A map is a function in which each entry is checked.
#define BEGIN_COM_MAP(Class)                                                                                           \
    static void CheckInterfaces(Class* object)                                                                         \
    {
#define COM_INTERFACE_ENTRY(Interface) static_cast<Interface*>(object);
#define COM_INTERFACE_ENTRY2(Interface, through) static_cast<Interface*>(static_cast<through*>(object));
#define END_COM_MAP() }
#define BEGIN_SINK_MAP(Class)                                                                                          \
    static void CheckEvents()                                                                                          \
    {                                                                                                                  \
        typedef Class Sink;
#define SINK_ENTRY_EX(source, id, event, handler)                                                                      \
    (void)source, (void)id, (void)event;                                                                               \
    void (Sink::*called)() = &Sink::handler;
#define END_SINK_MAP() }
#define DECLARE_PROTECT_FINAL_CONSTRUCT()
#define OBJECT_ENTRY_AUTO(id, Class) static const GUID& classId = (sizeof(Class), id);

} // namespace ATL
