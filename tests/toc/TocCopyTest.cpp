/// @file
/// Copying tables of contents between any two implementations.

#include "support/fakes/FailingToc.h"
#include "toc/Entries.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

namespace ZelInterchangeData {
namespace {

using Ids = std::vector<std::string>;

const std::vector<Entry> sourceEntries{{500, {{"fr", "Un"}}, "e.png", 1, 2},
                                       {100, {{"de", "Zwei"}, {"en", "Two"}}}};

/// What a table holds besides its frame rate.
struct Contents {
    Ids languages;
    std::string image;
    std::vector<Entry> entries;
};

bool operator==(const Contents& a, const Contents& b)
{
    return std::tie(a.languages, a.image, a.entries) == std::tie(b.languages, b.image, b.entries);
}

void PrintTo(const Contents& contents, std::ostream* out)
{
    *out << testing::PrintToString(contents.languages) << " image '" << contents.image << "' "
         << testing::PrintToString(contents.entries);
}

Contents contentsOf(const i_ZelDataToc& toc)
{
    return {languagesOf(toc), imageOf(toc), entriesOf(toc)};
}

/// The source lists "en" first; its entries bring "fr", then "de" and "en".
void fillSource(i_ZelDataToc& toc)
{
    EXPECT_EQ(ZelData_Ok, toc.addLanguage("en"));
    EXPECT_EQ(ZelData_Ok, toc.addLanguage("ja"));
    add(toc, sourceEntries);
    EXPECT_EQ(ZelData_Ok, toc.setImageFile("s.png"));
    EXPECT_EQ(ZelData_Ok, toc.setFrameRate(30));
}

void fillTarget(i_ZelDataToc& toc)
{
    add(toc, {{7, {{"it", "Sette"}}}});
    EXPECT_EQ(ZelData_Ok, toc.setImageFile("t.png"));
    EXPECT_EQ(ZelData_Ok, toc.setFrameRate(25));
}

class TocCopy : public testing::Test {
protected:
    TocCopy()
    {
        fillSource(source_);
        fillTarget(target_);
    }

    FailingToc source_;
    ZelDataToc target_;
};

TEST_F(TocCopy, ReplacesImageAndEntriesAndRebuildsTheLanguagesFromTheEntries)
{
    EXPECT_CODE(target_, ZelData_Ok, target_.copyFrom(source_));
    EXPECT_EQ((Contents{{"fr", "de", "en"}, "s.png", sourceEntries}), contentsOf(target_));
}

TEST_F(TocCopy, KeepsItsOwnFrameRateAndDoesNotAskForTheSources)
{
    const auto callsBefore = source_.calls().size();
    EXPECT_CODE(target_, ZelData_Ok, target_.copyFrom(source_));
    EXPECT_EQ(25UL, frameRateOf(target_));
    EXPECT_EQ((Ids{"getOrderedLanguageIDs", "getImageFile", "getTocItems"}),
              Ids(source_.calls().begin() + static_cast<std::ptrdiff_t>(callsBefore),
                  source_.calls().end()));
}

TEST_F(TocCopy, LeavesTheSourceAsItWas)
{
    const Contents before = contentsOf(source_);
    EXPECT_CODE(target_, ZelData_Ok, target_.copyFrom(source_));
    EXPECT_EQ(before, contentsOf(source_));
    EXPECT_EQ((Ids{"en", "ja", "fr", "de"}), before.languages);
}

TEST_F(TocCopy, DoesNotKeepAnOrderOfLanguagesThatWasSet)
{
    EXPECT_EQ(ZelData_Ok, source_.setOrderedLanguageIDs({"ja", "en", "de", "fr"}));
    EXPECT_CODE(target_, ZelData_Ok, target_.copyFrom(source_));
    EXPECT_EQ((Ids{"fr", "de", "en"}), languagesOf(target_));
}

TEST_F(TocCopy, ListsNoLanguageThatOnlyARemovedEntryHad)
{
    ZelDataToc source;
    fillSource(source);
    EXPECT_EQ(ZelData_Ok, source.removeTocItemAt(0));
    EXPECT_CODE(target_, ZelData_Ok, target_.copyFrom(source));
    EXPECT_EQ((Ids{"de", "en"}), languagesOf(target_));
}

TEST_F(TocCopy, OntoItselfIsAnErrorThatChangesNothing)
{
    const Contents before = contentsOf(target_);
    EXPECT_CODE(target_, ZelData_InternalError, target_.copyFrom(target_));
    EXPECT_EQ(before, contentsOf(target_));
}

TEST_F(TocCopy, OfAnEmptyTableEmptiesTheTarget)
{
    EXPECT_CODE(target_, ZelData_Ok, target_.copyFrom(ZelDataToc()));
    EXPECT_EQ(Contents(), contentsOf(target_));
    EXPECT_EQ(25UL, frameRateOf(target_));
}

TEST_F(TocCopy, StopsAtALanguageThatTheSourceListsTwice)
{
    EXPECT_EQ(ZelData_Ok, source_.setOrderedLanguageIDs({"de", "ja", "ja", "fr"}));
    EXPECT_CODE(target_, ZelData_WarnAlreadyExists, target_.copyFrom(source_));
    EXPECT_EQ((Contents{{"de", "ja"}, "t.png", {}}), contentsOf(target_));
}

TEST_F(TocCopy, OfTheLanguagesAloneStaysReachable)
{
    const i_ZelDataLanguage& languages = source_;
    EXPECT_CODE(target_, ZelData_Ok, target_.copyFrom(languages));
    EXPECT_EQ((Contents{{"en", "ja", "fr", "de"}, "t.png", {{7, {{"it", "Sette"}}}}}),
              contentsOf(target_));
}

/// What stopped a copy, and what the target then holds.
struct Stop {
    const char* operation;
    int nth;
    Contents left;
};

void PrintTo(const Stop& stop, std::ostream* out)
{
    *out << stop.operation << ' ' << stop.nth;
}

const Ids listed{"en", "ja", "fr", "de"};

class SourceTocStops : public TocCopy, public testing::WithParamInterface<Stop> {};

TEST_P(SourceTocStops, TheSourcesLastErrorIsTakenOverAndTheCopiedPartStays)
{
    source_.failAt(GetParam().operation, ZelData_InvalidItem, ZelData_NotFound);
    EXPECT_CODE(target_, ZelData_NotFound, target_.copyFrom(source_));
    EXPECT_EQ(GetParam().left, contentsOf(target_));
}

TEST_P(SourceTocStops, AWarningStopsAsWell)
{
    source_.failAt(GetParam().operation, ZelData_WarnTiming, ZelData_WarnNoChange);
    EXPECT_CODE(target_, ZelData_WarnNoChange, target_.copyFrom(source_));
    EXPECT_EQ(GetParam().left, contentsOf(target_));
}

TEST_P(SourceTocStops, ExhaustedMemoryBecomesACode)
{
    source_.throwAt(GetParam().operation, std::bad_alloc());
    EXPECT_CODE(target_, ZelData_OutOfMemory, target_.copyFrom(source_));
    EXPECT_EQ(GetParam().left, contentsOf(target_));
}

TEST_P(SourceTocStops, AnyOtherExceptionBecomesAnInternalError)
{
    source_.throwAt(GetParam().operation, std::runtime_error("foreign"));
    EXPECT_CODE(target_, ZelData_InternalError, target_.copyFrom(source_));
    EXPECT_EQ(GetParam().left, contentsOf(target_));
}

TEST_F(TocCopy, AFailureWithALastErrorOfZeroEndsItAndLooksLikeSuccess)
{
    source_.failAt("getImageFile", ZelData_InvalidItem, ZelData_Ok);
    EXPECT_CODE(target_, ZelData_Ok, target_.copyFrom(source_));
    EXPECT_EQ((Contents{listed, "t.png", {}}), contentsOf(target_));
}

TEST_F(TocCopy, FailingLanguagesWithALastErrorOfZeroLookCopiedSoTheRestFollows)
{
    source_.failAt("getOrderedLanguageIDs", ZelData_InvalidItem, ZelData_Ok);
    EXPECT_CODE(target_, ZelData_Ok, target_.copyFrom(source_));
    EXPECT_EQ((Contents{{"fr", "de", "en"}, "s.png", sourceEntries}), contentsOf(target_));
}

INSTANTIATE_TEST_SUITE_P(TocCopy, SourceTocStops,
                         testing::Values(Stop{"getOrderedLanguageIDs", 1, {{}, "t.png", {}}},
                                         Stop{"getImageFile", 1, {listed, "t.png", {}}},
                                         Stop{"getTocItems", 1, {listed, "s.png", {}}}));

class TargetTocStops : public testing::TestWithParam<Stop> {
protected:
    TargetTocStops() { fillSource(source_); }

