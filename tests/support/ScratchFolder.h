/// @file
/// A folder for the files of a test.

#ifndef ZELINTERCHANGEDATA_TESTS_SUPPORT_SCRATCHFOLDER_H
#define ZELINTERCHANGEDATA_TESTS_SUPPORT_SCRATCHFOLDER_H

#include "core/TempFile.h"

#include <filesystem>
#include <string>
#include <vector>

namespace ZelInterchangeData {

/// A new folder, removed at the end with all that is in it.
class ScratchFolder {
public:
    ScratchFolder() { std::filesystem::create_directory(systemPath()); }
    ~ScratchFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(systemPath(), ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::string& path() const { return place_.path(); }
    /// The path of a file named @p name, which is used as it is.
    std::string pathOf(const std::string& name) const { return path() + "/" + name; }

    bool isEmpty() const { return std::filesystem::is_empty(systemPath()); }
    /// The names of all files, byte for byte.
    std::vector<std::string> names() const
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(systemPath()))
            names.push_back(entry.path().filename().u8string());
        return names;
    }

private:
    std::filesystem::path systemPath() const { return std::filesystem::u8path(path()); }

    TempFile place_;
};

} // namespace ZelInterchangeData

#endif
