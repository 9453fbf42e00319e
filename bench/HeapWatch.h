/// @file
/// Counts the calls of operator new in this program.

#ifndef ZELINTERCHANGEDATA_BENCH_HEAPWATCH_H
#define ZELINTERCHANGEDATA_BENCH_HEAPWATCH_H

#include <cstddef>

namespace ZelInterchangeData::bench {

struct HeapUse {
    /// Calls of operator new, of any form.
    std::size_t allocations = 0;
    /// The most bytes held at one time beyond those held at the start, counted in the sizes that
    /// the allocator really provided.
    std::size_t peak = 0;
};

/// Watches from construction on; one at a time, and while no other thread allocates. Linking this
/// replaces operator new for the whole program; without a watch, that costs one test of a flag.
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
