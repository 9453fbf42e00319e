/// @file
/// The version of the library that these headers belong to.

#ifndef ZELINTERCHANGEDATA_ZELDATAVERSION_H
#define ZELINTERCHANGEDATA_ZELDATAVERSION_H

// The build reads the three numbers from here, so they stand nowhere else.

/// Goes up when programs built against an earlier version no longer run; part of the library's SONAME.
#define ZELINTERCHANGEDATA_VERSION_MAJOR 1

/// Goes up when something is added.
#define ZELINTERCHANGEDATA_VERSION_MINOR 0

/// Goes up when something is put right.
#define ZELINTERCHANGEDATA_VERSION_PATCH 0

/// The version as one number that can be compared: 10203 is version 1.2.3.
#define ZELINTERCHANGEDATA_VERSION                                                                 \
    (ZELINTERCHANGEDATA_VERSION_MAJOR * 10000 + ZELINTERCHANGEDATA_VERSION_MINOR * 100 +           \
     ZELINTERCHANGEDATA_VERSION_PATCH)

#endif
