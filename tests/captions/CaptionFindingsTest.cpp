/// @file
/// What findProblems() finds in captions.

#include "captions/Captions.h"
#include "support/Dice.h"
#include "support/Findings.h"
#include "support/LongNumbers.h"
#include "support/fakes/FailingCaptions.h"

#include <algorithm>
#include <limits>
#include <set>

namespace ZelInterchangeData {
namespace {

using Lines = std::vector<std::string>;

constexpr auto subject = ZelDataFindingSubject_Caption;
const std::string fourLines = "1\n2\n3\n4";
const std::string fiveLines = "1\n2\n3\n4\n5";

TEST(CaptionFindings, ANewCollectionHasNone)
{
    EXPECT_EQ(Lines{}, linesOf(*make(ZelDataUtilities::createCaptionData)));
}

TEST(CaptionFindings, ADurationBelowASecondIsTooShort)
{
    EXPECT_EQ(Findings{}, findingsOf(*captionsOf({{5, 1000, {{"en", "a"}}}})));
    EXPECT_EQ(Findings{limited(findingAt(ZelDataFinding_TooShort, subject, 0, 5), 999, 1000)},
              findingsOf(*captionsOf({{5, 999, {{"en", "a"}}}})));
    EXPECT_EQ(Findings{limited(findingAt(ZelDataFinding_TooShort, subject, 0, 5), 1, 1000)},
              findingsOf(*captionsOf({{5, 1, {{"en", "a"}}}})));
}

TEST(CaptionFindings, MoreThanFourLinesAreTooMany)
{
    EXPECT_EQ(Findings{}, findingsOf(*captionsOf({{0, 1000, {{"en", fourLines}}}})));
    EXPECT_EQ(Findings{}, findingsOf(*captionsOf({{0, 1000, {{"en", fourLines + '\n'}}}})));
    const auto tooMany = findingAt(ZelDataFinding_TooManyLines, subject, 0, 0);
    EXPECT_EQ((Findings{inLanguage(limited(tooMany, 6, 4), "de"),
                        inLanguage(limited(tooMany, 5, 4), "en")}),
              findingsOf(*captionsOf({{0, 1000, {{"en", fiveLines}, {"de", fiveLines + "\n6"}}}})));
}

TEST(CaptionFindings, AMissingTextIsNamedForEachListedLanguage)
{
    const auto captions = captionsOf({{0, 1000, {{"en", ""}}}, {1000, 1000, {{"de", "x"}}}});
    ASSERT_EQ(ZelData_Ok, captions->addLanguage("ar"));
    const auto first = findingAt(ZelDataFinding_MissingText, subject, 0, 0);
    const auto second = findingAt(ZelDataFinding_MissingText, subject, 1, 1000);
    EXPECT_EQ((Findings{inLanguage(first, "de"), inLanguage(first, "ar"), inLanguage(second, "en"),
                        inLanguage(second, "ar")}),
              findingsOf(*captions));
}

TEST(CaptionFindings, ATextInALanguageThatIsNotListedIsFine)
{
    const auto captions = captionsOf({{0, 1000, {{"en", "a"}, {"de", "b"}}}});
    ASSERT_EQ(ZelData_Ok, captions->removeLanguage("de"));
    EXPECT_EQ(Findings{}, findingsOf(*captions));
}

TEST(CaptionFindings, ALanguageThatIsListedTwiceIsMissedOnce)
{
    const auto captions = captionsOf({{0, 1000, {{"en", ""}}}, {1000, 1000, {{"de", ""}}}});
    ASSERT_EQ(ZelData_Ok, captions->setOrderedLanguageIDs({"de", "de"}));
    EXPECT_EQ(Lines{"caption 0 at 0 ms: no text in de"}, linesOf(*captions));
}

TEST(CaptionFindings, AnEndAfterALaterStartIsAnOverlap)
{
    EXPECT_EQ(Findings{}, findingsOf(*captionsOf({{0, 2000, {}}, {2000, 1000, {}}})));
    const auto overlap = limited(findingAt(ZelDataFinding_Overlap, subject, 0, 0), 2001, 0);
    EXPECT_EQ(Findings{withLater(overlap, 1, 2000)},
              findingsOf(*captionsOf({{0, 2001, {}}, {2000, 1000, {}}})));
}

TEST(CaptionFindings, CaptionsThatStartTogetherOverlap)
{
    EXPECT_EQ(Lines{"caption 0 at 5 ms: overlap: it ends at 1005 ms, caption 1 starts at 5 ms"},
              linesOf(*captionsOf({{5, 1000, {}}, {5, 1000, {}}})));
}

TEST(CaptionFindings, AnOverlapNamesTheFirstLaterCaptionAndNotTheEarliest)
{
    EXPECT_EQ((Lines{"caption 0 at 0 ms: overlap: it ends at 9000 ms, caption 2 starts at 8000 ms",
                     "caption 1 at 9000 ms: out of order: caption 2 starts before it, at 8000 ms",
                     "caption 2 at 8000 ms: out of order: caption 3 starts before it, at 7000 ms"}),
              linesOf(*captionsOf(
                  {{0, 9000, {}}, {9000, 1000, {}}, {8000, 1000, {}}, {7000, 1000, {}}})));
}

TEST(CaptionFindings, ALaterCaptionThatStartsBeforeIsOutOfOrder)
{
    EXPECT_EQ(Findings{outOfOrder(subject, 0, 5000, 1, 4999)},
              findingsOf(*captionsOf({{5000, 1000, {}}, {4999, 1000, {}}})));
}

TEST(CaptionFindings, ACaptionHasOneFindingOnItsPlaceAmongTheOthers)
{
    // The first one overlaps the second and starts after the third: the second comes first.
    EXPECT_EQ(
        (Lines{"caption 0 at 3000 ms: overlap: it ends at 6000 ms, caption 1 starts at 4000 ms",
               "caption 1 at 4000 ms: out of order: caption 2 starts before it, at 0 ms"}),
        linesOf(*captionsOf({{3000, 3000, {}}, {4000, 1000, {}}, {0, 1000, {}}})));
}

TEST(CaptionFindings, AllFindingsComeInStoredOrder)
{
    const auto captions = captionsOf({{2000, 500, {{"en", fiveLines}}}, {0, 999, {{"de", ""}}}});
    EXPECT_EQ((Lines{"caption 0 at 2000 ms: too short (500 ms, at least 1000 ms)",
                     "caption 0 at 2000 ms: too many lines in en (5, at most 4)",
                     "caption 0 at 2000 ms: no text in de",
                     "caption 0 at 2000 ms: out of order: caption 1 starts before it, at 0 ms",
                     "caption 1 at 0 ms: too short (999 ms, at least 1000 ms)",
                     "caption 1 at 0 ms: no text in en"}),
              linesOf(*captions));
}

TEST(CaptionFindings, OrderedCaptionsKeepOnlyTheirOverlaps)
{
    const auto captions = captionsOf({{2000, 1000, {{"en", "a"}}}, {0, 2001, {{"de", ""}}}});
    ASSERT_EQ(ZelData_Ok, captions->makeCaptionsConsistent());
    EXPECT_EQ(Lines{"caption 0 at 0 ms: overlap: it ends at 2001 ms, caption 1 starts at 2000 ms"},
              linesOf(*captions));
}

// Captions of a caller, which hold values that the library's own refuse

/// A caption that returns what a test sets.
class ToldItem : public ZelDataCaptionItem {
public:
    struct Told {
        long long start = 0;
        long long end = 1000;
        long long duration = 1000;
        std::map<std::string, std::string> texts = {};
    };

