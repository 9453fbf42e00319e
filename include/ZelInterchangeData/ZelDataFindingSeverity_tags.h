/// @file
/// How serious a finding is.

#ifndef ZELINTERCHANGEDATA_ZELDATAFINDINGSEVERITY_TAGS_H
#define ZELINTERCHANGEDATA_ZELDATAFINDINGSEVERITY_TAGS_H

#include <cstdint>

namespace ZelInterchangeData {

/// What a finding means for the packet.
enum ZelDataFindingSeverity_tags : std::uint32_t {
    /// The packet is written and can be read, but perhaps it is not what you want: for example, it
    /// has a placeholder for a text that is empty.
    ZelDataFindingSeverity_Warning = 1,
    /// The document does not accept the data or does not write them, or an XML parser rejects its
    /// packet or reads other values from it.
    ZelDataFindingSeverity_Error = 2
};

} // namespace ZelInterchangeData

#endif
