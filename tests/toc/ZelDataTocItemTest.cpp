/// @file
/// One entry of the table of contents.

#include "toc/ZelDataTocItem.h"

#include "toc/Entries.h"

#include <gtest/gtest.h>

#include <limits>

namespace ZelInterchangeData {
namespace {

constexpr const char* malformed = "a\xC3";

class TocItem : public testing::Test {
protected:
    std::unique_ptr<i_ZelDataTocItem> item_ = make(ZelDataUtilities::createTocItemData);
};

TEST_F(TocItem, StartsEmpty)
{
    EXPECT_EQ(ZelData_Ok, item_->getLastError());
    EXPECT_EQ(Entry(), contentsOf(*item_));
}

TEST_F(TocItem, KeepsWhatIsSetAndStoresSuccess)
{
    EXPECT_CODE(*item_, ZelData_Ok, item_->setTextForLanguage("Intro", "en"));
    EXPECT_CODE(*item_, ZelData_Ok, item_->setStart(7));
    EXPECT_CODE(*item_, ZelData_Ok, item_->setImageFile("i.png"));
    EXPECT_CODE(*item_, ZelData_Ok, item_->setImageIndex(3));
    EXPECT_CODE(*item_, ZelData_Ok, item_->setImageOffset(4));
    EXPECT_EQ((Entry{7, {{"en", "Intro"}}, "i.png", 3, 4}), contentsOf(*item_));
}

TEST_F(TocItem, EveryGetterStoresSuccess)
{
    fill(*item_, {7, {{"en", "Intro"}}, "i.png", 3, 4});
    long long start = 0;
    std::string text;
    unsigned long index = 0;
    unsigned long long offset = 0;
    std::vector<std::string> ids;
    EXPECT_CODE(*item_, ZelData_Ok, item_->getStart(start));
    EXPECT_CODE(*item_, ZelData_Ok, item_->getImageFile(text));
    EXPECT_CODE(*item_, ZelData_Ok, item_->getImageIndex(index));
    EXPECT_CODE(*item_, ZelData_Ok, item_->getImageOffset(offset));
    EXPECT_CODE(*item_, ZelData_Ok, item_->getLanguageIDs(ids));
    EXPECT_CODE(*item_, ZelData_Ok, item_->getTextForLanguage(text, "en"));
}

TEST_F(TocItem, ANegativeStartIsRefusedAndTheEarlierOneKept)
{
    fill(*item_, {500});
    EXPECT_CODE(*item_, ZelData_InvalidArgument, item_->setStart(-1));
    EXPECT_CODE(*item_, ZelData_InvalidArgument,
                item_->setStart(std::numeric_limits<long long>::min()));
    EXPECT_EQ(Entry{500}, contentsOf(*item_));
}

TEST_F(TocItem, AStartOfZeroIsAccepted)
{
    fill(*item_, {500});
    EXPECT_CODE(*item_, ZelData_Ok, item_->setStart(0));
    EXPECT_EQ(Entry{0}, contentsOf(*item_));
}

TEST_F(TocItem, TheLargestNumbersAreKeptWhole)
{
    const Entry largest{std::numeric_limits<long long>::max(),
                        {},
                        "",
                        std::numeric_limits<unsigned long>::max(),
                        std::numeric_limits<unsigned long long>::max()};
    fill(*item_, largest);
    EXPECT_EQ(largest, contentsOf(*item_));
}

TEST_F(TocItem, TheImageFileIsStoredUnchecked)
{
    const std::string anyBytes("\xFF\0<&>", 5);
    EXPECT_CODE(*item_, ZelData_Ok, item_->setImageFile(anyBytes));
    EXPECT_EQ((Entry{0, {}, anyBytes}), contentsOf(*item_));
    EXPECT_CODE(*item_, ZelData_Ok, item_->setImageFile(""));
    EXPECT_EQ(Entry(), contentsOf(*item_));
}

TEST_F(TocItem, ReplacingATextIsAWarningAndTheSecondTextWins)
{
    EXPECT_CODE(*item_, ZelData_Ok, item_->setTextForLanguage("one", "en"));
    EXPECT_CODE(*item_, ZelData_WarnAlreadyExists, item_->setTextForLanguage("two", "en"));
    EXPECT_EQ((Entry{0, {{"en", "two"}}}), contentsOf(*item_));
}

TEST_F(TocItem, ReplacingATextByAnEqualOneIsTheSameWarning)
{
    EXPECT_CODE(*item_, ZelData_Ok, item_->setTextForLanguage("one", "en"));
    EXPECT_CODE(*item_, ZelData_WarnAlreadyExists, item_->setTextForLanguage("one", "en"));
}

TEST_F(TocItem, AnInvalidLanguageOrTextAddsNothing)
{
    for (const char* id : {"xx", "e", "", "eng", malformed, "en-\xFF"}) {
        SCOPED_TRACE(id);
        EXPECT_CODE(*item_, ZelData_InvalidItem, item_->setTextForLanguage("text", id));
    }
    EXPECT_CODE(*item_, ZelData_InvalidItem, item_->setTextForLanguage(malformed, "en"));
    EXPECT_CODE(*item_, ZelData_InvalidItem, item_->setTextForLanguage(malformed, malformed));
    EXPECT_EQ(Entry(), contentsOf(*item_));
}

TEST_F(TocItem, AnInvalidTextKeepsTheEarlierOne)
{
    fill(*item_, {0, {{"en", "one"}}});
    EXPECT_CODE(*item_, ZelData_InvalidItem, item_->setTextForLanguage(malformed, "en"));
    EXPECT_EQ((Entry{0, {{"en", "one"}}}), contentsOf(*item_));
}

TEST_F(TocItem, AnEmptyTextIsAText)
{
    EXPECT_CODE(*item_, ZelData_Ok, item_->setTextForLanguage("", "en"));
    EXPECT_CODE(*item_, ZelData_WarnAlreadyExists, item_->setTextForLanguage("", "en"));
    EXPECT_EQ((Entry{0, {{"en", ""}}}), contentsOf(*item_));
}

TEST_F(TocItem, TextsOfAnyByteLengthPerCharacterAreAccepted)
{
    EXPECT_CODE(*item_, ZelData_Ok, item_->setTextForLanguage("\xF0\x9F\x98\x80", "en"));
    EXPECT_CODE(*item_, ZelData_Ok, item_->setTextForLanguage("\xFC\x84\x80\x80\x80\x80", "de"));
}

TEST_F(TocItem, LanguagesAreTheSameOnlyByteForByte)
{
    const Entry three{0, {{"EN", "1"}, {"en", "2"}, {"en-US", "3"}}};
    fill(*item_, three);
    EXPECT_EQ(three, contentsOf(*item_));
    std::string text = "kept";
    EXPECT_CODE(*item_, ZelData_InvalidArgument, item_->getTextForLanguage(text, "En"));
    EXPECT_CODE(*item_, ZelData_NotFound, item_->removeTextForLanguage("en-us"));
}

TEST_F(TocItem, AnAbsentTextIsNotHandedOut)
{
    fill(*item_, {0, {{"en", "Intro"}}});
    std::string text = "kept";
    EXPECT_CODE(*item_, ZelData_InvalidArgument, item_->getTextForLanguage(text, "de"));
    EXPECT_EQ("kept", text);
}

TEST_F(TocItem, RemovingATextLeavesTheOthers)
{
    fill(*item_, {0, {{"de", "Anfang"}, {"en", "Intro"}}});
    EXPECT_CODE(*item_, ZelData_Ok, item_->removeTextForLanguage("de"));
    EXPECT_EQ((Entry{0, {{"en", "Intro"}}}), contentsOf(*item_));
}

TEST_F(TocItem, RemovingAnAbsentLanguageReturnsNotFound)
{
    fill(*item_, {0, {{"en", "Intro"}}});
    EXPECT_CODE(*item_, ZelData_NotFound, item_->removeTextForLanguage("de"));
    EXPECT_CODE(*item_, ZelData_NotFound, item_->removeTextForLanguage(""));
    EXPECT_EQ((Entry{0, {{"en", "Intro"}}}), contentsOf(*item_));
}

TEST_F(TocItem, ClearingTheTextLeavesTheRest)
{
    fill(*item_, {7, {{"de", "Anfang"}, {"en", "Intro"}}, "i.png", 3, 4});
    EXPECT_CODE(*item_, ZelData_Ok, item_->clearText());
    EXPECT_CODE(*item_, ZelData_Ok, item_->clearText());
    EXPECT_EQ((Entry{7, {}, "i.png", 3, 4}), contentsOf(*item_));
}

TEST_F(TocItem, LanguagesComeInByteOrderAndReplaceWhatTheVectorHeld)
{
    for (const char* id : {"fr", "de", "EN", "de-AT"})
        EXPECT_CODE(*item_, ZelData_Ok, item_->setTextForLanguage("text", id));
    std::vector<std::string> ids{"old"};
    EXPECT_CODE(*item_, ZelData_Ok, item_->getLanguageIDs(ids));
    EXPECT_EQ((std::vector<std::string>{"EN", "de", "de-AT", "fr"}), ids);
}

TEST_F(TocItem, TwoLanguagesAreListedInByteOrder)
{
    EXPECT_CODE(*item_, ZelData_Ok, item_->setTextForLanguage("Un", "fr"));
    EXPECT_CODE(*item_, ZelData_Ok, item_->setTextForLanguage("Eins", "de"));
    std::vector<std::string> ids;
    EXPECT_CODE(*item_, ZelData_Ok, item_->getLanguageIDs(ids));
    EXPECT_EQ((std::vector<std::string>{"de", "fr"}), ids);
}

TEST_F(TocItem, IsValidWithAndWithoutTextsWhateverTheFlag)
{
    for (const bool deep : {false, true})
        EXPECT_CODE(*item_, ZelData_Ok, item_->isValid(deep));
    fill(*item_, {7, {{"de", ""}, {"en", "Intro"}}, "\xFF", 3, 4});
    for (const bool deep : {false, true})
        EXPECT_CODE(*item_, ZelData_Ok, item_->isValid(deep));
}

TEST(TocItemAssignment, CopiesAllFieldsAndNotTheLastError)
{
    ZelDataTocItem source;
    ZelDataTocItem target;
    fill(source, {7, {{"de", "Anfang"}, {"en", "Intro"}}, "s.png", 3, 4});
    fill(target, {1, {{"fr", "Fin"}}, "t.png", 1, 2});
    source.setLastError(ZelData_NotFound);
    target.setLastError(ZelData_InvalidItem);
    EXPECT_EQ(&target, &(target = source));
    EXPECT_EQ(ZelData_InvalidItem, target.getLastError());
    EXPECT_EQ(ZelData_NotFound, source.getLastError());
    EXPECT_EQ((Entry{7, {{"de", "Anfang"}, {"en", "Intro"}}, "s.png", 3, 4}), contentsOf(target));
}

TEST(TocItemAssignment, OntoItselfChangesNothing)
{
    const Entry entry{7, {{"de", "Anfang"}}, "s.png", 3, 4};
    ZelDataTocItem item;
    fill(item, entry);
    item.setLastError(ZelData_InvalidItem);
    const ZelDataTocItem& same = item;
    item = same;
    EXPECT_EQ(ZelData_InvalidItem, item.getLastError());
    EXPECT_EQ(entry, contentsOf(item));
}

} // namespace
} // namespace ZelInterchangeData
