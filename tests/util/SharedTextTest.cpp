#include "util/SharedText.h"

#include "support/FailingAllocation.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <utility>

namespace ZelInterchangeData {
namespace {

/// The length of the longest text that takes no memory of its own.
constexpr std::size_t longestShort = 16;

TEST(SharedText, AShortOneTakesNoMemoryAndALongOneOnceForAllCopies)
{
    const std::string text(longestShort + 1, 'x');
    for (std::size_t length = 0; length <= text.size(); ++length) {
        std::size_t asked = 0;
        {
            const FailingAllocation watch;
            const SharedText some(std::string_view(text).substr(0, length));
            const SharedText copy(some);
            asked = watch.count();
        }
        EXPECT_EQ(length > longestShort ? 1U : 0U, asked) << length;
    }
    EXPECT_EQ("", SharedText().view());
}

TEST(SharedText, OfEachLengthIsCopiedMovedAndAssigned)
{
    const std::string text = "0123456789abcdef0123";
    for (std::size_t length = 0; length <= text.size(); ++length) {
        const auto part = std::string_view(text).substr(0, length);
        for (const std::string_view old : {"", "short", "longer than sixteen bytes"}) {
            SharedText assigned(old);
            SharedText source(part);
            assigned = source;
            SharedText moved(std::move(source));
            EXPECT_EQ(part, assigned.view());
            EXPECT_EQ(part, moved.view());
            moved = SharedText(old);
            EXPECT_EQ(old, moved.view());
            EXPECT_EQ(part, assigned.view());
        }
    }
}

TEST(SharedText, KeepsEveryByte)
{
    const std::string text("a\0b\xFF", 4);
    EXPECT_EQ(text, SharedText(text).view());
}

TEST(SharedText, IsEmptyAfterAMove)
{
    SharedText text("one");
    const SharedText moved(std::move(text));
    EXPECT_EQ("one", moved.view());
    EXPECT_EQ("", text.view());
}

TEST(SharedText, CopiesAreIndependentOfAssignments)
{
    const std::string one(longestShort + 1, 'x');
    SharedText text(one);
    const SharedText copy(text);
    EXPECT_EQ(text.view().data(), copy.view().data());
    text = SharedText("two");
    EXPECT_EQ(one, copy.view());
    EXPECT_EQ("two", text.view());
}

TEST(SharedText, PrefetchingChangesNothing)
{
    const SharedText text("one");
    text.prefetch();
    SharedText().prefetch();
    EXPECT_EQ("one", text.view());
}

} // namespace
} // namespace ZelInterchangeData
