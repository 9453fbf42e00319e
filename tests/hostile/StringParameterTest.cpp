/// @file
/// Every argument that is a text, with every hostile text.

#include "hostile/StringParameter.h"

#include "hostile/HostileTexts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>

namespace ZelInterchangeData {

const StringParameters& allStringParameters()
{
    static const StringParameters parameters = [] {
        StringParameters list;
        for (const auto add : {addHeaderStrings, addCaptionStrings, addTocStrings,
                               addScreenTextStrings, addFormatterStrings, addUtilityStrings}) {
            add(list);
        }
        return list;
    }();
    return parameters;
}

namespace {

/// The name as one that a test may have.
std::string testName(const ::testing::TestParamInfo<StringParameter>& parameter)
{
    std::string name = parameter.param.name;
    const auto isNoLetter = [](unsigned char c) { return std::isalnum(c) == 0; };
    std::replace_if(name.begin(), name.end(), isNoLetter, '_');
    return name;
}

class EachStringParameter : public ::testing::TestWithParam<StringParameter> {};

TEST_P(EachStringParameter, TakesHostileTextsByItsRule)
{
    for (const HostileText& text : hostileTexts()) {
        SCOPED_TRACE(text.name);
        GetParam().tryWith(text.bytes);
        if (HasFailure()) return; // one finding at a time
    }
}

INSTANTIATE_TEST_SUITE_P(All, EachStringParameter, ::testing::ValuesIn(allStringParameters()),
                         testName);

TEST(StringParameters, AreAllThatTheOperationsHave)
{
    const std::multiset<std::string> expected = {
#include "string_parameters.inc"
    };
    std::multiset<std::string> listed;
    for (const StringParameter& parameter : allStringParameters())
        listed.insert(parameter.name);
    EXPECT_EQ(expected, listed);
}

/// What the expectations about language IDs are built on.
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