    explicit ToldItem(Told told) : told_(std::move(told)) {}

    ZelDataResult_tags getStart(long long& start) const override
    {
        start = told_.start;
        return ZelData_Ok;
    }
    ZelDataResult_tags getEnd(long long& end) const override
    {
        end = told_.end;
        return ZelData_Ok;
    }
    ZelDataResult_tags getDuration(long long& duration) const override
    {
        duration = told_.duration;
        return ZelData_Ok;
    }
    ZelDataResult_tags getLanguageIDs(std::vector<std::string>& ids) const override
    {
        for (const auto& text : told_.texts)
            ids.insert(ids.begin(), text.first); // in descending order
        return ZelData_Ok;
    }
    ZelDataResult_tags getTextForLanguage(std::string& text, const std::string& id) const override
    {
        text = told_.texts.at(id);
        return ZelData_Ok;
    }

private:
    Told told_;
};

/// Captions with any styling and any items.
class ToldCaptions : public ZelDataCaptions {
public:
    ZelDataResult_tags getFrameRate(unsigned long& rate) const override
    {
        rate = style.frameRate;
        return ZelData_Ok;
    }
    ZelDataResult_tags getFontFamily(std::string& family) const override
    {
        family = style.fontFamily;
        return ZelData_Ok;
    }
    ZelDataResult_tags getFontSize(unsigned long& size) const override
    {
        size = style.fontSize;
        return ZelData_Ok;
    }
    ZelDataResult_tags getForegroundColor(float& red, float& green, float& blue) const override
    {
        std::tie(red, green, blue) = std::tuple_cat(style.foreground);
        return ZelData_Ok;
    }
    ZelDataResult_tags getBackgroundColor(float& red, float& green, float& blue) const override
    {
        std::tie(red, green, blue) = std::tuple_cat(style.background);
        return ZelData_Ok;
    }
    ZelDataResult_tags getBackgroundOpacity(float& opacity) const override
    {
        opacity = style.opacity;
        return ZelData_Ok;
    }
    ZelDataResult_tags getCaptionItems(std::vector<i_ZelDataCaptionItem*>& out) const override
    {
        for (const ToldItem::Told& told : items)
            out.push_back(new ToldItem(told));
        return ZelData_Ok;
    }

