/// @file
/// Screen text and its formatter when memory runs out, at each allocation in turn.

#include "screentext/Items.h"
#include "screentext/ZelDataScreenText.h"
#include "screentext/ZelDataScreenTextItem.h"
#include "support/MemorySweep.h"

#include <gtest/gtest.h>

namespace ZelInterchangeData {
namespace {

/// An item of a caller: a copy of it takes every step.
class CallersItem : public ZelDataScreenTextItem {};

/// A collection of a caller: a copy of it takes every step.
class CallersTexts : public ZelDataScreenText {};

/// Too long for any string to hold it without an allocation.
const std::string longText(60, 'x');

const Shown heldItem{7, 8, "Click", "i.png", 3, 4, 5};
const Shown longItem{1, 2, longText, longText, 6, 6, 6};
const std::vector<Shown> heldItems{{9, 1, longText}, {3, 1, longText, longText}};

std::unique_ptr<i_ZelDataScreenText> heldTexts()
{
    return screenTextOf(heldItems);
}

constexpr auto itemIsUnchanged = [](const i_ZelDataScreenTextItem& item) {
    EXPECT_EQ(heldItem, contentsOf(item));
};
constexpr auto textsAreUnchanged = [](const i_ZelDataScreenText& texts) {
    EXPECT_EQ(heldItems, itemsOf(texts));
};

TEST(ScreenTextItemWithoutMemory, KeepsWhatItHeldWhenItCannotStore)
{
    const auto create = [] { return itemOf(heldItem); };
    sweepMemory(
        create, ZelData_Ok, [](i_ZelDataScreenTextItem& item) { return item.setText(longText); },
        itemIsUnchanged);
    sweepMemory(
        create, ZelData_Ok,
        [](i_ZelDataScreenTextItem& item) { return item.setImageFile(longText); }, itemIsUnchanged);
}

TEST(ScreenTextItemWithoutMemory, LeavesATextAloneThatItCannotReplace)
{
    std::string out = "kept";
    const auto isKept = [&out](const i_ZelDataScreenTextItem&) { EXPECT_EQ("kept", out); };
    sweepMemory([] { return itemOf(longItem); }, ZelData_Ok,
                [&out](i_ZelDataScreenTextItem& item) { return item.getText(out); }, isKept);
    std::string image = "kept";
    sweepMemory([] { return itemOf(longItem); }, ZelData_Ok,
                [&](i_ZelDataScreenTextItem& item) { return item.getImageFile(image); },
                [&](const i_ZelDataScreenTextItem&) { EXPECT_EQ("kept", image); });
}

TEST(ScreenTextItemWithoutMemory, EndsACopy)
{
    const auto source = std::make_unique<CallersItem>();
    ASSERT_EQ(ZelData_Ok, source->copyFrom(*itemOf(longItem)));
    sweepMemory([] { return itemOf(heldItem); }, ZelData_Ok,
                [&](i_ZelDataScreenTextItem& item) { return item.copyFrom(*source); },
                [&](const i_ZelDataScreenTextItem& item) {
                    EXPECT_EQ(5U, contentsOf(item).group); // copied last, so not at all
                    EXPECT_EQ(longItem, contentsOf(*source));
                });
}

TEST(ScreenTextWithoutMemory, TakesACopyOfAnotherOfOurOwn)
{
    const auto source = heldTexts();
    const auto texts = screenTextOf({});
    ZelDataResult_tags code = ZelData_NoData;
    EXPECT_FALSE(runsOutOfMemory(0, [&] { code = texts->copyFrom(*source); }));
    EXPECT_EQ(ZelData_Ok, code);
    EXPECT_EQ(heldItems, itemsOf(*texts));
}

TEST(ScreenTextWithoutMemory, AddsTheItemWholeOrNotAtAll)
{
    const auto added = itemOf(longItem);
    sweepMemory(
        heldTexts, ZelData_Ok,
        [&](i_ZelDataScreenText& texts) { return texts.addScreenTextItem(*added); },
        textsAreUnchanged);
}

TEST(ScreenTextWithoutMemory, HandsOutTheItemOrNothing)
{
    sweepMemory(
        heldTexts, ZelData_Ok,
        [](i_ZelDataScreenText& texts) {
            i_ZelDataScreenTextItem* out = nullptr;
            const auto code = texts.getScreenTextItemAt(&out, 1);
            const std::unique_ptr<i_ZelDataScreenTextItem> owned(out);
            EXPECT_EQ(failed(code), owned == nullptr);
            return code;
        },
        textsAreUnchanged);
}

TEST(ScreenTextWithoutMemory, HandsOutAllItemsOrNone)
{
    sweepMemory(
        heldTexts, ZelData_Ok,
        [](i_ZelDataScreenText& texts) {
            std::vector<i_ZelDataScreenTextItem*> out;
            const auto code = texts.getScreenTextItems(out);
            EXPECT_EQ(failed(code) ? 0U : 2U, out.size());
            for (i_ZelDataScreenTextItem* item : out)
                delete item;
            return code;
        },
        textsAreUnchanged);
}

TEST(ScreenTextWithoutMemory, EndsACopyAfterSomeOfTheItems)
{
    const auto source = std::make_unique<CallersTexts>();
    ASSERT_EQ(ZelData_Ok, source->copyFrom(*heldTexts()));
    sweepMemory(
        [] {
            return screenTextOf({{1, 1, "old"}});
        },
        ZelData_Ok, [&](i_ZelDataScreenText& texts) { return texts.copyFrom(*source); },
        [](const i_ZelDataScreenText& texts) {
            const auto items = itemsOf(texts);
            ASSERT_LT(items.size(), 2U);
            if (!items.empty()) {
                EXPECT_EQ(heldItems.front(), items.front());
            }
        });
}

TEST(ScreenTextFormatterWithoutMemory, LeavesTheTextAloneAndWritesItWholeLater)
{
    const auto texts = heldTexts();
    std::string out;
    const auto create = [&] {
        auto formatter = make(ZelDataUtilities::createScreenTextFormatter);
        EXPECT_EQ(ZelData_Ok, formatter->setScreenText(*texts));
        return formatter;
    };
    sweepMemory(
        create, ZelData_Ok,
        [&](i_ZelDataScreenTextFormatter& formatter) {
            return formatter.writeString(out, ZelDataFormat_Xmp, false);
        },
        [&](const i_ZelDataScreenTextFormatter& formatter) {
            EXPECT_EQ("", out);
            std::string whole;
            EXPECT_CODE(formatter, ZelData_Ok,
                        formatter.writeString(whole, ZelDataFormat_Xmp, false));
            EXPECT_NE(std::string::npos, whole.find(longText));
        });
}

TEST(ScreenTextFormatterWithoutMemory, CannotHoldACollection)
{
    const auto texts = heldTexts();
    sweepMemory(
        [] { return make(ZelDataUtilities::createScreenTextFormatter); }, ZelData_Ok,
        [&](i_ZelDataScreenTextFormatter& formatter) { return formatter.setScreenText(*texts); },
        [&](i_ZelDataScreenTextFormatter& formatter) {
            EXPECT_CODE(formatter, ZelData_Ok, formatter.setScreenText(*texts));
        });
}

} // namespace
} // namespace ZelInterchangeData
