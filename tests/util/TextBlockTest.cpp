/// @file
/// Text written in many small pieces.

#include "util/TextBlock.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace ZelInterchangeData {
namespace {

TEST(TextBlock, AppendsThePiecesToTheStringWhenFlushed)
{
    std::string text = "before";
    TextBlock block(text);
    block.append("ab");
    block.append("");
    block.append(std::string_view()); // a null view
    block.append("c");
    EXPECT_EQ(3U, block.position());
    block.flush();
    EXPECT_EQ("beforeabc", text);
    block.flush();
    EXPECT_EQ("beforeabc", text);
}

TEST(TextBlock, WritesNumbersInDecimal)
{
    std::string text;
    TextBlock block(text);
    block.appendNumber(std::numeric_limits<long long>::min());
    block.append(" ");
    block.appendNumber(std::numeric_limits<unsigned long long>::max());
    block.flush();
    EXPECT_EQ("-9223372036854775808 18446744073709551615", text);
}

TEST(TextBlock, KeepsPiecesOfEverySizeInOrder)
{
    std::mt19937 random(23);
    for (int round = 0; round < 200; ++round) {
        std::string expected;
        std::string text;
        TextBlock block(text);
        for (int piece = 0; piece < 40; ++piece) {
            const std::string bytes(random() % (round % 2 == 0 ? 9000 : 300),
                                    static_cast<char>('a' + piece % 26));
            block.append(bytes);
            expected += bytes;
            block.appendNumber(piece);
            expected += std::to_string(piece);
            ASSERT_EQ(expected.size(), block.position());
        }
        block.flush();
        ASSERT_EQ(expected, text);
    }
}

} // namespace
} // namespace ZelInterchangeData
