/// @file
/// The project's own sample.

#include "examples/ProgramRunner.h"

#include <gmock/gmock.h>

using testing::HasSubstr;

namespace {

const std::string folder = SAMPLE_FOLDER "/paper-boat.";

class SampleTest : public ProgramRunner {
protected:
    RunResult publishSample() const
    {
        return run({"--plain-text", "--skip-empty", "--toc", folder + "chapters.en.vtt",
                    "--screen-text", folder + "screen.srt", "en=" + folder + "en.srt",
                    "de=" + folder + "de.srt", "ja=" + folder + "ja.vtt",
                    "ar=" + folder + "ar.vtt"});
    }
};

TEST_F(SampleTest, ReportNamesEveryIrregularity)
{
    const RunResult done = publishSample();
    EXPECT_EQ(done.status, 0);
    const std::string bytes = std::to_string(contentsOf(pathOf("out.xmp")).size());
    const std::string en = folder + "en.srt";
    EXPECT_EQ(
        done.err,
        pathOf("out.xmp") + ": " + bytes +
            " bytes written\n"
            "captions: 8, 7 joined from several languages\n"
            "  ar: 3 captions, missing in 5\n"
            "  de: 7 captions, missing in 1\n"
            "  en: 7 captions, missing in 1\n"
            "  ja: 6 captions, missing in 2\n"
            "table of contents: 4 entries\n"
            "screen texts: 4\n"
            "cues without text, left out: 1\n"
            "problems:\n"
            "  2 malformed cues, left out:\n"
            "    en " +
            en +
            ":23 \"00:00:11,000 -> 00:00:12,000\"\n"
            "    en " +
            en +
            ":25 \"00:00:12 --> 00:00:13\"\n"
            "  1 cue without length, left out:\n"
            "    en " +
            en +
            ":40 \"00:00:25,000 --> 00:00:25,000\"\n"
            "  1 caption that is too short:\n"
            "    00:00:06.400 en " +
            en +
            ":11 \"Ready?\": 750 ms; should be at least 1000 ms\n"
            "  1 caption with too many lines:\n"
            "    00:00:07.500 en " +
            en +
            ":15 \"\"Half\" means half: edge to edge, corner...\": 5 lines; should be at most 4\n"
            "  2 captions that start while another one shows in their language:\n"
            "    00:00:16.000 de " +
            folder +
            "de.srt:20 \"Noch ist es kein Hut …\": \"Die Kante mit dem Nagel glätten.\" (" +
            folder +
            "de.srt:16) shows until 00:00:16.500\n"
            "    00:00:16.000 en " +
            en + ":33 \"It's not a hat yet...\": \"Press the fold with your nail.\" (" + en +
            ":29) shows until 00:00:16.500\n"
            "  5 captions that lack a language:\n"
            "    00:00:03.200 en " +
            en +
            ":6 \"First, find a sheet of paper. The...\": lacks ar\n"
            "    00:00:06.400 en " +
            en +
            ":11 \"Ready?\": lacks ar\n"
            "    00:00:07.500 en " +
            en +
            ":15 \"\"Half\" means half: edge to edge, corner...\": lacks ar, de, ja\n"
            "    and 2 more (--verbose shows all)\n");
}

TEST_F(SampleTest, CaptionsOfAllLanguages)
{
    publishSample();
    const auto texts = [](const std::string& ar, const std::string& de, const std::string& en,
                          const std::string& ja) {
        return captionText("ar", ar) + captionText("de", de) + captionText("en", en) +
               captionText("ja", ja);
    };
    const std::string none = "{\\rtf1 }";
    EXPECT_THAT(
        tracks(),
        HasSubstr(captionTrack(
            captionMarker("500", "2700",
                          texts("قارب من ورق ويوم ماطر", "Ein Papierboot &amp; ein Regentag",
                                "A paper boat &amp; a rainy day", "紙の舟&amp;雨の日")) +
            captionMarker("3200", "2800",
                          texts(none, "Zuerst ein Blatt Papier suchen.\nJe weißer, desto besser.",
                                "First, find a sheet of paper.\nThe whiter, the better.",
                                "まず、紙かみを一枚。\n白いほうがいいよ。")) +
            captionMarker("6400", "750", texts(none, "Fertig?", "Ready?", "いいかい？")) +
            captionMarker("7500", "3500",
                          texts(none, none,
                                "&quot;Half&quot; means half:\nedge to edge,\ncorner to corner,\n"
                                "no cheating,\nno scissors!",
                                none)) +
            captionMarker("13000", "3500",
                          texts("\u200Fاضغط على الطية بظفرك.", "Die Kante mit dem Nagel glätten.",
                                "Press the fold with your nail.",
                                "折り目をしっかり\u00A0&lt;爪で&gt;")) +
            captionMarker(
                "16000", "3250",
                texts(none, "Noch ist es kein Hut …", "It&apos;s not a hat yet...", none)) +
            captionMarker("22000", "2500",
                          texts(none, "Jetzt vorsichtig ziehen!", none, "そっと引っぱって！")) +
            captionMarker("26000", "5900",
                          texts("وها هو يطفو", "Und schon schwimmt es", "And off it floats ⛵",
                                "浮かんだ ⛵")))));
}

TEST_F(SampleTest, EntriesAndScreenTexts)
{
    publishSample();
    EXPECT_THAT(
        tracks(),
        HasSubstr(tocTrack(tocMarker("Rain", "0") + tocMarker("Paper &amp; patience", "3200") +
                           tocMarker("Folding", "13000") + tocMarker("Launch", "26000")) +
                  screenTrack(screenMarker("PAPER BOATS", "1000", "1500", "0") +
                              screenMarker("A4 = 210 × 297 mm", "8000", "2000", "1") +
                              screenMarker("fold &lt; 1 mm", "13000", "2000", "2") +
                              screenMarker("The End", "28000", "3900", "3"))));
}

TEST_F(SampleTest, LengthIsTheEndOfTheLastChapter)
{
    publishSample();
    EXPECT_THAT(packet(),
                HasSubstr("<xmpDM:duration xmpDM:scale=\"1/1000\" xmpDM:value=\"32000\" >"));
}

} // namespace
