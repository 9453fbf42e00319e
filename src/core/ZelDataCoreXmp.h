/// @file
/// The document object that writes itself as an XMP packet.

#ifndef ZELINTERCHANGEDATA_CORE_ZELDATACOREXMP_H
#define ZELINTERCHANGEDATA_CORE_ZELDATACOREXMP_H

#include "core/ZelDataCore.h"

namespace ZelInterchangeData {

/// Assembles the packet from the formatters' texts. Unlike ZelDataCore, it stores the code of
/// writing, and writing replaces the languages of its own header.
class ZelDataCoreXmp : public ZelDataCore {
public:
    /// - #ZelData_InvalidArgument: no header is held.
    /// - #ZelData_InvalidData: the header is not valid.
    /// - #ZelData_UnsupportedFormat: @p format is not XMP; the header's languages have already been
    ///   replaced.
    /// - The last error of the header, or of the formatter that failed.
    /// - #ZelData_InternalError: the header's text has no track list.
    ZelDataResult_tags writeString(std::string& out, ZelDataFormatType_tags format,
                                   bool append) const override;
    ZelDataResult_tags readString(const std::string& text, ZelDataFormatType_tags format,
                                  bool flag) override;
    /// The code of a failed writeString(), or #ZelData_FileOpenFailed.
    ZelDataResult_tags writeFile(const std::string& path, ZelDataFormatType_tags format,
                                 bool flag) const override;
    ZelDataResult_tags readFile(const std::string& path, ZelDataFormatType_tags format) override;

private:
    Ending checkHeader() const;
    Ending copyCaptionLanguages() const;
    Ending replaceHeaderLanguages() const;
    Ending writeHeader(std::string& packet, ZelDataFormatType_tags format) const;
    ZelDataResult_tags writeTracks(std::string& packet) const;
    ZelDataResult_tags assemble(std::string& packet, ZelDataFormatType_tags format) const;
};

} // namespace ZelInterchangeData

#endif
