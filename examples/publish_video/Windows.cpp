/// @file
/// See OutputFile.h and System.h: for Windows. Paths are UTF-8; the system gets them as wide texts.

#ifdef _WIN32

#include "OutputFile.h"
#include "PublishError.h"
#include "System.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>
#include <memory>
#include <share.h>
#include <sys/stat.h>
#include <system_error>
#include <utility>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <shellapi.h>

namespace publish {

namespace fs = std::filesystem;

namespace {

/// Names the error as POSIX systems do, or gives its number: the system's own messages may not be UTF-8.
[[noreturn]] void failWithLastError(const std::string& output)
{
    const std::error_code error(static_cast<int>(::GetLastError()), std::system_category());
    const std::error_condition named = error.default_error_condition();
    failToWrite(output, named.category() == std::generic_category()
                            ? named.message()
                            : "error " + std::to_string(error.value()));
}

struct HandleCloser {
    using pointer = HANDLE;
    void operator()(HANDLE handle) const
    {
        if (handle != INVALID_HANDLE_VALUE) ::CloseHandle(handle);
    }
};

struct LocalMemory {
    void operator()(void* memory) const { ::LocalFree(memory); }
};

/// The path of the open @p file, which no link is part of, or @p otherwise if the drive has none.
fs::path finalPath(HANDLE file, const fs::path& otherwise)
{
    std::wstring path(static_cast<std::size_t>(SHRT_MAX) + 1, L'\0'); // the system's longest
    const DWORD length =
        ::GetFinalPathNameByHandleW(file, path.data(), static_cast<DWORD>(path.size()), 0);
    if (length == 0 || length >= path.size()) return otherwise;
    path.resize(length);
    return path;
}

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

} // namespace

std::optional<fs::path> replaceableFile(const std::string& output)
{
    const fs::path path = fs::u8path(output);
    const std::unique_ptr<HANDLE, HandleCloser> file(
        ::CreateFileW(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                      nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    if (file.get() == INVALID_HANDLE_VALUE) {
        if (::GetLastError() != ERROR_FILE_NOT_FOUND) failWithLastError(output);
        return path;
    }
    if (::GetFileType(file.get()) != FILE_TYPE_DISK) return std::nullopt;
    BY_HANDLE_FILE_INFORMATION status{};
    if (::GetFileInformationByHandle(file.get(), &status) == 0) failWithLastError(output);
    if ((status.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) failToWrite(output, EISDIR);
    if ((status.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0) failToWrite(output, EACCES);
    return finalPath(file.get(), path);
}

void writeDirectly(const std::string& output, std::string_view bytes)
{
    int descriptor = -1;
    const int openError =
        ::_wsopen_s(&descriptor, fs::u8path(output).c_str(),
                    _O_WRONLY | _O_APPEND | _O_BINARY | _O_NOINHERIT, _SH_DENYNO, 0);
    if (openError != 0) failToWrite(output, openError);
    const int writeError = writeAll(descriptor, bytes) ? 0 : errno;
    const int closeError = ::_close(descriptor) == 0 ? 0 : errno;
    if (writeError != 0) failToWrite(output, writeError);
    if (closeError != 0) failToWrite(output, closeError);
}

ReplacementFile::ReplacementFile(fs::path replaced, std::string output)
    : replaced_(std::move(replaced)), output_(std::move(output)), descriptor_(-1)
{
    constexpr int mostNames = 100;
    const std::string name = ".publish_video." + std::to_string(::GetCurrentProcessId()) + ".";
    int error = EEXIST;
    for (int number = 0; error == EEXIST && number < mostNames; ++number) {
        const fs::path file = replaced_.parent_path() / (name + std::to_string(number));
        error = ::_wsopen_s(&descriptor_, file.c_str(),
                            _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY | _O_NOINHERIT, _SH_DENYNO,
                            _S_IREAD | _S_IWRITE);
        path_ = file.u8string();
    }
    if (error != 0) failToWrite(output_, error);
}

ReplacementFile::~ReplacementFile()
{
    if (descriptor_ >= 0) ::_close(descriptor_);
    if (!path_.empty()) ::_wremove(fs::u8path(path_).c_str());
}

std::size_t ReplacementFile::size() const
{
    const auto size = ::_filelengthi64(descriptor_);
    if (size < 0) failToWrite(output_, errno);
    return static_cast<std::size_t>(size);
}

void ReplacementFile::replace()
{
    // The system moves no file that is open.
    if (::_close(std::exchange(descriptor_, -1)) != 0) failToWrite(output_, errno);
    if (::MoveFileExW(fs::u8path(path_).c_str(), replaced_.c_str(),
                      MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) == 0)
        failWithLastError(output_);
    path_.clear();
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

std::FILE* openToRead(const std::string& path)
{
    return ::_wfopen(fs::u8path(path).c_str(), L"rb");
}

} // namespace publish

#endif
