// What becomes of changed properties.

#include "objects/CFxConverterIWAPIObject.h"

/// No property has a setter yet, and a property without a setter loses its change.
std::int32_t CFxConverterIWAPIObject::ConvertObjectChanges(OdRxClass*, OdDbHandle, PropertyList&, bool, QString& text)
{
    text.clear();
    return kFxSuccess;
}
