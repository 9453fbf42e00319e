/// @file
/// Every operation when memory runs out, at each of its allocations in turn.

#include "robustness/Operation.h"
#include "support/Checks.h"
#include "support/FailingAllocation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <iostream>
#include <new>
#include <set>
#include <string>
#include <vector>

namespace ZelInterchangeData {
namespace {

/// How one call ended.
struct Ending {
    ZelDataResult_tags code = untouched;
    bool thrown = false;
    bool memoryFailed = false;
};

Ending callWith(const Subject& subject, Outs& outs, std::size_t granted, Shortage shortage)
{
    Ending ending;
    const FailingAllocation failing(granted, shortage);
    try {
        ending.code = subject.call(outs);
    } catch (const std::bad_alloc&) {
        ending.thrown = true;
    }
    ending.memoryFailed = failing.failed();
    return ending;
}

/// Calls @p operation on @p subject without any failure and returns all that shows.
std::string success(const Operation& operation, const Subject& subject)
{
    Outs outs;
    forgetLastError(subject);
    const auto ending = callWith(subject, outs, FailingAllocation::unlimited, Shortage::Lasting);
    EXPECT_FALSE(ending.thrown);
    if (subject.object && !operation.storesNothing) {
        EXPECT_EQ(ending.code, lastErrorOf(subject));
    }
    return outcome(ending.code, subject, outs);
}

void checkLastError(const Operation& operation, const Ending& ending, ZelDataResult_tags lastError)
{
    if (ending.thrown) {
        EXPECT_TRUE(operation.stepwise || lastError == untouched);
    } else if (operation.storesNothing) {
        EXPECT_TRUE(lastError == untouched || lastError == ZelData_OutOfMemory) << lastError;
    } else {
        EXPECT_EQ(ZelData_OutOfMemory, lastError);
    }
}

void checkFailure(const Operation& operation, const Subject& subject, const Ending& ending)
{
    EXPECT_EQ(operation.throws, ending.thrown);
    if (!ending.thrown) {
        EXPECT_EQ(ZelData_OutOfMemory, ending.code);
    }
    if (subject.object) checkLastError(operation, ending, lastErrorOf(subject));
}

/// Calls @p operation on a new object with one of its allocations failing, checks the state,
/// and calls it once more on the same object. Returns whether an allocation failed.
bool failsAt(std::size_t granted, Shortage shortage, const Operation& operation,
             const std::string& expected)
{
    const Subject subject = operation.make();
    Outs outs;
    forgetLastError(subject);
    const auto before = subject.contents() + outs.described();
    forgetLastError(subject);
    const auto ending = callWith(subject, outs, granted, shortage);
    if (!ending.memoryFailed) return false;
    checkFailure(operation, subject, ending);
    if (!operation.stepwise) {
        EXPECT_EQ(before, subject.contents() + outs.described());
    }
    EXPECT_EQ(expected, success(operation, subject));
    return true;
}

/// Lets each allocation of @p operation fail in turn and returns how many there are.
std::size_t sweep(const Operation& operation, Shortage shortage)
{
    const auto expected = success(operation, operation.make());
    for (std::size_t granted = 0;; ++granted) {
        SCOPED_TRACE("allocations granted: " + std::to_string(granted));
        const auto live = liveAllocations();
        const bool failed = failsAt(granted, shortage, operation, expected);
        EXPECT_EQ(live, liveAllocations());
        if (!failed) return granted;
        if (::testing::Test::HasFailure()) return granted; // one finding at a time
    }
}

/// Sweeps all operations. Most of what they hold is long, so most of them need memory.
void sweepAll(Shortage shortage)
{
    std::size_t points = 0;
    std::size_t needing = 0;
    for (const Operation& operation : allOperations()) {
        SCOPED_TRACE(operation.name);
        const auto allocations = sweep(operation, shortage);
        points += allocations;
        needing += allocations != 0 ? 1 : 0;
    }
    EXPECT_GT(needing, 120U);
    EXPECT_GT(points, 1000U);
    std::cout << points << " failing allocations in " << needing << " of " << allOperations().size()
              << " entries\n";
}

TEST(MemorySweep, OneFailingAllocationLeavesEveryObjectWhole)
{
    sweepAll(Shortage::Once);
}

TEST(MemorySweep, MemoryThatStaysExhaustedLeavesEveryObjectWhole)
{
    sweepAll(Shortage::Lasting);
}

/// The operation of @p entry without its class, its arguments and what distinguishes entries.
std::string bareName(const std::string& entry)
{
    const std::string name = entry.substr(entry.find("::") + 2);
    return name.substr(0, name.find_first_of("(|"));
}

TEST(MemorySweep, OnlyCopiesAndDisplayNamesMayStopHalfWay)
{
    const std::set<std::string> expected = {"copyFrom",
                                            "getDataCaptions",
                                            "getDataHeader",
                                            "getDataScreenText",
                                            "getDataToc",
                                            "getLanguageDisplayNames",
                                            "getLanguageNativeDisplayNames",
                                            "setCaptions",
                                            "setDataCaptions",
                                            "setDataHeader",
                                            "setDataScreenText",
                                            "setDataToc",
                                            "setHeader",
                                            "setScreenText",
                                            "setToc"};
    std::set<std::string> stepwise;
    for (const Operation& operation : allOperations()) {
        if (operation.stepwise) stepwise.insert(bareName(operation.name));
    }
    EXPECT_EQ(expected, stepwise);
}

TEST(MemorySweep, TheListHasEveryOperationOfEveryInterface)
{
    const std::set<std::string> expected = {
#include "operation_names.inc"
    };
    std::set<std::string> listed;
    for (const Operation& operation : allOperations())
        listed.insert(operation.name.substr(0, operation.name.find('|')));
    EXPECT_EQ(expected, listed);
}

} // namespace
} // namespace ZelInterchangeData
