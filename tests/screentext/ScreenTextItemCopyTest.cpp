/// @file
/// Copying screen-text items: the rules of their own. The rest is in sets/CopyContractTest.cpp.

#include "screentext/Items.h"

#include <limits>

namespace ZelInterchangeData {
namespace {

TEST(ScreenTextItemCopy, TakesTheDurationSoAnEndThatWrapsDoesNotStopIt)
{
    const Shown wrapping{std::numeric_limits<long long>::max(), 1};
    const auto target = itemOf({1, 2, "old", "t.png", 1, 2, 6});
    EXPECT_CODE(*target, ZelData_Ok, target->copyFrom(*itemOf(wrapping)));
    EXPECT_EQ(wrapping, contentsOf(*target));
}

/// A foreign item that holds no UTF-8.
class MalformedItem : public ZelDataScreenTextItem {
public:
    ZelDataResult_tags getText(std::string& text) const override
    {
        text = "\xFF";
        return ZelData_Ok;
    }
};

TEST(ScreenTextItemCopyOfForeign, AForeignTextIsCheckedLikeAnyOther)
{
    const auto target = itemOf({1, 2, "old", "t.png", 1, 2, 6});
    EXPECT_CODE(*target, ZelData_InvalidItem, target->copyFrom(MalformedItem()));
    EXPECT_EQ((Shown{1, 2, "", "t.png", 1, 2, 6}), contentsOf(*target));
}

} // namespace
} // namespace ZelInterchangeData
