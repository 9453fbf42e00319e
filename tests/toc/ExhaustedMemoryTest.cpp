/// @file
/// Entries, tables and their formatter when memory runs out, at each allocation in turn.

#include "support/MemorySweep.h"
#include "toc/Entries.h"
#include "toc/ZelDataToc.h"
#include "toc/ZelDataTocItem.h"

#include <gtest/gtest.h>

namespace ZelInterchangeData {
namespace {

/// An entry of a caller: a copy of it takes every step.
class CallersItem : public ZelDataTocItem {};

/// A table of a caller: a copy of it takes every step.
class CallersToc : public ZelDataToc {};

/// Too long for any string to hold it without an allocation.
const std::string longText(60, 'x');
const std::string longId = "en-" + longText;

const Entry heldEntry{7, {{"de", "Anfang"}}, "i.png", 3, 4};
const Entry longEntry{8, {{"de", longText}, {longId, longText}}, longText, 1, 2};
const std::vector<Entry> heldEntries{{9, {{longId, longText}}}, {3, {{"de", longText}}}};

std::unique_ptr<i_ZelDataTocItem> heldItem()
{
    return itemOf(heldEntry);
}

std::unique_ptr<i_ZelDataToc> heldToc()
{
    return tocOf(heldEntries);
}

void isUnchanged(const i_ZelDataTocItem& item)
{
    EXPECT_EQ(heldEntry, contentsOf(item));
}

void isUnchanged(const i_ZelDataToc& toc)
{
    EXPECT_EQ(heldEntries, entriesOf(toc));
}

constexpr auto itemIsUnchanged = [](const i_ZelDataTocItem& item) { isUnchanged(item); };
constexpr auto tocIsUnchanged = [](const i_ZelDataToc& toc) { isUnchanged(toc); };

TEST(TocItemWithoutMemory, KeepsWhatItHeldWhenItCannotStore)
{
    sweepMemory(
        heldItem, ZelData_Ok,
        [](i_ZelDataTocItem& item) { return item.setTextForLanguage(longText, longId); },
        itemIsUnchanged);
    sweepMemory(
        heldItem, ZelData_WarnAlreadyExists,
        [id = std::string("de")](i_ZelDataTocItem& item) {
            return item.setTextForLanguage(longText, id);
        },
        itemIsUnchanged);
    sweepMemory(
        heldItem, ZelData_Ok, [](i_ZelDataTocItem& item) { return item.setImageFile(longText); },
        itemIsUnchanged);
}

TEST(TocItemWithoutMemory, LeavesATextAloneThatItCannotReplace)
{
    const auto create = [] { return itemOf(longEntry); };
    std::string out = "kept";
    const auto isKept = [&out](const i_ZelDataTocItem&) { EXPECT_EQ("kept", out); };
    sweepMemory(
        create, ZelData_Ok,
        [&out](i_ZelDataTocItem& item) { return item.getTextForLanguage(out, longId); }, isKept);
    sweepMemory(
        create, ZelData_Ok,
        [](i_ZelDataTocItem& item) {
            std::string name;
            return item.getImageFile(name);
        },
        [](const i_ZelDataTocItem& item) { EXPECT_EQ(longEntry, contentsOf(item)); });
}

TEST(TocItemWithoutMemory, EndsACopy)
{
    const auto source = std::make_unique<CallersItem>();
    ASSERT_EQ(ZelData_Ok, source->copyFrom(*itemOf(longEntry)));
    sweepMemory(
        heldItem, ZelData_Ok, [&](i_ZelDataTocItem& item) { return item.copyFrom(*source); },
        [&](const i_ZelDataTocItem& item) {
            EXPECT_EQ(4U, contentsOf(item).offset); // copied last, so not at all
            EXPECT_EQ(longEntry, contentsOf(*source));
        });
}

TEST(TocItemWithoutMemory, TakesACopyOfAnotherOfOurOwn)
{
    const auto source = itemOf(longEntry);
    const auto item = heldItem();
    ZelDataResult_tags code = ZelData_NoData;
    EXPECT_FALSE(runsOutOfMemory(0, [&] { code = item->copyFrom(*source); }));
    EXPECT_EQ(ZelData_Ok, code);
    EXPECT_EQ(longEntry, contentsOf(*item));
}

TEST(TocWithoutMemory, AddsTheEntryWholeOrNotAtAll)
{
    const auto added = itemOf(longEntry);
    sweepMemory(
        heldToc, ZelData_Ok, [&](i_ZelDataToc& toc) { return toc.addTocItem(*added); },
        tocIsUnchanged);
}

TEST(TocWithoutMemory, HandsOutNothing)
{
    sweepMemory(
        heldToc, ZelData_Ok,
        [](i_ZelDataToc& toc) {
            i_ZelDataTocItem* out = nullptr;
            const auto code = toc.getTocItemAt(&out, 0);
            const std::unique_ptr<i_ZelDataTocItem> owned(out);
            EXPECT_EQ(failed(code), owned == nullptr);
            return code;
        },
        tocIsUnchanged);
    sweepMemory(
        heldToc, ZelData_Ok,
        [](i_ZelDataToc& toc) {
            i_ZelDataTocItem* out = nullptr;
            const auto code = toc.createTocItem(&out);
            const std::unique_ptr<i_ZelDataTocItem> owned(out);
            EXPECT_EQ(failed(code), owned == nullptr);
            return code;
        },
        tocIsUnchanged);
}

TEST(TocWithoutMemory, HandsOutAllEntriesOrNone)
{
    sweepMemory(
        heldToc, ZelData_Ok,
        [](i_ZelDataToc& toc) {
            std::vector<i_ZelDataTocItem*> out;
            const auto code = toc.getTocItems(out);
            EXPECT_EQ(failed(code) ? 0U : 2U, out.size());
            for (i_ZelDataTocItem* item : out)
                delete item;
            return code;
        },
        tocIsUnchanged);
}

TEST(TocWithoutMemory, IsNotTakenForATableThatLacksTexts)
{
    const auto create = [] { return tocOf({{3, {{longId, longText}}}}); };
    sweepMemory(
        create, ZelData_Ok, [](i_ZelDataToc& toc) { return toc.isValid(true); },
        [](const i_ZelDataToc& toc) { EXPECT_EQ(1U, entriesOf(toc).size()); });
    sweepMemory(
        create, ZelData_Ok, [](i_ZelDataToc& toc) { return toc.makeTocConsistent(); },
        [](const i_ZelDataToc& toc) {
            EXPECT_EQ((std::vector<Entry>{{3, {{longId, longText}}}}), entriesOf(toc));
        });
}

TEST(TocWithoutMemory, KeepsEveryEntryWhenItCannotBeMadeConsistent)
{
    sweepMemory(
        heldToc, ZelData_Ok, [](i_ZelDataToc& toc) { return toc.makeTocConsistent(); },
        [](const i_ZelDataToc& toc) {
            ASSERT_EQ(2U, entriesOf(toc).size());
            for (const Entry& entry : entriesOf(toc))
                EXPECT_EQ(longText, entry.titles.at(entry.start == 9 ? longId : "de"));
        });
}

TEST(TocWithoutMemory, EndsACopyAfterSomeOfTheEntries)
{
    const auto source = std::make_unique<CallersToc>();
    ASSERT_EQ(ZelData_Ok, source->copyFrom(*tocOf(heldEntries)));
    sweepMemory(
        [] {
            return tocOf({{1, {{"it", "Uno"}}}});
        },
        ZelData_Ok, [&](i_ZelDataToc& toc) { return toc.copyFrom(*source); },
        [](const i_ZelDataToc& toc) {
            const auto entries = entriesOf(toc);
            ASSERT_LT(entries.size(), 2U);
            if (!entries.empty()) {
                EXPECT_EQ(heldEntries.front(), entries.front());
            }
        });
}

TEST(TocWithoutMemory, IsCopiedWithItsLanguagesAfterAFailedCopy)
{
    const auto source = heldToc();
    sweepMemory(
        [] {
            return tocOf({{1, {{"it", "Uno"}}}});
        },
        ZelData_Ok, [&](i_ZelDataToc& toc) { return toc.copyFrom(*source); },
        [](const i_ZelDataToc& toc) {
            const auto copy = make(ZelDataUtilities::createTocData);
            EXPECT_EQ(ZelData_Ok, copy->copyFrom(toc));
            EXPECT_EQ(entriesOf(toc), entriesOf(*copy));
            // Each entry has a language of its own.
            EXPECT_EQ(entriesOf(toc).size(), languagesOf(*copy).size());
        });
}

TEST(TocFormatterWithoutMemory, LeavesTheTextAloneAndWritesItWholeLater)
{
    const auto toc = heldToc();
    std::string out;
    const auto create = [&] {
        auto formatter = make(ZelDataUtilities::createTocFormatter);
        EXPECT_EQ(ZelData_Ok, formatter->setToc(*toc));
        return formatter;
    };
    sweepMemory(
        create, ZelData_Ok,
        [&](i_ZelDataTocFormatter& formatter) {
            return formatter.writeString(out, ZelDataFormat_Xmp, false);
        },
        [&](const i_ZelDataTocFormatter& formatter) {
            EXPECT_EQ("", out);
            std::string whole;
            EXPECT_CODE(formatter, ZelData_Ok,
                        formatter.writeString(whole, ZelDataFormat_Xmp, false));
            EXPECT_NE(std::string::npos, whole.find(longText));
        });
}

TEST(TocFormatterWithoutMemory, CannotHoldATable)
{
    const auto toc = heldToc();
    sweepMemory([] { return make(ZelDataUtilities::createTocFormatter); }, ZelData_Ok,
                [&](i_ZelDataTocFormatter& formatter) { return formatter.setToc(*toc); },
                [&](i_ZelDataTocFormatter& formatter) {
                    EXPECT_CODE(formatter, ZelData_Ok, formatter.setToc(*toc));
                });
}

} // namespace
} // namespace ZelInterchangeData
