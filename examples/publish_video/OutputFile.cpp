/// @file
/// See OutputFile.h. Posix.cpp and Windows.cpp hold the rest.

#include "OutputFile.h"

#include "PublishError.h"
#include "Text.h"

namespace publish {

void failToWrite(const std::string& output, const std::error_code& error)
{
    // The words that all systems share, where they have them.
    throw PublishError(printable(output) +
                       ": cannot be written: " + error.default_error_condition().message());
}

void failToWrite(const std::string& output, int error)
{
    failToWrite(output, std::error_code(error, std::generic_category()));
}

} // namespace publish
