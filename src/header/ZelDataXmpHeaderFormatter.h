/// @file
/// Writes a header as a packet.

#ifndef ZELINTERCHANGEDATA_HEADER_ZELDATAXMPHEADERFORMATTER_H
#define ZELINTERCHANGEDATA_HEADER_ZELDATAXMPHEADERFORMATTER_H

#include "ZelInterchangeData/i_ZelDataHeader.h"
#include "ZelInterchangeData/i_ZelDataHeaderFormatter.h"
#include "header/ZelDataHeader.h"
#include "sets/XmpFormatter.h"

namespace ZelInterchangeData {

/// Writes the frame of every document: namespaces, header properties, an empty track list, and the
/// player's controller.
class ZelDataXmpHeaderFormatter
    : public XmpFormatter<i_ZelDataHeaderFormatter, i_ZelDataHeader, ZelDataHeader> {
public:
    ZelDataResult_tags writeString(std::string& out, ZelDataFormatType_tags format,
                                   bool flag) const override;
    ZelDataResult_tags writeFile(const std::string& path, ZelDataFormatType_tags format,
                                 bool flag) const override;
    ZelDataResult_tags setHeader(const i_ZelDataHeader& header) override;
    ZelDataResult_tags getHeader(i_ZelDataHeader& header) const override;
};

} // namespace ZelInterchangeData

#endif
