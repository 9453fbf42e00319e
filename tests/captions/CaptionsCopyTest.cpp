/// @file
/// Copying captions, and each way in which a step of it can fail.

#include "captions/Captions.h"
#include "support/fakes/FailingCaptions.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <new>
#include <stdexcept>

namespace ZelInterchangeData {
namespace {

using Calls = std::vector<std::string>;
using IDs = std::vector<std::string>;

constexpr auto returnedCode = static_cast<ZelDataResult_tags>(0x80000E11);
constexpr auto keptCode = static_cast<ZelDataResult_tags>(0x40000E22);

const Style sourceStyle = {25, "Courier", 40, {0.1F, 0.2F, 0.3F}, {0.4F, 0.5F, 0.7F}, 0.9F};
const Style targetStyle = {50, "Times", 60, {0.9F, 0.8F, 0.7F}, {0.3F, 0.2F, 0.1F}, 0.2F};
const std::vector<Caption> sourceItems = {
    {9, 1, {{"en", "a"}, {"fr", "b"}}}, {0, 2, {{"de", "c"}}, 0x22}, {5, 3, {{"en", "d"}}}};

/// Fills @p captions with the contents of a source: besides, "it", which no item has, is listed.
void fillSource(i_ZelDataCaptions& captions)
{
    EXPECT_EQ(ZelData_Ok, captions.addLanguage("it"));
    add(captions, sourceItems);
    dress(captions, sourceStyle);
}

void fillTarget(i_ZelDataCaptions& captions)
{
    add(captions, {{7, 7, {{"cs", "old"}}}});
    dress(captions, targetStyle);
}

/// The target's styling when only the first @p count values were copied.
Style mixedStyle(int count)
{
    Style style = targetStyle;
    if (count > 0) style.frameRate = sourceStyle.frameRate;
    if (count > 1) style.fontFamily = sourceStyle.fontFamily;
    if (count > 2) style.fontSize = sourceStyle.fontSize;
    if (count > 3) style.foreground = sourceStyle.foreground;
    if (count > 4) style.background = sourceStyle.background;
    if (count > 5) style.opacity = sourceStyle.opacity;
    return style;
}

/// A step that fails, and what the target holds then.
struct Step {
    const char* operation;
    int nth;
    int styleValues;
    IDs languages;
    std::size_t items;
};

void PrintTo(const Step& step, std::ostream* out)
{
    *out << step.operation << " #" << step.nth;
}

const IDs listed = {"it", "en", "fr", "de"};

const Step sourceSteps[] = {
    {"getOrderedLanguageIDs", 1, 0, {}, 0},    {"getFrameRate", 1, 0, listed, 0},
    {"getFontFamily", 1, 1, listed, 0},        {"getFontSize", 1, 2, listed, 0},
    {"getForegroundColor", 1, 3, listed, 0},   {"getBackgroundColor", 1, 4, listed, 0},
    {"getBackgroundOpacity", 1, 5, listed, 0}, {"getCaptionItems", 1, 6, listed, 0},
};

// clearLanguages is called twice: when the list is copied, and before it is rebuilt.
const Step targetSteps[] = {
    {"clearLanguages", 1, 0, {}, 0},           {"addLanguage", 1, 0, {}, 0},
    {"addLanguage", 3, 0, {"it", "en"}, 0},    {"setFrameRate", 1, 0, listed, 0},
    {"setFontFamily", 1, 1, listed, 0},        {"setFontSize", 1, 2, listed, 0},
    {"setForegroundColor", 1, 3, listed, 0},   {"setBackgroundColor", 1, 4, listed, 0},
    {"setBackgroundOpacity", 1, 5, listed, 0}, {"clearLanguages", 2, 6, listed, 0},
    {"addCaptionItem", 1, 6, {}, 0},           {"addCaptionItem", 3, 6, {"en", "fr", "de"}, 2},
};

/// Expects that @p captions hold what is left after the failure of @p step.
void expectLeft(const Step& step, const i_ZelDataCaptions& captions)
{
    EXPECT_EQ(mixedStyle(step.styleValues), styleOf(captions));
    EXPECT_EQ(step.languages, languagesOf(captions));
    const auto last = sourceItems.begin() + static_cast<std::ptrdiff_t>(step.items);
    EXPECT_EQ(std::vector<Caption>(sourceItems.begin(), last), itemsOf(captions));
}

class CaptionsCopy : public testing::Test {
protected:
    CaptionsCopy()
    {
        fillSource(*source_);
        fillTarget(*target_);
    }

