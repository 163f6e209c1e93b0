#include "app/StagedResult.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace inkmacro {

namespace fs = std::filesystem;

namespace {

/// The system follows no more.
constexpr int mostLinks = 40;

fs::path toPath(const QString& name)
{
    return QFile::encodeName(name).toStdString();
}

fs::path directoryOf(const fs::path& file)
{
    const fs::path directory = file.parent_path();
    return directory.empty() ? fs::path(".") : directory;
}

[[noreturn]] void failFor(const QString& file, int error)
{
    throw PlacingError(file, qt_error_string(error));
}

/// An open file or folder.
class Descriptor
{
public:
    Descriptor(const fs::path& path, int flags) : number_(open(path.c_str(), flags | O_CLOEXEC)) {}
    ~Descriptor()
    {
        if (number_ >= 0)
            ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number() const { return number_; }
    /// Some file systems find out only here that the disk is full.
    bool close() { return ::close(std::exchange(number_, -1)) == 0; }

private:
    int number_;
};

/// Where a write to that name would go.
fs::path behindLinks(const QString& file)
{
    fs::path path = toPath(file);
    for (int followed = 0; followed <= mostLinks; ++followed) {
        std::error_code noLink;
        const fs::path target = fs::read_symlink(path, noLink);
        if (noLink)
            return path;
        path = path.parent_path() / target;
    }
    failFor(file, ELOOP);
}

/// On the disk before it has its name: after a loss of power the name must not lead to a part of it. Gives an errno.
int flushToDisk(const fs::path& path)
{
    Descriptor file(path, O_RDONLY);
    const bool flushed = file.number() >= 0 && (fdatasync(file.number()) == 0 || errno == EINVAL) && file.close();
    return flushed ? 0 : errno;
}

/// To the user the file is the same as before.
void takeOverRights(const fs::path& path, const fs::path& replaced)
{
    struct stat found = {};
    if (stat(replaced.c_str(), &found) == 0 && (chown(path.c_str(), found.st_uid, found.st_gid) == 0 || errno == EPERM))
        chmod(path.c_str(), found.st_mode & 0777);
}

/// Why no folder can be made or used at that path, or 0: an errno of what stands there or above it.
int obstacleAt(const fs::path& directory)
{
    struct stat found = {};
    if (stat(directory.c_str(), &found) == 0)
        return !S_ISDIR(found.st_mode) ? ENOTDIR : access(directory.c_str(), W_OK | X_OK) == 0 ? 0 : errno;
    if (errno != ENOENT && errno != ENOTDIR)
        return errno;
    const fs::path above = directoryOf(directory);
    return above == directory ? ENOENT : obstacleAt(above);
}

QString refusalAt(const QString& file)
{
    struct stat found = {};
    const bool exists = stat(QFile::encodeName(file).constData(), &found) == 0;
    if (exists && !S_ISREG(found.st_mode))
        return file + " exists and is not a regular file";
    if (exists && access(QFile::encodeName(file).constData(), W_OK) != 0)
        return file + " cannot be written: " + qt_error_string(errno);
    if (const int obstacle = obstacleAt(directoryOf(toPath(file))))
        return file + ": " + qt_error_string(obstacle);
    return {};
}

} // namespace

PlacingError::PlacingError(const QString& file, const QString& reason)
    : std::runtime_error((file + ": " + reason).toLocal8Bit().toStdString())
{
}

QString PlacingError::message() const
{
    return QString::fromLocal8Bit(what());
}

QByteArray readWhole(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw PlacingError(path, file.errorString());
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        throw PlacingError(path, file.errorString());
    return bytes;
}

StagedResult::StagedResult(const QStringList& files, const StagingFolder* home)
    : files_(files), home_(home), directory_(directoryOf(toPath(files.front())))
{
    if (home_)
        return;
    std::vector<std::string> names;
    for (const QString& file : files_)
        names.push_back(toPath(file).filename());
    try {
        fs::create_directories(directory_);
        staging_.emplace(directory_, names);
    } catch (const std::system_error& error) {
        failFor(files.front(), error.code().value());
    }
}

std::string StagedResult::staged(const QString& file) const
{
    return (home_ ? *home_ : *staging_).file(toPath(file).filename());
}

QString StagedResult::firstFile() const
{
    return QFile::decodeName(staged(files_.front()).c_str());
}

bool StagedResult::has(const QString& file) const
{
    return access(staged(file).c_str(), F_OK) == 0;
}

/// All that can fail for want of space or rights.
StagedResult::Move StagedResult::prepare(const QString& file)
{
    Move move{file, staged(file), behindLinks(file)};
    const fs::path directory = directoryOf(move.to);
    try {
        if (!fs::equivalent(directory, directory_)) {
            // Renaming does not reach another file system.
            const std::string name = toPath(file).filename();
            const std::string copy = elsewhere_.emplace_back(directory, std::vector{name}).file(name);
            fs::copy_file(std::exchange(move.from, copy), copy);
        }
    } catch (const std::system_error& error) {
        failFor(file, error.code().value());
    }
    takeOverRights(move.from, move.to);
    if (const int error = flushToDisk(move.from))
        failFor(file, error);
    return move;
}

QStringList StagedResult::place(const std::function<bool()>& mayReplace)
{
    QStringList written;
    for (const QString& file : files_)
        if (has(file))
            written.append(file);
    if (home_)
        return written;
    std::vector<Move> moves;
    for (const QString& file : written)
        moves.push_back(prepare(file));

    // Of two processes that put files here at once, one has to wait, so that all files are of the same one.
    const Descriptor directory(directory_, O_RDONLY | O_DIRECTORY);
    while (flock(directory.number(), LOCK_EX) != 0 && errno == EINTR) {
    }
    if (!staging_->stands() || !has(files_.front()))
        throw PlacingError(files_.front(), "its folder vanished during the work");
    if (mayReplace && !mayReplace())
        return {};
    const SignalPause pause;
    // The first one comes last: where a macro is, its project is.
    std::reverse(moves.begin(), moves.end());
    for (const Move& move : moves)
        if (rename(move.from.c_str(), move.to.c_str()) != 0)
            failFor(move.file, errno);
    return written;
}

QString refusalOf(const QStringList& files)
{
    for (const QString& file : files)
        if (QString refusal = refusalAt(file); !refusal.isEmpty())
            return refusal;
    return {};
}

} // namespace inkmacro
