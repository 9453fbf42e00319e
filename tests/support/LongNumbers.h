/// @file
/// Numbers that show whether an operation cuts them.

#ifndef ZELINTERCHANGEDATA_TESTS_SUPPORT_LONGNUMBERS_H
#define ZELINTERCHANGEDATA_TESTS_SUPPORT_LONGNUMBERS_H

#include <limits>

namespace ZelInterchangeData {

/// Whether `long` has 64 bits, as everywhere but on Windows and on processors of 32 bits.
constexpr bool hasLongNumbers = sizeof(long) == 8;

/// The number whose lowest 32 bits are @p low and whose next bit is set; the largest number where
/// `unsigned long` has 32 bits.
constexpr unsigned long above32Bits(unsigned long low)
{
    return hasLongNumbers ? static_cast<unsigned long>(0x100000000ULL + low)
                          : std::numeric_limits<unsigned long>::max();
}

} // namespace ZelInterchangeData

#endif
