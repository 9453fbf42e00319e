/// @file
/// Memory for large texts.

#ifndef ZELINTERCHANGEDATA_UTIL_LARGEPAGES_H
#define ZELINTERCHANGEDATA_UTIL_LARGEPAGES_H

#include <cstddef>
#include <string>

namespace ZelInterchangeData {

/// Reserves memory for @p more bytes at the end of @p text. On Linux, also asks for large pages in
/// that memory: the system makes them available several times as fast as small ones, which takes
/// up to half of the time of writing a large text. A system that has none refuses, and nothing
/// changes. Memory that the allocator uses again keeps its large pages.
void reserveAtEnd(std::string& text, std::size_t more);

} // namespace ZelInterchangeData

#endif
