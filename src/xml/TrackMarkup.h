/// @file
/// The shape that all tracks share.

#ifndef ZELINTERCHANGEDATA_XML_TRACKMARKUP_H
#define ZELINTERCHANGEDATA_XML_TRACKMARKUP_H

#include <string_view>

namespace ZelInterchangeData {

// A track is a description that holds a sequence of markers, each of which is a description, too:
//
//     trackStart attributes markersStart markers markersEnd properties trackEnd
//     markerStart attributes markerContent content markerEnd

inline constexpr std::string_view trackStart = "<rdf:li><rdf:Description ";
inline constexpr std::string_view markersStart = "><xmpDM:markers><rdf:Seq>";
inline constexpr std::string_view markersEnd = "</rdf:Seq></xmpDM:markers>";
inline constexpr std::string_view trackEnd = "</rdf:Description></rdf:li>";

inline constexpr std::string_view markerStart = "<rdf:li><rdf:Description ";
inline constexpr std::string_view markerContent = ">";
inline constexpr std::string_view markerEnd = "</rdf:Description></rdf:li>";
/// Ends a marker without content, after its attributes.
inline constexpr std::string_view emptyMarkerEnd = "></rdf:Description></rdf:li>";

} // namespace ZelInterchangeData

#endif
