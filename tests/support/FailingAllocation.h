/// @file
/// Memory that runs out at a chosen allocation.

#ifndef ZELINTERCHANGEDATA_TESTS_SUPPORT_FAILINGALLOCATION_H
#define ZELINTERCHANGEDATA_TESTS_SUPPORT_FAILINGALLOCATION_H

#include <cstddef>
#include <limits>
#include <new>

namespace ZelInterchangeData {

/// Whether the allocations after the first failure fail as well. If they succeed, a test notices an
/// operation that mistook the failure for something else and went on.
enum class Shortage { Lasting, Once };

/// While it lives, grants the first allocations of this thread and then makes one or all fail. Only
/// one may exist at a time, and the test framework must not run meanwhile.
class FailingAllocation {
public:
    static constexpr std::size_t unlimited = std::numeric_limits<std::size_t>::max();

    /// Fails the allocation after the first @p granted ones, or none without a number.
    explicit FailingAllocation(std::size_t granted = unlimited,
                               Shortage shortage = Shortage::Lasting) noexcept;
    ~FailingAllocation();
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;

    /// The number of allocations so far, including failed ones.
    [[nodiscard]] std::size_t count() const noexcept;
    /// Whether an allocation failed.
    [[nodiscard]] bool failed() const noexcept;
};

/// The number of blocks of this thread that are allocated and not yet freed.
long long liveAllocations() noexcept;

/// Whether @p action runs out of memory if only @p granted allocations succeed.
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
