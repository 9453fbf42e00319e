/// @file
/// Files that the library does not replace, and the message for all files that cannot be written.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_OUTPUTFILE_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_OUTPUTFILE_H

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

} // namespace publish

#endif
