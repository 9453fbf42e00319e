/// @file
/// A program with functions of its own that have the names of the face's.

#include "ZelInterchangeData/ZelDataFace.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace ZelInterchangeData;

static int checks = 0;

static void check(ZelDataResult_tags code)
{
    EXPECT_EQ(ZelData_Ok, code);
    ++checks;
}

template <class Container>
static std::string items(const Container& container)
{
    return std::to_string(container.size()) + " of mine";
}

TEST(OwnNames, ACheckWithOneArgumentIsTheProgramsOwn)
{
    const auto captions = createCaptions();
    check(captions->setFontSize(30));
    EXPECT_EQ(1, checks);
    EXPECT_THROW(check(captions->setFontSize(0), "setFontSize"), ZelDataError);
    EXPECT_EQ(1, checks);
}

TEST(OwnNames, ATemplateItemsIsTheProgramsOwnExceptForCollections)
{
    EXPECT_EQ("3 of mine", items(std::vector<int>{1, 2, 3}));
    const auto captions = createCaptions();
    checked(captions).addCaptionItem(*createCaptionItem(0, 1000, {{"en", "a"}}));
    EXPECT_EQ("1 of mine", items(checked(captions).getCaptionItems()));
    EXPECT_EQ(1U, items(*captions).size());
    EXPECT_EQ(0U, items(*createToc()).size());
    EXPECT_EQ(0U, items(*createScreenText()).size());
}
