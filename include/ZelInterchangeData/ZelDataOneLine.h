/// @file
/// How messages of exceptions and descriptions of findings show a text.

#ifndef ZELINTERCHANGEDATA_ZELDATAONELINE_H
#define ZELINTERCHANGEDATA_ZELDATAONELINE_H

#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataResult_tags.h"
#include "ZelInterchangeData/ZelDataUtilities.h"

#include <string>
#include <string_view>

namespace ZELINTERCHANGEDATA_INLINE ZelInterchangeData {

namespace ZelDataMessages {

/// Whether @p text passes the check that the library's setters make.
inline bool isUtf8(const std::string& text)
{
    return !failed(ZelDataUtilities::verifyUtf8Format(text, false));
}

/// @p text on one line: each control character appears as in "\x0A", and so does each byte that is
/// not ASCII unless @p utf8 says that the text is UTF-8.
inline std::string onOneLine(std::string_view text, bool utf8)
{
    std::string result;
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte < 0x20 || byte == 0x7F || (byte > 0x7F && !utf8)) {
            result.append("\\x");
            result += "0123456789ABCDEF"[byte / 16];
            result += "0123456789ABCDEF"[byte % 16];
        } else {
            result += character;
        }
    }
    return result;
}

} // namespace ZelDataMessages

} // namespace ZelInterchangeData

#endif
