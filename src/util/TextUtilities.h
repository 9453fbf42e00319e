/// @file
/// The text functions of ZelDataUtilities, without intermediate copies and checks.

#ifndef ZELINTERCHANGEDATA_UTIL_TEXTUTILITIES_H
#define ZELINTERCHANGEDATA_UTIL_TEXTUTILITIES_H

#include "ZelInterchangeData/ZelAlignment_tags.h"
#include "ZelInterchangeData/ZelDataResult_tags.h"
#include "util/TextBlock.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace ZelInterchangeData {

/// What ZelDataUtilities::verifyUtf8Format() returns for the bytes of @p text.
ZelDataResult_tags verifyUtf8(std::string_view text, bool bmpOnly);

/// The approximate size of @p text with its entities: exact for a long text, otherwise the length
/// of @p text itself.
std::size_t sizeWithEntities(std::string_view text) noexcept;

/// Appends @p text to @p out as ZelDataUtilities::htmlTagsToText() returns it.
void appendEscaped(std::string& out, std::string_view text);
void appendEscaped(TextBlock& out, std::string_view text);

/// Appends @p text to @p out as ZelDataUtilities::htmlTagsToText() and then
/// ZelDataUtilities::stripUnsupportedCharacters() return it.
void appendEscapedStripped(std::string& out, std::string_view text);
void appendEscapedStripped(TextBlock& out, std::string_view text);

/// Whether @p text begins with one of the five entities, such as `&amp;`.
bool beginsWithEntity(std::string_view text) noexcept;

/// ZelDataUtilities::countLinesInUTF8() for a @p text that is known to be UTF-8.
unsigned long countLines(std::string_view text) noexcept;

/// "bottom", "top" or "center", as ZelDataUtilities::getVerticalAlignment() returns it.
std::string_view verticalWord(ZelAlignment_tags alignment) noexcept;

/// "left", "right" or "center", as ZelDataUtilities::getHorizontalAlignment() returns it.
std::string_view horizontalWord(ZelAlignment_tags alignment) noexcept;

} // namespace ZelInterchangeData

#endif
