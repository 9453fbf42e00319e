/// @file
/// The text of an element.

#include "xml/ZelDataXmlValue.h"

#include "support/LongNumbers.h"
#include "xml/ForeignLocale.h"
#include "xml/TreeVerbs.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <type_traits>

namespace ZelInterchangeData {
namespace {

static_assert(!std::is_polymorphic_v<ZelDataXmlValue>);
static_assert(!std::is_copy_constructible_v<ZelDataXmlValue>);

TEST(ZelDataXmlValue, BeginsEmpty)
{
    const ZelDataXmlValue value;
    EXPECT_EQ(value.getValue(), "");
}

TEST(ZelDataXmlValue, KeepsACharacterText)
{
    ZelDataXmlValue value;
    value < "t";
    EXPECT_EQ(value.getValue(), "t");
}

TEST(ZelDataXmlValue, KeepsAStringWithItsZeroBytes)
{
    ZelDataXmlValue value;
    const std::string text("a\0b", 3);
    value < text;
    EXPECT_EQ(value.getValue(), text);
}

TEST(ZelDataXmlValue, TreatsANullTextAsEmpty)
{
    ZelDataXmlValue value;
    value < "t";
    const char* none = nullptr;
    value < none;
    EXPECT_EQ(value.getValue(), "");
}

TEST(ZelDataXmlValue, WritesALongInDecimal)
{
    ZelDataXmlValue value;
    value < -5L;
    EXPECT_EQ(value.getValue(), "-5");
    value < 0L;
    EXPECT_EQ(value.getValue(), "0");
    value < LONG_MIN;
    EXPECT_EQ(value.getValue(), hasLongNumbers ? "-9223372036854775808" : "-2147483648");
}

TEST(ZelDataXmlValue, WritesALongLongInDecimal)
{
    ZelDataXmlValue value;
    value < LLONG_MAX;
    EXPECT_EQ(value.getValue(), "9223372036854775807");
    value < LLONG_MIN;
    EXPECT_EQ(value.getValue(), "-9223372036854775808");
}

TEST(ZelDataXmlValue, WritesNumbersTheSameInEveryLocale)
{
    const ForeignLocale locale;
    ZelDataXmlValue value;
    value < 1234567L;
    EXPECT_EQ(value.getValue(), "1234567");
}

TEST(ZelDataXmlValue, ReplacesTheOldText)
{
    ZelDataXmlValue value;
    value < "a long text that stood there before";
    value < "t";
    EXPECT_EQ(value.getValue(), "t");
}

TEST(ZelDataXmlValue, ReturnsTheParentOfItsNodeFromEverySetter)
{
    ZelDataXmlNode root(nullptr);
    ZelDataXmlNode child(&root);
    ZelDataXmlValue value;
    value.setParent(&child);
    EXPECT_EQ(&(value < "t"), &root);
    EXPECT_EQ(&(value < std::string("t")), &root);
    EXPECT_EQ(&(value < 1L), &root);
    EXPECT_EQ(&(value < 1LL), &root);
}

TEST(ZelDataXmlValue, FollowsItsNodeWhenThatChanges)
{
    ZelDataXmlNode root(nullptr);
    ZelDataXmlNode child(&root);
    ZelDataXmlNode grandchild(&child);
    ZelDataXmlValue value;
    value.setParent(&child);
    value.setParent(&grandchild);
    EXPECT_EQ(&(value < "t"), &child);
}

TEST(ZelDataXmlValue, ReturnsANodeOfItsOwnIfItBelongsToNone)
{
    ZelDataXmlValue value;
    ZelDataXmlNode& returned = value < "t";
    EXPECT_EQ(&(value < 1L), &returned);
    EXPECT_EQ(&(returned < "a/b" < attributeVerb < "k" < "v"), &returned);
    EXPECT_EQ(value.getValue(), "1");
}

TEST(ZelDataXmlValue, ReturnsANodeOfItsOwnIfItsNodeIsARoot)
{
    ZelDataXmlNode root(nullptr);
    ZelDataXmlValue value;
    value.setParent(&root);
    ZelDataXmlNode& returned = value < "t";
    EXPECT_NE(&returned, &root);
    returned < "lost";
    EXPECT_EQ(written(root), "<></>");
}

TEST(ZelDataXmlValue, ReturnsANodeOfItsOwnAgainWhenItsNodeIsRemoved)
{
    ZelDataXmlNode root(nullptr);
    ZelDataXmlNode child(&root);
    ZelDataXmlValue value;
    value.setParent(&child);
    value.setParent(nullptr);
    EXPECT_NE(&(value < "t"), &root);
}

} // namespace
} // namespace ZelInterchangeData
