#pragma once

#include "app/CommandLine.h"

namespace inkmacro {

/// One recording to be written for one target.
struct Job
{
    QString input; ///< "-" is standard input
    const TargetRow* target;
    QString macro;

    /// The files of the project around the macro. The module names them after the macro and puts them beside it.
    QStringList projectFiles() const;
};

/// What a `convert` asks for: file by file, and within a file target by target. Raises WrongUse when results would
/// overwrite one another or a recording.
std::vector<Job> planJobs(const CommandLine& line);

/// Why the macro may not be written there, or empty text. After a failure the module removes the file at that path, so
/// what stands there must be a file and no device.
QString refusalOf(const QString& macro);

} // namespace inkmacro
