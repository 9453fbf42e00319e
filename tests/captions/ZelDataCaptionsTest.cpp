/// @file
/// A captions collection: its styling, its languages and its items.

#include "captions/Captions.h"
#include "support/fakes/FailingCaptions.h"

#include <cmath>
#include <limits>
#include <new>
#include <stdexcept>

namespace ZelInterchangeData {
namespace {

using IDs = std::vector<std::string>;
using Texts = std::map<std::string, std::string>;

constexpr float nan = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr auto returnedCode = static_cast<ZelDataResult_tags>(0x80000E11);
constexpr auto keptCode = static_cast<ZelDataResult_tags>(0x40000E22);

const float outside[] = {-0.001F, 1.001F, -infinity, infinity};
const float inside[] = {0.0F, -0.0F, 0.5F, 1.0F};

unsigned long countOf(i_ZelDataCaptions& captions)
{
    unsigned long count = 4711;
    EXPECT_CODE(captions, ZelData_Ok, captions.getCaptionItemCount(count));
    return count;
}

TEST(ZelDataCaptions, StartsWithWhiteHelveticaOnTranslucentBlackAndNothingElse)
{
    const auto captions = make(ZelDataUtilities::createCaptionData);
    EXPECT_EQ(ZelData_Ok, captions->getLastError());
    EXPECT_EQ(Style(), styleOf(*captions));
    EXPECT_EQ(0U, countOf(*captions));
    EXPECT_EQ(IDs{}, languagesOf(*captions));
}

TEST(ZelDataCaptions, ANewOneIsValid)
{
    const ZelDataCaptions captions;
    EXPECT_CODE(captions, ZelData_Ok, captions.isValid(true));
    EXPECT_CODE(captions, ZelData_Ok, captions.isValid(false));
}

// Styling

TEST(ZelDataCaptionsStyling, KeepsAFrameRateFromOneToTenThousand)
{
    ZelDataCaptions captions;
    for (const unsigned long rate : {1UL, 25UL, 10000UL}) {
        EXPECT_CODE(captions, ZelData_Ok, captions.setFrameRate(rate));
        EXPECT_EQ(rate, styleOf(captions).frameRate);
    }
}

TEST(ZelDataCaptionsStyling, RefusesAFrameRateOutsideAndKeepsTheOldOne)
{
    ZelDataCaptions captions;
    EXPECT_EQ(ZelData_Ok, captions.setFrameRate(30));
    for (const unsigned long rate : {0UL, 10001UL, 0x100000001UL})
        EXPECT_CODE(captions, ZelData_InvalidArgument, captions.setFrameRate(rate));
    EXPECT_EQ(30U, styleOf(captions).frameRate);
}

TEST(ZelDataCaptionsStyling, KeepsAnyFontFamilyButNone)
{
    ZelDataCaptions captions;
    for (const std::string& family : {std::string("A & B"), std::string("\xFF\0", 2)}) {
        EXPECT_CODE(captions, ZelData_Ok, captions.setFontFamily(family));
        EXPECT_EQ(family, styleOf(captions).fontFamily);
    }
    EXPECT_CODE(captions, ZelData_InvalidArgument, captions.setFontFamily(""));
    EXPECT_EQ(std::string("\xFF\0", 2), styleOf(captions).fontFamily);
}

TEST(ZelDataCaptionsStyling, KeepsAFontSizeFromOneToFiveHundred)
{
    ZelDataCaptions captions;
    for (const unsigned long size : {1UL, 12UL, 500UL}) {
        EXPECT_CODE(captions, ZelData_Ok, captions.setFontSize(size));
        EXPECT_EQ(size, styleOf(captions).fontSize);
    }
}

TEST(ZelDataCaptionsStyling, RefusesAFontSizeOutsideAndKeepsTheOldOne)
{
    ZelDataCaptions captions;
    EXPECT_EQ(ZelData_Ok, captions.setFontSize(30));
    for (const unsigned long size : {0UL, 501UL, 0x100000001UL})
        EXPECT_CODE(captions, ZelData_InvalidArgument, captions.setFontSize(size));
    EXPECT_EQ(30U, styleOf(captions).fontSize);
}

/// One of the two colours.
struct Color {
    ZelDataResult_tags (i_ZelDataCaptions::*set)(float, float, float);
    ZelDataResult_tags (i_ZelDataCaptions::*get)(float&, float&, float&) const;
};

class ZelDataCaptionsColor : public testing::TestWithParam<Color> {
protected:
    ZelDataResult_tags set(float red, float green, float blue)
    {
        return (captions_.*GetParam().set)(red, green, blue);
    }
    std::array<float, 3> get() const
    {
        std::array<float, 3> color = {};
        EXPECT_CODE(captions_, ZelData_Ok,
                    (captions_.*GetParam().get)(color[0], color[1], color[2]));
        return color;
    }

