#pragma once

#include "recordfile/Recording.h"

#include <vector>

namespace inkmacro {

/// Of a place in a recording; with the file's name it reads as an error does.
struct Warning
{
    qint64 line;
    QString path; ///< empty for the whole line
    QString kind; ///< "failed", "lost", "assumed" or "handle"
    QString message;

    QString text(const QString& file) const
    {
        return QString("%1:%2: %3warning: %4").arg(file).arg(line).arg(path.isEmpty() ? path : path + ": ", message);
    }
};

/// What is probably not what was meant, by lines. Converts the recording, which this process can then not do again.
std::vector<Warning> warningsOf(const Recording& recording);

} // namespace inkmacro
