/// @file
/// Packets without what differs each time they are written.

#ifndef ZELINTERCHANGEDATA_TESTS_SUPPORT_DATEMASK_H
#define ZELINTERCHANGEDATA_TESTS_SUPPORT_DATEMASK_H

#include <string>

namespace ZelInterchangeData {

/// @p packet with DATE instead of its date, if it has one.
inline std::string dateMasked(std::string packet)
{
    // Only the title comes before the date, and its quotation marks are escaped.
    const std::string name = " dc:date=\"";
    const auto found = packet.find(name);
    if (found == std::string::npos) return packet;
    const auto date = found + name.size();
    return packet.replace(date, packet.find('"', date) - date, "DATE");
}

} // namespace ZelInterchangeData

#endif
