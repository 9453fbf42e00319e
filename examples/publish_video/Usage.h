/// @file
/// What the program says about itself.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_USAGE_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_USAGE_H

#include <string>

namespace publish {

/// The help, in lines of at most 80 characters.
std::string usage();

/// The manual page, for `man`: the same texts.
std::string manualPage();

/// The program and its version, in one line.
std::string versionLine();

} // namespace publish

#endif
