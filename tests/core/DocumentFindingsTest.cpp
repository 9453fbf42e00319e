/// @file
/// What findProblems() finds in a document.

#include "captions/Captions.h"
#include "core/SampleSets.h"
#include "core/ZelDataCore.h"
#include "screentext/Items.h"
#include "support/Findings.h"
#include "toc/Entries.h"

#include <functional>
#include <new>
#include <stdexcept>

namespace ZelInterchangeData {
namespace {

using Document = i_ZelInterchangeDataCore;
using Lines = std::vector<std::string>;

const std::string hostile = "<&\"\x01";

std::unique_ptr<ZelDataScreenText> screenTextOf(const std::vector<Shown>& shown)
{
    auto screenText = std::make_unique<ZelDataScreenText>();
    for (const Shown& each : shown) {
        ZelDataScreenTextItem item;
        fill(item, each);
        EXPECT_EQ(ZelData_Ok, screenText->addScreenTextItem(item));
    }
    return screenText;
}

/// A document with a minimal header.
std::unique_ptr<Document> plainDocument()
{
    auto document = std::make_unique<ZelDataCore>();
    EXPECT_EQ(ZelData_Ok, document->setDataHeader(*plainHeader()));
    return document;
}

/// The findings in a document with a minimal header that holds @p captions as well.
Lines linesOfDocumentWith(const i_ZelDataCaptions& captions)
{
    const auto document = plainDocument();
    EXPECT_EQ(ZelData_Ok, document->setDataCaptions(captions));
    return linesOf(*document);
}

Lines linesOfDocumentWith(const i_ZelDataToc& toc)
{
    const auto document = plainDocument();
    EXPECT_EQ(ZelData_Ok, document->setDataToc(toc));
    return linesOf(*document);
}

Lines linesOfDocumentWith(const i_ZelDataScreenText& screenText)
{
    const auto document = plainDocument();
    EXPECT_EQ(ZelData_Ok, document->setDataToc(*tocOf({{0, {{"en", "Intro"}}}})));
    EXPECT_EQ(ZelData_Ok, document->setDataScreenText(screenText));
    return linesOf(*document);
}

TEST(DocumentFindings, OnlyTheHeaderMustExist)
{
    EXPECT_EQ(Lines{"document: no header"}, linesOf(ZelDataCore()));
    EXPECT_EQ(Lines{}, linesOf(*plainDocument()));
}

TEST(DocumentFindings, SizesThatADocumentLacksAreMissing)
{
    ZelDataCore document;
    const auto header = plainHeader();
    ASSERT_EQ(ZelData_Ok, header->addContentName("a\x01"));
    ASSERT_EQ(ZelData_Ok, document.setDataHeader(*header));
    ASSERT_EQ(ZelData_InvalidArgument,
              document.setDataHeader(*make(&ZelDataUtilities::createHeaderData)));
    EXPECT_EQ((Lines{"header: no video length", "header: no video width", "header: no video height",
                     "header: content name 0 has a control character at byte 1"}),
              linesOf(document));
}

TEST(DocumentFindings, TheLanguagesOfTheHeaderAreNotWritten)
{
    ZelDataCore document;
    const auto header = plainHeader();
    ASSERT_EQ(ZelData_Ok, header->addLanguage("en-<"));
    ASSERT_EQ(ZelData_Ok, header->setCreator("<"));
    ASSERT_EQ(ZelData_Ok, document.setDataHeader(*header));
    EXPECT_EQ(Lines{"header: the creator has an unescaped \", & or < at byte 0"},
              linesOf(document));
}

TEST(DocumentFindings, CollectionsWithoutItemsHaveNoTrack)
{
    const auto document = plainDocument();
    const auto captions = captionsOf({});
    const auto toc = tocOf({});
    const auto screenText = screenTextOf({});
    EXPECT_EQ(ZelData_Ok, captions->setFontFamily(hostile));
    EXPECT_EQ(ZelData_Ok, toc->setImageFile(hostile));
    EXPECT_EQ(ZelData_Ok, screenText->setFrameRate(25));
    EXPECT_EQ(ZelData_Ok, document->setDataCaptions(*captions));
    EXPECT_EQ(ZelData_Ok, document->setDataToc(*toc));
    EXPECT_EQ(ZelData_Ok, document->setDataScreenText(*screenText));
    EXPECT_EQ((Lines{"captions: no items, so no track", "table of contents: no items, so no track",
                     "screen texts: no items, so no track"}),
              linesOf(*document));
}

TEST(DocumentFindings, OfACollectionComeAfterThoseThatItHasItself)
{
    const auto captions = captionsOf({{0, 500, {{"en", "\xEF\xBF\xBE"}}}, {500, 500, {}}});
    EXPECT_EQ(ZelData_Ok, captions->setFrameRate(25));
    Lines expected = linesOf(*captions);
    ASSERT_EQ(3U, expected.size());
    expected.insert(expected.end(),
                    {"captions: times are not milliseconds (frame rate 25, not 1000)",
                     "caption 0 at 0 ms: the text in en has U+FFFE or U+FFFF at byte 0",
                     "caption 1 at 500 ms: no text in any language"});
    EXPECT_EQ(expected, linesOfDocumentWith(*captions));
}

TEST(DocumentFindings, FontFamilyAndLanguagesAreWrittenAsGiven)
{
    const auto captions = captionsOf({{0, 1000, {{"en-\"", "a"}, {"de", "b"}}}});
    EXPECT_EQ(ZelData_Ok, captions->setFontFamily(hostile));
    EXPECT_EQ((Lines{"captions: the font family has an unescaped \", & or < at byte 0",
                     "captions: the font family has a control character at byte 3",
                     "captions: the language en-\" has an unescaped \", & or < at byte 3"}),
              linesOfDocumentWith(*captions));
}

TEST(DocumentFindings, ACaptionThatIsEmptyOnceStrippedIsWrittenAsAPlaceholder)
{
    EXPECT_EQ((Lines{"caption 0 at 0 ms: the text in de is empty",
                     "caption 0 at 0 ms: the text in en is empty"}),
              linesOfDocumentWith(*captionsOf(
                  {{0, 1000, {{"de", ""}, {"en", "\t\x01"}, {"fr", "\n"}, {"ja", hostile}}}})));
}

TEST(DocumentFindings, OnlyTitlesInTheFirstLanguageAreWritten)
{
    const std::string malformed = "a\xE0\x80\xBC";
    EXPECT_EQ((Lines{"entry 0 at 0: the title in de is not strict UTF-8 at byte 1"}),
              linesOfDocumentWith(*tocOf({{0, {{"de", malformed}, {"en", malformed}}},
                                          {1, {{"de", hostile}, {"en", malformed}}}})));
}

TEST(DocumentFindings, ImagesAreNotStripped)
{
    const auto toc = tocOf({{0, {}, hostile}});
    EXPECT_EQ(ZelData_Ok, toc->setImageFile(hostile));
    EXPECT_EQ((Lines{"table of contents: the image has a control character at byte 3",
                     "entry 0 at 0: the image has a control character at byte 3"}),
              linesOfDocumentWith(*toc));
    EXPECT_EQ((Lines{"screen text 0 at 0: the image has an unescaped \", & or < at byte 0",
                     "screen text 0 at 0: the image has a control character at byte 3"}),
              linesOfDocumentWith(*screenTextOf({{0, 0, hostile, hostile}})));
}

TEST(DocumentFindings, TimesOfScreenTextShouldBeMillisecondsAndTheTextStrictUtf8)
{
    const auto screenText = screenTextOf({{0, 0, "\xED\xA0\x80"}});
    EXPECT_EQ(ZelData_Ok, screenText->setFrameRate(10000));
    EXPECT_EQ((Lines{"screen texts: times are not milliseconds (frame rate 10000, not 1000)",
                     "screen text 0 at 0: the text is not strict UTF-8 at byte 0"}),
              linesOfDocumentWith(*screenText));
}

TEST(DocumentFindings, AGroupMustBeThatOfAnEntry)
{
    const auto screenText = screenTextOf({{0, 0, "a", "", 0, 0, 0}, {1, 0, "b", "", 0, 0, 1}});
    EXPECT_EQ(Lines{"screen text 1 at 1: no entry 1 in the table of contents, the last is 0"},
              linesOfDocumentWith(*screenText));
    const auto document = plainDocument();
    EXPECT_EQ(ZelData_Ok, document->setDataScreenText(*screenText));
    const auto missing =
        findingAt(ZelDataFinding_EntryMissing, ZelDataFindingSubject_ScreenText, 1, 1);
    EXPECT_EQ(limited(missing, 1, -1), findingsOf(*document).at(1));
    EXPECT_EQ(2U, findingsOf(*document).size());
}

// Documents of a caller

/// A document that fills a set as a test wants it.
class ToldDocument : public ZelDataCore {
public:
    using Code = ZelDataResult_tags;

