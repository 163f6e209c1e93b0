#include "host/db/OdDbEntities.h"

OdString OdDbTable::textString(unsigned row, unsigned column) const
{
    if (row >= textStrings_.length() || column >= textStrings_[row].length())
        return {};
    return textStrings_[row][column];
}
