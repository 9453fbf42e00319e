/// @file
/// See FileReplacement.h: for POSIX systems.

#ifndef _WIN32

#include "core/FileReplacement.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <pthread.h>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#ifdef __linux__
#include <sys/xattr.h>
#endif

namespace ZelInterchangeData {

namespace {

// Each step returns 0, or errno if it failed.

/// While it lives, the thread cannot be cancelled: writing and flushing could end it, and closing a
/// file while it ends could close it twice.
class Uncancelled {
public:
    Uncancelled() { swap(); }
    ~Uncancelled() { swap(); }
    Uncancelled(const Uncancelled&) = delete;
    Uncancelled& operator=(const Uncancelled&) = delete;

private:
#ifdef PTHREAD_CANCEL_DISABLE
    void swap()
    {
        ::pthread_setcancelstate(state_, &state_);
    }

    int state_ = PTHREAD_CANCEL_DISABLE;
#else
    void swap() {}
#endif
};

/// An open file or folder, or none.
class Descriptor {
public:
    Descriptor() = default;
    ~Descriptor()
    {
        if (isOpen()) ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    [[nodiscard]] bool isOpen() const { return number_ >= 0; }
    [[nodiscard]] int number() const { return number_; }

    int open(const std::string& path, int flags, mode_t mode = 0)
    {
        number_ = ::open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY, mode);
        return isOpen() ? 0 : errno;
    }

    int write(std::string_view bytes) const
    {
        while (!bytes.empty()) {
            const ssize_t count = ::write(number_, bytes.data(), bytes.size());
            if (count < 0 && errno != EINTR) return errno;
            if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
        }
        return 0;
    }

    /// Waits until the disk holds what was written. A system that cannot do that for this file has
    /// nothing to wait for.
    int flush() const
    {
        int result = 0;
        do {
            result = flushOnce();
        } while (result != 0 && errno == EINTR);
        return result == 0 || errno == EINVAL || errno == ENOTSUP ? 0 : errno;
    }

    int close()
    {
        // Interrupted, it is closed nevertheless; its bytes are on the disk already.
        return ::close(std::exchange(number_, -1)) == 0 || errno == EINTR ? 0 : errno;
    }

private:
    int flushOnce() const
    {
#ifdef F_FULLFSYNC // where fsync() leaves the bytes in the memory of the disk
        if (::fcntl(number_, F_FULLFSYNC) == 0) return 0;
#endif
        return ::fsync(number_);
    }

    int number_ = -1;
};

/// The file to replace.
struct Target {
    std::string path; // no link
    bool exists = false;
    struct stat status {};

