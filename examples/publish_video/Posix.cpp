/// @file
/// See OutputFile.h and System.h: for POSIX systems.

#ifndef _WIN32

#include "OutputFile.h"
#include "System.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace publish {

namespace fs = std::filesystem;

namespace {

fs::path folderOf(const fs::path& file, const std::string& output)
{
    std::error_code error;
    fs::path folder =
        fs::canonical(file.has_parent_path() ? file.parent_path() : fs::path("."), error);
    if (error) failToWrite(output, error.value());
    return folder;
}

/// Whether the links in @p folder refer to open files, not to paths.
bool holdsOpenFiles(const fs::path& folder)
{
    return folder.native().compare(0, 6, "/proc/") == 0;
}

/// Follows symbolic links, so that the program replaces the file they lead to, not the link.
std::optional<fs::path> fileBehindLinks(const std::string& output)
{
    constexpr int mostLinks = 40;
    fs::path file = output;
    for (int links = 0; links < mostLinks; ++links) {
        const fs::path folder = folderOf(file, output);
        file = folder / file.filename();
        std::error_code noLink;
        const fs::path next = fs::read_symlink(file, noLink);
        if (noLink) return file;
        if (holdsOpenFiles(folder)) return std::nullopt;
        file = folder / next;
    }
    failToWrite(output, ELOOP);
}

mode_t permissionsOfNewFile()
{
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return static_cast<mode_t>(0666) & ~mask;
}

mode_t permissionsFor(const fs::path& file)
{
    struct stat status {};
    if (::stat(file.c_str(), &status) != 0) return permissionsOfNewFile();
    return status.st_mode & static_cast<mode_t>(0777);
}

/// Writes all of @p bytes; returns false and sets errno if that fails.
bool writeAll(int descriptor, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = ::write(descriptor, bytes.data(), bytes.size());
        if (count < 0 && errno != EINTR) return false;
        if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

} // namespace

std::optional<fs::path> replaceableFile(const std::string& output)
{
    struct stat status {};
    if (::stat(output.c_str(), &status) != 0) {
        if (errno != ENOENT) failToWrite(output, errno);
        return fileBehindLinks(output);
    }
    if (S_ISDIR(status.st_mode)) failToWrite(output, EISDIR);
    if (!S_ISREG(status.st_mode)) return std::nullopt;
    // Replacing a file needs no permission on the file itself, so that is checked here.
    if (::access(output.c_str(), W_OK) != 0) failToWrite(output, errno);
    return fileBehindLinks(output);
}

void writeDirectly(const std::string& output, std::string_view bytes)
{
    const int descriptor = ::open(output.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0) failToWrite(output, errno);
    const int writeError = writeAll(descriptor, bytes) ? 0 : errno;
    const int closeError = ::close(descriptor) == 0 ? 0 : errno;
    if (writeError != 0) failToWrite(output, writeError);
    if (closeError != 0) failToWrite(output, closeError);
}

ReplacementFile::ReplacementFile(fs::path replaced, std::string output)
    : replaced_(std::move(replaced)), output_(std::move(output)),
      path_((replaced_.parent_path() / ".publish_video.XXXXXX").native()),
      descriptor_(::mkostemp(path_.data(), O_CLOEXEC))
{
    if (descriptor_ < 0) failToWrite(output_, errno);
}

ReplacementFile::~ReplacementFile()
{
    ::close(descriptor_);
    if (!path_.empty()) ::unlink(path_.c_str());
}

std::size_t ReplacementFile::size() const
{
    struct stat status {};
    if (::fstat(descriptor_, &status) != 0) failToWrite(output_, errno);
    return static_cast<std::size_t>(status.st_size);
}

void ReplacementFile::replace()
{
    if (::fchmod(descriptor_, permissionsFor(replaced_)) != 0) failToWrite(output_, errno);
    if (std::rename(path_.c_str(), replaced_.c_str()) != 0) failToWrite(output_, errno);
    path_.clear();
}

std::vector<std::string> commandLine(int argc, char** argv)
{
    return {argv, argv + argc};
}

void prepareStreams()
{
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

std::FILE* openToRead(const std::string& path)
{
    return std::fopen(path.c_str(), "rb");
}

} // namespace publish

#endif
