/// @file
/// Where the tracks go in a packet.

#ifndef ZELINTERCHANGEDATA_CORE_TRACKINSERTION_H
#define ZELINTERCHANGEDATA_CORE_TRACKINSERTION_H

#include "ZelInterchangeData/ZelDataResult_tags.h"

#include <cstddef>
#include <string>

namespace ZelInterchangeData {

/// The position for the content of the last empty track list of @p packet; `npos` when there is
/// none.
std::size_t placeOfTracks(const std::string& packet);

/// Puts tracks into the last empty track list of @p packet: @p append, a callable, appends them to the
/// string that it is given, about @p size bytes. #ZelData_InternalError, and @p packet is left alone,
/// when there is no such list.
template <class Append>
ZelDataResult_tags insertTracks(std::string& packet, std::size_t size, Append&& append)
{
    const std::size_t place = placeOfTracks(packet);
    if (place == std::string::npos) return ZelData_InternalError;
    const std::string rest = packet.substr(place);
    packet.reserve(packet.size() + size);
    packet.resize(place);
    append(packet);
    packet += rest;
    return ZelData_Ok;
}

} // namespace ZelInterchangeData

#endif
