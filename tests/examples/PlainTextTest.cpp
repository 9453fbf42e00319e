/// @file
/// Removing markup.

#include "PlainText.h"

#include <gtest/gtest.h>

using publish::isNothingButBlanks;
using publish::plainText;

namespace {

std::string srt(const std::string& text)
{
    return plainText(text, false);
}

std::string webVtt(const std::string& text)
{
    return plainText(text, true);
}

TEST(PlainText, TagsAreRemoved)
{
    EXPECT_EQ(srt("<i>a</i> <font color=\"red\">b</font>"), "a b");
    EXPECT_EQ(webVtt("<v Ann>a<00:01.000> <c.x>b</c>"), "a b");
}

TEST(PlainText, TagsMaySpanLines)
{
    EXPECT_EQ(srt("a<x\ny>b"), "ab");
}

TEST(PlainText, UnclosedTagStays)
{
    EXPECT_EQ(srt("a < b"), "a < b");
    EXPECT_EQ(srt("<i>1 < 2"), "1 < 2");
    EXPECT_EQ(srt("3 > 2 < 4"), "3 > 2 < 4");
    EXPECT_EQ(srt("<"), "<");
}

TEST(PlainText, TagEndsAtTheNextClosingOne)
{
    EXPECT_EQ(srt("<a<b>c>d"), "c>d");
}

TEST(PlainText, OverrideBlocksAreRemoved)
{
    EXPECT_EQ(srt("{\\an8}a{\\i1}b{\\i0}"), "ab");
    EXPECT_EQ(srt("a{\\x\ny}b"), "ab");
}

TEST(PlainText, UnclosedOverrideBlockStays)
{
    EXPECT_EQ(srt("{\\an8 a"), "{\\an8 a");
    EXPECT_EQ(srt("a}{\\"), "a}{\\");
}

TEST(PlainText, BraceWithoutBackslashStays)
{
    EXPECT_EQ(srt("{an8}a {b}"), "{an8}a {b}");
    EXPECT_EQ(srt("{"), "{");
}

TEST(PlainText, WhatOpensFirstWins)
{
    EXPECT_EQ(srt("<{\\>a}b"), "a}b");
    EXPECT_EQ(srt("{\\<}a>b"), "a>b");
    EXPECT_EQ(srt("{\\a <b>c"), "{\\a c");
    EXPECT_EQ(srt("<a {\\b}c"), "<a c");
}

TEST(PlainText, ResultIsNotScannedAgain)
{
    EXPECT_EQ(srt("<<a>b>"), "b>");
    EXPECT_EQ(srt("{<a>\\b}"), "{\\b}");
}

TEST(PlainText, EntitiesBecomeCharactersInWebVtt)
{
    EXPECT_EQ(webVtt("&amp;&lt;&gt;a&nbsp;b&lrm;c&rlm;"), "&<>a\xC2\xA0"
                                                          "b\xE2\x80\x8E"
                                                          "c\xE2\x80\x8F");
}

TEST(PlainText, EntitiesStayInSrt)
{
    EXPECT_EQ(srt("&amp;&lt;&gt;&nbsp;&lrm;&rlm;"), "&amp;&lt;&gt;&nbsp;&lrm;&rlm;");
}

TEST(PlainText, OtherEntitiesStay)
{
    EXPECT_EQ(webVtt("&quot;&apos;&#65;&AMP;&amp &lt"), "&quot;&apos;&#65;&AMP;&amp &lt");
}

TEST(PlainText, CharacterOfAnEntityIsNotScannedAgain)
{
    EXPECT_EQ(webVtt("&amp;lt;"), "&lt;");
    EXPECT_EQ(webVtt("&lt;i&gt;a"), "<i>a");
    EXPECT_EQ(webVtt("&lt;i>a"), "<i>a");
}

TEST(PlainText, EntitiesInsideMarkupAreRemovedWithIt)
{
    EXPECT_EQ(webVtt("<v A&amp;B>a{\\&gt;}b"), "ab");
}

TEST(PlainText, EntityDoesNotCloseMarkup)
{
    EXPECT_EQ(webVtt("<a&gt;b"), "<a>b");
}

TEST(PlainText, BlanksAtLineEndsAreRemovedAgain)
{
    EXPECT_EQ(srt("a <i>\nb\t</i>\nc"), "a\nb\nc");
    EXPECT_EQ(srt("<b> </b>"), "");
}

TEST(PlainText, EmptiedLinesStay)
{
    EXPECT_EQ(srt("<i></i>\na\n<b></b>"), "\na\n");
}

TEST(PlainText, NoBreakSpaceAtALineEndStays)
{
    EXPECT_EQ(webVtt("a&nbsp;"), "a\xC2\xA0");
}

TEST(PlainText, ManyOpeningsAreScannedQuickly)
{
    std::string openings;
    for (int i = 0; i < 1'000'000; ++i)
        openings += "<{\\&";
    EXPECT_EQ(webVtt(openings).size(), 4'000'000U);
    EXPECT_EQ(webVtt(">}" + openings).size(), 4'000'002U);
}

TEST(NothingButBlanks, BlanksTabsAndLineFeedsAreNothing)
{
    EXPECT_TRUE(isNothingButBlanks(""));
    EXPECT_TRUE(isNothingButBlanks(" \t\n \n"));
    EXPECT_FALSE(isNothingButBlanks(" . "));
    EXPECT_FALSE(isNothingButBlanks("\xC2\xA0"));
    EXPECT_FALSE(isNothingButBlanks("\x01"));
}

} // namespace
