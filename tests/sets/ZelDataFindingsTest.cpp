/// @file
/// Findings in words.

#include "support/Findings.h"

#include <cstddef>
#include <cstdint>
#include <limits>

namespace ZelInterchangeData {
namespace {

constexpr auto caption = ZelDataFindingSubject_Caption;
constexpr auto entry = ZelDataFindingSubject_TocEntry;
constexpr auto screenText = ZelDataFindingSubject_ScreenText;
constexpr auto header = ZelDataFindingSubject_Header;
constexpr auto document = ZelDataFindingSubject_Document;

/// A finding with a value and a limit.
ZelDataFinding limited(ZelDataFinding_tags kind, ZelDataFindingSubject_tags subject,
                       unsigned long item, long long value, long long limit)
{
    return limited(findingAt(kind, subject, item, 2000), value, limit);
}

ZelDataFinding color(const std::string& property, float component, long long limit)
{
    ZelDataFinding finding =
        limited(ZelDataFinding_ColorOutOfRange, caption, ZelDataFinding::noItem, 0, limit);
    finding.property = property;
    finding.component = component;
    return finding;
}

/// How far into @p finding its member @p field lies, in bytes.
template <class Field>
std::ptrdiff_t placeOf(const ZelDataFinding& finding, const Field& field)
{
    return reinterpret_cast<const char*>(&field) - reinterpret_cast<const char*>(&finding);
}

TEST(ZelDataFinding, HasTheLayoutThatCallersWereCompiledWith)
{
    const ZelDataFinding finding;
    EXPECT_EQ(128U, sizeof(finding));
    EXPECT_EQ(0, placeOf(finding, finding.kind));
    EXPECT_EQ(4, placeOf(finding, finding.subject));
    EXPECT_EQ(8, placeOf(finding, finding.item));
    EXPECT_EQ(16, placeOf(finding, finding.start));
    EXPECT_EQ(24, placeOf(finding, finding.language));
    EXPECT_EQ(56, placeOf(finding, finding.property));
    EXPECT_EQ(88, placeOf(finding, finding.component));
    EXPECT_EQ(96, placeOf(finding, finding.value));
    EXPECT_EQ(104, placeOf(finding, finding.limit));
    EXPECT_EQ(112, placeOf(finding, finding.laterItem));
    EXPECT_EQ(120, placeOf(finding, finding.laterStart));
}

constexpr auto warning = ZelDataFindingSeverity_Warning;
constexpr auto error = ZelDataFindingSeverity_Error;

/// What is documented about a kind.
struct Kind {
    ZelDataFinding_tags kind;
    const char* name;
    ZelDataFindingSeverity_tags severity;
    ZelDataResult_tags code;
};

/// All kinds in the order of their numbers, which begin at 1.
const std::vector<Kind>& kinds()
{
    constexpr auto invalid = ZelData_InvalidArgument;
    static const std::vector<Kind> all = {
        {ZelDataFinding_FrameRateOutOfRange, "FrameRateOutOfRange", error, invalid},
        {ZelDataFinding_FontFamilyMissing, "FontFamilyMissing", error, invalid},
        {ZelDataFinding_FontSizeOutOfRange, "FontSizeOutOfRange", error, invalid},
        {ZelDataFinding_ColorOutOfRange, "ColorOutOfRange", error, invalid},
        {ZelDataFinding_NoDuration, "NoDuration", error, ZelData_InvalidItem},
        {ZelDataFinding_TooShort, "TooShort", warning, ZelData_WarnItemGuidelines},
        {ZelDataFinding_BadText, "BadText", error, ZelData_InvalidItem},
        {ZelDataFinding_BadLanguage, "BadLanguage", error, ZelData_InvalidItem},
        {ZelDataFinding_TooManyLines, "TooManyLines", warning, ZelData_WarnItemGuidelines},
        {ZelDataFinding_MissingText, "MissingText", warning, invalid},
        {ZelDataFinding_Overlap, "Overlap", warning, ZelData_WarnTiming},
        {ZelDataFinding_OutOfOrder, "OutOfOrder", warning, ZelData_WarnTiming},
        {ZelDataFinding_HeaderMissing, "HeaderMissing", error, ZelData_Ok},
        {ZelDataFinding_SizeMissing, "SizeMissing", error, invalid},
        {ZelDataFinding_ListedTwice, "ListedTwice", error, ZelData_Ok},
        {ZelDataFinding_NotEscaped, "NotEscaped", error, ZelData_Ok},
        {ZelDataFinding_ControlCharacter, "ControlCharacter", error, ZelData_Ok},
        {ZelDataFinding_NotStrictUtf8, "NotStrictUtf8", error, ZelData_Ok},
        {ZelDataFinding_ForbiddenCharacter, "ForbiddenCharacter", error, ZelData_Ok},
        {ZelDataFinding_NoItems, "NoItems", warning, ZelData_Ok},
        {ZelDataFinding_NoText, "NoText", warning, ZelData_Ok},
        {ZelDataFinding_EmptyText, "EmptyText", warning, ZelData_Ok},
        {ZelDataFinding_EntryMissing, "EntryMissing", warning, ZelData_Ok},
        {ZelDataFinding_NotMilliseconds, "NotMilliseconds", warning, ZelData_Ok}};
    return all;
}

TEST(ZelDataFinding, KindsSubjectsAndSeveritiesKeepTheirNumbers)
{
    for (std::size_t i = 0; i < kinds().size(); ++i)
        EXPECT_EQ(i + 1, static_cast<std::uint32_t>(kinds()[i].kind));
    EXPECT_EQ(1U, static_cast<std::uint32_t>(caption));
    EXPECT_EQ(2U, static_cast<std::uint32_t>(entry));
    EXPECT_EQ(3U, static_cast<std::uint32_t>(screenText));
    EXPECT_EQ(4U, static_cast<std::uint32_t>(header));
    EXPECT_EQ(5U, static_cast<std::uint32_t>(document));
    EXPECT_EQ(1U, static_cast<std::uint32_t>(warning));
    EXPECT_EQ(2U, static_cast<std::uint32_t>(error));
}

TEST(ZelDataFinding, EachKindHasAName)
{
    for (const Kind& kind : kinds())
        EXPECT_EQ(std::string("ZelDataFinding_") + kind.name, toString(kind.kind));
    for (const std::uint32_t number : {0U, 25U, 0xFFFFFFFFU})
        EXPECT_STREQ("ZelDataFinding_Unknown", toString(static_cast<ZelDataFinding_tags>(number)));
}

TEST(ZelDataFinding, EachKindHasASeverityAndACode)
{
    for (const Kind& kind : kinds()) {
        const ZelDataFinding finding = findingIn(kind.kind, caption);
        EXPECT_EQ(kind.severity, severityOf(finding)) << kind.name;
        EXPECT_EQ(kind.code, codeOf(finding)) << kind.name;
    }
    EXPECT_EQ(warning, severityOf(ZelDataFinding()));
    EXPECT_EQ(ZelData_Ok, codeOf(ZelDataFinding()));
}

TEST(ZelDataFinding, TheFrameRateOfATableIsNeverAnErrorBecauseNoDocumentCopiesIt)
{
    const auto severity = [](ZelDataFindingSubject_tags subject) {
        return severityOf(findingIn(ZelDataFinding_FrameRateOutOfRange, subject));
    };
    EXPECT_EQ(error, severity(caption));
    EXPECT_EQ(warning, severity(entry));
    EXPECT_EQ(error, severity(screenText));
    EXPECT_EQ(error, severityOf(findingIn(ZelDataFinding_BadText, entry)));
}

TEST(ZelDataFinding, TheCheckOfAHeaderKnowsOnlyItsSizes)
{
    for (const Kind& kind : kinds()) {
        const bool isSize = kind.kind == ZelDataFinding_SizeMissing;
        EXPECT_EQ(isSize ? ZelData_InvalidArgument : ZelData_Ok,
                  codeOf(findingIn(kind.kind, header)));
    }
}

TEST(DescribeFinding, DurationsOfCaptions)
{
    EXPECT_EQ("caption 2 at 2000 ms: too short (900 ms, at least 1000 ms)",
              describe(limited(ZelDataFinding_TooShort, caption, 2, 900, 1000)));
    EXPECT_EQ("caption 2 at 2000 ms: no duration (-5 ms, at least 1 ms)",
              describe(limited(ZelDataFinding_NoDuration, caption, 2, -5, 1)));
}

TEST(DescribeFinding, Texts)
{
    const auto at = [](ZelDataFinding_tags kind, ZelDataFindingSubject_tags subject) {
        return inLanguage(findingAt(kind, subject, 0, 7), "de");
    };
    EXPECT_EQ("caption 0 at 7 ms: the text in de is not UTF-8",
              describe(at(ZelDataFinding_BadText, caption)));
    EXPECT_EQ("entry 0 at 7: the language de is not known",
              describe(at(ZelDataFinding_BadLanguage, entry)));
    EXPECT_EQ("entry 0 at 7: no text in de", describe(at(ZelDataFinding_MissingText, entry)));
    EXPECT_EQ("screen text 3 at 9: the text is not UTF-8",
              describe(findingAt(ZelDataFinding_BadText, screenText, 3, 9)));
    EXPECT_EQ("caption 1 at 2000 ms: too many lines in en (5, at most 4)",
              describe(inLanguage(limited(ZelDataFinding_TooManyLines, caption, 1, 5, 4), "en")));
}

TEST(DescribeFinding, OrderAndOverlapNameTheLaterItem)
{
    EXPECT_EQ(
        "caption 1 at 2000 ms: overlap: it ends at 5000 ms, caption 4 starts at 4500 ms",
        describe(withLater(limited(ZelDataFinding_Overlap, caption, 1, 5000, 4500), 4, 4500)));
    EXPECT_EQ(
        "entry 1 at 2000: out of order: entry 2 starts before it, at 1000",
        describe(withLater(limited(ZelDataFinding_OutOfOrder, entry, 1, 2000, 1000), 2, 1000)));
}

TEST(DescribeFinding, CollectionsAreNamedIfNoItemIs)
{
    const auto rate = [](ZelDataFindingSubject_tags subject, long long value, long long limit) {
        return describe(limited(ZelDataFinding_FrameRateOutOfRange, subject, ZelDataFinding::noItem,
                                value, limit));
    };
    EXPECT_EQ("captions: frame rate out of range (0, at least 1)", rate(caption, 0, 1));
    EXPECT_EQ("table of contents: frame rate out of range (10001, at most 10000)",
              rate(entry, 10001, 10000));
    EXPECT_EQ("screen texts: frame rate out of range (0, at least 1)", rate(screenText, 0, 1));
}

// findProblems() never makes such findings, but callers can.
TEST(DescribeFinding, AValueAtItsLimitIsDescribedAsAtMostTheLimit)
{
    EXPECT_EQ("captions: frame rate out of range (7, at most 7)",
              describe(limited(ZelDataFinding_FrameRateOutOfRange, caption, ZelDataFinding::noItem,
                               7, 7)));
    EXPECT_EQ("captions: background opacity out of range (1, at most 1)",
              describe(color("background opacity", 1.0F, 1)));
}

TEST(DescribeFinding, Styling)
{
    constexpr auto noItem = ZelDataFinding::noItem;
    EXPECT_EQ("captions: the font family is empty",
              describe(findingAt(ZelDataFinding_FontFamilyMissing, caption, noItem, 0)));
    EXPECT_EQ("captions: font size out of range (501, at most 500)",
              describe(limited(ZelDataFinding_FontSizeOutOfRange, caption, noItem, 501, 500)));
    EXPECT_EQ("captions: foreground red out of range (1.5, at most 1)",
              describe(color("foreground red", 1.5F, 1)));
    EXPECT_EQ("captions: background opacity out of range (-0.25, at least 0)",
              describe(color("background opacity", -0.25F, 0)));
}

TEST(DescribeFinding, HeadersAndDocuments)
{
    EXPECT_EQ("document: no header", describe(findingIn(ZelDataFinding_HeaderMissing, document)));
    EXPECT_EQ("header: no video length",
              describe(findingIn(ZelDataFinding_SizeMissing, header, "video length")));
    EXPECT_EQ(
        "header: the language en is listed before",
        describe(inLanguage(findingIn(ZelDataFinding_ListedTwice, header, "language"), "en")));
    ZelDataFinding name = findingIn(ZelDataFinding_ListedTwice, header, "content name");
    name.item = 2;
    EXPECT_EQ("header: content name 2 is listed before", describe(name));
    EXPECT_EQ("captions: no items, so no track",
              describe(findingIn(ZelDataFinding_NoItems, caption)));
    EXPECT_EQ("screen texts: times are not milliseconds (frame rate 25, not 1000)",
              describe(limited(findingIn(ZelDataFinding_NotMilliseconds, screenText), 25, 1000)));
}

TEST(DescribeFinding, FaultsInTexts)
{
    const auto fault = [](ZelDataFinding finding, const std::string& property) {
        finding.property = property;
        finding.value = 4;
        return describe(finding);
    };
    EXPECT_EQ("header: the creator has an unescaped \", & or < at byte 4",
              fault(findingIn(ZelDataFinding_NotEscaped, header), "creator"));
    EXPECT_EQ("header: keyword 3 has a control character at byte 4",
              fault(findingAt(ZelDataFinding_ControlCharacter, header, 3, 0), "keyword"));
    EXPECT_EQ(
        "caption 1 at 9 ms: the text in de is not strict UTF-8 at byte 4",
        fault(inLanguage(findingAt(ZelDataFinding_NotStrictUtf8, caption, 1, 9), "de"), "text"));
    EXPECT_EQ("screen text 1 at 9: the image has U+FFFE or U+FFFF at byte 4",
              fault(findingAt(ZelDataFinding_ForbiddenCharacter, screenText, 1, 9), "image"));
    EXPECT_EQ("captions: the language en-\\x01 has a control character at byte 4",
              fault(inLanguage(findingIn(ZelDataFinding_ControlCharacter, caption), "en-\x01"),
                    "language"));
}

TEST(DescribeFinding, WhatThePacketLacks)
{
    EXPECT_EQ("caption 0 at 7 ms: no text in any language",
              describe(findingAt(ZelDataFinding_NoText, caption, 0, 7)));
    EXPECT_EQ("caption 0 at 7 ms: the text in de is empty",
              describe(inLanguage(findingAt(ZelDataFinding_EmptyText, caption, 0, 7), "de")));
    const auto group = findingAt(ZelDataFinding_EntryMissing, screenText, 0, 7);
    EXPECT_EQ("screen text 0 at 7: no entry 5 in the table of contents, the last is 0",
              describe(limited(group, 5, 0)));
    EXPECT_EQ("screen text 0 at 7: no entry 5 in the table of contents, which has none",
              describe(limited(group, 5, -1)));
}

TEST(DescribeFinding, ALanguageStaysOnItsLine)
{
    const auto line = [](const std::string& language) {
        return describe(inLanguage(findingAt(ZelDataFinding_MissingText, entry, 0, 0), language));
    };
    EXPECT_EQ("entry 0 at 0: no text in en-\\x0A\\x1F\\x7F~ ", line("en-\n\x1F\x7F~ "));
    EXPECT_EQ("entry 0 at 0: no text in en-\\x00", line(std::string("en-\0", 4)));
    EXPECT_EQ("entry 0 at 0: no text in en-\u00fc", line("en-\u00fc"));
    EXPECT_EQ("entry 0 at 0: no text in en-\U0001F600", line("en-\U0001F600"));
    EXPECT_EQ("entry 0 at 0: no text in en-\\x80\\xFC", line("en-\x80\xFC"));
}

TEST(DescribeFinding, ExtremesAreWrittenInFull)
{
    constexpr auto most = std::numeric_limits<long long>::max();
    constexpr auto least = std::numeric_limits<long long>::min();
    ZelDataFinding finding = limited(ZelDataFinding_NoDuration, caption, 1, least, 1);
    finding.start = most;
    EXPECT_EQ("caption 1 at 9223372036854775807 ms: no duration (-9223372036854775808 ms, at "
              "least 1 ms)",
              describe(finding));
}

TEST(DescribeFinding, AnUndefinedKindIsUnknown)
{
    EXPECT_EQ("collection: unknown finding", describe(ZelDataFinding()));
    EXPECT_EQ("item 3 at 5: unknown finding",
              describe(findingAt(static_cast<ZelDataFinding_tags>(25),
                                 static_cast<ZelDataFindingSubject_tags>(6), 3, 5)));
}

} // namespace
} // namespace ZelInterchangeData
