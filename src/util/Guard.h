/// @file
/// The one place where exceptions are turned into codes.

#ifndef ZELINTERCHANGEDATA_UTIL_GUARD_H
#define ZELINTERCHANGEDATA_UTIL_GUARD_H

#include "ZelInterchangeData/ZelDataResult_tags.h"

#include <new>
#include <utility>

// With libstdc++ on glibc, a thread that ends is unwound as if an exception were thrown.
#ifdef __GLIBCXX__
#include <cxxabi.h>
#endif

namespace ZelInterchangeData {

/// Returns the code of @p operation, a callable without arguments. Exhausted memory passes through;
/// any other exception can only come from a caller's implementation of an interface and gives
/// #ZelData_InternalError. A thread that ends, by cancellation or `pthread_exit`, unwinds through
/// every guard, so a function in which that can happen is not `noexcept`.
template <class Operation>
[[nodiscard]] ZelDataResult_tags guardedButForMemory(Operation&& operation)
{
    try {
        return std::forward<Operation>(operation)();
    } catch (const std::bad_alloc&) {
        throw;
#ifdef __GLIBCXX__
    } catch (const abi::__forced_unwind&) {
        throw; // otherwise the C library ends the process
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
