/// @file
/// Text on its way into markup, against the two utilities that define it.

#include "util/MarkupText.h"

#include <gtest/gtest.h>

#include <random>

namespace ZelInterchangeData {
namespace {

/// What each byte becomes, one at a time.
std::string byteByByte(const std::string& text, bool strip)
{
    std::string result;
    for (const char c : text) {
        switch (c) {
        case '"':
            result += "&quot;";
            break;
        case '&':
            result += "&amp;";
            break;
        case '\'':
            result += "&apos;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        default:
            if (!strip || static_cast<unsigned char>(c) > 31 || c == '\n') result += c;
        }
    }
    return result;
}

void expectBoth(const std::string& text)
{
    std::string escaped = "before";
    appendEscaped(escaped, text);
    ASSERT_EQ("before" + byteByByte(text, false), escaped);
    std::string stripped = "before";
    appendEscapedStripped(stripped, text);
    ASSERT_EQ("before" + byteByByte(text, true), stripped);
}

TEST(MarkupText, EveryByteAtEveryPlaceOfABlockBecomesWhatItShould)
{
    for (int byte = 0; byte < 256; ++byte) {
        for (std::size_t place = 0; place < 20; ++place) {
            std::string text(20, 'x');
            text[place] = static_cast<char>(byte);
            expectBoth(text);
        }
    }
}

TEST(MarkupText, EveryPairOfBytesBecomesWhatItShould)
{
    for (int pair = 0; pair < 65536; ++pair) {
        std::string text("aaaaaaa");
        text += static_cast<char>(pair >> 8);
        text += static_cast<char>(pair & 0xFF);
        expectBoth(text);
    }
}

TEST(MarkupText, RandomTextsBecomeWhatTheyShould)
{
    std::mt19937 random(22);
    const std::string likely = "\"&'<>\n\t\r\x01\x1F\x7F abc";
    for (int round = 0; round < 20000; ++round) {
        std::string text(random() % 50, ' ');
        for (char& c : text) {
            c = random() % 3 == 0 ? likely[random() % likely.size()]
                                  : static_cast<char>(random() % 256);
        }
        expectBoth(text);
    }
}

} // namespace
} // namespace ZelInterchangeData
