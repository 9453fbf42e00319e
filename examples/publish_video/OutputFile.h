/// @file
/// Writes a file so that it is there as a whole or not at all.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_OUTPUTFILE_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_OUTPUTFILE_H

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace publish {

/// The regular file that @p output names, or that a symbolic link there leads to; it need not
/// exist. Nothing where something is written as it stands: a device, a pipe, a file that is already
/// open
/// (`/dev/stdout`). Throws PublishError for a folder and a file without write permission.
std::optional<std::filesystem::path> replaceableFile(const std::string& output);

/// Writes @p bytes into the existing @p output, behind what it holds; throws PublishError.
void writeDirectly(const std::string& output, std::string_view bytes);

/// A new empty file in the folder of another one, which it may replace. Removed unless it did.
/// All operations throw PublishError.
class ReplacementFile {
public:
    /// @p output names the file in messages.
    ReplacementFile(std::filesystem::path replaced, std::string output);
    ~ReplacementFile();
    ReplacementFile(const ReplacementFile&) = delete;
    ReplacementFile& operator=(const ReplacementFile&) = delete;

    const std::string& path() const { return path_; }
    std::size_t size() const;
    /// Takes the place of the other file, with its permissions, or those of a new file where there
    /// is none.
    void replace();

private:
    std::filesystem::path replaced_;
    std::string output_;
    std::string path_;
    int descriptor_;
};

} // namespace publish

#endif
