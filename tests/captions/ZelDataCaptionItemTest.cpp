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

TEST(ZelDataCaptionItem, StartsEmptyAtTheBottomWithoutLength)
{
    const auto item = make(ZelDataUtilities::createCaptionItemData);
    EXPECT_EQ(ZelData_Ok, item->getLastError());
    EXPECT_EQ((Caption{0, 0, {}, 0x01}), contentsOf(*item));
}

TEST(ZelDataCaptionItem, ANewOneEndsAtZeroAndIsInvalid)
{
    const ZelDataCaptionItem item;
    EXPECT_EQ(0, endOf(item));
    EXPECT_CODE(item, ZelData_InvalidItem, item.isValid(false));
    EXPECT_CODE(item, ZelData_InvalidItem, item.isValid(true));
}

TEST(ZelDataCaptionItem, KeepsAStartFromZeroOn)
{
    ZelDataCaptionItem item;
    for (const long long start : {5LL, 0LL, most}) {
        EXPECT_CODE(item, ZelData_Ok, item.setStart(start));
        EXPECT_EQ(start, contentsOf(item).start);
    }
}

TEST(ZelDataCaptionItem, RefusesANegativeStartAndKeepsTheOldOne)
{
    const auto item = itemOf({7, 8});
    for (const long long start : {-1LL, least})
        EXPECT_CODE(*item, ZelData_InvalidArgument, item->setStart(start));
    EXPECT_EQ((Caption{7, 8}), contentsOf(*item));
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

TEST(ZelDataCaptionItem, TakesItsDurationFromAnEndAfterTheStart)
{
    const auto item = itemOf({100, 8});
    EXPECT_CODE(*item, ZelData_Ok, item->setEnd(101));
    EXPECT_EQ((Caption{100, 1}), contentsOf(*item));
    EXPECT_CODE(*item, ZelData_Ok, item->setEnd(most));
    EXPECT_EQ((Caption{100, most - 100}), contentsOf(*item));
}

TEST(ZelDataCaptionItem, KeepsADurationFromOneOn)
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

TEST(ZelDataCaptionItem, ReplacingATextIsAWarningAndKeepsTheSecond)
{
    ZelDataCaptionItem item;
    EXPECT_CODE(item, ZelData_Ok, item.setTextForLanguage("first", "en"));
    EXPECT_CODE(item, ZelData_WarnAlreadyExists, item.setTextForLanguage("second", "en"));
    EXPECT_EQ((Caption{0, 0, {{"en", "second"}}}), contentsOf(item));
}

TEST(ZelDataCaptionItem, TellsLanguageIDsApartByteForByte)
{
    ZelDataCaptionItem item;
    for (const char* id : {"en", "EN", "en-US", "en-GB"})
        EXPECT_CODE(item, ZelData_Ok, item.setTextForLanguage(id, id));
    EXPECT_EQ(4U, contentsOf(item).texts.size());
}

TEST(ZelDataCaptionItem, TakesAnyUtf8Text)
{
    for (const std::string& text :
         {std::string(), std::string("a\0b", 3), std::string("\t\x01"),
          std::string("\xF0\x9F\x98\x80"), std::string("\xFC\x84\x80\x80\x80\x80")}) {
        ZelDataCaptionItem item;
        EXPECT_CODE(item, ZelData_Ok, item.setTextForLanguage(text, "en"));
        EXPECT_EQ((Caption{0, 0, {{"en", text}}}), contentsOf(item));
    }
}

TEST(ZelDataCaptionItem, RefusesALanguageThatIsUnknownOrMalformed)
{
    const auto item = itemOf({0, 1, {{"en", "x"}}});
    for (const char* id : {"zz", "", "e", "eng", "en_US", "en-\xFF", "\xC3"})
        EXPECT_CODE(*item, ZelData_InvalidItem, item->setTextForLanguage("y", id));
    EXPECT_EQ((Caption{0, 1, {{"en", "x"}}}), contentsOf(*item));
}

TEST(ZelDataCaptionItem, RefusesATextThatIsNoUtf8)
{
    const auto item = itemOf({0, 1, {{"en", "x"}}});
    for (const char* id : {"en", "de"})
        EXPECT_CODE(*item, ZelData_InvalidItem, item->setTextForLanguage("a\xFFz", id));
    EXPECT_EQ((Caption{0, 1, {{"en", "x"}}}), contentsOf(*item));
}

TEST(ZelDataCaptionItem, AnAbsentTextIsABadArgumentAndTheOutTextStays)
{
    const auto item = itemOf({0, 1, {{"en", "x"}}});
    std::string text = "before";
    for (const char* id : {"de", "EN", "en-US", "zz", ""})
        EXPECT_CODE(*item, ZelData_InvalidArgument, item->getTextForLanguage(text, id));
    EXPECT_EQ("before", text);
}

TEST(ZelDataCaptionItem, RemovesTheTextOfOneLanguage)
{
    const auto item = itemOf({0, 1, {{"de", "d"}, {"en", "e"}}});
    EXPECT_CODE(*item, ZelData_Ok, item->removeTextForLanguage("de"));
    EXPECT_EQ((Caption{0, 1, {{"en", "e"}}}), contentsOf(*item));
}

TEST(ZelDataCaptionItem, RemovingAnAbsentLanguageReturnsNotFound)
{
    const auto item = itemOf({0, 1, {{"en", "e"}}});
    EXPECT_CODE(*item, ZelData_NotFound, item->removeTextForLanguage("de"));
    EXPECT_CODE(*item, ZelData_NotFound, item->removeTextForLanguage("EN"));
    EXPECT_EQ((Caption{0, 1, {{"en", "e"}}}), contentsOf(*item));
}

TEST(ZelDataCaptionItem, ClearsItsTextsAndNothingElse)
{
    const auto item = itemOf({5, 6, {{"de", "d"}, {"en", "e"}}, 0x22});
    EXPECT_CODE(*item, ZelData_Ok, item->clearText());
    EXPECT_EQ((Caption{5, 6, {}, 0x22}), contentsOf(*item));
    EXPECT_CODE(*item, ZelData_Ok, item->clearText());
}

TEST(ZelDataCaptionItem, ListsItsLanguagesInByteOrderWhateverTheOrderOfAddition)
{
    ZelDataCaptionItem item;
    for (const char* id : {"en", "de", "en-GB", "EN"})
        EXPECT_CODE(item, ZelData_Ok, item.setTextForLanguage("", id));
    IDs ids = {"what", "was", "before"};
    EXPECT_CODE(item, ZelData_Ok, item.getLanguageIDs(ids));
    EXPECT_EQ((IDs{"EN", "de", "en", "en-GB"}), ids);
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

TEST(ZelDataCaptionItemIsValid, AWrappingEndIsNotLookedAt)
{
    const auto item = itemOf({most, 2000});
    EXPECT_CODE(*item, ZelData_Ok, item->isValid(true));
}

TEST(ZelDataCaptionItemAssignment, CopiesEveryFieldButTheLastError)
{
    ZelDataCaptionItem source;
    fill(source, {100, 30, {{"de", "d"}, {"en", "e"}}, 0x22});
    source.setLastError(ZelData_NotFound);
    ZelDataCaptionItem target;
    fill(target, {1, 2, {{"fr", "f"}}, 0x10});
    target.setLastError(ZelData_WarnTiming);
    target = source;
    EXPECT_EQ(ZelData_WarnTiming, target.getLastError());
    EXPECT_EQ(ZelData_NotFound, source.getLastError());
    EXPECT_EQ((Caption{100, 30, {{"de", "d"}, {"en", "e"}}, 0x22}), contentsOf(target));
}

TEST(ZelDataCaptionItemAssignment, TakesAnItemThatNoCheckWouldPass)
{
    ZelDataCaptionItem target;
    fill(target, {1, 2});
    target = ZelDataCaptionItem();
    EXPECT_EQ((Caption{0, 0}), contentsOf(target));
}

TEST(ZelDataCaptionItemAssignment, OntoItselfChangesNothing)
{
    ZelDataCaptionItem item;
    fill(item, {1, 2, {{"fr", "f"}}, 0x10});
    item.setLastError(ZelData_WarnTiming);
    const ZelDataCaptionItem& same = item;
    item = same;
    EXPECT_EQ(ZelData_WarnTiming, item.getLastError());
    EXPECT_EQ((Caption{1, 2, {{"fr", "f"}}, 0x10}), contentsOf(item));
}

} // namespace
} // namespace ZelInterchangeData
