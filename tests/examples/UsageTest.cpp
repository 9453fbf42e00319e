/// @file
/// The program's arguments and the resulting header.

#include "Usage.h"
#include "OptionTable.h"
#include "examples/ProgramRunner.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

class UsageTest : public ProgramRunner {};

TEST_F(UsageTest, WholePacketOfAHeader)
{
    publish({"--title",     "Boats & <rafts>", "--creator",
             "A \"B\" & C", "--description",   "It's",
             "--app-name",  "Folder",          "--app-version",
             "2.0",         "--keyword",       "a",
             "--keyword",   "b & c",           "--content",
             "one.mp4",     "--content",       "two.mp4",
             "--content",   "one.mp4"});
    EXPECT_EQ(
        packet(),
        "<?xml version=\"1.0\" encoding=\"utf-8\" ?>"
        "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\" >"
        "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\" "
        "xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\" "
        "xmlns:xmpDM=\"http://ns.adobe.com/xmp/1.0/DynamicMedia/\" "
        "xmlns:xmpG=\"http://ns.adobe.com/xap/1.0/g/\" "
        "xmlns:zel=\"http://ns.zel.example/xmp/zel/\" "
        "xmlns:zelDM=\"http://ns.zel.example/xmp/zelDM/\" "
        "xmlns:zelHS=\"http://ns.zel.example/xmp/zelHS/\" "
        "xmlns:stDim=\"http://ns.adobe.com/xap/1.0/sType/Dimensions#\" "
        "xmlns:stFnt=\"http://ns.adobe.com/xap/1.0/sType/Font#\" "
        "xmlns:dc=\"http://purl.org/dc/elements/1.1/\" >"
        "<rdf:Description zel:version=\"1.1.0\" dc:title=\"Boats &amp; &lt;rafts&gt;\" "
        "dc:date=\"DATE\" dc:creator=\"A &quot;B&quot; &amp; C\" dc:Description=\"It&apos;s\" "
        "dc:source=\"Folder - 2.0\" zelDM:iPodExplicit=\"false\" zelDM:keywords=\"a, b &amp; c\" "
        "zelDM:thumbnail=\"\" zelDM:firstFrame=\"\" >"
        "<xmpDM:duration xmpDM:scale=\"1/1000\" xmpDM:value=\"90500\" ></xmpDM:duration>"
        "<xmpDM:videoFrameSize stDim:unit=\"pixel\" stDim:w=\"640\" stDim:h=\"480\" >"
        "</xmpDM:videoFrameSize>"
        "<zel:langName><rdf:Bag><rdf:li xml:lang=\"en-US\">English</rdf:li></rdf:Bag>"
        "</zel:langName>"
        "<xmpDM:Tracks><rdf:Bag></rdf:Bag></xmpDM:Tracks>"
        "<zelDM:controller><rdf:Description xmpDM:name=\"qmplayer\" >"
        "<zelDM:parameters><rdf:Bag><rdf:li xmpDM:name=\"showsearch\" xmpDM:value=\"true\" >"
        "</rdf:li></rdf:Bag></zelDM:parameters></rdf:Description></zelDM:controller>"
        "<zelDM:contentList><rdf:Description><zelDM:files><rdf:Seq>"
        "<rdf:li xmpDM:name=\"0\" xmpDM:value=\"one.mp4\"></rdf:li>"
        "<rdf:li xmpDM:name=\"1\" xmpDM:value=\"two.mp4\"></rdf:li>"
        "</rdf:Seq></zelDM:files></rdf:Description></zelDM:contentList>"
        "</rdf:Description></rdf:RDF></x:xmpmeta>");
}

TEST_F(UsageTest, MissingTextsAreEmpty)
{
    publish({});
    EXPECT_THAT(packet(), HasSubstr(" dc:title=\"\" dc:date=\"DATE\" dc:creator=\"\" "
                                    "dc:Description=\"\" dc:source=\" - \" "));
    EXPECT_THAT(packet(), HasSubstr(" zelDM:keywords=\"\" "));
    EXPECT_THAT(packet(), Not(HasSubstr("zelDM:contentList")));
}

TEST_F(UsageTest, ValueMayBeginWithAHyphen)
{
    publish({"--title=-x"});
    EXPECT_THAT(packet(), HasSubstr(" dc:title=\"-x\" "));
}

