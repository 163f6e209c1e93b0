#pragma once

#include "app/CommandLine.h"

namespace inkmacro {

class StagingFolder;

/// One recording to be written for one target.
struct Job
{
    QString input; ///< "-" is standard input
    const TargetRow* target;
    QString macro;                       ///< on its way to standard output it has a name too, which is never written to
    bool toStandardOutput = false;       ///< the macro alone
    bool hasMap = false;                 ///< a map of the macro stands beside it
    bool hasSteps = false;               ///< the steps of its lines do, for a page
    bool repaired = false;               ///< whatever the host's settings say
    bool replacesOthers = false;         ///< files of another recording's project too
    QString kept = {};                   ///< a copy that is read in place of an input which can be read only once
    const StagingFolder* home = nullptr; ///< that the files stay in; nobody is told of them then
    std::vector<std::size_t> behind = {}; ///< numbers of earlier jobs that write one of the same files

    /// The names of the files in projects of the target; `%1` stands for that of the macro.
    QStringList projectNames() const;
    /// The files of the project around the macro. The module names them after the macro and puts them beside it.
    QStringList projectFiles() const;
    /// Leads the lines of the macro at that path back to the recording.
    static QString mapOf(const QString& macro) { return macro + ".map.json"; }
    static QString stepsOf(const QString& macro) { return macro + ".steps"; }
    /// The macro in front, and what leads its lines back, when it has that, behind the project.
    QStringList files() const;
    /// What messages call the macro.
    QString shownMacro() const;
};

/// What is made of a recording is called after it: `walls` for any `walls.xyz.jsonl`.
QString baseNameOf(const QString& input);
/// How the macro of a recording is called where nobody calls it otherwise.
QString macroName(const QString& input, const TargetRow& row);

/// What a `convert` asks for: file by file, and within a file target by target. Of several recordings each has a folder
/// of its own, since projects share names of files. Raises WrongUse when results would overwrite one another or a
/// recording.
std::vector<Job> planJobs(const CommandLine& line);

} // namespace inkmacro
