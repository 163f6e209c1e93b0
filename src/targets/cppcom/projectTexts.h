#pragma once

#include <QByteArray>
#include <QString>

#include <initializer_list>

/// The texts of the project around a macro of the COM add-in. `name` is the project's; ids come with or without braces
/// as each says.
namespace inkmacro::cppcom {

// The object that the host connects to, and the command that runs the macro: connection.cpp.
QString connectionHeader(const QString& name);
QString connectionSource(const QString& name);
QString commandHeader();

// What the server offers and how it is registered: registration.cpp.
/// Ids without braces.
QString interfaceDefinition(const QString& name, const QString& typeLibraryId, const QString& classId);
/// Ids with braces.
QString connectionRegistration(const QString& name, const QString& classId, const QString& typeLibraryId);
QString serverRegistration(const QString& name);
QString serverExports(const QString& name);
QString proxyExports(const QString& name);

// Resources: resources.cpp.
QString resourceHeader(const QString& name);
QString resourceScript(const QString& name);

/// The words of a text in which the name stands as a part of identifiers, at those places: in a repaired project it is
/// a legal one there.
QByteArray withIdentifier(QByteArray words, std::initializer_list<const char*> places, const QString& name);

// What all sources of the project share: support.cpp.
QString precompiledHeader();
QString precompiledSource();
QString safeArrayHeader();
QString typeConverterHeader();

// The project of the development environment: vcproj.cpp. The id comes with braces.
QString environmentProject(const QString& name, const QString& projectId);

} // namespace inkmacro::cppcom
