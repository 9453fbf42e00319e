/// @file
/// Values that owners share until one of them changes its own.

#include "util/CopyOnWrite.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

namespace ZelInterchangeData {
namespace {

using Text = CopyOnWrite<std::string>;

TEST(CopyOnWrite, StartsWithADefaultValue)
{
    const Text text;
    EXPECT_EQ("", text.read());
    EXPECT_FALSE(text.isShared());
}

TEST(CopyOnWrite, CopiesShareOneValue)
{
    const Text text(std::string("a"));
    const Text copy(text);
    EXPECT_EQ(&text.read(), &copy.read());
    EXPECT_TRUE(text.isShared());
}

TEST(CopyOnWrite, AChangeDoesNotAffectOtherOwners)
{
    Text text(std::string("a"));
    Text copy(text);
    copy.write() = "b";
    EXPECT_EQ("a", text.read());
    EXPECT_EQ("b", copy.read());
    EXPECT_FALSE(text.isShared());
}

TEST(CopyOnWrite, ASoleOwnerChangesItsValueInPlace)
{
    Text text(std::string("a"));
    const std::string* const place = &text.read();
    text.write() += "b";
    EXPECT_EQ(place, &text.read());
    EXPECT_EQ("ab", text.read());
}

TEST(CopyOnWrite, ResettingLeavesOtherOwnersAlone)
{
    Text text(std::string("a"));
    Text copy(text);
    copy.reset();
    EXPECT_EQ("", copy.read());
    EXPECT_EQ("a", text.read());
    text.reset();
    EXPECT_EQ("", text.read());
}

TEST(CopyOnWrite, AssigningToItselfKeepsTheValue)
{
    Text text(std::string("a"));
    const Text& same = text;
    text = same;
    EXPECT_EQ("a", text.read());
    EXPECT_FALSE(text.isShared());
}

TEST(CopyOnWrite, OwnersInSeveralThreadsChangeOnlyTheirOwnValues)
{
    const Text text(std::string("a"));
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([own = text]() mutable {
            for (int round = 0; round < 1000; ++round) {
                Text copy(own);
                copy.write() += 'x';
                EXPECT_EQ("ax", copy.read());
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ("a", text.read());
}

} // namespace
} // namespace ZelInterchangeData
