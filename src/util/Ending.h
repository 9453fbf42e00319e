/// @file
/// How a step of a longer operation went.

#ifndef ZELINTERCHANGEDATA_UTIL_ENDING_H
#define ZELINTERCHANGEDATA_UTIL_ENDING_H

#include "ZelInterchangeData/ZelDataResult_tags.h"

#include <optional>

namespace ZelInterchangeData {

/// Empty when the operation goes on, else the code that it ends with.
///
/// The code alone would not do: a step ends with the last error of the object that failed, and an
/// implementation that the caller wrote may report #ZelData_Ok there.
using Ending = std::optional<ZelDataResult_tags>;

} // namespace ZelInterchangeData

#endif
