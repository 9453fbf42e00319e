/// @file
/// Wide-character file streams for narrow paths.

#ifndef ZELINTERCHANGEDATA_CORE_FILESTREAMS_H
#define ZELINTERCHANGEDATA_CORE_FILESTREAMS_H

#include <fstream>
#include <memory>
#include <string>

namespace ZelInterchangeData {

/// A stream that writes to the file at @p path, which it creates or empties.
///
/// The stream handles bytes, whatever the locale: it widens a narrow character to the value of its
/// byte and writes a wide character up to 255 as that byte. It is not open if the file cannot be
/// opened, or if @p path is empty or contains a zero byte; then no file was changed.
///
/// Destroying it writes the rest of its buffer, unless an earlier write failed.
///
/// Allocates all memory before it opens the file: after `std::bad_alloc`, no file was changed.
std::unique_ptr<std::wofstream> createWofstreamWithFile(const std::string& path);

/// A stream that reads the bytes of the file at @p path as wide characters up to 255. Not open if
/// the file cannot be opened, or if @p path is empty or contains a zero byte.
std::unique_ptr<std::wifstream> createWifstreamWithFile(const std::string& path);

} // namespace ZelInterchangeData

#endif
