// What all sources of the COM add-in share: the precompiled header, arrays and conversions.

#include "statements/Fill.h"
#include "statements/LineEnd.h"
#include "targets/cppcom/projectTexts.h"
#include "targets/installation.h"
#include "targets/projectFiles.h"

// %1 is the line end, %2 and %3 are the type libraries of add-ins and of the application.
static const char* const precompiledHeaderText =
    R"(#pragma once

#ifndef STRICT
#define STRICT
#endif

// The oldest systems that the add-in runs on: Windows XP, Windows 98, Internet Explorer 6.0
#ifndef WINVER
#define WINVER 0x0501
#endif

#ifndef _WIN32_WINNT
#define _WIN32_WINNT 0x0501
#endif

#ifndef _WIN32_WINDOWS
#define _WIN32_WINDOWS 0x0410
#endif

#ifndef _WIN32_IE
#define _WIN32_IE 0x0600
#endif

#define _ATL_APARTMENT_THREADED
#define _ATL_NO_AUTOMATIC_NAMESPACE
#define _ATL_CSTRING_EXPLICIT_CONSTRUCTORS

#include "resource.h"
#include <atlbase.h>
#include <atlcom.h>

)"
    "#import \"%2\" raw_interfaces_only, raw_native_types, no_namespace, named_guids, auto_search%1"
    "#import \"%3\" no_namespace named_guids %1"
    "%1using namespace ATL;%1";

static const char* const precompiledSourceText = "#include \"stdafx.h\"%1";

static const char* const safeArrayText = R"(#ifndef _IWADDIN_SMARTVARS_H_
#define _IWADDIN_SMARTVARS_H_

// Access to the elements of a safe array. Numbers, booleans and whole variants are passed by their address, texts and
// interfaces are addresses themselves.
class SafeArrayAccess
{
public:
    static bool create( VARIANT &variant, VARTYPE type, ULONG count )
    {
        VariantInit( &variant );
        SAFEARRAY *pArray = SafeArrayCreateVector( type, 0, count );
        if( NULL == pArray )
        {
            return false;
        }

        variant.vt = (VARTYPE)( VT_ARRAY | type );
        variant.parray = pArray;
        return true;
    }

    static SAFEARRAY *getArray( const VARIANT &variant )
    {
        if( 0 == ( variant.vt & VT_ARRAY ) )
        {
            return NULL;
        }

        return 0 != ( variant.vt & VT_BYREF ) ? *variant.pparray : variant.parray;
    }

    static bool getBounds( const VARIANT &variant, LONG &lower, LONG &upper )
    {
        SAFEARRAY *pArray = getArray( variant );
        return NULL != pArray && 1 == SafeArrayGetDim( pArray )
            && SUCCEEDED( SafeArrayGetLBound( pArray, 1, &lower ) )
            && SUCCEEDED( SafeArrayGetUBound( pArray, 1, &upper ) );
    }

    template <class T>
    static bool getElement( const VARIANT &variant, LONG index, T &value )
    {
        SAFEARRAY *pArray = getArray( variant );
        return NULL != pArray && SUCCEEDED( SafeArrayGetElement( pArray, &index, &value ) );
    }

    template <class T>
    static bool putElement( VARIANT &variant, LONG index, const T &value )
    {
        SAFEARRAY *pArray = getArray( variant );
        return NULL != pArray && SUCCEEDED( SafeArrayPutElement( pArray, &index, getAddress( value ) ) );
    }

private:
    template <class T>
    static void *getAddress( const T &value )
    {
        return const_cast<T*>( &value );
    }

    static void *getAddress( const BSTR &value )
    {
        return value;
    }

    static void *getAddress( IDispatch *const &value )
    {
        return value;
    }

    static void *getAddress( IUnknown *const &value )
    {
        return value;
    }
};

// A one-dimensional safe array of T, whose variant type is type, in a VARIANT that the object owns. Elements are
// counted from 0. An element that is read is a copy: the caller frees a text and releases an interface.
template <class T, VARTYPE type>
class SafeArray
{
public:
    explicit SafeArray( ULONG count = 0 )
    {
        SafeArrayAccess::create( m_variant, type, count );
    }

    // An array of another type is not taken over
    explicit SafeArray( const VARIANT &source )
    {
        VariantInit( &m_variant );
        copy( source );
    }

    SafeArray( const SafeArray &source )
    {
        VariantInit( &m_variant );
        copy( source.m_variant );
    }

    ~SafeArray()
    {
        VariantClear( &m_variant );
    }

    SafeArray &operator=( const SafeArray &source )
    {
        if( this != &source )
        {
            copy( source.m_variant );
        }

        return *this;
    }

    LONG getCount() const
    {
        LONG lower = 0;
        LONG upper = -1;
        return SafeArrayAccess::getBounds( m_variant, lower, upper ) ? upper - lower + 1 : 0;
    }

