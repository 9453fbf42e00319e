/// @file
/// Calling for memory before it is needed.

#ifndef ZELINTERCHANGEDATA_UTIL_PREFETCH_H
#define ZELINTERCHANGEDATA_UTIL_PREFETCH_H

#include <cstddef>

namespace ZelInterchangeData {

/// Asks for the @p size bytes at @p address. It changes nothing but the time that reading them takes, and
/// the address need not be readable.
inline void prefetch(const void* address, std::size_t size) noexcept
{
    constexpr std::size_t cacheLine = 64;
    const char* const first = static_cast<const char*>(address);
    for (std::size_t offset = 0; offset < size; offset += cacheLine)
        __builtin_prefetch(first + offset);
    __builtin_prefetch(first + size); // the end may lie in one line more
}

} // namespace ZelInterchangeData

#endif
