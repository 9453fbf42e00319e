/// @file
/// The formatter of captions.

#ifndef ZELINTERCHANGEDATA_I_ZELDATACAPTIONFORMATTER_H
#define ZELINTERCHANGEDATA_I_ZELDATACAPTIONFORMATTER_H

#include "ZelInterchangeData/i_ZelDataFormatterBase.h"

namespace ZelInterchangeData {

class i_ZelDataCaptions;

/// Holds a copy of captions and writes it as one `rdf:li` of the packet's track list.
///
/// - `writeString` (the flag is not used): #ZelData_InternalError for a format other than
///   #ZelDataFormat_Xmp; #ZelData_InvalidData if nothing was ever set. It makes the held copy
///   consistent first. For a collection without items, it returns #ZelData_Ok and leaves the text
///   unchanged.
/// - `writeFile` writes no file: #ZelData_InternalError for another format, the code of a failed
///   `writeString`, otherwise #ZelData_NotImplemented.
/// - `readString`, `readFile`: #ZelData_InternalError for another format, otherwise
///   #ZelData_NotImplemented.
class ZELINTERCHANGEDATA_API i_ZelDataCaptionFormatter : public i_ZelDataFormatterBase {
public:
    ZELINTERCHANGEDATA_INLINE_COPIES(i_ZelDataCaptionFormatter);
    ~i_ZelDataCaptionFormatter() override;

    /// Replaces the held copy with a copy of @p captions.
    /// - The code of the failed copy (see i_ZelDataCaptions::copyFrom()): the held copy is
    ///   incomplete.
    virtual ZelDataResult_tags setCaptions(const i_ZelDataCaptions& captions) = 0;
    /// Not supported: always #ZelData_NotImplemented.
    virtual ZelDataResult_tags getCaptions(i_ZelDataCaptions& captions) const = 0;
};

} // namespace ZelInterchangeData

#endif
