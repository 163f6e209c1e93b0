#pragma once

#include "app/StagingFolder.h"

#include <QStringList>

#include <array>
#include <cstdint>
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

/// What stands at a place, as far as it takes to tell later whether somebody has written there.
class FileState
{
public:
    /// Of now.
    explicit FileState(const QString& file);
    bool operator==(const FileState&) const = default;

private:
    /// Device, number, length, and both times in nanoseconds; nothing when no file is there.
    std::optional<std::array<std::uint64_t, 5>> known_;
};

/// Files that belong together: they are written in a staging folder beside their place, and when all of them are whole
/// they are put there by renaming. Until then, and for ever when that moment does not come, what stood there stays.
class StagedResult
{
public:
    /// All in one folder, which is made when it is missing. Raises PlacingError.
    explicit StagedResult(const QStringList& files);

    /// Where the first of the files, and the others beside it, shall be written. Its name is that of the place.
    QString firstFile() const;
    /// Whether the file that is to come to that place has been written.
    bool has(const QString& file) const;

    /// Puts the files to their places and gives their paths. A symbolic link that stands there stays and its target is
    /// replaced. Raises PlacingError; then no file has been replaced, unless it was the replacing that failed.
    QStringList place();
    /// The same of a single file, but false, and nothing is replaced, when in its place no longer stands what stood
    /// there before. Of two processes that do so at once one finds it changed.
    bool placeUnlessChanged(const FileState& before);

private:
    struct Move
    {
        QString file; ///< as people know it
        std::string from;
        std::string to;
    };

    std::string staged(const QString& file) const;
    bool place(QStringList& written, const FileState* before);
    Move prepare(const QString& file);

    QStringList files_;
    std::filesystem::path directory_;
    std::optional<StagingFolder> staging_;
    std::list<StagingFolder> elsewhere_; ///< beside the targets of links
};

/// Why one of the files may not be written, or empty text: in its place stands something that is no file, or that the
/// user may not write.
QString refusalOf(const QStringList& files);

} // namespace inkmacro
