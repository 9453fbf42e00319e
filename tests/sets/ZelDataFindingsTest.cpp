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

TEST(ZelDataFinding, KindsAndSubjectsKeepTheirNumbers)
{
    const std::vector<ZelDataFinding_tags> kinds = {ZelDataFinding_FrameRateOutOfRange,
                                                    ZelDataFinding_FontFamilyMissing,
                                                    ZelDataFinding_FontSizeOutOfRange,
                                                    ZelDataFinding_ColorOutOfRange,
                                                    ZelDataFinding_NoDuration,
                                                    ZelDataFinding_TooShort,
                                                    ZelDataFinding_BadText,
                                                    ZelDataFinding_BadLanguage,
                                                    ZelDataFinding_TooManyLines,
                                                    ZelDataFinding_MissingText,
                                                    ZelDataFinding_Overlap,
                                                    ZelDataFinding_OutOfOrder};
    for (std::size_t i = 0; i < kinds.size(); ++i)
        EXPECT_EQ(i + 1, static_cast<std::uint32_t>(kinds[i]));
    EXPECT_EQ(1U, static_cast<std::uint32_t>(caption));
    EXPECT_EQ(2U, static_cast<std::uint32_t>(entry));
    EXPECT_EQ(3U, static_cast<std::uint32_t>(screenText));
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
              describe(findingAt(static_cast<ZelDataFinding_tags>(13),
                                 static_cast<ZelDataFindingSubject_tags>(4), 3, 5)));
}

} // namespace
} // namespace ZelInterchangeData
