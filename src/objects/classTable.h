#pragma once

#include "conversion/Conversion.h"
#include "objects/RecordedObject.h"

#include <span>

class AddedObject;
class ChangeGroups;

/// Converts the changes of one class, where they are more than a list of tags with a statement each. Takes the tags
/// that it knows out of the list and appends their statements to `text`.
using ChangeHandler = void (*)(Conversion& conversion, const RecordedObject& object, PropertyList& list,
                               Statement& text);

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
    kOnlyNamed = 4,              ///< the type is only met within other objects' data: objects are not converted
    kSetWhenAdded = 8,           ///< what an added object's reader has left is written like a change
};

/// What is known of one class of drawing objects.
struct ClassRow
{
    const char* name;                                  ///< as the class descriptor reports it
    Statement (*reader)(AddedObject& added) = nullptr; ///< gives the statement that makes the object; it may be empty
    ClassChanges changes = {};
    unsigned flags = 0;

    bool has(ClassFlags flag) const { return (flags & flag) != 0; }
};

std::span<const ClassRow> ClassTable();
/// Null for a class that the table does not know, and for no class.
const ClassRow* FindClass(const OdRxClass* cls);
/// By the class's name, with case.
const ClassRow* FindClass(const QString& name);

/// Whether objects of that class are converted at all.
bool IsSupportedClass(const OdRxClass* cls);
bool IsDimensionClass(const OdRxClass* cls);
