/// @file
/// See OutputFile.h. Posix.cpp and Windows.cpp hold the rest.

#include "OutputFile.h"

#include "PublishError.h"
#include "Text.h"

namespace publish {

void failToWrite(const std::string& output, const std::error_code& error)
{
    // The words that all systems share, or the number: the system's own words may not be UTF-8.
    const std::error_condition shared = error.default_error_condition();
    throw PublishError(printable(output) + ": cannot be written: " +
                       (shared.category() == std::generic_category()
                            ? shared.message()
                            : "error " + std::to_string(error.value())));
}

void failToWrite(const std::string& output, int error)
{
    failToWrite(output, std::error_code(error, std::generic_category()));
}

} // namespace publish
