/// @file
/// The only error of the program.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_PUBLISHERROR_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_PUBLISHERROR_H

#include <stdexcept>

namespace publish {

/// Ends the program. The message is a line that names the option, file or operation at fault; a
/// second line may give a command that helps.
class PublishError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace publish

#endif
