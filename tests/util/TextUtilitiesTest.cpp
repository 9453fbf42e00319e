/// @file
/// Line counts, stripping, escaping and alignment words.

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "support/FailingAllocation.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace ZelInterchangeData {
namespace {

unsigned long lines(const std::string& text)
{
    return ZelDataUtilities::countLinesInUTF8(text);
}

std::string strip(const std::string& text)
{
    return ZelDataUtilities::stripUnsupportedCharacters(text);
}

std::string escape(const std::string& text)
{
    return ZelDataUtilities::htmlTagsToText(text);
}

std::string unescape(const std::string& text)
{
    return ZelDataUtilities::htmlTagsFromText(text);
}

std::string allBytes()
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes.push_back(static_cast<char>(byte));
    return bytes;
}

// Lines

TEST(CountLinesInUTF8, CountsAnUnfinishedLastLine)
{
    EXPECT_EQ(lines("a\nb"), 2U);
    EXPECT_EQ(lines("1\n2\n3\n4\n5"), 5U);
    EXPECT_EQ(lines("\nb"), 2U);
}

TEST(CountLinesInUTF8, CountsNoLineAfterTheLastLineFeed)
{
    EXPECT_EQ(lines("a\nb\n"), 2U);
    EXPECT_EQ(lines("a\n"), 1U);
    EXPECT_EQ(lines("\n"), 1U);
    EXPECT_EQ(lines("\n\n\n"), 3U);
}

TEST(CountLinesInUTF8, ReturnsZeroForATextWithoutALineFeed)
{
    EXPECT_EQ(lines("one line"), 0U);
    EXPECT_EQ(lines("abc"), 0U);
    EXPECT_EQ(lines(std::string(100000, 'x')), 0U);
    EXPECT_EQ(lines(""), 0U);
}

TEST(CountLinesInUTF8, IgnoresCarriageReturns)
{
    EXPECT_EQ(lines("a\rb\rc"), 0U);
    EXPECT_EQ(lines("a\r\nb\r\n"), 2U);
    EXPECT_EQ(lines("a\n\r"), 2U);
}

TEST(CountLinesInUTF8, ReturnsZeroForInvalidUtf8)
{
    EXPECT_EQ(lines("a\nb\xC3"), 0U);
    EXPECT_EQ(lines("a\n\x80\n"), 0U);
}

TEST(CountLinesInUTF8, CountsBeyondTheBmp)
{
    EXPECT_EQ(lines("\xF0\x9F\x98\x80\n\xF8\x88\x80\x80\x80"), 2U);
}

// Stripping

TEST(StripUnsupportedCharacters, DropsTabAndCarriageReturnAndKeepsTheLineFeed)
{
    EXPECT_EQ(strip("a\tb\r\nc"), "ab\nc");
}

TEST(StripUnsupportedCharacters, DropsTheBytesBelowTheSpaceAndKeepsAllOthers)
{
    std::string expected = "\n";
    for (int byte = 0x20; byte < 256; ++byte)
        expected.push_back(static_cast<char>(byte));
    EXPECT_EQ(strip(allBytes()), expected);
}

TEST(StripUnsupportedCharacters, KeepsMultiByteSequencesAndTheDeleteByte)
{
    EXPECT_EQ(strip("\x7F\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\x80"),
              "\x7F\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\x80");
}

TEST(StripUnsupportedCharacters, DropsAtBothEndsAndInRuns)
{
    EXPECT_EQ(strip(std::string("\0\1\2x\3\4y\5\6\7", 10)), "xy");
    EXPECT_EQ(strip("\r\r\r"), "");
    EXPECT_EQ(strip(""), "");
}

TEST(StripUnsupportedCharacters, ReservesTheLengthOfTheInput)
{
    const std::string result = strip("a" + std::string(5000, '\t'));
    EXPECT_EQ(result, "a");
    EXPECT_GE(result.capacity(), 5001U);
}

TEST(StripUnsupportedCharacters, PropagatesExhaustedMemory)
{
    const std::string text(1000, 'x');
    EXPECT_TRUE(runsOutOfMemory(0, [&] { strip(text); }));
}

// Escaping

TEST(HtmlTagsToText, EscapesTheFiveCharactersOfMarkup)
{
    EXPECT_EQ(escape("\""), "&quot;");
    EXPECT_EQ(escape("&"), "&amp;");
    EXPECT_EQ(escape("'"), "&apos;");
    EXPECT_EQ(escape("<"), "&lt;");
    EXPECT_EQ(escape(">"), "&gt;");
    EXPECT_EQ(escape("<a href='x'>&</a>"), "&lt;a href=&apos;x&apos;&gt;&amp;&lt;/a&gt;");
}

