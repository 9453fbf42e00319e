/// @file
/// One allocation that fails while those before and after it succeed.

#ifndef ZELINTERCHANGEDATA_TESTS_HEADER_ONEFAILINGALLOCATION_H
#define ZELINTERCHANGEDATA_TESTS_HEADER_ONEFAILINGALLOCATION_H

namespace ZelInterchangeData {

/// While it lives, allocation number @p index fails, counted from 0. An operation that took the
/// failure for something else goes on with memory at hand, and is noticed.
class OneFailingAllocation {
public:
    explicit OneFailingAllocation(long index) noexcept;
    ~OneFailingAllocation();
    OneFailingAllocation(const OneFailingAllocation&) = delete;
    OneFailingAllocation& operator=(const OneFailingAllocation&) = delete;

    /// Whether the allocation was reached.
    [[nodiscard]] bool failed() const noexcept;
};

} // namespace ZelInterchangeData

#endif
