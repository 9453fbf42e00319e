/// @file
/// Memory for large texts.

#ifndef ZELINTERCHANGEDATA_UTIL_LARGEPAGES_H
#define ZELINTERCHANGEDATA_UTIL_LARGEPAGES_H

#include <cstddef>
#include <string>

namespace ZelInterchangeData {

/// Reserves memory for @p more bytes at the end of @p text. On Linux, also asks for large pages if
/// the text has room for 32 MiB: the system provides them several times as fast as small ones, and
/// providing small ones takes up to half of the time of writing such a text. The system may ignore
/// this.
void reserveAtEnd(std::string& text, std::size_t more);

} // namespace ZelInterchangeData

#endif
