/// @file
/// See OutputFile.h. Posix.cpp and Windows.cpp hold the rest.

#include "OutputFile.h"

#include "PublishError.h"
#include "Text.h"

#include <system_error>

namespace publish {

void failToWrite(const std::string& output, const std::string& reason)
{
    throw PublishError(printable(output) + ": cannot be written: " + reason);
}

void failToWrite(const std::string& output, int error)
{
    failToWrite(output, std::generic_category().message(error));
}

} // namespace publish
