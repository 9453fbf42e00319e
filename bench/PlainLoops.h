/// @file
/// The library's text functions as plain loops, one byte at a time.

#ifndef ZELINTERCHANGEDATA_BENCH_PLAINLOOPS_H
#define ZELINTERCHANGEDATA_BENCH_PLAINLOOPS_H

#include <string>
#include <string_view>

namespace ZelInterchangeData::bench {

/// Whether the sequences of @p text have the form of UTF-8, as ZelDataUtilities::verifyUtf8Format()
/// checks it without its limit to 16 bits.
bool hasUtf8Form(std::string_view text);

/// Appends @p text to @p out with the five entities and without control characters except line
/// feeds.
void appendEscapedByteByByte(std::string& out, std::string_view text);

} // namespace ZelInterchangeData::bench

#endif
