#pragma once

#include "app/StagingFolder.h"

#include <QStringList>

#include <functional>
#include <list>
#include <optional>
#include <stdexcept>

namespace inkmacro {

/// A file that cannot come to its place.
class PlacingError : public std::runtime_error
{
public:
    PlacingError(const QString& file, const QString& reason);
    QString message() const;
};

/// All of a file that has been written before, such as in a staging folder. Raises PlacingError.
QByteArray readWhole(const QString& path);

/// Files that belong together: they are written in a staging folder beside their place, and when all of them are whole
/// they are put there by renaming. Until then, and for ever when that moment does not come, what stood there stays.
class StagedResult
{
public:
    /// All in one folder, which is made when it is missing. Files of a staging folder stay where they are written: it
    /// has a lock of its own, and nothing older stands there. Raises PlacingError.
    explicit StagedResult(const QStringList& files, const StagingFolder* home = nullptr);

    /// Where the first of the files, and the others beside it, shall be written. Its name is that of the place.
    QString firstFile() const;
    /// Whether the file that is to come to that place has been written.
    bool has(const QString& file) const;

    /// Puts the files to their places and gives their paths. A symbolic link that stands there stays and its target is
    /// replaced. Raises PlacingError; then no file has been replaced, unless it was the replacing that failed. Under
    /// the lock of the folder `mayReplace` is asked, when there is one: with false nothing is put anywhere, and no path
    /// given.
    QStringList place(const std::function<bool()>& mayReplace = {});

private:
    struct Move
    {
        QString file; ///< as people know it
        std::string from;
        std::string to;
    };

    std::string staged(const QString& file) const;
    Move prepare(const QString& file);

    QStringList files_;
    const StagingFolder* home_; ///< in place of a folder of this result's own
    std::filesystem::path directory_;
    std::optional<StagingFolder> staging_;
    std::list<StagingFolder> elsewhere_; ///< beside the targets of links
};

/// Why one of the files may not be written, or empty text: in its place stands something that is no file, or that the
/// user may not write, or its folder can neither be made nor written to.
QString refusalOf(const QStringList& files);

} // namespace inkmacro
