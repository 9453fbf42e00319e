/// @file
/// Tests of eight bytes at once, in plain integers.

#ifndef ZELINTERCHANGEDATA_UTIL_BYTEBLOCKS_H
#define ZELINTERCHANGEDATA_UTIL_BYTEBLOCKS_H

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace ZelInterchangeData {

/// Eight bytes of a text, the first one lowest.
using ByteBlock = std::uint64_t;

constexpr std::size_t blockSize = sizeof(ByteBlock);

/// A block of eight times @p byte.
constexpr ByteBlock repeated(unsigned char byte) noexcept
{
    return 0x0101010101010101U * byte;
}

/// The block at @p bytes, which need not be aligned.
inline ByteBlock loadBlock(const char* bytes) noexcept
{
    ByteBlock block = 0;
    for (std::size_t i = 0; i < blockSize; ++i) { // compilers make one load of it
        block |= ByteBlock{static_cast<unsigned char>(bytes[i])} << (8 * i);
    }
    return block;
}

/// The last @p count bytes of @p text, fewer than a block has, with zeros behind them.
inline ByteBlock lastBytes(std::string_view text, std::size_t count) noexcept
{
    if (count == 0) return 0;
    if (text.size() >= blockSize) {
        const ByteBlock block = loadBlock(text.data() + (text.size() - blockSize));
        return block >> (8 * (blockSize - count));
    }
    ByteBlock block = 0;
    for (const char byte : text.substr(text.size() - count)) {
        block = block >> 8 | ByteBlock{static_cast<unsigned char>(byte)} << 56;
    }
    return block >> (8 * (blockSize - count));
}

/// The highest bits of the bytes of @p block.
constexpr ByteBlock highBits(ByteBlock block) noexcept
{
    return block & repeated(0x80);
}

/// How many bytes come before the first whose highest bit is set in @p bits, which is not zero.
inline std::size_t bytesBeforeFirst(ByteBlock bits) noexcept
{
    return static_cast<std::size_t>(__builtin_ctzll(bits)) / 8;
}

/// Sets the highest bit of the first zero byte of @p block, and perhaps those of bytes after it;
/// zero when no byte is zero.
constexpr ByteBlock zeroBytes(ByteBlock block) noexcept
{
    return (block - repeated(0x01)) & ~block & repeated(0x80);
}

} // namespace ZelInterchangeData

#endif