    Code getDataHeader(i_ZelDataHeader& target) const override
    {
        return onHeader ? onHeader(target) : ZelDataCore::getDataHeader(target);
    }
    Code getDataCaptions(i_ZelDataCaptions& target) const override
    {
        return onCaptions ? onCaptions(target) : ZelDataCore::getDataCaptions(target);
    }
    Code getDataToc(i_ZelDataToc& target) const override
    {
        return onToc ? onToc(target) : ZelDataCore::getDataToc(target);
    }
    Code getDataScreenText(i_ZelDataScreenText& target) const override
    {
        return onScreenText ? onScreenText(target) : ZelDataCore::getDataScreenText(target);
    }

    std::function<Code(i_ZelDataHeader&)> onHeader;
    std::function<Code(i_ZelDataCaptions&)> onCaptions;
    std::function<Code(i_ZelDataToc&)> onToc;
    std::function<Code(i_ZelDataScreenText&)> onScreenText;
};

TEST(DocumentFindings, ADocumentOfACallerMayHoldWhatOursRefuses)
{
    ToldDocument document;
    document.onHeader = [](i_ZelDataHeader& header) {
        return header.copyFrom(*make(&ZelDataUtilities::createHeaderData));
    };
    document.onCaptions = [](i_ZelDataCaptions& captions) {
        EXPECT_EQ(ZelData_Ok,
                  captions.copyFrom(*captionsOf({{0, 1000, {{"de", "a"}, {"en", "b"}}}})));
        return captions.setOrderedLanguageIDs({"de", "de"});
    };
    document.onToc = [](i_ZelDataToc& toc) {
        EXPECT_EQ(ZelData_Ok, toc.copyFrom(*tocOf({{0}})));
        return toc.addLanguage("en");
    };
    EXPECT_EQ((Lines{"header: no video length", "header: no video width", "header: no video height",
                     "captions: the language de is listed before", "entry 0 at 0: no text in en"}),
              linesOf(document));
}

TEST(DocumentFindings, AFailingGetterEndsTheSearch)
{
    using Act = std::function<ZelDataResult_tags()>;
    const auto expectCode = [](ZelDataResult_tags code, const Act& act) {
        for (int set = 0; set < 4; ++set) {
            SCOPED_TRACE(set);
            ToldDocument document;
            if (set == 0) document.onHeader = [&](i_ZelDataHeader&) { return act(); };
            if (set == 1) document.onCaptions = [&](i_ZelDataCaptions&) { return act(); };
            if (set == 2) document.onToc = [&](i_ZelDataToc&) { return act(); };
            if (set == 3) document.onScreenText = [&](i_ZelDataScreenText&) { return act(); };
            expectNoAnswer(code, document);
        }
    };
    expectCode(ZelData_NotFound, [] { return ZelData_NotFound; });
    expectCode(ZelData_WarnTiming, [] { return ZelData_WarnTiming; });
    expectCode(ZelData_OutOfMemory, []() -> ZelDataResult_tags { throw std::bad_alloc(); });
    expectCode(ZelData_InternalError,
               []() -> ZelDataResult_tags { throw std::runtime_error("own"); });
}

/// A caption whose end cannot be read, although it says that all is well.
class EndlessItem : public ZelDataCaptionItem {
public:
    ZelDataResult_tags getEnd(long long& /*end*/) const override
    {
        setLastError(ZelData_Ok);
        return ZelData_NoData;
    }
};

TEST(DocumentFindings, CaptionsThatCannotBeCopiedCanNeitherBeCheckedNorWritten)
{
    // Only captions of another class are copied item by item.
    class Callers : public ZelDataCaptions {
    public:
        ZelDataResult_tags getCaptionItems(std::vector<i_ZelDataCaptionItem*>& all) const override
        {
            all = {new EndlessItem};
            return ZelData_Ok;
        }
    };
    const auto document = plainDocument();
    ASSERT_EQ(ZelData_Ok, document->setDataCaptions(Callers()));
    std::string packet;
    EXPECT_EQ(ZelData_InvalidArgument, document->writeString(packet, ZelDataFormat_Xmp, false));
    expectNoAnswer(ZelData_InvalidArgument, *document);
}

TEST(DocumentFindings, TheDocumentKeepsItsPacket)
{
    const auto document = plainDocument();
    ASSERT_EQ(ZelData_Ok, document->setDataCaptions(*sampleCaptions()));
    std::string before;
    std::string after;
    ASSERT_EQ(ZelData_Ok, document->writeString(before, ZelDataFormat_Xmp, false));
    EXPECT_FALSE(findingsOf(*document).empty());
    ASSERT_EQ(ZelData_Ok, document->writeString(after, ZelDataFormat_Xmp, false));
    EXPECT_EQ(withoutDate(before), withoutDate(after));
}

TEST(DocumentFindings, ExhaustedMemoryIsReportedAndNothingLeaks)
{
    const std::string text(50, '\x01');
    const std::string id = "en-a-region-that-is-long-enough-to-be-allocated\x01";
    const auto document = plainDocument();
    const auto header = plainHeader();
    ASSERT_EQ(ZelData_Ok, header->setTitle(text));
    ASSERT_EQ(ZelData_Ok, document->setDataHeader(*header));
    ASSERT_EQ(ZelData_Ok, document->setDataCaptions(*captionsOf({{0, 500, {{id, text}}}})));
    ASSERT_EQ(ZelData_Ok, document->setDataToc(*tocOf({{0, {{id, text}}, text}})));
    ASSERT_EQ(ZelData_Ok, document->setDataScreenText(*screenTextOf({{0, 0, text, text}})));
    expectMemoryFailuresPass(*document);
}

} // namespace
} // namespace ZelInterchangeData
