/// @file
/// The table-of-contents track, byte for byte.

#include "toc/ZelDataXmpTocFormatter.h"

#include "support/fakes/FailingToc.h"
#include "toc/Entries.h"

#include <gtest/gtest.h>

#include <limits>
#include <new>
#include <string>

namespace ZelInterchangeData {
namespace {

/// A track of @p markers for a table with @p image.
std::string track(const std::string& image, const std::string& markers)
{
    return R"(<rdf:li><rdf:Description xmpDM:trackType="TableOfContents" )"
           R"(xmpDM:trackName="Table of Contents" xmpDM:frameRate="f1000" zelDM:image=")" +
           image + R"(" ><xmpDM:markers><rdf:Seq>)" + markers +
           "</rdf:Seq></xmpDM:markers></rdf:Description></rdf:li>";
}

/// A marker without a thumbnail.
std::string marker(const std::string& name, const std::string& start)
{
    return R"(<rdf:li><rdf:Description xmpDM:name=")" + name + R"(" xmpDM:startTime=")" + start +
           R"(" zelDM:image="" zelDM:imageindex="0" zelDM:imageoffset="0" >)"
           "</rdf:Description></rdf:li>";
}

class TocFormatter : public testing::Test {
protected:
    /// Sets a table with @p entries and @p image.
    void give(const std::vector<Entry>& entries, const std::string& image = "")
    {
        const auto toc = tocOf(entries);
        EXPECT_EQ(ZelData_Ok, toc->setImageFile(image));
        EXPECT_CODE(*formatter_, ZelData_Ok, formatter_->setToc(*toc));
    }

    std::string written()
    {
        std::string out = "replaced";
        EXPECT_CODE(*formatter_, ZelData_Ok, formatter_->writeString(out, ZelDataFormat_Xmp, true));
        return out;
    }

    std::unique_ptr<i_ZelDataTocFormatter> formatter_ = make(ZelDataUtilities::createTocFormatter);
};

TEST_F(TocFormatter, WritesImageEntriesAndThumbnails)
{
    give({{0, {{"en", "Intro"}}, "thumbs.png", 0, 0},
          {5000, {{"en", "Demo"}}, "thumbs.png", 1, 2048}},
         "toc.png");
    EXPECT_EQ(R"(<rdf:li><rdf:Description xmpDM:trackType="TableOfContents" )"
              R"(xmpDM:trackName="Table of Contents" xmpDM:frameRate="f1000" )"
              R"(zelDM:image="toc.png" ><xmpDM:markers><rdf:Seq>)"
              R"(<rdf:li><rdf:Description xmpDM:name="Intro" xmpDM:startTime="0" )"
              R"(zelDM:image="thumbs.png" zelDM:imageindex="0" zelDM:imageoffset="0" >)"
              R"(</rdf:Description></rdf:li>)"
              R"(<rdf:li><rdf:Description xmpDM:name="Demo" xmpDM:startTime="5000" )"
              R"(zelDM:image="thumbs.png" zelDM:imageindex="1" zelDM:imageoffset="2048" >)"
              R"(</rdf:Description></rdf:li>)"
              R"(</rdf:Seq></xmpDM:markers></rdf:Description></rdf:li>)",
              written());
}

TEST_F(TocFormatter, WritesEntriesInTheOrderOfTheirStarts)
{
    give({{500, {{"en", "c"}}}, {9, {{"en", "a"}}}, {100, {{"en", "b"}}}});
    EXPECT_EQ(track("", marker("a", "9") + marker("b", "100") + marker("c", "500")), written());
}

TEST_F(TocFormatter, WritesTheStandardFrameRateWhateverTheTableHas)
{
    const auto toc = tocOf({{1, {{"en", "a"}}}});
    EXPECT_EQ(ZelData_Ok, toc->setFrameRate(30));
    EXPECT_CODE(*formatter_, ZelData_Ok, formatter_->setToc(*toc));
    EXPECT_EQ(track("", marker("a", "1")), written());
}

TEST_F(TocFormatter, WritesOnlyTheTitleInTheFirstLanguage)
{
    give({{1, {{"fr", "Un"}, {"de", "Eins"}}}});
    EXPECT_EQ(track("", marker("Eins", "1")), written());
}

TEST_F(TocFormatter, TheFirstLanguageComesFromTheFirstEntryNotFromTheOrderSet)
{
    const auto toc = tocOf({{8, {{"fr", "Deux"}, {"it", "Due"}}}, {1, {{"de", "Eins"}}}});
    EXPECT_EQ(ZelData_Ok, toc->setOrderedLanguageIDs({"de", "it", "fr"}));
    EXPECT_CODE(*formatter_, ZelData_Ok, formatter_->setToc(*toc));
    EXPECT_EQ(track("", marker("", "1") + marker("Deux", "8")), written());
}

