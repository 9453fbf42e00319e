/// @file
/// The exception that reports a failure's code, for callers who prefer exceptions.

#ifndef ZELINTERCHANGEDATA_ZELDATAERROR_H
#define ZELINTERCHANGEDATA_ZELDATAERROR_H

#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataResultText.h"

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

namespace ZelInterchangeData {

/// Says which operation returned which code. The library itself never throws it: only the headers
/// that ZelDataFace.h includes do, and these are compiled into the caller.
///
/// Its only type information is in the shared library, so one module can catch what another throws
/// if both use the same shared library. The fields are part of the binary interface.
class ZELINTERCHANGEDATA_API ZelDataError : public std::runtime_error {
public:
    /// @p operation is copied. The message names the operation, the code and its meaning:
    /// "setVideoLength: ZelData_InvalidArgument (0x80000003): A value is ...".
    ZELINTERCHANGEDATA_INLINE ZelDataError(ZelDataResult_tags code, std::string_view operation)
        : ZelDataError(code, operation, {}, {})
    {
    }
    /// The message also shows @p arguments, such as "(500)", and says @p reason instead of what the
    /// code means: "setEnd(500): not after the start, 1000 (ZelData_InvalidArgument, 0x80000003)".
    /// Both may be empty.
    ZELINTERCHANGEDATA_INLINE ZelDataError(ZelDataResult_tags code, std::string_view operation,
                                           std::string_view arguments, std::string_view reason)
        : std::runtime_error(messageFor(code, operation, arguments, reason)), code_(code),
          operationLength_(operation.size())
    {
    }
    /// Copies share the message.
    ZELINTERCHANGEDATA_INLINE ZelDataError(const ZelDataError&) = default;
    /// Copies share the message.
    ZELINTERCHANGEDATA_INLINE ZelDataError& operator=(const ZelDataError&) = default;
    ~ZelDataError() override;

    /// The message; valid as long as this object or a copy of it lives.
    const char* what() const noexcept override;
    /// The code that the operation returned.
    ZELINTERCHANGEDATA_INLINE ZelDataResult_tags code() const noexcept { return code_; }
    /// The name of the operation; valid as long as this object or a copy of it lives.
    ZELINTERCHANGEDATA_INLINE std::string_view operation() const noexcept
    {
        return {what(), operationLength_};
    }

private:
    ZELINTERCHANGEDATA_INLINE static std::string messageFor(ZelDataResult_tags code,
                                                            std::string_view operation,
                                                            std::string_view arguments,
                                                            std::string_view reason)
    {
        std::string message(operation);
        message.append(arguments).append(": ");
        if (reason.empty())
            return message.append(toString(code))
                .append(" (")
                .append(numberOf(code))
                .append("): ")
                .append(describe(code));
        return message.append(reason)
            .append(" (")
            .append(toString(code))
            .append(", ")
            .append(numberOf(code))
            .append(")");
    }
    ZELINTERCHANGEDATA_INLINE static std::string numberOf(ZelDataResult_tags code)
    {
        std::string number = "0x";
        for (int shift = 28; shift >= 0; shift -= 4)
            number += "0123456789ABCDEF"[(static_cast<unsigned>(code) >> shift) & 0xFU];
        return number;
    }

    ZelDataResult_tags code_;
    std::size_t operationLength_;
};

} // namespace ZelInterchangeData

#endif
