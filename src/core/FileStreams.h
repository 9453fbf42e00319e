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
/// The stream handles bytes, whatever the locale: it widens a narrow character to the number of its
/// byte and writes a wide character up to 255 as that byte. It is not open when the file cannot be
/// opened, or when @p path is empty or holds a zero byte; then no file was touched.
///
/// Destroying it writes what is left, unless an earlier write failed.
///
/// All memory is obtained before the file is opened: `std::bad_alloc` means that no file was
/// touched.
std::unique_ptr<std::wofstream> createWofstreamWithFile(const std::string& path);

/// A stream that reads the bytes of the file at @p path as wide characters up to 255. Not open when
/// the file cannot be opened, or when @p path is empty or holds a zero byte.
std::unique_ptr<std::wifstream> createWifstreamWithFile(const std::string& path);

} // namespace ZelInterchangeData

#endif
