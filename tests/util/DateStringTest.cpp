/// @file
/// Dates in UTC followed by the hours of the local zone.

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "support/FailingAllocation.h"
#include "support/TimeZone.h"

#include <gtest/gtest.h>

#include <climits>
#include <ctime>
#include <new>
#include <string>

namespace ZelInterchangeData {
namespace {

// POSIX gives zones east of Greenwich a negative sign. On Windows, a name has three letters.
const char* const utc = "UTC0";
const char* const twoHoursEast = "EET-2";
const char* const fiveHoursWest = "EST5";
const char* const fiveAndAHalfHoursEast = "IST-5:30";
const char* const centralEurope = "CET-1CEST,M3.5.0,M10.5.0/3";

std::string dateIn(const char* zone, long seconds)
{
    const TimeZone timeZone(zone);
    return ZelDataUtilities::getDateString(&seconds);
}

constexpr long march5 = 1236262029; // 2009-03-05 14:07:09 in UTC

TEST(GetDateString, WritesTheUtcDateAndTheLocalHours)
{
    EXPECT_EQ(dateIn(twoHoursEast, march5), "2009-03-05T14:07:09+2:00");
    EXPECT_EQ(dateIn(fiveHoursWest, march5), "2009-03-05T14:07:09-5:00");
}

TEST(GetDateString, WritesAMinusIfTheHoursAreEqual)
{
    EXPECT_EQ(dateIn(utc, march5), "2009-03-05T14:07:09-0:00");
    EXPECT_EQ(dateIn("HLF-0:30", march5), "2009-03-05T14:07:09-0:00");
    EXPECT_EQ(dateIn(utc, 0), "1970-01-01T00:00:00-0:00");
}

TEST(GetDateString, LeavesMinutesOutOfTheOffset)
{
    EXPECT_EQ(dateIn(fiveAndAHalfHoursEast, march5), "2009-03-05T14:07:09+5:00");
    EXPECT_EQ(dateIn(fiveAndAHalfHoursEast, 1236264300), "2009-03-05T14:45:00+6:00");
}

TEST(GetDateString, IgnoresTheDayBoundary)
{
    EXPECT_EQ(dateIn(twoHoursEast, 1236294000), "2009-03-05T23:00:00-22:00");
    EXPECT_EQ(dateIn(fiveHoursWest, 1236218400), "2009-03-05T02:00:00+19:00");
    EXPECT_EQ(dateIn("WST12", 1236214800), "2009-03-05T01:00:00+12:00");
    EXPECT_EQ(dateIn("EST-14", march5), "2009-03-05T14:07:09-10:00");
}

TEST(GetDateString, FollowsSummerTime)
{
    EXPECT_EQ(dateIn(centralEurope, 1230768000), "2009-01-01T00:00:00+1:00");
    EXPECT_EQ(dateIn(centralEurope, 1246406400), "2009-07-01T00:00:00+2:00");
}

TEST(GetDateString, PadsTheFieldsWithZeros)
{
    EXPECT_EQ(dateIn(utc, 951782400), "2000-02-29T00:00:00-0:00");
}

TEST(GetDateString, WritesDatesBefore1970)
{
    EXPECT_EQ(dateIn(utc, -1), "1969-12-31T23:59:59-0:00");
}

// Where `long` has 32 bits, every instant that it holds has a date.
#if LONG_MAX > 0x7FFFFFFF

TEST(GetDateString, FillsTheYearWithZeros)
{
    EXPECT_EQ(dateIn(utc, -62135596800), "0001-01-01T00:00:00-0:00");
    EXPECT_EQ(dateIn(utc, -62167219200), "0000-01-01T00:00:00-0:00");
}

TEST(GetDateString, WritesYearsOfMoreThanFourDigits)
{
    EXPECT_EQ(dateIn(utc, 253402300800), "10000-01-01T00:00:00-0:00");
    EXPECT_EQ(dateIn(utc, -62198755200), "-001-01-01T00:00:00-0:00");
}

TEST(GetDateString, WritesTheFirstAndTheLastDateOfTheCalendar)
{
    EXPECT_EQ(dateIn(utc, 67768036191676799), "2147485547-12-31T23:59:59-0:00");
    EXPECT_EQ(dateIn(utc, -67768040609740800), "-2147481748-01-01T00:00:00-0:00");
}

TEST(GetDateString, IsEmptyIfUtcHasNoDate)
{
    EXPECT_EQ(dateIn(utc, 67768036191676800), "");
    EXPECT_EQ(dateIn(utc, -67768040609740801), "");
    EXPECT_EQ(dateIn(utc, LONG_MAX), "");
    EXPECT_EQ(dateIn(utc, LONG_MIN), "");
    EXPECT_EQ(dateIn(fiveHoursWest, 67768036191676800), "") << "only the local date exists";
    EXPECT_EQ(dateIn(twoHoursEast, -67768040609740801), "") << "only the local date exists";
}

TEST(GetDateString, IsEmptyIfTheZoneHasNoDate)
{
    EXPECT_EQ(dateIn(twoHoursEast, 67768036191676799), "");
    EXPECT_EQ(dateIn(fiveHoursWest, -67768040609740800), "");
}

#endif

TEST(GetDateString, UsesTheCurrentTimeForNull)
{
    const TimeZone timeZone(twoHoursEast);
    const auto before = static_cast<long>(std::time(nullptr));
    const std::string now = ZelDataUtilities::getDateString(nullptr);
    const auto after = static_cast<long>(std::time(nullptr));
    bool found = false;
    for (long second = before; second <= after && !found; ++second) {
        long argument = second;
        found = now == ZelDataUtilities::getDateString(&argument);
    }
    EXPECT_TRUE(found) << now;
    EXPECT_GT(before, march5) << "this test needs a set clock";
}

TEST(GetDateString, LeavesTheArgumentAlone)
{
    long seconds = march5;
    EXPECT_NE(ZelDataUtilities::getDateString(&seconds), "");
    EXPECT_EQ(seconds, march5);
}

TEST(GetDateString, PropagatesExhaustedMemory)
{
    long seconds = march5;
    bool thrown = false;
    {
        const FailingAllocation watch(0);
        try {
            ZelDataUtilities::getDateString(&seconds);
        } catch (const std::bad_alloc&) {
            thrown = true;
        }
    }
    EXPECT_TRUE(thrown);
}

} // namespace
} // namespace ZelInterchangeData
