/// @file
/// The table-of-contents track, byte for byte.

#include "toc/ZelDataXmpTocFormatter.h"

#include "support/fakes/FailingToc.h"
#include "toc/Entries.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <limits>
#include <new>
#include <stdexcept>

namespace ZelInterchangeData {
namespace {

const auto unknownFormat = static_cast<ZelDataFormatType_tags>(0);
const auto otherFormat = static_cast<ZelDataFormatType_tags>(2);

/// A track of @p markers for a table with @p image.
std::string track(const std::string& image, const std::string& markers)
{
    return R"(<rdf:li><rdf:Description xmpDM:trackType="TableOfContents" )"
           R"(xmpDM:trackName="Table of Contents" xmpDM:frameRate="f1000" zelDM:image=")" +
           image + R"(" ><xmpDM:markers><rdf:Seq>)" + markers +
           "</rdf:Seq></xmpDM:markers></rdf:Description></rdf:li>";
}

/// A marker without thumbnail.
std::string marker(const std::string& name, const std::string& start)
{
    return R"(<rdf:li><rdf:Description xmpDM:name=")" + name + R"(" xmpDM:startTime=")" + start +
           R"(" zelDM:image="" zelDM:imageindex="0" zelDM:imageoffset="0" >)"
           "</rdf:Description></rdf:li>";
}

