/// @file
/// What a program that only had to write this packet would do.

#ifndef ZELINTERCHANGEDATA_BENCH_STRAIGHTAPPENDER_H
#define ZELINTERCHANGEDATA_BENCH_STRAIGHTAPPENDER_H

#include "bench/Documents.h"

#include <string>

namespace ZelInterchangeData::bench {

/// Returns the same packet of @p document as the library, byte for byte except for the date, the
/// time of the call. Writes the items in their stored order and checks nothing.
std::string appendPacket(const Document& document);

} // namespace ZelInterchangeData::bench

#endif
