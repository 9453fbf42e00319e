#include "util/LargePages.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#if __has_include(<sys/mman.h>)
#include <sys/mman.h>
#endif

#ifdef MADV_HUGEPAGE

namespace {

struct Request {
    void* begin;
    std::size_t size;
    int advice;
};
std::vector<Request> requests;

} // namespace

/// Replaces the C library's function in this program. As on a system without large pages, it fails.
extern "C" __attribute__((visibility("default"))) int madvise(void* begin, std::size_t size,
                                                              int advice) noexcept
{
    requests.push_back({begin, size, advice});
    errno = EINVAL;
    return -1;
}

#endif

namespace ZelInterchangeData {
namespace {

constexpr std::size_t largePage = 2 << 20;

TEST(LargePages, TheReservedBytesFollowTheText)
{
    for (const std::size_t more : {std::size_t{0}, std::size_t{100}, 4 * largePage}) {
        std::string text = "begun";
        reserveAtEnd(text, more);
        EXPECT_EQ("begun", text);
        EXPECT_GE(text.capacity(), 5 + more);
    }
}

#ifdef MADV_HUGEPAGE

TEST(LargePages, AskedForAreAllThatTheTextContainsWhole)
{
    std::string text = "begun";
    requests.clear();
    reserveAtEnd(text, 4 * largePage);
    ASSERT_EQ(1U, requests.size());
    EXPECT_EQ(MADV_HUGEPAGE, requests[0].advice);
    const auto begin = reinterpret_cast<std::uintptr_t>(requests[0].begin);
    const auto end = begin + requests[0].size;
    EXPECT_EQ(0U, begin % largePage);
    EXPECT_EQ(0U, end % largePage);
    const auto textBegin = reinterpret_cast<std::uintptr_t>(text.data());
    const auto textEnd = textBegin + text.capacity();
    EXPECT_GE(begin, textBegin);
    EXPECT_LT(begin - textBegin, largePage);
    EXPECT_LE(end, textEnd);
    EXPECT_LT(textEnd - end, largePage);
}

TEST(LargePages, ATextThatContainsNoneAsksForNone)
{
    std::string text;
    requests.clear();
    reserveAtEnd(text, largePage - 1);
    EXPECT_TRUE(requests.empty());
}

TEST(LargePages, ASystemWithoutThemChangesNothing)
{
    std::string text;
    requests.clear();
    errno = ERANGE;
    reserveAtEnd(text, 3 * largePage);
    EXPECT_EQ(ERANGE, errno);
    EXPECT_EQ(1U, requests.size());
}

#endif

} // namespace
} // namespace ZelInterchangeData
