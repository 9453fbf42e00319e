/// @file
/// Writes a document's packet to its file.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_PACKETWRITER_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_PACKETWRITER_H

#include "ZelInterchangeData/i_ZelInterchangeDataCore.h"

#include <string>

namespace publish {

/// Writes the packet of @p document to @p output and returns the bytes written. Replaces an
/// existing regular file once the packet is complete, and leaves it unchanged on failure; writes
/// anything else, and standard output, directly. Throws PublishError. A signal never leaves a part
/// of the packet in the file, nor another file beside it.
std::string writePacket(const ZelInterchangeData::i_ZelInterchangeDataCore& document,
                        const std::string& output);

} // namespace publish

#endif
