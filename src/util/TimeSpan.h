/// @file
/// Starts and durations.

#ifndef ZELINTERCHANGEDATA_UTIL_TIMESPAN_H
#define ZELINTERCHANGEDATA_UTIL_TIMESPAN_H

namespace ZelInterchangeData {

/// A start, at least 0, and a duration; the end is not stored.
struct TimeSpan {
    long long start = 0;
    long long duration = 0;

    /// Start plus duration, wrapping in 64 bits.
    constexpr long long end() const noexcept
    {
        return static_cast<long long>(static_cast<unsigned long long>(start) +
                                      static_cast<unsigned long long>(duration));
    }

    /// Whether setEnd() would accept the end.
    constexpr bool hasLength() const noexcept { return end() > start; }

    /// Returns false, and changes nothing, if the start is negative. Keeps the duration.
    constexpr bool setStart(long long value) noexcept
    {
        if (value < 0) return false;
        start = value;
        return true;
    }

    /// Returns false, and changes nothing, if the end is not after the start.
    constexpr bool setEnd(long long value) noexcept
    {
        if (value <= start) return false;
        duration = value - start;
        return true;
    }
};

} // namespace ZelInterchangeData

#endif
