/// @file
/// Writes a document's packet to its file.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_PACKETWRITER_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_PACKETWRITER_H

#include "ZelInterchangeData/i_ZelInterchangeDataCore.h"

#include <cstddef>
#include <string>

namespace publish {

/// Writes the packet of @p document to @p output and returns its size in bytes. Replaces an
/// existing regular file once the packet is complete, and leaves it unchanged on failure; writes
/// anything else in place. Throws PublishError.
std::size_t writePacket(const ZelInterchangeData::i_ZelInterchangeDataCore& document,
                        const std::string& output);

} // namespace publish

#endif
