/// @file
/// Where a caption is placed on the picture.

#ifndef ZELINTERCHANGEDATA_ZELALIGNMENT_TAGS_H
#define ZELINTERCHANGEDATA_ZELALIGNMENT_TAGS_H

#include "ZelInterchangeData/ZelDataExport.h"

#include <cstdint>

namespace ZelInterchangeData {

/// Bit flags: at most one vertical and one horizontal flag, combined with `|`.
///
/// The two axes are read independently. Any value can be stored; other bits are ignored.
enum ZelAlignment_tags : std::uint32_t {
    /// No flag: centred vertically and horizontally.
    ZelAlignCenter = 0x00,
    /// Vertical: bottom. Takes precedence over top.
    ZelAlignBottom = 0x01,
    /// Vertical: top.
    ZelAlignTop = 0x02,
    /// Horizontal: left. Takes precedence over right.
    ZelAlignLeft = 0x10,
    /// Horizontal: right.
    ZelAlignRight = 0x20
};

/// Combines the flags of @p a and @p b.
ZELINTERCHANGEDATA_INLINE constexpr ZelAlignment_tags operator|(ZelAlignment_tags a,
                                                                ZelAlignment_tags b) noexcept
{
    return static_cast<ZelAlignment_tags>(static_cast<std::uint32_t>(a) |
                                          static_cast<std::uint32_t>(b));
}

} // namespace ZelInterchangeData

#endif
