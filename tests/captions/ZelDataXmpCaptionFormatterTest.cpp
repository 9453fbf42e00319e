/// @file
/// The caption track, byte by byte.

#include "captions/ZelDataXmpCaptionFormatter.h"
#include "captions/Captions.h"
#include "support/fakes/FailingCaptions.h"
#include "xml/ForeignLocale.h"

#include <limits>
#include <new>
#include <string>
#include <vector>

namespace ZelInterchangeData {
namespace {

constexpr auto keptCode = static_cast<ZelDataResult_tags>(0x40000E22);

/// The track of @p captions.
std::string written(const i_ZelDataCaptions& captions)
{
    ZelDataXmpCaptionFormatter formatter;
    EXPECT_CODE(formatter, ZelData_Ok, formatter.setCaptions(captions));
    std::string out = "replaced";
    EXPECT_CODE(formatter, ZelData_Ok, formatter.writeString(out, ZelDataFormat_Xmp, false));
    return out;
}

/// The part of @p text from @p first to @p last, both of which must occur.
std::string part(const std::string& text, const std::string& first, const std::string& last)
{
    const auto begin = text.find(first);
    const auto end = text.find(last, begin);
    EXPECT_NE(std::string::npos, begin) << first;
    EXPECT_NE(std::string::npos, end) << last;
    return begin == std::string::npos || end == std::string::npos
               ? std::string()
               : text.substr(begin, end - begin + last.size());
}

/// The written description tag of @p caption.
std::string markerOf(const Caption& caption)
{
    return part(written(*captionsOf({caption})), "<rdf:Description xmpDM:startTime", ">");
}

/// The written form of an English text.
std::string entryOf(const std::string& text)
{
    return part(written(*captionsOf({{0, 1, {{"en", text}}}})), "<rdf:Alt>", "</rdf:Alt>");
}

/// The written tag that begins with @p first, in captions with the styling @p style.
std::string tagOf(const Style& style, const std::string& first)
{
    const auto captions = captionsOf({{0, 1}});
    dress(*captions, style);
    return part(written(*captions), first, ">");
}

TEST(ZelDataXmpCaptionFormatter, WritesTheWholeTrack)
{
    const auto captions = captionsOf({{1500, 2000, {{"de", ""}, {"en", "Hi & bye"}}}});
    EXPECT_EQ("<rdf:li><rdf:Description xmpDM:trackType=\"Caption\" xmpDM:frameRate=\"f1000\" "
              "xmpDM:trackName=\"Captioning\" stFnt:fontFamily=\"Helvetica\" zelDM:fontSize=\"20\" "
              "zelDM:bgOpacity=\"0.6\" ><xmpDM:markers><rdf:Seq><rdf:li><rdf:Description "
              "xmpDM:startTime=\"1500\" xmpDM:duration=\"2000\" zelDM:valign=\"bottom\" "
              "zelDM:halign=\"center\" ><xmpDM:name><rdf:Alt><rdf:li "
              "xml:lang=\"de\">{\\rtf1 }</rdf:li><rdf:li xml:lang=\"en\">Hi &amp; bye</rdf:li>"
              "</rdf:Alt></xmpDM:name></rdf:Description></rdf:li></rdf:Seq></xmpDM:markers>"
              "<zel:fgColor xmpG:red=\"255\" xmpG:green=\"255\" xmpG:blue=\"255\" "
              "xmpG:mode=\"RGB\" ></zel:fgColor><zel:bgColor xmpG:red=\"0\" xmpG:green=\"0\" "
              "xmpG:blue=\"0\" xmpG:mode=\"RGB\" ></zel:bgColor></rdf:Description></rdf:li>",
              written(*captions));
}

TEST(ZelDataXmpCaptionFormatter, WritesEverythingThatDiffersFromTheDefaults)
{
    const auto captions = captionsOf({{70, 1, {{"en", "b"}}, 0x22}, {5, 9, {{"fr", "a"}}, 0x11}});
    dress(*captions, {25, "A & \"B\"", 500, {0.5F, 0.0F, 1.0F}, {0.25F, 0.75F, 0.999F}, 1.0F});
    EXPECT_EQ("<rdf:li><rdf:Description xmpDM:trackType=\"Caption\" xmpDM:frameRate=\"f25\" "
              "xmpDM:trackName=\"Captioning\" stFnt:fontFamily=\"A & \"B\"\" "
              "zelDM:fontSize=\"500\" zelDM:bgOpacity=\"1\" ><xmpDM:markers><rdf:Seq>"
              "<rdf:li><rdf:Description xmpDM:startTime=\"5\" xmpDM:duration=\"9\" "
              "zelDM:valign=\"bottom\" zelDM:halign=\"left\" ><xmpDM:name><rdf:Alt>"
              "<rdf:li xml:lang=\"en\">{\\rtf1 }</rdf:li><rdf:li xml:lang=\"fr\">a</rdf:li>"
              "</rdf:Alt></xmpDM:name></rdf:Description></rdf:li>"
              "<rdf:li><rdf:Description xmpDM:startTime=\"70\" xmpDM:duration=\"1\" "
              "zelDM:valign=\"top\" zelDM:halign=\"right\" ><xmpDM:name><rdf:Alt>"
              "<rdf:li xml:lang=\"en\">b</rdf:li><rdf:li xml:lang=\"fr\">{\\rtf1 }</rdf:li>"
              "</rdf:Alt></xmpDM:name></rdf:Description></rdf:li>"
              "</rdf:Seq></xmpDM:markers>"
              "<zel:fgColor xmpG:red=\"127\" xmpG:green=\"0\" xmpG:blue=\"255\" "
              "xmpG:mode=\"RGB\" ></zel:fgColor><zel:bgColor xmpG:red=\"63\" xmpG:green=\"191\" "
              "xmpG:blue=\"254\" xmpG:mode=\"RGB\" ></zel:bgColor></rdf:Description></rdf:li>",
              written(*captions));
}

TEST(ZelDataXmpCaptionFormatter, ACaptionWithoutAnyLanguageHasAnEmptyName)
{
    EXPECT_EQ("<xmpDM:name><rdf:Alt></rdf:Alt></xmpDM:name>",
              part(written(*captionsOf({{0, 1}})), "<xmpDM:name>", "</xmpDM:name>"));
}

TEST(ZelDataXmpCaptionFormatter, WritesTheLanguagesInOrderOfFirstOccurrence)
{
    EXPECT_EQ(
        "<rdf:Alt><rdf:li xml:lang=\"fr\">{\\rtf1 }</rdf:li><rdf:li xml:lang=\"de\">d"
        "</rdf:li><rdf:li xml:lang=\"en\">e</rdf:li></rdf:Alt>",
        part(written(*captionsOf({{5, 1, {{"fr", "f"}}}, {0, 1, {{"en", "e"}, {"de", "d"}}}})),
             "<rdf:Alt>", "</rdf:Alt>"));
}

TEST(ZelDataXmpCaptionFormatter, EscapesATextExactlyOnce)
{
    EXPECT_EQ(
        "<rdf:Alt><rdf:li xml:lang=\"en\">&lt;b&gt; &amp;amp; &quot;&apos;</rdf:li></rdf:Alt>",
        entryOf("<b> &amp; \"'"));
}

TEST(ZelDataXmpCaptionFormatter, DropsControlCharactersExceptLineFeeds)
{
    EXPECT_EQ("<rdf:Alt><rdf:li xml:lang=\"en\">ab\nc\x7F</rdf:li></rdf:Alt>",
              entryOf(std::string("a\tb\r\n\0c\x1F\x7F", 9)));
}

TEST(ZelDataXmpCaptionFormatter, ATextThatIsEmptyAfterStrippingGetsThePlaceholder)
{
    EXPECT_EQ("<rdf:Alt><rdf:li xml:lang=\"en\">{\\rtf1 }</rdf:li></rdf:Alt>", entryOf("\t\r"));
    EXPECT_EQ("<rdf:Alt><rdf:li xml:lang=\"en\">\n</rdf:li></rdf:Alt>", entryOf("\n"));
}

TEST(ZelDataXmpCaptionFormatter, WritesALanguageIDAsItIsStored)
{
    EXPECT_EQ("<rdf:li xml:lang=\"en-\"<&>\">",
              part(written(*captionsOf({{0, 1, {{"en-\"<&>", ""}}}})), "<rdf:li xml", "&>\">"));
}

TEST(ZelDataXmpCaptionFormatter, WritesTimesWithAllTheirDigits)
{
    EXPECT_EQ("<rdf:Description xmpDM:startTime=\"9223372036854775806\" xmpDM:duration=\"1\" "
              "zelDM:valign=\"bottom\" zelDM:halign=\"center\" >",
              markerOf({std::numeric_limits<long long>::max() - 1, 1}));
    EXPECT_EQ("<rdf:Description xmpDM:startTime=\"0\" xmpDM:duration=\"9223372036854775807\" "
              "zelDM:valign=\"bottom\" zelDM:halign=\"center\" >",
              markerOf({0, std::numeric_limits<long long>::max()}));
}

TEST(ZelDataXmpCaptionFormatter, WritesTheTwoAxesOfTheAlignment)
{
    const struct {
        unsigned alignment;
        const char* words;
    } cases[] = {
        {0x00, "zelDM:valign=\"center\" zelDM:halign=\"center\" >"},
        {0x22, "zelDM:valign=\"top\" zelDM:halign=\"right\" >"},
        {0x03, "zelDM:valign=\"bottom\" zelDM:halign=\"center\" >"},
        {0x30, "zelDM:valign=\"center\" zelDM:halign=\"left\" >"},
        {0xFFFFFFCC, "zelDM:valign=\"center\" zelDM:halign=\"center\" >"},
    };
    for (const auto& [alignment, words] : cases)
        EXPECT_EQ(words, part(markerOf({0, 1, {}, alignment}), "zelDM:valign", ">"));
}

TEST(ZelDataXmpCaptionFormatter, TruncatesColourComponentsTowardsZero)
{
    Style style;
    style.foreground = {0.999F, 0.003F, 0.004F};
    EXPECT_EQ("<zel:fgColor xmpG:red=\"254\" xmpG:green=\"0\" xmpG:blue=\"1\" xmpG:mode=\"RGB\" >",
              tagOf(style, "<zel:fgColor"));
    style.background = {-0.0F, 1.0F, 0.5F};
    EXPECT_EQ(
        "<zel:bgColor xmpG:red=\"0\" xmpG:green=\"255\" xmpG:blue=\"127\" xmpG:mode=\"RGB\" >",
        tagOf(style, "<zel:bgColor"));
}

TEST(ZelDataXmpCaptionFormatter, WritesANanAsAColourOfZero)
{
    Style style;
    style.foreground.fill(std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ("<zel:fgColor xmpG:red=\"0\" xmpG:green=\"0\" xmpG:blue=\"0\" xmpG:mode=\"RGB\" >",
              tagOf(style, "<zel:fgColor"));
}

TEST(ZelDataXmpCaptionFormatter, WritesTheOpacityWithSixDigits)
{
    const std::pair<float, const char*> cases[] = {
        {0.0F, "zelDM:bgOpacity=\"0\" >"},
        {0.333333333F, "zelDM:bgOpacity=\"0.333333\" >"},
        {0.00001F, "zelDM:bgOpacity=\"1e-05\" >"},
        {std::numeric_limits<float>::quiet_NaN(), "zelDM:bgOpacity=\"nan\" >"}};
    for (const auto& [opacity, words] : cases) {
        Style style;
        style.opacity = opacity;
        EXPECT_EQ(words, tagOf(style, "zelDM:bgOpacity"));
    }
}

TEST(ZelDataXmpCaptionFormatter, DoesNotDependOnTheLocale)
{
    const auto captions = captionsOf({{1234567, 2345678, {{"en", "a"}}}});
    EXPECT_EQ(ZelData_Ok, captions->setFrameRate(10000));
    const std::string expected = written(*captions);
    EXPECT_NE(std::string::npos, expected.find("\"f10000\""));
    EXPECT_NE(std::string::npos, expected.find("\"1234567\""));
    const ForeignLocale foreign;
    EXPECT_EQ(expected, written(*captions));
}

TEST(ZelDataXmpCaptionFormatter, WritesItemsThatNoCheckWouldPass)
{
    const auto captions = captionsOf({{0, 1, {{"en", "1\n2\n3\n4\n5\n6"}}}, {0, 1}});
    EXPECT_EQ(ZelData_WarnItemGuidelines, captions->isValid(true));
    EXPECT_NE("", written(*captions));
}

// The texts of one item

TEST(BuildCaptionList, AppendsTheTextsInListOrder)
{
    const auto item = itemOf({0, 1, {{"de", "d"}, {"en", "e"}, {"fr", ""}}});
    std::string text = "before";
    EXPECT_TRUE(buildCaptionList({"fr", "en"}, *item, text));
    EXPECT_EQ("before<xmpDM:name><rdf:Alt><rdf:li xml:lang=\"fr\">{\\rtf1 }</rdf:li>"
              "<rdf:li xml:lang=\"en\">e</rdf:li></rdf:Alt></xmpDM:name>",
              text);
}

TEST(BuildCaptionList, SkipsALanguageWithoutTextAndReturnsFalse)
{
    const auto item = itemOf({0, 1, {{"en", "e"}}});
    std::string text;
    EXPECT_FALSE(buildCaptionList({"de", "en"}, *item, text));
    EXPECT_EQ("<xmpDM:name><rdf:Alt><rdf:li xml:lang=\"en\">e</rdf:li></rdf:Alt></xmpDM:name>",
              text);
}

TEST(BuildCaptionList, NoLanguagesGiveAnEmptyList)
{
    std::string text;
    EXPECT_TRUE(buildCaptionList({}, *itemOf({0, 1, {{"en", "e"}}}), text));
    EXPECT_EQ("<xmpDM:name><rdf:Alt></rdf:Alt></xmpDM:name>", text);
}

TEST(BuildCaptionList, TreatsAWarningAsAMissingText)
{
    FailingCaptionItem item;
    fill(item, {0, 1, {{"en", "e"}}});
    item.failAt("getTextForLanguage", ZelData_WarnTiming, keptCode);
    std::string text;
    EXPECT_FALSE(buildCaptionList({"en"}, item, text));
}

TEST(BuildCaptionList, DoesNotMistakeExhaustedMemoryForAMissingText)
{
    FailingCaptionItem item;
    fill(item, {0, 1, {{"en", "e"}}});
    item.failAt("getTextForLanguage", ZelData_OutOfMemory, ZelData_OutOfMemory);
    std::string text;
    EXPECT_THROW(buildCaptionList({"en"}, item, text), std::bad_alloc);
}

/// An item whose end cannot be read, although its last error is success.
class ItemWithoutEnd : public ZelDataCaptionItem {
public:
    ZelDataResult_tags getEnd(long long& /*end*/) const override
    {
        setLastError(ZelData_Ok);
        return ZelData_NotFound;
    }
};

/// Captions that hand out one such item.
class CaptionsWithoutEnd : public ZelDataCaptions {
public:
    ZelDataResult_tags getCaptionItems(std::vector<i_ZelDataCaptionItem*>& items) const override
    {
        items.assign(1, new ItemWithoutEnd);
        return ZelData_Ok;
    }
};

TEST(ZelDataXmpCaptionFormatter, DoesNotWriteAPartlyCopiedItem)
{
    ZelDataXmpCaptionFormatter formatter;
    EXPECT_CODE(formatter, ZelData_Ok, formatter.setCaptions(CaptionsWithoutEnd()));
    std::string out = "kept";
    EXPECT_CODE(formatter, ZelData_InvalidArgument,
                formatter.writeString(out, ZelDataFormat_Xmp, false));
    EXPECT_EQ("kept", out);
}

} // namespace
} // namespace ZelInterchangeData
