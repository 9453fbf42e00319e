/// @file
/// The command line.

#include "Options.h"

#include "PublishError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

using publish::Options;
using publish::parseOptions;
using publish::PublishError;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

using Words = std::vector<std::string>;

Options parseAll(const Words& words)
{
    std::vector<const char*> arguments{"publish_video"};
    for (const std::string& word : words)
        arguments.push_back(word.c_str());
    return parseOptions(static_cast<int>(arguments.size()), arguments.data());
}

/// Parses @p words after the required options.
Options parse(const Words& words)
{
    Words all{"-o", "out.xmp", "--size", "640x480"};
    all.insert(all.end(), words.begin(), words.end());
    return parseAll(all);
}

/// The error message of @p words alone on the command line.
std::string failureOfAll(const Words& words)
{
    try {
        parseAll(words);
    } catch (const PublishError& error) {
        return error.what();
    }
    return "(no failure)";
}

/// The error message of @p words after the required options.
std::string failureOf(const Words& words)
{
    Words all{"-o", "out.xmp", "--size", "640x480"};
    all.insert(all.end(), words.begin(), words.end());
    return failureOfAll(all);
}

TEST(RequiredOptions, OutputIsRequired)
{
    EXPECT_THAT(failureOfAll({"--size", "1x1"}), HasSubstr("-o"));
    EXPECT_THAT(failureOfAll({}), HasSubstr("-o"));
}

TEST(RequiredOptions, SizeIsRequired)
{
    EXPECT_THAT(failureOfAll({"-o", "x"}), HasSubstr("--size"));
}

TEST(RequiredOptions, AreRead)
{
    const Options options = parse({});
    EXPECT_EQ(options.output, "out.xmp");
    EXPECT_EQ(options.width, 640U);
    EXPECT_EQ(options.height, 480U);
}

TEST(RequiredOptions, EmptyOutputIsRefused)
{
    EXPECT_THAT(failureOfAll({"-o", "", "--size", "1x1"}), HasSubstr("-o"));
}

TEST(OptionDefaults, MissingTextsAreEmpty)
{
    const Options options = parse({});
    EXPECT_EQ(options.title, "");
    EXPECT_EQ(options.creator, "");
    EXPECT_EQ(options.description, "");
    EXPECT_EQ(options.appName, "");
    EXPECT_EQ(options.appVersion, "");
    EXPECT_TRUE(options.keywords.empty());
    EXPECT_TRUE(options.contentNames.empty());
}

TEST(OptionDefaults, NothingElseIsSet)
{
    const Options options = parse({});
    EXPECT_FALSE(options.length || options.font || options.fontSize);
    EXPECT_FALSE(options.toc || options.screenText);
    EXPECT_FALSE(options.plainText || options.skipEmpty || options.help);
    EXPECT_TRUE(options.captions.empty());
}

TEST(OptionValues, EveryOptionReachesItsField)
{
    const Options options =
        parse({"--title",      "T",           "--creator",     "C", "--description", "D",
               "--app-name",   "A",           "--app-version", "V", "--length",      "5",
               "--font",       "F",           "--font-size",   "7", "--screen-text", "S",
               "--plain-text", "--skip-empty"});
    EXPECT_EQ(options.title, "T");
    EXPECT_EQ(options.creator, "C");
    EXPECT_EQ(options.description, "D");
    EXPECT_EQ(options.appName, "A");
    EXPECT_EQ(options.appVersion, "V");
    EXPECT_EQ(options.length, 5U);
    EXPECT_EQ(options.font, "F");
    EXPECT_EQ(options.fontSize, 7U);
    EXPECT_EQ(options.screenText, "S");
    EXPECT_TRUE(options.plainText);
    EXPECT_TRUE(options.skipEmpty);
}

/// Values that argument libraries tend to split.
const Words wholeValues{"",    "-",     "--", "-x",    "--creator", "[a,b]", "[a", "a,b",
                        ",",   "\"q\"", "\"", "'x'",   "'",         "`",     "{}", "%%",
                        "a b", " a ",   "=",  "a=b",   "==",        "@file", "/x", "\\",
                        "\\n", "a;b",   "#x", "$HOME", "*",         "true",  "0"};

TEST(OptionValues, AreNotSplitAfterABlank)
{
    for (const std::string& value : wholeValues)
        EXPECT_EQ(parse({"--title", value}).title, value);
}

