/// @file
/// Memory that runs out at a chosen allocation.

#ifndef ZELINTERCHANGEDATA_TESTS_XML_FAILINGALLOCATION_H
#define ZELINTERCHANGEDATA_TESTS_XML_FAILINGALLOCATION_H

#include <cstddef>
#include <new>

namespace ZelInterchangeData {

/// As long as it lives, the allocations after the first @p granted ones of this thread fail.
class FailingAllocation {
public:
    explicit FailingAllocation(std::size_t granted) noexcept;
    ~FailingAllocation();
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
};

/// The number of blocks of this thread that are allocated and not yet freed.
long long liveAllocations() noexcept;

/// Whether @p action ended with exhausted memory when only @p granted allocations were granted.
template <class Action>
bool runsOutOfMemory(std::size_t granted, Action&& action)
{
    const FailingAllocation failing(granted);
    try {
        action();
    } catch (const std::bad_alloc&) {
        return true;
    }
    return false;
}

} // namespace ZelInterchangeData

#endif
