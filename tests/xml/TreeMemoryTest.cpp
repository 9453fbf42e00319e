/// @file
/// The memory of one element tree.

#include "xml/TreeMemory.h"

#include "support/FailingAllocation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <utility>
#include <vector>

namespace ZelInterchangeData {
namespace {

TEST(TreeMemory, HandsOutAlignedMemoryThatOverlapsNothing)
{
    TreeMemory memory;
    std::vector<std::pair<char*, std::size_t>> places;
    for (std::size_t i = 0; i < 3000; ++i) {
        const std::size_t size = i * 7919 % 257;
        const std::size_t alignment = std::size_t{1} << (i % 4);
        auto* const place = static_cast<char*>(memory.allocate(size, alignment));
        ASSERT_EQ(reinterpret_cast<std::uintptr_t>(place) % alignment, 0U) << i;
        std::memset(place, static_cast<int>(i % 251), size);
        places.emplace_back(place, size);
    }
    for (std::size_t i = 0; i < places.size(); ++i) {
        const std::vector<char> expected(places[i].second, static_cast<char>(i % 251));
        ASSERT_TRUE(std::equal(expected.begin(), expected.end(), places[i].first)) << i;
    }
}

TEST(TreeMemory, StaysInsideAPieceWhereverTheLastPlaceBegins)
{
    constexpr std::size_t piece = 4096; // the first one; a sanitizer watches what follows it
    for (std::size_t used = 1; used <= piece; ++used) {
        const std::size_t rest = piece - used;
        for (const std::size_t size : {rest - std::min<std::size_t>(rest, 1), rest, rest + 1}) {
            TreeMemory memory;
            auto* const first = static_cast<char*>(memory.allocate(used, 1));
            std::memset(first, 1, used);
            std::memset(memory.allocate(size, 1), 2, size);
            ASSERT_EQ(used, std::count(first, first + used, 1)) << used << ' ' << size;
        }
        TreeMemory memory;
        memory.allocate(used, 1);
        std::memset(memory.allocate(8, 8), 2, 8); // aligning takes bytes, too
    }
}

TEST(TreeMemory, HandsOutWhatIsLargerThanAPiece)
{
    TreeMemory memory;
    for (const std::size_t size : {100000U, 1U, 200000U})
        std::memset(memory.allocate(size, 8), 1, size);
    for (std::size_t size = 4090; size < 4110; ++size) {
        TreeMemory other;
        std::memset(other.allocate(size, 8), 1, size);
    }
}

/// The number of allocations that @p count places of 128 bytes take.
std::size_t allocationsFor(int count)
{
    const FailingAllocation watch;
    TreeMemory memory;
    for (int i = 0; i < count; ++i)
        memory.allocate(128, 8);
    return watch.count();
}

TEST(TreeMemory, TakesLargePiecesThatGrow)
{
    EXPECT_EQ(allocationsFor(0), 0U);
    EXPECT_EQ(allocationsFor(32), 1U);
    EXPECT_EQ(allocationsFor(33), 2U);
    EXPECT_EQ(allocationsFor(32768), 16U); // 4096 bytes, half as much again each time
}

TEST(TreeMemory, HandsOutMoreAfterARefusal)
{
    TreeMemory memory;
    EXPECT_TRUE(runsOutOfMemory(0, [&] { memory.allocate(100, 8); }));
    std::memset(memory.allocate(100, 8), 1, 100);
}

TEST(TreeAllocator, HasRoomForEachElement)
{
    TreeMemory memory;
    for (const auto& allocator :
         {TreeAllocator<long long>(&memory), TreeAllocator<long long>(nullptr)}) {
        for (std::size_t count = 1; count < 20; ++count) {
            std::vector<long long, TreeAllocator<long long>> one(count, 1, allocator);
            const std::vector<long long, TreeAllocator<long long>> other(count, 2, allocator);
            std::fill(one.begin(), one.end(), 3);
            EXPECT_EQ(count, std::count(other.begin(), other.end(), 2));
        }
    }
}

TEST(TreeAllocator, EqualsThoseOfTheSameTree)
{
    TreeMemory one;
    TreeMemory other;
    EXPECT_TRUE(TreeAllocator<char>(&one) == TreeAllocator<char>(&one));
    EXPECT_FALSE(TreeAllocator<char>(&one) != TreeAllocator<char>(&one));
    EXPECT_TRUE(TreeAllocator<char>(&one) != TreeAllocator<char>(&other));
    EXPECT_FALSE(TreeAllocator<char>(&one) == TreeAllocator<char>(&other));
}

} // namespace
} // namespace ZelInterchangeData
