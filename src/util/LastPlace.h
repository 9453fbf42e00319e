/// @file
/// Searching from the end.

#ifndef ZELINTERCHANGEDATA_UTIL_LASTPLACE_H
#define ZELINTERCHANGEDATA_UTIL_LASTPLACE_H

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace ZelInterchangeData {

/// Returns the last position of @p pattern, which is not empty, in @p text; `npos` if it does not
/// occur. Faster in long texts than `rfind`, which calls a comparison at every position.
inline std::size_t lastPlaceOf(std::string_view pattern, std::string_view text) noexcept
{
    const auto place = static_cast<std::size_t>(
        std::find_end(text.begin(), text.end(), pattern.begin(), pattern.end()) - text.begin());
    return place < text.size() ? place : std::string_view::npos;
}

} // namespace ZelInterchangeData

#endif
