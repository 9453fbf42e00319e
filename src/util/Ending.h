/// @file
/// The result of one step of an operation.

#ifndef ZELINTERCHANGEDATA_UTIL_ENDING_H
#define ZELINTERCHANGEDATA_UTIL_ENDING_H

#include "ZelInterchangeData/ZelDataResult_tags.h"

#include <optional>

namespace ZelInterchangeData {

/// Empty when the operation continues, otherwise the code that it ends with.
///
/// A code alone would not be enough: a step ends with the last error of the object that failed,
/// which may be #ZelData_Ok if the caller wrote that object's class.
using Ending = std::optional<ZelDataResult_tags>;

/// Ends with @p code if it is a failure.
inline Ending endingOf(ZelDataResult_tags code) noexcept
{
    return failed(code) ? Ending(code) : Ending();
}

} // namespace ZelInterchangeData

#endif
