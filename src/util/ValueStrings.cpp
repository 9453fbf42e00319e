/// @file
/// Numbers, rates, versions and dates as the packet writes them.

#include "util/ValueStrings.h"

#include "ZelInterchangeData/ZelDataUtilities.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string_view>
#include <type_traits>

#ifdef _WIN32
#include "util/UtcCalendar.h"
#endif

#ifndef __cpp_lib_to_chars
#include <cfenv>
#include <locale>
#include <sstream>
#endif

namespace ZelInterchangeData {

namespace {

/// Formats @p value with std::to_chars; @p format holds the arguments after the value.
template <class Number, class... Format>
std::string numberText(Number value, Format... format)
{
    static_assert(std::is_integral_v<Number> || sizeof...(Format) != 0);
    std::array<char, std::string_view("18446744073709551615").size()> buffer; // the longest text
    char* const begin = buffer.data();
    const auto result = std::to_chars(begin, begin + buffer.size(), value, format...);
    return std::string(begin, result.ptr);
}

#ifdef __cpp_lib_to_chars

std::string finiteText(double value)
{
    constexpr int significantDigits = 6;
    return numberText(value, std::chars_format::general, significantDigits);
}

#else

// Without the macro, std::to_chars may not accept floating-point numbers, or only on newer systems.
std::string finiteText(double value)
{
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    const int rounding = std::fegetround();
    std::fesetround(FE_TONEAREST);
    stream << value;
    std::fesetround(rounding);
    return stream.str();
}

#endif

/// The calendar date and the time of day; the year in 64 bits, because it may exceed an int.
std::string dateAndTime(const std::tm& utc)
{
    std::array<char, sizeof "-2147481748-01-01T00:00:00"> buffer{}; // the longest text
    const int length = std::snprintf(
        buffer.data(), buffer.size(), "%04lld-%02d-%02dT%02d:%02d:%02d", utc.tm_year + 1900LL,
        utc.tm_mon + 1, utc.tm_mday, utc.tm_hour, utc.tm_min, utc.tm_sec);
    return {buffer.data(), static_cast<std::size_t>(length)};
}

#ifdef _WIN32

long long currentInstant()
{
    return _time64(nullptr);
}

bool utcTime(long long instant, std::tm& utc)
{
    return utcCalendar(instant, utc);
}

bool localTime(long long instant, std::tm& local)
{
    const __time64_t seconds = instant;
    return _localtime64_s(&local, &seconds) == 0;
}

#else

std::time_t currentInstant()
{
    return std::time(nullptr);
}

bool utcTime(std::time_t instant, std::tm& utc)
{
    return gmtime_r(&instant, &utc) != nullptr;
}

bool localTime(std::time_t instant, std::tm& local)
{
    return localtime_r(&instant, &local) != nullptr;
}

#endif

/// The zone offset of a date, from the hour fields alone.
std::string hourOffset(int utcHour, int localHour)
{
    // Deliberate: equal hours give "-0:00"; with <= here they would give "+0:00".
    std::string offset = utcHour < localHour ? "+" : "-";
    // Deliberate: no day boundary; with it, 23:00 UTC and 01:00 local time would be "+2:00", not
    // "-22:00".
    const long long hours = std::abs(localHour - utcHour);
    // Deliberate: no minutes and no leading zero; a real offset would be "+05:30" where this is
    // "+5:00".
    return offset.append(decimalText(hours)).append(":00");
}

} // namespace

std::string decimalText(long long value)
{
    return numberText(value);
}

std::string decimalText(unsigned long long value)
{
    return numberText(value);
}

std::string generalText(double value)
{
    if (std::isfinite(value)) return finiteText(value);
    // Some implementations of std::to_chars write "-nan(ind)".
    return std::string(std::signbit(value) ? "-" : "").append(std::isnan(value) ? "nan" : "inf");
}

std::string ZelDataUtilities::getValueString(float value)
{
    return generalText(double{value});
}

std::string getValueString(long value)
{
    return decimalText(static_cast<long long>(value));
}

std::string ZelDataUtilities::getValueString(unsigned long long value)
{
    return decimalText(value);
}

std::string ZelDataUtilities::getValueString(unsigned long value)
{
    return decimalText(static_cast<unsigned long long>(value));
}

std::string ZelDataUtilities::getRateString(unsigned long rate)
{
    return std::string("f").append(getValueString(rate));
}

std::string ZelDataUtilities::getVersionString(unsigned long version)
{
    // The major field holds every higher bit: masking it to 16 bits would cut the value.
    return getValueString(version >> 16U) + "." + getValueString((version >> 8U) & 0xFFU) + "." +
           getValueString(version & 0xFFU);
}

// NOLINTNEXTLINE(readability-non-const-parameter): the parameter is part of the exported name.
std::string ZelDataUtilities::getDateString(long* seconds)
{
    const auto instant = seconds == nullptr ? currentInstant() : *seconds;
    std::tm utc{};
    std::tm local{};
    if (!utcTime(instant, utc) || !localTime(instant, local)) return {};
    // Deliberate: the date is in UTC but has the local offset; local fields would shift it by that
    // offset.
    return dateAndTime(utc) + hourOffset(utc.tm_hour, local.tm_hour);
}

} // namespace ZelInterchangeData