TEST(HtmlTagsToText, CopiesEveryOtherByte)
{
    for (const char c : allBytes()) {
        const std::string text(1, c);
        const bool isMarkup = std::string("\"&'<>").find(c) != std::string::npos;
        EXPECT_EQ(escape(text) != text, isMarkup) << static_cast<int>(c);
        EXPECT_EQ(escape("x" + text + "y").size(), escape(text).size() + 2);
    }
}

TEST(HtmlTagsToText, EscapesEscapedTextAgain)
{
    EXPECT_EQ(escape("&lt;"), "&amp;lt;");
}

TEST(HtmlTagsToText, EscapesLongTextsOfMarkupOnly)
{
    for (const std::size_t length : {4095U, 4096U, 5000U, 70000U}) {
        std::string expected;
        for (std::size_t i = 0; i < length; ++i)
            expected += "&amp;";
        EXPECT_EQ(expected, ZelDataUtilities::htmlTagsToText(std::string(length, '&')));
        const std::string plain(length, 'x');
        EXPECT_EQ(plain, ZelDataUtilities::htmlTagsToText(plain));
    }
}

TEST(HtmlTagsToText, LeavesAnEmptyTextEmpty)
{
    EXPECT_EQ(escape(""), "");
}

TEST(HtmlTagsToText, PropagatesExhaustedMemory)
{
    const std::string text(1000, '&');
    // the reservation succeeds, the growth fails
    EXPECT_TRUE(runsOutOfMemory(1, [&] { escape(text); }));
}

// Unescaping

TEST(HtmlTagsFromText, DecodesTheFiveEntitiesBeforeFurtherText)
{
    EXPECT_EQ(unescape("x &lt; y"), "x < y");
    EXPECT_EQ(unescape("&amp;&apos;&gt;&lt;&quot;."), "&'><\".");
}

TEST(HtmlTagsFromText, DoesNotDecodeAnEntityAtTheVeryEnd)
{
    EXPECT_EQ(unescape("x &lt;"), "x &t;");
    EXPECT_EQ(unescape("&gt;"), "&t;");
    EXPECT_EQ(unescape("&quot;"), "&uot;");
    EXPECT_EQ(unescape("&amp;"), "&ap;");
    EXPECT_EQ(unescape("&apos;"), "&aos;");
    EXPECT_EQ(unescape("&lt;&lt;"), "<&t;");
}

TEST(HtmlTagsFromText, DropsTheSecondByteOfAnUnknownEntity)
{
    EXPECT_EQ(unescape("&nbsp;"), "&bsp;");
    EXPECT_EQ(unescape("&lx"), "&x");
    EXPECT_EQ(unescape("&gtx"), "&tx");
    EXPECT_EQ(unescape("&q"), "&");
    EXPECT_EQ(unescape("& b"), "&b");
    EXPECT_EQ(unescape("&LT;x"), "&T;x");
    EXPECT_EQ(unescape("&#60;x"), "&60;x");
}

TEST(HtmlTagsFromText, DropsTheThirdByteAfterAnA)
{
    EXPECT_EQ(unescape("&amx"), "&ax");
    EXPECT_EQ(unescape("&apx"), "&ax");
    EXPECT_EQ(unescape("&ax"), "&a");
    EXPECT_EQ(unescape("&am"), "&a");
    EXPECT_EQ(unescape("&amp"), "&ap");
    EXPECT_EQ(unescape("&aacute;x"), "&acute;x");
}

TEST(HtmlTagsFromText, CopiesAnAmpersandAtTheEndWithTheAThatFollows)
{
    EXPECT_EQ(unescape("a&"), "a&");
    EXPECT_EQ(unescape("&"), "&");
    EXPECT_EQ(unescape("&a"), "&a");
    EXPECT_EQ(unescape("b&a"), "b&a");
}

TEST(HtmlTagsFromText, DoesNotScanTheDroppedByteAgain)
{
    EXPECT_EQ(unescape("&&lt;x"), "&lt;x");
    EXPECT_EQ(unescape("&&&"), "&&");
    EXPECT_EQ(unescape("&a&lt;x"), "&alt;x");
}

TEST(HtmlTagsFromText, DecodesOnce)
{
    EXPECT_EQ(unescape("&amp;lt;x"), "&lt;x");
    EXPECT_EQ(unescape("&amp;amp;amp;x"), "&amp;amp;x");
}

