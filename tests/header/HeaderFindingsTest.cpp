/// @file
/// What findProblems() finds in a header.

#include "header/Headers.h"
#include "header/ScriptedHeader.h"
#include "support/Findings.h"

#include <functional>

namespace ZelInterchangeData {
namespace {

using Lines = std::vector<std::string>;

constexpr auto subject = ZelDataFindingSubject_Header;

/// The findings in a header that holds sample values, changed by @p change.
Lines linesAfter(const std::function<void(i_ZelDataHeader&)>& change)
{
    const auto header = make(&ZelDataUtilities::createHeaderData);
    fill(*header, sampleValues());
    change(*header);
    return linesOf(*header);
}

TEST(HeaderFindings, ACompleteHeaderHasNone)
{
    EXPECT_EQ(Lines{}, linesAfter([](i_ZelDataHeader&) {}));
}

TEST(HeaderFindings, EachMissingSizeIsNamed)
{
    EXPECT_EQ((Findings{findingIn(ZelDataFinding_SizeMissing, subject, "video length"),
                        findingIn(ZelDataFinding_SizeMissing, subject, "video width"),
                        findingIn(ZelDataFinding_SizeMissing, subject, "video height")}),
              findingsOf(*make(&ZelDataUtilities::createHeaderData)));
}

/// Each combination of sizes.
TEST(HeaderFindings, AgreeWithTheCheck)
{
    for (unsigned missing = 0; missing < 8; ++missing) {
        HeaderValues values = sampleValues();
        if ((missing & 1U) != 0) values.videoLength = 0;
        if ((missing & 2U) != 0) values.videoWidth = 0;
        if ((missing & 4U) != 0) values.videoHeight = 0;
        values.creator = "&";
        const auto header = make(&ZelDataUtilities::createHeaderData);
        fill(*header, values);
        const Findings findings = findingsOf(*header);
        EXPECT_EQ(header->isValid(), codeFor(findings));
        EXPECT_EQ(header->isValid() == ZelData_Ok, findings.size() == 1);
    }
}

TEST(HeaderFindings, EachTextIsCheckedByItsTreatment)
{
    const std::string hostile = "<&\"\x01\x80\xEF\xBF\xBE";
    EXPECT_EQ((Lines{"header: the application name has a control character at byte 3",
                     "header: the application name is not strict UTF-8 at byte 4",
                     "header: the application name has U+FFFE or U+FFFF at byte 5"}),
              linesAfter([&](i_ZelDataHeader& h) { mayRefuse(h.setAppName(hostile)); }));
    const std::string bell = "<&\"\x07";
    using Set = ZelDataResult_tags (i_ZelDataHeader::*)(const std::string&);
    for (const auto& [set, name] :
         {std::pair<Set, const char*>{&i_ZelDataHeader::setAppVersion, "application version"},
          {&i_ZelDataHeader::setTitle, "title"},
          {&i_ZelDataHeader::setDescription, "description"}}) {
        EXPECT_EQ(Lines{std::string("header: the ") + name + " has a control character at byte 3"},
                  linesAfter([&, set = set](i_ZelDataHeader& h) { mayRefuse((h.*set)(bell)); }));
    }
    EXPECT_EQ((Lines{"header: the creator has an unescaped \", & or < at byte 0",
                     "header: the creator has a control character at byte 3"}),
              linesAfter([&](i_ZelDataHeader& h) { mayRefuse(h.setCreator(bell)); }));
    EXPECT_EQ(Lines{}, linesAfter([&](i_ZelDataHeader& h) {
                  mayRefuse(h.setCreator(ZelDataUtilities::htmlTagsToText("\"&'<>")));
              }));
}

TEST(HeaderFindings, KeywordsAndContentNamesAreCounted)
{
    EXPECT_EQ((Lines{"header: keyword 1 has a control character at byte 1",
                     "header: keyword 2 is not strict UTF-8 at byte 0",
                     "header: content name 2 has U+FFFE or U+FFFF at byte 0"}),
              linesAfter([](i_ZelDataHeader& header) {
                  EXPECT_EQ(ZelData_Ok, header.setKeywords({"&", "a\x1F", "\xED\xA0\x80"}));
                  EXPECT_EQ(ZelData_Ok, header.addContentName("\xEF\xBF\xBF"));
              }));
    ZelDataFinding expected = findingIn(ZelDataFinding_ControlCharacter, subject, "keyword");
    expected.item = 1;
    const auto header = make(&ZelDataUtilities::createHeaderData);
    fill(*header, sampleValues());
    ASSERT_EQ(ZelData_Ok, header->setKeywords({"a", "\x1F"}));
    EXPECT_EQ(Findings{expected}, findingsOf(*header));
}

TEST(HeaderFindings, LanguagesAreCheckedAsTheyAreWritten)
{
    EXPECT_EQ((Lines{"header: the language en-< has an unescaped \", & or < at byte 3",
                     "header: the language de is listed before"}),
              linesAfter([](i_ZelDataHeader& header) {
                  EXPECT_EQ(ZelData_Ok, header.addLanguage("en-<"));
                  EXPECT_EQ(ZelData_Ok, header.setOrderedLanguageIDs({"de", "en-<", "de"}));
              }));
}

// Headers of a caller, which hold values that the library's own refuse

/// A header that lists what a test sets.
class ToldHeader : public ZelDataHeader {
public:
    ZelDataResult_tags getContentNames(Texts& all) const override
    {
        all = names;
        return ZelData_Ok;
    }
    ZelDataResult_tags getOrderedLanguageIDs(Texts& all) const override
    {
        all = languages;
        return ZelData_Ok;
    }

