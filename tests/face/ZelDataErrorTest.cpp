/// @file
/// The exception, and the two checks of codes that throw it.

#include "ZelInterchangeData/ZelDataCheck.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>

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

TEST(ZelDataError, ShowsTheNumberOfAnUnknownCode)
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

TEST(ZelDataError, HasTheLayoutThatCallersWereCompiledWith)
{
    const ZelDataError error(ZelData_NoData, "getDataToc");
    const auto at = [&error](std::size_t place, auto value) {
        std::memcpy(&value, reinterpret_cast<const char*>(&error) + place, sizeof(value));
        return value;
    };
    constexpr std::size_t word = sizeof(void*);
    EXPECT_EQ(2 * word, sizeof(std::runtime_error));
    EXPECT_EQ(4 * word, sizeof(error));
    EXPECT_EQ(ZelData_NoData, at(2 * word, ZelData_Ok));
    EXPECT_EQ(error.operation().size(), at(3 * word, std::size_t{0}));
}

TEST(ZelDataError, MovedOrAssignedIsACopy)
{
    ZelDataError original(ZelData_NoData, "getDataToc");
    const ZelDataError moved(std::move(original));
    // NOLINTNEXTLINE(bugprone-use-after-move): deliberate: a moved-from object keeps its value.
    EXPECT_EQ("getDataToc", original.operation());
    EXPECT_EQ("getDataToc", moved.operation());
    ZelDataError assigned(ZelData_Ok, "");
    assigned = moved;
    EXPECT_STREQ(moved.what(), assigned.what());
    EXPECT_EQ(ZelData_NoData, assigned.code());
    EXPECT_EQ("getDataToc", assigned.operation());
    static_assert(std::is_nothrow_move_constructible_v<ZelDataError>);
}

TEST(Check, AcceptsOnlySuccess)
{
    EXPECT_NO_THROW(check(ZelData_Ok, "x"));
    EXPECT_THROW(check(ZelData_WarnTiming, "x"), ZelDataError);
    EXPECT_THROW(check(ZelData_NoData, "x"), ZelDataError);
}

TEST(CheckError, AcceptsWarnings)
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
