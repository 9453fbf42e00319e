/// @file
/// The loops over items.

#include "ZelInterchangeData/ZelDataFace.h"
#include "face/Thrown.h"
#include "support/fakes/FailingCaptions.h"

#include <gtest/gtest.h>

namespace ZelInterchangeData {
namespace {

using Times = std::vector<long long>;

template <class Collection>
Times startsOf(const Collection& collection)
{
    Times starts;
    for (const auto& item : items(collection))
        starts.push_back(checked(*item).getStart());
    return starts;
}

TEST(Items, AreThoseOfCaptionsInStoredOrder)
{
    const auto captions = createCaptions();
    for (const long long start : {5, 3, 9})
        checked(*captions).addCaptionItem(*createCaptionItem(start, start + 1, {{"en", ""}}));
    EXPECT_EQ((Times{5, 3, 9}), startsOf(*captions));
}

TEST(Items, AreThoseOfATableInStoredOrder)
{
    const auto toc = createToc();
    checked(*toc).addTocItem(*createTocItem(7, {{"en", ""}})).addTocItem(*createTocItem());
    EXPECT_EQ((Times{7, 0}), startsOf(*toc));
}

TEST(Items, AreThoseOfScreenTextInStoredOrder)
{
    const auto screenText = createScreenText();
    checked(*screenText).addScreenTextItem(*createScreenTextItem(2, 3, ""));
    EXPECT_EQ(Times{2}, startsOf(*screenText));
}

TEST(Items, AreNoneForAnEmptyCollection)
{
    EXPECT_EQ(Times{}, startsOf(*createCaptions()));
}

TEST(Items, AreCopies)
{
    const auto toc = createToc();
    checked(*toc).addTocItem(*createTocItem(7, {{"en", ""}}));
    for (const auto& item : items(*toc))
        checked(*item).setStart(8);
    EXPECT_EQ(Times{7}, startsOf(*toc));
}

TEST(Items, ThrowWhenTheCollectionFails)
{
    FailingCaptions captions;
    captions.failAt("getCaptionItems", ZelData_InternalError, ZelData_Ok);
    EXPECT_EQ((Failure{"getCaptionItems", "ZelData_InternalError"}),
              thrownBy([&] { static_cast<void>(items(captions)); }));
}

} // namespace
} // namespace ZelInterchangeData
