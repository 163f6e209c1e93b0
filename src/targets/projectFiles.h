#pragma once

#include "statements/Fault.h"
#include "statements/Fill.h"

#include <QFileDevice>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <vector>

namespace inkmacro {

/// One file of the project around a macro.
struct ProjectFile
{
    QString name;
    Statement text; ///< the faults in it are noted when it is written
    bool byteOrderMark;
};

/// Notes for the host that the fault stands in a line of a file, which is named without folders.
void noteFault(const Fault& fault, const QString& file, std::size_t line);

/// A name or a directory as it stands in the XML of a project, between tags or quotes.
QString xmlText(const QString& text);

/// The name of a file as it stands between quotes where MSBuild lists files: as itself, whatever MSBuild would else
/// take for a list, a pattern or a property.
QString msbuildItem(const QString& fileName);

/// Whether an XML file can hold the name: not one of bytes that are no UTF-8.
bool isXmlName(const QString& fileName);

/// The words of a project's file with the values for their markers in turn. In a repaired project values hold no
/// markers.
Statement fillProject(const char* words, std::initializer_list<Statement> values,
                      Template::Markers markers = Template::Markers::Ranked);

/// Why a file that a stream was to fill is not whole. One that cannot be kept: it takes a further write.
QString writeFailure(QFileDevice& file);

/// Writes the files in turn into the macro file's directory, which is made when it is missing. Ends with kFxFailure at
/// the first that cannot be opened; those before it stay. A write that fails after that is reported to the host alone.
std::int32_t WriteProject(const QString& macroPath, const std::vector<ProjectFile>& files);

} // namespace inkmacro