class TocFormatter : public testing::Test {
protected:
    /// Hands @p entries and @p image over.
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

TEST_F(TocFormatter, WritesManyEntriesInTheOrderOfTheirStarts)
{
    std::vector<Entry> entries;
    std::string markers;
    for (long long i = 0; i != 40; ++i) {
        const long long start = i * 7 % 40; // each start once
        entries.push_back({start, {{"en", "at " + std::to_string(start)}}});
        markers += marker("at " + std::to_string(i), std::to_string(i));
    }
    give(entries);
    EXPECT_EQ(track("", markers), written());
}

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

TEST_F(TocFormatter, BeforeATableWasSetThereIsNothingToWrite)
{
    std::string out = "kept";
    EXPECT_CODE(*formatter_, ZelData_InvalidData,
                formatter_->writeString(out, ZelDataFormat_Xmp, false));
    EXPECT_EQ("kept", out);
}

TEST_F(TocFormatter, AnotherFormatIsRefusedBeforeAndAfterATableWasSet)
{
    std::string out = "kept";
    for (const auto format : {unknownFormat, otherFormat})
        EXPECT_CODE(*formatter_, ZelData_InternalError,
                    formatter_->writeString(out, format, false));
    give({{0}});
    for (const auto format : {unknownFormat, otherFormat})
        EXPECT_CODE(*formatter_, ZelData_InternalError,
                    formatter_->writeString(out, format, false));
    EXPECT_EQ("kept", out);
}

TEST_F(TocFormatter, ATableWithoutEntriesWritesNothingAndLeavesTheTextAlone)
{
    give({}, "toc.png");
    EXPECT_EQ("replaced", written());
}

TEST_F(TocFormatter, WritesEntriesInTheOrderOfTheirStarts)
{
    give({{500, {{"en", "c"}}}, {9, {{"en", "a"}}}, {100, {{"en", "b"}}}});
    EXPECT_EQ(track("", marker("a", "9") + marker("b", "100") + marker("c", "500")), written());
}

TEST_F(TocFormatter, EntriesWithEqualStartsComeInTheOrderOfTheExchangeSort)
{
    give({{5, {{"en", "first"}}}, {5, {{"en", "second"}}}, {3, {{"en", "early"}}}});
    EXPECT_EQ(track("", marker("early", "3") + marker("second", "5") + marker("first", "5")),
              written());
}

TEST_F(TocFormatter, SortingAffectsTheHeldCopyAlone)
{
    const auto toc = tocOf({{500, {{"en", "b"}}}, {100, {{"de", "a"}}}});
    EXPECT_CODE(*formatter_, ZelData_Ok, formatter_->setToc(*toc));
    written();
    EXPECT_EQ((std::vector<Entry>{{500, {{"en", "b"}}}, {100, {{"de", "a"}}}}), entriesOf(*toc));
}

TEST_F(TocFormatter, StatesTheStandardFrameRateWhateverTheTableHas)
{
    const auto toc = tocOf({{1, {{"en", "a"}}}});
    EXPECT_EQ(ZelData_Ok, toc->setFrameRate(30));
    EXPECT_CODE(*formatter_, ZelData_Ok, formatter_->setToc(*toc));
    EXPECT_EQ(track("", marker("a", "1")), written());
}

TEST_F(TocFormatter, WritesTheTitleOfTheFirstLanguageAlone)
{
    give({{1, {{"fr", "Un"}, {"de", "Eins"}}}});
    EXPECT_EQ(track("", marker("Eins", "1")), written());
}

TEST_F(TocFormatter, TheFirstLanguageIsThatOfTheFirstEntryGivenNotOfTheOrderSet)
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

TEST_F(TocFormatter, WritesTheLargestNumbersWhole)
{
    give({{std::numeric_limits<long long>::max(),
           {},
           "",
           std::numeric_limits<unsigned long>::max(),
           std::numeric_limits<unsigned long long>::max()}});
    static_assert(sizeof(unsigned long) == 8, "the expected index is that of 64 bits");
    EXPECT_EQ(track("", R"(<rdf:li><rdf:Description xmpDM:name="" )"
                        R"(xmpDM:startTime="9223372036854775807" zelDM:image="" )"
                        R"(zelDM:imageindex="18446744073709551615" )"
                        R"(zelDM:imageoffset="18446744073709551615" ></rdf:Description></rdf:li>)"),
              written());
}

TEST_F(TocFormatter, WritesTheSameAgain)
{
    give({{2, {{"en", "b"}}}, {1, {{"de", "a"}}}});
    const std::string expected = track("", marker("", "1") + marker("b", "2"));
    EXPECT_EQ(expected, written());
    EXPECT_EQ(expected, written());
}

TEST_F(TocFormatter, TheFlagOfWritingMeansNothing)
{
    give({{1, {{"en", "a"}}}});
    std::string out = "replaced";
    EXPECT_CODE(*formatter_, ZelData_Ok, formatter_->writeString(out, ZelDataFormat_Xmp, false));
    EXPECT_EQ(track("", marker("a", "1")), out);
}

TEST_F(TocFormatter, HoldsACopyThatTheNextTableReplaces)
{
    const auto toc = tocOf({{1, {{"en", "a"}}}});
    EXPECT_CODE(*formatter_, ZelData_Ok, formatter_->setToc(*toc));
    EXPECT_EQ(ZelData_Ok, toc->clearTocItems());
    EXPECT_EQ(track("", marker("a", "1")), written());
    give({{2, {{"de", "b"}}}}, "new.png");
    EXPECT_EQ(track("new.png", marker("b", "2")), written());
    give({});
    EXPECT_EQ("replaced", written());
}

TEST_F(TocFormatter, AsksTheGivenTableForNoValidity)
{
    FailingToc toc;
    toc.failAt("isValid", ZelData_InvalidData, ZelData_InvalidData);
    EXPECT_CODE(*formatter_, ZelData_Ok, formatter_->setToc(toc));
    EXPECT_EQ("replaced", written());
}

TEST_F(TocFormatter, ATableThatCannotBeCopiedGivesItsLastErrorAndIsHeldAsFarAsItGot)
{
    give({{1, {{"en", "a"}}}}, "old.png");
    FailingToc toc;
    add(toc, {{2, {{"de", "b"}}}});
    toc.failAt("getTocItems", ZelData_InvalidItem, ZelData_NotFound);
    EXPECT_CODE(*formatter_, ZelData_NotFound, formatter_->setToc(toc));
    EXPECT_EQ("replaced", written());
}

TEST_F(TocFormatter, ExceptionsOfAGivenTableBecomeCodes)
{
    FailingToc toc;
    toc.throwAt("getImageFile", std::bad_alloc());
    EXPECT_CODE(*formatter_, ZelData_OutOfMemory, formatter_->setToc(toc));
    FailingToc other;
    other.throwAt("getImageFile", std::runtime_error("foreign"));
    EXPECT_CODE(*formatter_, ZelData_InternalError, formatter_->setToc(other));
}

TEST_F(TocFormatter, AListedLanguageTwiceCannotBeHeld)
{
    const auto toc = tocOf({{1, {{"de", "a"}, {"en", "b"}}}});
    EXPECT_EQ(ZelData_Ok, toc->setOrderedLanguageIDs({"en", "en"}));
    EXPECT_CODE(*formatter_, ZelData_WarnAlreadyExists, formatter_->setToc(*toc));
}

TEST_F(TocFormatter, WritesNoFile)
{
    const auto path = std::filesystem::temp_directory_path() / "toc-track-that-is-never-written";
    EXPECT_CODE(*formatter_, ZelData_InvalidData,
                formatter_->writeFile(path.string(), ZelDataFormat_Xmp, false));
    EXPECT_CODE(*formatter_, ZelData_InternalError,
                formatter_->writeFile(path.string(), unknownFormat, false));
    give({{1, {{"en", "a"}}}});
    EXPECT_CODE(*formatter_, ZelData_NotImplemented,
                formatter_->writeFile(path.string(), ZelDataFormat_Xmp, true));
    EXPECT_CODE(*formatter_, ZelData_InternalError,
                formatter_->writeFile(path.string(), otherFormat, false));
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(TocFormatter, ReadsNothing)
{
    EXPECT_CODE(*formatter_, ZelData_NotImplemented,
                formatter_->readString("<a></a>", ZelDataFormat_Xmp, false));
    EXPECT_CODE(*formatter_, ZelData_InternalError,
                formatter_->readString("<a></a>", unknownFormat, false));
    EXPECT_CODE(*formatter_, ZelData_NotImplemented,
                formatter_->readFile("toc.xmp", ZelDataFormat_Xmp));
    EXPECT_CODE(*formatter_, ZelData_InternalError, formatter_->readFile("toc.xmp", otherFormat));
}

TEST_F(TocFormatter, NeverGivesTheTableBack)
{
    const auto toc = tocOf({{1}});
    EXPECT_CODE(*formatter_, ZelData_NotImplemented, formatter_->getToc(*toc));
    give({{2}});
    EXPECT_CODE(*formatter_, ZelData_NotImplemented, formatter_->getToc(*toc));
    EXPECT_EQ(std::vector<Entry>{{1}}, entriesOf(*toc));
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

TEST(TocList, SkipsLanguagesWithoutTitleAndTellsSo)
{
    const auto item = itemOf({0, {{"de", "Eins"}, {"en", ""}}});
    std::string out;
    EXPECT_FALSE(buildTocList({"fr", "de", "xx", "en"}, *item, out));
    EXPECT_EQ("<xmpDM:name><rdf:Alt><rdf:li xml:lang=\"de\">Eins</rdf:li>"
              "<rdf:li xml:lang=\"en\"></rdf:li></rdf:Alt></xmpDM:name>",
              out);
}

TEST(TocList, DoesNotTakeExhaustedMemoryForAMissingTitle)
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
