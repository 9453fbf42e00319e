/// @file
/// Copying entries between any two implementations.

#include "support/fakes/FailingToc.h"
#include "toc/Entries.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

namespace ZelInterchangeData {
namespace {

using Calls = std::vector<std::string>;

const Entry sourceEntry{7, {{"de", "Anfang"}, {"en", "Intro"}}, "s.png", 3, 4};
const Entry targetEntry{1, {{"fr", "Fin"}}, "t.png", 1, 2};

class TocItemCopy : public testing::Test {
protected:
    TocItemCopy()
    {
        fill(source_, sourceEntry);
        fill(target_, targetEntry);
    }

    FailingTocItem source_;
    FailingTocItem target_;
};

/// What stopped a copy, and what the target then holds.
struct Stop {
    const char* operation;
    int nth;
    Entry left;
};

void PrintTo(const Stop& stop, std::ostream* out)
{
    *out << stop.operation << ' ' << stop.nth;
}

TEST_F(TocItemCopy, ReplacesEverythingAndEndsWithSuccess)
{
    EXPECT_CODE(target_, ZelData_Ok, target_.copyFrom(source_));
    EXPECT_EQ(sourceEntry, contentsOf(target_));
    EXPECT_EQ(sourceEntry, contentsOf(source_));
}

TEST_F(TocItemCopy, OfAnEmptyEntryEmptiesTheTarget)
{
    EXPECT_CODE(target_, ZelData_Ok, target_.copyFrom(ZelDataTocItem()));
    EXPECT_EQ(Entry(), contentsOf(target_));
}

TEST_F(TocItemCopy, ASuccessReplacesTheSourcesLastError)
{
    source_.setLastError(ZelData_NotFound);
    EXPECT_CODE(target_, ZelData_Ok, target_.copyFrom(source_));
    EXPECT_EQ(ZelData_Ok, source_.getLastError());
}

TEST_F(TocItemCopy, OntoItselfIsAnErrorThatCallsAndChangesNothing)
{
    const Calls before = source_.calls();
    EXPECT_CODE(source_, ZelData_InternalError, source_.copyFrom(source_));
    EXPECT_EQ(before, source_.calls());
    EXPECT_EQ(sourceEntry, contentsOf(source_));
}

TEST_F(TocItemCopy, WorksThroughTheOperationsInTheirOrder)
{
    FailingTocItem target;
    const std::size_t before = source_.calls().size();
    EXPECT_CODE(target, ZelData_Ok, target.copyFrom(source_));
    const Calls read(source_.calls().begin() + static_cast<std::ptrdiff_t>(before),
                     source_.calls().end());
    EXPECT_EQ((Calls{"getLanguageIDs", "getTextForLanguage", "getTextForLanguage", "getStart",
                     "getImageFile", "getImageIndex", "getImageOffset"}),
              read);
    EXPECT_EQ((Calls{"clearText", "setTextForLanguage", "setTextForLanguage", "setStart",
                     "setImageFile", "setImageIndex", "setImageOffset"}),
              target.calls());
}

class SourceStops : public TocItemCopy, public testing::WithParamInterface<Stop> {};

TEST_P(SourceStops, TheSourcesLastErrorIsTakenOverAndTheCopiedPartStays)
{
    source_.failAt(GetParam().operation, ZelData_InvalidItem, ZelData_NotFound, GetParam().nth);
    EXPECT_CODE(target_, ZelData_NotFound, target_.copyFrom(source_));
    EXPECT_EQ(GetParam().left, contentsOf(target_));
}

TEST_P(SourceStops, AWarningStopsAsWell)
{
    source_.failAt(GetParam().operation, ZelData_WarnTiming, ZelData_WarnNoChange, GetParam().nth);
    EXPECT_CODE(target_, ZelData_WarnNoChange, target_.copyFrom(source_));
    EXPECT_EQ(GetParam().left, contentsOf(target_));
}

TEST_P(SourceStops, ALastErrorOfZeroIsTakenOverToo)
{
    source_.failAt(GetParam().operation, ZelData_InvalidItem, ZelData_Ok, GetParam().nth);
    EXPECT_CODE(target_, ZelData_Ok, target_.copyFrom(source_));
    EXPECT_EQ(GetParam().left, contentsOf(target_));
}

TEST_P(SourceStops, ExhaustedMemoryBecomesACode)
{
    source_.throwAt(GetParam().operation, std::bad_alloc(), GetParam().nth);
    EXPECT_CODE(target_, ZelData_OutOfMemory, target_.copyFrom(source_));
    EXPECT_EQ(GetParam().left, contentsOf(target_));
}

TEST_P(SourceStops, AnyOtherExceptionBecomesAnInternalError)
{
    source_.throwAt(GetParam().operation, std::runtime_error("foreign"), GetParam().nth);
    EXPECT_CODE(target_, ZelData_InternalError, target_.copyFrom(source_));
    EXPECT_EQ(GetParam().left, contentsOf(target_));
}

INSTANTIATE_TEST_SUITE_P(
    TocItemCopy, SourceStops,
    testing::Values(Stop{"getLanguageIDs", 1, targetEntry},
                    Stop{"getTextForLanguage", 1, {1, {}, "t.png", 1, 2}},
                    Stop{"getTextForLanguage", 2, {1, {{"de", "Anfang"}}, "t.png", 1, 2}},
                    Stop{"getStart", 1, {1, sourceEntry.titles, "t.png", 1, 2}},
                    Stop{"getImageFile", 1, {7, sourceEntry.titles, "t.png", 1, 2}},
                    Stop{"getImageIndex", 1, {7, sourceEntry.titles, "s.png", 1, 2}},
                    Stop{"getImageOffset", 1, {7, sourceEntry.titles, "s.png", 3, 2}}));

class TargetStops : public testing::TestWithParam<Stop> {
protected:
    TargetStops() { fill(source_, sourceEntry); }

