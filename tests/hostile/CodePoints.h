/// @file
/// Code points as bytes.

#ifndef ZELINTERCHANGEDATA_TESTS_HOSTILE_CODEPOINTS_H
#define ZELINTERCHANGEDATA_TESTS_HOSTILE_CODEPOINTS_H

#include <cstdint>
#include <string>

namespace ZelInterchangeData {

constexpr std::uint32_t codePointCount = 0x110000;

/// UTF-8 by the bits of the code point; a surrogate has the form that strict UTF-8 forbids.
inline std::string encoded(std::uint32_t point)
{
    const auto byte = [](std::uint32_t bits) { return static_cast<char>(bits); };
    const auto tail = [&byte, point](unsigned shift) {
        return byte(0x80U | ((point >> shift) & 0x3FU));
    };
    if (point < 0x80) return {byte(point)};
    if (point < 0x800) return {byte(0xC0U | (point >> 6U)), tail(0)};
    if (point < 0x10000) return {byte(0xE0U | (point >> 12U)), tail(6), tail(0)};
    return {byte(0xF0U | (point >> 18U)), tail(12), tail(6), tail(0)};
}

} // namespace ZelInterchangeData

#endif
