/// @file
/// Turns exceptions into codes.

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

/// The code for the exception that is being handled: #ZelData_OutOfMemory for `std::bad_alloc`; any
/// other can only come from a caller's implementation of an interface, and is an
/// #ZelData_InternalError. A thread that ends, by cancellation or `pthread_exit`, unwinds through
/// this function, too.
[[nodiscard]] inline ZelDataResult_tags codeOfException()
{
    try {
        throw;
    } catch (const std::bad_alloc&) {
        return ZelData_OutOfMemory;
#ifdef __GLIBCXX__
    } catch (const abi::__forced_unwind&) {
        throw; // otherwise the C library ends the process
#endif
    } catch (...) {
        return ZelData_InternalError;
    }
}

/// Calls @p operation without arguments and returns its code, or the code for its exception. A
/// thread that ends unwinds through every guard, so a function in which that can happen is not
/// `noexcept`.
template <class Operation>
[[nodiscard]] ZelDataResult_tags guarded(Operation&& operation)
{
    try {
        return std::forward<Operation>(operation)();
    } catch (...) {
        return codeOfException();
    }
}

/// As guarded(), but lets `std::bad_alloc` pass.
template <class Operation>
[[nodiscard]] ZelDataResult_tags guardedButForMemory(Operation&& operation)
{
    try {
        return std::forward<Operation>(operation)();
    } catch (const std::bad_alloc&) {
        throw;
    } catch (...) {
        return codeOfException();
    }
}

} // namespace ZelInterchangeData

#endif
