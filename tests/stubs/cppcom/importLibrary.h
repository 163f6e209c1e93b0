// What a compiler's support for type libraries stands on: texts, variants and smart pointers.

#pragma once

#include <type_traits>

#include "windows.h"

// A text or pointer that is taken out of a temporary does not outlive its statement, so nothing may keep it.
class _bstr_t
{
public:
    _bstr_t(const wchar_t* text = NULL);
    _bstr_t(const char* text);
    operator wchar_t*() &;
    explicit operator wchar_t*() const&&;
    bool operator==(const _bstr_t& other) const;
    bool operator!=(const _bstr_t& other) const;
};

// What takes a BSTR for the length of a call, so a temporary's too, but no literal.
class _bstr_argument_t
{
public:
    _bstr_argument_t(wchar_t* text);
    _bstr_argument_t(const _bstr_t& text);
};

class _variant_t : public VARIANT
{
public:
    _variant_t();
    _variant_t(const VARIANT& other);
    _variant_t(long number);
};

typedef _variant_t variant_t;

// Asks another object's pointer for the interface.
template<class T>
class _com_ptr_t
{
public:
    _com_ptr_t(T* object = NULL);
    template<class Other>
    _com_ptr_t(const _com_ptr_t<Other>& other);
    template<class Other>
    _com_ptr_t(Other* other);
    _com_ptr_t& operator=(T* object);
    template<class Other>
    _com_ptr_t& operator=(const _com_ptr_t<Other>& other);

    void Attach(T* object);
    T* operator->() const;
    T** operator&();
    operator T*() &;
    explicit operator T*() const&&;
};

typedef _com_ptr_t<IDispatch> IDispatchPtr;

// What takes a pointer for the length of a call, so a temporary's too.
template<class T>
class _com_argument_t
{
public:
    _com_argument_t(T* object);
    template<class Other, class = std::enable_if_t<std::is_convertible_v<Other*, T*>>>
    _com_argument_t(const _com_ptr_t<Other>& object);
};

extern const GUID DIID__IApplicationEvents;
extern const GUID DIID__ICommandEvents;
extern const GUID LIBID_Inkwright;

enum
{
    iwCommand_ExecuteNotify_id = 1
};
