/// @file
/// See OutputFile.h. Posix.cpp and Windows.cpp hold the rest.

#include "OutputFile.h"

#include "PublishError.h"
#include "Text.h"

#include <filesystem>
#include <vector>

namespace publish {

namespace fs = std::filesystem;

namespace {

/// Where standard output leads to, on systems that tell.
fs::path pathOf(const std::string& output)
{
    return fs::u8path(output == standardOutput ? "/dev/stdout" : output);
}

fs::path folderOf(const fs::path& file)
{
    return file.has_parent_path() ? file.parent_path() : ".";
}

/// The file that a symbolic link leads to, whether or not it is there.
fs::path behindLinks(fs::path file)
{
    constexpr int most = 40; // of a chain that may be a circle
    std::error_code error;
    for (int count = 0; count != most; ++count) {
        const fs::path target = fs::read_symlink(file, error);
        if (error) break;
        file = folderOf(file) / target;
    }
    return file;
}

/// Also knows files that are not there yet.
bool isSameFile(const fs::path& first, const fs::path& second)
{
    const fs::path a = behindLinks(first);
    const fs::path b = behindLinks(second);
    std::error_code ignored;
    return a == b || fs::equivalent(a, b, ignored) ||
           (a.filename() == b.filename() && fs::equivalent(folderOf(a), folderOf(b), ignored));
}

/// A file that nothing else may be written to, and what it is.
struct TakenFile {
    fs::path path;
    std::string what;
};

class TakenFiles {
public:
    /// Devices and pipes may be read and written.
    void read(const std::string& input)
    {
        const fs::path path = fs::u8path(input);
        std::error_code ignored;
        if (fs::is_regular_file(path, ignored))
            files_.push_back({path, "an input file, " + printable(input)});
    }

    void write(const std::string& output, const std::string& option)
    {
        const fs::path path = pathOf(output);
        for (const TakenFile& file : files_)
            if (isSameFile(path, file.path))
                throw PublishError(option + ": " + shownOutput(output) + " is " + file.what);
        files_.push_back({path, "the file of " + option});
    }

private:
    std::vector<TakenFile> files_;
};

} // namespace

void failToWrite(const std::string& output, const std::error_code& error)
{
    // The words that all systems share, or the number: the system's own words may not be UTF-8.
    const std::error_condition shared = error.default_error_condition();
    throw PublishError(shownOutput(output) + ": cannot be written: " +
                       (shared.category() == std::generic_category()
                            ? shared.message()
                            : "error " + std::to_string(error.value())));
}

void failToWrite(const std::string& output, int error)
{
    failToWrite(output, std::error_code(error, std::generic_category()));
}

std::string shownOutput(const std::string& output)
{
    return output == standardOutput ? "standard output" : printable(output);
}

void writeOutput(const std::string& output, std::string_view bytes)
{
    if (output == standardOutput)
        writeStandardOutput(bytes);
    else
        writeNewFile(output, bytes);
}

void refuseOverwriting(const Options& options)
{
    TakenFiles files;
    for (const LanguageFile& captions : options.captions)
        files.read(captions.path);
    if (options.toc) files.read(options.toc->path);
    if (options.screenText) files.read(*options.screenText);
    files.write(options.output, "--output");
    if (options.report) files.write(*options.report, "--report");
    if (options.preview) files.write(*options.preview, "--preview");
}

} // namespace publish