    std::unique_ptr<i_ZelDataCaptions> source_ = make(ZelDataUtilities::createCaptionData);
    std::unique_ptr<i_ZelDataCaptions> target_ = make(ZelDataUtilities::createCaptionData);
};

TEST_F(CaptionsCopy, CopiesStylingAndItemsInStoredOrder)
{
    EXPECT_CODE(*target_, ZelData_Ok, target_->copyFrom(*source_));
    EXPECT_EQ(sourceStyle, styleOf(*target_));
    EXPECT_EQ(sourceItems, itemsOf(*target_));
}

TEST_F(CaptionsCopy, LeavesTheSourceAsItWas)
{
    EXPECT_CODE(*target_, ZelData_Ok, target_->copyFrom(*source_));
    EXPECT_EQ(sourceStyle, styleOf(*source_));
    EXPECT_EQ(sourceItems, itemsOf(*source_));
    EXPECT_EQ(listed, languagesOf(*source_));
}

TEST_F(CaptionsCopy, RebuildsTheLanguageListFromTheItems)
{
    EXPECT_CODE(*target_, ZelData_Ok, target_->copyFrom(*source_));
    EXPECT_EQ((IDs{"en", "fr", "de"}), languagesOf(*target_)) << "nobody has \"it\"";
}

TEST_F(CaptionsCopy, ListsNoLanguageThatOnlyARemovedItemHad)
{
    EXPECT_EQ(ZelData_Ok, source_->removeCaptionItemAt(0));
    EXPECT_EQ(listed, languagesOf(*source_)) << "the source goes on listing all";
    EXPECT_CODE(*target_, ZelData_Ok, target_->copyFrom(*source_));
    EXPECT_EQ((IDs{"de", "en"}), languagesOf(*target_));
}

TEST_F(CaptionsCopy, AnOrderThatWasSetDoesNotSurvive)
{
    EXPECT_EQ(ZelData_Ok, source_->setOrderedLanguageIDs({"de", "fr", "it", "en"}));
    EXPECT_CODE(*target_, ZelData_Ok, target_->copyFrom(*source_));
    EXPECT_EQ((IDs{"en", "fr", "de"}), languagesOf(*target_));
}

TEST_F(CaptionsCopy, ALanguageThatWasRemovedFromTheListComesBack)
{
    EXPECT_EQ(ZelData_Ok, source_->clearLanguages());
    EXPECT_CODE(*target_, ZelData_Ok, target_->copyFrom(*source_));
    EXPECT_EQ((IDs{"en", "fr", "de"}), languagesOf(*target_));
}

TEST_F(CaptionsCopy, StopsAtALanguageThatIsListedTwice)
{
    EXPECT_EQ(ZelData_Ok, source_->setOrderedLanguageIDs({"en", "de", "en", "fr"}));
    EXPECT_CODE(*target_, ZelData_WarnAlreadyExists, target_->copyFrom(*source_));
    EXPECT_EQ((IDs{"en", "de"}), languagesOf(*target_));
    EXPECT_TRUE(itemsOf(*target_).empty());
    EXPECT_EQ(targetStyle, styleOf(*target_));
}

TEST_F(CaptionsCopy, CopiesValuesThatAreNoNumbers)
{
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(ZelData_Ok, source_->setForegroundColor(nan, nan, nan));
    EXPECT_EQ(ZelData_Ok, source_->setBackgroundOpacity(nan));
    EXPECT_CODE(*target_, ZelData_Ok, target_->copyFrom(*source_));
    EXPECT_TRUE(std::isnan(styleOf(*target_).foreground[2]));
    EXPECT_TRUE(std::isnan(styleOf(*target_).opacity));
}

TEST_F(CaptionsCopy, OntoItselfIsRefusedAndChangesNothing)
{
    EXPECT_CODE(*source_, ZelData_InternalError, source_->copyFrom(*source_));
    EXPECT_EQ(sourceStyle, styleOf(*source_));
    EXPECT_EQ(sourceItems, itemsOf(*source_));
    EXPECT_EQ(listed, languagesOf(*source_));
}

TEST_F(CaptionsCopy, OntoItselfCallsNoOtherOperation)
{
    FailingCaptions captions;
    EXPECT_CODE(captions, ZelData_InternalError,
                captions.copyFrom(static_cast<const i_ZelDataCaptions&>(captions)));
    EXPECT_EQ(Calls{}, captions.calls());
}

TEST_F(CaptionsCopy, CopiesOnlyTheLanguagesFromAnotherKindOfSet)
{
    const auto toc = make(ZelDataUtilities::createTocData);
    EXPECT_EQ(ZelData_Ok, toc->addLanguage("fr"));
    EXPECT_CODE(*target_, ZelData_Ok, target_->copyFrom(*toc));
    EXPECT_EQ(IDs{"fr"}, languagesOf(*target_));
    EXPECT_EQ((std::vector<Caption>{{7, 7, {{"cs", "old"}}}}), itemsOf(*target_));
    EXPECT_EQ(targetStyle, styleOf(*target_));
}

TEST_F(CaptionsCopy, AsksAForeignSourceInOrder)
{
    FailingCaptions source;
    EXPECT_CODE(*target_, ZelData_Ok, target_->copyFrom(source));
    EXPECT_EQ((Calls{"getOrderedLanguageIDs", "getFrameRate", "getFontFamily", "getFontSize",
                     "getForegroundColor", "getBackgroundColor", "getBackgroundOpacity",
                     "getCaptionItems"}),
              source.calls());
}

TEST_F(CaptionsCopy, AColorThatASourceLeavesOpenIsBlack)
{
    FailingCaptions source;
    source.failAt("getForegroundColor", ZelData_Ok, ZelData_Ok);
    EXPECT_CODE(*target_, ZelData_Ok, target_->copyFrom(source));
    EXPECT_EQ((std::array<float, 3>{0.0F, 0.0F, 0.0F}), styleOf(*target_).foreground);
}

TEST_F(CaptionsCopy, SetsTheTargetInOrder)
{
    FailingCaptions target;
    EXPECT_CODE(target, ZelData_Ok,
                target.copyFrom(static_cast<const i_ZelDataCaptions&>(*captionsOf({{1, 2}}))));
    EXPECT_EQ(
        (Calls{"clearCaptionItems", "clearLanguages", "setFrameRate", "setFontFamily",
               "setFontSize", "setForegroundColor", "setBackgroundColor", "setBackgroundOpacity",
               "clearLanguages", "addCaptionItem", "createCaptionItem"}),
        target.calls());
}

TEST_F(CaptionsCopy, DestroysTheCopiesThatTheSourceHandedOut)
{
    {
        FailingCaptions source;
        add(source, sourceItems);
        EXPECT_CODE(*target_, ZelData_Ok, target_->copyFrom(source));
        EXPECT_EQ(3, FailingCaptionItem::alive());
    }
    EXPECT_EQ(0, FailingCaptionItem::alive());
}

TEST_F(CaptionsCopy, DestroysWhatAFailingSourceHandedOut)
{
    FailingCaptions source;
    add(source, sourceItems);
    source.handOutBeforeFailing();
    source.failAt("getCaptionItems", returnedCode, keptCode);
    EXPECT_CODE(*target_, keptCode, target_->copyFrom(source));
    EXPECT_EQ(3, FailingCaptionItem::alive());
    source.throwAt("getCaptionItems", std::runtime_error("foreign"));
    EXPECT_CODE(*target_, ZelData_InternalError, target_->copyFrom(source));
    EXPECT_EQ(3, FailingCaptionItem::alive());
    EXPECT_TRUE(itemsOf(*target_).empty());
}

TEST_F(CaptionsCopy, DestroysTheCopiesWhenAnItemCannotBeAdded)
{
    FailingCaptions source;
    add(source, sourceItems);
    FailingCaptions target;
    target.failAt("addCaptionItem", returnedCode, keptCode, 2);
    EXPECT_EQ(keptCode, target.copyFrom(static_cast<const i_ZelDataCaptions&>(source)));
    EXPECT_EQ(3 + 1, FailingCaptionItem::alive());
}

class CaptionsCopyFromFailing : public testing::TestWithParam<Step> {
protected:
    CaptionsCopyFromFailing()
    {
        fillSource(source_);
        fillTarget(*target_);
    }

