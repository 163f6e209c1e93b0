#pragma once

#include "host/db/OdDbHandle.h"
#include "host/kernel/CFxString.h"
#include "host/rx/OdRxClass.h"

/// An object whose records are being converted.
struct RecordedObject
{
    const OdRxClass* cls = nullptr;
    OdDbHandle handle;
    CFxString name; ///< its variable; empty for one that needs none
};
