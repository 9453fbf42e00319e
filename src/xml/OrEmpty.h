/// @file
/// The replacement for a null character pointer.

#ifndef ZELINTERCHANGEDATA_XML_OREMPTY_H
#define ZELINTERCHANGEDATA_XML_OREMPTY_H

namespace ZelInterchangeData {

/// @p text, or the empty string if it is null.
inline const char* orEmpty(const char* text) noexcept
{
    return text != nullptr ? text : "";
}

} // namespace ZelInterchangeData

#endif
