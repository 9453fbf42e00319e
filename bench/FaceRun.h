/// @file
/// Does what LibraryRun.h does, through the face.

#ifndef ZELINTERCHANGEDATA_BENCH_FACERUN_H
#define ZELINTERCHANGEDATA_BENCH_FACERUN_H

#include "bench/Documents.h"

#include <string>

namespace ZelInterchangeData::bench {

/// The packet of @p document: makes data objects, fills them, passes them to a document object and
/// writes that, with the operations that fill(), set() and write() call, in the same order, through
/// the checked views.
std::string publishThroughFace(const Document& document);

} // namespace ZelInterchangeData::bench

#endif
