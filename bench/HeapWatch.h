/// @file
/// Counts the calls of operator new in this program.

#ifndef ZELINTERCHANGEDATA_BENCH_HEAPWATCH_H
#define ZELINTERCHANGEDATA_BENCH_HEAPWATCH_H

#include <cstddef>

namespace ZelInterchangeData::bench {

struct HeapUse {
    /// Calls of operator new, of any form.
    std::size_t allocations = 0;
    /// The most bytes held at one time in addition to those at the start, in the sizes that the
    /// allocator provided.
    std::size_t peak = 0;
};

/// Counts from its construction on. Use one at a time, while no other thread allocates. Linking
/// this replaces operator new for the whole program; without a watch, each call only tests a flag.
class HeapWatch {
public:
    HeapWatch();
    ~HeapWatch();
    HeapWatch(const HeapWatch&) = delete;
    HeapWatch& operator=(const HeapWatch&) = delete;

    HeapUse use() const;
};

} // namespace ZelInterchangeData::bench

#endif
