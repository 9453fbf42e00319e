/// @file
/// The macro that marks what the shared library exports.

#ifndef ZELINTERCHANGEDATA_ZELDATAEXPORT_H
#define ZELINTERCHANGEDATA_ZELDATAEXPORT_H

#if defined(__GNUC__) || defined(__clang__)
/// Marks a class or function as part of the exported interface; everything else stays hidden.
#define ZELINTERCHANGEDATA_API __attribute__((visibility("default")))
#else
/// Marks a class or function as part of the exported interface; everything else stays hidden.
#define ZELINTERCHANGEDATA_API
#endif

#endif
