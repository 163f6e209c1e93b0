#pragma once

#include "host/db/OdDbObject.h"

/// What is drawn, as against the records and styles behind it.
class INKHOST_EXPORT OdDbEntity : public OdDbObject
{
public:
    using OdDbObject::OdDbObject;
    static OdRxClass* desc();
};
