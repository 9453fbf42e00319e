/// @file
/// The one place where exceptions become codes.

#ifndef ZELINTERCHANGEDATA_UTIL_GUARD_H
#define ZELINTERCHANGEDATA_UTIL_GUARD_H

#include "ZelInterchangeData/ZelDataResult_tags.h"

#include <new>
#include <utility>

// libstdc++ on glibc unwinds a thread that ends as if an exception were thrown.
#ifdef __GLIBCXX__
#include <cxxabi.h>
#endif

namespace ZelInterchangeData {

/// The code of @p operation, a callable without arguments. Exhausted memory passes through; any
/// other exception can only come from a caller's implementation of an interface and gives
/// #ZelData_InternalError. The end of the thread, cancelled or by `pthread_exit`, is no exception: it
/// passes through every guard, so a function that may meet it is not `noexcept`.
template <class Operation>
[[nodiscard]] ZelDataResult_tags guardedButForMemory(Operation&& operation)
{
    try {
        return std::forward<Operation>(operation)();
    } catch (const std::bad_alloc&) {
        throw;
#ifdef __GLIBCXX__
    } catch (const abi::__forced_unwind&) {
        throw; // without it the C library ends the process
#endif
    } catch (...) {
        return ZelData_InternalError;
    }
}

/// As guardedButForMemory(), with #ZelData_OutOfMemory for exhausted memory.
template <class Operation>
[[nodiscard]] ZelDataResult_tags guarded(Operation&& operation)
{
    try {
        return guardedButForMemory(std::forward<Operation>(operation));
    } catch (const std::bad_alloc&) {
        return ZelData_OutOfMemory;
    }
}

} // namespace ZelInterchangeData

#endif
