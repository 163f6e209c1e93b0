#include "host/db/OdDbHandle.h"

OdString OdDbHandle::ascii() const
{
    return OdString::number(value_, 16).toUpper();
}
