/// @file
/// The calendar in UTC, for systems whose C library offers it to one thread at a time.

#ifndef ZELINTERCHANGEDATA_UTIL_UTCCALENDAR_H
#define ZELINTERCHANGEDATA_UTIL_UTCCALENDAR_H

#include <ctime>
#include <limits>

namespace ZelInterchangeData {

/// Fills @p utc for the instant @p seconds after 1970-01-01T00:00:00Z, without the days of the week
/// and of the year. False where the year does not fit `tm_year`.
inline bool utcCalendar(long long seconds, std::tm& utc) noexcept
{
    constexpr long long perDay = 86400;
    // A year begins in March, an era of 400 years on 1 March of a year that 400 divides.
    constexpr long long eraDays = 146097;
    constexpr long long daysTo1970 = 719468;
    const long long ofDay = (seconds % perDay + perDay) % perDay;
    const long long days = seconds / perDay - (seconds % perDay < 0 ? 1 : 0) + daysTo1970;
    const long long dayOfEra = (days % eraDays + eraDays) % eraDays;
    const long long yearOfEra =
        (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const long long dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const long long month = (5 * dayOfYear + 2) / 153; // 0 is March
    const bool isNextYear = month >= 10;

    const long long year =
        (days - dayOfEra) / eraDays * 400 + yearOfEra + (isNextYear ? 1 : 0) - 1900;
    using Limits = std::numeric_limits<int>;
    if (year < Limits::min() || year > Limits::max()) return false;
    utc.tm_year = static_cast<int>(year);
    utc.tm_mon = static_cast<int>(isNextYear ? month - 10 : month + 2);
    utc.tm_mday = static_cast<int>(dayOfYear - (153 * month + 2) / 5 + 1);
    utc.tm_hour = static_cast<int>(ofDay / 3600);
    utc.tm_min = static_cast<int>(ofDay / 60 % 60);
    utc.tm_sec = static_cast<int>(ofDay % 60);
    return true;
}

} // namespace ZelInterchangeData

#endif
