/// @file
/// The shape that all tracks share.

#ifndef ZELINTERCHANGEDATA_XML_TRACK_H
#define ZELINTERCHANGEDATA_XML_TRACK_H

#include "xml/MarkerWriter.h"
#include "xml/ZelDataXmlNode.h"
#include "xml/ZelDataXmlStream.h"

#include <string>

namespace ZelInterchangeData {

/// One `rdf:li` of the packet's list of tracks: a description that holds a sequence of markers.
///
///     <rdf:li><rdf:Description><xmpDM:markers><rdf:Seq> markers </rdf:Seq></xmpDM:markers>
///     properties </rdf:Description></rdf:li>      (written without spaces and line breaks)
///
/// The caller decides which attributes the track has and what a marker contains.
class Track {
public:
    /// A track without attributes and markers.
    Track();

    /// The description of the track, for its attributes.
    ZelDataXmlNode& description() noexcept { return description_; }
    /// Appends an element called @p name after the markers and returns it. Use a name once per
    /// track: a second element of the same name would be placed inside the first.
    ZelDataXmlNode& addProperty(const char* name);
    /// Appends the track to @p packet. Calls @p writeMarkers with a MarkerWriter for the track's
    /// markers.
    template <class WriteMarkers>
    void appendTo(std::string& packet, WriteMarkers&& writeMarkers) const
    {
        std::string frame = stream_.getXml(false);
        const std::string rest = cutAfterMarkersTag(frame);
        packet += frame;
        MarkerWriter markers(packet);
        writeMarkers(markers);
        markers.finish();
        packet += rest;
    }

private:
    static std::string cutAfterMarkersTag(std::string& frame);

    ZelDataXmlStream stream_;
    ZelDataXmlNode& description_;
};

} // namespace ZelInterchangeData

#endif
