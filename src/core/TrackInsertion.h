/// @file
/// Where the tracks go in a packet.

#ifndef ZELINTERCHANGEDATA_CORE_TRACKINSERTION_H
#define ZELINTERCHANGEDATA_CORE_TRACKINSERTION_H

#include "ZelInterchangeData/ZelDataResult_tags.h"
#include "util/LargePages.h"

#include <cstddef>
#include <string>

namespace ZelInterchangeData {

/// The position inside the last empty track list of @p packet; `npos` if there is none.
std::size_t placeOfTracks(const std::string& packet);

/// Inserts tracks into the last empty track list of @p packet: @p append, a callable, appends them,
/// about @p size bytes, to its argument. If there is no such list, returns #ZelData_InternalError
/// and leaves @p packet unchanged.
template <class Append>
ZelDataResult_tags insertTracks(std::string& packet, std::size_t size, Append&& append)
{
    const std::size_t place = placeOfTracks(packet);
    if (place == std::string::npos) return ZelData_InternalError;
    const std::string rest = packet.substr(place);
    reserveAtEnd(packet, size);
    packet.resize(place);
    append(packet);
    packet += rest;
    return ZelData_Ok;
}

} // namespace ZelInterchangeData

#endif
