/// @file
/// Strict UTF-8, and the characters dropped from texts.

#include "Text.h"

#include <gtest/gtest.h>

using publish::argumentText;
using publish::firstWords;
using publish::isStrictUtf8;
using publish::printable;
using publish::withoutNoncharacters;

namespace {

TEST(StrictUtf8, EmptyTextPasses)
{
    EXPECT_TRUE(isStrictUtf8(""));
}

TEST(StrictUtf8, FirstAndLastCharacterOfEachLengthPass)
{
    EXPECT_TRUE(isStrictUtf8(std::string(1, '\0') + "\x7F"));
    EXPECT_TRUE(isStrictUtf8("\xC2\x80\xDF\xBF"));
    EXPECT_TRUE(isStrictUtf8("\xE0\xA0\x80\xEF\xBF\xBF"));
    EXPECT_TRUE(isStrictUtf8("\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"));
}

TEST(StrictUtf8, NeighboursOfTheSurrogatesPass)
{
    EXPECT_TRUE(isStrictUtf8("\xED\x9F\xBF\xEE\x80\x80"));
}

TEST(StrictUtf8, SurrogatesAreRefused)
{
    EXPECT_FALSE(isStrictUtf8("\xED\xA0\x80"));
    EXPECT_FALSE(isStrictUtf8("\xED\xBF\xBF"));
}

TEST(StrictUtf8, OverlongFormsAreRefused)
{
    EXPECT_FALSE(isStrictUtf8("\xC0\x80"));
    EXPECT_FALSE(isStrictUtf8("\xC1\xBF"));
    EXPECT_FALSE(isStrictUtf8("\xE0\x9F\xBF"));
    EXPECT_FALSE(isStrictUtf8("\xF0\x8F\xBF\xBF"));
}

TEST(StrictUtf8, ValuesAboveTheLastCharacterAreRefused)
{
    EXPECT_FALSE(isStrictUtf8("\xF4\x90\x80\x80"));
    EXPECT_FALSE(isStrictUtf8("\xF5\x80\x80\x80"));
    EXPECT_FALSE(isStrictUtf8("\xF8\x88\x80\x80\x80"));
    EXPECT_FALSE(isStrictUtf8("\xFC\x84\x80\x80\x80\x80"));
    EXPECT_FALSE(isStrictUtf8("\xFE"));
    EXPECT_FALSE(isStrictUtf8("\xFF"));
}

TEST(StrictUtf8, StrayAndMissingContinuationBytesAreRefused)
{
    EXPECT_FALSE(isStrictUtf8("a\x80"));
    EXPECT_FALSE(isStrictUtf8("\xC3"));
    EXPECT_FALSE(isStrictUtf8("\xC3(")); // NOLINT(bugprone-suspicious-string-literal): deliberate
    EXPECT_FALSE(isStrictUtf8("\xE2\x82"));
    EXPECT_FALSE(isStrictUtf8("\xE2\x82z"));
    EXPECT_FALSE(isStrictUtf8("\xF0\x9F\x98"));
    EXPECT_FALSE(isStrictUtf8("\xF0\x9F\x98z"));
}

TEST(Noncharacters, FffeAndFfffAreDropped)
{
    EXPECT_EQ(withoutNoncharacters("a\xEF\xBF\xBE"
                                   "b\xEF\xBF\xBF"
                                   "c"),
              "abc");
}

TEST(Noncharacters, TheirNeighboursAndThoseOfOtherPlanesStay)
{
    const std::string kept = "\xEF\xBF\xBD\xF0\x9F\xBF\xBE\xF0\x9F\xBF\xBF\xEF\xB7\x90";
    EXPECT_EQ(withoutNoncharacters(kept), kept);
}

TEST(Noncharacters, ControlCharactersStay)
{
    const std::string kept = std::string("a\0b\x01\x7F\r\n\t", 8) + "\xC2\x85";
    EXPECT_EQ(withoutNoncharacters(kept), kept);
}

TEST(ArgumentText, TabAndLineFeedBecomeBlanks)
{
    EXPECT_EQ(argumentText("a\tb\nc"), "a b c");
}

TEST(ArgumentText, OtherControlCharactersAreDropped)
{
    EXPECT_EQ(argumentText("a\x01"
                           "b\rc\x1F"
                           "d\x7F"
                           "e\xC2\x80"
                           "f\xC2\x9F"
                           "g\xC2\xA0"),
              "abcdefg\xC2\xA0");
}

TEST(ArgumentText, NoncharactersAreDropped)
{
    EXPECT_EQ(argumentText("\xEF\xBF\xBEx\xEF\xBF\xBF"), "x");
}

TEST(Printable, StaysOnOneLineAndShowsForeignBytes)
{
    EXPECT_EQ(printable("a\nb\x7F\xFF\xC3\xA9"), "a\\x0Ab\\x7F\\xFF\xC3\xA9");
    EXPECT_EQ(printable("\xC2\x85"), "\\xC2\\x85");
    EXPECT_EQ(printable("\xE2\x82"), "\\xE2\\x82");
}

TEST(FirstWords, ShortTextIsWhole)
{
    EXPECT_EQ(firstWords(""), "");
    EXPECT_EQ(firstWords("two\nlines\tmore\x01"), "two lines more\\x01");
    EXPECT_EQ(firstWords(std::string(40, 'x')), std::string(40, 'x'));
}

TEST(FirstWords, LongTextIsCutBetweenWords)
{
    EXPECT_EQ(firstWords("It was a dark and stormy night; the rain fell in torrents"),
              "It was a dark and stormy night; the rain...");
    EXPECT_EQ(firstWords("It was a dark and stormy night; the rainy season"),
              "It was a dark and stormy night; the...");
}

TEST(FirstWords, LongWordIsCutBetweenCharacters)
{
    EXPECT_EQ(firstWords(std::string(41, 'x')), std::string(40, 'x') + "...");
    std::string boat;
    for (int count = 0; count < 40; ++count)
        boat += "\xE8\x88\x9F";
    EXPECT_EQ(firstWords(boat), boat);
    EXPECT_EQ(firstWords(boat + "\xE8\x88\x9F"), boat + "...");
}

TEST(Joined, SeparatesEachTwoParts)
{
    EXPECT_EQ(publish::joined({}, ", "), "");
    EXPECT_EQ(publish::joined({"a"}, ", "), "a");
    EXPECT_EQ(publish::joined({"", "b", ""}, ", "), ", b, ");
}

} // namespace
