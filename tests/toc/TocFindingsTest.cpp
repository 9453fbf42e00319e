/// @file
/// What findProblems() finds in a table of contents.

#include "support/Dice.h"
#include "support/Findings.h"
#include "support/fakes/FailingToc.h"
#include "toc/Entries.h"

#include <set>

namespace ZelInterchangeData {
namespace {

using Lines = std::vector<std::string>;

constexpr auto subject = ZelDataFindingSubject_TocEntry;

ZelDataFinding missing(std::size_t item, long long start, const std::string& language)
{
    ZelDataFinding finding = findingAt(ZelDataFinding_MissingText, subject, item, start);
    finding.language = language;
    return finding;
}

TEST(TocFindings, ANewTableHasNone)
{
    EXPECT_EQ(Lines{}, linesOf(*make(ZelDataUtilities::createTocData)));
}

TEST(TocFindings, EqualStartsAreInOrder)
{
    EXPECT_EQ(Lines{}, linesOf(*tocOf({{5}, {5}, {6}})));
}

TEST(TocFindings, AnEntryOutOfOrderNamesTheFirstOneThatStartsBeforeIt)
{
    EXPECT_EQ((Findings{outOfOrder(subject, 0, 5, 2, 4), outOfOrder(subject, 1, 6, 2, 4),
                        outOfOrder(subject, 2, 4, 3, 1)}),
              findingsOf(*tocOf({{5}, {6}, {4}, {1}})));
}

TEST(TocFindings, AMissingTitleIsNamedForEachListedLanguage)
{
    EXPECT_EQ((Findings{missing(0, 0, "en"), missing(1, 1, "de")}),
              findingsOf(*tocOf({{0, {{"de", ""}}}, {1, {{"en", "a"}}}})));
}

TEST(TocFindings, ManyLinesOfATitleAreFine)
{
    EXPECT_EQ(Lines{}, linesOf(*tocOf({{0, {{"en", "1\n2\n3\n4\n5"}}}})));
}

TEST(TocFindings, TheLineNamesEntriesWithoutAUnit)
{
    EXPECT_EQ((Lines{"entry 0 at 7: no text in de",
                     "entry 0 at 7: out of order: entry 1 starts before it, at 6",
                     "entry 1 at 6: no text in en"}),
              linesOf(*tocOf({{7, {{"en", ""}}}, {6, {{"de", ""}}}})));
}

/// A table with any frame rate and an entry that holds any text.
class ToldToc : public ZelDataToc {
public:
    class Item : public ZelDataTocItem {
        ZelDataResult_tags getLanguageIDs(std::vector<std::string>& ids) const override
        {
            ids = {"en", "zz"};
            return ZelData_Ok;
        }
        ZelDataResult_tags getTextForLanguage(std::string& text,
                                              const std::string& id) const override
        {
            text = id == "en" ? "\xC0" : "a";
            return ZelData_Ok;
        }
    };

    explicit ToldToc(unsigned long rate) : rate_(rate) {}
    ZelDataResult_tags getFrameRate(unsigned long& rate) const override
    {
        rate = rate_;
        return ZelData_Ok;
    }
    ZelDataResult_tags getTocItems(std::vector<i_ZelDataTocItem*>& items) const override
    {
        items = {new Item};
        return ZelData_Ok;
    }

private:
    unsigned long rate_;
};

TEST(TocFindings, FrameRateTextsAndLanguagesAreChecked)
{
    EXPECT_EQ((Lines{"table of contents: frame rate out of range (10001, at most 10000)",
                     "entry 0 at 0: the text in en is not UTF-8",
                     "entry 0 at 0: the language zz is not known"}),
              linesOf(ToldToc(10001)));
    EXPECT_EQ("table of contents: frame rate out of range (0, at least 1)",
              linesOf(ToldToc(0)).at(0));
    EXPECT_EQ(2U, linesOf(ToldToc(10000)).size());
    EXPECT_EQ(2U, linesOf(ToldToc(1)).size());
}

/// A table with one entry, which is handed out as a failing one.
class HandingToc : public FailingToc {
public:
    HandingToc()
    {
        ZelInterchangeData::add(*this, {{0, {{"en", "a"}}}});
        handOutBeforeFailing();
    }
    ZelDataResult_tags createTocItem(i_ZelDataTocItem** out) const override
    {
        auto item = std::make_unique<FailingTocItem>();
        if (prepare) prepare(*item);
        *out = item.release();
        return ZelData_Ok;
    }

    std::function<void(FailingTocItem&)> prepare;
};

TEST(TocFindings, AFailingTableEndsTheSearch)
{
    for (const std::string operation : {"getFrameRate", "getOrderedLanguageIDs", "getTocItems"}) {
        HandingToc toc;
        const long alive = FailingTocItem::alive();
        expectFailuresPass<HandingToc, FailingToc>(toc, operation, 1,
                                                   [&](const auto& arm) { arm(toc); });
        EXPECT_EQ(alive, FailingTocItem::alive()) << operation;
    }
}

TEST(TocFindings, AFailingEntryEndsTheSearch)
{
    for (const std::string operation : {"getStart", "getLanguageIDs", "getTextForLanguage"}) {
        HandingToc toc;
        const long alive = FailingTocItem::alive();
        expectFailuresPass<HandingToc, FailingTocItem>(toc, operation, 1,
                                                       [&](const auto& arm) { toc.prepare = arm; });
        EXPECT_EQ(alive, FailingTocItem::alive()) << operation;
    }
}

TEST(TocFindings, ExhaustedMemoryIsReportedAndNothingLeaks)
{
    expectMemoryFailuresPass(
        *tocOf({{2, {{"en", std::string(50, 'x')}}, "i"}, {1, {{"de", "a"}}}}));
}

/// What must be found in @p entries if the languages @p listed need titles, by the definition.
Findings expectedOf(const std::vector<Entry>& entries, const std::vector<std::string>& listed)
{
    Findings expected;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        for (const std::string& id : listed) {
            if (entries[i].titles.count(id) == 0)
                expected.push_back(missing(i, entries[i].start, id));
        }
        std::size_t j = i + 1;
        while (j < entries.size() && entries[j].start >= entries[i].start)
            ++j;
        if (j < entries.size())
            expected.push_back(outOfOrder(subject, i, entries[i].start, j, entries[j].start));
    }
    return expected;
}

std::vector<Entry> draw(Dice& dice)
{
    std::vector<Entry> entries;
    long long start = 3;
    for (std::size_t count = dice.below(6); count > 0; --count) {
        start = std::max(0LL, start + static_cast<long long>(dice.below(6)) - 1);
        Entry entry;
        entry.start = start;
        for (const char* id : {"de", "en"}) {
            if (!dice.once(10)) entry.titles[id] = dice.once(2) ? "" : "a";
        }
        entries.push_back(entry);
    }
    return entries;
}

TEST(TocFindings, AgreeWithTheCheckAndWithTheDefinitionOnRandomTables)
{
    Dice dice(4712);
    expectAgreement(0.9, [&] {
        const std::vector<Entry> entries = draw(dice);
        auto toc = tocOf(entries);
        auto expected = expectedOf(entries, languagesOf(*toc));
        return std::pair(std::move(toc), std::move(expected));
    });
}

} // namespace
} // namespace ZelInterchangeData
