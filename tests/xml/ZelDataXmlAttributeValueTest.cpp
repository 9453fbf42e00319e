/// @file
/// The value of an attribute.

#include "xml/ZelDataXmlAttributeValue.h"

#include "support/LongNumbers.h"
#include "xml/ForeignLocale.h"
#include "xml/TreeVerbs.h"

#include <gtest/gtest.h>

#include <climits>
#include <limits>
#include <string>
#include <type_traits>

namespace ZelInterchangeData {
namespace {

static_assert(!std::is_polymorphic_v<ZelDataXmlAttributeValue>);
static_assert(!std::is_copy_constructible_v<ZelDataXmlAttributeValue>);

/// The value after setting it to @p given.
template <class Given>
std::string valueOf(const Given& given)
{
    ZelDataXmlAttributeValue value;
    value < given;
    return value.getValue();
}

TEST(ZelDataXmlAttributeValue, BeginsEmpty)
{
    const ZelDataXmlAttributeValue value;
    EXPECT_EQ(value.getValue(), "");
}

TEST(ZelDataXmlAttributeValue, KeepsTextsAsTheyAre)
{
    EXPECT_EQ(valueOf("<\"&'>"), "<\"&'>");
    EXPECT_EQ(valueOf(std::string("a\0b", 3)), std::string("a\0b", 3));
}

TEST(ZelDataXmlAttributeValue, TreatsANullTextAsEmpty)
{
    const char* none = nullptr;
    ZelDataXmlAttributeValue value;
    value < "v";
    value < none;
    EXPECT_EQ(value.getValue(), "");
}

TEST(ZelDataXmlAttributeValue, WritesIntegersInDecimal)
{
    EXPECT_EQ(valueOf(0), "0");
    EXPECT_EQ(valueOf(INT_MIN), "-2147483648");
    EXPECT_EQ(valueOf(INT_MAX), "2147483647");
    EXPECT_EQ(valueOf(-5L), "-5");
    EXPECT_EQ(valueOf(LONG_MAX), hasLongNumbers ? "9223372036854775807" : "2147483647");
    EXPECT_EQ(valueOf(LLONG_MIN), "-9223372036854775808");
    EXPECT_EQ(valueOf(LLONG_MAX), "9223372036854775807");
}

TEST(ZelDataXmlAttributeValue, WritesDoublesWithSixSignificantDigits)
{
    EXPECT_EQ(valueOf(0.5), "0.5");
    EXPECT_EQ(valueOf(0.6), "0.6");
    EXPECT_EQ(valueOf(1.0), "1");
    EXPECT_EQ(valueOf(1234567.0), "1.23457e+06");
    EXPECT_EQ(valueOf(123456.0), "123456");
    EXPECT_EQ(valueOf(-0.0001), "-0.0001");
    EXPECT_EQ(valueOf(0.00001), "1e-05");
    EXPECT_EQ(valueOf(-0.0), "-0");
    EXPECT_EQ(valueOf(std::numeric_limits<double>::infinity()), "inf");
}

TEST(ZelDataXmlAttributeValue, WritesNumbersTheSameInEveryLocale)
{
    const ForeignLocale locale;
    EXPECT_EQ(valueOf(1234567LL), "1234567");
    EXPECT_EQ(valueOf(0.5), "0.5");
    EXPECT_EQ(valueOf(123456.0), "123456");
}

TEST(ZelDataXmlAttributeValue, ReplacesTheOldValue)
{
    ZelDataXmlAttributeValue value;
    value < "a long value that stood there before";
    value < "v";
    EXPECT_EQ(value.getValue(), "v");
}

TEST(ZelDataXmlAttributeValue, ReturnsItsNodeFromEverySetter)
{
    ZelDataXmlNode node(nullptr);
    ZelDataXmlAttributeValue value;
    value.setParent(&node);
    EXPECT_EQ(&(value < "v"), &node);
    EXPECT_EQ(&(value < std::string("v")), &node);
    EXPECT_EQ(&(value < 1), &node);
    EXPECT_EQ(&(value < 1L), &node);
    EXPECT_EQ(&(value < 1LL), &node);
    EXPECT_EQ(&(value < 0.5), &node);
}

TEST(ZelDataXmlAttributeValue, ReturnsANodeOfItsOwnIfItHasNone)
{
    ZelDataXmlAttributeValue value;
    ZelDataXmlNode& returned = value < "v";
    EXPECT_EQ(&(value < 0.5), &returned);
    EXPECT_EQ(&(returned < "a/b" < attributeVerb < "k" < "v"), &returned);
    EXPECT_EQ(value.getValue(), "0.5");
}

} // namespace
} // namespace ZelInterchangeData