    /// The path of its folder, with a slash at the end unless it is empty.
    [[nodiscard]] std::string folder() const { return path.substr(0, path.rfind('/') + 1); }
};

/// Whether a link with this status leads to an open file instead of a path: those of Linux do.
bool leadsToAnOpenFile(const struct stat& link)
{
    struct stat process {};
    return ::stat("/proc/self", &process) == 0 && process.st_dev == link.st_dev;
}

/// Makes the link at @p path the path that it leads to.
int followLink(std::string& path)
{
    std::array<char, 4096> place{}; // no system has longer ones
    const ssize_t size = ::readlink(path.c_str(), place.data(), place.size());
    if (size < 0) return errno;
    const std::string_view next(place.data(), static_cast<std::size_t>(size));
    path.resize(next.substr(0, 1) == "/" ? 0 : path.rfind('/') + 1);
    path += next;
    return 0;
}

int followLinks(std::string& path)
{
    constexpr int mostLinks = 40;
    for (int links = 0; links <= mostLinks; ++links) { // after the last link comes the file
        struct stat status {};
        if (::lstat(path.c_str(), &status) != 0) return errno == ENOENT ? 0 : errno;
        if (!S_ISLNK(status.st_mode)) return 0;
        if (leadsToAnOpenFile(status)) return ENOTSUP;
        if (const int error = followLink(path)) return error;
    }
    return ELOOP; // uncovered line: stat() has refused that many
}

/// Replacing a file needs no permission on the file itself, so that is checked here.
int checkReplaceable(const std::string& path, const struct stat& status)
{
    if (S_ISDIR(status.st_mode)) return EISDIR;
    if (!S_ISREG(status.st_mode)) return ENOTSUP;
    return ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0 ? 0 : errno;
}

int find(Target& target)
{
    if (target.path.empty()) return ENOENT;
    // The system would end the path there.
    if (target.path.find('\0') != std::string::npos) return EINVAL;
    target.exists = ::stat(target.path.c_str(), &target.status) == 0;
    if (!target.exists && errno != ENOENT) return errno;
    if (target.exists) {
        if (const int error = checkReplaceable(target.path, target.status)) return error;
    }
    return followLinks(target.path);
}

/// Whether the group's permissions of the file are the limits of its access control list.
bool hasAccessControlList([[maybe_unused]] const std::string& path)
{
#ifdef __linux__
    return ::getxattr(path.c_str(), "system.posix_acl_access", nullptr, 0) > 0;
#else
    return false;
#endif
}

/// A new file, removed at the end unless it has replaced the target.
class NewFile {
public:
    NewFile() = default;
    ~NewFile()
    {
        if (!path_.empty()) ::unlink(path_.c_str());
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    /// Nobody else can read it before it has the permissions of the file that it replaces.
    int createFor(const Target& target)
    {
        const mode_t mode = target.exists ? 0600 : 0666;
        int error = EEXIST;
        for (int names = 0; error == EEXIST && names != mostTemporaryNames; ++names) {
            std::string path = target.folder() + temporaryName<char>();
            error = file_.open(path, O_WRONLY | O_CREAT | O_EXCL, mode);
            if (error == 0) path_ = std::move(path);
        }
        return error;
    }

    int write(const FileParts& parts) const
    {
        for (const std::string_view part : parts) {
            if (const int error = file_.write(part)) return error;
        }
        return 0;
    }

    int takePermissionsOf(const Target& target) const
    {
        if (!target.exists) return 0;
        constexpr auto same = static_cast<uid_t>(-1);
        // Only some users may give a file away, so a refusal is no failure.
        const bool hasGroup =
            ::fchown(file_.number(), target.status.st_uid, target.status.st_gid) == 0 ||
            ::fchown(file_.number(), same, target.status.st_gid) == 0;
        mode_t mode = target.status.st_mode & 0777U;
        if (!hasGroup || hasAccessControlList(target.path)) {
            // Nobody gets more than before: only what the group and all others had.
            const mode_t shared = (mode >> 3U) & mode & 07U;
            mode = (mode & 0700U) | (shared << 3U) | shared;
        }
        return ::fchmod(file_.number(), mode) == 0 ? 0 : errno;
    }

    int flushAndClose()
    {
        const int flushError = file_.flush();
        const int closeError = file_.close();
        return flushError != 0 ? flushError : closeError;
    }

    int replace(const Target& target)
    {
        if (std::rename(path_.c_str(), target.path.c_str()) != 0) return errno;
        path_.clear();
        return 0;
    }

private:
    Descriptor file_;
    std::string path_;
};

/// Opens the folder of @p target to flush it later. Leaves it closed if that is not permitted.
int openFolder(const Target& target, Descriptor& folder)
{
    const std::string path = target.folder();
    const int error = folder.open(path.empty() ? "." : path, O_RDONLY | O_DIRECTORY);
    return error == EACCES ? 0 : error;
}

} // namespace

int replaceFileWith(const FileParts& parts, const std::string& path)
{
    [[maybe_unused]] const Uncancelled uncancelled;
    Target target;
    target.path = path;
    if (const int error = find(target)) return error;
    Descriptor folder; // opened first, so that this cannot fail once the file is replaced
    if (const int error = openFolder(target, folder)) return error;
    NewFile file;
    if (const int error = file.createFor(target)) return error;
    if (const int error = file.write(parts)) return error;
    if (const int error = file.takePermissionsOf(target)) return error;
    if (const int error = file.flushAndClose()) return error;
    if (const int error = file.replace(target)) return error;
    return folder.isOpen() ? folder.flush() : 0;
}

} // namespace ZelInterchangeData

#endif
