/// @file
/// The recommended limits of captions.

#ifndef ZELINTERCHANGEDATA_CAPTIONS_CAPTIONLIMITS_H
#define ZELINTERCHANGEDATA_CAPTIONS_CAPTIONLIMITS_H

namespace ZelInterchangeData {

/// The limits that the check and the findings share.
struct CaptionLimits {
    /// In milliseconds; a shorter caption is not valid.
    static constexpr long long shortestDuration = 1;
    /// In milliseconds.
    static constexpr long long recommendedDuration = 1000;
    /// As countLinesInUTF8() counts them.
    static constexpr unsigned long recommendedLines = 4;
};

} // namespace ZelInterchangeData

#endif
