// Which files a call reads and writes, and whether they get in one another's way.

#include "app/jobs.h"

#include "app/StagedResult.h"
#include "app/otherProjects.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <map>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

namespace inkmacro {

namespace {

QString latin(std::string_view text)
{
    return QString::fromLatin1(text.data(), static_cast<int>(text.size()));
}

bool isDirectory(const QString& path)
{
    return path.endsWith('/') || QFileInfo(path).isDir();
}

QString macroPath(const QString& directory, const QString& input, const TargetRow& row)
{
    return directory + targetName(row) + '/' + macroName(input, row);
}

QString identity(const struct stat& found)
{
    return QString("%1:%2").arg(found.st_dev).arg(found.st_ino);
}

/// The same text for two paths that name the same file, through links of either kind too. A file that is missing goes
/// by its name in its directory.
QString placeOf(const QString& path)
{
    struct stat found = {};
    if (stat(QFile::encodeName(path).constData(), &found) == 0)
        return identity(found);
    const QFileInfo missing(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    return placeOf(missing.absolutePath()) + '/' + missing.fileName();
}

/// Empty for a standard input that is no file.
QString placeOfInput(const QString& input)
{
    if (input != "-")
        return placeOf(input);
    struct stat found = {};
    return fstat(STDIN_FILENO, &found) == 0 && S_ISREG(found.st_mode) ? identity(found) : QString();
}

/// The macro's name, which stands in its text, is the one that it would have in a folder.
Job jobForStandardOutput(const CommandLine& line)
{
    if (line.files.size() * line.targets.size() != 1)
        throw WrongUse(QString("standard output takes the macro of one recording in one target, not %1")
                           .arg(line.files.size() * line.targets.size()));
    const TargetRow& row = *line.targets.front();
    return {.input = line.files.front(),
            .target = &row,
            .macro = QDir::tempPath() + '/' + macroName(line.files.front(), row),
            .toStandardOutput = true};
}

std::vector<Job> listJobs(const CommandLine& line)
{
    std::vector<Job> jobs;
    const QString output = line.output.value_or(QString());
    const bool several = line.files.size() * line.targets.size() > 1;
    if (several && QFileInfo(output).isFile())
        throw WrongUse(QString("the results cannot all be %1, which is a file; a directory is needed").arg(output));
    const bool intoDirectory = several || output.isEmpty() || isDirectory(output);
    const QString directory = output.isEmpty() || output.endsWith('/') ? output : output + '/';
    for (const QString& input : line.files) {
        const QString own = line.files.size() > 1 ? directory + baseNameOf(input) + '/' : directory;
        for (const TargetRow* row : line.targets)
            jobs.push_back({.input = input,
                            .target = row,
                            .macro = intoDirectory ? macroPath(own, input, *row) : output,
                            .hasMap = line.map,
                            .replacesOthers = line.force});
    }
    return jobs;
}

void checkMacros(const std::vector<Job>& jobs)
{
    std::map<QString, const Job*> macros;
    for (const Job& job : jobs)
        if (const auto [other, fresh] = macros.emplace(placeOf(job.macro), &job); !fresh)
            throw WrongUse(QString("%1 and %2 would both become %3").arg(other->second->input, job.input, job.macro));
    // Projects may share a file, but a macro that one of them replaces is lost.
    for (const Job& job : jobs) {
        const QStringList files = job.projectFiles();
        for (const QString& file : files)
            if (files.count(file) > 1)
                throw WrongUse(QString("two project files of %1 would both become %2").arg(job.input, file));
        for (const QString& file : files)
            if (const auto macro = macros.find(placeOf(file)); macro != macros.end())
                throw WrongUse(QString("the macro of %1 and a project file of %2 would both become %3")
                                   .arg(macro->second->input, job.input, file));
    }
}

void checkInputs(const std::vector<Job>& jobs, const CommandLine& line)
{
    std::map<QString, QString> places;
    for (const QString& input : line.files)
        if (const QString place = placeOfInput(input); !place.isEmpty())
            places.emplace(place, "the recording " + input);
    if (line.host.optionNames)
        places.emplace(placeOf(*line.host.optionNames), "the names of options in " + *line.host.optionNames);
    const auto refuse = [&places](const QString& output) {
        if (const auto input = places.find(placeOf(output)); input != places.end())
            throw WrongUse(QString("%1 would overwrite %2").arg(output, input->second));
    };
    if (line.telling.reportFile) {
        refuse(*line.telling.reportFile);
        if (const QString refusal = refusalOf({*line.telling.reportFile}); !refusal.isEmpty())
            throw WrongUse("--report-file: " + refusal);
        places.emplace(placeOf(*line.telling.reportFile), "the report in " + *line.telling.reportFile);
    }
    for (const Job& job : jobs)
        if (!job.toStandardOutput)
            for (const QString& output : job.files())
                refuse(output);
}

/// Two jobs meet in a file only when the user made one folder of theirs a link to another.
void orderJobs(std::vector<Job>& jobs)
{
    std::map<QString, std::size_t> lastWriter;
    for (std::size_t i = 0; i < jobs.size(); ++i)
        for (const QString& file : jobs[i].files()) {
            const auto [writer, fresh] = lastWriter.emplace(placeOf(file), i);
            if (!fresh)
                jobs[i].behind.push_back(std::exchange(writer->second, i));
        }
}

} // namespace

QStringList Job::projectNames() const
{
    return latin(target->projectFiles).split(' ', Qt::SkipEmptyParts);
}

QStringList Job::projectFiles() const
{
    const QString directory = macro.left(macro.lastIndexOf('/') + 1);
    const QString project = QFileInfo(macro).baseName();
    QStringList files;
    for (QString name : projectNames())
        files.append(directory + name.replace("%1", project));
    return files;
}

QStringList Job::files() const
{
    QStringList files = QStringList(macro) + projectFiles();
    if (hasMap)
        files.append(mapOf(macro));
    if (hasSteps)
        files.append(stepsOf(macro));
    return files;
}

QString Job::shownMacro() const
{
    if (toStandardOutput)
        return QStringLiteral("standard output");
    return home ? QFileInfo(macro).fileName() : macro;
}

// The project takes its name from the macro by the same rule, and the two have to agree.
QString baseNameOf(const QString& input)
{
    QString name = input == "-" ? QString() : QFileInfo(input).fileName();
    while (name.startsWith('.'))
        name.remove(0, 1);
    const QString base = QFileInfo(name).baseName();
    return base.isEmpty() ? QStringLiteral("recording") : base;
}

QString macroName(const QString& input, const TargetRow& row)
{
    return baseNameOf(input) + '.' + latin(row.extension);
}

std::vector<Job> planJobs(const CommandLine& line)
{
    std::vector<Job> jobs = line.output == "-" ? std::vector{jobForStandardOutput(line)} : listJobs(line);
    checkInputs(jobs, line);
    if (line.output == "-")
        return jobs;
    checkMacros(jobs);
    if (const QString others = otherProjectsIn(jobs); !others.isEmpty())
        throw WrongUse(others);
    orderJobs(jobs);
    return jobs;
}

} // namespace inkmacro
