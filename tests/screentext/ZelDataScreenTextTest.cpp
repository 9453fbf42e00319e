/// @file
/// The screen text of a document: frame rate, checking and repairing.

#include "screentext/Items.h"
#include "support/fakes/FailingScreenText.h"

#include <gtest/gtest.h>

#include <limits>

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

TEST(ScreenTextOrder, ComparesOnlyStarts)
{
    ZelDataScreenText texts;
    add(texts, {{5, 9, "z", "", 0, 0, 9}, {5, 1, "a", "", 0, 0, 1}, {3}});
    EXPECT_CODE(texts, ZelData_Ok, texts.orderScreenTextItems());
    EXPECT_EQ((std::vector<Shown>{{3}, {5, 1, "a", "", 0, 0, 1}, {5, 9, "z", "", 0, 0, 9}}),
              itemsOf(texts));
}

// Stored items that fail

using ScreenTextOfFailing = CollectionOfFailing<ScreenTextKind, FailingScreenTextItem>;

TEST(StoredScreenText, IsValidatedOnlyByADeepCheck)
{
    ScreenTextOfFailing texts;
    texts.added({1}).failAt("isValid", ZelData_InvalidItem, ZelData_NotFound);
    EXPECT_CODE(texts, ZelData_Ok, texts.isValid(false));
    EXPECT_CODE(texts, ZelData_NotFound, texts.isValid(true));
}

TEST(StoredScreenText, IsValidatedStrictly)
{
    CollectionOfFailing<ScreenTextKind, StrictlyChecked<ZelDataScreenTextItem>> texts;
    texts.added({1});
    EXPECT_CODE(texts, ZelData_WarnItemGuidelines, texts.isValid(true));
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

// The check of the order asks for each start before, so these fail at the second call.

TEST(StoredScreenText, TheLastErrorOfOneWhoseStartCannotBeReadIsTakenOver)
{
    ScreenTextOfFailing texts;
    texts.added({0}).failAt("getStart", ZelData_NotFound, ZelData_NoData, 2);
    EXPECT_CODE(texts, ZelData_NoData, texts.isValid(false));
}

TEST(StoredScreenText, AStartThatItDoesNotSetCountsAsZero)
{
    ScreenTextOfFailing texts;
    texts.added({5}).failAt("getStart", ZelData_Ok, ZelData_Ok, 2);
    texts.added({0});
    EXPECT_CODE(texts, ZelData_Ok, texts.isValid(false));
}

TEST(StoredScreenText, EachIsComparedWithAllLaterOnesBeforeTheNextIsChecked)
{
    ScreenTextOfFailing texts;
    texts.added({100});
    texts.added({100}).failAt("isValid", ZelData_InvalidItem, ZelData_InvalidItem);
    texts.added({50});
    EXPECT_CODE(texts, ZelData_WarnTiming, texts.isValid(true));
}

} // namespace
} // namespace ZelInterchangeData
