#pragma once

#include "host/db/OdDbClasses.h"

#include <vector>

/// The class that a drawing file's object type code stands for, or null.
INKHOST_EXPORT OdRxClass* oddbDwgClassMapDesc(int code);

/// What is known of one class of drawing objects.
struct INKHOST_EXPORT OdDbClassRow
{
    const char* name;
    const char* parent;                      ///< a row above this one
    int code;                                ///< object type code, 0 when there is none
    std::span<const OdDbField> (*fields)();  ///< the fields this class adds to its parent's
    OdDbObjectPtr (*create)(OdRxClass* cls); ///< null for a class that has no objects of its own
};

/// All known classes, parents first.
INKHOST_EXPORT std::span<const OdDbClassRow> oddbClassRows();
/// The row of the class, or null for a class that is known by name alone.
INKHOST_EXPORT const OdDbClassRow* oddbFindClassRow(const OdString& name);
/// The fields of the class and those that it has from its parents, outermost first.
INKHOST_EXPORT std::vector<const OdDbField*> oddbAllFields(const OdDbClassRow& row);
/// The descriptor of that class name. A name that is not in the table gives a class of its own, with no parent but the
/// root: a host has classes which this system has never heard of.
INKHOST_EXPORT OdRxClass* oddbClassByName(const OdString& name);
