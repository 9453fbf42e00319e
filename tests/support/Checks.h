/// @file
/// One check for the returned code and the last error, and owned objects.

#ifndef ZELINTERCHANGEDATA_TESTS_SUPPORT_CHECKS_H
#define ZELINTERCHANGEDATA_TESTS_SUPPORT_CHECKS_H

#include "ZelInterchangeData/ZelInterchangeData.h"

#include <gtest/gtest.h>

#include <iomanip>
#include <memory>
#include <ostream>
#include <stdexcept>

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

/// Ignores the code of a call that an object may refuse: the test looks at what it then holds.
inline void mayRefuse(::ZelInterchangeData::ZelDataResult_tags /*code*/) {}

/// The object that @p create puts into an out-pointer. If it puts none, the test fails and ends.
template <class Interface, class Create>
std::unique_ptr<Interface> created(const Create& create)
{
    Interface* made = nullptr;
    EXPECT_EQ(::ZelInterchangeData::ZelData_Ok, create(&made));
    if (made == nullptr) throw std::runtime_error("no object was made");
    return std::unique_ptr<Interface>(made);
}

/// A new object from @p create, a factory that takes an out-pointer.
template <class Interface>
std::unique_ptr<Interface> make(::ZelInterchangeData::ZelDataResult_tags (*create)(Interface**))
{
    return created<Interface>(create);
}

/// Makes a formatter with @p create.
template <class Interface>
std::unique_ptr<Interface> make(::ZelInterchangeData::ZelDataResult_tags (*create)(
    Interface**, ::ZelInterchangeData::ZelDataFormatType_tags))
{
    return created<Interface>(
        [create](Interface** out) { return create(out, ::ZelInterchangeData::ZelDataFormat_Xmp); });
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
