#include "bench/HeapWatch.h"

#include <gtest/gtest.h>

#include <new>
#include <vector>

namespace ZelInterchangeData::bench {

namespace {

// Calls the functions directly, because a compiler may omit a new expression whose object is not
// used.
TEST(HeapWatchTest, CountsEveryFormOfNew)
{
    constexpr auto wide = std::align_val_t(64);
    const HeapWatch watch;
    ::operator delete(::operator new(8));
    ::operator delete[](::operator new[](8));
    ::operator delete(::operator new(8, std::nothrow));
    ::operator delete[](::operator new[](8, std::nothrow));
    ::operator delete(::operator new(8, wide), wide);
    ::operator delete[](::operator new[](8, wide), wide);
    ::operator delete(::operator new(8, wide, std::nothrow), wide);
    EXPECT_EQ(watch.use().allocations, 7U);
}

TEST(HeapWatchTest, ThePeakIsTheMostMemoryHeldAtOnce)
{
    constexpr std::size_t size = 1000000;
    const HeapWatch watch;
    std::vector<char>(size).clear();
    {
        const std::vector<char> first(size);
        const std::vector<char> second(size);
        EXPECT_NE(first.data(), second.data());
    }
    EXPECT_EQ(watch.use().allocations, 3U);
    EXPECT_GE(watch.use().peak, 2 * size);
    EXPECT_LT(watch.use().peak, 2 * size + 20000);
}

TEST(HeapWatchTest, IgnoresEarlierAllocations)
{
    const std::vector<char> before(1000000);
    const HeapWatch watch;
    EXPECT_EQ(watch.use().allocations, 0U);
    EXPECT_EQ(watch.use().peak, 0U);
    EXPECT_EQ(before.size(), 1000000U);
}

} // namespace

} // namespace ZelInterchangeData::bench
