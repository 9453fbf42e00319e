/// @file
/// The shape that all tracks share.

#include "xml/Track.h"

#include "util/LastPlace.h"

namespace ZelInterchangeData {

Track::Track() : description_(stream_.element("rdf:li/rdf:Description"))
{
    description_.element("xmpDM:markers/rdf:Seq");
}

ZelDataXmlNode& Track::addProperty(const char* name)
{
    return description_.element(name);
}

/// Ends @p frame after the start tag of the marker sequence and returns the rest.
std::string Track::cutAfterMarkersTag(std::string& frame)
{
    // The last such pair is the track's own: an attribute that is written as given may contain
    // another.
    constexpr std::string_view startTag = "<rdf:Seq>";
    const std::size_t place = lastPlaceOf("<rdf:Seq></rdf:Seq>", frame) + startTag.size();
    std::string rest = frame.substr(place);
    frame.resize(place);
    return rest;
}

} // namespace ZelInterchangeData
