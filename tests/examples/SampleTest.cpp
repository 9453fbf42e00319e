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

std::string count(const std::string& file, const std::string& counts)
{
    return folder + file + ": " + counts + " empty (skipped)\n";
}

TEST_F(SampleTest, ReportNamesEveryIrregularity)
{
    const RunResult done = publishSample();
    EXPECT_EQ(done.status, 0);
    const std::string bytes = std::to_string(contentsOf(pathOf("out.xmp")).size());
    EXPECT_EQ(done.err,
              "en=" + count("en.srt", "7 cues used, 1 malformed, 1 without length, 1") +
                  "de=" + count("de.srt", "7 cues used, 0 malformed, 0 without length, 0") +
                  "ja=" + count("ja.vtt", "6 cues used, 0 malformed, 0 without length, 0") + "ar=" +
                  count("ar.vtt", "3 cues used, 0 malformed, 0 without length, 0") + "--toc " +
                  count("chapters.en.vtt", "4 cues used, 0 malformed, 0 without length, 0") +
                  "--screen-text " +
                  count("screen.srt", "4 cues used, 0 malformed, 0 without length, 0") +
                  "caption at 6400 ms: too short (750 ms)\n"
                  "caption at 7500 ms: too many lines (5 in en)\n"
                  "caption at 13000 ms: overlap with the caption at 16000 ms\n"
                  "languages: ar, de, en, ja\n" +
                  bytes + " bytes written to " + pathOf("out.xmp") + "\n");
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
