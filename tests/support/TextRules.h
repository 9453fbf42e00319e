/// @file
/// Plain models of the rules for texts, to compare the library with.

#ifndef ZELINTERCHANGEDATA_TESTS_SUPPORT_TEXTRULES_H
#define ZELINTERCHANGEDATA_TESTS_SUPPORT_TEXTRULES_H

#include "ZelInterchangeData/ZelDataResult_tags.h"

#include <string>
#include <string_view>

namespace ZelInterchangeData {

inline int leadingOnes(unsigned byte)
{
    int ones = 0;
    for (unsigned bit = 0x80; (byte & bit) != 0; bit >>= 1U)
        ++ones;
    return ones;
}

/// The length that a lead byte announces: its number of leading ones. A single one marks a
/// continuation byte, seven and eight announce nothing, and C0 and C1 could only encode one byte.
inline int announcedLength(unsigned lead)
{
    const int ones = leadingOnes(lead);
    const bool announcesNothing = ones == 1 || ones > 6 || (lead >> 1U) == 0x60U;
    return announcesNothing ? 0 : (ones == 0 ? 1 : ones);
}

/// The code that the check of UTF-8 sequences must return for @p text.
inline ZelDataResult_tags utf8Code(std::string_view text, bool bmpOnly)
{
    int missing = 0;
    for (const char c : text) {
        const unsigned byte = static_cast<unsigned char>(c);
        const bool continues = leadingOnes(byte) == 1;
        if (continues != (missing > 0)) return ZelData_InvalidUtf8;
        if (!continues && bmpOnly && leadingOnes(byte) >= 4) return ZelData_UnsupportedCharacter;
        if (!continues && announcedLength(byte) == 0) return ZelData_InvalidUtf8;
        missing = continues ? missing - 1 : announcedLength(byte) - 1;
    }
    return missing > 0 ? ZelData_InvalidUtf8 : ZelData_Ok;
}

/// @p text as it is written, byte by byte: escaped, and stripped where @p strip says so.
inline std::string markupOf(std::string_view text, bool strip)
{
    std::string result;
    for (const char c : text) {
        switch (c) {
        case '"':
            result += "&quot;";
            break;
        case '&':
            result += "&amp;";
            break;
        case '\'':
            result += "&apos;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        default:
            if (!strip || static_cast<unsigned char>(c) > 31 || c == '\n') result += c;
        }
    }
    return result;
}

} // namespace ZelInterchangeData

#endif
