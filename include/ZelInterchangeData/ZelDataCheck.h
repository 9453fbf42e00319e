/// @file
/// Throwing forms of the two tests of result codes.

#ifndef ZELINTERCHANGEDATA_ZELDATACHECK_H
#define ZELINTERCHANGEDATA_ZELDATACHECK_H

// Every header that throws includes this one first.
#if !defined(__cpp_exceptions) && !defined(_CPPUNWIND)
#error                                                                                             \
    "This header throws exceptions. Without them, include ZelInterchangeData/ZelInterchangeData.h"
#endif

#include "ZelInterchangeData/ZelDataError.h"
#include "ZelInterchangeData/ZelDataExport.h"

#include <string_view>

namespace ZELINTERCHANGEDATA_INLINE ZelInterchangeData {

/// Throws a ZelDataError that names @p operation if @p code is an error or a warning: the throwing
/// form of failed().
inline void check(ZelDataResult_tags code, std::string_view operation)
{
    if (failed(code)) throw ZelDataError(code, operation);
}

/// Throws a ZelDataError that names @p operation if @p code is an error: the throwing form of
/// isError(). Warnings pass.
inline void checkError(ZelDataResult_tags code, std::string_view operation)
{
    if (isError(code)) throw ZelDataError(code, operation);
}

} // namespace ZelInterchangeData

#endif
