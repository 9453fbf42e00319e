/// @file
/// What a good caption keeps to.

#ifndef ZELINTERCHANGEDATA_CAPTIONS_CAPTIONLIMITS_H
#define ZELINTERCHANGEDATA_CAPTIONS_CAPTIONLIMITS_H

namespace ZelInterchangeData {

/// The limits that check and findings share.
struct CaptionLimits {
    /// In milliseconds; without it a caption is not valid.
    static constexpr long long shortestDuration = 1;
    /// In milliseconds.
    static constexpr long long recommendedDuration = 1000;
    /// As countLinesInUTF8() counts them.
    static constexpr unsigned long recommendedLines = 4;
};

} // namespace ZelInterchangeData

#endif
