/// @file
/// A caption item on its own.

#include "captions/ZelDataCaptionItem.h"
#include "captions/Captions.h"

#include <limits>

namespace ZelInterchangeData {
namespace {

constexpr long long least = std::numeric_limits<long long>::min();
constexpr long long most = std::numeric_limits<long long>::max();

using IDs = std::vector<std::string>;

long long endOf(const i_ZelDataCaptionItem& item)
{
    long long end = -1;
    EXPECT_CODE(item, ZelData_Ok, item.getEnd(end));
    return end;
}

TEST(ZelDataCaptionItem, ANewOneEndsAtZeroAndIsInvalid)
{
    const ZelDataCaptionItem item;
    EXPECT_EQ(0, endOf(item));
    EXPECT_CODE(item, ZelData_InvalidItem, item.isValid(false));
    EXPECT_CODE(item, ZelData_InvalidItem, item.isValid(true));
}

TEST(ZelDataCaptionItem, MovesItsEndWithItsStart)
{
    ZelDataCaptionItem item;
    EXPECT_CODE(item, ZelData_Ok, item.setDuration(2000));
    EXPECT_CODE(item, ZelData_Ok, item.setStart(5000));
    EXPECT_EQ(7000, endOf(item));
    EXPECT_EQ(2000, contentsOf(item).duration);
}

TEST(ZelDataCaptionItem, RefusesAnEndThatIsNotAfterTheStart)
{
    const auto item = itemOf({100, 8});
    for (const long long end : {100LL, 99LL, 0LL})
        EXPECT_CODE(*item, ZelData_InvalidArgument, item->setEnd(end));
    EXPECT_EQ((Caption{100, 8}), contentsOf(*item));
}

TEST(ZelDataCaptionItem, RefusesANegativeEnd)
{
    const auto item = itemOf({0, 8});
    for (const long long end : {-1LL, least})
        EXPECT_CODE(*item, ZelData_InvalidArgument, item->setEnd(end));
    EXPECT_EQ((Caption{0, 8}), contentsOf(*item));
}

TEST(ZelDataCaptionItem, ComputesItsDurationFromAnEndAfterTheStart)
{
    const auto item = itemOf({100, 8});
    EXPECT_CODE(*item, ZelData_Ok, item->setEnd(101));
    EXPECT_EQ((Caption{100, 1}), contentsOf(*item));
    EXPECT_CODE(*item, ZelData_Ok, item->setEnd(most));
    EXPECT_EQ((Caption{100, most - 100}), contentsOf(*item));
}

TEST(ZelDataCaptionItem, AcceptsADurationFromOneUp)
{
    ZelDataCaptionItem item;
    for (const long long duration : {1LL, most}) {
        EXPECT_CODE(item, ZelData_Ok, item.setDuration(duration));
        EXPECT_EQ(duration, contentsOf(item).duration);
    }
}

TEST(ZelDataCaptionItem, RefusesADurationThatIsNotPositive)
{
    const auto item = itemOf({7, 8});
    for (const long long duration : {0LL, -1LL, least})
        EXPECT_CODE(*item, ZelData_InvalidArgument, item->setDuration(duration));
    EXPECT_EQ((Caption{7, 8}), contentsOf(*item));
}

TEST(ZelDataCaptionItem, AnEndBeyondTheLargestNumberWraps)
{
    EXPECT_EQ(least + 1, endOf(*itemOf({most, 2})));
}

TEST(ZelDataCaptionItem, KeepsAnyAlignment)
{
    ZelDataCaptionItem item;
    for (const unsigned value : {0x00U, 0x11U, 0x22U, 0x33U, 0x44U, 0xFFFFFFFFU}) {
        EXPECT_CODE(item, ZelData_Ok, item.setAlignment(static_cast<ZelAlignment_tags>(value)));
        EXPECT_EQ(value, contentsOf(item).alignment);
    }
}

TEST(ZelDataCaptionItem, ItsGettersStoreSuccess)
{
    const auto item = itemOf({7, 8, {{"en", "x"}}, 0x22});
    long long number = 0;
    ZelAlignment_tags alignment = ZelAlignCenter;
    std::string text;
    IDs ids;
    EXPECT_CODE(*item, ZelData_Ok, item->getStart(number));
    EXPECT_EQ(7, number);
    EXPECT_CODE(*item, ZelData_Ok, item->getDuration(number));
    EXPECT_EQ(8, number);
    EXPECT_CODE(*item, ZelData_Ok, item->getAlignment(alignment));
    EXPECT_EQ(ZelAlignTop | ZelAlignRight, alignment);
    EXPECT_CODE(*item, ZelData_Ok, item->getTextForLanguage(text, "en"));
    EXPECT_EQ("x", text);
    EXPECT_CODE(*item, ZelData_Ok, item->getLanguageIDs(ids));
    EXPECT_EQ(IDs{"en"}, ids);
}

TEST(ZelDataCaptionItemIsValid, AnItemWithoutTextPasses)
{
    const auto item = itemOf({0, 1000});
    EXPECT_CODE(*item, ZelData_Ok, item->isValid(false));
    EXPECT_CODE(*item, ZelData_Ok, item->isValid(true));
}

TEST(ZelDataCaptionItemIsValid, LessThanASecondIsAWarningWhenStrict)
{
    const auto item = itemOf({0, 999});
    EXPECT_CODE(*item, ZelData_Ok, item->isValid(false));
    EXPECT_CODE(*item, ZelData_WarnItemGuidelines, item->isValid(true));
}

TEST(ZelDataCaptionItemIsValid, MoreThanFourLinesAreAWarningWhenStrict)
{
    const auto item = itemOf({0, 1000, {{"en", "a\nb\nc\nd\ne"}}});
    EXPECT_CODE(*item, ZelData_Ok, item->isValid(false));
    EXPECT_CODE(*item, ZelData_WarnItemGuidelines, item->isValid(true));
}

TEST(ZelDataCaptionItemIsValid, EveryLanguageIsCounted)
{
    const auto item = itemOf({0, 1000, {{"de", "a"}, {"en", "b\n"}, {"fr", "\n\n\n\n\n"}}});
    EXPECT_CODE(*item, ZelData_WarnItemGuidelines, item->isValid(true));
}

TEST(ZelDataCaptionItemIsValid, FourLinesPassWithAndWithoutALastLineFeed)
{
    for (const char* text : {"a\nb\nc\nd\n", "a\nb\nc\nd", "a\r\nb\r\nc\r\nd\r\n", "a"}) {
        const auto item = itemOf({0, 1000, {{"en", text}}});
        EXPECT_CODE(*item, ZelData_Ok, item->isValid(true));
    }
}

TEST(ZelDataCaptionItemIsValid, AMissingDurationComesBeforeTheLines)
{
    const auto item = itemOf({0, 0, {{"en", "a\nb\nc\nd\ne"}}});
    EXPECT_CODE(*item, ZelData_InvalidItem, item->isValid(true));
}

TEST(ZelDataCaptionItemIsValid, AWrappingEndIsNotChecked)
{
    const auto item = itemOf({most, 2000});
    EXPECT_CODE(*item, ZelData_Ok, item->isValid(true));
}

} // namespace
} // namespace ZelInterchangeData
