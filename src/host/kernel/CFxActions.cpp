#include "host/kernel/CFxActions.h"

ODRX_DEFINE_DESC(CFxPropertyChanged, OdRxObject)
ODRX_DEFINE_DESC(CFxUserCommand, OdRxObject)
ODRX_DEFINE_DESC(CFxObjectAdded, OdRxObject)
ODRX_DEFINE_DESC(CFxObjectModified, OdRxObject)
ODRX_DEFINE_DESC(CFxSysVarChanged, OdRxObject)
ODRX_DEFINE_DESC(CFxUserInteraction, OdRxObject)
ODRX_DEFINE_DESC(CFxUserSelection, OdRxObject)
ODRX_DEFINE_DESC(CFxCustomAction, OdRxObject)
