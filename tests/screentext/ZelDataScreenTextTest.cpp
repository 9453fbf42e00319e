/// @file
/// The screen text of a document: frame rate, checking, repairing and copying.

#include "screentext/Items.h"
#include "support/fakes/FailingScreenText.h"

#include <gtest/gtest.h>

#include <limits>
#include <new>
#include <stdexcept>

namespace ZelInterchangeData {
namespace {

class ScreenText : public testing::Test {
protected:
    std::unique_ptr<i_ZelDataScreenText> texts_ = make(ZelDataUtilities::createScreenTextData);
};

TEST_F(ScreenText, StartsEmptyAndValid)
{
    EXPECT_EQ(ZelData_Ok, texts_->getLastError());
    EXPECT_EQ(1000UL, frameRateOf(*texts_));
    EXPECT_TRUE(itemsOf(*texts_).empty());
    for (const bool deep : {false, true})
        EXPECT_CODE(*texts_, ZelData_Ok, texts_->isValid(deep));
}

TEST_F(ScreenText, AcceptsFrameRatesFrom1To10000)
{
    for (const unsigned long rate : {1UL, 25UL, 10000UL}) {
        EXPECT_CODE(*texts_, ZelData_Ok, texts_->setFrameRate(rate));
        unsigned long stored = 0;
        EXPECT_CODE(*texts_, ZelData_Ok, texts_->getFrameRate(stored));
        EXPECT_EQ(rate, stored);
        for (const bool deep : {false, true})
            EXPECT_CODE(*texts_, ZelData_Ok, texts_->isValid(deep));
    }
}

TEST_F(ScreenText, RefusesOtherFrameRatesAndKeepsTheEarlierOne)
{
    EXPECT_CODE(*texts_, ZelData_Ok, texts_->setFrameRate(25));
    for (const unsigned long rate : {0UL, 10001UL, 0x100000001UL})
        EXPECT_CODE(*texts_, ZelData_InvalidArgument, texts_->setFrameRate(rate));
    EXPECT_EQ(25UL, frameRateOf(*texts_));
}

TEST_F(ScreenText, ClearingTheItemsLeavesTheFrameRate)
{
    add(*texts_, {{1}, {2}});
    EXPECT_CODE(*texts_, ZelData_Ok, texts_->setFrameRate(25));
    EXPECT_CODE(*texts_, ZelData_Ok, texts_->clearScreenTextItems());
    EXPECT_TRUE(itemsOf(*texts_).empty());
    EXPECT_EQ(25UL, frameRateOf(*texts_));
}

TEST_F(ScreenText, AnItemWhoseEndWrapsCanBeAdded)
{
    const Shown wrapping{std::numeric_limits<long long>::max(), 1, "late"};
    add(*texts_, {wrapping});
    EXPECT_EQ(std::vector<Shown>{wrapping}, itemsOf(*texts_));
}

TEST_F(ScreenText, AddingChecksNoTimes)
{
    const std::vector<Shown> items{{300, 500}, {100, 500}, {100, 0}};
    add(*texts_, items);
    EXPECT_EQ(items, itemsOf(*texts_));
}

TEST_F(ScreenText, DisorderIsAWarningUntilTheItemsAreMadeConsistent)
{
    add(*texts_, {{300, 1, "c"}, {100, 2, "a"}, {200, 3, "b"}});
    for (const bool deep : {false, true})
        EXPECT_CODE(*texts_, ZelData_WarnTiming, texts_->isValid(deep));
    EXPECT_CODE(*texts_, ZelData_Ok, texts_->makeScreenTextConsistent());
    EXPECT_EQ((std::vector<Shown>{{100, 2, "a"}, {200, 3, "b"}, {300, 1, "c"}}), itemsOf(*texts_));
    EXPECT_CODE(*texts_, ZelData_Ok, texts_->isValid(false));
}

TEST_F(ScreenText, EqualStartsAndOverlapsPass)
{
    const std::vector<Shown> items{{100, 5000}, {100, 5000}, {200, 5000}};
    add(*texts_, items);
    EXPECT_CODE(*texts_, ZelData_Ok, texts_->isValid(true));
    EXPECT_CODE(*texts_, ZelData_Ok, texts_->makeScreenTextConsistent());
    EXPECT_EQ(items, itemsOf(*texts_));
}

TEST(ScreenTextOrder, ComparesStartsAlone)
{
    ZelDataScreenText texts;
    add(texts, {{5, 9, "z", "", 0, 0, 9}, {5, 1, "a", "", 0, 0, 1}, {3}});
    EXPECT_CODE(texts, ZelData_Ok, texts.orderScreenTextItems());
    EXPECT_EQ((std::vector<Shown>{{3}, {5, 1, "a", "", 0, 0, 1}, {5, 9, "z", "", 0, 0, 9}}),
              itemsOf(texts));
}

/// A collection whose rate is out of range, as no setter would leave it.
class ScreenTextWithRate : public ZelDataScreenText {
public:
    explicit ScreenTextWithRate(unsigned long rate) { frameRate_.value = rate; }
};

TEST(ScreenTextWithABadRate, IsInvalidWithAndWithoutItems)
{
    for (const unsigned long rate : {0UL, 10001UL}) {
        ScreenTextWithRate texts(rate);
        EXPECT_CODE(texts, ZelData_InvalidArgument, texts.isValid(true));
        add(texts, {{500}, {100}});
        EXPECT_CODE(texts, ZelData_InvalidArgument, texts.isValid(false));
    }
}

TEST(ScreenTextWithABadRate, IsRepairedToTheStandardRate)
{
    for (const unsigned long rate : {0UL, 10001UL}) {
        ScreenTextWithRate texts(rate);
        EXPECT_CODE(texts, ZelData_Ok, texts.makeScreenTextConsistent());
        EXPECT_EQ(1000UL, frameRateOf(texts));
    }
}

TEST(ScreenTextWithABadRate, CannotBeCopied)
{
    ScreenTextWithRate source(0);
    add(source, {{1}});
    ZelDataScreenText target;
    EXPECT_CODE(target, ZelData_InvalidArgument, target.copyFrom(source));
    EXPECT_EQ(1000UL, frameRateOf(target));
    EXPECT_TRUE(itemsOf(target).empty());
}

TEST(ScreenTextWithAGoodRate, KeepsItWhenMadeConsistent)
{
    for (const unsigned long rate : {1UL, 10000UL}) {
        ScreenTextWithRate texts(rate);
        EXPECT_CODE(texts, ZelData_Ok, texts.makeScreenTextConsistent());
        EXPECT_EQ(rate, frameRateOf(texts));
    }
}

// Stored items that fail

/// A collection whose items are those of the tests, so that stored ones can fail.
class ScreenTextOfFailing : public ZelDataScreenText {
public:
    ZelDataResult_tags createScreenTextItem(i_ZelDataScreenTextItem** out) const override
    {
        auto item = std::make_unique<FailingScreenTextItem>();
        last_ = item.get();
        *out = item.release();
        return ZelData_Ok;
    }
    /// Adds @p shown and gives the stored item.
    FailingScreenTextItem& added(const Shown& shown)
    {
        EXPECT_EQ(ZelData_Ok, addScreenTextItem(*itemOf(shown)));
        return *last_;
    }

private:
    mutable FailingScreenTextItem* last_ = nullptr;
};

TEST(StoredScreenText, IsAskedForItsValidityOnlyByADeepCheck)
{
    ScreenTextOfFailing texts;
    texts.added({1}).failAt("isValid", ZelData_InvalidItem, ZelData_NotFound);
    EXPECT_CODE(texts, ZelData_Ok, texts.isValid(false));
    EXPECT_CODE(texts, ZelData_NotFound, texts.isValid(true));
}

TEST(StoredScreenText, ItsValidityIsFoundBeforeItsDisorderButNotBeforeAnEarlierOne)
{
    ScreenTextOfFailing first;
    first.added({500}).failAt("isValid", ZelData_WarnNoChange, ZelData_WarnNoChange);
    first.added({100});
    EXPECT_CODE(first, ZelData_WarnNoChange, first.isValid(true));

    ScreenTextOfFailing second;
    second.added({500});
    second.added({100}).failAt("isValid", ZelData_InvalidItem, ZelData_InvalidItem);
    EXPECT_CODE(second, ZelData_WarnTiming, second.isValid(true));
}

// The order is looked at first, so an item is asked for its start a second time.

TEST(StoredScreenText, TheLastErrorOfOneThatDoesNotTellItsStartIsTakenOver)
{
    ScreenTextOfFailing texts;
    texts.added({0}).failAt("getStart", ZelData_NotFound, ZelData_NoData, 2);
    EXPECT_CODE(texts, ZelData_NoData, texts.isValid(false));
}

TEST(StoredScreenText, AStartThatItLeavesOpenCountsAsZero)
{
    ScreenTextOfFailing texts;
    texts.added({5}).failAt("getStart", ZelData_Ok, ZelData_Ok, 2);
    texts.added({0});
    EXPECT_CODE(texts, ZelData_Ok, texts.isValid(false));
}

TEST(StoredScreenText, EachIsComparedWithAllLaterOnesBeforeTheNextIsLookedAt)
{
    ScreenTextOfFailing texts;
    texts.added({100});
    texts.added({100}).failAt("isValid", ZelData_InvalidItem, ZelData_InvalidItem);
    texts.added({50});
    EXPECT_CODE(texts, ZelData_WarnTiming, texts.isValid(true));
}

// Copying

const std::vector<Shown> sourceItems{{500, 1, "b", "s.png", 3, 4, 5}, {100, 2, "a"}};

class ScreenTextCopy : public testing::Test {
protected:
    ScreenTextCopy()
    {
        add(source_, sourceItems);
        EXPECT_EQ(ZelData_Ok, source_.setFrameRate(25));
        add(target_, {{7, 7, "old"}});
        EXPECT_EQ(ZelData_Ok, target_.setFrameRate(30));
    }

