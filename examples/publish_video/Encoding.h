/// @file
/// Files in other encodings than UTF-8.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_ENCODING_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_ENCODING_H

#include <string>
#include <string_view>

namespace publish {

/// Says that @p bytes look like UTF-16 or like an 8-bit encoding, and how to convert the file at
/// @p path, on a line of its own. Empty if they look like neither. @p language, which may be empty,
/// tells which 8-bit encoding is likely.
std::string encodingHint(std::string_view bytes, const std::string& path,
                         const std::string& language);

/// Says where @p bytes, which are not UTF-8, have their first bad line, and gives the hint.
std::string describeForeignBytes(std::string_view bytes, const std::string& path,
                                 const std::string& language);

} // namespace publish

#endif
