/// @file
/// The numbers at which things go wrong.

#ifndef ZELINTERCHANGEDATA_TESTS_HOSTILE_EXTREMES_H
#define ZELINTERCHANGEDATA_TESTS_HOSTILE_EXTREMES_H

#include <cmath>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <limits>
#include <set>
#include <vector>

namespace ZelInterchangeData {

/// The ends of the type's range and of narrower ones, the numbers around 0, and those around
/// @p limits.
template <class Number>
std::vector<Number> extremesOf(std::initializer_list<Number> limits = {})
{
    using Limits = std::numeric_limits<Number>;
    std::set<Number> numbers = {Limits::min(), Limits::max(), 0};
    numbers.insert(limits);
    for (const unsigned bits : {7U, 8U, 15U, 16U, 31U, 32U, 53U, 62U, 63U}) {
        if (bits < static_cast<unsigned>(Limits::digits))
            numbers.insert(static_cast<Number>(Number{1} << bits));
    }
    for (const Number number : std::set<Number>(numbers)) {
        if (number != Limits::min()) numbers.insert(number - 1);
        if (number != Limits::max()) numbers.insert(number + 1);
    }
    return {numbers.begin(), numbers.end()};
}

/// Values of an enumeration of 32 bits: all small ones and the extremes.
template <class Enumeration>
std::vector<Enumeration> extremesOfEnumeration()
{
    std::vector<Enumeration> values;
    for (std::uint32_t value = 0; value < 256; ++value)
        values.push_back(static_cast<Enumeration>(value));
    for (const std::uint32_t value :
         extremesOf<std::uint32_t>({0x40000000U, 0x80000000U, 0xC0000000U}))
        values.push_back(static_cast<Enumeration>(value));
    return values;
}

/// The float with these bits.
inline float floatOf(std::uint32_t bits)
{
    float number = 0;
    std::memcpy(&number, &bits, sizeof number);
    return number;
}

/// Infinities, zeros, denormals, NaNs of all kinds, the limits 0 and 1 with their neighbours, and
/// numbers with many digits.
inline std::vector<float> floatExtremes()
{
    using Limits = std::numeric_limits<float>;
    std::vector<float> numbers = {0.0F,
                                  1.0F,
                                  0.5F,
                                  0.25F,
                                  0.999F,
                                  1.0F / 3.0F,
                                  1e-5F,
                                  0.123456789F,
                                  2.0F,
                                  1234567.0F,
                                  254.0F / 255,
                                  Limits::min(),
                                  Limits::max(),
                                  Limits::denorm_min(),
                                  Limits::infinity(),
                                  Limits::epsilon()};
    for (const float limit : {0.0F, 1.0F, Limits::min()}) {
        numbers.push_back(std::nextafter(limit, Limits::infinity()));
        numbers.push_back(std::nextafter(limit, -Limits::infinity()));
    }
    // NaNs: quiet, signalling, with all bits, with the lowest bit.
    for (const std::uint32_t bits : {0x7FC00000U, 0x7FA00000U, 0x7FFFFFFFU, 0x7F800001U})
        numbers.push_back(floatOf(bits));
    const std::vector<float> positive = numbers;
    for (const float number : positive)
        numbers.push_back(-number);
    return numbers;
}

/// Whether two numbers are the same, floats bit for bit.
template <class Number>
bool isSameNumber(Number a, Number b)
{
    // NOLINTNEXTLINE(bugprone-suspicious-memory-comparison): floats are compared by their bits.
    return std::memcmp(&a, &b, sizeof a) == 0;
}

} // namespace ZelInterchangeData

#endif