    ZelDataToc source_;
    FailingToc target_;
};

TEST_P(TargetTocStops, TheTargetsOwnLastErrorIsReturnedAndStored)
{
    target_.failAt(GetParam().operation, ZelData_InvalidItem, ZelData_NotFound, GetParam().nth);
    EXPECT_CODE(target_, ZelData_NotFound, target_.copyFrom(source_));
    EXPECT_EQ(ZelData_NotFound, target_.storedError());
    EXPECT_EQ(GetParam().left, contentsOf(target_));
}

TEST_P(TargetTocStops, AnExceptionBecomesACode)
{
    target_.throwAt(GetParam().operation, std::bad_alloc(), GetParam().nth);
    EXPECT_CODE(target_, ZelData_OutOfMemory, target_.copyFrom(source_));
    EXPECT_EQ(GetParam().left, contentsOf(target_));
}

INSTANTIATE_TEST_SUITE_P(
    TocCopy, TargetTocStops,
    testing::Values(Stop{"clearTocItems", 1, {}}, Stop{"clearLanguages", 1, {}},
                    Stop{"addLanguage", 1, {}},
                    Stop{"addLanguage", 4, {{"en", "ja", "fr"}, "", {}}},
                    Stop{"setImageFile", 1, {listed, "", {}}},
                    Stop{"clearLanguages", 2, {listed, "s.png", {}}},
                    Stop{"addTocItem", 1, {{}, "s.png", {}}},
                    Stop{"addTocItem", 2, {{"fr"}, "s.png", {sourceEntries.front()}}},
                    Stop{"addLanguage", 6, {{"fr"}, "s.png", {sourceEntries.front()}}}));

/// A foreign table that hands out some entries and then fails.
class HalfwayToc : public ZelDataToc {
public:
    ZelDataResult_tags getTocItems(std::vector<i_ZelDataTocItem*>& items) const override
    {
        items.push_back(new FailingTocItem);
        items.push_back(new FailingTocItem);
        setLastError(ZelData_NoData);
        return ZelData_InvalidItem;
    }
};

TEST(TocCopyOfForeign, EntriesHandedOutBeforeAFailureAreDestroyed)
{
    const long before = FailingTocItem::alive();
    ZelDataToc target;
    EXPECT_CODE(target, ZelData_NoData, target.copyFrom(HalfwayToc()));
    EXPECT_EQ(before, FailingTocItem::alive());
    EXPECT_TRUE(entriesOf(target).empty());
}

} // namespace
} // namespace ZelInterchangeData
