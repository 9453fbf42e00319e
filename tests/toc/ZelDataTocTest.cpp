/// @file
/// The table of contents: properties, languages, entries, checking and repairing.

#include "support/fakes/FailingToc.h"
#include "toc/Entries.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

namespace ZelInterchangeData {
namespace {

using Ids = std::vector<std::string>;

class Toc : public testing::Test {
protected:
    std::unique_ptr<i_ZelDataToc> toc_ = make(ZelDataUtilities::createTocData);
};

TEST_F(Toc, StartsEmpty)
{
    EXPECT_EQ(ZelData_Ok, toc_->getLastError());
    EXPECT_EQ(1000UL, frameRateOf(*toc_));
    EXPECT_EQ("", imageOf(*toc_));
    EXPECT_TRUE(entriesOf(*toc_).empty());
    EXPECT_TRUE(languagesOf(*toc_).empty());
}

TEST_F(Toc, TheImageFileIsStoredUnchecked)
{
    const std::string anyBytes("\xFF\0<&>", 5);
    EXPECT_CODE(*toc_, ZelData_Ok, toc_->setImageFile(anyBytes));
    std::string name;
    EXPECT_CODE(*toc_, ZelData_Ok, toc_->getImageFile(name));
    EXPECT_EQ(anyBytes, name);
}

// Checking

TEST_F(Toc, ANewTableIsValidEvenWithLanguages)
{
    EXPECT_CODE(*toc_, ZelData_Ok, toc_->addLanguage("de"));
    for (const bool deep : {false, true})
        EXPECT_CODE(*toc_, ZelData_Ok, toc_->isValid(deep));
}

TEST_F(Toc, DisorderIsAWarningUntilTheTableIsMadeConsistent)
{
    add(*toc_, {{500, {{"en", "b"}}}, {100, {{"en", "a"}}}});
    for (const bool deep : {false, true})
        EXPECT_CODE(*toc_, ZelData_WarnTiming, toc_->isValid(deep));
    EXPECT_CODE(*toc_, ZelData_Ok, toc_->makeTocConsistent());
    EXPECT_EQ((std::vector<Entry>{{100, {{"en", "a"}}}, {500, {{"en", "b"}}}}), entriesOf(*toc_));
    EXPECT_CODE(*toc_, ZelData_Ok, toc_->isValid(false));
}

TEST_F(Toc, EqualStartsAreInOrder)
{
    add(*toc_, {{100}, {100}, {200}, {200}});
    EXPECT_CODE(*toc_, ZelData_Ok, toc_->isValid(true));
}

TEST_F(Toc, AMissingTextIsAnErrorUntilTheTableIsMadeConsistent)
{
    add(*toc_, {{0, {{"de", "Eins"}, {"en", "One"}}}, {1, {{"en", "Two"}}}});
    for (const bool deep : {false, true})
        EXPECT_CODE(*toc_, ZelData_InvalidArgument, toc_->isValid(deep));
    EXPECT_CODE(*toc_, ZelData_Ok, toc_->makeTocConsistent());
    EXPECT_EQ((std::vector<Entry>{{0, {{"de", "Eins"}, {"en", "One"}}},
                                  {1, {{"de", ""}, {"en", "Two"}}}}),
              entriesOf(*toc_));
    EXPECT_CODE(*toc_, ZelData_Ok, toc_->isValid(false));
}

TEST_F(Toc, EachEntryIsComparedWithAllLaterOnesBeforeTheNextIsChecked)
{
    add(*toc_, {{100, {{"en", "a"}}}, {100}, {50, {{"en", "c"}}}});
    EXPECT_CODE(*toc_, ZelData_WarnTiming, toc_->isValid(false));
}

TEST_F(Toc, AMissingTextIsFoundBeforeTheSameEntrysDisorder)
{
    add(*toc_, {{100}, {50, {{"en", "b"}}}});
    EXPECT_CODE(*toc_, ZelData_InvalidArgument, toc_->isValid(false));
}

TEST(TocOrder, OrderingEndsWithSuccessAndFillsNothing)
{
    ZelDataToc toc;
    add(toc, {{5, {{"en", "b"}}}, {3}});
    EXPECT_CODE(toc, ZelData_Ok, toc.orderTocItems());
    EXPECT_EQ((std::vector<Entry>{{3}, {5, {{"en", "b"}}}}), entriesOf(toc));
}

// Stored entries that fail

using TocOfFailing = CollectionOfFailing<TocKind, FailingTocItem>;

TEST(StoredEntry, IsValidatedOnlyByADeepCheck)
{
    TocOfFailing toc;
    toc.added({0, {{"en", "a"}}}).failAt("isValid", ZelData_InvalidItem, ZelData_NotFound);
    EXPECT_CODE(toc, ZelData_Ok, toc.isValid(false));
    EXPECT_CODE(toc, ZelData_NotFound, toc.isValid(true));
}

TEST(StoredEntry, IsValidatedStrictly)
{
    CollectionOfFailing<TocKind, StrictlyChecked<ZelDataTocItem>> toc;
    toc.added({});
    EXPECT_CODE(toc, ZelData_WarnItemGuidelines, toc.isValid(true));
}

TEST(StoredEntry, AWarningWhenItIsValidatedFailsTheCheck)
{
    TocOfFailing toc;
    toc.added({}).failAt("isValid", ZelData_WarnItemGuidelines, ZelData_WarnItemGuidelines);
    EXPECT_CODE(toc, ZelData_WarnItemGuidelines, toc.isValid(true));
}

TEST(StoredEntry, ItsValidityIsFoundBeforeItsMissingTextAndItsDisorder)
{
    TocOfFailing toc;
    toc.added({500}).failAt("isValid", ZelData_InvalidItem, ZelData_InvalidItem);
    toc.added({100, {{"en", "b"}}});
    EXPECT_CODE(toc, ZelData_InvalidArgument, toc.isValid(false));
    EXPECT_CODE(toc, ZelData_InvalidItem, toc.isValid(true));
}

TEST(StoredEntry, TheLastErrorOfAFailingTextIsTakenOver)
{
    TocOfFailing toc;
    toc.added({0, {{"en", "a"}}}).failAt("getTextForLanguage", ZelData_NotFound, ZelData_NoData);
    EXPECT_CODE(toc, ZelData_NoData, toc.isValid(false));
}

// The check of the order asks for each start before, so these fail at the second call.

TEST(StoredEntry, TheLastErrorOfOneWhoseStartCannotBeReadIsTakenOver)
{
    TocOfFailing toc;
    toc.added({0}).failAt("getStart", ZelData_NotFound, ZelData_NoData, 2);
    EXPECT_CODE(toc, ZelData_NoData, toc.isValid(false));
}

TEST(StoredEntry, AStartThatItDoesNotSetCountsAsZero)
{
    TocOfFailing toc;
    toc.added({5}).failAt("getStart", ZelData_Ok, ZelData_Ok, 2);
    toc.added({0});
    EXPECT_CODE(toc, ZelData_Ok, toc.isValid(false));
}

TEST(StoredEntry, WhoseStartCannotBeReadAtFirstCountsAsOneThatStartsAtZero)
{
    for (const long long start : {0, 1}) {
        TocOfFailing toc;
        toc.added({start});
        toc.added({5}).failAt("getStart", ZelData_NotFound, ZelData_NoData, 1);
        EXPECT_CODE(toc, start == 0 ? ZelData_Ok : ZelData_WarnTiming, toc.isValid(false));
    }
}

TEST(StoredEntry, OfAnotherClassLosesItsText)
{
    TocOfFailing toc;
    toc.added({0, {{"en", "a"}}});
    EXPECT_CODE(toc, ZelData_Ok, toc.removeTocItemsForLanguage("en"));
    EXPECT_EQ((std::vector<Entry>{{0}}), entriesOf(toc));
}

TEST(StoredEntry, ThatCannotLoseItsTextEndsTheRemoval)
{
    TocOfFailing toc;
    toc.added({0, {{"en", "a"}}})
        .failAt("removeTextForLanguage", ZelData_NotImplemented, ZelData_NoData);
    EXPECT_CODE(toc, ZelData_NoData, toc.removeTocItemsForLanguage("en"));
}

TEST(StoredEntry, OfAnotherClassGetsTheTextsThatItLacks)
{
    TocOfFailing toc;
    toc.added({0, {{"en", "a"}}});
    toc.added({5, {{"de", "b"}}});
    EXPECT_CODE(toc, ZelData_Ok, toc.makeTocConsistent());
    EXPECT_EQ((std::vector<Entry>{{0, {{"de", ""}, {"en", "a"}}}, {5, {{"de", "b"}, {"en", ""}}}}),
              entriesOf(toc));
}

TEST(StoredEntry, ThatCannotTakeAnEmptyTextEndsTheRepair)
{
    TocOfFailing toc;
    auto& item = toc.added({0});
    EXPECT_EQ(ZelData_Ok, toc.addLanguage("en"));
    item.failAt("setTextForLanguage", ZelData_InvalidItem, ZelData_NoData);
    EXPECT_CODE(toc, ZelData_NoData, toc.makeTocConsistent());
}

// Languages of an added entry

TEST(AddedEntry, WhoseLanguagesCannotBeReadIsNotAdded)
{
    class Unreadable : public ZelDataToc {
    public:
        ZelDataResult_tags createTocItem(i_ZelDataTocItem** out) const override
        {
            auto item = std::make_unique<FailingTocItem>();
            item->failAt("getLanguageIDs", ZelData_InvalidItem, ZelData_NotFound);
            *out = item.release();
            return ZelData_Ok;
        }
    };
    Unreadable toc;
    const long before = FailingTocItem::alive();
    EXPECT_CODE(toc, ZelData_NotFound, toc.addTocItem(*itemOf({0, {{"en", "a"}}})));
    EXPECT_EQ(before, FailingTocItem::alive());
    unsigned long count = 1;
    EXPECT_CODE(toc, ZelData_Ok, toc.getTocItemCount(count));
    EXPECT_EQ(0UL, count);
}

} // namespace
} // namespace ZelInterchangeData
