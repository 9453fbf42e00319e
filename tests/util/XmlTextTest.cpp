/// @file
/// What XML forbids in a text.

#include "util/XmlText.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace ZelInterchangeData {
namespace {

constexpr auto none = XmlFaults::none;

/// The places of malformed, forbidden, control and unescaped characters.
using Places = std::tuple<std::size_t, std::size_t, std::size_t, std::size_t>;

Places placesIn(const std::string& text)
{
    const XmlFaults faults = findXmlFaults(text);
    return {faults.malformed, faults.forbidden, faults.control, faults.unescaped};
}

const Places noFault = {none, none, none, none};

TEST(XmlText, WhatEveryDocumentMayContainIsFine)
{
    for (const char* text :
         {"", "text", "\t\n\r", "' >", "]]>", "\x7F", "\xC2\x80", "\xC2\x9F", "\xDF\xBF",
          "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80", "\xEF\xB7\x90", "\xEF\xBF\xBD",
          "\xEF\xBB\xBF", "\xF0\x90\x80\x80", "\xF0\x9F\xBF\xBE", "\xF4\x8F\xBF\xBF"}) {
        EXPECT_EQ(noFault, placesIn(text)) << text;
    }
}

TEST(XmlText, AllOtherSequencesAreMalformed)
{
    for (const char* text : {"\x80",
                             "\xBF",
                             "\xC0\x80",
                             "\xC1\xBF",
                             "\xC2",
                             "\xC2\xC2\x80",
                             "\xE0\x9F\xBF",
                             "\xE1\x80",
                             "\xE2\x82x",
                             "\xED\xA0\x80",
                             "\xED\xBF\xBF",
                             "\xF0\x8F\xBF\xBF",
                             "\xF1\x80\x80",
                             "\xF4\x90\x80\x80",
                             "\xF7\xBF\xBF\xBF",
                             "\xF8\x90\x80\x80",
                             "\xF8\x88\x80\x80\x80",
                             "\xFC\x84\x80\x80\x80\x80",
                             "\xFE",
                             "\xFF"}) {
        EXPECT_EQ(Places(2, none, none, none), placesIn("ab" + std::string(text))) << text;
    }
}

TEST(XmlText, TheLastTwoCharactersOfTheFirstPlaneAreForbidden)
{
    EXPECT_EQ(Places(none, 2, none, none), placesIn("ab\xEF\xBF\xBE"));
    EXPECT_EQ(Places(none, 2, none, none), placesIn("ab\xEF\xBF\xBF"));
}

TEST(XmlText, ControlCharactersOtherThanWhiteSpaceAreFound)
{
    for (char c = 0; c < 0x20; ++c) {
        const bool isSpace = c == '\t' || c == '\n' || c == '\r';
        EXPECT_EQ(Places(none, none, isSpace ? none : 1, none), placesIn({'a', c, 'b'})) << int{c};
    }
}

TEST(XmlText, ReferencesAreEscaped)
{
    for (const char* text : {"&quot;", "&amp;", "&apos;", "&lt;", "&gt;", "&amp;amp;", "&#9;",
                             "&#10;", "&#x20;", "&#xaA;", "&#00065;", "&#xd7FF;", "&#xE000;",
                             "&#xFFFD;", "&#x10000;", "&#1114111;", "&#x0000000000000000000041;"}) {
        EXPECT_EQ(noFault, placesIn("a" + std::string(text))) << text;
        EXPECT_EQ(noFault, placesIn(std::string(text) + "b")) << text;
    }
}

TEST(XmlText, WhatAnAttributeMustNotContainIsFound)
{
    for (const char* text : {"\"",
                             "<",
                             "&",
                             "& ",
                             "&&amp;",
                             "&amp",
                             "&AMP;",
                             "&nbsp;",
                             "&;",
                             "&#",
                             "&#;",
                             "&#x;",
                             "&#X41;",
                             "&#6 5;",
                             "&#65",
                             "&#a;",
                             "&#xG;",
                             "&#0;",
                             "&#8;",
                             "&#x1F;",
                             "&#xD800;",
                             "&#xDFFF;",
                             "&#xFFFE;",
                             "&#65535;",
                             "&#x110000;",
                             "&#4294967361;",
                             "&#18446744073709551681;"}) {
        EXPECT_EQ(Places(none, none, none, 1), placesIn("a" + std::string(text))) << text;
    }
}

TEST(XmlText, TheFirstFaultOfEachKindCounts)
{
    EXPECT_EQ(Places(3, 5, 8, 9),
              placesIn(std::string("abc\x80") + "d\xEF\xBF\xBE\x01<\x80\xEF\xBF\xBF\x02\""));
}

TEST(XmlText, ManyUnfinishedReferencesTakeLinearTime)
{
    std::string text;
    for (int i = 0; i < 100000; ++i)
        text += "&#1";
    EXPECT_EQ(Places(none, none, none, 0), placesIn(text));
}

} // namespace
} // namespace ZelInterchangeData
