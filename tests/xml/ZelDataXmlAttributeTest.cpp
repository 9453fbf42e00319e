/// @file
/// An attribute of an element.

#include "xml/ZelDataXmlAttribute.h"

#include "xml/TreeVerbs.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

namespace ZelInterchangeData {
namespace {

static_assert(!std::is_polymorphic_v<ZelDataXmlAttribute>);
static_assert(!std::is_copy_constructible_v<ZelDataXmlAttribute>);

/// What @p attribute appends to an empty string.
std::string text(const ZelDataXmlAttribute& attribute)
{
    std::string out;
    attribute.write(out);
    return out;
}

TEST(ZelDataXmlAttribute, BeginsWithoutNameAndValue)
{
    const ZelDataXmlAttribute attribute(nullptr);
    EXPECT_EQ(text(attribute), "=\"\" ");
}

TEST(ZelDataXmlAttribute, WritesNameAndQuotedValueAndOneSpace)
{
    ZelDataXmlAttribute attribute(nullptr);
    attribute < "xml:lang" < "en";
    EXPECT_EQ(text(attribute), "xml:lang=\"en\" ");
}

TEST(ZelDataXmlAttribute, WritingAppends)
{
    ZelDataXmlAttribute attribute(nullptr);
    attribute < "k" < "v";
    std::string out = "<n ";
    attribute.write(out);
    EXPECT_EQ(out, "<n k=\"v\" ");
}

TEST(ZelDataXmlAttribute, EscapesNothing)
{
    ZelDataXmlAttribute attribute(nullptr);
    attribute < "<&>" < "\"'&<>";
    EXPECT_EQ(text(attribute), "<&>=\"\"'&<>\" ");
}

TEST(ZelDataXmlAttribute, ReturnsItsOnlyValueWhenItIsNamed)
{
    ZelDataXmlAttribute attribute(nullptr);
    ZelDataXmlAttributeValue& value = attribute < "old";
    value < "v";
    EXPECT_EQ(&(attribute < "new"), &value);
    EXPECT_EQ(value.getValue(), "v");
    EXPECT_EQ(text(attribute), "new=\"v\" ");
}

TEST(ZelDataXmlAttribute, TreatsANullNameAsEmpty)
{
    ZelDataXmlAttribute attribute(nullptr);
    const char* none = nullptr;
    attribute < "k";
    attribute < none < "v";
    EXPECT_EQ(text(attribute), "=\"v\" ");
}

TEST(ZelDataXmlAttribute, SettingItsNamedValueReturnsTheOwner)
{
    ZelDataXmlNode owner(nullptr);
    ZelDataXmlAttribute attribute(&owner);
    EXPECT_EQ(&(attribute < "k" < "v"), &owner);
}

TEST(ZelDataXmlAttribute, WithoutAnOwnerSettingItsValueReturnsANodeOutsideEveryTree)
{
    ZelDataXmlAttribute attribute(nullptr);
    ZelDataXmlNode& returned = attribute < "k" < "v";
    EXPECT_EQ(&(returned < "lost"), &returned);
    EXPECT_EQ(text(attribute), "k=\"v\" ");
}

} // namespace
} // namespace ZelInterchangeData