TEST(HtmlTagsFromText, CopiesEveryOtherByte)
{
    std::string text = allBytes();
    text.erase(text.find('&'), 1);
    EXPECT_EQ(unescape(text), text);
    EXPECT_EQ(unescape(""), "");
}

TEST(HtmlTagsFromText, RestoresEscapedTextThatOtherTextFollows)
{
    const std::string text = allBytes() + "<\"&'>" + allBytes() + ".";
    EXPECT_EQ(unescape(escape(text)), text);
}

/// Decodes one "&", byte by byte, and sets @p at to where the scan continues.
std::string decodedAt(const std::string& text, std::size_t& at)
{
    const auto byte = [&text](std::size_t i) { return i < text.size() ? text[i] : '\0'; };
    const std::size_t start = at;
    std::size_t selector = start + 1;
    std::string markup;
    std::string character;
    if (byte(selector) == 'g') markup = "&gt;", character = ">";
    if (byte(selector) == 'l') markup = "&lt;", character = "<";
    if (byte(selector) == 'q') markup = "&quot;", character = "\"";
    if (byte(selector) == 'a') {
        ++selector;
        if (byte(selector) == 'm') markup = "&amp;", character = "&";
        if (byte(selector) == 'p') markup = "&apos;", character = "'";
    }
    const bool goesOn = start + markup.size() < text.size();
    if (!markup.empty() && goesOn && text.substr(start, markup.size()) == markup) {
        at = start + markup.size();
        return character;
    }
    at = selector + 1;
    return text.substr(start, selector - start);
}

std::string expectedDecoding(const std::string& text)
{
    std::string result;
    for (std::size_t at = 0; at < text.size();) {
        if (text[at] == '&') {
            result += decodedAt(text, at);
        } else {
            result += text[at++];
        }
    }
    return result;
}

/// Compares the decoding of all texts that extend @p text by up to @p pieces pieces of entities.
void expectDecoding(const std::string& text, int pieces)
{
    static const std::vector<std::string> all = {
        "&", "a",   "m",    "p",    "g",    "l",    "q",     "t",      ";",
        "x", "amp", "apos", "quot", "&lt;", "&gt;", "&amp;", "&apos;", "&quot;"};
    EXPECT_EQ(unescape(text), expectedDecoding(text)) << text;
    if (pieces == 0 || ::testing::Test::HasFailure()) return;
    for (const std::string& piece : all)
        expectDecoding(text + piece, pieces - 1);
}

TEST(HtmlTagsFromText, MatchesTheByteByByteModelForEveryMixOfPieces)
{
    expectDecoding("", 4);
}

TEST(HtmlTagsFromText, PropagatesExhaustedMemory)
{
    const std::string text(1000, 'x');
    EXPECT_TRUE(runsOutOfMemory(0, [&] { unescape(text); }));
}

// Alignment words

std::string vertical(std::uint32_t bits)
{
    return ZelDataUtilities::getVerticalAlignment(static_cast<ZelAlignment_tags>(bits));
}

std::string horizontal(std::uint32_t bits)
{
    return ZelDataUtilities::getHorizontalAlignment(static_cast<ZelAlignment_tags>(bits));
}

TEST(GetVerticalAlignment, NamesEachFlagAndLetsBottomWin)
{
    EXPECT_EQ(vertical(0x00), "center");
    EXPECT_EQ(vertical(0x01), "bottom");
    EXPECT_EQ(vertical(0x02), "top");
    EXPECT_EQ(vertical(0x03), "bottom");
}

TEST(GetVerticalAlignment, IgnoresOtherBits)
{
    EXPECT_EQ(vertical(0xFFFFFFFC), "center");
    EXPECT_EQ(vertical(0xFFFFFFFE), "top");
    EXPECT_EQ(vertical(0x30), "center");
}

TEST(GetHorizontalAlignment, NamesEachFlagAndLetsLeftWin)
{
    EXPECT_EQ(horizontal(0x00), "center");
    EXPECT_EQ(horizontal(0x10), "left");
    EXPECT_EQ(horizontal(0x20), "right");
    EXPECT_EQ(horizontal(0x30), "left");
}

TEST(GetHorizontalAlignment, IgnoresOtherBits)
{
    EXPECT_EQ(horizontal(0xFFFFFFCF), "center");
    EXPECT_EQ(horizontal(0xFFFFFFEF), "right");
    EXPECT_EQ(horizontal(0x03), "center");
}

} // namespace
} // namespace ZelInterchangeData
