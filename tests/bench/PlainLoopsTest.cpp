#include "bench/PlainLoops.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "bench/TextSamples.h"

#include <gtest/gtest.h>

#include <random>

namespace ZelInterchangeData::bench {

namespace {

/// Short texts of the bytes that matter: leads, continuations, controls and special characters.
std::string randomText(std::mt19937_64& engine)
{
    constexpr std::string_view bytes = "ab\n\t\r\x01\"&'<>\x80\xBF\xC0\xC1\xC3\xE3\xEF\xF0\xF8\xFC"
                                       "\xFD\xFE\xFF";
    std::string text(engine() % 8, ' ');
    for (char& c : text)
        c = bytes[engine() % bytes.size()];
    return text;
}

TEST(PlainLoopsTest, FindTheFormThatTheLibraryFinds)
{
    std::mt19937_64 engine(1);
    for (int round = 0; round < 50000; ++round) {
        const std::string text = randomText(engine);
        const bool valid = ZelDataUtilities::verifyUtf8Format(text, false) == ZelData_Ok;
        ASSERT_EQ(hasUtf8Form(text), valid) << testing::PrintToString(text);
    }
}

TEST(PlainLoopsTest, EscapeAndStripAsTheLibraryDoes)
{
    std::mt19937_64 engine(2);
    for (int round = 0; round < 50000; ++round) {
        const std::string text = randomText(engine);
        std::string plain;
        appendEscapedByteByByte(plain, text);
        const std::string escaped = ZelDataUtilities::htmlTagsToText(text);
        ASSERT_EQ(plain, ZelDataUtilities::stripUnsupportedCharacters(escaped));
    }
}

TEST(TextSamplesTest, AreValidAndKeepTheirAlphabets)
{
    const auto samples = utf8Samples();
    for (const TextSample& sample : samples) {
        EXPECT_EQ(countValid(sample), sample.texts.size()) << sample.name;
        EXPECT_EQ(countValidPlainly(sample), sample.texts.size()) << sample.name;
    }
    const auto isAscii = [](const std::string& text) {
        return text.find_first_not_of("\n abcdefghijklmnopqrstuvwxyz") == std::string::npos;
    };
    for (const std::string& text : samples[0].texts)
        EXPECT_TRUE(isAscii(text)) << text;
}

TEST(TextSamplesTest, BothEscapesWriteTheSameText)
{
    const TextSample sample = captionSample();
    std::string ours;
    std::string plain;
    EXPECT_EQ(escapeAll(sample, ours), escapeAllPlainly(sample, plain));
    EXPECT_EQ(ours, plain);
    EXPECT_GT(ours.size(), sample.bytes) << "no text had a special character";
}

} // namespace

} // namespace ZelInterchangeData::bench
