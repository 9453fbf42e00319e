/// @file
/// Numbers, rates and versions as text.

#include "util/ValueStrings.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "support/LongNumbers.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <locale>
#include <random>
#include <sstream>
#include <string>

namespace ZelInterchangeData {
namespace {

/// Writes numbers as a default stream of the classic locale does.
class ClassicStream {
public:
    ClassicStream() { stream_.imbue(std::locale::classic()); }

    template <class Number>
    std::string textOf(Number value)
    {
        // The C library of Windows leaves the sign out.
        if (std::isnan(value)) return std::signbit(value) ? "-nan" : "nan";
        stream_.str("");
        stream_ << value;
        return stream_.str();
    }

private:
    std::ostringstream stream_;
};

template <class Number, class Bits>
Number fromBits(Bits bits)
{
    static_assert(sizeof(Number) == sizeof(Bits), "the bits make up the number");
    Number number;
    std::memcpy(&number, &bits, sizeof number);
    return number;
}

std::string ofFloat(float value)
{
    return ZelDataUtilities::getValueString(value);
}

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

// Floating point

TEST(GetValueStringOfFloat, WritesSixSignificantDigits)
{
    EXPECT_EQ(ofFloat(2.0F), "2");
    EXPECT_EQ(ofFloat(0.1F), "0.1");
    EXPECT_EQ(ofFloat(1.5F), "1.5");
    EXPECT_EQ(ofFloat(1.0F / 3.0F), "0.333333");
    EXPECT_EQ(ofFloat(1e6F), "1e+06");
    EXPECT_EQ(ofFloat(1234567.0F), "1.23457e+06");
    EXPECT_EQ(ofFloat(-999999.0F), "-999999");
    EXPECT_EQ(ofFloat(0.0001F), "0.0001");
    EXPECT_EQ(ofFloat(0.00001F), "1e-05");
}

TEST(GetValueStringOfFloat, WritesInfinityNanAndMinusZero)
{
    EXPECT_EQ(ofFloat(std::numeric_limits<float>::infinity()), "inf");
    EXPECT_EQ(ofFloat(-std::numeric_limits<float>::infinity()), "-inf");
    EXPECT_EQ(ofFloat(std::numeric_limits<float>::quiet_NaN()), "nan");
    EXPECT_EQ(ofFloat(-std::numeric_limits<float>::quiet_NaN()), "-nan");
    EXPECT_EQ(ofFloat(-0.0F), "-0");
}

TEST(GetValueStringOfFloat, EqualsTheClassicStreamOverTheWholeRange)
{
    ClassicStream stream;
    for (std::uint64_t bits = 0; bits <= UINT32_MAX; bits += 21839) {
        const auto value = fromBits<float>(static_cast<std::uint32_t>(bits));
        ASSERT_EQ(ofFloat(value), stream.textOf(value)) << bits;
    }
}

TEST(GetValueStringOfFloat, EqualsTheClassicStreamForEveryPercentAndPermille)
{
    ClassicStream stream;
    for (int i = -10000; i <= 10000; ++i) {
        const float value = static_cast<float>(i) / 1000.0F;
        ASSERT_EQ(ofFloat(value), stream.textOf(value)) << i;
    }
}

TEST(GeneralText, EqualsTheClassicStreamForSpecialValues)
{
    ClassicStream stream;
    using Limits = std::numeric_limits<double>;
    for (const double value : {0.0, infinity, notANumber, Limits::min(), Limits::max(),
                               Limits::denorm_min(), Limits::epsilon(), 0.5, 255.0, 999999.5}) {
        EXPECT_EQ(generalText(value), stream.textOf(value));
        EXPECT_EQ(generalText(-value), stream.textOf(-value));
    }
}

TEST(GeneralText, EqualsTheClassicStreamAroundThePowersOfTen)
{
    ClassicStream stream;
    for (int exponent = -323; exponent <= 308; ++exponent) {
        const double power = std::pow(10.0, exponent);
        for (const double factor : {1.0, 0.9999995, 0.99999949999, 0.99999950001, 1.0000005, 1.5}) {
            for (const double end : {-infinity, infinity}) {
                const double value = std::nextafter(power * factor, end);
                ASSERT_EQ(generalText(value), stream.textOf(value)) << exponent;
            }
        }
    }
}

TEST(GeneralText, EqualsTheClassicStreamWhereTheLastDigitIsATie)
{
    ClassicStream stream;
    for (int i = 0; i < 200000; ++i) {
        const double value = 12345.0 + 0.03125 * i;
        ASSERT_EQ(generalText(value), stream.textOf(value)) << i;
    }
}

TEST(GeneralText, EqualsTheClassicStreamForAnyBits)
{
    ClassicStream stream;
    std::mt19937_64 random(20090305);
    for (int round = 0; round < 200000; ++round) {
        const std::uint64_t bits = random();
        const auto value = fromBits<double>(bits);
        ASSERT_EQ(generalText(value), stream.textOf(value)) << bits;
    }
}

// Whole numbers

TEST(DecimalText, WritesTheWholeRange)
{
    EXPECT_EQ(decimalText(0LL), "0");
    EXPECT_EQ(decimalText(-1LL), "-1");
    EXPECT_EQ(decimalText(LLONG_MAX), "9223372036854775807");
    EXPECT_EQ(decimalText(LLONG_MIN), "-9223372036854775808");
    EXPECT_EQ(decimalText(0ULL), "0");
    EXPECT_EQ(decimalText(ULLONG_MAX), "18446744073709551615");
}

TEST(GetValueStringOfLong, WritesAMinusBeforeNegativeValues)
{
    EXPECT_EQ(getValueString(0L), "0");
    EXPECT_EQ(getValueString(-42L), "-42");
    EXPECT_EQ(getValueString(2147483647L), "2147483647");
    EXPECT_EQ(getValueString(-2147483648L), "-2147483648");
}

TEST(GetValueStringOfLong, TruncatesNoValue)
{
    EXPECT_EQ(getValueString(LONG_MAX), hasLongNumbers ? "9223372036854775807" : "2147483647");
    EXPECT_EQ(getValueString(LONG_MIN), hasLongNumbers ? "-9223372036854775808" : "-2147483648");
}

TEST(GetValueStringOfUnsignedLongLong, WritesPlainDecimal)
{
    EXPECT_EQ(ZelDataUtilities::getValueString(0ULL), "0");
    EXPECT_EQ(ZelDataUtilities::getValueString(1234567890123ULL), "1234567890123");
    EXPECT_EQ(ZelDataUtilities::getValueString(ULLONG_MAX), "18446744073709551615");
}

TEST(GetValueStringOfUnsignedLong, WritesPlainDecimal)
{
    EXPECT_EQ(ZelDataUtilities::getValueString(0UL), "0");
    EXPECT_EQ(ZelDataUtilities::getValueString(4294967295UL), "4294967295");
}

TEST(GetValueStringOfUnsignedLong, TruncatesNoValue)
{
    EXPECT_EQ(ZelDataUtilities::getValueString(above32Bits(0)),
              hasLongNumbers ? "4294967296" : "4294967295");
    EXPECT_EQ(ZelDataUtilities::getValueString(ULONG_MAX),
              hasLongNumbers ? "18446744073709551615" : "4294967295");
}

// Rates and versions

TEST(GetRateString, PutsAnFBeforeTheRate)
{
    EXPECT_EQ(ZelDataUtilities::getRateString(0), "f0");
    EXPECT_EQ(ZelDataUtilities::getRateString(30), "f30");
    EXPECT_EQ(ZelDataUtilities::getRateString(1000), "f1000");
    EXPECT_EQ(ZelDataUtilities::getRateString(above32Bits(0)),
              hasLongNumbers ? "f4294967296" : "f4294967295");
}

TEST(GetVersionString, JoinsMajorMinorAndPatch)
{
    EXPECT_EQ(ZelDataUtilities::getVersionString(0), "0.0.0");
    EXPECT_EQ(ZelDataUtilities::getVersionString(0x00020103), "2.1.3");
    EXPECT_EQ(ZelDataUtilities::getVersionString(66048), "1.2.0");
    EXPECT_EQ(ZelDataUtilities::getVersionString(10200), "0.39.216"); // packed differently
    EXPECT_EQ(ZelDataUtilities::getVersionString(0x010A00FF), "266.0.255");
    EXPECT_EQ(ZelDataUtilities::getVersionString(0x0000FF00), "0.255.0");
    EXPECT_EQ(ZelDataUtilities::getVersionString(0xFFFFFFFF), "65535.255.255");
}

TEST(GetVersionString, UsesAllHigherBitsAsMajor)
{
    EXPECT_EQ(ZelDataUtilities::getVersionString(above32Bits(0)),
              hasLongNumbers ? "65536.0.0" : "65535.255.255");
    EXPECT_EQ(ZelDataUtilities::getVersionString(ULONG_MAX),
              hasLongNumbers ? "281474976710655.255.255" : "65535.255.255");
}

// Locales

/// Separates pairs of digits with spaces and uses a decimal comma.
class OddPunctuation : public std::numpunct<char> {
protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return ' '; }
    std::string do_grouping() const override { return "\2"; }
};

/// Makes a locale with OddPunctuation the global one while it lives.
class OddLocale {
public:
    OddLocale()
        : before_(std::locale::global(std::locale(std::locale::classic(), new OddPunctuation)))
    {
    }
    ~OddLocale() { std::locale::global(before_); }
    OddLocale(const OddLocale&) = delete;
    OddLocale& operator=(const OddLocale&) = delete;

private:
    std::locale before_;
};

TEST(ValueStrings, DependOnNoLocale)
{
    const OddLocale odd;
    std::ostringstream stream;
    stream << 12345.5;
    ASSERT_EQ(stream.str(), "1 23 45,5") << "the locale must affect streams";
    EXPECT_EQ(ofFloat(12345.5F), "12345.5");
    EXPECT_EQ(getValueString(-1234567L), "-1234567");
    EXPECT_EQ(ZelDataUtilities::getValueString(1234567UL), "1234567");
    EXPECT_EQ(ZelDataUtilities::getValueString(1234567ULL), "1234567");
    EXPECT_EQ(ZelDataUtilities::getRateString(10000), "f10000");
    EXPECT_EQ(ZelDataUtilities::getVersionString(0xFFFF0000), "65535.0.0");
}

} // namespace
} // namespace ZelInterchangeData
