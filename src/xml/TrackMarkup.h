/// @file
/// The shape that all tracks share.

#ifndef ZELINTERCHANGEDATA_XML_TRACKMARKUP_H
#define ZELINTERCHANGEDATA_XML_TRACKMARKUP_H

#include <string_view>

namespace ZelInterchangeData {

// A track is a description that holds a sequence of markers:
//
//     trackStart attributes markersStart markers markersEnd properties trackEnd
//
// The formatters write each marker in as few pieces as possible, because a track has many.

inline constexpr std::string_view trackStart = "<rdf:li><rdf:Description ";
inline constexpr std::string_view markersStart = "><xmpDM:markers><rdf:Seq>";
inline constexpr std::string_view markersEnd = "</rdf:Seq></xmpDM:markers>";
inline constexpr std::string_view trackEnd = "</rdf:Description></rdf:li>";

} // namespace ZelInterchangeData

#endif
