/// @file
/// Every argument that is a text, with every hostile text.

#include "hostile/StringParameter.h"

#include "hostile/HostileTexts.h"

#include <gtest/gtest.h>

#include <cctype>
#include <set>

namespace ZelInterchangeData {

namespace {

const StringParameters& allStringParameters()
{
    static const auto parameters =
        collected<StringParameters>({addHeaderStrings, addCaptionStrings, addTocStrings,
                                     addScreenTextStrings, addFormatterStrings, addUtilityStrings});
    return parameters;
}

class EachStringParameter : public ::testing::TestWithParam<StringParameter> {};

TEST_P(EachStringParameter, FollowsItsRuleForHostileTexts)
{
    for (const HostileText& text : hostileTexts()) {
        SCOPED_TRACE(text.name);
        GetParam().tryWith(text.bytes);
        if (HasFailure()) return; // one finding at a time
    }
}

INSTANTIATE_TEST_SUITE_P(All, EachStringParameter, ::testing::ValuesIn(allStringParameters()),
                         testName<StringParameter>);

TEST(StringParameters, AreAllThatTheOperationsHave)
{
    const std::multiset<std::string> expected = {
#include "string_parameters.inc"
    };
    EXPECT_EQ(expected, namesOf(allStringParameters()));
}

/// The expectations about language IDs rely on this.
TEST(HostileTexts, BeginWithNoLanguage)
{
    for (const HostileText& text : hostileTexts()) {
        const bool isShort = text.bytes.size() < 2;
        EXPECT_TRUE(isShort || (text.bytes.size() > 2 && text.bytes[2] != '-') ||
                    std::isalpha(static_cast<unsigned char>(text.bytes[0])) == 0 ||
                    std::isalpha(static_cast<unsigned char>(text.bytes[1])) == 0)
            << text.name;
    }
}

} // namespace
} // namespace ZelInterchangeData
