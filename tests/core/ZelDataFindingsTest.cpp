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
    EXPECT_EQ("entry 0 at 0: no text in en-\\xFC", line("en-\xFC"));
}

TEST(DescribeFinding, ExtremesAreWhole)
{
    constexpr auto most = std::numeric_limits<long long>::max();
    constexpr auto least = std::numeric_limits<long long>::min();
    ZelDataFinding finding = limited(ZelDataFinding_NoDuration, caption, 1, least, 1);
    finding.start = most;
    EXPECT_EQ("caption 1 at 9223372036854775807 ms: no duration (-9223372036854775808 ms, at "
              "least 1 ms)",
              describe(finding));
}

TEST(DescribeFinding, WhatIsNoKindIsUnknown)
{
    EXPECT_EQ("collection: unknown finding", describe(ZelDataFinding()));
    EXPECT_EQ("item 3 at 5: unknown finding",
              describe(findingAt(static_cast<ZelDataFinding_tags>(13),
                                 static_cast<ZelDataFindingSubject_tags>(4), 3, 5)));
}

} // namespace
} // namespace ZelInterchangeData
