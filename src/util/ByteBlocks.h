/// @file
/// Tests of eight bytes at a time, with plain integers.

#ifndef ZELINTERCHANGEDATA_UTIL_BYTEBLOCKS_H
#define ZELINTERCHANGEDATA_UTIL_BYTEBLOCKS_H

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace ZelInterchangeData {

/// Eight bytes of a text, the first in the lowest byte.
using ByteBlock = std::uint64_t;

constexpr std::size_t blockSize = sizeof(ByteBlock);

/// A block of which each byte is @p byte.
constexpr ByteBlock repeated(unsigned char byte) noexcept
{
    return 0x0101010101010101U * byte;
}

/// The block at @p bytes, which need not be aligned.
inline ByteBlock loadBlock(const char* bytes) noexcept
{
    const auto byte = [bytes](std::size_t i) {
        return ByteBlock{static_cast<unsigned char>(bytes[i])} << (8 * i);
    };
    // Compilers turn it into one load, unlike a loop when they optimise for size.
    return byte(0) | byte(1) | byte(2) | byte(3) | byte(4) | byte(5) | byte(6) | byte(7);
}

/// The last @p count bytes of @p text, fewer than a block has, followed by zeros.
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

/// The number of bytes before the first one whose highest bit is set in @p bits, which is not zero
/// and has no other bits set.
constexpr std::size_t bytesBeforeFirstPortably(ByteBlock bits) noexcept
{
    // One for each byte up to that one; the multiplication adds them up in the highest byte.
    const ByteBlock ones = (bits - 1) & ~bits & repeated(0x01);
    return static_cast<std::size_t>(ones * repeated(0x01) >> 56) - 1;
}

/// The same, with the processor's own instruction if the compiler offers it.
constexpr std::size_t bytesBeforeFirst(ByteBlock bits) noexcept
{
#ifdef __GNUC__
    return static_cast<std::size_t>(__builtin_ctzll(bits)) / 8;
#else
    return bytesBeforeFirstPortably(bits);
#endif
}

/// Sets the highest bit of the first byte of @p block that is below @p limit, which is at most 0x80,
/// and perhaps those of bytes after it and of bytes that are not ASCII. The lower bits mean nothing.
constexpr ByteBlock firstBelow(ByteBlock block, unsigned char limit) noexcept
{
    return block - repeated(limit);
}

} // namespace ZelInterchangeData

#endif
