/// @file
/// Escaping for the texts that the library writes as given.

#ifndef ZELINTERCHANGEDATA_ZELDATAESCAPED_H
#define ZELINTERCHANGEDATA_ZELDATAESCAPED_H

#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataUtilities.h"

#include <string>

namespace ZELINTERCHANGEDATA_INLINE ZelInterchangeData {

/// @p text with ampersands, angle brackets, quotation marks and apostrophes as XML entities. May
/// throw `std::bad_alloc`.
///
/// Use it for the texts that the library writes as given: the creator, the font family, the image
/// names of screen texts and the language IDs. Their getters return the escaped form. The library
/// escapes all other texts itself. Control characters stay: to remove them, call
/// ZelDataUtilities::stripUnsupportedCharacters() first.
inline std::string escaped(const std::string& text)
{
    return ZelDataUtilities::htmlTagsToText(text);
}

} // namespace ZelInterchangeData

#endif
