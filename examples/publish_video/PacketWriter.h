/// @file
/// Writes a document's packet to its file.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_PACKETWRITER_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_PACKETWRITER_H

#include "ZelInterchangeData/i_ZelInterchangeDataCore.h"

#include <cstddef>
#include <string>

namespace publish {

/// Writes the packet of @p document to @p output and returns its size in bytes. An existing regular
/// file is replaced once the packet is complete, and stays as it was on failure; anything else is
/// written in place. Throws PublishError.
std::size_t writePacket(const ZelInterchangeData::i_ZelInterchangeDataCore& document,
                        const std::string& output);

} // namespace publish

#endif
