/// @file
/// Strict UTF-8, and the characters that no packet may contain.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_TEXT_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_TEXT_H

#include <string>
#include <string_view>

namespace publish {

/// Whether @p text is UTF-8 without surrogates, overlong forms and values above U+10FFFF.
/// ZelDataUtilities::verifyUtf8Format() accepts all three.
bool isStrictUtf8(std::string_view text);

/// @p text, which is strict UTF-8, without U+FFFE and U+FFFF.
std::string withoutNoncharacters(std::string_view text);

/// Converts an argument, which is strict UTF-8, for the packet: replaces each tab and line feed
/// with a blank, and drops other control characters (C0, DEL, C1), U+FFFE and U+FFFF.
std::string argumentText(std::string_view argument);

/// @p text for a message: on one line, with `\x..` for control characters and bytes that are not
/// UTF-8.
std::string printable(std::string_view text);

} // namespace publish

#endif
