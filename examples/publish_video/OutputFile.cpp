/// @file
/// See OutputFile.h. Posix.cpp and Windows.cpp hold the rest.

#include "OutputFile.h"

#include "PublishError.h"
#include "Text.h"

#include <filesystem>

namespace publish {

namespace fs = std::filesystem;

namespace {

/// Where standard output leads to, on systems that tell.
fs::path pathOf(const std::string& output)
{
    return fs::u8path(output == standardOutput ? "/dev/stdout" : output);
}

/// Devices and pipes may be read and written.
bool isSameFile(const fs::path& a, const fs::path& b)
{
    std::error_code ignored;
    return fs::is_regular_file(a, ignored) && fs::equivalent(a, b, ignored);
}

void refuseInput(const std::string& name, const std::string& output, const std::string& input)
{
    if (isSameFile(pathOf(output), fs::u8path(input)))
        throw PublishError(name + ": " + shownOutput(output) + " is one of the files to read, " +
                           printable(input));
}

void refuseInputs(const std::string& name, const std::string& output, const Options& options)
{
    for (const LanguageFile& captions : options.captions)
        refuseInput(name, output, captions.path);
    if (options.toc) refuseInput(name, output, options.toc->path);
    if (options.screenText) refuseInput(name, output, *options.screenText);
}

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

void refuseOverwriting(const Options& options)
{
    refuseInputs("--output", options.output, options);
    if (!options.report) return;
    refuseInputs("--report", *options.report, options);
    std::error_code ignored;
    const auto resolved = [&](const std::string& output) {
        return fs::weakly_canonical(pathOf(output), ignored);
    };
    if (isSameFile(pathOf(*options.report), pathOf(options.output)) ||
        resolved(*options.report) == resolved(options.output))
        throw PublishError("--report: " + shownOutput(*options.report) +
                           " is the file of --output");
}

} // namespace publish
