/// @file
/// The one place where exceptions become codes.

#ifndef ZELINTERCHANGEDATA_UTIL_GUARD_H
#define ZELINTERCHANGEDATA_UTIL_GUARD_H

#include "ZelInterchangeData/ZelDataResult_tags.h"

#include <new>
#include <utility>

namespace ZelInterchangeData {

/// The code of @p operation, a callable without arguments. Exhausted memory passes through; any
/// other exception can only come from a caller's implementation of an interface and gives
/// #ZelData_InternalError.
template <class Operation>
[[nodiscard]] ZelDataResult_tags guardedButForMemory(Operation&& operation)
{
    try {
        return std::forward<Operation>(operation)();
    } catch (const std::bad_alloc&) {
        throw;
    } catch (...) {
        return ZelData_InternalError;
    }
}

/// As guardedButForMemory(), with #ZelData_OutOfMemory for exhausted memory, so nothing is thrown.
template <class Operation>
[[nodiscard]] ZelDataResult_tags guarded(Operation&& operation) noexcept
{
    try {
        return guardedButForMemory(std::forward<Operation>(operation));
    } catch (...) {
        return ZelData_OutOfMemory;
    }
}

} // namespace ZelInterchangeData

#endif
