/// @file
/// The shape that all tracks share.

#include "xml/Track.h"

#include <gtest/gtest.h>

namespace ZelInterchangeData {
namespace {

/// The text of @p track with the markers of @p writeMarkers.
template <class WriteMarkers>
std::string textOf(const Track& track, WriteMarkers writeMarkers)
{
    std::string text;
    track.appendTo(text, writeMarkers);
    return text;
}

/// The text of @p track without markers.
std::string textOf(const Track& track)
{
    return textOf(track, [](MarkerWriter&) {});
}

TEST(Track, IsAppendedToTheText)
{
    const Track track;
    std::string packet = "before";
    track.appendTo(packet, [](MarkerWriter&) {});
    EXPECT_EQ(packet, "before" + textOf(track));
}

TEST(Track, BeginsWithADescriptionAndAnEmptySequenceOfMarkers)
{
    const Track track;
    EXPECT_EQ(textOf(track), "<rdf:li><rdf:Description><xmpDM:markers><rdf:Seq></rdf:Seq>"
                             "</xmpDM:markers></rdf:Description></rdf:li>");
}

TEST(Track, AttributesOfTheDescriptionDescribeTheTrack)
{
    Track track;
    track.description().attribute("xmpDM:trackType", "Caption").attribute("n", 1);
    EXPECT_EQ(textOf(track), "<rdf:li><rdf:Description xmpDM:trackType=\"Caption\" n=\"1\" >"
                             "<xmpDM:markers><rdf:Seq></rdf:Seq></xmpDM:markers>"
                             "</rdf:Description></rdf:li>");
}

TEST(Track, EachMarkerIsAnItemInOrderOfCreation)
{
    const Track track;
    const std::string text = textOf(track, [](MarkerWriter& markers) {
        markers.begin().attribute("xmpDM:startTime", 0LL).content().append("<b></b>");
        markers.endContent();
        markers.begin().attribute("xmpDM:startTime", 2LL).end();
    });
    EXPECT_EQ(text,
              "<rdf:li><rdf:Description><xmpDM:markers><rdf:Seq>"
              "<rdf:li><rdf:Description xmpDM:startTime=\"0\" ><b></b></rdf:Description></rdf:li>"
              "<rdf:li><rdf:Description xmpDM:startTime=\"2\" ></rdf:Description></rdf:li>"
              "</rdf:Seq></xmpDM:markers></rdf:Description></rdf:li>");
}

TEST(Track, AnAttributeThatLooksLikeTheMarkersDoesNotTakeTheirPlace)
{
    Track track;
    track.description().attribute("a", "<rdf:Seq></rdf:Seq>");
    const std::string text =
        textOf(track, [](MarkerWriter& markers) { markers.begin().attribute("k", "v").end(); });
    EXPECT_EQ(text, "<rdf:li><rdf:Description a=\"<rdf:Seq></rdf:Seq>\" ><xmpDM:markers><rdf:Seq>"
                    "<rdf:li><rdf:Description k=\"v\" ></rdf:Description></rdf:li>"
                    "</rdf:Seq></xmpDM:markers></rdf:Description></rdf:li>");
}

TEST(Track, PropertiesFollowTheMarkers)
{
    Track track;
    track.addProperty("zel:fgColor").attribute("xmpG:mode", "RGB");
    track.addProperty("zel:bgColor");
    const std::string text =
        textOf(track, [](MarkerWriter& markers) { markers.begin().attribute("k", "v").end(); });
    EXPECT_EQ(text, "<rdf:li><rdf:Description><xmpDM:markers><rdf:Seq>"
                    "<rdf:li><rdf:Description k=\"v\" ></rdf:Description></rdf:li>"
                    "</rdf:Seq></xmpDM:markers>"
                    "<zel:fgColor xmpG:mode=\"RGB\" ></zel:fgColor>"
                    "<zel:bgColor></zel:bgColor></rdf:Description></rdf:li>");
}

TEST(Track, APropertyOfTheSameNameIsNestedInTheFirst)
{
    Track track;
    track.addProperty("zel:x");
    track.addProperty("zel:x").attribute("k", "v");
    EXPECT_EQ(textOf(track), "<rdf:li><rdf:Description><xmpDM:markers><rdf:Seq></rdf:Seq>"
                             "</xmpDM:markers><zel:x><zel:x k=\"v\" ></zel:x></zel:x>"
                             "</rdf:Description></rdf:li>");
}

TEST(Track, TheTextCanBeWrittenAgain)
{
    Track track;
    EXPECT_EQ(textOf(track), textOf(track));
    track.addProperty("zel:x");
    EXPECT_EQ(textOf(track), "<rdf:li><rdf:Description><xmpDM:markers><rdf:Seq></rdf:Seq>"
                             "</xmpDM:markers><zel:x></zel:x></rdf:Description></rdf:li>");
}

} // namespace
} // namespace ZelInterchangeData