    bool getAt( LONG index, T &value ) const
    {
        LONG lower = 0;
        LONG upper = -1;
        return SafeArrayAccess::getBounds( m_variant, lower, upper )
            && SafeArrayAccess::getElement( m_variant, lower + index, value );
    }

    bool setAt( LONG index, const T &value )
    {
        LONG lower = 0;
        LONG upper = -1;
        return SafeArrayAccess::getBounds( m_variant, lower, upper )
            && SafeArrayAccess::putElement( m_variant, lower + index, value );
    }

    bool add( const T &value )
    {
        SAFEARRAY *pArray = SafeArrayAccess::getArray( m_variant );
        if( NULL == pArray )
        {
            return false;
        }

        LONG count = getCount();
        SAFEARRAYBOUND bound;
        bound.cElements = (ULONG)count + 1;
        bound.lLbound = 0;
        return SUCCEEDED( SafeArrayRedim( pArray, &bound ) ) && setAt( count, value );
    }

    // Stays the object's
    operator const VARIANT &() const
    {
        return m_variant;
    }

    VARIANT *operator&()
    {
        return &m_variant;
    }

private:
    void copy( const VARIANT &source )
    {
        VariantClear( &m_variant );
        if( ( VT_ARRAY | type ) == ( source.vt & ~VT_BYREF ) )
        {
            VariantCopyInd( &m_variant, const_cast<VARIANT*>( &source ) );
        }
    }

    VARIANT m_variant;
};

#endif // _IWADDIN_SMARTVARS_H_
)";

static const char* const typeConverterText = R"(#ifndef _IWADDIN_TYPECONVERTER_H_
#define _IWADDIN_TYPECONVERTER_H_

// From the untyped values of the application to typed pointers
class TypeConverter
{
public:
    // The caller deletes the array with delete[]. It is NULL if the source holds no objects; an element that is not of
    // the wanted type is NULL.
    template <class SmartPtrType, class PtrType>
    static void convertVariantArrayToPtrArray( variant_t pVariantArraySource, SmartPtrType *&pResult, int &count )
    {
        pResult = NULL;
        count = 0;

        if( 0 == ( pVariantArraySource.vt & VT_ARRAY ) )
        {
            return;
        }

        SAFEARRAY *pArray =
            0 != ( pVariantArraySource.vt & VT_BYREF ) ? *pVariantArraySource.pparray : pVariantArraySource.parray;
        VARTYPE elementType = VT_EMPTY;
        LONG lower = 0;
        LONG upper = -1;
        if( NULL == pArray
            || FAILED( SafeArrayGetVartype( pArray, &elementType ) )
            || FAILED( SafeArrayGetLBound( pArray, 1, &lower ) )
            || FAILED( SafeArrayGetUBound( pArray, 1, &upper ) )
            || upper < lower )
        {
            return;
        }

        if( VT_DISPATCH != elementType && VT_VARIANT != elementType )
        {
            return;
        }

        count = upper - lower + 1;
        pResult = new SmartPtrType[count];
        for( LONG index = lower; index <= upper; index++ )
        {
            variant_t element;
            if( VT_VARIANT == elementType )
            {
                SafeArrayGetElement( pArray, &index, static_cast<VARIANT*>( &element ) );
            }
            else if( SUCCEEDED( SafeArrayGetElement( pArray, &index, &element.pdispVal ) ) )
            {
                element.vt = VT_DISPATCH;
            }

            if( VT_DISPATCH == element.vt )
            {
                convertIDispatchPtrToSmartPtr<SmartPtrType, PtrType>( element.pdispVal, pResult[index - lower] );
            }
        }
    }

    template <class SmartPtrType, class PtrType>
    static void convertIDispatchPtrToSmartPtr( IDispatch* pDispatchPtr, SmartPtrType &pResult )
    {
        pResult = NULL;
        if( NULL == pDispatchPtr )
        {
            return;
        }

        PtrType *pInterface = NULL;
        if( SUCCEEDED( pDispatchPtr->QueryInterface( __uuidof( PtrType ), (void**)&pInterface ) ) )
        {
            pResult.Attach( pInterface );
        }
    }
};

#endif // _IWADDIN_TYPECONVERTER_H_
)";

namespace inkmacro::cppcom {

Statement precompiledHeader()
{
    static const Template words(precompiledHeaderText);
    return fillProject(words)
        .text(LineEnd)
        .text(installedPath("APISDK\\tlb\\iwAddin.tlb"))
        .text(installedPath("bin\\iwAutomation.dll"));
}

Statement precompiledSource()
{
    static const Template words(precompiledSourceText);
    return fillProject(words).text(LineEnd);
}

Statement safeArrayHeader()
{
    return QString::fromLatin1(safeArrayText);
}

Statement typeConverterHeader()
{
    return QString::fromLatin1(typeConverterText);
}

} // namespace inkmacro::cppcom
