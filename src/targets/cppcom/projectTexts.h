#pragma once

#include <QByteArray>
#include <QString>

#include <initializer_list>

/// The texts of the project around a macro of the COM add-in. `name` is the project's; ids come with or without braces
/// as each says.
namespace inkmacro::cppcom {

// The object that the host connects to, and the command that runs the macro: connection.cpp.
Statement connectionHeader(const QString& name);
Statement connectionSource(const QString& name);
Statement commandHeader();

// What the server offers and how it is registered: registration.cpp.
/// Ids without braces.
Statement interfaceDefinition(const QString& name, const QString& typeLibraryId, const QString& classId);
/// Ids with braces.
Statement connectionRegistration(const QString& name, const QString& classId, const QString& typeLibraryId);
Statement serverRegistration(const QString& name);
Statement serverExports(const QString& name);
Statement proxyExports(const QString& name);

// Resources: resources.cpp.
Statement resourceHeader(const QString& name);
Statement resourceScript(const QString& name);

/// The words of a text in which the name stands as a part of identifiers, at those places: in a repaired project it is
/// a legal one there.
QByteArray withIdentifier(QByteArray words, std::initializer_list<const char*> places, const QString& name);

// What all sources of the project share: support.cpp.
Statement precompiledHeader();
Statement precompiledSource();
Statement safeArrayHeader();
Statement typeConverterHeader();

// The project of the development environment: vcproj.cpp. The id comes with braces.
Statement environmentProject(const QString& name, const QString& projectId);

} // namespace inkmacro::cppcom
