/// @file
/// Finds the slot that the compiler gave a virtual operation.

#ifndef ZELINTERCHANGEDATA_TESTS_ABI_SLOTOF_H
#define ZELINTERCHANGEDATA_TESTS_ABI_SLOTOF_H

#include <cstddef>
#include <cstring>
#include <limits>

namespace ZelInterchangeData {

/// Returns the virtual table index of the operation that @p member points to, or the largest value if
/// the operation is not virtual.
///
/// The Itanium ABI lays such a pointer out as two words. For a virtual operation one of them holds
/// the offset in the table; the mark for "virtual" is the lowest bit of the first word, or on ARM
/// of the second.
template <class Member>
std::size_t slotOf(Member member)
{
    struct Words {
        std::size_t first;
        std::size_t second;
    } words;
    static_assert(sizeof member == sizeof words, "only the Itanium layout is known");
    std::memcpy(&words, &member, sizeof words);
#if defined(__arm__) || defined(__aarch64__)
    const std::size_t mark = words.second & 1U;
#else
    const std::size_t mark = words.first & 1U;
#endif
    return mark != 0 ? words.first / sizeof(void*) : std::numeric_limits<std::size_t>::max();
}

} // namespace ZelInterchangeData

#endif
