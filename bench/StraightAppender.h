/// @file
/// What a program would do that had only this one packet to write.

#ifndef ZELINTERCHANGEDATA_BENCH_STRAIGHTAPPENDER_H
#define ZELINTERCHANGEDATA_BENCH_STRAIGHTAPPENDER_H

#include "bench/Documents.h"

#include <string>

namespace ZelInterchangeData::bench {

/// The packet of @p document, byte for byte the library's, apart from the date, which is the time
/// of the call. The items are written in the order in which they stand. Nothing is checked.
std::string appendPacket(const Document& document);

} // namespace ZelInterchangeData::bench

#endif