    FailingScreenText source_;
    ZelDataScreenText target_;
};

TEST_F(ScreenTextCopy, ReplacesFrameRateAndItems)
{
    EXPECT_CODE(target_, ZelData_Ok, target_.copyFrom(source_));
    EXPECT_EQ(25UL, frameRateOf(target_));
    EXPECT_EQ(sourceItems, itemsOf(target_));
    EXPECT_EQ(sourceItems, itemsOf(source_));
}

TEST_F(ScreenTextCopy, OntoItselfIsAnErrorThatChangesNothing)
{
    EXPECT_CODE(target_, ZelData_InternalError, target_.copyFrom(target_));
    EXPECT_EQ(30UL, frameRateOf(target_));
    EXPECT_EQ((std::vector<Shown>{{7, 7, "old"}}), itemsOf(target_));
}

TEST_F(ScreenTextCopy, OfAnEmptyCollectionEmptiesTheTarget)
{
    EXPECT_CODE(target_, ZelData_Ok, target_.copyFrom(ZelDataScreenText()));
    EXPECT_EQ(1000UL, frameRateOf(target_));
    EXPECT_TRUE(itemsOf(target_).empty());
}

/// What stopped a copy, and what the target then holds.
struct Stop {
    const char* operation;
    int nth;
    unsigned long rate;
    std::vector<Shown> items;
};

void PrintTo(const Stop& stop, std::ostream* out)
{
    *out << stop.operation << ' ' << stop.nth;
}

class SourceTextsStop : public ScreenTextCopy, public testing::WithParamInterface<Stop> {
protected:
    ~SourceTextsStop() override
    {
        EXPECT_EQ(GetParam().rate, frameRateOf(target_));
        EXPECT_EQ(GetParam().items, itemsOf(target_));
    }
};

TEST_P(SourceTextsStop, TheSourcesLastErrorIsTakenOver)
{
    source_.failAt(GetParam().operation, ZelData_InvalidItem, ZelData_NotFound);
    EXPECT_CODE(target_, ZelData_NotFound, target_.copyFrom(source_));
}

TEST_P(SourceTextsStop, AWarningStopsAsWell)
{
    source_.failAt(GetParam().operation, ZelData_WarnTiming, ZelData_WarnNoChange);
    EXPECT_CODE(target_, ZelData_WarnNoChange, target_.copyFrom(source_));
}

TEST_P(SourceTextsStop, ALastErrorOfZeroIsTakenOverToo)
{
    source_.failAt(GetParam().operation, ZelData_InvalidItem, ZelData_Ok);
    EXPECT_CODE(target_, ZelData_Ok, target_.copyFrom(source_));
}

TEST_P(SourceTextsStop, ExhaustedMemoryBecomesACode)
{
    source_.throwAt(GetParam().operation, std::bad_alloc());
    EXPECT_CODE(target_, ZelData_OutOfMemory, target_.copyFrom(source_));
}

TEST_P(SourceTextsStop, AnyOtherExceptionBecomesAnInternalError)
{
    source_.throwAt(GetParam().operation, std::runtime_error("foreign"));
    EXPECT_CODE(target_, ZelData_InternalError, target_.copyFrom(source_));
}

INSTANTIATE_TEST_SUITE_P(ScreenTextCopy, SourceTextsStop,
                         testing::Values(Stop{"getFrameRate", 1, 30, {}},
                                         Stop{"getScreenTextItems", 1, 25, {}}));

class TargetTextsStop : public testing::TestWithParam<Stop> {
protected:
    TargetTextsStop()
    {
        add(source_, sourceItems);
        EXPECT_EQ(ZelData_Ok, source_.setFrameRate(25));
    }
    ~TargetTextsStop() override
    {
        EXPECT_EQ(GetParam().rate, frameRateOf(target_));
        EXPECT_EQ(GetParam().items, itemsOf(target_));
    }

