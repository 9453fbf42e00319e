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
///     properties </rdf:Description></rdf:li>      (written without blanks and line breaks)
///
/// What describes the track and what a marker holds is up to the caller.
class Track {
public:
    /// A track without attributes and markers.
    Track();

    /// The description of the track, for its attributes.
    ZelDataXmlNode& description() noexcept { return description_; }
    /// Appends an element called @p name after the markers and returns it. A name is used once per
    /// track: a second element of the same name would stand inside the first.
    ZelDataXmlNode& addProperty(const char* name);
    /// Appends the track to @p packet. @p writeMarkers is called with a MarkerWriter for the
    /// track's markers.
    template <class WriteMarkers>
    void appendTo(std::string& packet, WriteMarkers&& writeMarkers) const
    {
        std::string frame = stream_.getXml(false);
        const std::string rest = cutBehindMarkersTag(frame);
        packet += frame;
        MarkerWriter markers(packet);
        writeMarkers(markers);
        markers.finish();
        packet += rest;
    }

private:
    static std::string cutBehindMarkersTag(std::string& frame);

    ZelDataXmlStream stream_;
    ZelDataXmlNode& description_;
};

} // namespace ZelInterchangeData

#endif
