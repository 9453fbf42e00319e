/// @file
/// Every argument that is a number, with every extreme.

#include "hostile/NumberParameter.h"

#include <gtest/gtest.h>

#include <set>

namespace ZelInterchangeData {

namespace {

const NumberParameters& allNumberParameters()
{
    static const auto parameters =
        collected<NumberParameters>({addHeaderNumbers, addCaptionNumbers, addTocNumbers,
                                     addScreenTextNumbers, addFormatterNumbers, addUtilityNumbers});
    return parameters;
}

class EachNumberParameter : public ::testing::TestWithParam<NumberParameter> {};

TEST_P(EachNumberParameter, FollowsItsRuleForExtremes)
{
    GetParam().tryWith();
}

INSTANTIATE_TEST_SUITE_P(All, EachNumberParameter, ::testing::ValuesIn(allNumberParameters()),
                         testName<NumberParameter>);

TEST(NumberParameters, AreAllThatTheOperationsHave)
{
    const std::multiset<std::string> expected = {
#include "number_parameters.inc"
    };
    EXPECT_EQ(expected, namesOf(allNumberParameters()));
}

TEST(Extremes, HoldTheEndsOfTheTypeAndTheNeighboursOfEachLimit)
{
    const auto numbers = extremesOf<long long>({500});
    const std::set<long long> all(numbers.begin(), numbers.end());
    using Limits = std::numeric_limits<long long>;
    for (const long long number : {Limits::min(), Limits::min() + 1, -1LL, 0LL, 1LL, 499LL, 500LL,
                                   501LL, 4294967295LL, Limits::max() - 1, Limits::max()}) {
        EXPECT_EQ(1U, all.count(number)) << number;
    }
}

/// The last end that does not wrap can be added, the next one cannot.
TEST(ACaptionWhoseEndWraps, KeepsItsTimesAndIsNotAdded)
{
    constexpr auto last = std::numeric_limits<long long>::max();
    const auto item = newCaption();
    EXPECT_CODE(*item, ZelData_Ok, item->setStart(last));
    EXPECT_EQ(std::numeric_limits<long long>::min(),
              delivered(*item, &i_ZelDataCaptionItem::getEnd));
    const auto captions = newCaptions();
    EXPECT_CODE(*captions, ZelData_InvalidArgument, captions->addCaptionItem(*item));
    EXPECT_CODE(*item, ZelData_Ok, item->setStart(last - 1));
    EXPECT_CODE(*captions, ZelData_Ok, captions->addCaptionItem(*item));
}

TEST(AScreenTextWhoseEndWraps, IsAdded)
{
    const auto item = newScreenTextItem();
    EXPECT_CODE(*item, ZelData_Ok, item->setStart(std::numeric_limits<long long>::max()));
    EXPECT_CODE(*item, ZelData_Ok, item->setDuration(2));
    EXPECT_EQ(std::numeric_limits<long long>::min() + 1,
              delivered(*item, &i_ZelDataScreenTextItem::getEnd));
    const auto screenText = newScreenText();
    EXPECT_CODE(*screenText, ZelData_Ok, screenText->addScreenTextItem(*item));
}

} // namespace
} // namespace ZelInterchangeData