TEST(OptionValues, AreNotSplitAfterAnEqualsSign)
{
    for (const std::string& value : wholeValues)
        EXPECT_EQ(parse({"--title=" + value}).title, value);
}

TEST(OptionValues, AreNotSplitByRepeatedOptions)
{
    for (const std::string& value : wholeValues) {
        const Options options = parse(
            {"--keyword", value, "--keyword=" + value, "--content", value, "--content=" + value});
        EXPECT_THAT(options.keywords, ElementsAre(value, value));
        EXPECT_THAT(options.contentNames, ElementsAre(value, value));
    }
}

TEST(OptionValues, AreNotSplitAsFileNames)
{
    for (const std::string& value : wholeValues) {
        EXPECT_EQ(parse({"en=" + value}).captions.at(0).path, value);
        EXPECT_EQ(parse({"--screen-text=" + value}).screenText, value);
    }
}

TEST(OptionValues, LongValueIsNotCutOff)
{
    const std::string value(1'000'000, ',');
    EXPECT_EQ(parse({"--title=" + value}).title, value);
}

TEST(OptionValues, LineFeedInAValueBecomesABlank)
{
    EXPECT_EQ(parse({"--title=a\nb"}).title, "a b");
    EXPECT_EQ(parse({"--keyword", "a\nb\tc\x02"}).keywords.at(0), "a b c");
}

TEST(OptionValues, FileNamesKeepTheirControlCharacters)
{
    EXPECT_EQ(parse({"en=a\nb"}).captions.at(0).path, "a\nb");
    EXPECT_EQ(parseAll({"-o", "a\tb", "--size=1x1"}).output, "a\tb");
}

TEST(OptionValues, EnvironmentIsIgnored)
{
    ::setenv("TITLE", "from outside", 1);
    ::setenv("PUBLISH_VIDEO_TITLE", "from outside", 1);
    EXPECT_EQ(parse({}).title, "");
}

TEST(RepeatedOptions, KeywordAndContentTakeOneValueEach)
{
    const Options options = parse({"--keyword", "a", "--content", "x", "--keyword", "b", "en=f"});
    EXPECT_THAT(options.keywords, ElementsAre("a", "b"));
    EXPECT_THAT(options.contentNames, ElementsAre("x"));
    EXPECT_EQ(options.captions.size(), 1U);
    EXPECT_THAT(failureOf({"--keyword", "a", "b"}), HasSubstr("'b'"));
}

TEST(RepeatedOptions, EveryOtherOptionIsRefusedTheSecondTime)
{
    const Words options{"-o",          "--size",       "--title",  "--creator",     "--description",
                        "--font",      "--app-name",   "--length", "--app-version", "--toc",
                        "--font-size", "--screen-text"};
    for (const std::string& option : options)
        EXPECT_THAT(failureOfAll({option, "1", option, "1"}), HasSubstr(option));
    EXPECT_THAT(failureOf({"--plain-text", "--plain-text"}), HasSubstr("--plain-text"));
    EXPECT_THAT(failureOf({"--skip-empty", "--skip-empty"}), HasSubstr("--skip-empty"));
}

TEST(BadOptions, UnknownOnesAreNamed)
{
    EXPECT_THAT(failureOf({"--colour", "red"}), HasSubstr("colour"));
    EXPECT_THAT(failureOf({"--colour=red"}), HasSubstr("colour"));
    EXPECT_THAT(failureOf({"-z"}), HasSubstr("z"));
    EXPECT_THAT(failureOf({"--tit", "x"}), HasSubstr("tit"));
    EXPECT_THAT(failureOf({"-title", "x"}), testing::Ne("(no failure)"));
}

TEST(BadOptions, MissingValueIsNamed)
{
    EXPECT_THAT(failureOf({"--title"}), HasSubstr("title"));
    EXPECT_THAT(failureOfAll({"--size", "1x1", "-o"}), HasSubstr("o"));
}

TEST(BadOptions, FlagsTakeNoValue)
{
    EXPECT_THAT(failureOf({"--plain-text=false"}), HasSubstr("--plain-text"));
    EXPECT_THAT(failureOf({"--skip-empty=1"}), HasSubstr("--skip-empty"));
    EXPECT_THAT(failureOf({"--plain-text", "true"}), HasSubstr("'true'"));
}

TEST(BadOptions, MessageStaysOnOneLine)
{
    EXPECT_THAT(failureOf({"--a\nb"}), testing::Not(HasSubstr("\n")));
    EXPECT_THAT(failureOf({"a\nb"}), testing::Not(HasSubstr("\n")));
}

