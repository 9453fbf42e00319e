/// @file
/// Reading the cues of a file.

#include "CueFile.h"

#include "PublishError.h"

#include <gtest/gtest.h>

using publish::CueFile;
using publish::CueFiles;
using publish::makeCueFile;
using publish::Options;
using publish::PublishError;

namespace {

Options optionsOf(bool plainText, bool skipEmpty)
{
    Options options;
    options.plainText = plainText;
    options.skipEmpty = skipEmpty;
    return options;
}

const std::string bytes = "00:01.000 --> 00:02.000\n<i>a</i>\n\n"
                          "00:02.000 --> 00:03.000\n<i></i>\n\n"
                          "00:03.000 --> 00:09.000\n\n"
                          "00:04.000 --> 00:04.000\nno length\n\n"
                          "broken --> line\n";

TEST(MakeCueFile, TextIsUnchangedWithoutOptions)
{
    const CueFile file = makeCueFile({"en", "dir/f"}, "f", bytes, optionsOf(false, false));
    ASSERT_EQ(file.cues.size(), 3U);
    EXPECT_EQ(file.cues[0].text, "<i>a</i>");
    EXPECT_EQ(file.cues[1].text, "<i></i>");
}

TEST(MakeCueFile, CountsEveryKind)
{
    const CueFile file = makeCueFile({"en", "dir/f"}, "f", bytes, optionsOf(false, false));
    EXPECT_EQ(file.name, "f");
    EXPECT_EQ(file.path, "dir/f");
    EXPECT_EQ(file.language, "en");
    EXPECT_EQ(file.malformed.size(), 1U);
    EXPECT_EQ(file.withoutLength.size(), 1U);
    EXPECT_EQ(file.empty, 1U);
}

TEST(MakeCueFile, SkippingLeavesOutEmptyCues)
{
    const CueFile file = makeCueFile({"en", "dir/f"}, "f", bytes, optionsOf(false, true));
    EXPECT_EQ(file.cues.size(), 2U);
    EXPECT_EQ(file.empty, 1U);
}

TEST(MakeCueFile, CueThatOnlyHeldMarkupIsEmptyInPlainText)
{
    const CueFile file = makeCueFile({"en", "dir/f"}, "f", bytes, optionsOf(true, true));
    ASSERT_EQ(file.cues.size(), 1U);
    EXPECT_EQ(file.cues[0].text, "a");
    EXPECT_EQ(file.empty, 2U);
}

TEST(MakeCueFile, SkippedCuesCountForTheLastEnd)
{
    EXPECT_EQ(makeCueFile({"en", "dir/f"}, "f", bytes, optionsOf(true, true)).lastEnd, 9000);
}

TEST(MakeCueFile, CuesWithoutLengthDoNotCountForTheLastEnd)
{
    EXPECT_FALSE(makeCueFile({"en", "dir/f"}, "f", "00:04.000 --> 00:04.000\n", Options())
                     .lastEnd.has_value());
}

TEST(MakeCueFile, EntitiesAreDecodedOnlyInWebVtt)
{
    const std::string cue = "\n00:01.000 --> 00:02.000\n&amp;";
    EXPECT_EQ(
        makeCueFile({"en", "dir/f"}, "f", "WEBVTT\n" + cue, optionsOf(true, false)).cues.at(0).text,
        "&");
    EXPECT_EQ(makeCueFile({"en", "dir/f"}, "f", cue, optionsOf(true, false)).cues.at(0).text,
              "&amp;");
}

TEST(MakeCueFile, BytesThatAreNotUtf8AreRefusedByName)
{
    try {
        makeCueFile({"en", "dir/film.srt"}, "film.srt", "a\x01\xC0\x80", Options());
        FAIL() << "accepted";
    } catch (const PublishError& error) {
        EXPECT_STREQ(error.what(), "film.srt: the file is not UTF-8: line 1");
    }
}

TEST(LastEnd, IsTheLargestOfAllFiles)
{
    CueFiles files;
    EXPECT_FALSE(lastEnd(files).has_value());
    files.captions.resize(2);
    files.captions[1].lastEnd = 5;
    EXPECT_EQ(lastEnd(files), 5);
    files.toc.emplace().lastEnd = 7;
    EXPECT_EQ(lastEnd(files), 7);
    files.screenText.emplace().lastEnd = 9;
    EXPECT_EQ(lastEnd(files), 9);
}

} // namespace
