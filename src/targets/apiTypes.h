#pragma once

#include <QString>

#include <span>

namespace inkmacro {

/// How the automation interface calls a class of drawing objects.
struct ApiType
{
    const char* className;     ///< as the class descriptor reports it
    const char* interfaceName; ///< variables and declarations are made from it
    const char* enumerator;    ///< of iwObjectType_e
};

/// By class name, with case; null for a class that the interface does not know.
const ApiType* FindApiType(const QString& className);
/// By interface name, without case; null for a name that no class has.
const ApiType* FindApiTypeOfInterface(const QString& interfaceName);
std::span<const ApiType> ApiTypes();

} // namespace inkmacro
