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

} // namespace inkmacro
