/// @file
/// What findProblems() finds in screen text.

#include "screentext/Items.h"
#include "support/Dice.h"
#include "support/Findings.h"
#include "support/fakes/FailingScreenText.h"

#include <limits>

namespace ZelInterchangeData {
namespace {

using Lines = std::vector<std::string>;

constexpr auto subject = ZelDataFindingSubject_ScreenText;

TEST(ScreenTextFindings, ANewCollectionHasNone)
{
    EXPECT_EQ(Lines{}, linesOf(*make(ZelDataUtilities::createScreenTextData)));
}

TEST(ScreenTextFindings, NoDurationOverlapAndEmptyTextAreFine)
{
    EXPECT_EQ(Lines{}, linesOf(*screenTextOf({{5, 0}, {5, 9000}, {6, 1}})));
}

TEST(ScreenTextFindings, AnyCharacterIsFine)
{
    EXPECT_EQ(Lines{}, linesOf(*screenTextOf({{0, 1, "\U0001F600"}})));
}

TEST(ScreenTextFindings, AnEndThatWrapsIsFine)
{
    constexpr auto most = std::numeric_limits<long long>::max();
    EXPECT_EQ(Lines{}, linesOf(*screenTextOf({{1, most}, {most, most}})));
}

TEST(ScreenTextFindings, AnItemOutOfOrderNamesTheFirstOneThatStartsBeforeIt)
{
    EXPECT_EQ((Findings{outOfOrder(subject, 0, 5, 2, 4), outOfOrder(subject, 1, 6, 2, 4),
                        outOfOrder(subject, 2, 4, 3, 1)}),
              findingsOf(*screenTextOf({{5}, {6}, {4}, {1}})));
    EXPECT_EQ(Lines{"screen text 0 at 5: out of order: screen text 1 starts before it, at 4"},
              linesOf(*screenTextOf({{5}, {4}})));
}

/// Screen text with any frame rate and an item with any text.
class ToldScreenText : public ZelDataScreenText {
public:
    class Item : public ZelDataScreenTextItem {
        ZelDataResult_tags getText(std::string& text) const override
        {
            text = "a\x80";
            return ZelData_Ok;
        }
    };

    explicit ToldScreenText(unsigned long rate) : rate_(rate) {}
    ZelDataResult_tags getFrameRate(unsigned long& rate) const override
    {
        rate = rate_;
        return ZelData_Ok;
    }
    ZelDataResult_tags
    getScreenTextItems(std::vector<i_ZelDataScreenTextItem*>& items) const override
    {
        items = {new Item};
        return ZelData_Ok;
    }

private:
    unsigned long rate_;
};

TEST(ScreenTextFindings, FrameRateAndTextAreChecked)
{
    EXPECT_EQ((Lines{"screen texts: frame rate out of range (0, at least 1)",
                     "screen text 0 at 0: the text is not UTF-8"}),
              linesOf(ToldScreenText(0)));
    EXPECT_EQ("screen texts: frame rate out of range (10001, at most 10000)",
              linesOf(ToldScreenText(10001)).at(0));
    EXPECT_EQ(Findings{findingAt(ZelDataFinding_BadText, subject, 0, 0)},
              findingsOf(ToldScreenText(1)));
    EXPECT_EQ(1U, linesOf(ToldScreenText(10000)).size());
}

/// Screen text with one item, which is handed out as a failing one.
class HandingScreenText : public FailingScreenText {
public:
    HandingScreenText()
    {
        ZelInterchangeData::add(*this, {{0, 1, "a"}});
        handOutBeforeFailing();
    }
    ZelDataResult_tags createScreenTextItem(i_ZelDataScreenTextItem** out) const override
    {
        auto item = std::make_unique<FailingScreenTextItem>();
        if (prepare) prepare(*item);
        *out = item.release();
        return ZelData_Ok;
    }

    std::function<void(FailingScreenTextItem&)> prepare;
};

TEST(ScreenTextFindings, AFailingCollectionEndsTheSearch)
{
    for (const std::string operation : {"getFrameRate", "getScreenTextItems"}) {
        HandingScreenText screenText;
        const long alive = FailingScreenTextItem::alive();
        expectFailuresPass<HandingScreenText, FailingScreenText>(
            screenText, operation, 1, [&](const auto& arm) { arm(screenText); });
        EXPECT_EQ(alive, FailingScreenTextItem::alive()) << operation;
    }
}

TEST(ScreenTextFindings, AFailingItemEndsTheSearch)
{
    for (const std::string operation : {"getStart", "getText"}) {
        HandingScreenText screenText;
        const long alive = FailingScreenTextItem::alive();
        expectFailuresPass<HandingScreenText, FailingScreenTextItem>(
            screenText, operation, 1, [&](const auto& arm) { screenText.prepare = arm; });
        EXPECT_EQ(alive, FailingScreenTextItem::alive()) << operation;
    }
}

TEST(ScreenTextFindings, ExhaustedMemoryIsReportedAndNothingLeaks)
{
    expectMemoryFailuresPass(*screenTextOf({{2, 1, std::string(50, 'x')}, {1, 1, "a"}}));
}

/// What must be found in @p items, by the definition.
Findings expectedOf(const std::vector<Shown>& items)
{
    Findings expected;
    for (std::size_t i = 0; i < items.size(); ++i) {
        std::size_t j = i + 1;
        while (j < items.size() && items[j].start >= items[i].start)
            ++j;
        if (j < items.size())
            expected.push_back(outOfOrder(subject, i, items[i].start, j, items[j].start));
    }
    return expected;
}

TEST(ScreenTextFindings, AgreeWithTheCheckAndWithTheDefinitionOnRandomItems)
{
    Dice dice(4713);
    expectAgreement(0.9, [&] {
        std::vector<Shown> items(dice.below(6));
        for (Shown& item : items)
            item = {static_cast<long long>(dice.below(8)), static_cast<long long>(dice.below(4))};
        return std::pair(screenTextOf(items), expectedOf(items));
    });
}

} // namespace
} // namespace ZelInterchangeData
