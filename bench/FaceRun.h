/// @file
/// Does the same as LibraryRun.h through the face.

#ifndef ZELINTERCHANGEDATA_BENCH_FACERUN_H
#define ZELINTERCHANGEDATA_BENCH_FACERUN_H

#include "bench/Documents.h"

#include <string>

namespace ZelInterchangeData::bench {

/// Returns the packet of @p document. Calls the operations that fill(), set() and write() call, in
/// the same order, through the checked views.
std::string publishThroughFace(const Document& document);

} // namespace ZelInterchangeData::bench

#endif
