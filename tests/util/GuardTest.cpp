#include "util/Guard.h"

#include "support/Checks.h"
#include "support/FailingAllocation.h"
#include "util/GuardedCopy.h"

#include <pthread.h>
#include <stdexcept>
#include <string>

namespace ZelInterchangeData {
namespace {

template <class Exception>
auto thrower(Exception exception)
{
    return [=]() -> ZelDataResult_tags { throw exception; };
}

TEST(Guard, ReturnsTheCodeOfTheOperation)
{
    EXPECT_EQ(ZelData_WarnTiming, guarded([] { return ZelData_WarnTiming; }));
    EXPECT_EQ(ZelData_NoData, guardedButForMemory([] { return ZelData_NoData; }));
}

TEST(Guard, ExhaustedMemoryBecomesItsCode)
{
    EXPECT_EQ(ZelData_OutOfMemory, guarded(thrower(std::bad_alloc())));
}

TEST(Guard, AnExceptionDerivedFromBadAllocBecomesThatCodeToo)
{
    EXPECT_EQ(ZelData_OutOfMemory, guarded(thrower(std::bad_array_new_length())));
}

TEST(Guard, AnyOtherExceptionIsAnInternalError)
{
    EXPECT_EQ(ZelData_InternalError, guarded(thrower(std::runtime_error("trouble"))));
    EXPECT_EQ(ZelData_InternalError, guarded(thrower(42)));
}

TEST(Guard, TheOtherGuardPropagatesExhaustedMemory)
{
    EXPECT_THROW(static_cast<void>(guardedButForMemory(thrower(std::bad_alloc()))), std::bad_alloc);
}

TEST(Guard, TheOtherGuardTurnsAnyOtherExceptionIntoAnInternalError)
{
    EXPECT_EQ(ZelData_InternalError, guardedButForMemory(thrower(std::runtime_error("trouble"))));
    EXPECT_EQ(ZelData_InternalError, guardedButForMemory(thrower(42)));
}

TEST(Guard, AGuardedCopyReplacesItsTarget)
{
    std::string target = "before";
    EXPECT_EQ(ZelData_Ok, guardedCopy(target, std::string("after")));
    EXPECT_EQ("after", target);
}

TEST(Guard, AGuardedCopyWithoutMemoryLeavesItsTargetAlone)
{
    std::string target = "before";
    const std::string source(1000, 'x');
    ZelDataResult_tags code = ZelData_Ok;
    {
        const FailingAllocation failing(0);
        code = guardedCopy(target, source);
    }
    EXPECT_EQ(ZelData_OutOfMemory, code);
    EXPECT_EQ("before", target);
}

#if defined(__GLIBCXX__) && !defined(_WIN32)
TEST(Guard, AThreadMayEndInsideAnOperation)
{
    bool unwound = false;
    pthread_t thread{};
    const auto end = [](void* flag) -> void* {
        struct Flag {
            ~Flag() { *flag = true; }
            bool* flag;
        };
        const Flag set{static_cast<bool*>(flag)};
        EXPECT_EQ(ZelData_Ok, guarded([]() -> ZelDataResult_tags { pthread_exit(nullptr); }));
        return flag;
    };
    ASSERT_EQ(0, pthread_create(&thread, nullptr, end, &unwound));
    void* result = &unwound;
    ASSERT_EQ(0, pthread_join(thread, &result));
    EXPECT_EQ(nullptr, result);
    EXPECT_TRUE(unwound);
}
#endif

} // namespace
} // namespace ZelInterchangeData
