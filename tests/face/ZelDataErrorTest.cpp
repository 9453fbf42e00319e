/// @file
/// The exception, and the two tests of codes that throw it.

#include "ZelInterchangeData/ZelDataCheck.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

namespace ZelInterchangeData {
namespace {

TEST(ZelDataError, NamesTheOperationAndTheCode)
{
    const ZelDataError error(ZelData_UnknownLanguage, "addLanguage");
    EXPECT_EQ(ZelData_UnknownLanguage, error.code());
    EXPECT_EQ("addLanguage", error.operation());
    EXPECT_STREQ("addLanguage: ZelData_UnknownLanguage (0x80000008): "
                 "The language is not in the catalogue.",
                 error.what());
}

TEST(ZelDataError, ShowsTheNumberOfAValueThatIsNoCode)
{
    const ZelDataError error(static_cast<ZelDataResult_tags>(0xC0FFEE12), "");
    EXPECT_EQ("", error.operation());
    EXPECT_STREQ(": ZelData_Unknown (0xC0FFEE12): The value is not a result code of this library.",
                 error.what());
}

TEST(ZelDataError, ACopyOutlivesTheOperationsName)
{
    std::string name = "a name that is longer than a short string";
    auto original = std::make_unique<ZelDataError>(ZelData_NoData, name);
    const ZelDataError copy(*original);
    original.reset();
    name.assign(name.size(), 'x');
    EXPECT_EQ("a name that is longer than a short string", copy.operation());
    static_assert(std::is_nothrow_copy_constructible_v<ZelDataError>);
}

TEST(Check, LetsSuccessAlonePass)
{
    EXPECT_NO_THROW(check(ZelData_Ok, "x"));
    EXPECT_THROW(check(ZelData_WarnTiming, "x"), ZelDataError);
    EXPECT_THROW(check(ZelData_NoData, "x"), ZelDataError);
}

TEST(CheckError, LetsWarningsPass)
{
    EXPECT_NO_THROW(checkError(ZelData_Ok, "x"));
    EXPECT_NO_THROW(checkError(ZelData_WarnTiming, "x"));
    EXPECT_THROW(checkError(ZelData_NoData, "x"), ZelDataError);
}

TEST(Check, IsCaughtAsARuntimeError)
{
    try {
        check(ZelData_NotFound, "removeLanguage");
        FAIL() << "nothing was thrown";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ("removeLanguage: ZelData_NotFound (0x80000004): "
                     "The entry to remove does not exist.",
                     error.what());
    }
}

} // namespace
} // namespace ZelInterchangeData
