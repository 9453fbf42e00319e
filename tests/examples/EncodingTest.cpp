/// @file
/// What the program says about files in other encodings.

#include "Encoding.h"

#include <gtest/gtest.h>

using publish::describeForeignBytes;
using publish::encodingHint;

namespace {

std::string inUtf16(const std::string& text, bool isBigEndian)
{
    std::string bytes;
    for (const char character : text)
        bytes += isBigEndian ? std::string{'\0', character} : std::string{character, '\0'};
    return bytes;
}

const std::string cue = "00:00:01,000 --> 00:00:02,000\r\n";

TEST(Encoding, FirstBadLineIsNamed)
{
    EXPECT_EQ(describeForeignBytes("a\r\nb\x01\r\xFF\n\xFF", "f", "en"),
              "the file is not UTF-8: line 3");
}

TEST(Encoding, Utf16IsRecognised)
{
    EXPECT_EQ(describeForeignBytes("\xFF\xFE" + inUtf16(cue, false), "film.srt", "en"),
              "the file is not UTF-8: line 1; it looks like UTF-16; to convert it:\n"
              "  iconv -f UTF-16 -t UTF-8 film.srt > film.utf-8.srt");
    EXPECT_EQ(encodingHint("\xFE\xFF" + inUtf16(cue, true), "a/b", ""),
              "it looks like UTF-16; to convert it:\n  iconv -f UTF-16 -t UTF-8 a/b > a/b.utf-8");
    EXPECT_EQ(encodingHint(inUtf16(cue, false), ".x", ""),
              "it looks like UTF-16; to convert it:\n  iconv -f UTF-16LE -t UTF-8 .x > .x.utf-8");
    EXPECT_EQ(encodingHint(inUtf16(cue, true), "a.b/c", ""),
              "it looks like UTF-16; to convert it:\n"
              "  iconv -f UTF-16BE -t UTF-8 a.b/c > a.b/c.utf-8");
}

TEST(Encoding, EightBitEncodingIsGuessedByLanguage)
{
    EXPECT_EQ(
        describeForeignBytes(cue + "caf\xE9\r\n", "film.srt", "fr"),
        "the file is not UTF-8: line 2; it looks like an 8-bit encoding; to convert it if that "
        "is WINDOWS-1252:\n  iconv -f WINDOWS-1252 -t UTF-8 film.srt > film.utf-8.srt");
    EXPECT_NE(encodingHint("\xEF\xF0", "f", "RU-ru").find("iconv -f WINDOWS-1251 "),
              std::string::npos);
    EXPECT_NE(encodingHint("\xEF\xF0", "f", "").find("iconv -f WINDOWS-1252 "), std::string::npos);
    EXPECT_NE(encodingHint("\xEF\xF0", "f", "r").find("iconv -f WINDOWS-1252 "), std::string::npos);
}

TEST(Encoding, DamagedUtf8AndOtherFilesGetNoHint)
{
    EXPECT_EQ(describeForeignBytes("caf\xC3\xA9 caf\xC3\xA9 caf\xC3", "f", "fr"),
              "the file is not UTF-8: line 1");
    EXPECT_EQ(encodingHint(std::string("\x7F"
                                       "ELF\x01\xFF\0\0",
                                       8),
                           "f", ""),
              "");
    EXPECT_EQ(encodingHint("caf\xC3\xA9 caf\xE9", "f", ""), "");
    EXPECT_EQ(encodingHint("", "f", ""), "");
    EXPECT_EQ(encodingHint("caf\xC3\xA9", "f", ""), "");
}

TEST(Encoding, CommandIsForAShell)
{
    const std::string bytes = "\xE9";
    const auto command = [&](const std::string& path) {
        const std::string hint = encodingHint(bytes, path, "");
        return hint.substr(hint.find("UTF-8 ") + 6);
    };
    EXPECT_EQ(command("it's.srt"), R"('it'\''s.srt' > 'it'\''s.utf-8.srt')");
    EXPECT_EQ(command("a b"), "'a b' > 'a b.utf-8'");
    EXPECT_EQ(command("-x.srt"), "./-x.srt > ./-x.utf-8.srt");
    EXPECT_EQ(command("\xC3\xA9$.srt"), "'\xC3\xA9$.srt' > '\xC3\xA9$.utf-8.srt'");
    EXPECT_EQ(command("a\nb"), "FILE > FILE.utf-8");
}

} // namespace
