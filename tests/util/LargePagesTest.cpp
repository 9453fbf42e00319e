#include "util/LargePages.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdint>
#include <string>
#include <vector>

#ifdef __linux__
#include <sys/mman.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

namespace ZelInterchangeData {
namespace {

constexpr std::size_t mebibyte = std::size_t{1} << 20;

#ifdef __linux__

/// A hint that the system was given.
struct Hint {
    std::uintptr_t begin;
    std::size_t size;
    int advice;
};

std::vector<Hint>* hints = nullptr; // where they are written down, if anywhere

/// The hints for @p size bytes at @p memory.
std::vector<Hint> hintsFor(char* memory, std::size_t size)
{
    std::vector<Hint> given;
    hints = &given;
    preferLargePages(memory, size);
    hints = nullptr;
    return given;
}

TEST(LargePages, AreHintedAtFromThirtyThreeMebibytesOn)
{
    std::string text(34 * mebibyte, 'x');
    EXPECT_EQ(0U, hintsFor(text.data(), 33 * mebibyte - 1).size());
    EXPECT_EQ(1U, hintsFor(text.data(), 33 * mebibyte).size());
}

TEST(LargePages, TheHintIsAboutAllLargePagesThatLieInsideAndNoOthers)
{
    std::string text(48 * mebibyte, 'x');
    const auto place = reinterpret_cast<std::uintptr_t>(text.data());
    const std::uintptr_t page =
        (place / (2 * mebibyte) + 1) * (2 * mebibyte); // the first whole one
    char* const begin = text.data() + (page - place);
    const auto expectHint = [&](char* memory, std::size_t size, std::uintptr_t from,
                                std::size_t length) {
        const auto given = hintsFor(memory, size);
        ASSERT_EQ(1U, given.size());
        EXPECT_EQ(from, given[0].begin);
        EXPECT_EQ(length, given[0].size);
        EXPECT_EQ(MADV_HUGEPAGE, given[0].advice);
    };
    expectHint(begin, 40 * mebibyte, page, 40 * mebibyte);
    expectHint(begin, 40 * mebibyte - 1, page, 38 * mebibyte);
    expectHint(begin + 1, 40 * mebibyte - 1, page + 2 * mebibyte, 38 * mebibyte);
}

#endif

TEST(LargePages, TheBytesStayWhateverTheSize)
{
    for (const std::size_t size :
         {std::size_t{0}, std::size_t{1}, 33 * mebibyte - 1, 33 * mebibyte, 40 * mebibyte + 4097}) {
        std::string text(size, 'x');
        preferLargePages(text.data(), text.size());
        EXPECT_EQ(std::string::npos, text.find_first_not_of('x'));
        EXPECT_EQ(size, text.size());
    }
}

TEST(LargePages, ThePlaceNeedNotBeAPage)
{
    std::string text(40 * mebibyte, 'x');
    preferLargePages(text.data() + 1, text.size() - 2);
    EXPECT_EQ(std::string::npos, text.find_first_not_of('x'));
}

TEST(LargePages, ARefusedHintLeavesTheCallersErrno)
{
    errno = E2BIG;
    preferLargePages(nullptr, 64 * mebibyte); // nothing lies there
    EXPECT_EQ(E2BIG, errno);
}

} // namespace
} // namespace ZelInterchangeData

#ifdef __linux__

/// In place of the C library's, whose names the parameters have: writes the hint down and passes it on.
extern "C" int madvise(void* addr, std::size_t len, int advice) noexcept
{
    using ZelInterchangeData::hints;
    if (hints != nullptr) {
        hints->push_back({reinterpret_cast<std::uintptr_t>(addr), len, advice});
    }
    return static_cast<int>(syscall(SYS_madvise, addr, len, advice));
}

#endif
