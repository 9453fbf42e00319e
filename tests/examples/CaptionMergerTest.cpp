/// @file
/// Merging the cues of several languages into captions.

#include "CaptionMerger.h"

#include <gtest/gtest.h>

using publish::Cue;
using publish::CueFile;
using publish::LanguageText;
using publish::mergeCaptions;
using publish::MergedCaption;

namespace {

CueFile fileOf(const std::string& language, const std::vector<Cue>& cues)
{
    CueFile file;
    file.language = language;
    file.cues = cues;
    return file;
}

/// A caption as a line of text: "1-2 en:a de:b".
std::string lineOf(const MergedCaption& caption)
{
    std::string line = std::to_string(caption.start) + "-" + std::to_string(caption.end);
    for (const LanguageText& text : caption.texts)
        line += " " + text.language + ":" + text.text;
    return line;
}

std::vector<std::string> merge(const std::vector<CueFile>& files)
{
    std::vector<std::string> lines;
    for (const MergedCaption& caption : mergeCaptions(files))
        lines.push_back(lineOf(caption));
    return lines;
}

using Lines = std::vector<std::string>;

TEST(CaptionMerger, EqualTimesJoin)
{
    EXPECT_EQ(merge({fileOf("en", {{1, 2, "a"}}), fileOf("de", {{1, 2, "b"}})}),
              (Lines{"1-2 en:a de:b"}));
}

TEST(CaptionMerger, OtherStartOrEndDoesNotJoin)
{
    EXPECT_EQ(merge({fileOf("en", {{1, 3, "a"}}), fileOf("de", {{1, 2, "b"}, {2, 3, "c"}})}),
              (Lines{"1-3 en:a", "1-2 de:b", "2-3 de:c"}));
}

TEST(CaptionMerger, KeepsTheOrderOfTheFilesWithoutSorting)
{
    EXPECT_EQ(merge({fileOf("en", {{5, 6, "a"}, {1, 2, "b"}}), fileOf("de", {{3, 4, "c"}})}),
              (Lines{"5-6 en:a", "1-2 en:b", "3-4 de:c"}));
}

TEST(CaptionMerger, SecondCueAtTheSameTimeMakesAnotherCaption)
{
    EXPECT_EQ(merge({fileOf("en", {{1, 2, "a"}, {1, 2, "b"}})}), (Lines{"1-2 en:a", "1-2 en:b"}));
}

TEST(CaptionMerger, CuesJoinTheFirstCaptionThatLacksTheLanguage)
{
    EXPECT_EQ(
        merge({fileOf("en", {{1, 2, "a"}, {1, 2, "b"}}),
               fileOf("de", {{1, 2, "c"}, {1, 2, "d"}, {1, 2, "e"}}), fileOf("fr", {{1, 2, "f"}})}),
        (Lines{"1-2 en:a de:c fr:f", "1-2 en:b de:d", "1-2 de:e"}));
}

TEST(CaptionMerger, EmptyTextCountsAsAText)
{
    EXPECT_EQ(merge({fileOf("en", {{1, 2, ""}, {1, 2, "b"}}), fileOf("de", {{1, 2, ""}})}),
              (Lines{"1-2 en: de:", "1-2 en:b"}));
}

TEST(CaptionMerger, SecondFileOfALanguageContinuesIt)
{
    EXPECT_EQ(merge({fileOf("en", {{1, 2, "a"}}), fileOf("de", {{1, 2, "b"}}),
                     fileOf("en", {{1, 2, "c"}, {3, 4, "d"}}), fileOf("de", {{3, 4, "e"}})}),
              (Lines{"1-2 en:a de:b", "1-2 en:c", "3-4 en:d de:e"}));
}

TEST(CaptionMerger, LanguagesAreComparedByteForByte)
{
    EXPECT_EQ(merge({fileOf("en", {{1, 2, "a"}}), fileOf("EN", {{1, 2, "b"}})}),
              (Lines{"1-2 en:a EN:b"}));
}

TEST(CaptionMerger, TextsNameTheirCues)
{
    const std::vector<MergedCaption> captions =
        mergeCaptions({fileOf("en", {{1, 2, "a"}, {3, 4, "b"}}), fileOf("de", {{3, 4, "c"}})});
    ASSERT_EQ(captions.size(), 2U);
    EXPECT_EQ(captions[1].texts[0].file, 0U);
    EXPECT_EQ(captions[1].texts[0].cue, 1U);
    EXPECT_EQ(captions[1].texts[1].file, 1U);
    EXPECT_EQ(captions[1].texts[1].cue, 0U);
}

TEST(CaptionMerger, ManyCuesAtTheSameTimeAreMergedQuickly)
{
    const CueFile en = fileOf("en", std::vector<Cue>(200'000, Cue{1, 2, "a"}));
    const CueFile de = fileOf("de", std::vector<Cue>(200'000, Cue{1, 2, "b"}));
    const std::vector<MergedCaption> captions = mergeCaptions({en, de});
    ASSERT_EQ(captions.size(), 200'000U);
    EXPECT_EQ(captions.back().texts.size(), 2U);
}

} // namespace
