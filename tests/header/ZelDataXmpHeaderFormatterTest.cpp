/// @file
/// The packet of a header: the whole text for given headers.

#include "header/Headers.h"
#include "header/ScriptedHeader.h"
#include "support/Checks.h"
#include "support/LongNumbers.h"

#include <chrono>
#include <limits>
#include <memory>
#include <regex>
#include <string>
#include <thread>

namespace ZelInterchangeData {
namespace {

const char* const beforeTitle = "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\" >"
                                "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\""
                                " xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\""
                                " xmlns:xmpDM=\"http://ns.adobe.com/xmp/1.0/DynamicMedia/\""
                                " xmlns:xmpG=\"http://ns.adobe.com/xap/1.0/g/\""
                                " xmlns:zel=\"http://ns.zel.example/xmp/zel/\""
                                " xmlns:zelDM=\"http://ns.zel.example/xmp/zelDM/\""
                                " xmlns:zelHS=\"http://ns.zel.example/xmp/zelHS/\""
                                " xmlns:stDim=\"http://ns.adobe.com/xap/1.0/sType/Dimensions#\""
                                " xmlns:stFnt=\"http://ns.adobe.com/xap/1.0/sType/Font#\""
                                " xmlns:dc=\"http://purl.org/dc/elements/1.1/\" >"
                                "<rdf:Description zel:version=\"1.1.0\" ";

const char* const emptyTracks = "<xmpDM:Tracks><rdf:Bag></rdf:Bag></xmpDM:Tracks>";

const char* const controllerWithSearchBar =
    "<zelDM:controller><rdf:Description xmpDM:name=\"qmplayer\" ><zelDM:parameters><rdf:Bag>"
    "<rdf:li xmpDM:name=\"showsearch\" xmpDM:value=\"true\" ></rdf:li>"
    "</rdf:Bag></zelDM:parameters></rdf:Description></zelDM:controller>";

const char* const afterController = "</rdf:Description></rdf:RDF></x:xmpmeta>";

/// @p packet with DATE in place of its date.
std::string withoutDate(const std::string& packet)
{
    static const std::regex date(R"re(dc:date="\d{4,}-\d\d-\d\dT\d\d:\d\d:\d\d[+-]\d{1,2}:00")re");
    return std::regex_replace(packet, date, "dc:date=\"DATE\"");
}

/// The minimal values that a header formatter accepts.
HeaderValues plainValues()
{
    HeaderValues values;
    values.videoLength = 90500;
    values.videoWidth = 640;
    values.videoHeight = 480;
    return values;
}

class HeaderFormatter : public testing::Test {
protected:
    void set(const HeaderValues& values)
    {
        const auto header = make(&ZelDataUtilities::createHeaderData);
        fill(*header, values);
        EXPECT_CODE(*formatter_, ZelData_Ok, formatter_->setHeader(*header));
    }

    /// The packet with the date masked.
    std::string written() const
    {
        std::string text = "left over";
        EXPECT_CODE(*formatter_, ZelData_Ok,
                    formatter_->writeString(text, ZelDataFormat_Xmp, false));
        return withoutDate(text);
    }

    std::string written(const HeaderValues& values)
    {
        set(values);
        return written();
    }

    /// The value of an attribute that the packet has once.
    static std::string attribute(const std::string& packet, const std::string& name)
    {
        const std::string opening = " " + name + "=\"";
        const auto begin = packet.find(opening);
        if (begin == std::string::npos) return "no " + name;
        const auto value = begin + opening.size();
        return packet.substr(value, packet.find("\" ", value) - value);
    }

