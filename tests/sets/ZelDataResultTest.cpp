/// @file
/// The codes, their two predicates, and the last error.

#include "support/Checks.h"

#include <type_traits>

namespace ZelInterchangeData {
namespace {

/// A caller's own kind of object.
class OwnObject : public i_ZelDataResult {
public:
    ZelDataResult_tags failAsConst() const { return store(ZelData_NotFound); }
    ZelDataResult_tags takeFrom(const i_ZelDataResult& other) { return storeFrom(other); }
};

/// An object whose last error is always the same.
class Stubborn : public OwnObject {
public:
    ZelDataResult_tags getLastError() const override { return ZelData_NoData; }
};

struct CodeValue {
    ZelDataResult_tags code;
    std::uint32_t value;
};

constexpr CodeValue codeValues[] = {
    {ZelData_Ok, 0x00000000U},
    {ZelData_WarnAlreadyExists, 0x40000001U},
    {ZelData_WarnItemGuidelines, 0x40000002U},
    {ZelData_WarnTiming, 0x40000003U},
    {ZelData_WarnNoChange, 0x40000004U},
    {ZelData_NotImplemented, 0x80000002U},
    {ZelData_InvalidArgument, 0x80000003U},
    {ZelData_NotFound, 0x80000004U},
    {ZelData_OutOfMemory, 0x80000005U},
    {ZelData_InvalidUtf8, 0x80000006U},
    {ZelData_UnsupportedCharacter, 0x80000007U},
    {ZelData_UnknownLanguage, 0x80000008U},
    {ZelData_InvalidItem, 0x80000009U},
    {ZelData_FileOpenFailed, 0x8000000AU},
    {ZelData_InternalError, 0x8000000BU},
    {ZelData_InvalidData, 0x8000000CU},
    {ZelData_NoData, 0x8000000DU},
    {ZelData_UnsupportedFormat, 0x8000000EU},
};

TEST(ZelDataResult, CodesHaveTheirFixedValues)
{
    for (const auto& [code, value] : codeValues)
        EXPECT_EQ(value, static_cast<std::uint32_t>(code));
}

TEST(ZelDataResult, CodesAndFormatsAre32BitUnsigned)
{
    EXPECT_TRUE((std::is_same_v<std::underlying_type_t<ZelDataResult_tags>, std::uint32_t>));
    EXPECT_TRUE((std::is_same_v<std::underlying_type_t<ZelDataFormatType_tags>, std::uint32_t>));
    EXPECT_EQ(1U, static_cast<std::uint32_t>(ZelDataFormat_Xmp));
}

TEST(ZelDataResult, ACodeFailsWhenItIsNotBelowTheFirstWarning)
{
    for (const auto& [code, value] : codeValues)
        EXPECT_EQ(value >= 0x40000000U, failed(code));
}

TEST(ZelDataResult, ACodeIsAnErrorWhenItIsNegativeAsASignedNumber)
{
    for (const auto& [code, value] : codeValues)
        EXPECT_EQ(static_cast<std::int32_t>(value) < 0, isError(code));
}

TEST(ZelDataResult, AWarningIsAFailureButNotAnError)
{
    EXPECT_TRUE(failed(static_cast<ZelDataResult_tags>(0x40000001U)));
    EXPECT_FALSE(isError(static_cast<ZelDataResult_tags>(0x40000001U)));
}

TEST(ZelDataResult, UnlistedCodesAreJudgedByTheirTopBits)
{
    EXPECT_TRUE(failed(static_cast<ZelDataResult_tags>(0x40000000U)));
    EXPECT_TRUE(isError(static_cast<ZelDataResult_tags>(0x80000000U)));
    EXPECT_FALSE(failed(static_cast<ZelDataResult_tags>(0x3FFFFFFFU)));
    EXPECT_FALSE(isError(static_cast<ZelDataResult_tags>(0x7FFFFFFFU)));
}

TEST(ZelDataResult, ANewObjectReportsSuccess)
{
    EXPECT_EQ(ZelData_Ok, OwnObject().getLastError());
}

TEST(ZelDataResult, TheLastErrorOfAConstObjectCanBeSet)
{
    const OwnObject object;
    object.setLastError(ZelData_WarnTiming);
    EXPECT_EQ(ZelData_WarnTiming, object.getLastError());
    object.setLastError(ZelData_Ok);
    EXPECT_EQ(ZelData_Ok, object.getLastError());
}

TEST(ZelDataResult, AnyValueIsKeptAsTheLastError)
{
    const OwnObject object;
    object.setLastError(static_cast<ZelDataResult_tags>(0xFEDCBA98U));
    EXPECT_EQ(0xFEDCBA98U, static_cast<std::uint32_t>(object.getLastError()));
}

TEST(ZelDataResult, AFailingConstOperationLeavesItsCodeInAConstObject)
{
    const OwnObject object;
    EXPECT_CODE(object, ZelData_NotFound, object.failAsConst());

    const auto header = make(&ZelDataUtilities::createHeaderData);
    const i_ZelDataHeader& constHeader = *header;
    EXPECT_CODE(constHeader, ZelData_InvalidArgument, constHeader.isValid());
}

TEST(ZelDataResult, AnotherObjectsLastErrorIsReadThroughItsOwnOperation)
{
    OwnObject object;
    const Stubborn stubborn;
    EXPECT_CODE(object, ZelData_NoData, object.takeFrom(stubborn));
}

TEST(ZelDataResult, AnotherObjectsSuccessIsTakenOver)
{
    OwnObject object;
    EXPECT_CODE(object, ZelData_Ok, object.takeFrom(OwnObject()));
}

TEST(ZelDataResult, CopiesOfACallersObjectCarryTheLastError)
{
    OwnObject object;
    object.setLastError(ZelData_NoData);
    const OwnObject copy(object);
    OwnObject assigned;
    assigned = object;
    EXPECT_EQ(ZelData_NoData, copy.getLastError());
    EXPECT_EQ(ZelData_NoData, assigned.getLastError());
}

} // namespace
} // namespace ZelInterchangeData
