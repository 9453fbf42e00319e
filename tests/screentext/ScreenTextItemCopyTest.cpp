/// @file
/// Copying screen-text items between any two implementations.

#include "screentext/Items.h"
#include "support/fakes/FailingScreenText.h"

#include <gtest/gtest.h>

#include <limits>
#include <new>
#include <stdexcept>

namespace ZelInterchangeData {
namespace {

using Calls = std::vector<std::string>;

const Shown sourceItem{7, 8, "Click", "s.png", 3, 4, 5};
const Shown targetItem{1, 2, "old", "t.png", 1, 2, 6};

class ScreenTextItemCopy : public testing::Test {
protected:
    ScreenTextItemCopy()
    {
        fill(source_, sourceItem);
        fill(target_, targetItem);
    }

    FailingScreenTextItem source_;
    ZelDataScreenTextItem target_;
};

/// What stopped a copy, and what the target then holds.
struct Stop {
    const char* operation;
    Shown left;
};

void PrintTo(const Stop& stop, std::ostream* out)
{
    *out << stop.operation;
}

TEST_F(ScreenTextItemCopy, ReplacesEverythingAndEndsWithSuccess)
{
    EXPECT_CODE(target_, ZelData_Ok, target_.copyFrom(source_));
    EXPECT_EQ(sourceItem, contentsOf(target_));
    EXPECT_EQ(sourceItem, contentsOf(source_));
}

TEST_F(ScreenTextItemCopy, OfANewItemEmptiesTheTarget)
{
    EXPECT_CODE(target_, ZelData_Ok, target_.copyFrom(ZelDataScreenTextItem()));
    EXPECT_EQ(Shown(), contentsOf(target_));
}

TEST_F(ScreenTextItemCopy, TakesTheDurationSoThatAnEndThatWrapsIsNoHindrance)
{
    const Shown wrapping{std::numeric_limits<long long>::max(), 1};
    ZelDataScreenTextItem source;
    fill(source, wrapping);
    EXPECT_CODE(target_, ZelData_Ok, target_.copyFrom(source));
    EXPECT_EQ(wrapping, contentsOf(target_));
}

TEST_F(ScreenTextItemCopy, OntoItselfIsAnErrorThatCallsAndChangesNothing)
{
    const Calls before = source_.calls();
    EXPECT_CODE(source_, ZelData_InternalError, source_.copyFrom(source_));
    EXPECT_EQ(before, source_.calls());
    EXPECT_EQ(sourceItem, contentsOf(source_));
}

TEST_F(ScreenTextItemCopy, WorksThroughTheOperationsInTheirOrder)
{
    FailingScreenTextItem target;
    const auto before = static_cast<std::ptrdiff_t>(source_.calls().size());
    EXPECT_CODE(target, ZelData_Ok, target.copyFrom(source_));
    EXPECT_EQ((Calls{"getText", "getStart", "getDuration", "getImageFile", "getImageIndex",
                     "getImageOffset", "getGroupId"}),
              Calls(source_.calls().begin() + before, source_.calls().end()));
    EXPECT_EQ((Calls{"clearText", "setText", "setStart", "setDuration", "setImageFile",
                     "setImageIndex", "setImageOffset", "setGroupId"}),
              target.calls());
}

class SourceItemStops : public ScreenTextItemCopy, public testing::WithParamInterface<Stop> {};

TEST_P(SourceItemStops, TheSourcesLastErrorIsTakenOverAndTheCopiedPartStays)
{
    source_.failAt(GetParam().operation, ZelData_InvalidItem, ZelData_NotFound);
    EXPECT_CODE(target_, ZelData_NotFound, target_.copyFrom(source_));
    EXPECT_EQ(GetParam().left, contentsOf(target_));
}

TEST_P(SourceItemStops, AWarningStopsAsWell)
{
    source_.failAt(GetParam().operation, ZelData_WarnTiming, ZelData_WarnNoChange);
    EXPECT_CODE(target_, ZelData_WarnNoChange, target_.copyFrom(source_));
    EXPECT_EQ(GetParam().left, contentsOf(target_));
}

TEST_P(SourceItemStops, ALastErrorOfZeroIsTakenOverToo)
{
    source_.failAt(GetParam().operation, ZelData_InvalidItem, ZelData_Ok);
    EXPECT_CODE(target_, ZelData_Ok, target_.copyFrom(source_));
    EXPECT_EQ(GetParam().left, contentsOf(target_));
}

TEST_P(SourceItemStops, ExhaustedMemoryBecomesACode)
{
    source_.throwAt(GetParam().operation, std::bad_alloc());
    EXPECT_CODE(target_, ZelData_OutOfMemory, target_.copyFrom(source_));
    EXPECT_EQ(GetParam().left, contentsOf(target_));
}

TEST_P(SourceItemStops, AnyOtherExceptionBecomesAnInternalError)
{
    source_.throwAt(GetParam().operation, std::runtime_error("foreign"));
    EXPECT_CODE(target_, ZelData_InternalError, target_.copyFrom(source_));
    EXPECT_EQ(GetParam().left, contentsOf(target_));
}

INSTANTIATE_TEST_SUITE_P(ScreenTextItemCopy, SourceItemStops,
                         testing::Values(Stop{"getText", {1, 2, "", "t.png", 1, 2, 6}},
                                         Stop{"getStart", {1, 2, "Click", "t.png", 1, 2, 6}},
                                         Stop{"getDuration", {7, 2, "Click", "t.png", 1, 2, 6}},
                                         Stop{"getImageFile", {7, 8, "Click", "t.png", 1, 2, 6}},
                                         Stop{"getImageIndex", {7, 8, "Click", "s.png", 1, 2, 6}},
                                         Stop{"getImageOffset", {7, 8, "Click", "s.png", 3, 2, 6}},
                                         Stop{"getGroupId", {7, 8, "Click", "s.png", 3, 4, 6}}));

class TargetItemStops : public testing::TestWithParam<Stop> {
protected:
    TargetItemStops() { fill(source_, sourceItem); }

