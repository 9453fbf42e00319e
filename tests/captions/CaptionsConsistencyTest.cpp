/// @file
/// Checking, ordering and repairing captions.

#include "captions/Captions.h"
#include "support/fakes/FailingCaptions.h"

#include <cmath>
#include <functional>
#include <limits>
#include <stdexcept>
#include <utility>

namespace ZelInterchangeData {
namespace {

using IDs = std::vector<std::string>;
using Texts = std::map<std::string, std::string>;

constexpr float nan = std::numeric_limits<float>::quiet_NaN();
constexpr auto returnedCode = static_cast<ZelDataResult_tags>(0x80000E11);
constexpr auto keptCode = static_cast<ZelDataResult_tags>(0x40000E22);

/// Captions whose styling a test can set out of range, which every setter refuses.
class AnyStyle : public ZelDataCaptions {
public:
    CaptionStyle& style() { return style_; }
};

using Spoil = std::function<void(CaptionStyle&)>;

const Spoil spoiledStyles[] = {
    [](CaptionStyle& style) { style.frameRate.value = 0; },
    [](CaptionStyle& style) { style.frameRate.value = 10001; },
    [](CaptionStyle& style) { style.fontFamily.clear(); },
    [](CaptionStyle& style) { style.fontSize = 0; },
    [](CaptionStyle& style) { style.fontSize = 501; },
    [](CaptionStyle& style) { style.foreground.red = -0.1F; },
    [](CaptionStyle& style) { style.foreground.green = 1.1F; },
    [](CaptionStyle& style) { style.foreground.blue = -0.1F; },
    [](CaptionStyle& style) { style.background.red = 1.1F; },
    [](CaptionStyle& style) { style.background.green = -0.1F; },
    [](CaptionStyle& style) { style.background.blue = 1.1F; },
    [](CaptionStyle& style) { style.backgroundOpacity = -0.1F; },
    [](CaptionStyle& style) { style.backgroundOpacity = 1.1F; },
};

/// What makeCaptionsConsistent() makes of a styling that @p spoil has put out of range.
Style repaired(const Spoil& spoil)
{
    AnyStyle captions;
    spoil(captions.style());
    EXPECT_CODE(captions, ZelData_Ok, captions.makeCaptionsConsistent());
    return styleOf(captions);
}

// Checking

TEST(ZelDataCaptionsIsValid, FindsEachStylingValueThatIsOutOfRange)
{
    for (const Spoil& spoil : spoiledStyles) {
        AnyStyle captions;
        spoil(captions.style());
        EXPECT_CODE(captions, ZelData_InvalidArgument, captions.isValid(false));
        EXPECT_CODE(captions, ZelData_InvalidArgument, captions.isValid(true));
    }
}

TEST(ZelDataCaptionsIsValid, ChecksTheStylingBeforeTheItems)
{
    AnyStyle captions;
    add(captions, {{0, 10}, {5, 10}});
    EXPECT_CODE(captions, ZelData_WarnTiming, captions.isValid(false));
    captions.style().fontSize = 0;
    EXPECT_CODE(captions, ZelData_InvalidArgument, captions.isValid(false));
}

TEST(ZelDataCaptionsIsValid, AcceptsANan)
{
    AnyStyle captions;
    captions.style().foreground = {nan, nan, nan};
    captions.style().background = {nan, nan, nan};
    captions.style().backgroundOpacity = nan;
    EXPECT_CODE(captions, ZelData_Ok, captions.isValid(true));
}

TEST(ZelDataCaptionsIsValid, AnEndThatEqualsTheNextStartPasses)
{
    const auto captions = captionsOf({{0, 2000}, {2000, 1000}});
    EXPECT_CODE(*captions, ZelData_Ok, captions->isValid(true));
}

TEST(ZelDataCaptionsIsValid, AnEndAfterTheNextStartIsAWarning)
{
    const auto captions = captionsOf({{0, 2001}, {2000, 1000}});
    EXPECT_CODE(*captions, ZelData_WarnTiming, captions->isValid(false));
    EXPECT_CODE(*captions, ZelData_WarnTiming, captions->isValid(true));
}

TEST(ZelDataCaptionsIsValid, ItemsOutOfOrderAreAWarningUntilTheyAreSorted)
{
    const auto captions = captionsOf({{2000, 1000}, {0, 2000}});
    EXPECT_CODE(*captions, ZelData_WarnTiming, captions->isValid(true));
    EXPECT_CODE(*captions, ZelData_Ok, captions->makeCaptionsConsistent());
    EXPECT_CODE(*captions, ZelData_Ok, captions->isValid(true));
}

TEST(ZelDataCaptionsIsValid, AnItemWithoutTextInAListedLanguageIsABadArgumentUntilItIsFilled)
{
    const auto captions = captionsOf({{0, 1000, {{"en", "a"}}}, {1000, 1000, {{"de", "b"}}}});
    EXPECT_CODE(*captions, ZelData_InvalidArgument, captions->isValid(false));
    EXPECT_CODE(*captions, ZelData_Ok, captions->makeCaptionsConsistent());
    EXPECT_CODE(*captions, ZelData_Ok, captions->isValid(true));
    EXPECT_EQ((Texts{{"de", ""}, {"en", "a"}}), itemsOf(*captions).at(0).texts);
}

TEST(ZelDataCaptionsIsValid, ALanguageThatIsNotListedMayHaveTexts)
{
    const auto captions = captionsOf({{0, 1000, {{"en", "a"}}}, {1000, 1000}});
    EXPECT_EQ(ZelData_Ok, captions->removeLanguage("en"));
    EXPECT_CODE(*captions, ZelData_Ok, captions->isValid(true));
}

TEST(ZelDataCaptionsIsValid, TheItemsOwnLimitsCountOnlyWhenStrict)
{
    const auto captions = captionsOf({{0, 1000}, {1000, 999}});
    EXPECT_CODE(*captions, ZelData_Ok, captions->isValid(false));
    EXPECT_CODE(*captions, ZelData_WarnItemGuidelines, captions->isValid(true));
}

TEST(ZelDataCaptionsIsValid, ValidatesTheItemsOnlyWhenStrict)
{
    FailingCaptions captions;
    captions.prepareItems(
        [](FailingCaptionItem& item) { item.failAt("isValid", returnedCode, keptCode); });
    add(captions, {{0, 1}});
    EXPECT_CODE(captions, ZelData_Ok, captions.isValid(false));
    EXPECT_CODE(captions, keptCode, captions.isValid(true));
}

TEST(ZelDataCaptionsIsValid, ReturnsTheLastErrorOfAnItemWhoseEndCannotBeRead)
{
    FailingCaptions captions;
    captions.prepareItems(
        [](FailingCaptionItem& item) { item.failAt("getEnd", returnedCode, keptCode); });
    add(captions, {{0, 1}});
    EXPECT_CODE(captions, keptCode, captions.isValid(false));
}

TEST(ZelDataCaptionsIsValid, AnEndThatAnItemDoesNotSetCountsAsZero)
{
    FailingCaptions captions;
    captions.prepareItems(
        [](FailingCaptionItem& item) { item.failAt("getEnd", ZelData_Ok, ZelData_Ok); });
    add(captions, {{0, 5}, {0, 5}});
    EXPECT_CODE(captions, ZelData_Ok, captions.isValid(false));
}

TEST(ZelDataCaptionsIsValid, AnItemsOwnCodeComesBeforeItsMissingTexts)
{
    const auto captions = captionsOf({{0, 999}, {999, 1000, {{"en", "a"}}}});
    EXPECT_CODE(*captions, ZelData_WarnItemGuidelines, captions->isValid(true));
    EXPECT_CODE(*captions, ZelData_InvalidArgument, captions->isValid(false));
}

TEST(ZelDataCaptionsIsValid, AMissingTextComesBeforeTheTimingOfTheSameItem)
{
    const auto captions = captionsOf({{0, 2000}, {0, 1000, {{"en", "a"}}}});
    EXPECT_CODE(*captions, ZelData_InvalidArgument, captions->isValid(false));
}

TEST(ZelDataCaptionsIsValid, TheTimingOfAnItemComesBeforeTheTextsOfTheNext)
{
    const auto captions = captionsOf({{0, 2000, {{"en", "a"}}}, {0, 1000}});
    EXPECT_CODE(*captions, ZelData_WarnTiming, captions->isValid(false));
}

TEST(ZelDataCaptionsIsValid, ComparesAnItemWithAllLaterOnesNotOnlyTheNext)
{
    const auto captions =
        captionsOf({{0, 5000, {{"en", ""}}}, {5000, 1000}, {3000, 1000, {{"en", ""}}}});
    EXPECT_CODE(*captions, ZelData_WarnTiming, captions->isValid(false));
}

TEST(ZelDataCaptionsIsValid, ReturnsTheLastErrorOfAnItemWithoutAText)
{
    FailingCaptions captions;
    captions.prepareItems([](FailingCaptionItem& item) {
        item.failAt("getTextForLanguage", returnedCode, keptCode);
    });
    add(captions, {{0, 1, {{"en", "a"}}}});
    EXPECT_CODE(captions, keptCode, captions.isValid(false));
}

TEST(ZelDataCaptionsIsValid, ChangesNothing)
{
    const std::vector<Caption> given = {{2000, 10, {{"en", "a"}}}, {0, 5000, {{"de", "b"}}}};
    const auto captions = captionsOf(given);
    EXPECT_CODE(*captions, ZelData_InvalidArgument, captions->isValid(false));
    EXPECT_EQ(given, itemsOf(*captions));
}

// Ordering

TEST(ZelDataCaptionsOrder, ChangesNothingButTheOrder)
{
    const auto captions = make(ZelDataUtilities::createCaptionData);
    add(*captions, {{5, 9, {{"en", "b"}}, 0x22}, {0, 9, {{"de", "a"}}}});
    EXPECT_CODE(*captions, ZelData_Ok, static_cast<ZelDataCaptions&>(*captions).orderCaptions());
    EXPECT_EQ((std::vector<Caption>{{0, 9, {{"de", "a"}}}, {5, 9, {{"en", "b"}}, 0x22}}),
              itemsOf(*captions));
    EXPECT_EQ((IDs{"en", "de"}), languagesOf(*captions));
}

// Repairing

TEST(ZelDataCaptionsMakeConsistent, FillsMissingTextsOfListedLanguagesOnly)
{
    const auto captions = captionsOf(
        {{0, 9, {{"en", "a"}}}, {0, 9, {{"fr", "b"}}}, {0, 9, {{"de", "c"}, {"en", ""}}}});
    EXPECT_EQ(ZelData_Ok, captions->removeLanguage("fr"));
    EXPECT_CODE(*captions, ZelData_Ok, captions->makeCaptionsConsistent());
    EXPECT_EQ((std::vector<Caption>{{0, 9, {{"de", ""}, {"en", "a"}}},
                                    {0, 9, {{"de", ""}, {"en", ""}, {"fr", "b"}}},
                                    {0, 9, {{"de", "c"}, {"en", ""}}}}),
              itemsOf(*captions));
    EXPECT_EQ((IDs{"en", "de"}), languagesOf(*captions));
}

TEST(ZelDataCaptionsMakeConsistent, LeavesOverlapsAlone)
{
    const auto captions = captionsOf({{0, 5000}, {2000, 1000}});
    EXPECT_CODE(*captions, ZelData_Ok, captions->makeCaptionsConsistent());
    EXPECT_EQ((std::vector<Caption>{{0, 5000}, {2000, 1000}}), itemsOf(*captions));
    EXPECT_CODE(*captions, ZelData_WarnTiming, captions->isValid(false));
}

TEST(ZelDataCaptionsMakeConsistent, ResetsAFrameRateOutOfRangeToTheDefault)
{
    Style expected;
    EXPECT_EQ(expected, repaired([](CaptionStyle& style) { style.frameRate.value = 0; }));
    EXPECT_EQ(expected, repaired([](CaptionStyle& style) { style.frameRate.value = 10001; }));
    expected.frameRate = 10000;
    EXPECT_EQ(expected, repaired([](CaptionStyle& style) { style.frameRate.value = 10000; }));
}

TEST(ZelDataCaptionsMakeConsistent, ResetsAnEmptyFontFamilyToTheDefault)
{
    EXPECT_EQ(Style(), repaired([](CaptionStyle& style) { style.fontFamily.clear(); }));
}

TEST(ZelDataCaptionsMakeConsistent, SetsAFontSizeOutOfRangeToTenNotToTheDefault)
{
    Style expected;
    expected.fontSize = 10;
    EXPECT_EQ(expected, repaired([](CaptionStyle& style) { style.fontSize = 0; }));
    EXPECT_EQ(expected, repaired([](CaptionStyle& style) { style.fontSize = 501; }));
}

TEST(ZelDataCaptionsMakeConsistent, SetsEachForegroundComponentOutOfRangeToOne)
{
    for (const float value : {-0.5F, 1.5F}) {
        Style expected;
        expected.foreground = {1.0F, 0.5F, 0.5F};
        EXPECT_EQ(expected, repaired([&](CaptionStyle& style) {
                      style.foreground = {value, 0.5F, 0.5F};
                  }));
        expected.foreground = {0.5F, 1.0F, 0.5F};
        EXPECT_EQ(expected, repaired([&](CaptionStyle& style) {
                      style.foreground = {0.5F, value, 0.5F};
                  }));
        expected.foreground = {0.5F, 0.5F, 1.0F};
        EXPECT_EQ(expected, repaired([&](CaptionStyle& style) {
                      style.foreground = {0.5F, 0.5F, value};
                  }));
    }
}

TEST(ZelDataCaptionsMakeConsistent, SetsBackgroundRedAndBlueOutOfRangeToZero)
{
    for (const float value : {-0.5F, 1.5F}) {
        Style expected;
        expected.background = {0.0F, 0.5F, 0.5F};
        EXPECT_EQ(expected, repaired([&](CaptionStyle& style) {
                      style.background = {value, 0.5F, 0.5F};
                  }));
        expected.background = {0.5F, 0.5F, 0.0F};
        EXPECT_EQ(expected, repaired([&](CaptionStyle& style) {
                      style.background = {0.5F, 0.5F, value};
                  }));
    }
}

TEST(ZelDataCaptionsMakeConsistent, ABackgroundGreenOutOfRangeStaysAndSetsTheRedToZero)
{
    for (const float value : {-0.5F, 1.5F}) {
        Style expected;
        expected.background = {0.0F, value, 0.5F};
        EXPECT_EQ(expected, repaired([&](CaptionStyle& style) {
                      style.background = {0.5F, value, 0.5F};
                  }));
    }
}

TEST(ZelDataCaptionsMakeConsistent, SetsAnOpacityOutOfRangeToZeroNotToTheDefault)
{
    Style expected;
    expected.opacity = 0.0F;
    for (const float value : {-0.5F, 1.5F})
        EXPECT_EQ(expected,
                  repaired([&](CaptionStyle& style) { style.backgroundOpacity = value; }));
}

TEST(ZelDataCaptionsMakeConsistent, LeavesANanAlone)
{
    const Style style = repaired([](CaptionStyle& spoiled) {
        spoiled.foreground = {nan, nan, nan};
        spoiled.background = {0.5F, nan, nan};
        spoiled.backgroundOpacity = nan;
    });
    for (const float component : style.foreground)
        EXPECT_TRUE(std::isnan(component));
    EXPECT_EQ(0.5F, style.background[0]);
    EXPECT_TRUE(std::isnan(style.background[1]));
    EXPECT_TRUE(std::isnan(style.background[2]));
    EXPECT_TRUE(std::isnan(style.opacity));
}

TEST(ZelDataCaptionsMakeConsistent, RepairsAllAtOnce)
{
    const Style style = repaired([](CaptionStyle& spoiled) {
        for (const Spoil& spoil : spoiledStyles)
            spoil(spoiled);
    });
    EXPECT_EQ((Style{1000, "Helvetica", 10, {1.0F, 1.0F, 1.0F}, {0.0F, -0.1F, 0.0F}, 0.0F}), style);
}

TEST(ZelDataCaptionsMakeConsistent, LeavesAStylingInRangeAlone)
{
    const Style given = {25, "X", 500, {0.1F, 0.2F, 0.3F}, {0.4F, 0.5F, 0.7F}, 1.0F};
    const auto captions = make(ZelDataUtilities::createCaptionData);
    dress(*captions, given);
    EXPECT_CODE(*captions, ZelData_Ok, captions->makeCaptionsConsistent());
    EXPECT_EQ(given, styleOf(*captions));
}

TEST(ZelDataCaptionsMakeConsistent, FillsTheMissingTextsOfItemsOfAnotherClass)
{
    FailingCaptions captions;
    add(captions, {{0, 1, {{"en", "e"}}}, {5, 1, {{"de", "d"}}}});
    EXPECT_CODE(captions, ZelData_Ok, captions.makeCaptionsConsistent());
    EXPECT_EQ((Texts{{"de", ""}, {"en", "e"}}), itemsOf(captions).at(0).texts);
    EXPECT_EQ((Texts{{"de", "d"}, {"en", ""}}), itemsOf(captions).at(1).texts);
}

TEST(ZelDataCaptionsMakeConsistent, ReturnsTheLastErrorOfAnItemThatCannotBeFilled)
{
    FailingCaptions captions;
    captions.prepareItems([](FailingCaptionItem& item) {
        item.failAt("setTextForLanguage", returnedCode, keptCode);
    });
    EXPECT_EQ(ZelData_Ok, captions.addLanguage("en"));
    add(captions, {{9, 1}, {0, 1}});
    EXPECT_CODE(captions, keptCode, captions.makeCaptionsConsistent());
    EXPECT_EQ(0, itemsOf(captions).at(0).start) << "the items are sorted before";
}

TEST(ZelDataCaptionsMakeConsistent, AForeignExceptionIsAnInternalError)
{
    FailingCaptions captions;
    captions.prepareItems([](FailingCaptionItem& item) {
        item.throwAt("getTextForLanguage", std::runtime_error("foreign"));
    });
    add(captions, {{0, 1, {{"en", "kept"}}}});
    EXPECT_CODE(captions, ZelData_InternalError, captions.makeCaptionsConsistent());
}

} // namespace
} // namespace ZelInterchangeData
