/// @file
/// Memory for very large texts.

#ifndef ZELINTERCHANGEDATA_UTIL_LARGEPAGES_H
#define ZELINTERCHANGEDATA_UTIL_LARGEPAGES_H

#include <cstddef>

namespace ZelInterchangeData {

/// Asks the system to back the @p size bytes at @p memory, which were just obtained, with large pages
/// where it can. Otherwise it hands out a small page at each first touch, and for tens of megabytes
/// that takes longer than writing them.
///
/// Only a hint: nothing but the time of the first touch changes, and where the system knows no such
/// hint, or the memory is not so large that the heap gives it a mapping of its own, nothing is done.
void preferLargePages(void* memory, std::size_t size) noexcept;

} // namespace ZelInterchangeData

#endif
