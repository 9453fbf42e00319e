/// @file
/// The formatter of a header.

#ifndef ZELINTERCHANGEDATA_I_ZELDATAHEADERFORMATTER_H
#define ZELINTERCHANGEDATA_I_ZELDATAHEADERFORMATTER_H

#include "ZelInterchangeData/i_ZelDataFormatterBase.h"

namespace ZelInterchangeData {

class i_ZelDataHeader;

/// Holds a copy of a header and writes it as a complete packet with an empty track list.
///
/// - `writeString` (the flag is not used): #ZelData_InternalError for a format other than
///   #ZelDataFormat_Xmp; #ZelData_InvalidData if no header was ever set. It does not check whether
///   the header is valid.
/// - `readString`, `writeFile`, `readFile`: #ZelData_InternalError for another format, otherwise
///   #ZelData_NotImplemented. Nothing is read or written.
class ZELINTERCHANGEDATA_API i_ZelDataHeaderFormatter : public i_ZelDataFormatterBase {
public:
    ZELINTERCHANGEDATA_INLINE_COPIES(i_ZelDataHeaderFormatter);
    ~i_ZelDataHeaderFormatter() override;

    /// Replaces the held copy with a copy of @p header.
    /// - The code of the failed copy (see i_ZelDataHeader::copyFrom()): the held copy is
    ///   incomplete.
    virtual ZelDataResult_tags setHeader(const i_ZelDataHeader& header) = 0;
    /// Not supported: always #ZelData_NotImplemented.
    virtual ZelDataResult_tags getHeader(i_ZelDataHeader& header) const = 0;
};

} // namespace ZelInterchangeData

#endif
