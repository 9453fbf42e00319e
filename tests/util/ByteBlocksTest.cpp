#include "util/ByteBlocks.h"

#include <gtest/gtest.h>

#include <string>

namespace ZelInterchangeData {
namespace {

TEST(ByteBlocks, TheFirstByteOfATextIsTheLowest)
{
    EXPECT_EQ(0x6867666564636261U, loadBlock("abcdefgh"));
}

TEST(ByteBlocks, TheLastBytesStandAtTheBottomWithZerosAboveThem)
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

TEST(ByteBlocks, HighBitsAndZeroBytesAreFound)
{
    EXPECT_EQ(0x8000000000000080U, highBits(0xFF7F000000007F80U));
    EXPECT_EQ(0U, zeroBytes(repeated(0x01)));
    for (std::size_t place = 0; place < blockSize; ++place) {
        const ByteBlock block = repeated(0x81) & ~(ByteBlock{0xFF} << (8 * place));
        EXPECT_EQ(place, bytesBeforeFirst(zeroBytes(block)));
    }
}

} // namespace
} // namespace ZelInterchangeData
