/// @file
/// The command line.

#include "Options.h"

#include "Language.h"
#include "PublishError.h"

#include "ZelInterchangeData/ZelDataUtilities.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

using publish::Options;
using publish::parseOptions;
using publish::PublishError;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;

namespace {

using Words = std::vector<std::string>;

Options parseAll(const Words& words)
{
    Words all{"publish_video"};
    all.insert(all.end(), words.begin(), words.end());
    return parseOptions(all);
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
    EXPECT_FALSE(options.plainText || options.skipEmpty || options.verbose);
    EXPECT_FALSE(options.help || options.version || options.report || options.preview);
    EXPECT_TRUE(options.captions.empty());
}

TEST(OptionValues, EveryOptionReachesItsField)
{
    const Options options =
        parse({"--title",    "T", "--creator",     "C", "--description", "D",
               "--app-name", "A", "--app-version", "V", "--length",      "5",
               "--font",     "F", "--font-size",   "7", "--screen-text", "S",
               "--report",   "R", "--preview",     "P", "--plain-text",  "--skip-empty",
               "--verbose"});
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
    EXPECT_TRUE(options.verbose);
    EXPECT_EQ(options.report, "R");
    EXPECT_EQ(options.preview, "P");
}

/// Values that argument libraries tend to split.
const Words wholeValues{"",    "-",     "--", "-x",    "--colour", "[a,b]", "[a", "a,b",
                        ",",   "\"q\"", "\"", "'x'",   "'",        "`",     "{}", "%%",
                        "a b", " a ",   "=",  "a=b",   "==",       "@file", "/x", "\\",
                        "\\n", "a;b",   "#x", "$HOME", "*",        "true",  "0"};

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

TEST(BadOptions, NearestOneIsSuggested)
{
    EXPECT_EQ(failureOf({"--lenght", "5"}), "unknown option --lenght; did you mean --length?");
    EXPECT_EQ(failureOf({"--lenght=5"}), "unknown option --lenght; did you mean --length?");
    EXPECT_EQ(failureOf({"--tit", "x"}), "unknown option --tit; did you mean --title?");
    EXPECT_EQ(failureOf({"--screen", "x"}), "unknown option --screen; did you mean --screen-text?");
    EXPECT_EQ(failureOf({"-title", "x"}), "unknown option -title; did you mean --title?");
    EXPECT_EQ(failureOf({"--Plain_Text"}),
              "unknown option --Plain_Text; did you mean --plain-text?");
}

TEST(BadOptions, NothingIsSuggestedForWhatIsUnlikeAll)
{
    EXPECT_EQ(failureOf({"--colour"}), "unknown option --colour");
    EXPECT_EQ(failureOf({"-z"}), "unknown option -z");
    EXPECT_EQ(failureOf({"---"}), "unknown option ---");
    EXPECT_EQ(failureOf({"--" + std::string(1'000'000, 'x')}).size(), 1'000'017U);
}

TEST(BadOptions, OptionAsValueIsRefusedWithTheWayToMeanIt)
{
    EXPECT_EQ(failureOf({"--title", "--plain-text"}),
              "--title: '--plain-text' is an option; if you mean it as the value, write "
              "--title=--plain-text");
    for (const std::string value :
         {"--size", "--size=1x1", "-o", "-oout", "--output=x", "--verbose"})
        EXPECT_THAT(failureOf({"--keyword", value}), HasSubstr("--keyword=" + value));
    EXPECT_THAT(failureOfAll({"-o", "--size", "1x1"}), HasSubstr("--output=--size"));
    EXPECT_EQ(parse({"--title=--plain-text"}).title, "--plain-text");
}

TEST(BadOptions, EveryMessageNamesTheOptionByItsLongName)
{
    EXPECT_EQ(failureOfAll({"-o"}), "--output needs a value");
    EXPECT_EQ(failureOfAll({"--output"}), "--output needs a value");
    EXPECT_EQ(failureOfAll({"--size", "1x1"}), "--output is missing");
    EXPECT_EQ(failureOfAll({"-o", "a", "--output", "b"}), "--output is given more than once");
}

TEST(Output, ShortAndLongFormAttachedAndSeparate)
{
    for (const Words& words :
         {Words{"-o", "a"}, Words{"-oa"}, Words{"--output", "a"}, Words{"--output=a"}}) {
        Words all = words;
        all.insert(all.end(), {"--size", "1x1"});
        EXPECT_EQ(parseAll(all).output, "a");
    }
    EXPECT_EQ(parseAll({"-o-", "--size", "1x1"}).output, "-");
}

TEST(Output, EqualsSignAfterTheShortFormIsRefused)
{
    EXPECT_THAT(failureOfAll({"-o=a", "--size", "1x1"}), HasSubstr("did you mean --output=a?"));
    EXPECT_EQ(failureOfAll({"-o=", "--size", "1x1"}), "--output needs a value");
    EXPECT_EQ(parseAll({"--output==a", "--size", "1x1"}).output, "=a");
}

TEST(BadOptions, LongNameAfterOneHyphenIsUnknown)
{
    EXPECT_EQ(failureOfAll({"-output=a", "--size", "1x1"}),
              "unknown option -output; did you mean --output?");
    EXPECT_EQ(failureOfAll({"-help"}), "unknown option -help; did you mean --help?");
    EXPECT_EQ(parseAll({"-output.xmp", "--size", "1x1"}).output, "utput.xmp");
}

TEST(BadOptions, WayToMeanAValueIsQuotedForAShell)
{
    EXPECT_THAT(failureOf({"--title", "-o my film"}), EndsWith(" write '--title=-o my film'"));
    EXPECT_THAT(failureOf({"--report", "en=a b"}), EndsWith(" write '--report=./en=a b'"));
}

TEST(BadOptions, EmptyFontIsRefused)
{
    EXPECT_EQ(failureOf({"--font="}), "--font: the name is empty");
}

TEST(Output, LanguageAndFileAreRefusedWithTheWayToMeanThem)
{
    for (const std::string option : {"--output", "--report", "--preview"}) {
        const Words before = option == "--output" ? Words{} : Words{"-o", "x"};
        for (const std::string file :
             {"en=film.srt", "xx=a", "pt-BR=", "en===", "eng=a", "English=a"}) {
            Words all = before;
            all.insert(all.end(), {option, file, "--size", "1x1"});
            EXPECT_EQ(failureOfAll(all), option + ": '" + file +
                                             "' looks like LANG=FILE; if you mean a file of that "
                                             "name, write " +
                                             option + "=./" + file);
        }
    }
    for (const std::string file : {"./en=film.srt", "en", "a=b", "film.en=x", "film=x"})
        EXPECT_EQ(parseAll({"-o", file, "--size", "1x1"}).output, file);
}

TEST(Output, FileNameIsNotEmpty)
{
    for (const std::string option : {"--report", "--preview"})
        EXPECT_EQ(failureOf({option, ""}), option + ": the file name is empty");
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

TEST(Numbers, RangeIsNamed)
{
    EXPECT_EQ(failureOf({"--font-size", "501"}),
              "--font-size: '501' is not a number from 1 to 500");
    EXPECT_EQ(failureOf({"--font-size", "0"}), "--font-size: '0' is not a number from 1 to 500");
    EXPECT_EQ(parse({"--font-size", "500"}).fontSize, 500U);
    EXPECT_THAT(failureOf({"--length", "00:10:00"}),
                HasSubstr("'00:10:00' is not a number of milliseconds from 1 to "));
    EXPECT_THAT(failureOfAll({"-o", "x", "--size", "0x1"}), HasSubstr(" from 1 to "));
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
    for (const std::string good : {"en", "EN", "en-US", "en-1", "zh-Hant-TW", "en--x"})
        EXPECT_EQ(parse({good + "=f"}).captions.at(0).language, good);
    for (const std::string bad : {"", "e", "eng", "e1", "1e", "en_US", "en US", "en-\xC3\xA9",
                                  "en.", "-en", "en-U/S", "\xC3\xA9", "e-"}) {
        EXPECT_THAT(failureOf({"--", bad + "=f"}), HasSubstr(bad + "=f")) << bad;
        EXPECT_THAT(failureOf({"--toc=" + bad + "=f"}), HasSubstr("--toc")) << bad;
    }
}

TEST(LanguageFiles, UnknownLanguageIsRefusedAndTheNearestSuggested)
{
    EXPECT_EQ(failureOf({"xx=f"}), "'xx=f': unknown language 'xx'");
    EXPECT_EQ(failureOf({"jp=f"}), "'jp=f': unknown language 'jp'; did you mean ja?");
    EXPECT_EQ(failureOf({"--toc", "cn-CN=f"}),
              "--toc: unknown language 'cn-CN'; did you mean zh-CN?");
    EXPECT_THAT(failureOf({"en_US=f"}),
                HasSubstr("'en_US' is not a language code such as en or pt-BR"));
    EXPECT_THAT(failureOf({"en_US=f"}), testing::EndsWith("; did you mean en-US?"));
    EXPECT_THAT(failureOf({"deu=f"}), testing::EndsWith("; did you mean de?"));
    EXPECT_THAT(failureOf({"germna=f"}), testing::EndsWith("; did you mean de?"));
    EXPECT_THAT(failureOf({"Deutsch=f"}), testing::EndsWith("; did you mean de?"));
    EXPECT_THAT(failureOf({"=f"}), testing::EndsWith("such as en or pt-BR"));
}

TEST(LanguageFiles, EveryEnglishNameIsKnown)
{
    using Utilities = ZelInterchangeData::ZelDataUtilities;
    int count = 0;
    for (char first = 'a'; first <= 'z'; ++first)
        for (char second = 'a'; second <= 'z'; ++second) {
            std::string name;
            if (failed(Utilities::englishNameForLanguage({first, second}, name))) continue;
            std::string nameOfLike;
            EXPECT_FALSE(
                failed(Utilities::englishNameForLanguage(publish::languageLike(name), nameOfLike)))
                << name;
            EXPECT_EQ(nameOfLike, name);
            ++count;
        }
    EXPECT_GT(count, 100);
    EXPECT_EQ(publish::languageLike("Spanish"), "es");
    EXPECT_EQ(publish::languageLike("Turkich"), "tr");
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

TEST(Help, WinsOverEverything)
{
    for (const std::string help : {"--help", "-h"}) {
        EXPECT_TRUE(parseAll({help}).help);
        for (const Words& words :
             {Words{"--colour"}, Words{"--title"}, Words{"--size", "0"}, Words{"film.srt"},
              Words{"xx=f"}, Words{"\xFF"}, Words{"--help=x"}, Words{"--version"},
              Words{"-o", "en=f"}, Words{"-o", "a", "-o", "b"}}) {
            Words before = words;
            before.push_back(help);
            EXPECT_TRUE(parseAll(before).help) << words.front();
            Words after{help};
            after.insert(after.end(), words.begin(), words.end());
            EXPECT_TRUE(parseAll(after).help) << words.front();
        }
    }
    EXPECT_THAT(failureOf({"--", "--help"}), HasSubstr("'--help'"));
}

TEST(Version, NeedsNoOtherOption)
{
    EXPECT_TRUE(parseAll({"--version"}).version);
    EXPECT_FALSE(parse({"--title=--version"}).version);
    EXPECT_THAT(failureOf({"--title", "--version"}), HasSubstr("'--version' is an option"));
}

} // namespace
