/// @file
/// What LibraryRun.h does, done through the face.

#ifndef ZELINTERCHANGEDATA_BENCH_FACERUN_H
#define ZELINTERCHANGEDATA_BENCH_FACERUN_H

#include "bench/Documents.h"

#include <string>

namespace ZelInterchangeData::bench {

/// The packet of @p document: data objects are made, filled, handed to a document object and written,
/// with the operations that fill(), set() and write() call, in the same order, through the checked
/// views.
std::string publishThroughFace(const Document& document);

} // namespace ZelInterchangeData::bench

#endif
