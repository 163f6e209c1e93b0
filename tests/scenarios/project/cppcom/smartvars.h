#ifndef _IWADDIN_SMARTVARS_H_
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
