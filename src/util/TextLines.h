/// @file
/// Lines of text.

#ifndef ZELINTERCHANGEDATA_UTIL_TEXTLINES_H
#define ZELINTERCHANGEDATA_UTIL_TEXTLINES_H

#include <string_view>

namespace ZelInterchangeData {

/// ZelDataUtilities::countLinesInUTF8() for a @p text that is known to be UTF-8.
unsigned long countLines(std::string_view text) noexcept;

} // namespace ZelInterchangeData

#endif
