/// @file
/// Writes a file completely or not at all.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_OUTPUTFILE_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_OUTPUTFILE_H

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace publish {

/// Throws a PublishError: @p output cannot be written for this @p reason.
[[noreturn]] void failToWrite(const std::string& output, const std::string& reason);
/// As above, for the reason that errno gives as @p error.
[[noreturn]] void failToWrite(const std::string& output, int error);

/// Returns the regular file that @p output names, directly or through symbolic links; it need not
/// exist. `std::nullopt` for anything that must be written in place: a device, a pipe, a file that
/// is already open (`/dev/stdout`). Throws PublishError for a folder and for a file without write
/// permission. On Windows, a link that leads to no file counts as the file.
std::optional<std::filesystem::path> replaceableFile(const std::string& output);

/// Appends @p bytes to the existing @p output; throws PublishError.
void writeDirectly(const std::string& output, std::string_view bytes);

/// A new empty file in the folder of another one, which it can replace; otherwise, its destructor
/// removes it. All operations throw PublishError.
class ReplacementFile {
public:
    /// @p output names the file in messages.
    ReplacementFile(std::filesystem::path replaced, std::string output);
    ~ReplacementFile();
    ReplacementFile(const ReplacementFile&) = delete;
    ReplacementFile& operator=(const ReplacementFile&) = delete;

    const std::string& path() const { return path_; }
    std::size_t size() const;
    /// Replaces the other file and takes over its permissions, or those of a new file if there is
    /// none. On Windows, the file always has the permissions of a new file in its folder.
    void replace();

private:
    std::filesystem::path replaced_;
    std::string output_;
    std::string path_;
    int descriptor_;
};

} // namespace publish

#endif
