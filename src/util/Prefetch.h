/// @file
/// Calling for memory before it is needed.

#ifndef ZELINTERCHANGEDATA_UTIL_PREFETCH_H
#define ZELINTERCHANGEDATA_UTIL_PREFETCH_H

#include <cstddef>
#include <cstdint>

namespace ZelInterchangeData {

/// Asks for the @p size bytes at @p address. It changes nothing but the time that reading them takes, and
/// the address need not be readable, nor need there be anything. Does nothing with a compiler that
/// cannot ask.
inline void prefetch([[maybe_unused]] const void* address,
                     [[maybe_unused]] std::size_t size) noexcept
{
#ifdef __GNUC__
    const auto askFor = [](std::uintptr_t place) {
        // NOLINTNEXTLINE(performance-no-int-to-ptr): a pointer must not leave what it points into.
        __builtin_prefetch(reinterpret_cast<const void*>(place));
    };
    constexpr std::uintptr_t cacheLine = 64;
    const auto first = reinterpret_cast<std::uintptr_t>(address);
    const auto last = first + size; // may lie in one line more
    for (std::uintptr_t line = first; line < last; line += cacheLine)
        askFor(line);
    askFor(last);
#endif
}

} // namespace ZelInterchangeData

#endif
