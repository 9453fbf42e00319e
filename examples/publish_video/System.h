/// @file
/// What each system does in its own way, besides replacing a file (see OutputFile.h). Posix.cpp and
/// Windows.cpp implement it.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_SYSTEM_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_SYSTEM_H

#include <cstdio>
#include <functional>
#include <string>
#include <vector>

namespace publish {

/// Returns the arguments of main() with the name of the program first. On Windows, where those are
/// in the system's code page, returns the program's command line in UTF-8, and throws PublishError
/// if it is not UTF-16.
std::vector<std::string> commandLine(int argc, char** argv);

/// Makes writing to a closed pipe, or beyond the allowed file size, fail instead of ending the
/// program. On Windows, keeps the standard streams from writing a line feed as two bytes.
void prepareStreams();

/// Calls @p action. A signal that would end the program (SIGINT, SIGTERM, SIGHUP; on Windows Ctrl-C
/// and the like) ends it afterwards.
void uninterrupted(const std::function<void()>& action);

/// Opens the file at @p path, which is UTF-8, to read its bytes. The caller closes it. If it cannot
/// be opened, returns a null pointer and sets errno.
std::FILE* openToRead(const std::string& path);

} // namespace publish

#endif
