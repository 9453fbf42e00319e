/// @file
/// The functions of this test program for files, which replace those of the C library.

#include "robustness/FileCalls.h"

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

// Not <fcntl.h>, which may define open() as an inline function.

namespace {

constexpr int currentFolder = -100; // AT_FDCWD

bool active = false;
std::size_t firstFailing = 0;
std::size_t failingCount = 0;
int errorNumber = 0;

constexpr std::size_t mostCalls = 200;
std::size_t count = 0;
const char* called[mostCalls];
unsigned permissions = 0;

/// Records a call. Returns whether it fails, and with which errno.
bool fails(const char* name)
{
    if (!active || count == mostCalls) return false;
    const std::size_t index = count++;
    called[index] = name;
    if (index < firstFailing || index - firstFailing >= failingCount) return false;
    errno = errorNumber;
    return true;
}

} // namespace

// The parameters are named as in the C library's declarations.

extern "C" int open(const char* file, int oflag, ...)
{
    va_list arguments;
    va_start(arguments, oflag);
    const auto mode = va_arg(arguments, mode_t); // nobody looks at it unless it was given
    va_end(arguments);
    if (fails("open")) return -1;
    return static_cast<int>(syscall(SYS_openat, currentFolder, file, oflag, mode));
}

extern "C" int close(int fd)
{
    const bool isFailure = fails("close");
    const int error = errno;
    const int result = static_cast<int>(syscall(SYS_close, fd));
    if (!isFailure) return result;
    errno = error;
    return -1;
}

extern "C" int fchown(int fd, uid_t owner, gid_t group) noexcept
{
    return fails("fchown") ? -1 : static_cast<int>(syscall(SYS_fchown, fd, owner, group));
}

extern "C" int fchmod(int fd, mode_t mode) noexcept
{
    struct stat status {};
    if (fstat(fd, &status) == 0) permissions = status.st_mode & 0777U;
    return fails("fchmod") ? -1 : static_cast<int>(syscall(SYS_fchmod, fd, mode));
}

extern "C" int fsync(int fd)
{
    return fails("fsync") ? -1 : static_cast<int>(syscall(SYS_fsync, fd));
}

extern "C" int rename(const char* old, const char* new_) noexcept
{
    if (fails("rename")) return -1;
    return static_cast<int>(syscall(SYS_renameat2, currentFolder, old, currentFolder, new_, 0));
}

namespace ZelInterchangeData {

FileCalls::FileCalls(std::size_t failing, int error, std::size_t times)
{
    firstFailing = failing;
    errorNumber = error;
    failingCount = times;
    count = 0;
    active = true;
}

FileCalls::~FileCalls()
{
    active = false;
}

std::vector<std::string> FileCalls::names() const
{
    return {called, called + count};
}

unsigned FileCalls::permissionsBefore() const
{
    return permissions;
}

} // namespace ZelInterchangeData
