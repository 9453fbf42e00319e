/// @file
/// One entry of the table of contents.

#include "toc/ZelDataTocItem.h"

#include "toc/Entries.h"

#include <gtest/gtest.h>

#include <limits>

namespace ZelInterchangeData {
namespace {

class TocItem : public testing::Test {
protected:
    std::unique_ptr<i_ZelDataTocItem> item_ = make(ZelDataUtilities::createTocItemData);
};

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

TEST_F(TocItem, IsValidWithAndWithoutTextsWhateverTheFlag)
{
    for (const bool deep : {false, true})
        EXPECT_CODE(*item_, ZelData_Ok, item_->isValid(deep));
    fill(*item_, {7, {{"de", ""}, {"en", "Intro"}}, "\xFF", 3, 4});
    for (const bool deep : {false, true})
        EXPECT_CODE(*item_, ZelData_Ok, item_->isValid(deep));
}

} // namespace
} // namespace ZelInterchangeData
