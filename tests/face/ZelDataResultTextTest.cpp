/// @file
/// The names and descriptions of the result codes.

#include "ZelInterchangeData/ZelDataResultText.h"

#include <gtest/gtest.h>

#include <iterator>
#include <set>
#include <string>

namespace ZelInterchangeData {
namespace {

struct ListedCode {
    ZelDataResult_tags code;
    const char* name;
};

/// The codes in the header that defines them.
constexpr ListedCode listedCodes[] = {
#define LISTED_CODE(code) {code, #code},
#include "face/ListedCodes.inc"
#undef LISTED_CODE
};

constexpr auto noCode = static_cast<ZelDataResult_tags>(0x80000001);

TEST(ResultText, NamesEveryCodeOfTheHeader)
{
    for (const auto& [code, name] : listedCodes)
        EXPECT_STREQ(name, toString(code));
}

TEST(ResultText, HasOnlyCodesOfTheHeader)
{
    EXPECT_EQ(std::size(listedCodes), std::size(zelDataResultTexts));
}

TEST(ResultText, DescribesEachCodeInItsOwnSentence)
{
    std::set<std::string> sentences;
    for (const auto& listed : listedCodes) {
        const std::string sentence = describe(listed.code);
        SCOPED_TRACE(listed.name);
        ASSERT_GT(sentence.size(), 10U);
        EXPECT_EQ(sentence.size() - 1, sentence.find('.'));
        EXPECT_TRUE(sentences.insert(sentence).second);
    }
    EXPECT_TRUE(sentences.insert(describe(noCode)).second);
}

TEST(ResultText, DescribesAnyOtherValueAsUnknown)
{
    for (const unsigned value : {1U, 0x40000000U, 0x40000005U, 0x80000000U, 0x80000001U,
                                 0x8000000FU, 0xC0000001U, 0xFFFFFFFFU}) {
        const auto code = static_cast<ZelDataResult_tags>(value);
        EXPECT_STREQ("ZelData_Unknown", toString(code));
        EXPECT_STREQ("The value is not a result code of this library.", describe(code));
    }
}

TEST(ResultText, NamesAndDescribesAFewCodes)
{
    EXPECT_STREQ("ZelData_Ok", toString(ZelData_Ok));
    EXPECT_STREQ("The operation succeeded.", describe(ZelData_Ok));
    EXPECT_STREQ("ZelData_InvalidUtf8", toString(ZelData_InvalidUtf8));
    EXPECT_STREQ("The text is not well-formed UTF-8.", describe(ZelData_InvalidUtf8));
}

TEST(ResultText, WorksAtCompileTimeAndIsNoexcept)
{
    static_assert(toString(ZelData_NoData)[8] == 'N');
    static_assert(describe(noCode)[0] == 'T');
    static_assert(noexcept(toString(ZelData_Ok))&& noexcept(describe(ZelData_Ok)));
    EXPECT_TRUE(failed(noCode) && isError(noCode)); // the predicates come with the same header
}

} // namespace
} // namespace ZelInterchangeData