    Texts names;
    Texts languages;
};

TEST(HeaderFindings, WhatNoDocumentAcceptsIsAnError)
{
    ToldHeader header;
    fill(header, sampleValues());
    header.names = {"a", "b", "a", "a"};
    header.languages = {"xx", "e\x80", "en", "en"};
    EXPECT_EQ(
        (Lines{"header: content name 2 is listed before", "header: content name 3 is listed before",
               "header: the language xx is not known", "header: the language e\\x80 is not known",
               "header: the language e\\x80 is not strict UTF-8 at byte 1",
               "header: the language en is listed before"}),
        linesOf(header));
    for (const ZelDataFinding& finding : findingsOf(header)) {
        EXPECT_EQ(ZelDataFindingSeverity_Error, severityOf(finding));
        EXPECT_EQ(0, finding.start);
    }
}

// Failures

TEST(HeaderFindings, AFailingGetterEndsTheSearch)
{
    for (const char* operation : {"getVideoLength", "getVideoWidth", "getVideoHeight", "getAppName",
                                  "getAppVersion", "getTitle", "getCreator", "getDescription",
                                  "getKeywords", "getContentNames", "getOrderedLanguageIDs"}) {
        SCOPED_TRACE(operation);
        const auto expectCode = [&](ZelDataResult_tags code, Misdeed misdeed) {
            ScriptedHeader header;
            header.script.keep(ZelData_Ok);
            header.script.failAt(operation, misdeed);
            expectNoAnswer(code, header);
        };
        expectCode(CallScript::returnedCode, Misdeed::ReturnsCode);
        expectCode(ZelData_OutOfMemory, Misdeed::ThrowsBadAlloc);
        expectCode(ZelData_InternalError, Misdeed::ThrowsOther);
    }
}

TEST(HeaderFindings, ExhaustedMemoryIsReportedAndNothingLeaks)
{
    const std::string text(50, '\x01');
    HeaderValues values = sampleValues();
    values.title = text;
    values.keywords = {text, text};
    values.contentNames = {text};
    values.languages = {"en-a-region-that-is-long-enough-to-be-allocated\x01"};
    const auto header = make(&ZelDataUtilities::createHeaderData);
    fill(*header, values);
    expectMemoryFailuresPass(*header);
}

} // namespace
} // namespace ZelInterchangeData