    Style style;
    std::vector<ToldItem::Told> items;
};

TEST(CaptionFindings, ANonPositiveDurationIsMissingAndNotAlsoTooShort)
{
    ToldCaptions captions;
    captions.items = {{0, 0, 0}, {1, 0, -1}, {2, 3, 1}};
    EXPECT_EQ((Lines{"caption 0 at 0 ms: no duration (0 ms, at least 1 ms)",
                     "caption 1 at 1 ms: no duration (-1 ms, at least 1 ms)",
                     "caption 2 at 2 ms: too short (1 ms, at least 1000 ms)"}),
              linesOf(captions));
    captions.items = {{0, 0, 0}};
    EXPECT_EQ(Findings{limited(findingAt(ZelDataFinding_NoDuration, subject, 0, 0), 0, 1)},
              findingsOf(captions));
}

TEST(CaptionFindings, ACaptionThatEndsBeforeItStartsCanBeOutOfOrder)
{
    ToldCaptions captions;
    captions.items = {{5000, 100, 1000}, {4000, 5000, 1000}};
    EXPECT_EQ(Lines{"caption 0 at 5000 ms: out of order: caption 1 starts before it, at 4000 ms"},
              linesOf(captions));
}

TEST(CaptionFindings, TextsAndLanguagesAreCheckedSeparately)
{
    ToldCaptions captions;
    captions.items = {{0, 1000, 1000, {{"en", "\xFF"}, {"zz", "\U0001F600"}, {"yy", "\xFF"}}}};
    EXPECT_EQ((Lines{"caption 0 at 0 ms: the language zz is not known",
                     "caption 0 at 0 ms: the text in yy is not UTF-8",
                     "caption 0 at 0 ms: the language yy is not known",
                     "caption 0 at 0 ms: the text in en is not UTF-8"}),
              linesOf(captions));
    captions.items = {{0, 1000, 1000, {{"en-\xFF", "a"}}}};
    EXPECT_EQ(Findings{inLanguage(findingAt(ZelDataFinding_BadLanguage, subject, 0, 0), "en-\xFF")},
              findingsOf(captions));
}

TEST(CaptionFindings, LanguagesMayComeInAnyOrder)
{
    ToldCaptions captions;
    ASSERT_EQ(ZelData_Ok, captions.addLanguage("de"));
    ASSERT_EQ(ZelData_Ok, captions.addLanguage("fr"));
    captions.items = {{0, 1000, 1000, {{"de", ""}, {"en", ""}, {"ja", ""}}}};
    EXPECT_EQ(Lines{"caption 0 at 0 ms: no text in fr"}, linesOf(captions));
}

/// The findings in captions without items whose styling @p change sets.
template <class Change>
Lines linesOfStyle(Change&& change)
{
    ToldCaptions captions;
    change(captions.style);
    return linesOf(captions);
}

TEST(CaptionFindings, AFrameRateMustBeInRange)
{
    const auto rate = [](unsigned long value) {
        return linesOfStyle([&](Style& style) { style.frameRate = value; });
    };
    EXPECT_EQ(Lines{"captions: frame rate out of range (0, at least 1)"}, rate(0));
    EXPECT_EQ(Lines{}, rate(1));
    EXPECT_EQ(Lines{}, rate(10000));
    EXPECT_EQ(Lines{"captions: frame rate out of range (10001, at most 10000)"}, rate(10001));
}

TEST(CaptionFindings, AFontMustHaveANameAndASizeInRange)
{
    const auto size = [](unsigned long value) {
        return linesOfStyle([&](Style& style) { style.fontSize = value; });
    };
    EXPECT_EQ(Lines{"captions: font size out of range (0, at least 1)"}, size(0));
    EXPECT_EQ(Lines{}, size(1));
    EXPECT_EQ(Lines{}, size(500));
    EXPECT_EQ(Lines{"captions: font size out of range (501, at most 500)"}, size(501));
    EXPECT_EQ(Lines{std::string("captions: font size out of range (") +
                    (hasLongNumbers ? "9223372036854775807" : "4294967295") + ", at most 500)"},
              size(std::numeric_limits<unsigned long>::max()));
    EXPECT_EQ(Lines{"captions: the font family is empty"},
              linesOfStyle([](Style& style) { style.fontFamily.clear(); }));
}

TEST(CaptionFindings, AColorMustBeInRange)
{
    const float below = -0.5F;
    const float above = 1.5F;
    EXPECT_EQ((Lines{"captions: foreground red out of range (-0.5, at least 0)",
                     "captions: foreground blue out of range (1.5, at most 1)",
                     "captions: background green out of range (1.5, at most 1)",
                     "captions: background blue out of range (-0.5, at least 0)"}),
              linesOfStyle([&](Style& style) {
                  style.foreground = {below, 0.0F, above};
                  style.background = {1.0F, above, below};
              }));
    EXPECT_EQ((Lines{"captions: foreground green out of range (1.5, at most 1)",
                     "captions: background red out of range (1.5, at most 1)",
                     "captions: background opacity out of range (1.5, at most 1)"}),
              linesOfStyle([&](Style& style) {
                  style.foreground = {0.0F, above, 1.0F};
                  style.background = {above, 0.0F, 0.0F};
                  style.opacity = above;
              }));
}

TEST(CaptionFindings, ANanPassesAsAColor)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(Lines{}, linesOfStyle([&](Style& style) {
                  style.foreground = {nan, nan, nan};
                  style.opacity = nan;
              }));
}

TEST(CaptionFindings, AColorFindingHasItsDataInOrder)
{
    ToldCaptions captions;
    captions.style.opacity = -0.5F;
    ZelDataFinding expected =
        findingAt(ZelDataFinding_ColorOutOfRange, subject, ZelDataFinding::noItem, 0);
    expected.property = "background opacity";
    expected.component = -0.5F;
    EXPECT_EQ(Findings{expected}, findingsOf(captions));
}

TEST(CaptionFindings, StylingComesBeforeTheItems)
{
    ToldCaptions captions;
    captions.style.opacity = 2.0F;
    captions.style.frameRate = 0;
    captions.items = {{0, 0, 0}};
    EXPECT_EQ((Lines{"captions: frame rate out of range (0, at least 1)",
                     "captions: background opacity out of range (2, at most 1)",
                     "caption 0 at 0 ms: no duration (0 ms, at least 1 ms)"}),
              linesOf(captions));
}

// Failures

TEST(CaptionFindings, AFailingCollectionEndsTheSearch)
{
    for (const std::string operation :
         {"getFrameRate", "getFontFamily", "getFontSize", "getForegroundColor",
          "getBackgroundColor", "getBackgroundOpacity", "getOrderedLanguageIDs",
          "getCaptionItems"}) {
        FailingCaptions captions;
        add(captions, {{0, 1000, {{"en", "a"}}}});
        captions.handOutBeforeFailing();
        const long alive = FailingCaptionItem::alive();
        expectFailuresPass<FailingCaptions, FailingCaptions>(
            captions, operation, 1, [&](const auto& arm) { arm(captions); });
        EXPECT_EQ(alive, FailingCaptionItem::alive()) << operation;
    }
}

TEST(CaptionFindings, AFailingItemEndsTheSearch)
{
    using Call = std::pair<std::string, int>;
    for (const auto& [operation, nth] :
         {Call{"getStart", 1}, Call{"getEnd", 1}, Call{"getDuration", 1}, Call{"getLanguageIDs", 1},
          Call{"getTextForLanguage", 1}, Call{"getTextForLanguage", 2}}) {
        FailingCaptions captions;
        add(captions, {{0, 1000, {{"de", "a"}, {"en", "b"}}}, {1000, 1000, {{"de", ""}}}});
        const long alive = FailingCaptionItem::alive();
        expectFailuresPass<FailingCaptions, FailingCaptionItem>(
            captions, operation, nth, [&](const auto& arm) { captions.prepareItems(arm); });
        EXPECT_EQ(alive, FailingCaptionItem::alive()) << operation;
    }
}

TEST(CaptionFindings, ATimeThatAnItemDoesNotSetCountsAsZero)
{
    const auto linesWithout = [](const std::string& getter) {
        FailingCaptions captions;
        add(captions, {{0, 1000, {{"en", "a"}}}, {0, 1000, {{"en", "b"}}}});
        captions.prepareItems(
            [&](FailingCaptionItem& item) { item.failAt(getter, ZelData_Ok, ZelData_Ok); });
        return linesOf(captions);
    };
    EXPECT_EQ(Lines{"caption 0 at 0 ms: overlap: it ends at 1000 ms, caption 1 starts at 0 ms"},
              linesWithout("getStart"));
    EXPECT_EQ(Lines{}, linesWithout("getEnd"));
    EXPECT_EQ("caption 0 at 0 ms: no duration (0 ms, at least 1 ms)",
              linesWithout("getDuration").at(0));
}

/// Captions that hand out a null pointer.
class HollowCaptions : public ZelDataCaptions {
public:
    ZelDataResult_tags getCaptionItems(std::vector<i_ZelDataCaptionItem*>& items) const override
    {
        items = {new FailingCaptionItem, nullptr};
        return ZelData_Ok;
    }
};

TEST(CaptionFindings, ANullItemIsAnInternalError)
{
    const long alive = FailingCaptionItem::alive();
    expectNoAnswer(ZelData_InternalError, HollowCaptions());
    EXPECT_EQ(alive, FailingCaptionItem::alive());
}

TEST(CaptionFindings, ExhaustedMemoryIsReportedAndNothingLeaks)
{
    const std::string id = "en-a-region-that-is-long-enough-to-be-allocated";
    expectMemoryFailuresPass(
        *captionsOf({{2000, 500, {{id, fiveLines}}}, {0, 999, {{"de", std::string(50, 'x')}}}}));
}

// Random captions

/// Captions at the edges of all limits, and the languages to list.
struct Draw {
    std::vector<Caption> captions;
    std::vector<std::string> listed;
};

Caption drawCaption(Dice& dice, long long& time)
{
    static const std::vector<std::string> texts = {"",        "a",       "b\nc",          fourLines,
                                                   fourLines, fiveLines, fourLines + '\n'};
    static const std::vector<long long> durations = {1, 999, 1000, 1000, 1000, 1001, 2000, 5000};
    static const std::vector<long long> steps = {1000, 1000, 1000, 1001, 2000, 5000, 999, 0, -1000};
    Caption caption;
    caption.start = time;
    caption.duration = dice.one(durations);
    for (const char* id : {"de", "en", "fr-x"}) {
        if (!dice.once(8)) caption.texts[id] = dice.once(4) ? dice.one(texts) : "a";
    }
    time = std::max(0LL, time + dice.one(steps));
    return caption;
}

Draw draw(Dice& dice)
{
    Draw drawn;
    std::set<std::string> ids;
    long long time = dice.once(50) ? std::numeric_limits<long long>::max() - 6000 : 0;
    for (std::size_t count = dice.below(5); count > 0; --count) {
        drawn.captions.push_back(drawCaption(dice, time));
        for (const auto& text : drawn.captions.back().texts)
            ids.insert(text.first);
        if (time > std::numeric_limits<long long>::max() - 6000) break; // ends must not wrap
    }
    if (dice.once(20)) ids.insert("ja");
    drawn.listed.assign(ids.rbegin(), ids.rend());
    return drawn;
}

/// Makes captions as drawn.
std::unique_ptr<i_ZelDataCaptions> collectionOf(const Draw& drawn)
{
    auto captions = captionsOf(drawn.captions);
    EXPECT_EQ(ZelData_Ok, captions->clearLanguages());
    for (const std::string& id : drawn.listed)
        EXPECT_EQ(ZelData_Ok, captions->addLanguage(id));
    return captions;
}

/// The number of lines of a text; 0 without a line feed.
long long linesIn(const std::string& text)
{
    const auto feeds = std::count(text.begin(), text.end(), '\n');
    return feeds > 0 && text.back() != '\n' ? feeds + 1 : feeds;
}

void expectTexts(const Draw& drawn, const Caption& caption, const ZelDataFinding& at,
                 Findings& expected)
{
    const auto ofKind = [&](ZelDataFinding_tags kind) {
        return findingAt(kind, subject, at.item, at.start);
    };
    for (const auto& [id, text] : caption.texts) {
        if (linesIn(text) > 4)
            expected.push_back(
                inLanguage(limited(ofKind(ZelDataFinding_TooManyLines), linesIn(text), 4), id));
    }
    for (const std::string& id : drawn.listed) {
        if (caption.texts.count(id) == 0)
            expected.push_back(inLanguage(ofKind(ZelDataFinding_MissingText), id));
    }
}

/// Compares the caption at @p i with each later one in turn.
void expectPlace(const Draw& drawn, std::size_t i, Findings& expected)
{
    const Caption& caption = drawn.captions[i];
    const long long end = caption.start + caption.duration;
    for (std::size_t j = i + 1; j < drawn.captions.size(); ++j) {
        const long long later = drawn.captions[j].start;
        if (end <= later) continue;
        const bool before = later < caption.start;
        auto finding = findingAt(before ? ZelDataFinding_OutOfOrder : ZelDataFinding_Overlap,
                                 subject, i, caption.start);
        finding.value = before ? caption.start : end;
        expected.push_back(withLater(finding, j, later));
        return;
    }
}

/// The expected findings, by the definition.
Findings expectedOf(const Draw& drawn)
{
    Findings expected;
    for (std::size_t i = 0; i < drawn.captions.size(); ++i) {
        const Caption& caption = drawn.captions[i];
        const auto at = findingAt(ZelDataFinding_TooShort, subject, i, caption.start);
        if (caption.duration < 1000) expected.push_back(limited(at, caption.duration, 1000));
        expectTexts(drawn, caption, at, expected);
        expectPlace(drawn, i, expected);
    }
    return expected;
}

TEST(CaptionFindings, AgreeWithTheCheckAndWithTheDefinitionOnRandomCaptions)
{
    Dice dice(4711);
    expectAgreement(0.5, [&] {
        const Draw drawn = draw(dice);
        return std::pair(collectionOf(drawn), expectedOf(drawn));
    });
}

TEST(CaptionFindings, DoNotTakeQuadraticTime)
{
    // Comparing all pairs would take five billion steps.
    constexpr long long count = 100000;
    const auto captions = make(ZelDataUtilities::createCaptionData);
    const auto item = itemOf({0, 1000, {{"en", "a"}}});
    for (long long i = 0; i < count; ++i) {
        ASSERT_EQ(ZelData_Ok, item->setStart(i * 1000));
        ASSERT_EQ(ZelData_Ok, captions->addCaptionItem(*item));
    }
    EXPECT_EQ(Findings{}, findingsOf(*captions));
}

} // namespace
} // namespace ZelInterchangeData
