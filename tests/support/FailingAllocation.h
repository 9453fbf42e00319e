/// @file
/// Memory that runs out at a chosen allocation.

#ifndef ZELINTERCHANGEDATA_TESTS_SUPPORT_FAILINGALLOCATION_H
#define ZELINTERCHANGEDATA_TESTS_SUPPORT_FAILINGALLOCATION_H

#include <cstddef>
#include <limits>
#include <new>

namespace ZelInterchangeData {

/// What happens at the allocations after the one that failed. When they succeed, an operation that
/// took the failure for something else goes on and has memory again, and is noticed.
enum class Shortage { Lasting, Once };

/// As long as it lives, the first allocations of this thread are granted and then one or all fail.
/// One at a time. Nothing of the test framework may run under it.
class FailingAllocation {
public:
    static constexpr std::size_t unlimited = std::numeric_limits<std::size_t>::max();

    /// The allocation after the first @p granted ones fails; none does without a number.
    explicit FailingAllocation(std::size_t granted = unlimited,
                               Shortage shortage = Shortage::Lasting) noexcept;
    ~FailingAllocation();
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;

    /// The allocations so far, failed ones included.
    [[nodiscard]] std::size_t count() const noexcept;
    /// Whether an allocation failed.
    [[nodiscard]] bool failed() const noexcept;
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
