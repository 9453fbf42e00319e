/// @file
/// The output formats.

#ifndef ZELINTERCHANGEDATA_ZELDATAFORMATTYPE_TAGS_H
#define ZELINTERCHANGEDATA_ZELDATAFORMATTYPE_TAGS_H

#include <cstdint>

namespace ZelInterchangeData {

/// An output format. The operations that take one reject any value that is not listed.
enum ZelDataFormatType_tags : std::uint32_t {
    /// An XMP packet: RDF/XML in UTF-8.
    ZelDataFormat_Xmp = 1
};

} // namespace ZelInterchangeData

#endif
