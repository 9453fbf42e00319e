/// @file
/// The markers of a track.

#include "xml/MarkerWriter.h"

#include <gtest/gtest.h>

#include <limits>

namespace ZelInterchangeData {
namespace {

TEST(MarkerWriter, WritesAttributesInOrderWithASpaceAfterEach)
{
    std::string text = "before";
    MarkerWriter markers(text);
    markers.begin().attribute("a", "1").attribute("b", -5LL).attribute("c", 7ULL).end();
    markers.finish();
    EXPECT_EQ(text, "before<rdf:li><rdf:Description a=\"1\" b=\"-5\" c=\"7\" >"
                    "</rdf:Description></rdf:li>");
}

TEST(MarkerWriter, WritesTheExtremesOfNumbers)
{
    std::string text;
    MarkerWriter markers(text);
    markers.begin()
        .attribute("a", std::numeric_limits<long long>::min())
        .attribute("b", std::numeric_limits<unsigned long long>::max())
        .end();
    markers.finish();
    EXPECT_EQ(text, "<rdf:li><rdf:Description a=\"-9223372036854775808\" "
                    "b=\"18446744073709551615\" ></rdf:Description></rdf:li>");
}

TEST(MarkerWriter, EscapesAndStripsOnlyOnRequest)
{
    std::string text;
    MarkerWriter markers(text);
    markers.begin()
        .attribute("a", "<\t>")
        .escaped("b", "<\t>")
        .escapedStripped("c", "<\t>\n")
        .end();
    markers.finish();
    EXPECT_EQ(text, "<rdf:li><rdf:Description a=\"<\t>\" b=\"&lt;\t&gt;\" c=\"&lt;&gt;\n\" >"
                    "</rdf:Description></rdf:li>");
}

TEST(MarkerWriter, WritesTheContentBetweenTheTags)
{
    std::string text;
    MarkerWriter markers(text);
    markers.begin().attribute("a", "").content().append("<x></x>");
    markers.endContent();
    markers.finish();
    EXPECT_EQ(text, "<rdf:li><rdf:Description a=\"\" ><x></x></rdf:Description></rdf:li>");
}

} // namespace
} // namespace ZelInterchangeData
