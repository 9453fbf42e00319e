#include "util/SharedText.h"

#include "support/FailingAllocation.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <utility>

namespace ZelInterchangeData {
namespace {

TEST(SharedText, AnEmptyOneTakesNoMemory)
{
    std::size_t asked = 0;
    {
        const FailingAllocation watch;
        const SharedText none;
        const SharedText empty((std::string_view()));
        const SharedText copy(empty);
        asked = watch.count();
    }
    EXPECT_EQ(0U, asked);
    EXPECT_EQ("", SharedText().view());
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
    SharedText text("one");
    const SharedText copy(text);
    EXPECT_EQ(text.view().data(), copy.view().data());
    text = SharedText("two");
    EXPECT_EQ("one", copy.view());
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
