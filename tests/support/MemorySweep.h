/// @file
/// Makes each allocation of an operation fail in turn.

#ifndef ZELINTERCHANGEDATA_TESTS_SUPPORT_MEMORYSWEEP_H
#define ZELINTERCHANGEDATA_TESTS_SUPPORT_MEMORYSWEEP_H

#include "ZelInterchangeData/i_ZelDataResult.h"
#include "support/FailingAllocation.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace ZelInterchangeData {

/// Calls @p operation with ever more allocations granted, each time on a new object from @p create,
/// until it returns @p finalCode. Each earlier call must return and store exhausted memory; @p check
/// then checks the object. The test fails if the operation never allocates.
template <class Create, class Operation, class Check>
void sweepMemory(const Create& create, ZelDataResult_tags finalCode, const Operation& operation,
                 const Check& check)
{
    for (std::size_t granted = 0;; ++granted) {
        SCOPED_TRACE("allocations granted: " + std::to_string(granted));
        const auto object = create();
        ZelDataResult_tags code = ZelData_NoData;
        const bool thrown = runsOutOfMemory(granted, [&] { code = operation(*object); });
        ASSERT_FALSE(thrown);
        EXPECT_EQ(code, object->getLastError());
        if (code == finalCode) {
            EXPECT_GT(granted, 0U);
            return;
        }
        ASSERT_EQ(ZelData_OutOfMemory, code);
        check(*object);
    }
}

} // namespace ZelInterchangeData

#endif