    ZelDataTocItem source_;
    FailingTocItem target_;
};

TEST_P(TargetStops, TheTargetsOwnLastErrorIsReturnedAndStored)
{
    target_.failAt(GetParam().operation, ZelData_InvalidItem, ZelData_NotFound, GetParam().nth);
    EXPECT_CODE(target_, ZelData_NotFound, target_.copyFrom(source_));
    EXPECT_EQ(ZelData_NotFound, target_.storedError());
    EXPECT_EQ(GetParam().left, contentsOf(target_));
}

TEST_P(TargetStops, AWarningStopsAsWell)
{
    target_.failAt(GetParam().operation, ZelData_WarnTiming, ZelData_WarnNoChange, GetParam().nth);
    EXPECT_CODE(target_, ZelData_WarnNoChange, target_.copyFrom(source_));
    EXPECT_EQ(GetParam().left, contentsOf(target_));
}

TEST_P(TargetStops, AnExceptionBecomesACode)
{
    target_.throwAt(GetParam().operation, std::bad_alloc(), GetParam().nth);
    EXPECT_CODE(target_, ZelData_OutOfMemory, target_.copyFrom(source_));
    EXPECT_EQ(GetParam().left, contentsOf(target_));
}

INSTANTIATE_TEST_SUITE_P(
    TocItemCopy, TargetStops,
    testing::Values(Stop{"clearText", 1, {}}, Stop{"setTextForLanguage", 1, {}},
                    Stop{"setTextForLanguage", 2, {0, {{"de", "Anfang"}}}},
                    Stop{"setStart", 1, {0, sourceEntry.titles}},
                    Stop{"setImageFile", 1, {7, sourceEntry.titles}},
                    Stop{"setImageIndex", 1, {7, sourceEntry.titles, "s.png"}},
                    Stop{"setImageOffset", 1, {7, sourceEntry.titles, "s.png", 3}}));

/// A foreign entry that lists a language twice.
class RepeatingItem : public ZelDataTocItem {
public:
    ZelDataResult_tags getLanguageIDs(std::vector<std::string>& ids) const override
    {
        ids = {"de", "de"};
        return ZelData_Ok;
    }
};

TEST(TocItemCopyOfForeign, ALanguageListedTwiceStopsWithTheWarningOfTheSecond)
{
    RepeatingItem source;
    fill(source, sourceEntry);
    ZelDataTocItem target;
    EXPECT_CODE(target, ZelData_WarnAlreadyExists, target.copyFrom(source));
    EXPECT_EQ((Entry{0, {{"de", "Anfang"}}}), contentsOf(target));
}

/// A foreign entry that starts before the video.
class EarlyItem : public ZelDataTocItem {
public:
    ZelDataResult_tags getStart(long long& start) const override
    {
        start = -1;
        return ZelData_Ok;
    }
};

TEST(TocItemCopyOfForeign, AForeignValueIsCheckedLikeAnyOther)
{
    EarlyItem source;
    fill(source, sourceEntry);
    ZelDataTocItem target;
    EXPECT_CODE(target, ZelData_InvalidArgument, target.copyFrom(source));
    EXPECT_EQ((Entry{0, sourceEntry.titles}), contentsOf(target));
}

} // namespace
} // namespace ZelInterchangeData
