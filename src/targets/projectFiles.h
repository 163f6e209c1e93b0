#pragma once

#include <QString>

namespace inkmacro {

/// One file of the project around a macro.
struct ProjectFile
{
    QString name;
    QString text;
    bool byteOrderMark;
};

/// A name or a directory as it stands in the XML of a project, between tags or quotes.
QString xmlText(const QString& text);

} // namespace inkmacro
