/// @file
/// Watches the global operator new of the test program, and makes it fail.

#ifndef ZELINTERCHANGEDATA_TESTS_UTIL_ALLOCATIONWATCH_H
#define ZELINTERCHANGEDATA_TESTS_UTIL_ALLOCATIONWATCH_H

#include <limits>

namespace ZelInterchangeData {

/// While it lives, it counts the calls of operator new and lets only the first ones succeed. One at
/// a time. Nothing of the test framework may run under it: read count() and let it end first.
class AllocationWatch {
public:
    /// Every call after the first @p allowed ones fails.
    explicit AllocationWatch(long allowed = std::numeric_limits<long>::max());
    ~AllocationWatch();
    AllocationWatch(const AllocationWatch&) = delete;
    AllocationWatch& operator=(const AllocationWatch&) = delete;

    /// The calls so far, failed ones included.
    [[nodiscard]] long count() const;
};

} // namespace ZelInterchangeData

#endif