    ZelDataCaptions captions_;
};

TEST_P(ZelDataCaptionsColor, TakesComponentsFromZeroToOne)
{
    for (const float value : inside) {
        EXPECT_CODE(captions_, ZelData_Ok, set(value, 0.25F, 0.75F));
        EXPECT_EQ((std::array<float, 3>{value, 0.25F, 0.75F}), get());
    }
}

TEST_P(ZelDataCaptionsColor, RefusesEachComponentOutsideAndKeepsAllThree)
{
    EXPECT_EQ(ZelData_Ok, set(0.25F, 0.5F, 0.75F));
    for (const float value : outside) {
        EXPECT_CODE(captions_, ZelData_InvalidArgument, set(value, 0.0F, 0.0F));
        EXPECT_CODE(captions_, ZelData_InvalidArgument, set(0.0F, value, 0.0F));
        EXPECT_CODE(captions_, ZelData_InvalidArgument, set(0.0F, 0.0F, value));
    }
    EXPECT_EQ((std::array<float, 3>{0.25F, 0.5F, 0.75F}), get());
}

TEST_P(ZelDataCaptionsColor, DoesNotRejectANan)
{
    EXPECT_CODE(captions_, ZelData_Ok, set(nan, nan, nan));
    for (const float component : get())
        EXPECT_TRUE(std::isnan(component));
    EXPECT_CODE(captions_, ZelData_InvalidArgument, set(nan, 2.0F, nan));
}

INSTANTIATE_TEST_SUITE_P(ForegroundAndBackground, ZelDataCaptionsColor,
                         testing::Values(Color{&i_ZelDataCaptions::setForegroundColor,
                                               &i_ZelDataCaptions::getForegroundColor},
                                         Color{&i_ZelDataCaptions::setBackgroundColor,
                                               &i_ZelDataCaptions::getBackgroundColor}));

TEST(ZelDataCaptionsStyling, KeepsTheTwoColoursApart)
{
    ZelDataCaptions captions;
    EXPECT_EQ(ZelData_Ok, captions.setForegroundColor(0.1F, 0.2F, 0.3F));
    EXPECT_EQ(ZelData_Ok, captions.setBackgroundColor(0.4F, 0.5F, 0.6F));
    EXPECT_EQ((std::array<float, 3>{0.1F, 0.2F, 0.3F}), styleOf(captions).foreground);
    EXPECT_EQ((std::array<float, 3>{0.4F, 0.5F, 0.6F}), styleOf(captions).background);
}

TEST(ZelDataCaptionsStyling, KeepsAnOpacityFromZeroToOne)
{
    ZelDataCaptions captions;
    for (const float value : inside) {
        EXPECT_CODE(captions, ZelData_Ok, captions.setBackgroundOpacity(value));
        EXPECT_EQ(value, styleOf(captions).opacity);
    }
}

TEST(ZelDataCaptionsStyling, RefusesAnOpacityOutsideAndKeepsTheOldOne)
{
    ZelDataCaptions captions;
    for (const float value : outside)
        EXPECT_CODE(captions, ZelData_InvalidArgument, captions.setBackgroundOpacity(value));
    EXPECT_EQ(0.6F, styleOf(captions).opacity);
}

TEST(ZelDataCaptionsStyling, StoresAnOpacityThatIsNoNumber)
{
    ZelDataCaptions captions;
    EXPECT_CODE(captions, ZelData_Ok, captions.setBackgroundOpacity(nan));
    EXPECT_TRUE(std::isnan(styleOf(captions).opacity));
}

TEST(ZelDataCaptionsStyling, ItsGettersStoreSuccess)
{
    const ZelDataCaptions captions;
    unsigned long number = 0;
    std::string text;
    float fraction = 0;
    EXPECT_CODE(captions, ZelData_Ok, captions.getFrameRate(number));
    EXPECT_CODE(captions, ZelData_Ok, captions.getFontSize(number));
    EXPECT_CODE(captions, ZelData_Ok, captions.getFontFamily(text));
    EXPECT_CODE(captions, ZelData_Ok, captions.getBackgroundOpacity(fraction));
}

// Languages

TEST(ZelDataCaptionsLanguages, RemovingALanguageTouchesNoItem)
{
    const auto captions = captionsOf({{0, 1, {{"de", "d"}, {"en", "e"}}}});
    EXPECT_CODE(*captions, ZelData_Ok, captions->removeLanguage("de"));
    EXPECT_EQ(IDs{"en"}, languagesOf(*captions));
    EXPECT_EQ((Texts{{"de", "d"}, {"en", "e"}}), itemsOf(*captions)[0].texts);
    EXPECT_CODE(*captions, ZelData_Ok, captions->clearLanguages());
    EXPECT_EQ((Texts{{"de", "d"}, {"en", "e"}}), itemsOf(*captions)[0].texts);
}

TEST(ZelDataCaptionsLanguages, RemovingAnAbsentLanguageIsAnError)
{
    const auto captions = captionsOf({{0, 1, {{"en", "e"}}}});
    EXPECT_CODE(*captions, ZelData_NotFound, captions->removeLanguage("fr"));
    EXPECT_EQ(IDs{"en"}, languagesOf(*captions));
}

// Handing in

TEST(ZelDataCaptionsAddCaptionItem, AppendsACopyWithoutSortingOrChecking)
{
    const std::vector<Caption> given = {
        {500, 10, {{"en", "b"}}, 0x22}, {0, 600, {{"en", "a"}}}, {0, 1}};
    const auto captions = captionsOf(given);
    EXPECT_EQ(3U, countOf(*captions));
    EXPECT_EQ(given, itemsOf(*captions));
}

TEST(ZelDataCaptionsAddCaptionItem, KeepsItsCopyWhenTheCallerChangesTheItem)
{
    ZelDataCaptions captions;
    const auto item = itemOf({5, 6, {{"en", "a"}}});
    EXPECT_CODE(captions, ZelData_Ok, captions.addCaptionItem(*item));
    fill(*item, {9, 9, {{"de", "b"}}});
    EXPECT_EQ((std::vector<Caption>{{5, 6, {{"en", "a"}}}}), itemsOf(captions));
}

TEST(ZelDataCaptionsAddCaptionItem, ListsNewLanguagesInByteOrderBehindTheListedOnes)
{
    ZelDataCaptions captions;
    EXPECT_EQ(ZelData_Ok, captions.addLanguage("fr"));
    add(captions, {{0, 1, {{"en", ""}, {"de", ""}, {"fr", ""}}}, {0, 1, {{"cs", ""}, {"en", ""}}}});
    EXPECT_EQ((IDs{"fr", "de", "en", "cs"}), languagesOf(captions));
}

TEST(ZelDataCaptionsAddCaptionItem, ALanguageThatIsListedAlreadyIsIgnored)
{
    ZelDataCaptions captions;
    EXPECT_EQ(ZelData_Ok, captions.addLanguage("en"));
    EXPECT_CODE(captions, ZelData_Ok, captions.addCaptionItem(*itemOf({0, 1, {{"en", ""}}})));
    EXPECT_EQ(1U, countOf(captions));
}

TEST(ZelDataCaptionsAddCaptionItem, RefusesAnItemWithoutLength)
{
    ZelDataCaptions captions;
    EXPECT_CODE(captions, ZelData_InvalidArgument,
                captions.addCaptionItem(*itemOf({0, 0, {{"en", ""}}})));
    EXPECT_EQ(0U, countOf(captions));
    EXPECT_EQ(IDs{}, languagesOf(captions));
}

TEST(ZelDataCaptionsAddCaptionItem, RefusesAnItemWhoseEndWraps)
{
    ZelDataCaptions captions;
    EXPECT_CODE(captions, ZelData_InvalidArgument,
                captions.addCaptionItem(*itemOf({std::numeric_limits<long long>::max(), 1})));
    EXPECT_EQ(0U, countOf(captions));
}

TEST(ZelDataCaptionsAddCaptionItem, GivesTheLastErrorOfAForeignItem)
{
    ZelDataCaptions captions;
    FailingCaptionItem item;
    item.failAt("getAlignment", returnedCode, keptCode);
    fill(item, {0, 1, {{"en", ""}}});
    EXPECT_CODE(captions, keptCode, captions.addCaptionItem(item));
    EXPECT_EQ(0U, countOf(captions));
    EXPECT_EQ(IDs{}, languagesOf(captions));
}

TEST(ZelDataCaptionsAddCaptionItem, TakesAForeignLastErrorOfZeroForSuccess)
{
    ZelDataCaptions captions;
    FailingCaptionItem item;
    fill(item, {7, 8, {{"en", "e"}}, 0x22});
    item.failAt("getAlignment", returnedCode, ZelData_Ok);
    EXPECT_CODE(captions, ZelData_Ok, captions.addCaptionItem(item));
    EXPECT_EQ((std::vector<Caption>{{7, 8, {{"en", "e"}}, 0x01}}), itemsOf(captions));
}

TEST(ZelDataCaptionsAddCaptionItem, TurnsExceptionsOfAForeignItemIntoCodes)
{
    ZelDataCaptions captions;
    FailingCaptionItem item;
    fill(item, {0, 1, {{"en", ""}}});
    item.throwAt("getStart", std::bad_alloc());
    EXPECT_CODE(captions, ZelData_OutOfMemory, captions.addCaptionItem(item));
    item.throwAt("getStart", std::runtime_error("foreign"));
    EXPECT_CODE(captions, ZelData_InternalError, captions.addCaptionItem(item));
    EXPECT_EQ(0U, countOf(captions));
    EXPECT_EQ(IDs{}, languagesOf(captions));
}

TEST(ZelDataCaptionsAddCaptionItem, DestroysItsCopyWhenTheCopyingFails)
{
    FailingCaptions captions;
    captions.prepareItems(
        [](FailingCaptionItem& item) { item.failAt("setEnd", returnedCode, keptCode); });
    EXPECT_CODE(captions, keptCode, captions.addCaptionItem(*itemOf({0, 1})));
    EXPECT_EQ(0, FailingCaptionItem::alive());
    EXPECT_EQ(0U, countOf(captions));
}

TEST(ZelDataCaptionsAddCaptionItem, StopsAtALanguageThatCannotBeListed)
{
    FailingCaptions captions;
    captions.failAt("addLanguage", returnedCode, returnedCode, 2);
    EXPECT_EQ(returnedCode,
              captions.addCaptionItem(*itemOf({0, 1, {{"de", ""}, {"en", ""}, {"fr", ""}}})));
    EXPECT_EQ(returnedCode, captions.storedError());
    EXPECT_TRUE(itemsOf(captions).empty());
    EXPECT_EQ(IDs{"de"}, languagesOf(captions));
    EXPECT_EQ(0, FailingCaptionItem::alive());
}

TEST(ZelDataCaptionsAddCaptionItem, GivesTheCodeOfAFailingCreation)
{
    FailingCaptions captions;
    captions.failAt("createCaptionItem", returnedCode, returnedCode);
    EXPECT_EQ(returnedCode, captions.addCaptionItem(*itemOf({0, 1})));
    EXPECT_EQ(returnedCode, captions.storedError());
    EXPECT_TRUE(itemsOf(captions).empty());
}

TEST(ZelDataCaptionsCreateCaptionItem, MakesADefaultItemThatIsNotItsOwn)
{
    const auto captions = make(ZelDataUtilities::createCaptionData);
    i_ZelDataCaptionItem* made = nullptr;
    EXPECT_CODE(*captions, ZelData_Ok, captions->createCaptionItem(&made));
    ASSERT_NE(nullptr, made);
    const std::unique_ptr<i_ZelDataCaptionItem> owned(made);
    EXPECT_EQ(Caption(), contentsOf(*made));
    EXPECT_EQ(0U, countOf(*captions));
}

TEST(ZelDataCaptionsCreateCaptionItem, RefusesAPointerThatIsNullOrTaken)
{
    const ZelDataCaptions captions;
    const auto item = itemOf({1, 2});
    i_ZelDataCaptionItem* taken = item.get();
    EXPECT_CODE(captions, ZelData_InvalidArgument, captions.createCaptionItem(nullptr));
    EXPECT_CODE(captions, ZelData_InvalidArgument, captions.createCaptionItem(&taken));
    EXPECT_EQ(item.get(), taken);
}

// Handing out

TEST(ZelDataCaptionsGetCaptionItemAt, HandsOutAFreshCopyEachTime)
{
    const auto captions = captionsOf({{1, 2, {{"en", "a"}}}, {3, 4, {{"en", "b"}}, 0x22}});
    for (int time = 0; time < 2; ++time) {
        i_ZelDataCaptionItem* item = nullptr;
        EXPECT_CODE(*captions, ZelData_Ok, captions->getCaptionItemAt(&item, 1));
        const std::unique_ptr<i_ZelDataCaptionItem> owned(item);
        EXPECT_EQ((Caption{3, 4, {{"en", "b"}}, 0x22}), contentsOf(*item));
        fill(*item, {9, 9});
    }
}

TEST(ZelDataCaptionsGetCaptionItemAt, RefusesAPointerThatIsNullOrTaken)
{
    const auto captions = captionsOf({{1, 2}});
    const auto item = itemOf({7, 8});
    i_ZelDataCaptionItem* taken = item.get();
    EXPECT_CODE(*captions, ZelData_InvalidArgument, captions->getCaptionItemAt(nullptr, 0));
    EXPECT_CODE(*captions, ZelData_InvalidArgument, captions->getCaptionItemAt(&taken, 0));
    EXPECT_EQ(item.get(), taken);
}

TEST(ZelDataCaptionsGetCaptionItemAt, RefusesAnIndexBehindTheLast)
{
    const auto captions = captionsOf({{1, 2}});
    i_ZelDataCaptionItem* item = nullptr;
    for (const unsigned long index : {1UL, 0x100000000UL, ~0UL})
        EXPECT_CODE(*captions, ZelData_InvalidArgument, captions->getCaptionItemAt(&item, index));
    EXPECT_EQ(nullptr, item);
}

/// Two items, the second of which fails when it is copied out for the first time.
void fillWithABrokenSecondItem(FailingCaptions& captions)
{
    add(captions, {{1, 2}});
    captions.prepareItems(
        [](FailingCaptionItem& item) { item.failAt("getAlignment", returnedCode, keptCode); });
    EXPECT_EQ(ZelData_Ok, captions.addCaptionItem(*itemOf({3, 4})));
    captions.prepareItems({});
}

TEST(ZelDataCaptionsGetCaptionItemAt, GivesTheCodeOfACopyThatFails)
{
    FailingCaptions captions;
    fillWithABrokenSecondItem(captions);
    i_ZelDataCaptionItem* item = nullptr;
    EXPECT_CODE(captions, keptCode, captions.getCaptionItemAt(&item, 1));
    EXPECT_EQ(nullptr, item);
    EXPECT_EQ(2, FailingCaptionItem::alive());
}

TEST(ZelDataCaptionsGetCaptionItems, ReplacesTheVectorWithoutDestroyingWhatItPointedTo)
{
    const auto captions = captionsOf({{1, 2}});
    const auto before = itemOf({7, 8});
    std::vector<i_ZelDataCaptionItem*> items = {before.get(), before.get()};
    EXPECT_CODE(*captions, ZelData_Ok, captions->getCaptionItems(items));
    ASSERT_EQ(1U, items.size());
    const std::unique_ptr<i_ZelDataCaptionItem> owned(items[0]);
    EXPECT_EQ((Caption{1, 2}), contentsOf(*owned));
    EXPECT_EQ((Caption{7, 8}), contentsOf(*before));
}

TEST(ZelDataCaptionsGetCaptionItems, LeavesTheVectorEmptyWhenACopyFails)
{
    FailingCaptions captions;
    fillWithABrokenSecondItem(captions);
    const auto before = itemOf({7, 8});
    std::vector<i_ZelDataCaptionItem*> items = {before.get()};
    EXPECT_CODE(captions, keptCode, captions.ZelDataCaptions::getCaptionItems(items));
    EXPECT_TRUE(items.empty());
    EXPECT_EQ(2, FailingCaptionItem::alive());
}

TEST(ZelDataCaptionsGetCaptionItems, AnEmptyCollectionEmptiesTheVector)
{
    const ZelDataCaptions captions;
    const auto before = itemOf({7, 8});
    std::vector<i_ZelDataCaptionItem*> items = {before.get()};
    EXPECT_CODE(captions, ZelData_Ok, captions.getCaptionItems(items));
    EXPECT_TRUE(items.empty());
}

TEST(ZelDataCaptions, GettingTheItemsOfALanguageIsNotSupported)
{
    const auto captions = captionsOf({{1, 2, {{"en", "a"}}}});
    const auto before = itemOf({7, 8});
    std::vector<i_ZelDataCaptionItem*> items = {before.get()};
    for (const char* id : {"en", "zz", ""})
        EXPECT_CODE(*captions, ZelData_NotImplemented,
                    captions->getCaptionItemsForLanguage(items, id));
    EXPECT_EQ(std::vector<i_ZelDataCaptionItem*>{before.get()}, items);
}

// Removing

TEST(ZelDataCaptionsRemoveCaptionItemAt, ClosesTheGapAndKeepsTheLanguages)
{
    const auto captions = captionsOf({{1, 2, {{"de", ""}}}, {3, 4, {{"en", ""}}}, {5, 6}});
    EXPECT_CODE(*captions, ZelData_Ok, captions->removeCaptionItemAt(1));
    EXPECT_EQ((std::vector<Caption>{{1, 2, {{"de", ""}}}, {5, 6}}), itemsOf(*captions));
    EXPECT_EQ((IDs{"de", "en"}), languagesOf(*captions));
    EXPECT_EQ(2U, countOf(*captions));
}

TEST(ZelDataCaptionsRemoveCaptionItemAt, RefusesAnIndexBehindTheLast)
{
    const auto captions = captionsOf({{1, 2}});
    for (const unsigned long index : {1UL, 0x100000000UL, ~0UL})
        EXPECT_CODE(*captions, ZelData_InvalidArgument, captions->removeCaptionItemAt(index));
    EXPECT_EQ(1U, countOf(*captions));
}

TEST(ZelDataCaptions, DestroysItsItemsWhenTheyAreRemovedClearedOrLeftBehind)
{
    {
        FailingCaptions captions;
        add(captions, {{1, 2}, {3, 4}, {5, 6}});
        EXPECT_EQ(3, FailingCaptionItem::alive());
        EXPECT_EQ(ZelData_Ok, captions.removeCaptionItemAt(0));
        EXPECT_EQ(2, FailingCaptionItem::alive());
        EXPECT_EQ(ZelData_Ok, captions.clearCaptionItems());
        EXPECT_EQ(0, FailingCaptionItem::alive());
        add(captions, {{1, 2}});
    }
    EXPECT_EQ(0, FailingCaptionItem::alive());
}

TEST(ZelDataCaptions, ClearingTheItemsEmptiesTheLanguageListToo)
{
    const auto captions = captionsOf({{1, 2, {{"de", ""}}}});
    EXPECT_EQ(ZelData_Ok, captions->setFontSize(30));
    EXPECT_CODE(*captions, ZelData_Ok, captions->clearCaptionItems());
    unsigned long languages = 4711;
    EXPECT_CODE(*captions, ZelData_Ok, captions->getLanguageCount(languages));
    EXPECT_EQ(0U, languages);
    EXPECT_EQ(0U, countOf(*captions));
    EXPECT_EQ(30U, styleOf(*captions).fontSize);
}

TEST(ZelDataCaptionsRemoveCaptionItemsForLanguage, TakesTheTextFromEveryItemAndRemovesNone)
{
    const auto captions = captionsOf({{1, 2, {{"en", "a"}, {"fr", "b"}}}, {3, 4, {{"fr", "c"}}}});
    EXPECT_CODE(*captions, ZelData_Ok, captions->removeCaptionItemsForLanguage("fr"));
    EXPECT_EQ((std::vector<Caption>{{1, 2, {{"en", "a"}}}, {3, 4}}), itemsOf(*captions));
    EXPECT_EQ((IDs{"en", "fr"}), languagesOf(*captions));
}

TEST(ZelDataCaptionsRemoveCaptionItemsForLanguage, StopsAtTheFirstItemThatLacksIt)
{
    const auto captions =
        captionsOf({{1, 2, {{"fr", "a"}}}, {3, 4, {{"en", "b"}}}, {5, 6, {{"fr", "c"}}}});
    EXPECT_CODE(*captions, ZelData_NotFound, captions->removeCaptionItemsForLanguage("fr"));
    EXPECT_EQ((std::vector<Caption>{{1, 2}, {3, 4, {{"en", "b"}}}, {5, 6, {{"fr", "c"}}}}),
              itemsOf(*captions));
}

TEST(ZelDataCaptionsRemoveCaptionItemsForLanguage, WithoutItemsThereIsNothingToMiss)
{
    ZelDataCaptions captions;
    EXPECT_CODE(captions, ZelData_Ok, captions.removeCaptionItemsForLanguage("fr"));
}

} // namespace
} // namespace ZelInterchangeData
