/// @file
/// A packet as readers of XML see it.

#ifndef ZELINTERCHANGEDATA_TESTS_HOSTILE_PACKETREADING_H
#define ZELINTERCHANGEDATA_TESTS_HOSTILE_PACKETREADING_H

#include <string>
#include <vector>

namespace ZelInterchangeData {

/// All that a part of a packet holds, in its order: attributes as "prefix:name=value", the text
/// of an element as "text=...".
using Record = std::vector<std::string>;

struct TrackReading {
    /// All but the items.
    Record head;
    std::vector<Record> items;
};

struct PacketReading {
    /// Everything that libxml2 reports, warnings included, or that its tree is not that of a packet;
    /// empty when all is well.
    std::string complaint;
    /// All but the date and the tracks.
    Record header;
    std::vector<TrackReading> tracks;
};

/// Reads @p packet with libxml2.
PacketReading readPacket(const std::string& packet);

/// What expat, which is strict about UTF-8, finds wrong with @p packet, its namespaces included;
/// empty when it is well-formed.
std::string faultOf(const std::string& packet);

} // namespace ZelInterchangeData

#endif
