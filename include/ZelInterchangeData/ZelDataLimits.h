/// @file
/// The limits that the setters, the checks, the findings and the messages of exceptions share.

#ifndef ZELINTERCHANGEDATA_ZELDATALIMITS_H
#define ZELINTERCHANGEDATA_ZELDATALIMITS_H

namespace ZelInterchangeData {

/// Limits of values. A limit itself is allowed.
namespace ZelDataLimits {

/// In ticks per second.
constexpr unsigned long minimumFrameRate = 1;
/// In ticks per second.
constexpr unsigned long maximumFrameRate = 10000;
/// Of captions.
constexpr unsigned long minimumFontSize = 1;
/// Of captions.
constexpr unsigned long maximumFontSize = 500;
/// The shortest caption that is valid, in milliseconds.
constexpr long long shortestDuration = 1;
/// The shortest caption that `isValid(true)` accepts without a warning, in milliseconds.
constexpr long long recommendedDuration = 1000;
/// The most lines of a caption that `isValid(true)` accepts without a warning, as
/// ZelDataUtilities::countLinesInUTF8() counts them.
constexpr unsigned long recommendedLines = 4;

} // namespace ZelDataLimits

} // namespace ZelInterchangeData

#endif
