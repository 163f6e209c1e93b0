// What is done with the actions that are not about one object.

#include "frame/CFxConverterIWAPIImpl.h"

// Selections have no statements: they are passed over.

std::int32_t CFxConverterIWAPIImpl::ConvertSelection(OdSmartPtr<CFxUserSelection>, QString&)
{
    return kFxSuccess;
}

/// A kind without a handler is refused, and so far that is every kind.
std::int32_t CFxConverterIWAPIImpl::ConvertCustomAction(OdSmartPtr<CFxCustomAction>, QString&)
{
    return kFxFailure;
}