TEST(Numbers, PlainDigitsFromOne)
{
    EXPECT_EQ(parse({"--length", "1"}).length, 1U);
    EXPECT_EQ(parse({"--length", "007"}).length, 7U);
    EXPECT_EQ(parse({"--length", "18446744073709551615"}).length, 18446744073709551615U);
}

TEST(Numbers, EverythingElseIsRefusedByName)
{
    for (const std::string bad :
         {"0", "00", "", "-1", "+1", "1.5", "1e3", "0x10", " 1", "1 ", "ten", "1,000",
          "18446744073709551616", "99999999999999999999999"}) {
        EXPECT_THAT(failureOf({"--length=" + bad}), HasSubstr("--length")) << bad;
        EXPECT_THAT(failureOf({"--font-size=" + bad}), HasSubstr("--font-size")) << bad;
    }
}

TEST(Numbers, SizeIsTwoNumbersAroundAnX)
{
    for (const std::string bad : {"", "640", "x", "640x", "x480", "0x480", "640x0", "640X480",
                                  "640x480x1", "640 x 480", "-640x480", "640*480", "6.4x4.8"})
        EXPECT_THAT(failureOfAll({"-o", "x", "--size=" + bad}), HasSubstr("--size")) << bad;
}

TEST(LanguageFiles, LanguageEndsAtTheFirstEqualsSign)
{
    const Options options = parse({"de=a=b.srt", "pt-BR=c"});
    ASSERT_EQ(options.captions.size(), 2U);
    EXPECT_EQ(options.captions[0].language, "de");
    EXPECT_EQ(options.captions[0].path, "a=b.srt");
    EXPECT_EQ(options.captions[1].language, "pt-BR");
}

TEST(LanguageFiles, TwoLettersThenAHyphenAndLettersDigitsAndHyphens)
{
    for (const std::string good : {"en", "EN", "xx", "en-US", "en-1", "zh-Hant-TW", "en--x"})
        EXPECT_EQ(parse({good + "=f"}).captions.at(0).language, good);
    for (const std::string bad : {"", "e", "eng", "e1", "1e", "en_US", "en US", "en-\xC3\xA9",
                                  "en.", "-en", "en-U/S", "\xC3\xA9", "e-"}) {
        EXPECT_THAT(failureOf({"--", bad + "=f"}), HasSubstr(bad + "=f")) << bad;
        EXPECT_THAT(failureOf({"--toc=" + bad + "=f"}), HasSubstr("--toc")) << bad;
    }
}

TEST(LanguageFiles, ArgumentWithoutEqualsSignIsRefused)
{
    EXPECT_THAT(failureOf({"film.srt"}), HasSubstr("film.srt"));
    EXPECT_THAT(failureOf({""}), HasSubstr("''"));
    EXPECT_THAT(failureOf({"-"}), HasSubstr("'-'"));
}

TEST(LanguageFiles, SameLanguageMayBeGivenTwice)
{
    EXPECT_EQ(parse({"de=a", "de=b"}).captions.size(), 2U);
}

TEST(LanguageFiles, TableOfContentsIsEnglishWithoutALanguage)
{
    const Options plain = parse({"--toc", "chapters.vtt"});
    EXPECT_EQ(plain.toc->language, "en");
    EXPECT_EQ(plain.toc->path, "chapters.vtt");
    const Options french = parse({"--toc", "fr=a=b.vtt"});
    EXPECT_EQ(french.toc->language, "fr");
    EXPECT_EQ(french.toc->path, "a=b.vtt");
}

TEST(ArgumentBytes, BytesThatAreNotStrictUtf8AreRefusedByName)
{
    for (const std::string bad : {"\xFF", "\xED\xA0\x80", "\xC0\xAF", "\xF4\x90\x80\x80"}) {
        for (const std::string option :
             {"--title", "--creator", "--description", "--app-name", "--app-version", "--keyword",
              "--content", "--font", "--toc", "--screen-text"})
            EXPECT_THAT(failureOf({option + "=" + bad}), HasSubstr(option));
        EXPECT_THAT(failureOfAll({"-o", bad, "--size", "1x1"}), HasSubstr("-o"));
        EXPECT_THAT(failureOf({"de=" + bad}), HasSubstr("de="));
    }
}

TEST(Help, NeedsNoOtherOption)
{
    EXPECT_TRUE(parseAll({"--help"}).help);
}

} // namespace
