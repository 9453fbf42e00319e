/// @file
/// Reading cues from SRT and WebVTT files.

#include "SubtitleReader.h"

#include <gtest/gtest.h>

#include <limits>

using publish::Cue;
using publish::readSubtitles;
using publish::Subtitles;

namespace publish {

bool operator==(const Cue& a, const Cue& b)
{
    return a.start == b.start && a.end == b.end && a.text == b.text;
}

void PrintTo(const Cue& cue, std::ostream* out)
{
    *out << cue.start << " to " << cue.end << ": \"" << cue.text << '"';
}

} // namespace publish

namespace {

using Cues = std::vector<Cue>;

constexpr long long latest = std::numeric_limits<long long>::max();

Subtitles read(const std::string& bytes)
{
    const std::optional<Subtitles> subtitles = readSubtitles(bytes);
    EXPECT_TRUE(subtitles.has_value());
    return subtitles.value_or(Subtitles{});
}

Cues cuesOf(const std::string& bytes)
{
    return read(bytes).cues;
}

/// Expects that @p line is a timing line with these times.
void expectTiming(const std::string& line, long long start, long long end)
{
    const Subtitles subtitles = read(line + "\nx\n");
    EXPECT_EQ(subtitles.cues, (Cues{{start, end, "x"}})) << line;
    EXPECT_EQ(subtitles.malformed.size(), 0U) << line;
}

/// Expects that @p line is malformed, and that its text is dropped with it.
void expectMalformed(const std::string& line)
{
    const Subtitles subtitles = read(line + "\nlost\n\n00:09.000 --> 00:10.000\nkept\n");
    EXPECT_EQ(subtitles.malformed.size(), 1U) << line;
    EXPECT_EQ(subtitles.cues, (Cues{{9000, 10000, "kept"}})) << line;
}

TEST(FileKind, SignatureAloneMakesWebVtt)
{
    EXPECT_TRUE(read("WEBVTT").isWebVtt);
    EXPECT_TRUE(read("WEBVTT\n\n").isWebVtt);
    EXPECT_TRUE(read("WEBVTT\r\n").isWebVtt);
    EXPECT_TRUE(read("WEBVTT\r").isWebVtt);
}

TEST(FileKind, SignatureFollowedByBlankOrTabMakesWebVtt)
{
    EXPECT_TRUE(read("WEBVTT - a title").isWebVtt);
    EXPECT_TRUE(read("WEBVTT\ta title").isWebVtt);
    EXPECT_TRUE(read("WEBVTT ").isWebVtt);
}

TEST(FileKind, EveryOtherFirstLineMakesSrt)
{
    EXPECT_FALSE(read("").isWebVtt);
    EXPECT_FALSE(read("1\n").isWebVtt);
    EXPECT_FALSE(read("WEBVTTX\n").isWebVtt);
    EXPECT_FALSE(read("webvtt\n").isWebVtt);
    EXPECT_FALSE(read(" WEBVTT\n").isWebVtt);
    EXPECT_FALSE(read("\nWEBVTT\n").isWebVtt);
    EXPECT_FALSE(read("WEBVT").isWebVtt);
}

TEST(FileKind, OneByteOrderMarkIsDropped)
{
    EXPECT_TRUE(read("\xEF\xBB\xBFWEBVTT\n").isWebVtt);
    EXPECT_FALSE(read("\xEF\xBB\xBF\xEF\xBB\xBFWEBVTT\n").isWebVtt);
}

TEST(FileKind, NoncharactersDoNotHideTheSignature)
{
    EXPECT_TRUE(read("WEB\xEF\xBF\xBEVTT\n").isWebVtt);
}

TEST(FileBytes, BytesThatAreNotStrictUtf8AreRefused)
{
    EXPECT_FALSE(readSubtitles("1\n00:01.000 --> 00:02.000\n\xED\xA0\x80").has_value());
    EXPECT_FALSE(readSubtitles("\xC0\xAF").has_value());
    EXPECT_FALSE(readSubtitles("\xF4\x90\x80\x80").has_value());
    EXPECT_FALSE(readSubtitles("caf\xE9").has_value());
    EXPECT_FALSE(readSubtitles("\xFF\xFEW\n").has_value());
}

TEST(FileBytes, ByteOrderMarkBeforeATimingLineIsDropped)
{
    EXPECT_EQ(cuesOf("\xEF\xBB\xBF"
                     "00:01.000 --> 00:02.000\na"),
              (Cues{{1000, 2000, "a"}}));
}

TEST(FileBytes, SecondByteOrderMarkIsText)
{
    EXPECT_EQ(read("\xEF\xBB\xBF\xEF\xBB\xBF"
                   "00:01.000 --> 00:02.000\na")
                  .malformed.size(),
              1U);
}

TEST(FileBytes, AllThreeLineEndsCountAsLineFeeds)
{
    const Cues expected{{1000, 2000, "a\nb"}, {3000, 4000, "c"}};
    EXPECT_EQ(cuesOf("1\n00:01.000 --> 00:02.000\na\nb\n\n2\n00:03.000 --> 00:04.000\nc\n"),
              expected);
    EXPECT_EQ(cuesOf("1\r\n00:01.000 --> 00:02.000\r\na\r\nb\r\n\r\n2\r\n"
                     "00:03.000 --> 00:04.000\r\nc\r\n"),
              expected);
    EXPECT_EQ(cuesOf("1\r00:01.000 --> 00:02.000\ra\rb\r\r2\r00:03.000 --> 00:04.000\rc\r"),
              expected);
}

TEST(FileBytes, CarriageReturnBeforeCrLfMakesAnEmptyLine)
{
    EXPECT_EQ(cuesOf("00:01.000 --> 00:02.000\na\r\r\nb"), (Cues{{1000, 2000, "a"}}));
}

TEST(FileBytes, NoncharactersAreDroppedFromTextAndTimingLine)
{
    EXPECT_EQ(cuesOf("00:01.0\xEF\xBF\xBF"
                     "00 --\xEF\xBF\xBE> 00:02.000\na\xEF\xBF\xBE"
                     "b\n\xEF\xBF\xBF\nc"),
              (Cues{{1000, 2000, "ab"}}));
}

TEST(FileBytes, OtherControlCharactersStay)
{
    EXPECT_EQ(cuesOf(std::string("00:01.000 --> 00:02.000\na\x01\0b\x7F", 29)),
              (Cues{{1000, 2000, std::string("a\x01\0b\x7F", 5)}}));
}

TEST(TimingLine, HoursMayBeMissing)
{
    expectTiming("01:02.003 --> 04:05.006", 62003, 245006);
    expectTiming("00:01:02.003 --> 00:04:05.006", 62003, 245006);
}

TEST(TimingLine, HoursHaveAnyNumberOfDigits)
{
    expectTiming("1:00:00.000 --> 100:00:00.000", 3600000, 360000000);
    expectTiming("00000000000000000000000000001:00:00.000 --> 2:00:00.000", 3600000, 7200000);
}

TEST(TimingLine, MinutesAndSecondsHaveOneOrTwoDigits)
{
    expectTiming("1:2.000 --> 03:04.000", 62000, 184000);
    expectTiming("59:59.999 --> 1:59:59.999", 3599999, 7199999);
}

TEST(TimingLine, PointAndCommaAreAlike)
{
    expectTiming("00:01,500 --> 00:02.500", 1500, 2500);
}

TEST(TimingLine, FractionIsPaddedOnTheRight)
{
    expectTiming("00:01.5 --> 00:02.05", 1500, 2050);
    expectTiming("00:01.050 --> 00:02.005", 1050, 2005);
}

TEST(TimingLine, BlanksAndTabsAroundItAreIgnored)
{
    expectTiming(" \t00:01.000 \t --> \t 00:02.000\t", 1000, 2000);
    expectTiming("00:01.000-->00:02.000", 1000, 2000);
}

TEST(TimingLine, SettingsAfterABlankOrTabAreIgnored)
{
    expectTiming("00:01.000 --> 00:02.000 align:start position:0%", 1000, 2000);
    expectTiming("00:01.000 --> 00:02.000\tX1:40 X2:600", 1000, 2000);
    expectTiming("00:01.000 --> 00:02.000 --> 00:03.000", 1000, 2000);
}

TEST(TimingLine, LatestTimePasses)
{
    expectTiming("00:00.000 --> 2562047788015:12:55.807", 0, latest);
}

TEST(TimingLine, LaterTimesAreMalformed)
{
    expectMalformed("00:00.000 --> 2562047788015:12:55.808");
    expectMalformed("2562047788015:12:55.808 --> 2562047788015:12:55.809");
    expectMalformed("00:00.000 --> 2562047788016:00:00.000");
    expectMalformed("00:00.000 --> 5124095576031:00:00.000");
    expectMalformed("00:00.000 --> 18446744073709551616:00:00.000");
    expectMalformed("00:00.000 --> 99999999999999999999999999:00:00.000");
}

TEST(TimingLine, MinutesAndSecondsFromSixtyAreMalformed)
{
    expectMalformed("60:00.000 --> 61:00.000");
    expectMalformed("00:01.000 --> 00:60.000");
    expectMalformed("0:60:00.000 --> 1:00:01.000");
}

TEST(TimingLine, MissingAndTooManyDigitsAreMalformed)
{
    expectMalformed("00:01 --> 00:02");
    expectMalformed("00:01. --> 00:02.000");
    expectMalformed("00:01.0000 --> 00:02.000");
    expectMalformed("00:001.000 --> 00:02.000");
    expectMalformed("000:01:000.000 --> 00:02.000");
    expectMalformed("1:000:01.000 --> 1:00:02.000");
    expectMalformed(":00:01.000 --> 00:02.000");
    expectMalformed("01.000 --> 02.000");
    expectMalformed("0:0:0:01.000 --> 00:02.000");
    expectMalformed("-->");
    expectMalformed("00:01.000 -->");
    expectMalformed("--> 00:02.000");
}

TEST(TimingLine, OtherCharactersAreMalformed)
{
    expectMalformed("-00:01.000 --> 00:02.000");
    expectMalformed("+0:01.000 --> 00:02.000");
    expectMalformed("00:01.000 --> 00:02.000x");
    expectMalformed("00:01.000 --> 00:02.000,");
    expectMalformed("1 00:01.000 --> 00:02.000");
    expectMalformed("00: 01.000 --> 00:02.000");
    expectMalformed("00:01;000 --> 00:02.000");
    expectMalformed("00:01.000 ---> 00:02.000");
    expectMalformed("00:01.000\xC2\xA0--> 00:02.000");
    expectMalformed("\xD9\xA0\xD9\xA0:01.000 --> 00:02.000");
    expectMalformed("text --> text");
}

TEST(CueWithoutLength, EndAtOrBeforeTheStartIsLeftOutWithItsText)
{
    const Subtitles subtitles = read("00:01.000 --> 00:01.000\nlost\n\n"
                                     "00:02.000 --> 00:01.000\nlost\n\n"
                                     "00:01.000 --> 00:01.001\nkept\n");
    EXPECT_EQ(subtitles.withoutLength.size(), 2U);
    EXPECT_EQ(subtitles.malformed.size(), 0U);
    EXPECT_EQ(subtitles.cues, (Cues{{1000, 1001, "kept"}}));
}

TEST(CueText, EndsAtAnEmptyLine)
{
    EXPECT_EQ(cuesOf("00:01.000 --> 00:02.000\na\n\nb\n"), (Cues{{1000, 2000, "a"}}));
}

TEST(CueText, EndsAtALineOfBlanksAndTabs)
{
    EXPECT_EQ(cuesOf("00:01.000 --> 00:02.000\na\n \t \nb\n"), (Cues{{1000, 2000, "a"}}));
}

TEST(CueText, EndsAtTheNextArrow)
{
    EXPECT_EQ(cuesOf("00:01.000 --> 00:02.000\na\n00:03.000 --> 00:04.000\nb"),
              (Cues{{1000, 2000, "a"}, {3000, 4000, "b"}}));
}

TEST(CueText, EndsAtAMalformedArrowToo)
{
    const Subtitles subtitles = read("00:01.000 --> 00:02.000\na\nb --> c\nd\n");
    EXPECT_EQ(subtitles.cues, (Cues{{1000, 2000, "a"}}));
    EXPECT_EQ(subtitles.malformed.size(), 1U);
}

TEST(CueText, NumberBeforeAnArrowWithoutAnEmptyLineBelongsToTheText)
{
    EXPECT_EQ(cuesOf("00:01.000 --> 00:02.000\na\n2\n00:03.000 --> 00:04.000\nb"),
              (Cues{{1000, 2000, "a\n2"}, {3000, 4000, "b"}}));
}

/// The lines of the numbers that the texts of @p bytes swallowed; 0 for a cue that swallowed none.
std::vector<std::size_t> swallowedNumbers(const std::string& bytes)
{
    std::vector<std::size_t> lines;
    for (const Cue& cue : cuesOf(bytes))
        lines.push_back(cue.swallowedNumber);
    return lines;
}

using Lines = std::vector<std::size_t>;

TEST(SwallowedNumber, DigitsRightBeforeATimingLine)
{
    EXPECT_EQ(swallowedNumbers("1\n00:01.000 --> 00:02.000\na\n2 \n00:03.000 --> 00:04.000\nb\n"
                               "17\nx --> y\n"),
              (Lines{4, 7}));
    EXPECT_EQ(swallowedNumbers("00:01.000 --> 00:02.000\n2\n00:03.000 --> 00:04.000\n"),
              (Lines{2, 0}));
}

TEST(SwallowedNumber, BlankLineOtherTextOrNoTimingLineIsNone)
{
    const std::string next = "00:03.000 --> 00:04.000\nb\n";
    const std::string first = "00:01.000 --> 00:02.000\n";
    for (const std::string text : {"a\n2\n\n", "a\n\n2\n", "2\na\n", "a 2\n", "2.\n", "-2\n"})
        EXPECT_EQ(swallowedNumbers(first + text + next), (Lines{0, 0})) << text;
    EXPECT_EQ(swallowedNumbers(first + "a\n2\n"), (Lines{0}));
    EXPECT_EQ(swallowedNumbers("x --> y\n2\n" + next), (Lines{0}));
}

/// The lines of @p skipped.
std::vector<std::size_t> linesOf(const std::vector<publish::SkippedLines>& skipped)
{
    std::vector<std::size_t> lines;
    for (const publish::SkippedLines& one : skipped)
        lines.push_back(one.line);
    return lines;
}

using Lines = std::vector<std::size_t>;

TEST(SwallowedTiming, FirstLineThatBeginsWithATimeAndHasAnotherArrow)
{
    const Subtitles subtitles = read("00:01.000 --> 00:02.000\na\n2\n00:03,000 \xE2\x80\x93> x\n"
                                     "00:04.000 => 00:05.000\n\n"
                                     "00:06.000 --> 00:07.000\n00:08.000\n1 -> 2\n");
    ASSERT_EQ(subtitles.cues.size(), 2U);
    EXPECT_EQ(subtitles.cues[0].swallowedTiming, 4U);
    EXPECT_EQ(subtitles.cues[1].swallowedTiming, 0U);
    EXPECT_EQ(linesOf(subtitles.malformed), Lines{});
}

TEST(MalformedCue, MayHaveAnotherArrow)
{
    const Subtitles subtitles = read("1\n00:01.000 -> 00:02.000\nlost\n\n"
                                     "00:03.000 > 00:04.000\n\n00:05.000 --> 00:06.000\na\n");
    EXPECT_EQ(linesOf(subtitles.malformed), (Lines{2, 5}));
    EXPECT_EQ(linesOf(subtitles.outside), Lines{});
    EXPECT_EQ(subtitles.cues, (Cues{{5000, 6000, "a"}}));
}

TEST(OutsideACue, EachBlockIsListedByItsFirstLine)
{
    const Subtitles subtitles = read("title\n\n00:01.000 --> 00:02.000\na\n\nsecond\nparagraph\n\n"
                                     "lost\n2\n00:03.000 --> 00:04.000\nb\n\n3\nno times\n\nend");
    EXPECT_EQ(linesOf(subtitles.outside), (Lines{1, 6, 9, 14, 17}));
    ASSERT_EQ(subtitles.outside.size(), 5U);
    EXPECT_EQ(subtitles.outside[1].words, "second");
}

TEST(OutsideACue, NumbersAndTheLineBeforeATimingLineAreNotListed)
{
    EXPECT_EQ(
        linesOf(read("1\n00:01.000 --> 00:02.000\na\n\nname\n00:03.000 --> 00:04.000\nb\n\n3\n")
                    .outside),
        Lines{});
}

TEST(OutsideACue, HeaderNotesStylesAndRegionsOfWebVttAreNotListed)
{
    const std::string blocks = "\n\nNOTE\nx\n\nNOTE y\n\nSTYLE\n::cue {}\n\nREGION\nid:z\n\n"
                               "NOTES\n\n00:01.000 --> 00:02.000\na\n";
    EXPECT_EQ(linesOf(read("WEBVTT - a\nKind: b" + blocks).outside), Lines{15});
    EXPECT_EQ(linesOf(read("x" + blocks).outside), (Lines{1, 3, 6, 8, 11, 14}));
}

TEST(CueText, MayBeEmpty)
{
    EXPECT_EQ(cuesOf("00:01.000 --> 00:02.000\n\nlate\n"), (Cues{{1000, 2000, ""}}));
    EXPECT_EQ(cuesOf("00:01.000 --> 00:02.000"), (Cues{{1000, 2000, ""}}));
}

TEST(CueText, BlanksAndTabsAtLineEndsAreRemoved)
{
    EXPECT_EQ(cuesOf("00:01.000 --> 00:02.000\n  a \t\n\tb\t \nc"),
              (Cues{{1000, 2000, "  a\n\tb\nc"}}));
}

TEST(CueText, HasNoLineFeedAtItsEnd)
{
    EXPECT_EQ(cuesOf("00:01.000 --> 00:02.000\na\n\n\n\n"), (Cues{{1000, 2000, "a"}}));
}

TEST(CueText, MarkupAndEntitiesStay)
{
    EXPECT_EQ(cuesOf("WEBVTT\n\n00:01.000 --> 00:02.000\n<i>a</i> &amp; {\\an8}b"),
              (Cues{{1000, 2000, "<i>a</i> &amp; {\\an8}b"}}));
}

TEST(BeforeACue, NumbersNamesNotesStylesAndRegionsAreIgnored)
{
    const Subtitles subtitles = read("WEBVTT title\nKind: captions\n\nNOTE\na remark\n\n"
                                     "STYLE\n::cue { color: red }\n\nREGION\nid:x\n\n"
                                     "the first\n00:01.000 --> 00:02.000\na\n\n"
                                     "NOTE between\nremark\n\n17\n00:03.000 --> 00:04.000\nb\n");
    EXPECT_EQ(subtitles.cues, (Cues{{1000, 2000, "a"}, {3000, 4000, "b"}}));
    EXPECT_EQ(subtitles.malformed.size(), 0U);
}

TEST(BeforeACue, ArrowInANoteOpensACue)
{
    const Subtitles subtitles = read("WEBVTT\n\nNOTE\n00:01.000 --> 00:02.000\na\n\n"
                                     "NOTE old --> new\nlost\n");
    EXPECT_EQ(subtitles.cues, (Cues{{1000, 2000, "a"}}));
    EXPECT_EQ(subtitles.malformed.size(), 1U);
}

TEST(LineNumbers, CountEveryKindOfLineEnd)
{
    const Subtitles subtitles = read("WEBVTT\r\n\r\n00:01.000 --> 00:02.000\ra\r\n\n"
                                     "00:03.000 --> 00:03.000\n\r\rbad --> line and more of it "
                                     "that is too long for a message\n00:05.000 --> 00:06.000");
    ASSERT_EQ(subtitles.cues.size(), 2U);
    EXPECT_EQ(subtitles.cues[0].line, 3U);
    EXPECT_EQ(subtitles.cues[1].line, 10U);
    ASSERT_EQ(subtitles.withoutLength.size(), 1U);
    EXPECT_EQ(subtitles.withoutLength[0].line, 6U);
    EXPECT_EQ(subtitles.withoutLength[0].words, "00:03.000 --> 00:03.000");
    ASSERT_EQ(subtitles.malformed.size(), 1U);
    EXPECT_EQ(subtitles.malformed[0].line, 9U);
    EXPECT_EQ(subtitles.malformed[0].words, "bad --> line and more of it that is too...");
}

TEST(LineNumbers, CountedInAText)
{
    EXPECT_EQ(publish::countOfLines(""), 1U);
    EXPECT_EQ(publish::countOfLines("a\r\nb\rc\nd"), 4U);
    EXPECT_EQ(publish::countOfLines("a\n"), 2U);
}

TEST(TimeText, HasHoursAndMilliseconds)
{
    EXPECT_EQ(publish::timeText(0), "00:00:00.000");
    EXPECT_EQ(publish::timeText(39'200), "00:00:39.200");
    EXPECT_EQ(publish::timeText(45'296'007), "12:34:56.007");
    EXPECT_EQ(publish::timeText(360'000'000), "100:00:00.000");
    EXPECT_EQ(publish::timeText(latest), "2562047788015:12:55.807");
}

TEST(LargeFiles, LongLinesAreReadQuickly)
{
    const std::string digits(4'000'000, '0');
    const Subtitles subtitles =
        read(digits + "1:00:00.000 --> 2:00:00.000 " + digits + "\n" + std::string(4'000'000, ' ') +
             "x" + std::string(4'000'000, '\t') + "\n" + std::string(4'000'000, '-') + ">\n");
    ASSERT_EQ(subtitles.cues.size(), 1U);
    EXPECT_EQ(subtitles.cues[0].text.size(), 4'000'001U);
    EXPECT_EQ(subtitles.malformed.size(), 1U);
}

TEST(LargeFiles, EveryLineOfACueIsKept)
{
    std::string bytes = "00:01.000 --> 00:02.000\n";
    for (int line = 0; line < 200'000; ++line)
        bytes += "ab\n";
    EXPECT_EQ(cuesOf(bytes)[0].text.size(), 599'999U);
}

} // namespace
