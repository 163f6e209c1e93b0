#include "host/rx/OdRxClass.h"

#include <QHash>

namespace {

QHash<OdString, OdRxClass*>& dictionary()
{
    // Never destroyed: descriptors are compared by address until the last static destructor has run.
    static auto* const classes = new QHash<OdString, OdRxClass*>;
    return *classes;
}

} // namespace

OdRxClass* OdRxClass::define(const OdString& name, OdRxClass* parent)
{
    OdRxClass*& entry = dictionary()[name];
    if (!entry)
        entry = new OdRxClass(name, parent);
    return entry;
}

OdRxClass* OdRxClass::find(const OdString& name)
{
    return dictionary().value(name, nullptr);
}

bool OdRxClass::isDerivedFrom(const OdRxClass* other) const
{
    for (const OdRxClass* c = this; c; c = c->parent_)
        if (c == other)
            return true;
    return false;
}
