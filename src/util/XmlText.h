/// @file
/// What XML forbids in a text.

#ifndef ZELINTERCHANGEDATA_UTIL_XMLTEXT_H
#define ZELINTERCHANGEDATA_UTIL_XMLTEXT_H

#include <cstddef>
#include <string_view>

namespace ZelInterchangeData {

/// Where the first fault of each kind in a text is, in bytes from its beginning.
struct XmlFaults {
    static constexpr std::size_t none = std::string_view::npos;

    /// A sequence that strict UTF-8 does not allow: malformed, overlong, a surrogate, or above
    /// U+10FFFF.
    std::size_t malformed = none;
    /// U+FFFE or U+FFFF.
    std::size_t forbidden = none;
    /// A control character below the space other than tab, line feed and carriage return.
    std::size_t control = none;
    /// In the value of an attribute: `"`, `<`, or `&` that does not begin a reference to one of the
    /// five entities or to a character that XML allows.
    std::size_t unescaped = none;
};

/// Looks for all of them in @p text.
XmlFaults findXmlFaults(std::string_view text) noexcept;

} // namespace ZelInterchangeData

#endif
