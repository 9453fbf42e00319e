/// @file
/// The version of the library: the one that these headers belong to, and the one that is running.
/// The packet names the version of its format instead, `zel:version`.

#ifndef ZELINTERCHANGEDATA_ZELDATAVERSION_H
#define ZELINTERCHANGEDATA_ZELDATAVERSION_H

// The build reads the three numbers from here; they are written nowhere else.

/// Goes up when programs built against an earlier version no longer run; part of the library's SONAME.
#define ZELINTERCHANGEDATA_VERSION_MAJOR 1

/// Goes up when something is added.
#define ZELINTERCHANGEDATA_VERSION_MINOR 1

/// Goes up when something is fixed.
#define ZELINTERCHANGEDATA_VERSION_PATCH 0

/// The version as one number that can be compared: 10203 is version 1.2.3. The numbers that
/// ZelDataUtilities::getVersionString() takes are packed differently: to it, version 1.2.0 is
/// 66048, and 10200 is "0.39.216".
#define ZELINTERCHANGEDATA_VERSION                                                                 \
    (ZELINTERCHANGEDATA_VERSION_MAJOR * 10000 + ZELINTERCHANGEDATA_VERSION_MINOR * 100 +           \
     ZELINTERCHANGEDATA_VERSION_PATCH)

#ifdef __cplusplus

#include "ZelInterchangeData/ZelDataExport.h"

namespace ZelInterchangeData {

/// The version of the library that is running, in the form of #ZELINTERCHANGEDATA_VERSION, which is
/// the version of the headers that the caller was compiled with.
ZELINTERCHANGEDATA_API int libraryVersion() noexcept;

} // namespace ZelInterchangeData

#endif

#endif
