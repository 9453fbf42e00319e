/// @file
/// Copies values into and out of objects.

#ifndef ZELINTERCHANGEDATA_UTIL_GUARDEDCOPY_H
#define ZELINTERCHANGEDATA_UTIL_GUARDEDCOPY_H

#include "util/Guard.h"

#include <string>
#include <string_view>

namespace ZelInterchangeData {

/// Makes @p target a copy of @p source, or leaves it unchanged and returns #ZelData_OutOfMemory.
template <class Value>
[[nodiscard]] ZelDataResult_tags guardedCopy(Value& target, const Value& source)
{
    return guarded([&] {
        Value copy(source);
        target.swap(copy);
        return ZelData_Ok;
    });
}

/// The same for a text that is not in a string.
[[nodiscard]] inline ZelDataResult_tags guardedCopy(std::string& target, std::string_view source)
{
    return guarded([&] {
        std::string copy(source);
        target.swap(copy);
        return ZelData_Ok;
    });
}

} // namespace ZelInterchangeData

#endif
