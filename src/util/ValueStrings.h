/// @file
/// Numbers as text, the same in every locale.

#ifndef ZELINTERCHANGEDATA_UTIL_VALUESTRINGS_H
#define ZELINTERCHANGEDATA_UTIL_VALUESTRINGS_H

#include <string>

namespace ZelInterchangeData {

/// Plain decimal, with a leading "-" if negative.
[[nodiscard]] std::string decimalText(long long value);

/// Plain decimal.
[[nodiscard]] std::string decimalText(unsigned long long value);

/// What a default output stream in the classic locale writes: six significant digits, the shorter
/// of fixed and exponent notation, no trailing zeros ("0.1", "1e+06", "inf", "-nan", "-0").
[[nodiscard]] std::string generalText(double value);

} // namespace ZelInterchangeData

#endif
