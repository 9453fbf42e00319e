/// @file
/// Comparing short texts.

#ifndef ZELINTERCHANGEDATA_UTIL_SHORTTEXT_H
#define ZELINTERCHANGEDATA_UTIL_SHORTTEXT_H

#include <string_view>

namespace ZelInterchangeData {

/// As `left.compare(right)`, but without a function call for two letters, as most language IDs have.
inline int compareShort(std::string_view left, std::string_view right) noexcept
{
    if (left.size() != 2 || right.size() != 2) return left.compare(right);
    const auto number = [](std::string_view text) {
        return static_cast<unsigned char>(text[0]) << 8 | static_cast<unsigned char>(text[1]);
    };
    return number(left) - number(right);
}

} // namespace ZelInterchangeData

#endif
