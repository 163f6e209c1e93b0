#pragma once

#include <cstdint>

/// What a custom action describes, by the number that the host gives it.
enum CustomActionKind : std::int32_t
{
    kMirror = 0,
    kStretch = 1,
    kCopy = 2,
    kMove = 3,
    kRotate = 4,
    kScale = 5,
    kSelect = 10,
    kSelectionFilter = 11,
    kEmbeddedObject = 15,
    kPolyline = 16,
    kErase = 17,
    kOptionValue = 33,
    kInterfaceFile = 34,
    kSystemFile = 35,
    kDrawingSupportFile = 36,
    kGroupAdd = 37,
    kGroupRemove = 38,
    kAttributeValue = 39,
    kViewBackground = 41,
    kRegion = 44,
    kActivate = 45,
    kViewport = 46,
    kPrintStyle = 47,
    kJoin = 50,
    kExplode = 55,
};
