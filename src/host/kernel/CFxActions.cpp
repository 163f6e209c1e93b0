#include "host/kernel/CFxActions.h"

#define INKHOST_ACTION(Class)                                                                                          \
    OdRxClass* Class::desc()                                                                                           \
    {                                                                                                                  \
        static OdRxClass* const descriptor = OdRxClass::define(#Class, OdRxObject::desc());                            \
        return descriptor;                                                                                             \
    }

INKHOST_ACTION(CFxPropertyChanged)
INKHOST_ACTION(CFxUserCommand)
INKHOST_ACTION(CFxObjectAdded)
INKHOST_ACTION(CFxObjectModified)
INKHOST_ACTION(CFxSysVarChanged)
INKHOST_ACTION(CFxUserInteraction)
INKHOST_ACTION(CFxUserSelection)
INKHOST_ACTION(CFxCustomAction)
