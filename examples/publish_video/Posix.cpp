/// @file
/// See OutputFile.h and System.h: for POSIX systems.

#ifndef _WIN32

#include "OutputFile.h"
#include "System.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace publish {

namespace {

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

void openAndWrite(const std::string& output, int flags, std::string_view bytes)
{
    const int descriptor = ::open(output.c_str(), O_WRONLY | flags | O_CLOEXEC | O_NOCTTY, 0666);
    if (descriptor < 0) failToWrite(output, errno);
    const int writeError = writeAll(descriptor, bytes) ? 0 : errno;
    const int closeError = ::close(descriptor) == 0 ? 0 : errno;
    if (writeError != 0) failToWrite(output, writeError);
    if (closeError != 0) failToWrite(output, closeError);
}

/// While it lives, the signals that end the program wait.
class HeldSignals {
public:
    HeldSignals()
    {
        sigset_t held;
        ::sigemptyset(&held);
        for (const int signal : {SIGINT, SIGTERM, SIGHUP})
            ::sigaddset(&held, signal);
        ::pthread_sigmask(SIG_BLOCK, &held, &before_);
    }
    ~HeldSignals() { ::pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
    HeldSignals(const HeldSignals&) = delete;
    HeldSignals& operator=(const HeldSignals&) = delete;

private:
    sigset_t before_{};
};

} // namespace

void writeDirectly(const std::string& output, std::string_view bytes)
{
    openAndWrite(output, O_APPEND, bytes);
}

void writeNewFile(const std::string& file, std::string_view bytes)
{
    openAndWrite(file, O_CREAT | O_TRUNC, bytes);
}

void writeStandardOutput(std::string_view bytes)
{
    if (!writeAll(STDOUT_FILENO, bytes)) failToWrite(standardOutput, errno);
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

void uninterrupted(const std::function<void()>& action)
{
    const HeldSignals held;
    action();
}

std::FILE* openToRead(const std::string& path)
{
    return std::fopen(path.c_str(), "rb");
}

} // namespace publish

#endif
