/// @file
/// The shape that all tracks share.

#include "xml/Track.h"

#include <gtest/gtest.h>

namespace ZelInterchangeData {
namespace {

TEST(Track, BeginsWithADescriptionAndAnEmptySequenceOfMarkers)
{
    const Track track;
    EXPECT_EQ(track.text(), "<rdf:li><rdf:Description><xmpDM:markers><rdf:Seq></rdf:Seq>"
                            "</xmpDM:markers></rdf:Description></rdf:li>");
}

TEST(Track, AttributesOfTheDescriptionDescribeTheTrack)
{
    Track track;
    track.description().attribute("xmpDM:trackType", "Caption").attribute("n", 1);
    EXPECT_EQ(track.text(), "<rdf:li><rdf:Description xmpDM:trackType=\"Caption\" n=\"1\" >"
                            "<xmpDM:markers><rdf:Seq></rdf:Seq></xmpDM:markers>"
                            "</rdf:Description></rdf:li>");
}

TEST(Track, EachMarkerIsAnItemOfItsOwnInTheOrderOfTheirMaking)
{
    Track track;
    track.addMarker().attribute("xmpDM:startTime", 0).text("<b></b>");
    track.addMarker();
    track.addMarker().attribute("xmpDM:startTime", 2);
    EXPECT_EQ(track.text(),
              "<rdf:li><rdf:Description><xmpDM:markers><rdf:Seq>"
              "<rdf:li><rdf:Description xmpDM:startTime=\"0\" ><b></b></rdf:Description></rdf:li>"
              "<rdf:li><rdf:Description></rdf:Description></rdf:li>"
              "<rdf:li><rdf:Description xmpDM:startTime=\"2\" ></rdf:Description></rdf:li>"
              "</rdf:Seq></xmpDM:markers></rdf:Description></rdf:li>");
}

TEST(Track, PropertiesFollowTheMarkers)
{
    Track track;
    track.addProperty("zel:fgColor").attribute("xmpG:mode", "RGB");
    track.addProperty("zel:bgColor");
    track.addMarker();
    EXPECT_EQ(track.text(), "<rdf:li><rdf:Description><xmpDM:markers><rdf:Seq>"
                            "<rdf:li><rdf:Description></rdf:Description></rdf:li>"
                            "</rdf:Seq></xmpDM:markers>"
                            "<zel:fgColor xmpG:mode=\"RGB\" ></zel:fgColor>"
                            "<zel:bgColor></zel:bgColor></rdf:Description></rdf:li>");
}

TEST(Track, APropertyOfTheSameNameStandsInsideTheFirst)
{
    Track track;
    track.addProperty("zel:x");
    track.addProperty("zel:x").attribute("k", "v");
    EXPECT_EQ(track.text(), "<rdf:li><rdf:Description><xmpDM:markers><rdf:Seq></rdf:Seq>"
                            "</xmpDM:markers><zel:x><zel:x k=\"v\" ></zel:x></zel:x>"
                            "</rdf:Description></rdf:li>");
}

TEST(Track, TheTextMayBeAskedForAgain)
{
    Track track;
    track.addMarker().text("1");
    EXPECT_EQ(track.text(), track.text());
    track.addMarker().text("2");
    EXPECT_EQ(track.text(), "<rdf:li><rdf:Description><xmpDM:markers><rdf:Seq>"
                            "<rdf:li><rdf:Description>1</rdf:Description></rdf:li>"
                            "<rdf:li><rdf:Description>2</rdf:Description></rdf:li>"
                            "</rdf:Seq></xmpDM:markers></rdf:Description></rdf:li>");
}

} // namespace
} // namespace ZelInterchangeData
