/// @file
/// The screen-text track, byte for byte.

#include "screentext/ZelDataXmpScreenTextFormatter.h"

#include "screentext/Items.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace ZelInterchangeData {
namespace {

/// A track of @p markers with the frame rate @p rate.
std::string track(const std::string& rate, const std::string& markers)
{
    return R"(<rdf:li><rdf:Description xmpDM:trackType="ScreenText" xmpDM:frameRate=")" + rate +
           R"(" xmpDM:trackName="Screen Text" ><xmpDM:markers><rdf:Seq>)" + markers +
           "</rdf:Seq></xmpDM:markers></rdf:Description></rdf:li>";
}

/// A marker without an image and a group.
std::string marker(const std::string& name, const std::string& start, const std::string& duration)
{
    return R"(<rdf:li><rdf:Description xmpDM:name=")" + name + R"(" xmpDM:startTime=")" + start +
           R"(" xmpDM:duration=")" + duration +
           R"(" xmpDM:image="" zelDM:imageindex="0" zelDM:imageoffset="0" zelDM:tocEntry="0" >)"
           "</rdf:Description></rdf:li>";
}

class ScreenTextFormatter : public testing::Test {
protected:
    void give(const std::vector<Shown>& items, unsigned long rate = 1000)
    {
        const auto texts = screenTextOf(items);
        EXPECT_EQ(ZelData_Ok, texts->setFrameRate(rate));
        EXPECT_CODE(*formatter_, ZelData_Ok, formatter_->setScreenText(*texts));
    }

    std::string written()
    {
        std::string out = "replaced";
        EXPECT_CODE(*formatter_, ZelData_Ok, formatter_->writeString(out, ZelDataFormat_Xmp, true));
        return out;
    }

    std::unique_ptr<i_ZelDataScreenTextFormatter> formatter_ =
        make(ZelDataUtilities::createScreenTextFormatter);
};

TEST_F(ScreenTextFormatter, WritesTextTimesImageAndGroup)
{
    give({{2000, 1500, "Click Save", "shots.png", 3, 4096, 1}});
    EXPECT_EQ(R"(<rdf:li><rdf:Description xmpDM:trackType="ScreenText" xmpDM:frameRate="f1000" )"
              R"(xmpDM:trackName="Screen Text" ><xmpDM:markers><rdf:Seq>)"
              R"(<rdf:li><rdf:Description xmpDM:name="Click Save" xmpDM:startTime="2000" )"
              R"(xmpDM:duration="1500" xmpDM:image="shots.png" zelDM:imageindex="3" )"
              R"(zelDM:imageoffset="4096" zelDM:tocEntry="1" ></rdf:Description></rdf:li>)"
              R"(</rdf:Seq></xmpDM:markers></rdf:Description></rdf:li>)",
              written());
}

TEST_F(ScreenTextFormatter, WritesTheFrameRateOfTheCollection)
{
    give({{1, 2, "a"}}, 25);
    EXPECT_EQ(track("f25", marker("a", "1", "2")), written());
    give({{1, 2, "a"}}, 10000);
    EXPECT_EQ(track("f10000", marker("a", "1", "2")), written());
}

TEST_F(ScreenTextFormatter, WritesItemsInTheOrderOfTheirStarts)
{
    give({{500, 1, "c"}, {9, 1, "a"}, {100, 1, "b"}});
    EXPECT_EQ(
        track("f1000", marker("a", "9", "1") + marker("b", "100", "1") + marker("c", "500", "1")),
        written());
}

TEST_F(ScreenTextFormatter, ADurationOfZeroIsWritten)
{
    give({{7, 0, "a"}});
    EXPECT_EQ(track("f1000", marker("a", "7", "0")), written());
}

TEST_F(ScreenTextFormatter, EscapesTheTextButNotTheImage)
{
    give({{0, 0, "\"&'<>", "a&b<'c'>\".png"}});
    EXPECT_EQ(track("f1000",
                    R"(<rdf:li><rdf:Description xmpDM:name="&quot;&amp;&apos;&lt;&gt;" )"
                    R"(xmpDM:startTime="0" xmpDM:duration="0" xmpDM:image="a&b<'c'>".png" )"
                    R"(zelDM:imageindex="0" zelDM:imageoffset="0" zelDM:tocEntry="0" >)"
                    R"(</rdf:Description></rdf:li>)"),
              written());
}

TEST_F(ScreenTextFormatter, DropsControlCharactersFromTheTextButNotFromTheImage)
{
    give({{0, 0,
           "a\tb\r\n\x01"
           "c\x7F",
           "e\t\x02.png"}});
    EXPECT_EQ(track("f1000", "<rdf:li><rdf:Description xmpDM:name=\"ab\nc\x7F\" "
                             "xmpDM:startTime=\"0\" xmpDM:duration=\"0\" "
                             "xmpDM:image=\"e\t\x02.png\" zelDM:imageindex=\"0\" "
                             "zelDM:imageoffset=\"0\" zelDM:tocEntry=\"0\" >"
                             "</rdf:Description></rdf:li>"),
              written());
}

TEST_F(ScreenTextFormatter, WritesTheLargestNumbersInFull)
{
    const auto latest = std::numeric_limits<long long>::max();
    const auto largest = std::numeric_limits<unsigned long>::max();
    const std::string number = std::to_string(largest);
    give({{latest, latest, "", "", largest, largest, largest}});
    EXPECT_EQ(track("f1000", R"(<rdf:li><rdf:Description xmpDM:name="" )"
                             R"(xmpDM:startTime="9223372036854775807" )"
                             R"(xmpDM:duration="9223372036854775807" xmpDM:image="" )"
                             R"(zelDM:imageindex=")" +
                                 number + R"(" zelDM:imageoffset=")" + number +
                                 R"(" zelDM:tocEntry=")" + number +
                                 R"(" ></rdf:Description></rdf:li>)"),
              written());
}

} // namespace
} // namespace ZelInterchangeData
