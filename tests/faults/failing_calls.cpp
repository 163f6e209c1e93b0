// Loaded in front of the C library, this lets one call fail: the FAULT_NUMBER-th FAULT_CALL (open, write, fdatasync,
// close or rename) of a file below FAULT_FOLDER, or the FAULT_NUMBER-th fork, or each pthread_create. A failed call
// leaves a file at FAULT_MARK.

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <string>

#include <dlfcn.h>
#include <fcntl.h>
#include <pthread.h>
#include <sys/syscall.h>
#include <unistd.h>

#define EXPORTED extern "C" __attribute__((visibility("default")))

namespace {

template<class Function>
Function* next(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

const char* setting(const char* name)
{
    const char* const value = std::getenv(name);
    return value ? value : "";
}

/// Whether the path is below the folder. Both are taken as they are given, so the folder has to be the working
/// directory too when the program is given relative paths.
bool isWatched(const char* path)
{
    const std::string folder = setting("FAULT_FOLDER");
    if (path[0] != '/')
        return !folder.empty();
    return !folder.empty() && std::strncmp(path, folder.c_str(), folder.size()) == 0;
}

constexpr int mostDescriptors = 1024;
std::array<std::atomic<bool>, mostDescriptors> watched;

bool isWatched(int descriptor)
{
    return descriptor >= 0 && descriptor < mostDescriptors && watched[static_cast<std::size_t>(descriptor)];
}

bool isCall(const char* call)
{
    return std::strcmp(setting("FAULT_CALL"), call) == 0;
}

/// Straight to the kernel: the mark's own calls are not counted.
void leaveMark()
{
    const long mark = syscall(SYS_openat, AT_FDCWD, setting("FAULT_MARK"), O_WRONLY | O_CREAT, 0600);
    syscall(SYS_close, mark);
}

/// Counts the call. True when it is the one that has to fail.
bool fails(const char* call, int error)
{
    static std::atomic<int> count = 0;
    if (!isCall(call) || ++count != std::atoi(setting("FAULT_NUMBER")))
        return false;
    leaveMark();
    errno = error;
    return true;
}

/// `opening` makes the real call.
template<class Opening>
int opened(const char* path, Opening opening)
{
    const bool watching = isWatched(path);
    if (watching && fails("open", EACCES))
        return -1;
    const int descriptor = opening();
    if (descriptor >= 0 && descriptor < mostDescriptors)
        watched[static_cast<std::size_t>(descriptor)] = watching;
    return descriptor;
}

/// What open() takes behind its flags when it may make a file.
#define TAKE_MODE(flags)                                                                                               \
    mode_t mode = 0;                                                                                                   \
    if (((flags) & (O_CREAT | O_TMPFILE)) != 0) {                                                                      \
        va_list rest;                                                                                                  \
        va_start(rest, flags);                                                                                         \
        mode = va_arg(rest, mode_t);                                                                                   \
        va_end(rest);                                                                                                  \
    }

} // namespace

#define OPEN_LIKE(name)                                                                                                \
    EXPORTED int name(const char* path, int flags, ...)                                                                \
    {                                                                                                                  \
        TAKE_MODE(flags)                                                                                               \
        return opened(path, [&] { return next<int(const char*, int, ...)>(#name)(path, flags, mode); });               \
    }

#define OPENAT_LIKE(name)                                                                                              \
    EXPORTED int name(int folder, const char* path, int flags, ...)                                                    \
    {                                                                                                                  \
        TAKE_MODE(flags)                                                                                               \
        return opened(path, [&] { return next<int(int, const char*, int, ...)>(#name)(folder, path, flags, mode); });  \
    }

OPEN_LIKE(open)
OPEN_LIKE(open64)
OPENAT_LIKE(openat)
OPENAT_LIKE(openat64)

EXPORTED ssize_t write(int descriptor, const void* bytes, size_t size)
{
    if (isWatched(descriptor) && fails("write", ENOSPC))
        return -1;
    return next<ssize_t(int, const void*, size_t)>("write")(descriptor, bytes, size);
}

EXPORTED int fdatasync(int descriptor)
{
    if (isWatched(descriptor) && fails("fdatasync", EIO))
        return -1;
    return next<int(int)>("fdatasync")(descriptor);
}

EXPORTED int close(int descriptor)
{
    const bool failing = isWatched(descriptor) && fails("close", EIO);
    if (descriptor >= 0 && descriptor < mostDescriptors)
        watched[static_cast<std::size_t>(descriptor)] = false;
    const int result = next<int(int)>("close")(descriptor);
    if (!failing)
        return result;
    errno = EIO;
    return -1;
}

EXPORTED int rename(const char* from, const char* to) noexcept
{
    if (isWatched(to) && fails("rename", EIO))
        return -1;
    return next<int(const char*, const char*)>("rename")(from, to);
}

EXPORTED int renameat(int fromFolder, const char* from, int toFolder, const char* to) noexcept
{
    if (isWatched(to) && fails("rename", EIO))
        return -1;
    return next<int(int, const char*, int, const char*)>("renameat")(fromFolder, from, toFolder, to);
}

EXPORTED int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) noexcept
{
    if (isWatched(to) && fails("rename", EIO))
        return -1;
    return next<int(int, const char*, int, const char*, unsigned)>("renameat2")(fromFolder, from, toFolder, to, flags);
}

EXPORTED pid_t fork() noexcept
{
    return fails("fork", EAGAIN) ? -1 : next<pid_t()>("fork")();
}

EXPORTED int pthread_create(pthread_t* thread, const pthread_attr_t* attributes, void* (*run)(void*),
                            void* argument) noexcept
{
    if (!isCall("pthread_create"))
        return next<int(pthread_t*, const pthread_attr_t*, void* (*)(void*), void*)>("pthread_create")(
            thread, attributes, run, argument);
    leaveMark();
    return EAGAIN;
}
