#ifndef _IWADDIN_TYPECONVERTER_H_
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
