/// @file
/// Where the tracks go in a packet.

#ifndef ZELINTERCHANGEDATA_CORE_TRACKINSERTION_H
#define ZELINTERCHANGEDATA_CORE_TRACKINSERTION_H

#include "ZelInterchangeData/ZelDataResult_tags.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

/// Inserts @p tracks, one text after the other, into the last empty track list of @p packet.
/// - #ZelData_InternalError: there is no such list; @p packet is left alone.
/// - #ZelData_OutOfMemory: @p packet is left alone.
ZelDataResult_tags insertTracks(std::string& packet,
                                const std::vector<std::string>& tracks) noexcept;

} // namespace ZelInterchangeData

#endif
