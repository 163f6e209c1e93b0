// The few declarations of the system that an add-in uses.

#pragma once

#include <cstddef>

#define WINAPI
#define STDAPI extern "C" HRESULT
#define STDMETHOD(name) virtual HRESULT name
#define S_OK 0
#define MB_OK 0
#define SUCCEEDED(status) ((status) >= 0)
#define FAILED(status) ((status) < 0)

typedef int BOOL;
// As wide as there in name only: macros count indices in a long.
typedef long LONG;
typedef unsigned long ULONG;
typedef unsigned long DWORD;
typedef unsigned short VARTYPE;
typedef short VARIANT_BOOL;
typedef long HRESULT;
typedef void* LPVOID;
typedef wchar_t* BSTR;
typedef wchar_t* LPOLESTR;
typedef struct Instance* HINSTANCE;
typedef struct Window* HWND;

const VARIANT_BOOL VARIANT_TRUE = -1;
const VARIANT_BOOL VARIANT_FALSE = 0;

int MessageBox(HWND owner, const wchar_t* text, const wchar_t* title, unsigned int kind);

struct GUID
{
    unsigned int words[4];
};

typedef GUID IID;
typedef GUID CLSID;
typedef const GUID& REFIID;
typedef const GUID& REFCLSID;

// An id has to have an address that is known when the program is compiled.
template<class T>
struct IdOf
{
    static const GUID id;
};

#define __uuidof(type) (IdOf<type>::id)

struct IUnknown
{
    virtual HRESULT QueryInterface(REFIID id, void** object) = 0;
    virtual ULONG AddRef() = 0;
    virtual ULONG Release() = 0;
};

struct IDispatch : public IUnknown
{
};

typedef IDispatch* LPDISPATCH;

enum VARENUM
{
    VT_EMPTY = 0,
    VT_I2 = 2,
    VT_I4 = 3,
    VT_R8 = 5,
    VT_BSTR = 8,
    VT_DISPATCH = 9,
    VT_BOOL = 11,
    VT_VARIANT = 12,
    VT_UNKNOWN = 13,
    VT_ARRAY = 0x2000,
    VT_BYREF = 0x4000
};

struct SAFEARRAY;

struct SAFEARRAYBOUND
{
    ULONG cElements;
    LONG lLbound;
};

struct VARIANT
{
    VARTYPE vt;
    union {
        LONG lVal;
        double dblVal;
        BSTR bstrVal;
        IDispatch* pdispVal;
        SAFEARRAY* parray;
        SAFEARRAY** pparray;
    };
};

void VariantInit(VARIANT* variant);
HRESULT VariantClear(VARIANT* variant);
HRESULT VariantCopyInd(VARIANT* to, const VARIANT* from);

SAFEARRAY* SafeArrayCreateVector(VARTYPE type, LONG lower, ULONG count);
unsigned int SafeArrayGetDim(SAFEARRAY* array);
HRESULT SafeArrayGetVartype(SAFEARRAY* array, VARTYPE* type);
HRESULT SafeArrayGetLBound(SAFEARRAY* array, unsigned int dimension, LONG* bound);
HRESULT SafeArrayGetUBound(SAFEARRAY* array, unsigned int dimension, LONG* bound);
HRESULT SafeArrayGetElement(SAFEARRAY* array, LONG* indices, void* element);
HRESULT SafeArrayPutElement(SAFEARRAY* array, LONG* indices, void* element);
HRESULT SafeArrayRedim(SAFEARRAY* array, SAFEARRAYBOUND* bound);

BSTR SysAllocString(const wchar_t* text);
void SysFreeString(BSTR text);
void CoTaskMemFree(void* memory);
HRESULT StringFromCLSID(REFCLSID id, LPOLESTR* text);
