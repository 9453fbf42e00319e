/// @file
/// Text written in many small pieces.

#include "util/TextBlock.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <limits>
#include <new>
#include <random>
#include <string>

namespace ZelInterchangeData {
namespace {

/// A block between bytes that it must not change. No sanitizer watches those inside of an object.
class FencedBlock {
public:
    explicit FencedBlock(std::string& text)
    {
        place_.before.fill(mark);
        place_.after.fill(mark);
        block_ = new (place_.block.data()) TextBlock(text);
    }
    ~FencedBlock()
    {
        EXPECT_TRUE(isIntact(place_.before));
        EXPECT_TRUE(isIntact(place_.after));
    }
    FencedBlock(const FencedBlock&) = delete;
    FencedBlock& operator=(const FencedBlock&) = delete;

    TextBlock* operator->() { return block_; }

private:
    static constexpr char mark = '\x5A';
    using Fence = std::array<char, 64>;
    struct Place {
        Fence before;
        alignas(TextBlock) std::array<char, sizeof(TextBlock)> block;
        Fence after;
    };

    static bool isIntact(const Fence& fence)
    {
        return std::all_of(fence.begin(), fence.end(), [](char c) { return c == mark; });
    }

    Place place_;
    TextBlock* block_;
};

/// The bytes that a block has room for.
constexpr std::size_t blockBytes = 4096;

/// Expects that @p append, a callable for a block, appends @p expected wherever in the block it begins.
template <class Append>
void expectEverywhere(const std::string& expected, Append&& append)
{
    std::string text;
    for (std::size_t place = 0; place <= blockBytes; ++place) {
        const std::string before(place, '.');
        text.clear();
        {
            FencedBlock block(text);
            block->append(before);
            append(*block.operator->());
            block->flush();
        }
        ASSERT_EQ(before + expected, text) << place;
    }
}

TEST(TextBlock, WritesNumbersInsideItsBlockWhereverTheyBegin)
{
    const auto expectNumber = [](auto number) {
        expectEverywhere(std::to_string(number),
                         [number](TextBlock& block) { block.appendNumber(number); });
    };
    expectNumber(std::numeric_limits<long long>::min());
    expectNumber(std::numeric_limits<unsigned long long>::max());
    expectNumber(0);
}

TEST(TextBlock, WritesPiecesInsideItsBlockWhereverTheyBegin)
{
    const std::string longest(blockBytes + 1, 'p');
    for (std::size_t place = 0; place <= blockBytes; ++place) {
        const std::size_t rest = blockBytes - place;
        for (const std::size_t size : {rest - std::min<std::size_t>(rest, 1), rest, rest + 1}) {
            std::string text;
            {
                FencedBlock block(text);
                block->append(std::string(place, '.'));
                block->append(std::string_view(longest).substr(0, size));
                block->flush();
            }
            ASSERT_EQ(std::string(place, '.') + longest.substr(0, size), text) << place;
        }
    }
    expectEverywhere(longest, [&](TextBlock& block) { block.append(longest); });
}

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
