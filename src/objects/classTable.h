#pragma once

#include "frame/CFxConverterIWAPIModule.h"

#include <span>

class AddedObject;
class ChangeGroups;
class CFxConverterIWAPIObject;

/// What becomes of the changes that an added object's reader has left.
enum class WhenAdded
{
    TakeOnly, ///< their tags leave the list, but the insertion has said it all
    Skip,     ///< they stay in the list
    Write     ///< they are written like those of a changed object
};

/// Converts the changes of one class, where they are more than a list of tags with a statement each. Takes the tags
/// that it knows out of the list and appends their statements to `text`, but with `takeOnly` it writes nothing. `name`
/// is the object's variable.
using ChangeHandler = void (CFxConverterIWAPIObject::*)(PropertyList& list, bool takeOnly, const CFxString& name,
                                                        QString& text);

/// The changes of one class: a list of tags, a handler, or nothing beyond what all classes have.
struct ClassChanges
{
    constexpr ClassChanges(std::nullptr_t = nullptr) {}
    constexpr ClassChanges(const ChangeGroups* groups) : groups(groups) {}
    constexpr ClassChanges(ChangeHandler handler) : handler(handler) {}

    const ChangeGroups* groups = nullptr;
    ChangeHandler handler = nullptr;
};

enum ClassFlags : unsigned
{
    kDimension = 1,
    kFinishedByCustomAction = 2, ///< one of the command that adds the object; it is told the object's variable
    kRawPointer = 4,             ///< C++ keeps objects of the type as raw pointers, all others as smart pointers
    kOnlyNamed = 8,              ///< the type is only met within other objects' data: objects are not converted
};

/// What is known of one class of drawing objects.
struct ClassRow
{
    const char* name;          ///< as the class descriptor reports it
    const char* interfaceName; ///< variables and declarations are made from it; null for a class that has none
    const char* enumerator;    ///< of iwObjectType_e
    QString (*reader)(AddedObject& added) = nullptr; ///< gives the statement that makes the object; it may be empty
    ClassChanges changes = {};
    WhenAdded whenAdded = WhenAdded::TakeOnly;
    unsigned flags = 0;

    bool has(ClassFlags flag) const { return (flags & flag) != 0; }
};

std::span<const ClassRow> ClassTable();
/// Null for a class that the table does not know, and for no class.
const ClassRow* FindClass(const OdRxClass* cls);
/// By the class's name, with case.
const ClassRow* FindClass(const QString& name);
/// By interface name, without case: the first class of that interface, or null.
const ClassRow* FindClassOfInterface(const QString& interfaceName);
