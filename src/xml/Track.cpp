/// @file
/// The shape that all tracks share.

#include "xml/Track.h"

namespace ZelInterchangeData {

Track::Track()
    : description_(stream_.element("rdf:li/rdf:Description")),
      markers_(description_.element("xmpDM:markers/rdf:Seq"))
{
}

ZelDataXmlNode& Track::addMarker()
{
    // In the old group the path would lead into the marker before.
    return markers_.newGroup().element("rdf:li/rdf:Description");
}

ZelDataXmlNode& Track::addProperty(const char* name)
{
    return description_ < name;
}

std::string Track::text() const
{
    return stream_.getXml(false);
}

} // namespace ZelInterchangeData
