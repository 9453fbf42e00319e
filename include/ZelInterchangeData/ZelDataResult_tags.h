/// @file
/// The result codes of every operation, and the two tests for them.

#ifndef ZELINTERCHANGEDATA_ZELDATARESULT_TAGS_H
#define ZELINTERCHANGEDATA_ZELDATARESULT_TAGS_H

#include "ZelInterchangeData/ZelDataExport.h"

#include <cstdint>

namespace ZelInterchangeData {

/// What an operation returns. Bit 31 marks an error, bit 30 a warning; 0 is plain success.
///
/// The underlying type is fixed, so a value that is not listed passes through unchanged.
///
/// The compiler warns if you ignore a code. To ignore one on purpose, cast it to `void`.
enum [[nodiscard]] ZelDataResult_tags : std::uint32_t{
    /// Success.
    ZelData_Ok = 0x00000000,
    /// The entry already existed: a language is not added twice, an item's text is replaced.
    ZelData_WarnAlreadyExists = 0x40000001,
    /// Valid, but outside the recommended limits for a caption.
    ZelData_WarnItemGuidelines = 0x40000002,
    /// Valid, but the items overlap or are out of order.
    ZelData_WarnTiming = 0x40000003,
    /// Nothing to do: the entry was absent on removal or present on addition.
    ZelData_WarnNoChange = 0x40000004,
    /// The operation is not supported.
    ZelData_NotImplemented = 0x80000002,
    /// An argument is out of range, an out-pointer is null or not empty, or a required set is
    /// missing.
    ZelData_InvalidArgument = 0x80000003,
    /// The entry to remove does not exist.
    ZelData_NotFound = 0x80000004,
    /// Memory ran out.
    ZelData_OutOfMemory = 0x80000005,
    /// The bytes are not well-formed UTF-8.
    ZelData_InvalidUtf8 = 0x80000006,
    /// A character outside the 16-bit range occurs where only characters within it are allowed.
    ZelData_UnsupportedCharacter = 0x80000007,
    /// The language is not in the catalogue.
    ZelData_UnknownLanguage = 0x80000008,
    /// An item's text or language is invalid, or its timing is impossible.
    ZelData_InvalidItem = 0x80000009,
    /// The output file could not be opened.
    ZelData_FileOpenFailed = 0x8000000A,
    /// The data are inconsistent, an object was copied onto itself, or an internal step failed.
    ZelData_InternalError = 0x8000000B,
    /// The data to be written are invalid or were never given.
    ZelData_InvalidData = 0x8000000C,
    /// The requested data set was never given to the document.
    ZelData_NoData = 0x8000000D,
    /// The format is not one that the library writes.
    ZelData_UnsupportedFormat = 0x8000000E};

/// Whether @p code is a warning or an error. Most operations stop at the first such code.
ZELINTERCHANGEDATA_INLINE constexpr bool failed(ZelDataResult_tags code) noexcept
{
    return (code & 0xC0000000U) != 0;
}

/// Whether @p code is an error, not a warning. For calls in which a warning is expected and
/// harmless.
ZELINTERCHANGEDATA_INLINE constexpr bool isError(ZelDataResult_tags code) noexcept
{
    return (code & 0x80000000U) != 0;
}

} // namespace ZelInterchangeData

#endif