    FailingCaptions source_;
    std::unique_ptr<i_ZelDataCaptions> target_ = make(ZelDataUtilities::createCaptionData);
};

TEST_P(CaptionsCopyFromFailing, TakesTheSourcesLastErrorAndKeepsWhatWasCopied)
{
    source_.failAt(GetParam().operation, returnedCode, keptCode, GetParam().nth);
    EXPECT_CODE(*target_, keptCode, target_->copyFrom(source_));
    expectLeft(GetParam(), *target_);
}

TEST_P(CaptionsCopyFromFailing, StopsAtAWarning)
{
    source_.failAt(GetParam().operation, ZelData_WarnTiming, keptCode, GetParam().nth);
    EXPECT_CODE(*target_, keptCode, target_->copyFrom(source_));
    expectLeft(GetParam(), *target_);
}

TEST_P(CaptionsCopyFromFailing, ExhaustedMemoryIsACode)
{
    source_.throwAt(GetParam().operation, std::bad_alloc(), GetParam().nth);
    EXPECT_CODE(*target_, ZelData_OutOfMemory, target_->copyFrom(source_));
    expectLeft(GetParam(), *target_);
}

TEST_P(CaptionsCopyFromFailing, AForeignExceptionIsAnInternalError)
{
    source_.throwAt(GetParam().operation, std::runtime_error("foreign"), GetParam().nth);
    EXPECT_CODE(*target_, ZelData_InternalError, target_->copyFrom(source_));
    expectLeft(GetParam(), *target_);
}

INSTANTIATE_TEST_SUITE_P(EachGetter, CaptionsCopyFromFailing, testing::ValuesIn(sourceSteps));

/// A last error of 0 ends the copy too; only the list's copy is a step of its own, which then
/// counts as done.
TEST_F(CaptionsCopy, TakesALastErrorThatIsZero)
{
    for (const Step& step : sourceSteps) {
        if (step.languages.empty()) continue;
        FailingCaptions source;
        fillSource(source);
        source.failAt(step.operation, returnedCode, ZelData_Ok);
        const auto target = make(ZelDataUtilities::createCaptionData);
        fillTarget(*target);
        EXPECT_CODE(*target, ZelData_Ok, target->copyFrom(source));
        expectLeft(step, *target);
    }
}

TEST_F(CaptionsCopy, ALanguageListThatFailedWithZeroCountsAsCopied)
{
    FailingCaptions source;
    fillSource(source);
    source.failAt("getOrderedLanguageIDs", returnedCode, ZelData_Ok);
    EXPECT_CODE(*target_, ZelData_Ok, target_->copyFrom(source));
    EXPECT_EQ(sourceStyle, styleOf(*target_));
    EXPECT_EQ(sourceItems, itemsOf(*target_));
}

class CaptionsCopyToFailing : public testing::TestWithParam<Step> {
protected:
    CaptionsCopyToFailing()
    {
        fillSource(*source_);
        fillTarget(target_);
    }
    ZelDataResult_tags copy()
    {
        return target_.copyFrom(static_cast<const i_ZelDataCaptions&>(*source_));
    }

