/// @file
/// The report that the program prints.

#include "examples/ProgramRunner.h"

#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::Not;

namespace {

class ReportTest : public ProgramRunner {};

TEST_F(ReportTest, WholeReport)
{
    const std::string en = write("en.srt", "00:01.000 --> 00:02.000\na\n\n"
                                           "00:02.000 --> 00:02.900\nb\n\n"
                                           "00:03.000 --> 00:05.000\n1\n2\n3\n4\n5\n\n"
                                           "00:04.000 --> 00:04.000\nx\n\n"
                                           "bad --> line\n\n"
                                           "00:04.500 --> 00:06.000\n\n");
    const std::string de = write("de.srt", "00:01.000 --> 00:02.000\nc\n");
    const std::string toc = write("toc.srt", "00:00.000 --> 00:06.000\nd\n");
    const std::string screen = write("screen.srt", "-->\n");
    const RunResult done = publish({"--toc", toc, "--screen-text", screen, "en=" + en, "de=" + de});
    const std::string size = std::to_string(contentsOf(pathOf("out.xmp")).size());
    EXPECT_EQ(done.out, "");
    EXPECT_EQ(
        done.err,
        "en=" + en + ": 4 cues used, 1 malformed, 1 without length, 1 empty (used)\n" + "de=" + de +
            ": 1 cues used, 0 malformed, 0 without length, 0 empty (used)\n" + "--toc " + toc +
            ": 1 cues used, 0 malformed, 0 without length, 0 empty (used)\n" + "--screen-text " +
            screen + ": 0 cues used, 1 malformed, 0 without length, 0 empty (used)\n" +
            "caption at 2000 ms: too short (900 ms)\n" +
            "caption at 3000 ms: too many lines (5 in en), overlap with the caption at 4500 "
            "ms\n" +
            "languages: de, en\n" + size + " bytes written to " + pathOf("out.xmp") + "\n");
}

TEST_F(ReportTest, SkippedCuesAreLeftOut)
{
    const std::string en = write("en.srt", "00:01.000 --> 00:02.000\n\n"
                                           "00:02.000 --> 00:03.000\nx\n");
    const RunResult done = publish({"--skip-empty", "en=" + en});
    EXPECT_THAT(done.err,
                HasSubstr(": 1 cues used, 0 malformed, 0 without length, 1 empty (skipped)\n"));
}

TEST_F(ReportTest, GoodCaptionsAreNotMentioned)
{
    const std::string en = write("en.srt", "00:01.000 --> 00:02.000\n1\n2\n3\n4\n\n"
                                           "00:02.000 --> 00:03.000\nx\n");
    EXPECT_THAT(publish({"en=" + en}).err, Not(HasSubstr("caption at")));
}

TEST_F(ReportTest, EveryReasonIsGiven)
{
    const std::string en = write("en.srt", "00:01.000 --> 00:01.999\n1\n2\n3\n4\n5\n\n"
                                           "00:01.998 --> 00:03.000\nx\n");
    const std::string de = write("de.srt", "00:01.000 --> 00:01.999\n1\n2\n3\n4\n5\n6\n");
    EXPECT_THAT(publish({"en=" + en, "de=" + de}).err,
                HasSubstr("caption at 1000 ms: too short (999 ms), too many lines (6 in de), too "
                          "many lines (5 in en), overlap with the caption at 1998 ms\n"));
}

TEST_F(ReportTest, OverlapIsCheckedInOrderOfStart)
{
    const std::string en = write("en.srt", "00:05.000 --> 00:06.000\na\n\n"
                                           "00:01.000 --> 00:05.001\nb\n");
    const RunResult done = publish({"en=" + en});
    EXPECT_THAT(done.err, HasSubstr("caption at 1000 ms: overlap with the caption at 5000 ms\n"));
    EXPECT_THAT(done.err, Not(HasSubstr("caption at 5000 ms: ")));
}

TEST_F(ReportTest, CaptionsThatStartTogetherOverlap)
{
    const std::string en = write("en.srt", "00:01.000 --> 00:02.000\na\n\n"
                                           "00:01.000 --> 00:02.000\nb\n");
    EXPECT_THAT(publish({"en=" + en}).err,
                HasSubstr("caption at 1000 ms: overlap with the caption at 1000 ms\n"));
}

TEST_F(ReportTest, LimitsHoldForTheCleanedText)
{
    const std::string en = write("en.srt", "00:01.000 --> 00:02.000\n1<\n\n"
                                           "00:02.000 --> 00:03.000\n1\n2\n3\n4<i\n>\n");
    EXPECT_THAT(publish({"en=" + en}).err, HasSubstr("caption at 2000 ms: too many lines"));
    EXPECT_THAT(publish({"--plain-text", "en=" + en}).err, Not(HasSubstr("caption at")));
}

TEST_F(ReportTest, LanguageOfAPacketWithoutCaptionsIsNamed)
{
    EXPECT_THAT(publish({}).err, HasSubstr("languages: en-US\n"));
}

TEST_F(ReportTest, FileNameStaysOnItsLine)
{
    const std::string file = write("a\nb.srt", "00:01.000 --> 00:02.000\nx\n");
    EXPECT_THAT(publish({"en=" + file}).err, HasSubstr("a\\x0Ab.srt: 1 cues used"));
}

} // namespace
