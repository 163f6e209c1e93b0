#pragma once

#include "host/kernel/CFxString.h"
#include "host/rx/OdRxClass.h"

#include <cstdint>
#include <span>

/// What the automation interface calls a class of drawing objects. Variables and declarations are made from it.
struct InterfaceType
{
    const char* cls; ///< as the class descriptor reports it
    const char* name;
    const char* enumerator; ///< of iwObjectType_e
    bool rawPointer;        ///< C++ keeps objects of the type as raw pointers, all others as smart pointers
};

std::span<const InterfaceType> InterfaceTypes();
/// Null for a class without an interface, and for no class.
const InterfaceType* FindInterface(const OdRxClass* cls);
/// By the interface's name, without case: the first row of that interface, or null.
const InterfaceType* FindInterface(const QString& name);

/// Class and ordinal of an object that the generated code has a variable for.
struct ActionEntry
{
    const OdRxClass* cls = nullptr;
    std::uint32_t ordinal = 0;
};

/// The interface's names of a class, rewritten for C++ when the recording language is 0.
struct TypeNames
{
    CFxString type;
    CFxString second; ///< object type enumerator
    CFxString lower;  ///< the type in small letters
    CFxString stem;   ///< of its variables: in small letters, without what C++ type names end in
};
/// Null for a class without an interface. Lasts as long as the process.
const TypeNames* FindTypeNames(const OdRxClass* cls);

/// The first two of these names. kFxFailure for a class without an interface; the outputs then stay untouched.
std::int32_t GetApiTypeName(const OdRxClass* cls, CFxString& typeName, CFxString& secondName);

/// Whether GetApiTypeName knows the class.
bool HasInterface(const OdRxClass* cls);

/// The declared name of the class's variable with that ordinal: its stem and the ordinal. Only the ordinal for a class
/// without an interface.
QString NumberedVariable(const OdRxClass* cls, std::uint32_t ordinal);