    std::unique_ptr<i_ZelDataHeaderFormatter> formatter_ =
        make(&ZelDataUtilities::createHeaderFormatter);
};

TEST_F(HeaderFormatter, WritesTheWholePacket)
{
    HeaderValues values = plainValues();
    values.title = "Intro & Setup";
    values.creator = "Ann";
    values.appName = "Recorder";
    values.appVersion = "2.0";
    values.languages = {"en", "de"};
    values.contentNames = {"intro.mp4", "intro.xml"};
    EXPECT_EQ(std::string(beforeTitle) +
                  "dc:title=\"Intro &amp; Setup\" dc:date=\"DATE\" dc:creator=\"Ann\""
                  " dc:Description=\"\" dc:source=\"Recorder - 2.0\" zelDM:iPodExplicit=\"false\""
                  " zelDM:keywords=\"\" zelDM:thumbnail=\"\" zelDM:firstFrame=\"\" >"
                  "<xmpDM:duration xmpDM:scale=\"1/1000\" xmpDM:value=\"90500\" ></xmpDM:duration>"
                  "<xmpDM:videoFrameSize stDim:unit=\"pixel\" stDim:w=\"640\" stDim:h=\"480\" >"
                  "</xmpDM:videoFrameSize>"
                  "<zel:langName><rdf:Bag><rdf:li xml:lang=\"en\">English</rdf:li>"
                  "<rdf:li xml:lang=\"de\">German</rdf:li></rdf:Bag></zel:langName>" +
                  emptyTracks + controllerWithSearchBar +
                  "<zelDM:contentList><rdf:Description><zelDM:files><rdf:Seq>"
                  "<rdf:li xmpDM:name=\"0\" xmpDM:value=\"intro.mp4\"></rdf:li>"
                  "<rdf:li xmpDM:name=\"1\" xmpDM:value=\"intro.xml\"></rdf:li>"
                  "</rdf:Seq></zelDM:files></rdf:Description></zelDM:contentList>" +
                  afterController,
              written(values));
}

TEST_F(HeaderFormatter, WritesNeitherLanguagesNorContentListWhenThereAreNone)
{
    EXPECT_EQ(std::string(beforeTitle) +
                  "dc:title=\"\" dc:date=\"DATE\" dc:creator=\"\" dc:Description=\"\""
                  " dc:source=\" - \" zelDM:iPodExplicit=\"false\" zelDM:keywords=\"\""
                  " zelDM:thumbnail=\"\" zelDM:firstFrame=\"\" >"
                  "<xmpDM:duration xmpDM:scale=\"1/1000\" xmpDM:value=\"90500\" ></xmpDM:duration>"
                  "<xmpDM:videoFrameSize stDim:unit=\"pixel\" stDim:w=\"640\" stDim:h=\"480\" >"
                  "</xmpDM:videoFrameSize>" +
                  emptyTracks + controllerWithSearchBar + afterController,
              written(plainValues()));
}

TEST_F(HeaderFormatter, WritesTheTimeOfWriting)
{
    set(plainValues());
    std::string text;
    const std::string before = ZelDataUtilities::getDateString(nullptr);
    EXPECT_CODE(*formatter_, ZelData_Ok, formatter_->writeString(text, ZelDataFormat_Xmp, false));
    const std::string after = ZelDataUtilities::getDateString(nullptr);
    EXPECT_LE(before, attribute(text, "dc:date"));
    EXPECT_GE(after, attribute(text, "dc:date"));
}

TEST_F(HeaderFormatter, TwoWritingsASecondApartDifferOnlyInTheDate)
{
    set(sampleValues());
    std::string first;
    std::string second;
    EXPECT_CODE(*formatter_, ZelData_Ok, formatter_->writeString(first, ZelDataFormat_Xmp, false));
    std::this_thread::sleep_for(std::chrono::milliseconds(1100));
    EXPECT_CODE(*formatter_, ZelData_Ok, formatter_->writeString(second, ZelDataFormat_Xmp, false));
    EXPECT_NE(first, second);
    EXPECT_EQ(withoutDate(first), withoutDate(second));
}

TEST_F(HeaderFormatter, EscapesEachTextExceptTheCreator)
{
    HeaderValues values = plainValues();
    values.title = values.creator = values.description = values.appName = values.appVersion =
        "a\"&'<>";
    values.keywords = {"a\"&'<>"};
    const std::string packet = written(values);
    const std::string escaped = "a&quot;&amp;&apos;&lt;&gt;";
    EXPECT_EQ(escaped, attribute(packet, "dc:title"));
    EXPECT_EQ("a\"&'<>", attribute(packet, "dc:creator"));
    EXPECT_EQ(escaped, attribute(packet, "dc:Description"));
    EXPECT_EQ(escaped + " - " + escaped, attribute(packet, "dc:source"));
    EXPECT_EQ(escaped, attribute(packet, "zelDM:keywords"));
}

TEST_F(HeaderFormatter, LeavesEveryOtherByteOfATextUnchanged)
{
    HeaderValues values = plainValues();
    values.title = "\xFF\n\t\x01\xC3\xA9";
    EXPECT_EQ("\xFF\n\t\x01\xC3\xA9", attribute(written(values), "dc:title"));
}

TEST_F(HeaderFormatter, JoinsKeywordsWithCommaAndSpace)
{
    HeaderValues values = plainValues();
    values.keywords = {"a", "b & c"};
    EXPECT_EQ("a, b &amp; c", attribute(written(values), "zelDM:keywords"));
    values.keywords = {"", "", "b"};
    EXPECT_EQ(", , b", attribute(written(values), "zelDM:keywords"));
    values.keywords = {"only"};
    EXPECT_EQ("only", attribute(written(values), "zelDM:keywords"));
}

TEST_F(HeaderFormatter, WritesTheSeparatorOfTheSourceBetweenEmptyPartsToo)
{
    HeaderValues values = plainValues();
    EXPECT_EQ(" - ", attribute(written(values), "dc:source"));
    values.appName = "App";
    EXPECT_EQ("App - ", attribute(written(values), "dc:source"));
    values.appName = "";
    values.appVersion = "1";
    EXPECT_EQ(" - 1", attribute(written(values), "dc:source"));
}

TEST_F(HeaderFormatter, WritesTheFlagsAsWords)
{
    HeaderValues values = plainValues();
    values.iPodExplicit = true;
    values.showSearchBar = false;
    const std::string packet = written(values);
    EXPECT_EQ("true", attribute(packet, "zelDM:iPodExplicit"));
    EXPECT_NE(std::string::npos,
              packet.find("<rdf:li xmpDM:name=\"showsearch\" xmpDM:value=\"false\" ></rdf:li>"));
}

TEST_F(HeaderFormatter, TruncatesNoNumber)
{
    HeaderValues values = plainValues();
    values.videoLength = above32Bits(0);
    values.videoWidth = above32Bits(1);
    values.videoHeight = std::numeric_limits<unsigned long>::max();
    const std::string packet = written(values);
    EXPECT_EQ(std::to_string(values.videoLength), attribute(packet, "xmpDM:value"));
    EXPECT_EQ(std::to_string(values.videoWidth), attribute(packet, "stDim:w"));
    EXPECT_EQ(std::to_string(values.videoHeight), attribute(packet, "stDim:h"));
}

TEST_F(HeaderFormatter, WritesLanguageIDsAsStoredInListOrder)
{
    HeaderValues values = plainValues();
    values.languages = {"pt-BR", "en-<&\">", "DE", "bh"};
    EXPECT_NE(std::string::npos,
              written(values).find("<zel:langName><rdf:Bag>"
                                   "<rdf:li xml:lang=\"pt-BR\">Portuguese</rdf:li>"
                                   "<rdf:li xml:lang=\"en-<&\">\">English</rdf:li>"
                                   "<rdf:li xml:lang=\"DE\">German</rdf:li>"
                                   "<rdf:li xml:lang=\"bh\">Biharis</rdf:li>"
                                   "</rdf:Bag></zel:langName>" +
                                   std::string(emptyTracks)));
}

TEST_F(HeaderFormatter, NumbersAndEscapesContentNames)
{
    HeaderValues values = plainValues();
    std::string items;
    for (int i = 0; i < 12; ++i) {
        values.contentNames.push_back("<'" + std::to_string(i));
        items += "<rdf:li xmpDM:name=\"" + std::to_string(i) + "\" xmpDM:value=\"&lt;&apos;" +
                 std::to_string(i) + "\"></rdf:li>";
    }
    EXPECT_NE(std::string::npos, written(values).find("<rdf:Seq>" + items + "</rdf:Seq>"));
}

TEST_F(HeaderFormatter, IgnoresTheFlag)
{
    set(sampleValues());
    std::string text = "left over";
    EXPECT_CODE(*formatter_, ZelData_Ok, formatter_->writeString(text, ZelDataFormat_Xmp, true));
    EXPECT_EQ(written(), withoutDate(text));
}

// The held copy

TEST_F(HeaderFormatter, HoldsACopy)
{
    const auto header = make(&ZelDataUtilities::createHeaderData);
    fill(*header, sampleValues());
    EXPECT_CODE(*formatter_, ZelData_Ok, formatter_->setHeader(*header));
    EXPECT_EQ(ZelData_Ok, header->setTitle("Changed"));
    EXPECT_EQ("Boats", attribute(written(), "dc:title"));
}

TEST_F(HeaderFormatter, EachHeaderReplacesTheOneBefore)
{
    const std::string plain = written(plainValues());
    set(sampleValues());
    EXPECT_NE(plain, written());
    EXPECT_EQ(plain, written(plainValues()));
}

TEST_F(HeaderFormatter, AHeaderWithoutSizesIsRefusedAndWrittenAsFarAsItWasCopied)
{
    const auto header = make(&ZelDataUtilities::createHeaderData);
    HeaderValues values = sampleValues();
    values.videoLength = values.videoWidth = values.videoHeight = 0;
    values.languages = {"fr"};
    fill(*header, values);
    EXPECT_CODE(*formatter_, ZelData_InvalidArgument, formatter_->setHeader(*header));
    EXPECT_EQ(std::string(beforeTitle) +
                  "dc:title=\"Boats\" dc:date=\"DATE\" dc:creator=\"Ann\""
                  " dc:Description=\"About boats\" dc:source=\"Recorder - 2.0\""
                  " zelDM:iPodExplicit=\"true\" zelDM:keywords=\"b, a, b\" zelDM:thumbnail=\"\""
                  " zelDM:firstFrame=\"\" >"
                  "<xmpDM:duration xmpDM:scale=\"1/1000\" xmpDM:value=\"0\" ></xmpDM:duration>"
                  "<xmpDM:videoFrameSize stDim:unit=\"pixel\" stDim:w=\"0\" stDim:h=\"0\" >"
                  "</xmpDM:videoFrameSize><zel:langName><rdf:Bag>"
                  "<rdf:li xml:lang=\"fr\">French</rdf:li></rdf:Bag></zel:langName>" +
                  emptyTracks + controllerWithSearchBar + afterController,
              written());
}

/// Content names and search bar are copied last, and clearing the held copy keeps them.
TEST_F(HeaderFormatter, ARefusedHeaderLeavesTheContentNamesOfTheOneBefore)
{
    set(sampleValues());
    const auto empty = make(&ZelDataUtilities::createHeaderData);
    EXPECT_CODE(*formatter_, ZelData_InvalidArgument, formatter_->setHeader(*empty));
    const std::string packet = written();
    EXPECT_EQ("", attribute(packet, "dc:title"));
    EXPECT_NE(std::string::npos,
              packet.find("<rdf:li xmpDM:name=\"0\" xmpDM:value=\"z.mp4\"></rdf:li>"));
    EXPECT_NE(std::string::npos, packet.find("xmpDM:name=\"showsearch\" xmpDM:value=\"false\""));
}

TEST_F(HeaderFormatter, ReturnsTheCodeOfAHeaderThatCannotBeCopied)
{
    for (const auto& [misdeed, expected] :
         {std::pair(Misdeed::ReturnsCode, CallScript::keptCode),
          std::pair(Misdeed::ThrowsBadAlloc, ZelData_OutOfMemory),
          std::pair(Misdeed::ThrowsOther, ZelData_InternalError)}) {
        ScriptedHeader source;
        fill(source, sampleValues());
        source.script.failAt("getTitle", misdeed);
        EXPECT_CODE(*formatter_, expected, formatter_->setHeader(source));
        const std::string packet = written();
        EXPECT_EQ("Recorder - 2.0", attribute(packet, "dc:source"));
        EXPECT_EQ("", attribute(packet, "dc:title"));
    }
}

/// The last error of the held header is that of the source, here success, although the copy stopped.
TEST_F(HeaderFormatter, ReturnsSuccessForAFailingHeaderThatKeptSuccess)
{
    ScriptedHeader source;
    fill(source, sampleValues());
    source.script.failAt("getTitle");
    source.script.keep(ZelData_Ok);
    EXPECT_CODE(*formatter_, ZelData_Ok, formatter_->setHeader(source));
    EXPECT_EQ("", attribute(written(), "dc:title"));
}

} // namespace
} // namespace ZelInterchangeData
