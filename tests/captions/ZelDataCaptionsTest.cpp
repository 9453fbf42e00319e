/// @file
/// A captions collection: its styling, its languages and its items.

#include "captions/Captions.h"
#include "support/LongNumbers.h"
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

TEST(ZelDataCaptionsStyling, KeepsAnyFontFamilyExceptAnEmptyOne)
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

TEST(ZelDataCaptionsStyling, RefusesAFontSizeOutOfRangeAndKeepsTheOldOne)
{
    ZelDataCaptions captions;
    EXPECT_EQ(ZelData_Ok, captions.setFontSize(30));
    for (const unsigned long size : {0UL, 501UL, above32Bits(1)})
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

TEST_P(ZelDataCaptionsColor, AcceptsComponentsFromZeroToOne)
{
    for (const float value : inside) {
        EXPECT_CODE(captions_, ZelData_Ok, set(value, 0.25F, 0.75F));
        EXPECT_EQ((std::array<float, 3>{value, 0.25F, 0.75F}), get());
    }
}

TEST_P(ZelDataCaptionsColor, RefusesEachComponentOutOfRangeAndKeepsAllThree)
{
    EXPECT_EQ(ZelData_Ok, set(0.25F, 0.5F, 0.75F));
    for (const float value : outside) {
        EXPECT_CODE(captions_, ZelData_InvalidArgument, set(value, 0.0F, 0.0F));
        EXPECT_CODE(captions_, ZelData_InvalidArgument, set(0.0F, value, 0.0F));
        EXPECT_CODE(captions_, ZelData_InvalidArgument, set(0.0F, 0.0F, value));
    }
    EXPECT_EQ((std::array<float, 3>{0.25F, 0.5F, 0.75F}), get());
}

TEST_P(ZelDataCaptionsColor, AcceptsANan)
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

TEST(ZelDataCaptionsStyling, RefusesAnOpacityOutOfRangeAndKeepsTheOldOne)
{
    ZelDataCaptions captions;
    for (const float value : outside)
        EXPECT_CODE(captions, ZelData_InvalidArgument, captions.setBackgroundOpacity(value));
    EXPECT_EQ(0.6F, styleOf(captions).opacity);
}

TEST(ZelDataCaptionsStyling, StoresANanAsTheOpacity)
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

// Adding

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

TEST(ZelDataCaptionsAddCaptionItem, ReturnsTheLastErrorOfAForeignItem)
{
    ZelDataCaptions captions;
    FailingCaptionItem item;
    item.failAt("getAlignment", returnedCode, keptCode);
    fill(item, {0, 1, {{"en", ""}}});
    EXPECT_CODE(captions, keptCode, captions.addCaptionItem(item));
    EXPECT_EQ(0U, countOf(captions));
    EXPECT_EQ(IDs{}, languagesOf(captions));
}

TEST(ZelDataCaptionsAddCaptionItem, TreatsAForeignLastErrorOfZeroAsSuccess)
{
    ZelDataCaptions captions;
    FailingCaptionItem item;
    fill(item, {7, 8, {{"en", "e"}}, 0x22});
    item.failAt("getAlignment", returnedCode, ZelData_Ok);
    EXPECT_CODE(captions, ZelData_Ok, captions.addCaptionItem(item));
    EXPECT_EQ((std::vector<Caption>{{7, 8, {{"en", "e"}}, 0x01}}), itemsOf(captions));
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

TEST(ZelDataCaptionsAddCaptionItem, ReturnsTheCodeOfAFailingCreation)
{
    FailingCaptions captions;
    captions.failAt("createCaptionItem", returnedCode, returnedCode);
    EXPECT_EQ(returnedCode, captions.addCaptionItem(*itemOf({0, 1})));
    EXPECT_EQ(returnedCode, captions.storedError());
    EXPECT_TRUE(itemsOf(captions).empty());
}

// Getting copies

/// Adds two items, the second of which fails when it is first copied out.
void fillWithABrokenSecondItem(FailingCaptions& captions)
{
    add(captions, {{1, 2}});
    captions.prepareItems(
        [](FailingCaptionItem& item) { item.failAt("getAlignment", returnedCode, keptCode); });
    EXPECT_EQ(ZelData_Ok, captions.addCaptionItem(*itemOf({3, 4})));
    captions.prepareItems({});
}

TEST(ZelDataCaptionsGetCaptionItemAt, ReturnsTheCodeOfACopyThatFails)
{
    FailingCaptions captions;
    fillWithABrokenSecondItem(captions);
    i_ZelDataCaptionItem* item = nullptr;
    EXPECT_CODE(captions, keptCode, captions.getCaptionItemAt(&item, 1));
    EXPECT_EQ(nullptr, item);
    EXPECT_EQ(2, FailingCaptionItem::alive());
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

} // namespace
} // namespace ZelInterchangeData
