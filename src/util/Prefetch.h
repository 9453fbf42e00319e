/// @file
/// Requesting memory before it is needed.

#ifndef ZELINTERCHANGEDATA_UTIL_PREFETCH_H
#define ZELINTERCHANGEDATA_UTIL_PREFETCH_H

#include <cstddef>
#include <cstdint>

namespace ZelInterchangeData {

/// Prefetches the @p size bytes at @p address. This only makes reading them faster; the address
/// need not be readable or even valid. Does nothing if the compiler cannot prefetch.
inline void prefetch([[maybe_unused]] const void* address,
                     [[maybe_unused]] std::size_t size) noexcept
{
#ifdef __GNUC__
    const auto askFor = [](std::uintptr_t place) {
        // NOLINTNEXTLINE(performance-no-int-to-ptr): a pointer must stay inside its object.
        __builtin_prefetch(reinterpret_cast<const void*>(place));
        // Otherwise g++ drops calls of a function that does nothing but prefetch. Adds no code.
        __asm__ volatile("");
    };
    constexpr std::uintptr_t cacheLine = 64;
    const auto first = reinterpret_cast<std::uintptr_t>(address);
    const auto last = first + size; // may be in another cache line
    for (std::uintptr_t line = first; line < last; line += cacheLine)
        askFor(line);
    askFor(last);
#endif
}

} // namespace ZelInterchangeData

#endif
