/// @file
/// The program's arguments and the resulting header.

#include "examples/ProgramRunner.h"

#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::Not;

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

TEST_F(UsageTest, HelpIsPrinted)
{
    const RunResult done = runAlone({"--help"});
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.err, "");
    EXPECT_THAT(done.out, HasSubstr("--screen-text FILE"));
}

} // namespace
