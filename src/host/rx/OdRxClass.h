#pragma once

#include "host/rx/Export.h"
#include "host/rx/OdString.h"

/// Run-time class descriptor. There is one for each class name, it lives to the end of the process, and so classes
/// are told apart by the descriptor's address.
class INKHOST_EXPORT OdRxClass
{
public:
    /// The descriptor of that name; it is made, with the given parent, when the name is new.
    static OdRxClass* define(const OdString& name, OdRxClass* parent);
    /// The descriptor of that name or null.
    static OdRxClass* find(const OdString& name);

    const OdString& name() const { return name_; }
    OdRxClass* myParent() const { return parent_; }
    bool isDerivedFrom(const OdRxClass* other) const;

    OdRxClass(const OdRxClass&) = delete;
    OdRxClass& operator=(const OdRxClass&) = delete;

private:
    OdRxClass(const OdString& name, OdRxClass* parent) : name_(name), parent_(parent) {}

    OdString name_;
    OdRxClass* parent_;
};

/// Defines `desc` of a class whose descriptor has the class's name.
#define ODRX_DEFINE_DESC(Class, Parent)                                                                                \
    OdRxClass* Class::desc()                                                                                           \
    {                                                                                                                  \
        static OdRxClass* const descriptor = OdRxClass::define(#Class, Parent::desc());                                \
        return descriptor;                                                                                             \
    }
