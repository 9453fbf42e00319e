/// @file
/// The computed calendar in UTC, compared with the system's where there is one.

#include "util/UtcCalendar.h"

#include <gtest/gtest.h>

#include <climits>
#include <ctime>
#include <random>

namespace ZelInterchangeData {
namespace {

// A year of 2147483647 in tm_year, that is 2147485547, ends with the second before this one.
constexpr long long afterTheLastYear = 67768036191676800;
constexpr long long firstYear = -67768040609740800;

TEST(UtcCalendar, KnowsDaysAroundMonthsAndLeapYears)
{
    struct Day {
        long long seconds;
        int year, month, day;
    };
    for (const Day& day :
         {Day{0, 1970, 1, 1}, Day{-1, 1969, 12, 31}, Day{951782399, 2000, 2, 28},
          Day{951782400, 2000, 2, 29}, Day{951868800, 2000, 3, 1}, Day{-2203891200, 1900, 3, 1},
          Day{-2203891201, 1900, 2, 28}, Day{4107542400, 2100, 3, 1}, Day{4107542399, 2100, 2, 28},
          Day{978220800, 2000, 12, 31}, Day{-62167219200, 0, 1, 1}}) {
        std::tm utc{};
        ASSERT_TRUE(utcCalendar(day.seconds, utc));
        EXPECT_EQ(utc.tm_year + 1900, day.year) << day.seconds;
        EXPECT_EQ(utc.tm_mon + 1, day.month) << day.seconds;
        EXPECT_EQ(utc.tm_mday, day.day) << day.seconds;
    }
}

TEST(UtcCalendar, EndsWhereTheYearDoesNotFit)
{
    std::tm utc{};
    EXPECT_FALSE(utcCalendar(afterTheLastYear, utc));
    EXPECT_FALSE(utcCalendar(firstYear - 1, utc));
    EXPECT_FALSE(utcCalendar(LLONG_MAX, utc));
    EXPECT_FALSE(utcCalendar(LLONG_MIN, utc));
    EXPECT_TRUE(utcCalendar(afterTheLastYear - 1, utc));
    EXPECT_EQ(utc.tm_year, INT_MAX);
    EXPECT_EQ(utc.tm_sec, 59);
    EXPECT_TRUE(utcCalendar(firstYear, utc));
    EXPECT_EQ(utc.tm_year, INT_MIN);
    EXPECT_EQ(utc.tm_sec, 0);
}

#ifndef _WIN32

void expectTheSystems(long long seconds)
{
    const auto instant = static_cast<std::time_t>(seconds);
    std::tm utc{};
    std::tm systems{};
    const bool hasDate = gmtime_r(&instant, &systems) != nullptr;
    ASSERT_EQ(utcCalendar(instant, utc), hasDate) << seconds;
    if (!hasDate) return;
    EXPECT_EQ(utc.tm_year, systems.tm_year) << seconds;
    EXPECT_EQ(utc.tm_mon, systems.tm_mon) << seconds;
    EXPECT_EQ(utc.tm_mday, systems.tm_mday) << seconds;
    EXPECT_EQ(utc.tm_hour, systems.tm_hour) << seconds;
    EXPECT_EQ(utc.tm_min, systems.tm_min) << seconds;
    EXPECT_EQ(utc.tm_sec, systems.tm_sec) << seconds;
}

TEST(UtcCalendar, AgreesWithTheSystemOnEveryDayOfEightCenturies)
{
    for (long long day = -146097; day <= 146097; ++day)
        expectTheSystems(day * 86400 + (day * 7919 % 86400));
}

TEST(UtcCalendar, AgreesWithTheSystemOnAnyInstant)
{
    std::mt19937_64 random(20090305);
    for (int round = 0; round < 20000; ++round)
        expectTheSystems(static_cast<long long>(random()) >> (random() % 64));
}

#endif

} // namespace
} // namespace ZelInterchangeData
