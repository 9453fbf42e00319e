#include "util/LargePages.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>

namespace ZelInterchangeData {
namespace {

constexpr std::size_t mebibyte = std::size_t{1} << 20;

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
