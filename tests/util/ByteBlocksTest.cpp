#include "util/ByteBlocks.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace ZelInterchangeData {
namespace {

TEST(ByteBlocks, TheFirstByteOfATextIsTheLowest)
{
    EXPECT_EQ(0x6867666564636261U, loadBlock("abcdefgh"));
}

TEST(ByteBlocks, TheLastBytesAreTheLowestWithZerosAbove)
{
    const std::string text = "ABCDEFGHIJKLM\xFF";
    for (std::size_t size = 0; size <= text.size(); ++size) {
        for (std::size_t count = 0; count < blockSize && count <= size; ++count) {
            std::string padded = text.substr(size - count, count);
            padded.resize(blockSize, '\0');
            EXPECT_EQ(loadBlock(padded.data()),
                      lastBytes(std::string_view(text).substr(0, size), count))
                << size << ' ' << count;
        }
    }
}

TEST(ByteBlocks, TheLastBytesAreReadFromTheTextAlone)
{
    for (std::size_t size = 0; size <= 2 * blockSize; ++size) {
        const std::vector<char> text(size, '\x11'); // a sanitizer watches what surrounds it
        for (std::size_t count = 0; count < blockSize && count <= size; ++count) {
            EXPECT_EQ(count == 0 ? 0 : repeated(0x11) >> (8 * (blockSize - count)),
                      lastBytes({text.data(), size}, count));
        }
    }
}

TEST(ByteBlocks, HighBitsAreFound)
{
    EXPECT_EQ(0x8000000000000080U, highBits(0xFF7F000000007F80U));
}

TEST(ByteBlocks, TheFirstLowByteIsFound)
{
    for (unsigned char limit = 0x01; limit < 0x80; ++limit) {
        EXPECT_EQ(0U, highBits(firstBelow(repeated(limit), limit)));
        EXPECT_EQ(0U, highBits(firstBelow(repeated(0x7F), limit)));
        for (std::size_t place = 0; place < blockSize; ++place) {
            const ByteBlock lower = repeated(limit) - (ByteBlock{0x01} << (8 * place));
            EXPECT_EQ(place, bytesBeforeFirst(highBits(firstBelow(lower, limit))));
        }
    }
}

TEST(ByteBlocks, BothImplementationsCountTheSameBytes)
{
    std::mt19937_64 random(20);
    for (int round = 0; round < 100000; ++round) {
        const ByteBlock bits = highBits(random() & random() & random());
        if (bits == 0) continue;
        std::size_t expected = 0;
        while ((bits >> (8 * expected) & 0x80U) == 0)
            ++expected;
        ASSERT_EQ(expected, bytesBeforeFirst(bits)) << std::hex << bits;
        ASSERT_EQ(expected, bytesBeforeFirstPortably(bits)) << std::hex << bits;
    }
}

} // namespace
} // namespace ZelInterchangeData