    ZelDataScreenTextItem source_;
    FailingScreenTextItem target_;
};

TEST_P(TargetItemStops, TheTargetsOwnLastErrorIsReturnedAndStored)
{
    target_.failAt(GetParam().operation, ZelData_InvalidItem, ZelData_NotFound);
    EXPECT_CODE(target_, ZelData_NotFound, target_.copyFrom(source_));
    EXPECT_EQ(ZelData_NotFound, target_.storedError());
    EXPECT_EQ(GetParam().left, contentsOf(target_));
}

TEST_P(TargetItemStops, AWarningStopsAsWell)
{
    target_.failAt(GetParam().operation, ZelData_WarnTiming, ZelData_WarnNoChange);
    EXPECT_CODE(target_, ZelData_WarnNoChange, target_.copyFrom(source_));
    EXPECT_EQ(GetParam().left, contentsOf(target_));
}

TEST_P(TargetItemStops, AnExceptionBecomesACode)
{
    target_.throwAt(GetParam().operation, std::bad_alloc());
    EXPECT_CODE(target_, ZelData_OutOfMemory, target_.copyFrom(source_));
    EXPECT_EQ(GetParam().left, contentsOf(target_));
}

INSTANTIATE_TEST_SUITE_P(ScreenTextItemCopy, TargetItemStops,
                         testing::Values(Stop{"clearText", {}}, Stop{"setText", {}},
                                         Stop{"setStart", {0, 0, "Click"}},
                                         Stop{"setDuration", {7, 0, "Click"}},
                                         Stop{"setImageFile", {7, 8, "Click"}},
                                         Stop{"setImageIndex", {7, 8, "Click", "s.png"}},
                                         Stop{"setImageOffset", {7, 8, "Click", "s.png", 3}},
                                         Stop{"setGroupId", {7, 8, "Click", "s.png", 3, 4}}));

/// A foreign item that holds no UTF-8.
class MalformedItem : public ZelDataScreenTextItem {
public:
    ZelDataResult_tags getText(std::string& text) const override
    {
        text = "\xFF";
        return ZelData_Ok;
    }
};

TEST(ScreenTextItemCopyOfForeign, AForeignTextIsCheckedLikeAnyOther)
{
    ZelDataScreenTextItem target;
    fill(target, targetItem);
    EXPECT_CODE(target, ZelData_InvalidItem, target.copyFrom(MalformedItem()));
    EXPECT_EQ((Shown{1, 2, "", "t.png", 1, 2, 6}), contentsOf(target));
}

} // namespace
} // namespace ZelInterchangeData
