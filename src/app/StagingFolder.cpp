#include "app/StagingFolder.h"

#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace inkmacro {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view prefix = ".inkmacro-part-";
constexpr std::string_view randomPart = "XXXXXX"; // as mkdtemp wants it

int openFolder(const std::string& path)
{
    return open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
}

/// Whether that path leads to the folder which is open.
bool leadsTo(const std::string& path, int descriptor)
{
    struct stat named = {};
    struct stat opened = {};
    return lstat(path.c_str(), &named) == 0 && fstat(descriptor, &opened) == 0 && named.st_dev == opened.st_dev &&
           named.st_ino == opened.st_ino;
}

/// No folder stands within a staging folder, and one that does is not of this program.
void removeFlatFolder(const fs::path& path)
{
    std::error_code ignored;
    for (fs::directory_iterator entry(path, ignored), end; entry != end; entry.increment(ignored))
        unlink(entry->path().c_str());
    rmdir(path.c_str());
}

/// Where everybody may make folders, somebody else's could become a link to anywhere while it is emptied.
bool isOwn(int descriptor)
{
    struct stat opened = {};
    return fstat(descriptor, &opened) == 0 && opened.st_uid == geteuid();
}

void removeIfDead(const std::string& path)
{
    const int descriptor = openFolder(path);
    if (descriptor < 0)
        return;
    if (isOwn(descriptor) && flock(descriptor, LOCK_EX | LOCK_NB) == 0)
        removeFlatFolder(path);
    close(descriptor);
}

} // namespace

StagingFolder::StagingFolder(const fs::path& directory, const std::vector<std::string>& names)
{
    removeDeadStaging(directory);
    const SignalPause pause;
    while (!make(directory)) {
    }
    files_.reserve(names.size());
    for (const std::string& name : names)
        files_.push_back(file(name));
    beginWatch();
}

/// False when somebody who cleans up found the folder before it was locked.
bool StagingFolder::make(const fs::path& directory)
{
    path_ = directory / std::string(prefix).append(randomPart);
    if (!mkdtemp(path_.data()))
        throw std::system_error(errno, std::generic_category());
    descriptor_ = openFolder(path_);
    if (descriptor_ < 0) {
        const int error = errno;
        rmdir(path_.c_str());
        if (error == ENOENT)
            return false;
        throw std::system_error(error, std::generic_category());
    }
    // Some network file systems cannot lock a folder; there nobody ever finds one dead.
    while (flock(descriptor_, LOCK_EX) != 0 && errno == EINTR) {
    }
    if (stands())
        return true;
    close(descriptor_);
    return false;
}

StagingFolder::~StagingFolder()
{
    removeFlatFolder(path_);
    endWatch();
    close(descriptor_);
}

bool StagingFolder::stands() const
{
    return leadsTo(path_, descriptor_);
}

void StagingFolder::endEarly(int) noexcept
{
    for (const std::string& file : files_)
        unlink(file.c_str());
    rmdir(path_.c_str());
}

void removeDeadStaging(const fs::path& directory)
{
    std::error_code ignored;
    for (fs::directory_iterator entry(directory, ignored), end; entry != end; entry.increment(ignored)) {
        const std::string name = entry->path().filename();
        if (name.size() == prefix.size() + randomPart.size() && name.starts_with(prefix))
            removeIfDead(entry->path());
    }
}

} // namespace inkmacro
