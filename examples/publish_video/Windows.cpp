/// @file
/// See OutputFile.h and System.h: for Windows. Paths are UTF-8; the system gets them as wide texts.

#ifdef _WIN32

#include "OutputFile.h"
#include "PublishError.h"
#include "System.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <filesystem>
#include <io.h>
#include <iterator>
#include <memory>
#include <mutex>
#include <new>
#include <share.h>
#include <sys/stat.h>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <shellapi.h>

namespace publish {

namespace fs = std::filesystem;

namespace {

struct LocalMemory {
    void operator()(void* memory) const { ::LocalFree(memory); }
};

/// Writes all of @p bytes; returns false and sets errno if that fails.
bool writeAll(int descriptor, std::string_view bytes)
{
    constexpr std::size_t most = 65536;
    while (!bytes.empty()) {
        const auto size = static_cast<unsigned>(std::min(bytes.size(), most));
        const int count = ::_write(descriptor, bytes.data(), size);
        if (count < 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

std::string utf8(const wchar_t* text)
{
    const auto convert = [&](char* to, int size) {
        return ::WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, text, -1, to, size, nullptr,
                                     nullptr);
    };
    const int size = convert(nullptr, 0);
    if (size == 0) throw PublishError("the command line is not UTF-16");
    std::string converted(static_cast<std::size_t>(size), '\0');
    convert(converted.data(), size);
    converted.pop_back(); // the zero that ends the text
    return converted;
}

void openAndWrite(const std::string& output, int flags, std::string_view bytes)
{
    int descriptor = -1;
    const int openError =
        ::_wsopen_s(&descriptor, fs::u8path(output).c_str(),
                    _O_WRONLY | flags | _O_BINARY | _O_NOINHERIT, _SH_DENYNO, _S_IREAD | _S_IWRITE);
    if (openError != 0) failToWrite(output, openError);
    const int writeError = writeAll(descriptor, bytes) ? 0 : errno;
    const int closeError = ::_close(descriptor) == 0 ? 0 : errno;
    if (writeError != 0) failToWrite(output, writeError);
    if (closeError != 0) failToWrite(output, closeError);
}

/// Held while nothing may end the program. The system calls waitForTheAction() in a thread of its
/// own, and then ends the program.
std::mutex action;

BOOL WINAPI waitForTheAction(DWORD /*event*/)
{
    action.lock(); // never unlocked: the program ends
    return FALSE;
}

} // namespace

void writeDirectly(const std::string& output, std::string_view bytes)
{
    openAndWrite(output, _O_APPEND, bytes);
}

void writeNewFile(const std::string& file, std::string_view bytes)
{
    openAndWrite(file, _O_CREAT | _O_TRUNC, bytes);
}

void writeStandardOutput(std::string_view bytes)
{
    if (!writeAll(::_fileno(stdout), bytes)) failToWrite(standardOutput, errno);
}

std::vector<std::string> commandLine(int /*argc*/, char** /*argv*/)
{
    int count = 0;
    const std::unique_ptr<wchar_t*, LocalMemory> words(
        ::CommandLineToArgvW(::GetCommandLineW(), &count));
    if (words == nullptr) throw std::bad_alloc();
    std::vector<std::string> converted;
    std::transform(words.get(), words.get() + count, std::back_inserter(converted), utf8);
    return converted;
}

void prepareStreams()
{
    for (std::FILE* stream : {stdout, stderr})
        ::_setmode(::_fileno(stream), _O_BINARY);
}

void uninterrupted(const std::function<void()>& act)
{
    ::SetConsoleCtrlHandler(waitForTheAction, TRUE);
    {
        const std::lock_guard<std::mutex> held(action);
        act();
    }
    ::SetConsoleCtrlHandler(waitForTheAction, FALSE);
}

std::FILE* openToRead(const std::string& path)
{
    return ::_wfopen(fs::u8path(path).c_str(), L"rb");
}

} // namespace publish

#endif
