/// @file
/// Compares text written into markup with the two utilities that define it.

#include "support/TextRules.h"
#include "util/TextUtilities.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace ZelInterchangeData {
namespace {

void expectBoth(const std::string& text)
{
    std::string escaped = "before";
    appendEscaped(escaped, text);
    ASSERT_EQ("before" + markupOf(text, false), escaped);
    std::string stripped = "before";
    appendEscapedStripped(stripped, text);
    ASSERT_EQ("before" + markupOf(text, true), stripped);
}

TEST(MarkupText, MatchesTheUtilitiesForEveryByteAtEveryPositionOfABlock)
{
    for (int byte = 0; byte < 256; ++byte) {
        for (std::size_t place = 0; place < 20; ++place) {
            std::string text(20, 'x');
            text[place] = static_cast<char>(byte);
            expectBoth(text);
        }
    }
}

TEST(MarkupText, MatchesTheUtilitiesForEveryPairOfBytes)
{
    for (int pair = 0; pair < 65536; ++pair) {
        std::string text("aaaaaaa");
        text += static_cast<char>(pair >> 8);
        text += static_cast<char>(pair & 0xFF);
        expectBoth(text);
    }
}

TEST(MarkupText, IsReadFromTheTextAlone)
{
    for (std::size_t size = 0; size <= 40; ++size) {
        for (std::size_t place = 0; place <= size; ++place) {
            std::vector<char> text(size, 'x'); // a sanitizer watches what surrounds it
            if (place < size) text[place] = '\n';
            const std::string_view view(text.data(), size);
            std::string escaped;
            appendEscaped(escaped, view);
            appendEscapedStripped(escaped, view);
            const std::string once(view);
            ASSERT_EQ(once + once, escaped) << size << ' ' << place;
        }
    }
}

TEST(MarkupText, MatchesTheUtilitiesForRandomTexts)
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