TEST_F(UsageTest, ValueIsNotSplit)
{
    publish({"--title", "[a,b]", "--keyword", "c,[d]", "--content", "'e',{f}"});
    EXPECT_THAT(packet(), HasSubstr(" dc:title=\"[a,b]\" "));
    EXPECT_THAT(packet(), HasSubstr(" zelDM:keywords=\"c,[d]\" "));
    EXPECT_THAT(packet(), HasSubstr("<rdf:Seq><rdf:li xmpDM:name=\"0\" "
                                    "xmpDM:value=\"&apos;e&apos;,{f}\"></rdf:li></rdf:Seq>"));
}

TEST_F(UsageTest, ContentNamesThatDifferOnlyInControlCharactersAreOne)
{
    publish({"--content", "a\x01", "--content", "a"});
    EXPECT_THAT(packet(), HasSubstr("<rdf:Seq><rdf:li xmpDM:name=\"0\" xmpDM:value=\"a\">"
                                    "</rdf:li></rdf:Seq>"));
}

TEST_F(UsageTest, ControlCharactersAndNoncharactersDoNotReachThePacket)
{
    publish({"--title", "a\tb\nc\x01\x7F\xEF\xBF\xBE\xEF\xBF\xBF\xC2\x85", "--creator", "\x1Fx"});
    EXPECT_THAT(packet(), HasSubstr(" dc:title=\"a b c\" dc:date=\"DATE\" dc:creator=\"x\" "));
}

TEST_F(UsageTest, FontIsEscaped)
{
    const std::string file = write("a.srt", "00:01.000 --> 00:03.000\nx\n");
    publish({"--font", "A&B \"C\" <D>", "--font-size", "33", "en=" + file});
    EXPECT_EQ(tracks(), captionTrack(captionMarker("1000", "2000", captionText("en", "x")),
                                     "A&amp;B &quot;C&quot; &lt;D&gt;", "33"));
}

TEST_F(UsageTest, FontSizeOutOfRangeIsRefused)
{
    expectFailure(run({"--length", "1", "--font-size", "501"}), "--font-size", {});
    expectFailure(run({"--length", "1", "--font", ""}), "--font", {});
}

TEST_F(UsageTest, RequiredOptionsAreNamed)
{
    expectFailure(runAlone({"--size", "1x1", "--length", "1"}), "-o", {});
    expectFailure(runAlone({"-o", pathOf("out.xmp"), "--length", "1"}), "--size", {});
}

TEST_F(UsageTest, BadOptionsAreNamed)
{
    expectFailure(run({"--length", "1", "--colour", "red"}), "colour", {});
    expectFailure(run({"--length", "0"}), "--length", {});
    expectFailure(run({"--length", "1", "--length", "1"}), "--length", {});
    expectFailure(run({"--length", "1", "film.srt"}), "film.srt", {});
    expectFailure(run({"--length", "1", "--plain-text=no"}), "--plain-text", {});
}

TEST_F(UsageTest, ArgumentThatIsNotUtf8IsNamed)
{
    expectFailure(run({"--length", "1", "--creator", "\xED\xBF\xBF"}), "--creator", {});
    expectFailure(run({"--length", "1", "en=\xFF"}), "en=\\xFF", {});
}

TEST_F(UsageTest, UnknownLanguageIsNamed)
{
    const std::string file = write("a.srt", "00:01.000 --> 00:03.000\nx\n");
    expectFailure(run({"xx=" + file}), "'xx'", {"a.srt"});
    expectFailure(run({"--toc", "qq-US=" + file}), "'qq-US'", {"a.srt"});
    expectFailure(run({"deu=" + file}), "'deu'", {"a.srt"});
}

TEST_F(UsageTest, FileBeyondTheLargestSizeIsRefused)
{
    const std::string cause = ": the file is larger than 100 MB\n";
    expectFailure(run({"en=/dev/zero"}), "publish_video: en=/dev/zero" + cause, {});
    const std::string large = write("large.srt", "");
    std::filesystem::resize_file(large, 100'000'001);
    expectFailure(run({"--toc", large}), "publish_video: --toc " + large + cause, {"large.srt"});
    EXPECT_THAT(publish::manualPage(), HasSubstr("at most 100 MB"));
}

TEST_F(UsageTest, HelpIsPrinted)
{
    for (const std::string help : {"--help", "-h"}) {
        const RunResult done = runAlone({"--colour", help, "--version"});
        EXPECT_EQ(done.status, 0);
        EXPECT_EQ(done.err, "");
        EXPECT_THAT(done.out, StartsWith("Usage: publish_video "));
    }
}

