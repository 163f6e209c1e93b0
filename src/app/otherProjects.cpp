// Projects of a target share names of files, such as Program.cs: two of them in one folder break each other.

#include "app/otherProjects.h"

#include "app/valueText.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace inkmacro {

namespace {

const QString mark = QStringLiteral("%1");

bool allExist(const QStringList& files)
{
    return std::all_of(files.begin(), files.end(), [](const QString& file) { return QFileInfo::exists(file); });
}

/// The file by which another project in the place of the job is told from its own; empty when there is none.
QString foreignFile(const Job& job)
{
    const QFileInfo macro(job.macro);
    const QStringList names = job.projectNames();
    const QStringList own = names.filter(mark);
    const QDir folder = macro.dir();
    if (names.isEmpty() || !folder.exists())
        return {};
    const QString ending = QString(own.value(0)).remove(mark);
    const QStringList likeOwn =
        own.isEmpty() ? QStringList() : folder.entryList({'*' + ending}, QDir::Files, QDir::Name);
    for (const QString& name : likeOwn) {
        Job other = job;
        other.macro = folder.filePath(name.chopped(ending.length()) + '.' + macro.suffix());
        if (name != QString(own.front()).replace(mark, macro.baseName()) && allExist(other.projectFiles()))
            return name;
    }
    // A shared file where nothing is of this recording.
    const auto isThere = [&](QString name) {
        return QFileInfo(folder.filePath(name.replace(mark, macro.baseName()))).isFile();
    };
    if (macro.exists() || std::any_of(own.begin(), own.end(), isThere))
        return {};
    const auto shared = std::find_if(names.begin(), names.end(), isThere);
    return shared == names.end() ? QString() : *shared;
}

} // namespace

QString otherProjectsIn(const std::vector<Job>& jobs)
{
    constexpr int most = 3;
    QStringList places;
    for (const Job& job : jobs) {
        const QString file = job.replacesOthers || job.toStandardOutput ? QString() : foreignFile(job);
        if (!file.isEmpty())
            places.append(QString("%1/ (%2)").arg(QFileInfo(job.macro).path(), file));
    }
    if (places.isEmpty())
        return {};
    const int more = std::max(0, places.size() - most);
    const QString shown = QStringList(places.mid(0, most)).join(", ");
    return QString(
               "the project of another recording is in %1%2; give another --output, or --force to replace the files "
               "that both have")
        .arg(shown, more > 0 ? " and " + counted(more, "more folder", "more folders") : QString());
}

} // namespace inkmacro
