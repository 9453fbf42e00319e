/// @file
/// Does the same as fill() in LibraryRun.h through the C face.

#ifndef ZELINTERCHANGEDATA_BENCH_CFACERUN_H
#define ZELINTERCHANGEDATA_BENCH_CFACERUN_H

#include "bench/Documents.h"

#include <string>

namespace ZelInterchangeData::bench {

/// Creates data objects that hold @p document, and destroys them. Returns the number of captions.
std::size_t fillThroughC(const Document& document);

/// The packet of @p document, filled, set and written through the C face.
std::string publishThroughC(const Document& document);

} // namespace ZelInterchangeData::bench

#endif
