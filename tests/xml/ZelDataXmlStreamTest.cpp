/// @file
/// The root of an element tree, and the escaping of text.

#include "xml/ZelDataXmlStream.h"

#include "xml/TreeVerbs.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <type_traits>
#include <utility>

namespace ZelInterchangeData {
namespace {

static_assert(std::is_base_of_v<ZelDataXmlNode, ZelDataXmlStream>);
static_assert(!std::is_copy_constructible_v<ZelDataXmlStream>);
static_assert(std::is_void_v<decltype(std::declval<ZelDataXmlStream&>().parseXml(""))>);

TEST(ZelDataXmlStream, IsEmptyWhenItIsNew)
{
    const ZelDataXmlStream stream;
    EXPECT_EQ(stream.getXml(false), "");
}

TEST(ZelDataXmlStream, WritesADeclarationOfThirtyNineCharactersWhenAsked)
{
    const ZelDataXmlStream stream;
    EXPECT_EQ(stream.getXml(true), "<?xml version=\"1.0\" encoding=\"utf-8\" ?>");
    EXPECT_EQ(stream.getXml(true).size(), 39U);
}

TEST(ZelDataXmlStream, WritesNothingBetweenDeclarationAndFirstElement)
{
    ZelDataXmlStream stream;
    stream < "a";
    EXPECT_EQ(stream.getXml(true), "<?xml version=\"1.0\" encoding=\"utf-8\" ?><a></a>");
}

TEST(ZelDataXmlStream, WritesItsChildrenInOrderOfCreation)
{
    ZelDataXmlStream stream;
    stream < "a";
    stream < "b";
    EXPECT_EQ(stream.getXml(false), "<a></a><b></b>");
}

TEST(ZelDataXmlStream, NeverWritesItsOwnTagsAttributesAndText)
{
    ZelDataXmlStream stream;
    stream.setName("root");
    stream.attribute("k", "v").text("t");
    EXPECT_EQ(stream.getXml(false), "");
    stream < "a";
    EXPECT_EQ(stream.getXml(false), "<a></a>");
}

TEST(ZelDataXmlStream, AcceptsANumberAsItsTextAndNeverWritesIt)
{
    ZelDataXmlStream stream;
    (stream = 5L) < "lost";
    EXPECT_EQ(stream.getXml(false), "");
}

TEST(ZelDataXmlStream, ParsingLeavesTheTreeAsItIs)
{
    ZelDataXmlStream stream;
    stream < "a";
    stream.parseXml("<b></b>");
    EXPECT_EQ(stream.getXml(false), "<a></a>");
}

TEST(ZelDataXmlStream, EscapesTheFiveSpecialCharacters)
{
    EXPECT_EQ(ZelDataXmlStream::getSafeXmlString("a<b & \"c\" 'd'>"),
              "a&lt;b &amp; &quot;c&quot; &apos;d&apos;&gt;");
}

TEST(ZelDataXmlStream, EscapesEntitiesAgain)
{
    EXPECT_EQ(ZelDataXmlStream::getSafeXmlString("&amp;"), "&amp;amp;");
    EXPECT_EQ(ZelDataXmlStream::getSafeXmlString("&lt;"), "&amp;lt;");
}

TEST(ZelDataXmlStream, EscapesRunsOfSpecialCharacters)
{
    EXPECT_EQ(ZelDataXmlStream::getSafeXmlString("&&<<>>\"\"''"),
              "&amp;&amp;&lt;&lt;&gt;&gt;&quot;&quot;&apos;&apos;");
}

TEST(ZelDataXmlStream, EscapingLeavesEveryOtherByteAlone)
{
    std::string others;
    for (int byte = 0; byte < 256; ++byte) {
        const char character = static_cast<char>(byte);
        if (std::string("&<>\"'").find(character) == std::string::npos) others += character;
    }
    ASSERT_EQ(others.size(), 251U);
    EXPECT_EQ(ZelDataXmlStream::getSafeXmlString(others), others);
    EXPECT_EQ(ZelDataXmlStream::getSafeXmlString(""), "");
}

TEST(ZelDataXmlStream, EscapingWorksOnACopy)
{
    const std::string text = "<";
    EXPECT_EQ(ZelDataXmlStream::getSafeXmlString(text), "&lt;");
    EXPECT_EQ(text, "<");
}

TEST(ReplaceAll, DoesNotSearchTheReplacement)
{
    std::string subject = "aaa";
    EXPECT_EQ(replaceAll(subject, "a", "aa"), "aaaaaa");
}

TEST(ReplaceAll, WorksInPlaceAndReturnsItsSubject)
{
    std::string subject = "a-b-c";
    EXPECT_EQ(&replaceAll(subject, "-", "+"), &subject);
    EXPECT_EQ(subject, "a+b+c");
}

TEST(ReplaceAll, LeavesASubjectWithoutAnOccurrenceAlone)
{
    std::string subject = "abc";
    EXPECT_EQ(&replaceAll(subject, "x", "y"), &subject);
    EXPECT_EQ(subject, "abc");
    std::string empty;
    EXPECT_EQ(replaceAll(empty, "x", "y"), "");
}

TEST(ReplaceAll, RemovesWithAnEmptyReplacement)
{
    std::string subject = "-a--b-";
    EXPECT_EQ(replaceAll(subject, "-", ""), "ab");
}

TEST(ReplaceAll, ReplacesFromTheLeftWithoutOverlap)
{
    std::string subject = "aaa";
    EXPECT_EQ(replaceAll(subject, "aa", "b"), "ba");
}

TEST(ReplaceAll, DoesNotSearchAcrossASeam)
{
    std::string subject = "aabb";
    EXPECT_EQ(replaceAll(subject, "ab", ""), "ab");
}

TEST(ReplaceAll, ReplacesAWholeSubject)
{
    std::string subject = "abc";
    EXPECT_EQ(replaceAll(subject, "abc", "xyz!"), "xyz!");
}

TEST(ReplaceAll, KeepsZeroBytes)
{
    std::string subject("a\0b\0", 4);
    EXPECT_EQ(replaceAll(subject, std::string("\0", 1), "0"), "a0b0");
}

TEST(ReplaceAll, ReplacesAMillionOccurrences)
{
    constexpr std::size_t count = 1000000;
    std::string subject(count, '&');
    replaceAll(subject, "&", "&amp;");
    std::string expected;
    for (std::size_t index = 0; index < count; ++index)
        expected += "&amp;";
    EXPECT_TRUE(subject == expected);
}

} // namespace
} // namespace ZelInterchangeData
