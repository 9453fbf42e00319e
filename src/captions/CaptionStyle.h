/// @file
/// The styling of captions.

#ifndef ZELINTERCHANGEDATA_CAPTIONS_CAPTIONSTYLE_H
#define ZELINTERCHANGEDATA_CAPTIONS_CAPTIONSTYLE_H

#include "ZelInterchangeData/ZelDataLimits.h"
#include "sets/FrameRate.h"

#include <string>

namespace ZelInterchangeData {

/// Whether @p value is not below 0.0 or above 1.0. This is true for NaN.
constexpr bool isFraction(float value) noexcept
{
    return !(value < 0.0F || value > 1.0F);
}

/// Each component from 0.0 to 1.0.
struct CaptionColor {
    float red;
    float green;
    float blue;

    constexpr bool isInRange() const noexcept
    {
        return isFraction(red) && isFraction(green) && isFraction(blue);
    }
};

/// The styling that all captions of a collection share.
struct CaptionStyle {
    static constexpr unsigned long standardFontSize = 20;
    static constexpr unsigned long repairedFontSize = 10;
    static constexpr const char* standardFontFamily = "Helvetica";

    FrameRate frameRate;
    std::string fontFamily = standardFontFamily;
    unsigned long fontSize = standardFontSize;
    CaptionColor foreground = {1.0F, 1.0F, 1.0F};
    CaptionColor background = {0.0F, 0.0F, 0.0F};
    float backgroundOpacity = 0.6F;

    static constexpr bool isFontSize(unsigned long size) noexcept
    {
        return size >= ZelDataLimits::minimumFontSize && size <= ZelDataLimits::maximumFontSize;
    }

    /// Whether the setters accept all values.
    bool isInRange() const noexcept;
    /// Replaces values that are out of range; NaN stays.
    void repair();
};

} // namespace ZelInterchangeData

#endif