TEST_F(TocFormatter, WithoutLanguagesTheNamesAreEmpty)
{
    give({{1}, {2}});
    EXPECT_EQ(track("", marker("", "1") + marker("", "2")), written());
}

TEST_F(TocFormatter, EscapesTableImageEntryImageAndTitle)
{
    give({{0, {{"en", "\"&'<>"}}, "e<&>.png"}}, "t\"'&.png");
    EXPECT_EQ(track("t&quot;&apos;&amp;.png",
                    R"(<rdf:li><rdf:Description xmpDM:name="&quot;&amp;&apos;&lt;&gt;" )"
                    R"(xmpDM:startTime="0" zelDM:image="e&lt;&amp;&gt;.png" zelDM:imageindex="0" )"
                    R"(zelDM:imageoffset="0" ></rdf:Description></rdf:li>)"),
              written());
}

TEST_F(TocFormatter, DropsControlCharactersFromTitlesButNotFromImages)
{
    give({{0,
           {{"en", "a\tb\r\n\x01"
                   "c\x7F"}},
           "e\t\x02.png"}},
         "t\t.png");
    EXPECT_EQ(track("t\t.png", "<rdf:li><rdf:Description xmpDM:name=\"ab\nc\x7F\" "
                               "xmpDM:startTime=\"0\" zelDM:image=\"e\t\x02.png\" "
                               "zelDM:imageindex=\"0\" zelDM:imageoffset=\"0\" >"
                               "</rdf:Description></rdf:li>"),
              written());
}

TEST_F(TocFormatter, WritesTheLargestNumbersInFull)
{
    const auto largest = std::numeric_limits<unsigned long>::max();
    give({{std::numeric_limits<long long>::max(),
           {},
           "",
           largest,
           std::numeric_limits<unsigned long long>::max()}});
    EXPECT_EQ(
        track("", R"(<rdf:li><rdf:Description xmpDM:name="" )"
                  R"(xmpDM:startTime="9223372036854775807" zelDM:image="" )"
                  R"(zelDM:imageindex=")" +
                      std::to_string(largest) +
                      R"(" )"
                      R"(zelDM:imageoffset="18446744073709551615" ></rdf:Description></rdf:li>)"),
        written());
}

// The titles of all languages

TEST(TocList, ListsTheTitlesInTheOrderOfTheLanguages)
{
    const auto item = itemOf({0, {{"de", "Eins"}, {"en", "One"}, {"fr", "Un"}}});
    std::string out = "replaced";
    EXPECT_TRUE(buildTocList({"fr", "de"}, *item, out));
    EXPECT_EQ("<xmpDM:name><rdf:Alt><rdf:li xml:lang=\"fr\">Un</rdf:li>"
              "<rdf:li xml:lang=\"de\">Eins</rdf:li></rdf:Alt></xmpDM:name>",
              out);
}

TEST(TocList, SkipsLanguagesWithoutTitleAndReturnsFalse)
{
    const auto item = itemOf({0, {{"de", "Eins"}, {"en", ""}}});
    std::string out;
    EXPECT_FALSE(buildTocList({"fr", "de", "xx", "en"}, *item, out));
    EXPECT_EQ("<xmpDM:name><rdf:Alt><rdf:li xml:lang=\"de\">Eins</rdf:li>"
              "<rdf:li xml:lang=\"en\"></rdf:li></rdf:Alt></xmpDM:name>",
              out);
}

TEST(TocList, DoesNotMistakeExhaustedMemoryForAMissingTitle)
{
    FailingTocItem item;
    fill(item, {0, {{"de", "Eins"}}});
    item.failAt("getTextForLanguage", ZelData_OutOfMemory, ZelData_OutOfMemory);
    std::string out;
    EXPECT_THROW(buildTocList({"de"}, item, out), std::bad_alloc);
}

TEST(TocList, WithoutLanguagesIsEmptyAndComplete)
{
    std::string out;
    EXPECT_TRUE(buildTocList({}, *itemOf({0, {{"de", "Eins"}}}), out));
    EXPECT_EQ("<xmpDM:name><rdf:Alt></rdf:Alt></xmpDM:name>", out);
}

TEST(TocList, EscapesTitlesOnceAndDropsNothing)
{
    std::string out;
    EXPECT_TRUE(buildTocList({"de"}, *itemOf({0, {{"de", "<\t&amp;"}}}), out));
    EXPECT_EQ("<xmpDM:name><rdf:Alt><rdf:li xml:lang=\"de\">&lt;\t&amp;amp;</rdf:li>"
              "</rdf:Alt></xmpDM:name>",
              out);
}

} // namespace
} // namespace ZelInterchangeData
