#include "host/rx/OdRxObject.h"

#include "host/rx/OdRxModule.h"

OdRxClass* OdRxObject::desc()
{
    static OdRxClass* const descriptor = OdRxClass::define("OdRxObject", nullptr);
    return descriptor;
}

OdRxObject::~OdRxObject() = default;

OdRxObject* OdRxObject::queryX(const OdRxClass* wanted) const
{
    if (!isA()->isDerivedFrom(wanted))
        return nullptr;
    addRef();
    return const_cast<OdRxObject*>(this);
}

ODRX_DEFINE_DESC(OdRxModule, OdRxObject)