    std::unique_ptr<i_ZelDataCaptions> source_ = make(ZelDataUtilities::createCaptionData);
    FailingCaptions target_;
};

TEST_P(CaptionsCopyToFailing, GivesTheTargetsOwnLastErrorAndKeepsWhatWasCopied)
{
    target_.failAt(GetParam().operation, returnedCode, keptCode, GetParam().nth);
    EXPECT_EQ(keptCode, copy());
    EXPECT_EQ(keptCode, target_.storedError());
    expectLeft(GetParam(), target_);
}

TEST_P(CaptionsCopyToFailing, StopsAtAWarning)
{
    target_.failAt(GetParam().operation, ZelData_WarnAlreadyExists, keptCode, GetParam().nth);
    EXPECT_EQ(keptCode, copy());
    expectLeft(GetParam(), target_);
}

INSTANTIATE_TEST_SUITE_P(EachStep, CaptionsCopyToFailing, testing::ValuesIn(targetSteps));

TEST_F(CaptionsCopy, AnItemListThatCannotBeClearedLeavesEverything)
{
    FailingCaptions target;
    fillTarget(target);
    target.failAt("clearCaptionItems", returnedCode, keptCode);
    EXPECT_EQ(keptCode,
              target.copyFrom(static_cast<const i_ZelDataCaptions&>(*captionsOf(sourceItems))));
    EXPECT_EQ(targetStyle, styleOf(target));
    EXPECT_EQ((std::vector<Caption>{{7, 7, {{"cs", "old"}}}}), itemsOf(target));
}

/// A foreign source with a font size that no setter takes.
class HugeFont : public ZelDataCaptions {
public:
    ZelDataResult_tags getFontSize(unsigned long& size) const override
    {
        size = 501;
        return store(ZelData_Ok);
    }
};

TEST_F(CaptionsCopy, RefusesAForeignValueThatIsOutOfRange)
{
    EXPECT_CODE(*target_, ZelData_InvalidArgument, target_->copyFrom(HugeFont()));
    EXPECT_EQ((Style{1000, "Helvetica", 60, {0.9F, 0.8F, 0.7F}, {0.3F, 0.2F, 0.1F}, 0.2F}),
              styleOf(*target_));
}

} // namespace
} // namespace ZelInterchangeData
