#include "host/rx/OdError.h"

#include "host/rx/OdRxClass.h"

OdError::OdError(OdResult code) : OdError(code, OdString("error %1").arg(static_cast<int>(code)))
{
}

OdError::OdError(OdResult code, const OdString& description) : code_(code), what_(description.toUtf8())
{
}

OdError_InvalidIndex::OdError_InvalidIndex() : OdError(eInvalidIndex, "invalid index")
{
}

OdError_NotThatKindOfClass::OdError_NotThatKindOfClass(const OdRxClass* found, const OdRxClass* wanted)
    : OdError(eNotThatKindOfClass, found->name() + " is not a " + wanted->name())
{
}
