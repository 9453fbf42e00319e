/// @file
/// Captions when memory runs out, at each allocation in turn.

#include "captions/Captions.h"
#include "captions/ZelDataCaptions.h"
#include "support/FailingAllocation.h"

namespace ZelInterchangeData {
namespace {

constexpr std::size_t most = 400; // far more allocations than any operation here needs

const std::string longText(100, 'x');
const Caption full = {1000, 2000, {{"de", longText}, {"en", longText}}, 0x22};

TEST(CaptionItemOutOfMemory, SettingATextLetsTheExceptionThroughAndChangesNothing)
{
    const auto item = itemOf(full);
    const std::string language = "fr-a-long-enough-language-id-to-be-allocated";
    std::size_t granted = 0;
    while (granted < most && runsOutOfMemory(granted, [&] {
               static_cast<void>(item->setTextForLanguage(longText, language));
           })) {
        EXPECT_EQ(full, contentsOf(*item));
        ++granted;
    }
    EXPECT_LT(0U, granted);
    EXPECT_EQ(longText, contentsOf(*item).texts[language]);
}

TEST(CaptionItemOutOfMemory, ReplacingATextLetsTheExceptionThroughAndChangesNothing)
{
    const auto item = itemOf(full);
    const std::string longerText(1000, 'y');
    std::size_t granted = 0;
    while (granted < most && runsOutOfMemory(granted, [&] {
               static_cast<void>(item->setTextForLanguage(longerText, "en"));
           })) {
        EXPECT_EQ(full, contentsOf(*item));
        ++granted;
    }
    EXPECT_LT(0U, granted);
    EXPECT_EQ(longerText, contentsOf(*item).texts["en"]);
}

/// Calls @p operation with more and more memory until it succeeds, and @p check after each failure.
template <class Operation, class Check>
void exhaust(Operation&& operation, Check&& check)
{
    std::size_t granted = 0;
    for (; granted < most; ++granted) {
        ZelDataResult_tags code = ZelData_Ok;
        EXPECT_FALSE(runsOutOfMemory(granted, [&] { code = operation(); }));
        if (code == ZelData_Ok) break;
        EXPECT_EQ(ZelData_OutOfMemory, code);
        check();
    }
    EXPECT_LT(0U, granted);
    EXPECT_LT(granted, most);
}

TEST(CaptionsOutOfMemory, AnItemIsAddedWholeOrNotAtAll)
{
    const auto captions = make(ZelDataUtilities::createCaptionData);
    const auto item = itemOf(full);
    exhaust([&] { return captions->addCaptionItem(*item); },
            [&] {
                EXPECT_EQ(ZelData_OutOfMemory, captions->getLastError());
                EXPECT_TRUE(itemsOf(*captions).empty());
            });
    EXPECT_EQ(std::vector<Caption>{full}, itemsOf(*captions));
}

TEST(CaptionsOutOfMemory, HandingOutGivesAllItemsOrNone)
{
    const auto captions = captionsOf({full, full});
    std::vector<i_ZelDataCaptionItem*> items;
    exhaust([&] { return captions->getCaptionItems(items); },
            [&] {
                EXPECT_EQ(ZelData_OutOfMemory, captions->getLastError());
                EXPECT_TRUE(items.empty());
            });
    EXPECT_EQ(2U, items.size());
    for (i_ZelDataCaptionItem* item : items)
        delete item;
}

TEST(CaptionsOutOfMemory, HandingOutOneLeavesThePointerNull)
{
    const auto captions = captionsOf({full});
    i_ZelDataCaptionItem* item = nullptr;
    exhaust([&] { return captions->getCaptionItemAt(&item, 0); },
            [&] {
                EXPECT_EQ(ZelData_OutOfMemory, captions->getLastError());
                EXPECT_EQ(nullptr, item);
            });
    const std::unique_ptr<i_ZelDataCaptionItem> owned(item);
    EXPECT_EQ(full, contentsOf(*item));
}

/// Captions of a caller: a copy of them takes every step.
class CallersCaptions : public ZelDataCaptions {};

TEST(CaptionsOutOfMemory, ACopyIsRepeatable)
{
    const auto source = std::make_unique<CallersCaptions>();
    ASSERT_EQ(ZelData_Ok, source->copyFrom(*captionsOf({full, full})));
    const auto target = captionsOf({full});
    exhaust([&] { return target->copyFrom(*source); },
            [&] { EXPECT_EQ(ZelData_OutOfMemory, target->getLastError()); });
    EXPECT_EQ((std::vector<Caption>{full, full}), itemsOf(*target));
}

TEST(CaptionsOutOfMemory, WhatAFailedCopyLeftIsCopiedWithItsLanguages)
{
    const auto source = captionsOf({full});
    const auto target = captionsOf({{5, 6, {{"fr", longText}}}});
    exhaust([&] { return target->copyFrom(*source); },
            [&] {
                const auto copy = make(ZelDataUtilities::createCaptionData);
                EXPECT_EQ(ZelData_Ok, copy->copyFrom(*target));
                EXPECT_EQ(itemsOf(*target), itemsOf(*copy));
                EXPECT_EQ(itemsOf(*target).size() * 2, languagesOf(*copy).size());
            });
}

TEST(CaptionsOutOfMemory, AMissingTextIsNotFilledOverAnExistingOne)
{
    const auto captions = captionsOf({full, {0, 1, {{"fr", longText}}}});
    exhaust([&] { return captions->makeCaptionsConsistent(); },
            [&] { EXPECT_EQ(ZelData_OutOfMemory, captions->getLastError()); });
    EXPECT_EQ((std::vector<Caption>{
                  {0, 1, {{"de", ""}, {"en", ""}, {"fr", longText}}},
                  {1000, 2000, {{"de", longText}, {"en", longText}, {"fr", ""}}, 0x22}}),
              itemsOf(*captions));
}

TEST(CaptionFormatterOutOfMemory, WritingLeavesTheTextAlone)
{
    const auto captions = captionsOf({full, full});
    const auto formatter = make(ZelDataUtilities::createCaptionFormatter);
    exhaust([&] { return formatter->setCaptions(*captions); },
            [&] { EXPECT_EQ(ZelData_OutOfMemory, formatter->getLastError()); });
    std::string out = "as it was";
    exhaust([&] { return formatter->writeString(out, ZelDataFormat_Xmp, false); },
            [&] {
                EXPECT_EQ(ZelData_OutOfMemory, formatter->getLastError());
                EXPECT_EQ("as it was", out);
            });
    EXPECT_EQ(0U, out.find("<rdf:li><rdf:Description "));
}

} // namespace
} // namespace ZelInterchangeData
