/// @file
/// One check for the returned code and the last error, and owned objects.

#ifndef ZELINTERCHANGEDATA_TESTS_SUPPORT_CHECKS_H
#define ZELINTERCHANGEDATA_TESTS_SUPPORT_CHECKS_H

#include "ZelInterchangeData/ZelInterchangeData.h"

#include <gtest/gtest.h>

#include <iomanip>
#include <memory>
#include <ostream>

namespace ZelInterchangeData {

/// Shows a code as the number that the documentation gives.
inline void PrintTo(ZelDataResult_tags code, std::ostream* out)
{
    *out << "0x" << std::hex << std::setw(8) << std::setfill('0')
         << static_cast<unsigned long>(code) << std::dec;
}

} // namespace ZelInterchangeData

/// Expects that @p call, an operation of @p object, returns @p expected and stores it. First sets the
/// last error to a value that no operation produces, to catch an operation that stores nothing.
#define EXPECT_CODE(object, expected, call)                                                        \
    do {                                                                                           \
        const auto& checkedObject_ = (object);                                                     \
        checkedObject_.setLastError(                                                               \
            static_cast<::ZelInterchangeData::ZelDataResult_tags>(0x7E57));                        \
        const ::ZelInterchangeData::ZelDataResult_tags expectedCode_ = (expected);                 \
        EXPECT_EQ(expectedCode_, (call));                                                          \
        EXPECT_EQ(expectedCode_, checkedObject_.getLastError()) << "last error of " #object;       \
    } while (false)

/// Ignores the code of a call that the object may refuse; the test checks what the object then holds.
inline void mayRefuse(::ZelInterchangeData::ZelDataResult_tags /*code*/) {}

/// Makes an object with @p create, a factory that takes an out-pointer.
template <class Interface>
std::unique_ptr<Interface> make(::ZelInterchangeData::ZelDataResult_tags (*create)(Interface**))
{
    Interface* made = nullptr;
    EXPECT_EQ(::ZelInterchangeData::ZelData_Ok, create(&made));
    return std::unique_ptr<Interface>(made);
}

/// Makes a formatter with @p create.
template <class Interface>
std::unique_ptr<Interface> make(::ZelInterchangeData::ZelDataResult_tags (*create)(
    Interface**, ::ZelInterchangeData::ZelDataFormatType_tags))
{
    Interface* made = nullptr;
    EXPECT_EQ(::ZelInterchangeData::ZelData_Ok,
              create(&made, ::ZelInterchangeData::ZelDataFormat_Xmp));
    return std::unique_ptr<Interface>(made);
}

/// A formatter that @p create makes and that @p set gives what @p source makes.
template <auto create, auto set, auto source>
auto filledFormatter()
{
    auto formatter = make(create);
    EXPECT_EQ(::ZelInterchangeData::ZelData_Ok, ((*formatter).*set)(*source()));
    return formatter;
}

#endif