    ZelDataScreenText source_;
    FailingScreenText target_;
};

TEST_P(TargetTextsStop, TheTargetsOwnLastErrorIsReturnedAndStored)
{
    target_.failAt(GetParam().operation, ZelData_InvalidItem, ZelData_NotFound, GetParam().nth);
    EXPECT_CODE(target_, ZelData_NotFound, target_.copyFrom(source_));
    EXPECT_EQ(ZelData_NotFound, target_.storedError());
}

TEST_P(TargetTextsStop, AnExceptionBecomesACode)
{
    target_.throwAt(GetParam().operation, std::bad_alloc(), GetParam().nth);
    EXPECT_CODE(target_, ZelData_OutOfMemory, target_.copyFrom(source_));
}

INSTANTIATE_TEST_SUITE_P(ScreenTextCopy, TargetTextsStop,
                         testing::Values(Stop{"clearScreenTextItems", 1, 1000, {}},
                                         Stop{"setFrameRate", 1, 1000, {}},
                                         Stop{"addScreenTextItem", 1, 25, {}},
                                         Stop{"addScreenTextItem", 2, 25, {sourceItems.front()}}));

/// A foreign collection that hands out some items and then fails.
class HalfwayScreenText : public ZelDataScreenText {
public:
    ZelDataResult_tags
    getScreenTextItems(std::vector<i_ZelDataScreenTextItem*>& items) const override
    {
        items.push_back(new FailingScreenTextItem);
        items.push_back(new FailingScreenTextItem);
        setLastError(ZelData_NoData);
        return ZelData_InvalidItem;
    }
};

TEST(ScreenTextCopyOfForeign, ItemsHandedOutBeforeAFailureAreDestroyed)
{
    const long before = FailingScreenTextItem::alive();
    ZelDataScreenText target;
    EXPECT_CODE(target, ZelData_NoData, target.copyFrom(HalfwayScreenText()));
    EXPECT_EQ(before, FailingScreenTextItem::alive());
    EXPECT_TRUE(itemsOf(target).empty());
}

} // namespace
} // namespace ZelInterchangeData
