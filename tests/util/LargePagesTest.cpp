#include "util/LargePages.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>

#if __has_include(<sys/mman.h>)
#include <sys/mman.h>
#endif

#ifdef MADV_HUGEPAGE

namespace {

struct Requests {
    int count = 0;
    void* begin = nullptr; // of the last one, like the following
    std::size_t size = 0;
    int advice = 0;
};
Requests requests;

} // namespace

/// Replaces the C library's function in this program.
extern "C" int madvise(void* begin, std::size_t size, int advice)
{
    requests = {requests.count + 1, begin, size, advice};
    return -1; // as on a system without large pages
}

#endif

namespace ZelInterchangeData {
namespace {

constexpr std::size_t largePage = 2 << 20;
constexpr std::size_t leastSize = 16 * largePage;

TEST(LargePages, TheReservedBytesFollowTheText)
{
    for (const std::size_t more : {std::size_t{0}, std::size_t{100}, leastSize}) {
        std::string text = "begun";
        reserveAtEnd(text, more);
        EXPECT_EQ("begun", text);
        EXPECT_GE(text.capacity(), 5 + more);
    }
}

#ifdef MADV_HUGEPAGE

TEST(LargePages, AskedForAreAllThatALargeTextContainsWhole)
{
    std::string text;
    requests = {};
    reserveAtEnd(text, leastSize);
    ASSERT_EQ(1, requests.count);
    EXPECT_EQ(MADV_HUGEPAGE, requests.advice);
    const auto begin = reinterpret_cast<std::uintptr_t>(requests.begin);
    const auto end = begin + requests.size;
    EXPECT_EQ(0U, begin % largePage);
    EXPECT_EQ(0U, end % largePage);
    const auto textBegin = reinterpret_cast<std::uintptr_t>(text.data());
    const auto textEnd = textBegin + text.capacity();
    EXPECT_GE(begin, textBegin);
    EXPECT_LT(begin - textBegin, largePage);
    EXPECT_LE(end, textEnd);
    EXPECT_LT(textEnd - end, largePage);
}

TEST(LargePages, ASmallerTextAsksForNone)
{
    std::string text;
    requests = {};
    reserveAtEnd(text, leastSize - 1);
    EXPECT_EQ(0, requests.count);
}

#endif

} // namespace
} // namespace ZelInterchangeData
