#include "host/rx/OdRxModule.h"

OdRxClass* OdRxModule::desc()
{
    static OdRxClass* const descriptor = OdRxClass::define("OdRxModule", OdRxObject::desc());
    return descriptor;
}
