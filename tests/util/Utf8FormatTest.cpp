/// @file
/// Compares the check of UTF-8 sequences with a model of the encoding in bits.

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "support/FailingAllocation.h"
#include "support/TextRules.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <random>
#include <string>
#include <vector>

namespace ZelInterchangeData {
namespace {

ZelDataResult_tags check(const std::string& text)
{
    return ZelDataUtilities::verifyUtf8Format(text, false);
}

ZelDataResult_tags checkBmp(const std::string& text)
{
    return ZelDataUtilities::verifyUtf8Format(text, true);
}

std::string hexOf(const std::string& text)
{
    std::string hex;
    for (const char c : text) {
        const unsigned byte = static_cast<unsigned char>(c);
        hex.append({"0123456789ABCDEF"[byte >> 4U], "0123456789ABCDEF"[byte & 15U], ' '});
    }
    return hex;
}

bool agrees(const std::string& text, bool bmpOnly)
{
    return ZelDataUtilities::verifyUtf8Format(text, bmpOnly) == utf8Code(text, bmpOnly);
}

/// Compares the results for all texts with other values in the last @p free bytes of @p text.
void expectAgreement(std::string& text, std::size_t free, bool bmpOnly)
{
    if (free == 0) {
        if (!agrees(text, bmpOnly)) ADD_FAILURE() << hexOf(text);
        return;
    }
    for (int byte = 0; byte < 256 && !::testing::Test::HasFailure(); ++byte) {
        text[text.size() - free] = static_cast<char>(byte);
        expectAgreement(text, free - 1, bmpOnly);
    }
}

class VerifyUtf8FormatOfAll : public ::testing::TestWithParam<bool> {};

TEST_P(VerifyUtf8FormatOfAll, TextsOfOneByte)
{
    std::string text(1, '\0');
    expectAgreement(text, 1, GetParam());
}

TEST_P(VerifyUtf8FormatOfAll, TextsOfTwoBytes)
{
    std::string text(2, '\0');
    expectAgreement(text, 2, GetParam());
}

TEST_P(VerifyUtf8FormatOfAll, TextsOfThreeBytes)
{
    std::string text(3, '\0');
    expectAgreement(text, 3, GetParam());
}

TEST_P(VerifyUtf8FormatOfAll, LongerTextsOfBoundaryBytes)
{
    // The borders of all ranges of lead and continuation bytes, continuation bytes more often.
    const std::string bytes =
        "\x7F\x80\x80\x80\x80\xBF\xBF\xBF\xBF\xC0\xC1\xC2\xDF\xE0\xEF\xF0\xF7\xF8"
        "\xFB\xFC\xFD\xFE\xFF\n";
    std::mt19937 random(20090305);
    for (int round = 0; round < 300000 && !HasFailure(); ++round) {
        std::string text;
        const std::size_t length = 4 + random() % 9;
        while (text.size() < length)
            text.push_back(bytes[random() % bytes.size()]);
        if (!agrees(text, GetParam())) ADD_FAILURE() << hexOf(text);
    }
}

TEST_P(VerifyUtf8FormatOfAll, LongTextsOfWholeSequencesWithOneChangedByte)
{
    const std::vector<std::string> sequences = {
        "a",
        "bc",
        "\xC3\xBC",
        "\xDF\xBF",
        "\xE3\x81\x82",
        "\xEF\xBF\xBF",
        "\xF0\x9F\x98\x80",
        "\xF8\x88\x80\x80\x80",
        "\xFD\xBF\xBF\xBF\xBF\xBF",
    };
    std::mt19937 random(7);
    for (int round = 0; round < 200000 && !HasFailure(); ++round) {
        std::string text;
        for (std::size_t count = random() % 20; count > 0; --count)
            text += sequences[random() % sequences.size()];
        if (!agrees(text, GetParam())) ADD_FAILURE() << hexOf(text);
        if (text.empty()) continue;
        text[random() % text.size()] = static_cast<char>(random() % 256);
        if (!agrees(text, GetParam())) ADD_FAILURE() << hexOf(text);
        text.resize(random() % text.size());
        if (!agrees(text, GetParam())) ADD_FAILURE() << hexOf(text);
    }
}

INSTANTIATE_TEST_SUITE_P(, VerifyUtf8FormatOfAll, ::testing::Bool(), [](const auto& range) {
    return range.param ? "WithinTheBmp" : "Anywhere";
});

TEST(VerifyUtf8Format, AcceptsTheEmptyText)
{
    EXPECT_EQ(check(""), ZelData_Ok);
    EXPECT_EQ(checkBmp(""), ZelData_Ok);
}

TEST(VerifyUtf8Format, AcceptsOneAndTwoByteSequences)
{
    EXPECT_EQ(check(std::string("\x00\x7F", 2)), ZelData_Ok);
    EXPECT_EQ(check("\xC3\xA9"), ZelData_Ok);
    EXPECT_EQ(checkBmp("\xC3\xA9"), ZelData_Ok);
}

TEST(VerifyUtf8Format, RefusesATextThatEndsInsideASequence)
{
    EXPECT_EQ(check("\xC3"), ZelData_InvalidUtf8);
    EXPECT_EQ(check("ab\xE2\x82"), ZelData_InvalidUtf8);
    EXPECT_EQ(checkBmp("ab\xE2\x82"), ZelData_InvalidUtf8);
}

TEST(VerifyUtf8Format, RefusesAStrayContinuationByte)
{
    EXPECT_EQ(check("\xA9"), ZelData_InvalidUtf8);
    EXPECT_EQ(check("\xC3\xA9\xA9"), ZelData_InvalidUtf8);
}

TEST(VerifyUtf8Format, RefusesTheOverlongLeads)
{
    EXPECT_EQ(check("\xC0\x80"), ZelData_InvalidUtf8);
    EXPECT_EQ(check("\xC1\xBF"), ZelData_InvalidUtf8);
}

TEST(VerifyUtf8Format, AcceptsFourByteSequencesOnlyBeyondTheBmp)
{
    EXPECT_EQ(check("\xF0\x9F\x98\x80"), ZelData_Ok);
    EXPECT_EQ(checkBmp("\xF0\x9F\x98\x80"), ZelData_UnsupportedCharacter);
}

TEST(VerifyUtf8Format, RefusesTheBytesFeAndFf)
{
    EXPECT_EQ(check("\xFE"), ZelData_InvalidUtf8);
    EXPECT_EQ(check("\xFF"), ZelData_InvalidUtf8);
    EXPECT_EQ(check("\xFE\x80\x80\x80\x80\x80\x80"), ZelData_InvalidUtf8);
}

TEST(VerifyUtf8Format, RefusesHighLeadsWithinTheBmpWhateverFollows)
{
    for (int lead = 0xF0; lead <= 0xFF; ++lead) {
        const std::string text(1, static_cast<char>(lead));
        EXPECT_EQ(checkBmp(text), ZelData_UnsupportedCharacter) << lead;
        EXPECT_EQ(checkBmp(text + "x"), ZelData_UnsupportedCharacter) << lead;
        EXPECT_EQ(checkBmp("abc" + text + "\x80\xFF"), ZelData_UnsupportedCharacter) << lead;
    }
}

TEST(VerifyUtf8Format, ReturnsTheCodeOfTheFirstOffence)
{
    EXPECT_EQ(checkBmp("\xF0\x9F\x98\x80\x80"), ZelData_UnsupportedCharacter);
    EXPECT_EQ(checkBmp("\x80\xF0\x9F\x98\x80"), ZelData_InvalidUtf8);
    EXPECT_EQ(checkBmp("\xE2\xF0\x9F\x98\x80"), ZelData_InvalidUtf8);
}

struct LongForm {
    int firstLead;
    int lastLead;
    std::size_t length;
};

constexpr std::array<LongForm, 3> longForms = {{{0xF0, 0xF7, 4}, {0xF8, 0xFB, 5}, {0xFC, 0xFD, 6}}};

/// Calls @p visit with the length and each lead byte of the forms of four to six bytes.
template <class Visit>
void forEachLongLead(Visit visit)
{
    for (const LongForm& form : longForms) {
        for (int lead = form.firstLead; lead <= form.lastLead; ++lead) {
            visit(form.length, std::string(1, static_cast<char>(lead)));
        }
    }
}

TEST(VerifyUtf8Format, AcceptsTheOldFormsOfFiveAndSixBytes)
{
    EXPECT_EQ(check("\xF8\x88\x80\x80\x80"), ZelData_Ok);
    EXPECT_EQ(check("\xFD\xBF\xBF\xBF\xBF\xBF"), ZelData_Ok);
}

TEST(VerifyUtf8Format, AcceptsLongFormsOnlyAtTheirExactLength)
{
    forEachLongLead([](std::size_t length, const std::string& lead) {
        for (std::size_t following = 0; following <= 7; ++following) {
            const ZelDataResult_tags expected =
                following + 1 == length ? ZelData_Ok : ZelData_InvalidUtf8;
            EXPECT_EQ(check(lead + std::string(following, '\x80')), expected) << following;
            EXPECT_EQ(check(lead + std::string(following, '\xBF') + "x"), expected) << following;
        }
    });
}

TEST(VerifyUtf8Format, ChecksEveryContinuationByteOfTheLongForms)
{
    forEachLongLead([](std::size_t length, const std::string& lead) {
        for (std::size_t position = 1; position < length; ++position) {
            std::string text = lead + std::string(length - 1, '\x9F');
            for (int byte = 0; byte < 256; ++byte) {
                text[position] = static_cast<char>(byte);
                const bool continues = byte >= 0x80 && byte <= 0xBF;
                EXPECT_EQ(check(text), continues ? ZelData_Ok : ZelData_InvalidUtf8) << hexOf(text);
            }
        }
    });
}

TEST(VerifyUtf8Format, RefusesASequenceWithOtherCharactersInside)
{
    forEachLongLead([](std::size_t length, const std::string& lead) {
        for (std::size_t before = 0; before < 16; ++before) {
            for (std::size_t inside = 1; inside <= 24; ++inside) {
                const std::string begun = std::string(before, 'a') + lead;
                const std::string rest(length - 1, '\x9F');
                EXPECT_EQ(check(begun + rest + "b"), ZelData_Ok);
                EXPECT_EQ(check(begun + std::string(inside, 'i') + rest + "b"), ZelData_InvalidUtf8)
                    << before << ' ' << inside;
            }
        }
    });
}

TEST(VerifyUtf8Format, AcceptsOverlongFormsOfThreeAndFourBytes)
{
    EXPECT_EQ(check("\xE0\x80\x80"), ZelData_Ok);
    EXPECT_EQ(check("\xF0\x80\x80\x80"), ZelData_Ok);
}

TEST(VerifyUtf8Format, AcceptsEncodedSurrogates)
{
    EXPECT_EQ(check("\xED\xA0\x80\xED\xBF\xBF"), ZelData_Ok);
    EXPECT_EQ(checkBmp("\xED\xA0\x80"), ZelData_Ok);
}

TEST(VerifyUtf8Format, AcceptsValuesAboveTheLastCodePoint)
{
    EXPECT_EQ(check("\xF4\x90\x80\x80"), ZelData_Ok);
    EXPECT_EQ(check("\xF7\xBF\xBF\xBF"), ZelData_Ok);
}

TEST(VerifyUtf8Format, AllocatesNothing)
{
    const std::string text(1000, 'x');
    ZelDataResult_tags code = ZelData_InternalError;
    std::size_t allocations = 0;
    {
        const FailingAllocation watch;
        code = check(text);
        allocations = watch.count();
    }
    EXPECT_EQ(code, ZelData_Ok);
    EXPECT_EQ(allocations, 0U);
}

} // namespace
} // namespace ZelInterchangeData
