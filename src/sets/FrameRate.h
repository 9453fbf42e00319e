/// @file
/// The frame rate of a track.

#ifndef ZELINTERCHANGEDATA_SETS_FRAMERATE_H
#define ZELINTERCHANGEDATA_SETS_FRAMERATE_H

#include "ZelInterchangeData/ZelDataLimits.h"

namespace ZelInterchangeData {

/// Ticks per second.
struct FrameRate {
    static constexpr unsigned long standard = 1000;

    unsigned long value = standard;

    static constexpr bool isInRange(unsigned long rate) noexcept
    {
        return rate >= ZelDataLimits::minimumFrameRate && rate <= ZelDataLimits::maximumFrameRate;
    }

    constexpr bool isInRange() const noexcept { return isInRange(value); }

    /// Stores @p rate; if it is out of range, returns false and changes nothing.
    constexpr bool set(unsigned long rate) noexcept
    {
        if (!isInRange(rate)) return false;
        value = rate;
        return true;
    }

    /// Sets a rate that is out of range to the standard one.
    constexpr void repair() noexcept
    {
        if (!isInRange()) value = standard;
    }
};

} // namespace ZelInterchangeData

#endif