TEST_F(UsageTest, HelpThatCannotBePrintedIsAFailure)
{
    const RunResult done = runShell("\"$0\" --help >/dev/full", {});
    expectFailure(done, "standard output: cannot be written: No space left on device", {});
}

TEST_F(UsageTest, VersionIsPrinted)
{
    const RunResult done = runAlone({"--version", "--verbose"});
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.err, "");
    EXPECT_EQ(done.out, "publish_video " VERSION "\n");
}

TEST_F(UsageTest, ErrorsAreTheWholeOutput)
{
    EXPECT_EQ(run({"--lenght", "5"}).err, "publish_video: unknown option --lenght; did you mean "
                                          "--length?\nTry 'publish_video --help'.\n");
}

TEST(Help, ListsEveryOptionWithItsDefault)
{
    const std::string help = publish::usage();
    for (const publish::OptionEntry& option : publish::optionTable) {
        EXPECT_THAT(help, HasSubstr(std::string("--") + option.name));
        EXPECT_THAT(help, HasSubstr(option.value != nullptr ? option.value : ""));
    }
    EXPECT_THAT(help, HasSubstr("\n  -o, --output OUT.xmp       the file to write"));
    EXPECT_THAT(help, HasSubstr("\n      --font-size N          the captions' font size, 1 to 500 "
                                "(default: 20)\n"));
}

TEST(Help, HasTwoExamplesAndTheExitStatuses)
{
    const std::string help = publish::usage();
    const std::string examples = help.substr(help.find("\nExamples:\n"));
    EXPECT_THAT(examples, ContainsRegex("\n    publish_video -o .*\n    publish_video -o "));
    EXPECT_THAT(examples, ContainsRegex("\nExit status:\n  0  .*\n  2  "));
}

TEST(Help, FitsAnOrdinaryTerminal)
{
    std::istringstream help(publish::usage());
    for (std::string line; std::getline(help, line);)
        EXPECT_LE(line.size(), 80U) << line;
}

class ExampleTest : public ProgramRunner {};

TEST_F(ExampleTest, EachExampleOfTheHelpRuns)
{
    const std::string help = publish::usage();
    const std::size_t begin = help.find("\nExamples:\n");
    std::istringstream lines(help.substr(begin, help.find("\nExit status:") - begin));
    std::string script = "set -e\ncd '" + pathOf(".") + "'\npublish_video() { \"$0\" \"$@\"; }\n";
    for (std::string line; std::getline(lines, line);)
        if (line.substr(0, 4) == "    ") script += line + "\n";
    for (const std::string name : {"film.en.srt", "film.de.srt", "film.vtt", "chapters.vtt"})
        write(name, "WEBVTT\n\n00:01.000 --> 00:02.000\nx\n");
    const RunResult done = runShell(script, {});
    EXPECT_EQ(done.status, 0) << done.err;
    EXPECT_THAT(names(), testing::IsSupersetOf({"film.json", "film.xmp"}));
}

class ManualPageTest : public ProgramRunner {};

TEST_F(ManualPageTest, IsFormattedWithoutAWarning)
{
    const std::string page = write("publish_video.1", publish::manualPage());
    const RunResult done =
        runShell("command -v groff >&2 || exit 77; groff -ww -man -Tascii -P-c '" + page + "'", {});
    if (done.status == 77) GTEST_SKIP() << "groff is not installed.";
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(std::count(done.err.begin(), done.err.end(), '\n'), 1) << done.err;
    EXPECT_THAT(done.out, HasSubstr("--title=--plain-text"));
}

TEST(ManualPage, HasTheTextsOfTheHelp)
{
    const std::string page = publish::manualPage();
    EXPECT_THAT(page,
                StartsWith(".TH PUBLISH_VIDEO 1 \"\" \"publish_video " VERSION "\"\n.SH NAME\n"));
    EXPECT_THAT(page, HasSubstr("\n.TP\n.B \\-o, \\-\\-output OUT.xmp\nthe file to write; \\- is "
                                "standard output (required)\n"));
    EXPECT_THAT(page, HasSubstr("\n.SH EXIT STATUS\n.TP\n.B 0\n"));
    EXPECT_THAT(page, HasSubstr(" \\e\n"));
}

} // namespace
