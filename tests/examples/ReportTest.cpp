/// @file
/// The report that the program prints.

#include "examples/ProgramRunner.h"

#include <gmock/gmock.h>

using testing::EndsWith;
using testing::HasSubstr;

namespace {

class ReportTest : public ProgramRunner {
protected:
    /// What the program prints about @p words.
    std::string report(const std::vector<std::string>& words) const { return publish(words).err; }

    /// The lines of the problems that the program prints about @p words.
    std::string problems(const std::vector<std::string>& words) const
    {
        const std::string text = report(words);
        return text.substr(text.find("\nproblems:") + 1);
    }
};

TEST_F(ReportTest, WholeReport)
{
    const std::string en = write("en.srt", "1\n00:00:01,000 --> 00:00:02,000\na\n\n"
                                           "2\n00:00:02,000 --> 00:00:02,900\nb\n\n"
                                           "3\n00:00:03,000 --> 00:00:05,000\n1\n2\n3\n4\n5\n\n"
                                           "00:00:04,000 --> 00:00:04,000\nx\n\n"
                                           "bad --> line\n\n"
                                           "00:00:04,500 --> 00:01:46,000\nc\n4\n"
                                           "00:02:00,000 --> 00:02:02,000\n\n");
    const std::string de = write("de.vtt", "WEBVTT\n\n00:01.000 --> 00:02.000\nd\n");
    const std::string toc = write("toc.srt", "00:00.000 --> 00:06.000\ne\n");
    const std::string screen = write("screen.srt", "-->\n");
    const RunResult done = publish({"--toc", toc, "--screen-text", screen, "en=" + en, "de=" + de});
    EXPECT_EQ(done.out, "");
    EXPECT_EQ(
        done.err,
        pathOf("out.xmp") + ": " + std::to_string(contentsOf(pathOf("out.xmp")).size()) +
            " bytes written\n"
            "captions: 5, 1 joined from several languages\n"
            "  de: 1 caption, missing in 4\n"
            "  en: 5 captions\n"
            "table of contents: 1 entry\n"
            "screen texts: 0\n"
            "problems:\n"
            "  2 malformed cues, left out:\n"
            "    en " +
            en +
            ":20 \"bad --> line\"\n"
            "    " +
            screen +
            ":1 \"-->\"\n"
            "  1 cue without length, left out:\n"
            "    en " +
            en +
            ":17 \"00:00:04,000 --> 00:00:04,000\"\n"
            "  1 file without a cue:\n"
            "    " +
            screen +
            "\n"
            "  1 text that ends with the number of the next cue, because a blank line is missing:\n"
            "    00:00:04.500 en " +
            en +
            ":22 \"c 4\": the number in line 24\n"
            "  2 cues that end after --length:\n"
            "    00:00:04.500 en " +
            en +
            ":22 \"c 4\": ends at 00:01:46.000\n"
            "    00:02:00.000 en " +
            en +
            ":25: ends at 00:02:02.000\n"
            "  1 cue without text:\n"
            "    00:02:00.000 en " +
            en +
            ":25\n"
            "  1 caption that is too short:\n"
            "    00:00:02.000 en " +
            en +
            ":6 \"b\": 900 ms; should be at least 1000 ms\n"
            "  1 caption with too many lines:\n"
            "    00:00:03.000 en " +
            en +
            ":10 \"1 2 3 4 5\": 5 lines; should be at most 4\n"
            "  1 caption that starts while another one shows in its language:\n"
            "    00:00:04.500 en " +
            en + ":22 \"c 4\": \"1 2 3 4 5\" (" + en +
            ":10) shows until 00:00:05.000\n"
            "  4 captions that lack a language:\n"
            "    00:00:02.000 en " +
            en +
            ":6 \"b\": lacks de\n"
            "    00:00:03.000 en " +
            en +
            ":10 \"1 2 3 4 5\": lacks de\n"
            "    00:00:04.500 en " +
            en +
            ":22 \"c 4\": lacks de\n"
            "    and 1 more (--verbose shows all)\n");
}

TEST_F(ReportTest, NothingToReport)
{
    const std::string en = write("en.srt", "00:01.000 --> 00:02.000\n1\n2\n3\n4\n\n"
                                           "00:02.000 --> 00:03.000\nx\n");
    EXPECT_THAT(report({"en=" + en, "de=" + en}),
                EndsWith(" bytes written\n"
                         "captions: 2, 2 joined from several languages\n"
                         "  de: 2 captions\n"
                         "  en: 2 captions\n"
                         "table of contents: 0 entries\n"
                         "screen texts: 0\n"
                         "problems: none\n"));
}

TEST_F(ReportTest, LanguageOfAPacketWithoutCaptionsIsNamed)
{
    EXPECT_THAT(report({}), HasSubstr("\ncaptions: none; the packet names the language en-US\n"));
}

TEST_F(ReportTest, SkippedCuesAreCountedAndNoProblem)
{
    const std::string en = write("en.srt", "00:01.000 --> 00:02.000\n\n"
                                           "00:02.000 --> 00:03.000\nx\n");
    const std::string text = report({"--skip-empty", "en=" + en, "--toc", en});
    EXPECT_THAT(text, HasSubstr("\ncues without text, left out: 2\n"));
    EXPECT_THAT(text, EndsWith("problems: none\n"));
}

TEST_F(ReportTest, FirstThreePlacesOrAll)
{
    std::string cues;
    for (const char start : {'1', '2', '3', '4', '5'})
        cues += std::string("00:0") + start + ".000 --> 00:0" + start + ".500\nx\n\n";
    const std::string en = write("en.vtt", "WEBVTT\n\n" + cues);
    const auto place = [&](const std::string& second, const std::string& line) {
        return "    00:00:0" + second + ".000 en " + en + ":" + line +
               " \"x\": 500 ms; should be at least 1000 ms\n";
    };
    const std::string first = "problems:\n  5 captions that are too short:\n" + place("1", "3") +
                              place("2", "6") + place("3", "9");
    EXPECT_EQ(problems({"en=" + en}), first + "    and 2 more (--verbose shows all)\n");
    EXPECT_EQ(problems({"--verbose", "en=" + en}), first + place("4", "12") + place("5", "15"));
}

TEST_F(ReportTest, OverlapsAreThoseOfOneLanguage)
{
    const std::string en = write("en.srt", "00:01.000 --> 00:03.000\na\n\n"
                                           "00:03.000 --> 00:05.000\nb\n");
    const std::string de = write("de.srt", "00:01.000 --> 00:02.900\na\n\n"
                                           "00:02.900 --> 00:05.000\nb\n");
    EXPECT_EQ(problems({"en=" + en, "de=" + de}), "problems: none\n");
    const std::string more = write("more.srt", "00:04.999 --> 00:06.000\nc\n");
    EXPECT_EQ(problems({"en=" + en, "en=" + more}),
              "problems:\n  1 caption that starts while another one shows in its language:\n"
              "    00:00:04.999 en " +
                  more + ":1 \"c\": \"b\" (" + en + ":4) shows until 00:00:05.000\n");
}

TEST_F(ReportTest, EachCaptionThatStartsDuringALongOneOverlaps)
{
    const std::string en = write("en.srt", "00:05.000 --> 00:06.000\nc\n\n"
                                           "00:01.000 --> 00:09.000\na\n\n"
                                           "00:02.000 --> 00:03.000\nb\n\n"
                                           "00:02.000 --> 00:03.000\n\n\n"
                                           "00:09.000 --> 00:10.000\nd\n\n"
                                           "00:09.000 --> 00:10.000\ne\n");
    const std::string text = problems({"--verbose", "en=" + en});
    const std::string first = " (" + en + ":4) shows until 00:00:09.000\n";
    const std::string second = " (" + en + ":13) shows until 00:00:10.000\n";
    EXPECT_THAT(text,
                EndsWith("  3 captions that start while another one shows in their language:\n"
                         "    00:00:02.000 en " +
                         en + ":7 \"b\": \"a\"" + first + "    00:00:05.000 en " + en +
                         ":1 \"c\": \"a\"" + first + "    00:00:09.000 en " + en +
                         ":16 \"e\": \"d\"" + second));
}

TEST_F(ReportTest, TextsOutsideACueAndMalformedCuesInATextAreListed)
{
    const std::string en = write("en.srt", "1\n00:01.000 --> 00:02.000\na\n\nlost\n\n"
                                           "2\n00:03.000 --> 00:04.000\nb\n3\n"
                                           "00:05.000 -> 00:06.000\nc\n\n"
                                           "4\n00:07.000 -> 00:08.000\nd\n");
    EXPECT_EQ(problems({"en=" + en}),
              "problems:\n"
              "  1 malformed cue, left out:\n    en " +
                  en +
                  ":15 \"00:07.000 -> 00:08.000\"\n"
                  "  1 text outside a cue, left out:\n    en " +
                  en +
                  ":5 \"lost\"\n"
                  "  1 text that seems to contain a malformed cue:\n    00:00:03.000 en " +
                  en + ":8 \"b 3 00:05.000 -> 00:06.000 c\": the times in line 11\n");
}

TEST_F(ReportTest, FileWhoseCuesAreAllSkippedHasCues)
{
    const std::string en = write("en.srt", "00:01.000 --> 00:02.000\n\n");
    EXPECT_EQ(problems({"--skip-empty", "en=" + en}), "problems: none\n");
}

TEST_F(ReportTest, FilesThatWereTimedSeparatelyAreOneLine)
{
    const std::string en = write("en.srt", "00:01.000 --> 00:02.000\na\n\n"
                                           "00:02.000 --> 00:03.000\nb\n\n"
                                           "00:03.000 --> 00:04.000\nc\n");
    const std::string fr = write("fr.srt", "00:01.000 --> 00:02.000\na\n\n"
                                           "00:03.000 --> 00:04.000\nc\n");
    const std::string de = write("de.srt", "00:01.000 --> 00:02.000\na\n\n"
                                           "00:02.100 --> 00:03.100\nb\n\n"
                                           "00:03.100 --> 00:04.100\nc\n");
    const std::string text = report({"en=" + en, "fr=" + fr, "de=" + de});
    EXPECT_THAT(text, HasSubstr("captions: 5, 2 joined from several languages\n"
                                "  de: 3 captions, missing in 2\n"
                                "  en: 3 captions, missing in 2\n"
                                "  fr: 2 captions, missing in 3\n"
                                "timed separately, so mostly not joined: de | en, fr\n"));
    EXPECT_THAT(text, EndsWith("problems:\n  1 caption that lacks a language:\n"
                               "    00:00:02.000 en " +
                               en + ":4 \"b\": lacks fr\n"));
}

TEST_F(ReportTest, CueMayEndWithTheVideo)
{
    const std::string en = write("en.srt", "00:01.000 --> 01:30.500\na\n");
    EXPECT_EQ(problems({"en=" + en}), "problems: none\n");
    const std::string late = write("late.srt", "00:01.000 --> 01:30.501\na\n");
    for (const std::string option : {"--toc", "--screen-text"})
        EXPECT_THAT(problems({option, late}), HasSubstr("1 cue that ends after --length:"));
    EXPECT_THAT(run({"en=" + late}).err, EndsWith("problems: none\n"));
}

TEST_F(ReportTest, FileInUtf16WithoutAMarkIsNamed)
{
    std::string bytes;
    for (const char character : std::string("1\n00:00:01,000 --> 00:00:02,000\na\n"))
        bytes += {character, '\0'};
    const std::string en = write("en.srt", bytes);
    EXPECT_EQ(problems({"en=" + en}),
              "problems:\n  1 file without a cue:\n    en " + en +
                  ": it looks like UTF-16; to convert it:\n  iconv -f UTF-16LE -t UTF-8 " + en +
                  " > " + pathOf("en.utf-8.srt") + "\n");
    const RunResult withoutLength = run({"en=" + en});
    EXPECT_EQ(withoutLength.status, 2);
    EXPECT_THAT(withoutLength.err,
                HasSubstr("publish_video: en=" + en +
                          ": it looks like UTF-16; to convert it:\n  iconv -f UTF-16LE "));
}

TEST_F(ReportTest, LimitsHoldForTheCleanedText)
{
    const std::string en = write("en.srt", "00:01.000 --> 00:02.000\n1<\n\n"
                                           "00:02.000 --> 00:03.000\n1\n2\n3\n4<i\n>\n");
    EXPECT_THAT(problems({"en=" + en}), HasSubstr("1 caption with too many lines"));
    EXPECT_EQ(problems({"--plain-text", "en=" + en}), "problems: none\n");
}

TEST_F(ReportTest, FileNameStaysOnItsLine)
{
    const std::string file = write("a\nb.srt", "00:01.000 --> 00:01.500\nx\n");
    EXPECT_THAT(report({"en=" + file}), HasSubstr("a\\x0Ab.srt:1 \"x\""));
}

TEST_F(ReportTest, WholeJson)
{
    const std::string en = write("en.vtt", "WEBVTT\n\n00:01.000 --> 00:01.500\n\"a\"\\\x01\n\n"
                                           "00:02.000 --> 00:03.000\nb\n\n-->\n");
    const std::string de = write("de.srt", "00:01,000 --> 00:01,500\nc\n");
    const std::string screen = write("s.srt", "");
    publish({"--report", pathOf("r.json"), "--screen-text", screen, "en=" + en, "de=" + de});
    EXPECT_EQ(contentsOf(pathOf("r.json")),
              "{\"output\": \"" + pathOf("out.xmp") +
                  "\", \"bytes\": " + std::to_string(contentsOf(pathOf("out.xmp")).size()) +
                  ", \"captions\": 2, \"joined\": 1, \"languages\": "
                  "[{\"language\": \"de\", \"captions\": 1, \"missing\": 1},\n"
                  "{\"language\": \"en\", \"captions\": 2, \"missing\": 0}], "
                  "\"timing_groups\": [[\"de\",\n\"en\"]], \"entries\": 0, \"screen_texts\": 0, "
                  "\"cues_without_text_left_out\": 0, \"problems\": ["
                  "{\"kind\": \"malformed-cue\", \"message\": \"malformed cue, left out\", "
                  "\"count\": 1, \"places\": [{\"file\": \"" +
                  en +
                  "\", \"language\": \"en\", \"line\": 9, \"text\": \"-->\"}]},\n"
                  "{\"kind\": \"file-without-cue\", \"message\": \"file without a cue\", "
                  "\"count\": 1, \"places\": [{\"file\": \"" +
                  screen +
                  "\"}]},\n"
                  "{\"kind\": \"too-short\", \"message\": \"caption that is too short\", "
                  "\"count\": 1, \"places\": [{\"file\": \"" +
                  en +
                  "\", \"language\": \"en\", \"line\": 3, \"start\": \"00:00:01.000\", "
                  "\"end\": \"00:00:01.500\", \"start_ms\": 1000, \"end_ms\": 1500, "
                  "\"text\": \"\\\"a\\\"\\\\\\\\x01\", "
                  "\"detail\": \"500 ms; should be at least 1000 ms\"}]},\n"
                  "{\"kind\": \"missing-language\", "
                  "\"message\": \"caption that lacks a language\", "
                  "\"count\": 1, \"places\": [{\"file\": \"" +
                  en +
                  "\", \"language\": \"en\", \"line\": 6, \"start\": \"00:00:02.000\", "
                  "\"end\": \"00:00:03.000\", \"start_ms\": 2000, \"end_ms\": 3000, "
                  "\"text\": \"b\", \"detail\": \"lacks de\"}]}]}\n");
}

TEST_F(ReportTest, JsonHasEveryPlaceAndEscapesFileNames)
{
    std::string cues;
    for (const char start : {'1', '2', '3', '4', '5'})
        cues += std::string("00:0") + start + ".000 --> 00:0" + start + ".500\nx\n\n";
    const RunResult done = publish({"--report", "-", "en=" + write("a\nb\".srt", cues)});
    EXPECT_THAT(done.out, HasSubstr("\"count\": 5"));
    EXPECT_THAT(done.out, HasSubstr("a\\u000Ab\\\".srt\", \"language\": \"en\", \"line\": 13"));
    EXPECT_THAT(done.err, HasSubstr("and 2 more"));
}

TEST_F(ReportTest, ReportThatCannotBeWrittenIsAFailure)
{
    const RunResult done = run({"--length", "1", "--report", "/dev/full"});
    EXPECT_EQ(done.status, 2);
    EXPECT_THAT(done.err, HasSubstr("publish_video: /dev/full: cannot be written: No space left"));
    EXPECT_EQ(names(), (std::vector<std::string>{"out.xmp"}));
}

} // namespace
