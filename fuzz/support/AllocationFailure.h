/// @file
/// Memory that runs out at a chosen allocation: the allocation functions of the target.

#ifndef ZELINTERCHANGEDATA_FUZZ_SUPPORT_ALLOCATIONFAILURE_H
#define ZELINTERCHANGEDATA_FUZZ_SUPPORT_ALLOCATIONFAILURE_H

#include <cstddef>

namespace fuzz {

/// Which allocations fail.
struct FailurePlan {
    /// How many succeed before.
    std::size_t granted = 0;
    /// Whether all later ones fail as well, and not only the next one.
    bool isSticky = false;
    /// Without it none fails.
    bool isOn = false;
};

/// As long as it lives, allocations fail as planned.
class AllocationFailure {
public:
    explicit AllocationFailure(const FailurePlan& wanted) noexcept;
    ~AllocationFailure();
    AllocationFailure(const AllocationFailure&) = delete;
    AllocationFailure& operator=(const AllocationFailure&) = delete;

    /// How many allocations failed so far.
    std::size_t count() const noexcept;
};

/// The number of blocks that are allocated and not yet freed.
long long liveBlocks() noexcept;

} // namespace fuzz

#endif
