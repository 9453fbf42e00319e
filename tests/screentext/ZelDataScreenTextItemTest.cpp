/// @file
/// One text that is visible in the video.

#include "screentext/ZelDataScreenTextItem.h"

#include "screentext/Items.h"

#include <gtest/gtest.h>

#include <limits>

namespace ZelInterchangeData {
namespace {

constexpr const char* malformed = "a\xC3";
constexpr long long latest = std::numeric_limits<long long>::max();
constexpr long long earliest = std::numeric_limits<long long>::min();

class ScreenTextItem : public testing::Test {
protected:
    long long end() const
    {
        long long end = -1;
        EXPECT_CODE(*item_, ZelData_Ok, item_->getEnd(end));
        return end;
    }

    std::unique_ptr<i_ZelDataScreenTextItem> item_ =
        make(ZelDataUtilities::createScreenTextItemData);
};

TEST_F(ScreenTextItem, StartsEmpty)
{
    EXPECT_EQ(ZelData_Ok, item_->getLastError());
    EXPECT_EQ(Shown(), contentsOf(*item_));
    EXPECT_EQ(0, end());
}

TEST_F(ScreenTextItem, KeepsWhatIsSetAndStoresSuccess)
{
    EXPECT_CODE(*item_, ZelData_Ok, item_->setText("Click"));
    EXPECT_CODE(*item_, ZelData_Ok, item_->setStart(7));
    EXPECT_CODE(*item_, ZelData_Ok, item_->setDuration(8));
    EXPECT_CODE(*item_, ZelData_Ok, item_->setImageFile("i.png"));
    EXPECT_CODE(*item_, ZelData_Ok, item_->setImageIndex(3));
    EXPECT_CODE(*item_, ZelData_Ok, item_->setImageOffset(4));
    EXPECT_CODE(*item_, ZelData_Ok, item_->setGroupId(5));
    EXPECT_EQ((Shown{7, 8, "Click", "i.png", 3, 4, 5}), contentsOf(*item_));
}

TEST_F(ScreenTextItem, EveryGetterStoresSuccess)
{
    std::string text;
    long long time = 0;
    unsigned long number = 0;
    unsigned long long offset = 0;
    EXPECT_CODE(*item_, ZelData_Ok, item_->getText(text));
    EXPECT_CODE(*item_, ZelData_Ok, item_->getStart(time));
    EXPECT_CODE(*item_, ZelData_Ok, item_->getEnd(time));
    EXPECT_CODE(*item_, ZelData_Ok, item_->getDuration(time));
    EXPECT_CODE(*item_, ZelData_Ok, item_->getImageFile(text));
    EXPECT_CODE(*item_, ZelData_Ok, item_->getImageIndex(number));
    EXPECT_CODE(*item_, ZelData_Ok, item_->getImageOffset(offset));
    EXPECT_CODE(*item_, ZelData_Ok, item_->getGroupId(number));
}

TEST_F(ScreenTextItem, TheEndMovesWithTheStart)
{
    fill(*item_, {1000, 500});
    EXPECT_CODE(*item_, ZelData_Ok, item_->setStart(2000));
    EXPECT_EQ((Shown{2000, 500}), contentsOf(*item_));
    EXPECT_EQ(2500, end());
}

TEST_F(ScreenTextItem, AnEndMustComeAfterTheStart)
{
    fill(*item_, {1000, 500});
    EXPECT_CODE(*item_, ZelData_InvalidArgument, item_->setEnd(1000));
    EXPECT_CODE(*item_, ZelData_InvalidArgument, item_->setEnd(999));
    EXPECT_CODE(*item_, ZelData_InvalidArgument, item_->setEnd(-5));
    EXPECT_CODE(*item_, ZelData_InvalidArgument, item_->setEnd(earliest));
    EXPECT_EQ((Shown{1000, 500}), contentsOf(*item_));
    EXPECT_CODE(*item_, ZelData_Ok, item_->setEnd(1001));
    EXPECT_EQ((Shown{1000, 1}), contentsOf(*item_));
    EXPECT_EQ(1001, end());
}

TEST_F(ScreenTextItem, AnEndOfZeroIsNotAfterAStartOfZero)
{
    EXPECT_CODE(*item_, ZelData_InvalidArgument, item_->setEnd(0));
    EXPECT_CODE(*item_, ZelData_Ok, item_->setEnd(latest));
    EXPECT_EQ((Shown{0, latest}), contentsOf(*item_));
}

TEST_F(ScreenTextItem, ADurationOfZeroIsAcceptedAndANegativeOneRefused)
{
    fill(*item_, {1000, 500});
    EXPECT_CODE(*item_, ZelData_InvalidArgument, item_->setDuration(-1));
    EXPECT_CODE(*item_, ZelData_InvalidArgument, item_->setDuration(earliest));
    EXPECT_EQ((Shown{1000, 500}), contentsOf(*item_));
    EXPECT_CODE(*item_, ZelData_Ok, item_->setDuration(0));
    EXPECT_EQ((Shown{1000, 0}), contentsOf(*item_));
    EXPECT_EQ(1000, end());
}

TEST_F(ScreenTextItem, TheEndWrapsBeyondTheLargestNumber)
{
    fill(*item_, {latest, 1});
    EXPECT_EQ(earliest, end());
    fill(*item_, {latest, latest});
    EXPECT_EQ(-2, end());
}

TEST_F(ScreenTextItem, TheLargestNumbersAreKeptWhole)
{
    const Shown largest{latest,
                        latest,
                        "",
                        "",
                        std::numeric_limits<unsigned long>::max(),
                        std::numeric_limits<unsigned long long>::max(),
                        std::numeric_limits<unsigned long>::max()};
    fill(*item_, largest);
    EXPECT_EQ(largest, contentsOf(*item_));
}

TEST_F(ScreenTextItem, AMalformedTextIsRefusedAndTheEarlierOneKept)
{
    fill(*item_, {0, 0, "Click"});
    EXPECT_CODE(*item_, ZelData_InvalidItem, item_->setText(malformed));
    EXPECT_CODE(*item_, ZelData_InvalidItem, item_->setText("\xFF"));
    EXPECT_EQ((Shown{0, 0, "Click"}), contentsOf(*item_));
}

TEST_F(ScreenTextItem, ATextIsReplacedEmptiedAndCleared)
{
    fill(*item_, {7, 8, "Click", "i.png", 3, 4, 5});
    EXPECT_CODE(*item_, ZelData_Ok, item_->setText("\xF0\x9F\x98\x80"));
    EXPECT_EQ((Shown{7, 8, "\xF0\x9F\x98\x80", "i.png", 3, 4, 5}), contentsOf(*item_));
    EXPECT_CODE(*item_, ZelData_Ok, item_->setText(""));
    EXPECT_EQ((Shown{7, 8, "", "i.png", 3, 4, 5}), contentsOf(*item_));
    EXPECT_CODE(*item_, ZelData_Ok, item_->setText("again"));
    EXPECT_CODE(*item_, ZelData_Ok, item_->clearText());
    EXPECT_EQ((Shown{7, 8, "", "i.png", 3, 4, 5}), contentsOf(*item_));
}

TEST_F(ScreenTextItem, TheImageFileIsStoredUnchecked)
{
    const std::string anyBytes("\xFF\0<&>", 5);
    EXPECT_CODE(*item_, ZelData_Ok, item_->setImageFile(anyBytes));
    EXPECT_EQ((Shown{0, 0, "", anyBytes}), contentsOf(*item_));
}

TEST_F(ScreenTextItem, IsValidWhateverTheFlagAndTheTimes)
{
    for (const bool deep : {false, true})
        EXPECT_CODE(*item_, ZelData_Ok, item_->isValid(deep));
    fill(*item_, {latest, latest, "Click", "\xFF"});
    for (const bool deep : {false, true})
        EXPECT_CODE(*item_, ZelData_Ok, item_->isValid(deep));
}

} // namespace
} // namespace ZelInterchangeData
