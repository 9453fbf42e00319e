/// @file
/// See FileReplacement.h: for Windows.

#ifdef _WIN32

#include "core/FileReplacement.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

#include <windows.h>

namespace ZelInterchangeData {

namespace {

// Each step returns 0, or the system's last error if it failed.

int errorUnless(bool done)
{
    return done ? 0 : static_cast<int>(::GetLastError());
}

/// An open file or folder, or none.
class Handle {
public:
    Handle() = default;
    ~Handle()
    {
        if (isOpen()) ::CloseHandle(handle_);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    [[nodiscard]] bool isOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
    [[nodiscard]] HANDLE get() const { return handle_; }

    int open(const std::wstring& path, DWORD access, DWORD sharing, DWORD creation, DWORD flags)
    {
        handle_ = ::CreateFileW(path.c_str(), access, sharing, nullptr, creation, flags, nullptr);
        return errorUnless(isOpen());
    }
    int close()
    {
        return errorUnless(::CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE)) != 0);
    }

private:
    HANDLE handle_ = INVALID_HANDLE_VALUE;
};

/// The file to replace.
struct Target {
    std::wstring path;
    bool exists = false;

    /// The path of its folder, with what separates it from the name.
    [[nodiscard]] std::wstring folder() const
    {
        return path.substr(0, path.find_last_of(L"/\\:") + 1);
    }
};

int widen(const std::string& path, std::wstring& wide)
{
    // The system would end the path there.
    if (path.find('\0') != std::string::npos) return ERROR_INVALID_NAME;
    if (path.empty()) return ERROR_PATH_NOT_FOUND;
    if (path.size() > 0x7FFFU * 3) return ERROR_FILENAME_EXCED_RANGE; // the system's longest
    const auto convert = [&](wchar_t* to, int size) {
        return ::MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, path.data(),
                                     static_cast<int>(path.size()), to, size);
    };
    wide.resize(static_cast<std::size_t>(convert(nullptr, 0)));
    return errorUnless(convert(wide.data(), static_cast<int>(wide.size())) != 0);
}

/// Makes @p path the path of the open @p file, which no link is part of, unless the drive has none.
void resolve(const Handle& file, std::wstring& path)
{
    std::wstring resolved(0x8000, L'\0'); // the system's longest, and the zero that ends it
    const DWORD size = ::GetFinalPathNameByHandleW(file.get(), resolved.data(),
                                                   static_cast<DWORD>(resolved.size()), 0);
    if (size != 0 && size < resolved.size()) path.assign(resolved, 0, size);
}

int checkReplaceable(const Handle& file)
{
    if (::GetFileType(file.get()) != FILE_TYPE_DISK) return ERROR_NOT_SUPPORTED;
    BY_HANDLE_FILE_INFORMATION status{};
    if (::GetFileInformationByHandle(file.get(), &status) == 0) return errorUnless(false);
    constexpr DWORD refused = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY;
    return (status.dwFileAttributes & refused) != 0 ? ERROR_ACCESS_DENIED : 0;
}

int find(const std::string& path, Target& target)
{
    if (const int error = widen(path, target.path)) return error;
    Handle file;
    const int error =
        file.open(target.path, 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                  OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
    if (error != 0) return error == ERROR_FILE_NOT_FOUND ? 0 : error;
    target.exists = true;
    if (const int refusal = checkReplaceable(file)) return refusal;
    resolve(file, target.path);
    return 0;
}

/// A new file, removed at the end unless it has replaced the target.
class NewFile {
public:
    NewFile() = default;
    ~NewFile()
    {
        if (file_.isOpen()) static_cast<void>(file_.close()); // an open file cannot be removed
        if (!path_.empty()) ::DeleteFileW(path_.c_str());
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    int createFor(const Target& target)
    {
        int error = ERROR_FILE_EXISTS;
        for (int names = 0; error == ERROR_FILE_EXISTS && names != mostTemporaryNames; ++names) {
            std::wstring path = target.folder() + temporaryName<wchar_t>();
            error = file_.open(path, GENERIC_WRITE, 0, CREATE_NEW, FILE_ATTRIBUTE_NORMAL);
            if (error == 0) path_ = std::move(path);
        }
        return error;
    }

    int write(const FileParts& parts) const
    {
        for (const std::string_view part : parts) {
            if (const int error = write(part)) return error;
        }
        return 0;
    }

    int flushAndClose()
    {
        const int flushError = errorUnless(::FlushFileBuffers(file_.get()) != 0);
        const int closeError = file_.close();
        return flushError != 0 ? flushError : closeError;
    }

    int replace(const Target& target)
    {
        std::wstring path = std::move(path_);
        path_.clear();
        if (target.exists) {
            // Unlike moving, this keeps the permissions.
            if (::ReplaceFileW(target.path.c_str(), path.c_str(), nullptr, 0, nullptr, nullptr) !=
                0)
                return 0;
            // Deliberate: if the old file is gone already, only moving is left; if that fails too,
            // the new file stays under its own name, otherwise both would be lost.
            const int error = errorUnless(false);
            if (error == ERROR_UNABLE_TO_MOVE_REPLACEMENT ||
                error == ERROR_UNABLE_TO_MOVE_REPLACEMENT_2)
                return errorUnless(move(path, target));
            return failed(error, std::move(path));
        }
        return move(path, target) ? 0 : failed(errorUnless(false), std::move(path));
    }

private:
    int write(std::string_view bytes) const
    {
        constexpr std::size_t most = 0x100000;
        while (!bytes.empty()) {
            DWORD count = 0;
            // In parentheses, because <windows.h> may define a macro of this name.
            const auto size = static_cast<DWORD>((std::min)(bytes.size(), most));
            if (::WriteFile(file_.get(), bytes.data(), size, &count, nullptr) == 0)
                return errorUnless(false);
            bytes.remove_prefix(count);
        }
        return 0;
    }

    static bool move(const std::wstring& path, const Target& target)
    {
        return ::MoveFileExW(path.c_str(), target.path.c_str(),
                             MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
    }

    /// The file still has the name @p path, so it is removed at the end.
    int failed(int error, std::wstring path)
    {
        path_ = std::move(path);
        return error;
    }

    Handle file_;
    std::wstring path_;
};

} // namespace

int replaceFileWith(const FileParts& parts, const std::string& path)
{
    Target target;
    if (const int error = find(path, target)) return error;
    NewFile file;
    if (const int error = file.createFor(target)) return error;
    if (const int error = file.write(parts)) return error;
    if (const int error = file.flushAndClose()) return error;
    return file.replace(target);
}

} // namespace ZelInterchangeData

#endif
