/// @file
/// From subtitle files to the packet's tracks.

#include "examples/ProgramRunner.h"

#include <gmock/gmock.h>

using testing::HasSubstr;

namespace {

class ItemsTest : public ProgramRunner {};

TEST_F(ItemsTest, WithoutCaptionFilesThereAreNoCaptions)
{
    publish({});
    EXPECT_EQ(tracks(), "");
}

TEST_F(ItemsTest, LanguagesOfACaptionAreJoined)
{
    const std::string en = write("en.srt", "1\n00:00:01,000 --> 00:00:03,000\nrain\n");
    const std::string de = write("de.vtt", "WEBVTT\n\n00:01.000 --> 00:03.000\nRegen\n");
    publish({"en=" + en, "de=" + de});
    EXPECT_EQ(tracks(),
              captionTrack(captionMarker("1000", "2000",
                                         captionText("de", "Regen") + captionText("en", "rain"))));
    EXPECT_THAT(packet(), HasSubstr("<rdf:Bag><rdf:li xml:lang=\"de\">German</rdf:li>"
                                    "<rdf:li xml:lang=\"en\">English</rdf:li></rdf:Bag>"));
}

TEST_F(ItemsTest, CueWithOtherTimesMakesItsOwnCaption)
{
    const std::string en = write("en.srt", "00:01.000 --> 00:03.000\na\n");
    const std::string de = write("de.srt", "00:01.000 --> 00:03.001\nb\n");
    publish({"en=" + en, "de=" + de});
    EXPECT_EQ(tracks(),
              captionTrack(captionMarker("1000", "2000",
                                         captionText("en", "a") + captionText("de", "{\\rtf1 }")) +
                           captionMarker("1000", "2001",
                                         captionText("en", "{\\rtf1 }") + captionText("de", "b"))));
}

TEST_F(ItemsTest, SecondCueAtTheSameTimeMakesAnotherCaption)
{
    const std::string en =
        write("en.srt", "00:01.000 --> 00:03.000\na\n\n00:01.000 --> 00:03.000\nb\n");
    const std::string fr =
        write("fr.srt", "00:01.000 --> 00:03.000\nc\n\n00:01.000 --> 00:03.000\nd\n");
    publish({"en=" + en, "fr=" + fr});
    EXPECT_EQ(tracks(),
              captionTrack(
                  captionMarker("1000", "2000", captionText("en", "a") + captionText("fr", "c")) +
                  captionMarker("1000", "2000", captionText("en", "b") + captionText("fr", "d"))));
}

TEST_F(ItemsTest, CaptionsAreHandedOverUnsorted)
{
    // The library exchanges the first and the last when it sorts, so the two at five seconds come
    // out reversed. Captions that were sorted beforehand would not.
    const std::string en = write("en.srt", "00:05.000 --> 00:06.000\na\n\n"
                                           "00:05.000 --> 00:07.000\nb\n\n"
                                           "00:03.000 --> 00:04.000\nc\n");
    publish({"en=" + en});
    EXPECT_EQ(tracks(), captionTrack(captionMarker("3000", "1000", captionText("en", "c")) +
                                     captionMarker("5000", "2000", captionText("en", "b")) +
                                     captionMarker("5000", "1000", captionText("en", "a"))));
}

TEST_F(ItemsTest, TextIsWrittenUnchanged)
{
    const std::string en =
        write("en.vtt", "WEBVTT\n\n00:01.000 --> 00:03.000\n<i>a</i> &amp; {\\an8}\"b\"\n");
    publish({"en=" + en});
    EXPECT_EQ(tracks(),
              captionTrack(captionMarker(
                  "1000", "2000",
                  captionText("en", "&lt;i&gt;a&lt;/i&gt; &amp;amp; {\\an8}&quot;b&quot;"))));
}

TEST_F(ItemsTest, PlainTextRemovesMarkupFromAllFiles)
{
    const std::string cue = "00:01.000 --> 00:03.000\n<i>a</i> &amp; {\\an8}b\n";
    const std::string vtt = write("a.vtt", "WEBVTT\n\n" + cue);
    const std::string srt = write("a.srt", cue);
    publish({"--plain-text", "--toc", vtt, "--screen-text", srt, "en=" + vtt, "de=" + srt});
    EXPECT_EQ(tracks(), captionTrack(captionMarker("1000", "2000",
                                                   captionText("de", "a &amp;amp; b") +
                                                       captionText("en", "a &amp; b"))) +
                            tocTrack(tocMarker("a &amp; b", "1000")) +
                            screenTrack(screenMarker("a &amp;amp; b", "1000", "2000", "0")));
}

TEST_F(ItemsTest, EmptyCuesAreKept)
{
    const std::string file = write("a.srt", "00:01.000 --> 00:03.000\n\n");
    publish({"--toc", file, "--screen-text", file, "en=" + file});
    EXPECT_EQ(tracks(),
              captionTrack(captionMarker("1000", "2000", captionText("en", "{\\rtf1 }"))) +
                  tocTrack(tocMarker("", "1000")) +
                  screenTrack(screenMarker("", "1000", "2000", "0")));
}

TEST_F(ItemsTest, SkipEmptyMakesNoItemFromEmptyCuesOfAllFiles)
{
    const std::string file = write("a.srt", "00:01.000 --> 00:03.000\n\n"
                                            "00:04.000 --> 00:06.000\nx\n");
    publish({"--skip-empty", "--toc", file, "--screen-text", file, "en=" + file});
    EXPECT_EQ(tracks(), captionTrack(captionMarker("4000", "2000", captionText("en", "x"))) +
                            tocTrack(tocMarker("x", "4000")) +
                            screenTrack(screenMarker("x", "4000", "2000", "0")));
}

TEST_F(ItemsTest, CueThatOnlyHeldMarkupIsSkippedOnlyInPlainText)
{
    const std::string file = write("a.srt", "00:01.000 --> 00:03.000\n<i> </i>\n");
    publish({"--skip-empty", "en=" + file});
    EXPECT_EQ(tracks(), captionTrack(captionMarker("1000", "2000",
                                                   captionText("en", "&lt;i&gt; &lt;/i&gt;"))));
    publish({"--skip-empty", "--plain-text", "en=" + file});
    EXPECT_EQ(tracks(), "");
}

TEST_F(ItemsTest, EntryIsMadeFromEachCue)
{
    const std::string toc = write("toc.vtt", "WEBVTT\n\n00:00.000 --> 00:05.000\nA & B\n\n"
                                             "00:05.000 --> 00:09.000\nC\nD\n");
    publish({"--toc", toc});
    EXPECT_EQ(tracks(), tocTrack(tocMarker("A &amp; B", "0") + tocMarker("C\nD", "5000")));
}

TEST_F(ItemsTest, TableOfContentsMayHaveAnotherLanguage)
{
    const std::string toc = write("toc.srt", "00:00.000 --> 00:05.000\nPluie\n");
    publish({"--toc", "fr=" + toc});
    EXPECT_EQ(tracks(), tocTrack(tocMarker("Pluie", "0")));
}

TEST_F(ItemsTest, ScreenTextBelongsToTheLastEntryThatHasStarted)
{
    const std::string toc = write("toc.srt", "00:10.000 --> 00:20.000\nthird\n\n"
                                             "00:01.000 --> 00:02.000\nfirst\n\n"
                                             "00:05.000 --> 00:06.000\nsecond\n");
    const std::string screen = write("screen.srt", "00:00.500 --> 00:02.000\nbefore\n\n"
                                                   "00:01.000 --> 00:02.000\nat\n\n"
                                                   "00:04.999 --> 00:07.000\nlate\n\n"
                                                   "00:05.000 --> 00:07.000\nnext\n\n"
                                                   "00:59.000 --> 01:00.000\nend\n");
    publish({"--toc", toc, "--screen-text", screen});
    EXPECT_THAT(tracks(), HasSubstr(screenTrack(screenMarker("before", "500", "1500", "0") +
                                                screenMarker("at", "1000", "1000", "0") +
                                                screenMarker("late", "4999", "2001", "0") +
                                                screenMarker("next", "5000", "2000", "1") +
                                                screenMarker("end", "59000", "1000", "2"))));
}

TEST_F(ItemsTest, ScreenTextBelongsToTheLastOfEntriesThatStartTogether)
{
    const std::string toc = write("toc.srt", "00:01.000 --> 00:02.000\na\n\n"
                                             "00:01.000 --> 00:03.000\nb\n\n"
                                             "00:05.000 --> 00:06.000\nc\n");
    const std::string screen = write("screen.srt", "00:02.000 --> 00:03.000\nx\n");
    publish({"--toc", toc, "--screen-text", screen});
    EXPECT_THAT(tracks(), HasSubstr(screenTrack(screenMarker("x", "2000", "1000", "1"))));
}

TEST_F(ItemsTest, SkippedEntriesAreNotCounted)
{
    const std::string toc = write("toc.srt", "00:01.000 --> 00:02.000\n\n"
                                             "00:02.000 --> 00:03.000\nb\n");
    const std::string screen = write("screen.srt", "00:02.000 --> 00:03.000\nx\n");
    publish({"--skip-empty", "--toc", toc, "--screen-text", screen});
    EXPECT_THAT(tracks(), HasSubstr(screenTrack(screenMarker("x", "2000", "1000", "0"))));
}

TEST_F(ItemsTest, ScreenTextWithoutATableOfContentsBelongsToTheFirstEntry)
{
    const std::string screen = write("screen.srt", "00:02.000 --> 00:03.000\nx < y\n");
    publish({"--screen-text", screen});
    EXPECT_EQ(tracks(), screenTrack(screenMarker("x &lt; y", "2000", "1000", "0")));
}

TEST_F(ItemsTest, LatestTimeIsWritten)
{
    const std::string file =
        write("a.srt", "2562047788015:12:55.806 --> 2562047788015:12:55.807\nx\n");
    EXPECT_EQ(run({"en=" + file}).status, 0);
    EXPECT_EQ(tracks(),
              captionTrack(captionMarker("9223372036854775806", "1", captionText("en", "x"))));
    EXPECT_THAT(packet(), HasSubstr("xmpDM:value=\"9223372036854775807\""));
}

TEST_F(ItemsTest, ControlCharactersOfAFileDoNotReachThePacket)
{
    const std::string text = std::string("a\x01\0b\tc\x1F", 7) + "\xEF\xBF\xBE";
    const std::string file = write("a.srt", "00:01.000 --> 00:03.000\n" + text + "\n");
    publish({"--toc", file, "--screen-text", file, "en=" + file});
    EXPECT_EQ(tracks(), captionTrack(captionMarker("1000", "2000", captionText("en", "abc"))) +
                            tocTrack(tocMarker("abc", "1000")) +
                            screenTrack(screenMarker("abc", "1000", "2000", "0")));
}

TEST_F(ItemsTest, LengthIsTheLargestEndOfAllFiles)
{
    const std::string captions = write("a.srt", "00:01.000 --> 00:03.000\nx\n");
    const std::string toc = write("b.srt", "00:01.000 --> 00:07.000\nx\n\n");
    const std::string screen = write("c.srt", "00:01.000 --> 00:09.000\n\n");
    EXPECT_EQ(run({"en=" + captions}).status, 0);
    EXPECT_THAT(packet(), HasSubstr("xmpDM:value=\"3000\""));
    EXPECT_EQ(run({"en=" + captions, "--toc", toc}).status, 0);
    EXPECT_THAT(packet(), HasSubstr("xmpDM:value=\"7000\""));
    EXPECT_EQ(run({"--skip-empty", "--screen-text", screen, "en=" + captions}).status, 0);
    EXPECT_THAT(packet(), HasSubstr("xmpDM:value=\"9000\""));
}

TEST_F(ItemsTest, MalformedCuesAndThoseWithoutLengthDoNotMakeTheLength)
{
    const std::string file = write("a.srt", "00:01.000 --> 00:03.000\nx\n\n"
                                            "00:50.000 --> 00:50.000\nx\n\n"
                                            "00:50.000 --> 00:99.000\nx\n");
    EXPECT_EQ(run({"en=" + file}).status, 0);
    EXPECT_THAT(packet(), HasSubstr("xmpDM:value=\"3000\""));
}

TEST_F(ItemsTest, LengthOfTheArgumentsWins)
{
    const std::string file = write("a.srt", "00:01.000 --> 00:03.000\nx\n");
    publish({"en=" + file});
    EXPECT_THAT(packet(), HasSubstr("xmpDM:value=\"90500\""));
}

TEST_F(ItemsTest, NoLengthAtAllIsAnError)
{
    expectFailure(run({}), "--length", {});
    const std::string file = write("a.srt", "00:01.000 --> 00:01.000\nx\n");
    expectFailure(run({"en=" + file}), "--length", {"a.srt"});
}

TEST_F(ItemsTest, FileThatIsNotUtf8IsNamed)
{
    const std::string file = write("bad.srt", "00:01.000 --> 00:02.000\n\x01\xED\xA0\x80\n");
    expectFailure(run({"en=" + file}), "bad.srt: the file is not UTF-8: line 2\n", {"bad.srt"});
    expectFailure(run({"--toc", file}), "bad.srt", {"bad.srt"});
    expectFailure(run({"--screen-text", file}), "bad.srt", {"bad.srt"});
}

TEST_F(ItemsTest, FileThatDoesNotExistIsNamed)
{
    expectFailure(run({"en=" + pathOf("none.srt")}), "none.srt", {});
    expectFailure(run({"--length", "1", "--toc", pathOf("none.srt")}), "none.srt", {});
    expectFailure(run({"--length", "1", "--screen-text", pathOf("none.srt")}), "none.srt", {});
    expectFailure(run({"--length", "1", "en="}), "en=", {});
}

TEST_F(ItemsTest, FolderInPlaceOfAFileIsNamed)
{
    expectFailure(run({"--length", "1", "en=" + pathOf(".")}), "en=", {});
}

} // namespace
