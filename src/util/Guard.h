/// @file
/// Turns exceptions into codes. The C face does so, too, in src/c/zeldata.cpp.

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

/// Calls @p operation without arguments and returns its code. Lets `std::bad_alloc` pass; any other
/// exception can only come from a caller's implementation of an interface, and the guard returns
/// #ZelData_InternalError for it. A thread that ends, by cancellation or `pthread_exit`, unwinds
/// through every guard, so a function in which that can happen is not `noexcept`.
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

/// As guardedButForMemory(), but returns #ZelData_OutOfMemory for `std::bad_alloc`.
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
