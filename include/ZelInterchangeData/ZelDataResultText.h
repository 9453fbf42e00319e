/// @file
/// The names and the meanings of the result codes.

#ifndef ZELINTERCHANGEDATA_ZELDATARESULTTEXT_H
#define ZELINTERCHANGEDATA_ZELDATARESULTTEXT_H

#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataResult_tags.h"

namespace ZelInterchangeData {

/// A result code in words.
struct ZelDataResultText {
    /// The code.
    ZelDataResult_tags code;
    /// The name of its enumerator.
    const char* name;
    /// One sentence, with its full stop.
    const char* meaning;
};

/// All codes in ascending order.
ZELINTERCHANGEDATA_INLINE inline constexpr ZelDataResultText zelDataResultTexts[] = {
    {ZelData_Ok, "ZelData_Ok", "The operation succeeded."},
    {ZelData_WarnAlreadyExists, "ZelData_WarnAlreadyExists",
     "The entry already existed: a listed language was not added again, or a text was replaced."},
    {ZelData_WarnItemGuidelines, "ZelData_WarnItemGuidelines",
     "The caption is valid but shorter, or has more lines, than recommended."},
    {ZelData_WarnTiming, "ZelData_WarnTiming", "The items overlap or are out of order."},
    {ZelData_WarnNoChange, "ZelData_WarnNoChange",
     "There was nothing to do: the entry to add exists, or the one to remove does not."},
    {ZelData_NotImplemented, "ZelData_NotImplemented", "The operation is not supported."},
    {ZelData_InvalidArgument, "ZelData_InvalidArgument",
     "A value is out of range, missing, or not there to be read."},
    {ZelData_NotFound, "ZelData_NotFound", "The entry to remove does not exist."},
    {ZelData_OutOfMemory, "ZelData_OutOfMemory", "Memory ran out."},
    {ZelData_InvalidUtf8, "ZelData_InvalidUtf8", "The text is not well-formed UTF-8."},
    {ZelData_UnsupportedCharacter, "ZelData_UnsupportedCharacter",
     "A character beyond U+FFFF occurs where none is allowed."},
    {ZelData_UnknownLanguage, "ZelData_UnknownLanguage", "The language is not in the catalogue."},
    {ZelData_InvalidItem, "ZelData_InvalidItem",
     "The item has no duration, or a text or language that is not valid."},
    {ZelData_FileOpenFailed, "ZelData_FileOpenFailed", "The file could not be opened."},
    {ZelData_InternalError, "ZelData_InternalError",
     "The data are inconsistent, an object was copied onto itself, or an internal step failed."},
    {ZelData_InvalidData, "ZelData_InvalidData",
     "The data to be written are not valid or were never given."},
    {ZelData_NoData, "ZelData_NoData", "The document was never given the data set."},
    {ZelData_UnsupportedFormat, "ZelData_UnsupportedFormat", "The format is not supported."},
};

/// The text for every value that is not a code of the library.
ZELINTERCHANGEDATA_INLINE inline constexpr ZelDataResultText zelDataUnknownResultText = {
    ZelData_Ok, "ZelData_Unknown", "The value is not a result code of this library."};

/// The text for @p code, or #zelDataUnknownResultText for a value that is not a code.
ZELINTERCHANGEDATA_INLINE constexpr const ZelDataResultText&
zelDataResultTextOf(ZelDataResult_tags code) noexcept
{
    for (const ZelDataResultText& text : zelDataResultTexts) {
        // cppcheck-suppress useStlAlgorithm ; std::find_if is not constexpr in C++17
        if (text.code == code) return text;
    }
    return zelDataUnknownResultText;
}

/// The name of @p code ("ZelData_InvalidUtf8"), "ZelData_Unknown" for a value that is not a code.
/// Never null; valid forever.
ZELINTERCHANGEDATA_INLINE constexpr const char* toString(ZelDataResult_tags code) noexcept
{
    return zelDataResultTextOf(code).name;
}

/// Says in one sentence what @p code means, or that the value is not a code. Never null; valid
/// forever. Each header documents what a code means for each operation.
ZELINTERCHANGEDATA_INLINE constexpr const char* describe(ZelDataResult_tags code) noexcept
{
    return zelDataResultTextOf(code).meaning;
}

} // namespace ZelInterchangeData

#endif
