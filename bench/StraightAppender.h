/// @file
/// What a program would do that had to write only this one packet.

#ifndef ZELINTERCHANGEDATA_BENCH_STRAIGHTAPPENDER_H
#define ZELINTERCHANGEDATA_BENCH_STRAIGHTAPPENDER_H

#include "bench/Documents.h"

#include <string>

namespace ZelInterchangeData::bench {

/// The packet of @p document, byte for byte the library's, apart from the date, which is the time
/// of the call. Writes the items in their stored order and checks nothing.
std::string appendPacket(const Document& document);

} // namespace ZelInterchangeData::bench

#endif
