/// @file
/// Files that the library does not replace, and the message for all files that cannot be written.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_OUTPUTFILE_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_OUTPUTFILE_H

#include "Options.h"

#include <string>
#include <string_view>
#include <system_error>

namespace publish {

/// Throws a PublishError: @p output cannot be written for the reason that @p error gives.
[[noreturn]] void failToWrite(const std::string& output, const std::error_code& error);

/// As above, for the reason that errno gives as @p error.
[[noreturn]] void failToWrite(const std::string& output, int error);

/// Appends @p bytes to the existing @p output; throws PublishError.
void writeDirectly(const std::string& output, std::string_view bytes);

/// Writes @p bytes to @p file, which it makes or empties first; throws PublishError.
void writeNewFile(const std::string& file, std::string_view bytes);

/// Writes @p bytes to standard output; throws PublishError.
void writeStandardOutput(std::string_view bytes);

/// Writes @p bytes to standard output or to a new file; throws PublishError.
void writeOutput(const std::string& output, std::string_view bytes);

/// How messages name @p output.
std::string shownOutput(const std::string& output);

/// Throws a PublishError if a file that the program writes is one that it reads, or another one that
/// it writes, under whatever name.
void refuseOverwriting(const Options& options);

} // namespace publish

#endif
